#include "Fixtures.h"

#include "platform/Horloge.h"
#include "services/MisesAJour.h"
#include "services/Registre.h"
#include "results/PartieEnCours.h"

QByteArray Enregistrement(int carte, int x, int zone) { return char(carte) + Octets::LE(x, 2) + char(zone); }

QByteArray RasterBandes()
{
    QByteArray f = Enregistrement(0, 0, 4);
    for (int y = 0; y < 456; ++y) {
        f += Enregistrement(0, 0, 0);
        if (y < 17 * 26)
            f += Enregistrement(0, 0, y / 17 + 1) + Enregistrement(0, 640, 0);
    }
    return f + Enregistrement(0, 0, 0);
}

void JeuTest::SetUp()
{
    ASSERT_TRUE(dossier.isValid() && EcritFichierEntier(dossier.filePath(QStringLiteral("KELMOR.pts")), RasterBandes()));
    QDir::setCurrent(dossier.path()); // where files named without a folder go
    InstalleDossierProgramme(dossier.path()), InstalleFichierRegistre(dossier.filePath(QStringLiteral("registre.ini")));
    InstalleBoîtes(&boîtes), InstalleSons(&sons), InstalleHorloge([this] { return horloge; });
    InstalleHasard([] { return 0.0f; }); // the first of the places left
    InstalleEcran(InfoEcran{1280, 1024, QRect(0, 0, 1280, 1024), 24});
    InstalleFormesModales([](QDialog &) { return 0; }); // closed at once, as by their close box, unless a test scripts them
    FormesMontrées().clear();
    InstalleAdressePage(QUrl(QStringLiteral("http://127.0.0.1:1/"))); // no server listens there: the look for new versions stays here
    Langues().Langue = 1, Jeu().NomJoueur.clear(), Jeu().Etape = TEtape::Aucune, Jeu().Niveau = TNiveau::Aucun;
    std::fill(std::begin(Jeu().Cantons), std::end(Jeu().Cantons), TCanton{});
    ASSERT_TRUE(Main());
    forme = FormePrincipale();
    ASSERT_NE(forme, nullptr);
    boîtes.journal.clear();
}

void JeuTest::TearDown()
{
    if (forme)
        Jeu().PartieVierge = true, delete forme; // nothing to confirm on the way out
    InstalleDialogueNouvellePartie(nullptr), InstalleFormesModales(nullptr), InstalleAdressePage(QUrl());
    InstalleBoîtes(nullptr), InstalleSons(nullptr), InstalleHorloge(nullptr), InstalleHasard(nullptr), InstalleEcran(std::nullopt);
    InstalleDossierProgramme(QString()), InstalleFichierRegistre(QString());
}

void JeuTest::CliqueEn(QPoint pointCarte)
{
    auto &E = Principal();
    // A player scrolls the point into view first.
    if (pointCarte.x() - E.BarreH->Value() >= E.Carte->width() - 4)
        E.BarreH->setValue(E.BarreH->Max());
    if (pointCarte.y() - E.BarreV->Value() >= E.Carte->height() - 4)
        E.BarreV->setValue(E.BarreV->Max());
    const QPoint dansCarte(pointCarte.x() - E.BarreH->Value(), pointCarte.y() - E.BarreV->Value());
    QWidget *cible = E.Carte->childAt(dansCarte);
    ASSERT_NE(cible, nullptr) << "nothing to click at " << pointCarte.x() << "," << pointCarte.y();
    QTest::mouseClick(cible, Qt::LeftButton, {}, cible->mapFrom(E.Carte, dansCarte));
}

void JeuTest::NouvellePartieAuNiveau(int niveau, bool apprentissage)
{
    InstalleDialogueNouvellePartie([niveau, apprentissage] {
        Jeu().NomJoueur = QStringLiteral("Test"), Jeu().Niveau = static_cast<TNiveau>(niveau), Jeu().ModeApprentissage = Jeu().ScoreGelé = apprentissage;
        Principal().BoutonGruge->setPicture(Principal().AmpouleAllumée->Picture());
        Jeu().Etape = Jeu().OrdreEtapes[1], Jeu().HeureDépart = SecondesDepuisMinuit();
    });
    LanceNouvellePartie();
}

void JeuTest::RépondFaux()
{
    for (int c = 1; c <= NombrePlaces; ++c)
        if (c != Jeu().CantonRecherché && !Jeu().Cantons[c].Trouvé && !Jeu().Cantons[c].Inhibé)
            return CliqueCanton(c);
    FAIL() << "no other canton left to answer wrong";
}

void JeuTest::ChoisitFichier(const char *nom)
{
    InstalleFormesModales([nom](QDialog &d) {
        auto &s = dynamic_cast<SélectionPartie &>(d);
        nom ? s.NomFichier->setText(nom) : s.Fichier->setCurrentRow(0);
        s.BoutonOK->click();
        return s.result();
    });
}
