#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "platform/Horloge.h"
#include "results/Resultats.h"
#include "screen/EcranPrincipal.h"
#include "services/Langues.h"
#include "services/MisesAJour.h"
#include "services/Parametres.h"
#include "services/Registre.h"
#include "results/PartieEnCours.h"

#include <QFile>
#include <QTest>

QByteArray Enregistrement(int carte, int x, int zone)
{
    QByteArray r(4, '\0');
    r[0] = char(carte);
    r[1] = char(x & 0xFF);
    r[2] = char((x >> 8) & 0xFF);
    r[3] = char(zone);
    return r;
}

QByteArray RasterBandes()
{
    QByteArray f = Enregistrement(0, 0, 4);
    for (int y = 0; y < 456; ++y) {
        f += Enregistrement(0, 0, 0);
        const int c = y / 17 + 1;
        if (c <= 26) {
            f += Enregistrement(0, 0, c);
            f += Enregistrement(0, 640, 0);
        }
    }
    f += Enregistrement(0, 0, 0);
    return f;
}

void JeuTest::SetUp()
{
    ASSERT_TRUE(dossier.isValid());
    QFile raster(dossier.filePath(QStringLiteral("KELMOR.pts")));
    ASSERT_TRUE(raster.open(QIODevice::WriteOnly));
    raster.write(RasterBandes());
    raster.close();

    InstalleDossierProgramme(dossier.path());
    InstalleFichierRegistre(dossier.filePath(QStringLiteral("registre.ini")));
    InstalleBoîtes(&boîtes);
    InstalleSons(&sons);
    InstalleHorloge([this] { return horloge; });
    InstalleHasard([this] {
        if (tirages.empty())
            return 0.0f;
        const float t = tirages.front();
        tirages.pop_front();
        return t;
    });
    InstalleEcran(InfoEcran{1280, 1024, QRect(0, 0, 1280, 1024), 24});
    // Modal forms close at once, as by their close box, unless a test scripts them.
    InstalleFormesModales([](QDialog &) { return 0; });
    FormesMontrées().clear();
    // The look for new versions never leaves this machine: no server listens on that port.
    InstalleAdressePage(QUrl(QStringLiteral("http://127.0.0.1:1/")));

    Langues().Langue = 1;
    Jeu().NomJoueur.clear();
    Jeu().Etape = TEtape::Aucune;
    Jeu().Niveau = TNiveau::Aucun;
    for (auto &c : Jeu().Cantons)
        c = TCanton{};
    ASSERT_TRUE(Main());
    forme = FormePrincipale();
    ASSERT_NE(forme, nullptr);
    boîtes.journal.clear();
}

void JeuTest::TearDown()
{
    if (forme) {
        Jeu().PartieVierge = true; // nothing to confirm on the way out
        delete forme;
    }
    InstalleDialogueNouvellePartie(nullptr);
    InstalleFormesModales(nullptr);
    InstalleAdressePage(QUrl());
    InstalleBoîtes(nullptr);
    InstalleSons(nullptr);
    InstalleHorloge(nullptr);
    InstalleHasard(nullptr);
    InstalleEcran(std::nullopt);
    InstalleDossierProgramme(QString());
    InstalleFichierRegistre(QString());
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
        Jeu().NomJoueur = QStringLiteral("Test");
        Jeu().Niveau = static_cast<TNiveau>(niveau);
        Jeu().ModeApprentissage = apprentissage;
        Jeu().ScoreGelé = apprentissage;
        Principal().BoutonGruge->setPicture(Principal().AmpouleAllumée->Picture());
        Jeu().Etape = Jeu().OrdreEtapes[1];
        Jeu().HeureDépart = SecondesDepuisMinuit();
    });
    LanceNouvellePartie();
}

void JeuTest::TiragesScriptés(std::vector<float> t) { tirages.assign(t.begin(), t.end()); }

void JeuTest::RépondJuste() { CliqueCanton(Jeu().CantonRecherché); }

void JeuTest::RépondFaux()
{
    for (int c = 1; c <= NombrePlaces; ++c)
        if (c != Jeu().CantonRecherché && !Jeu().Cantons[c].Trouvé && !Jeu().Cantons[c].Inhibé) {
            CliqueCanton(c);
            return;
        }
    FAIL() << "no other canton left to answer wrong";
}
