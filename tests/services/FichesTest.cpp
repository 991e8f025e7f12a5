// The information cards: the card of a canton, the editor of the records, the files made
// at the start, all on files of a temporary folder.
#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Ansi.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "screen/Commandes.h"
#include "screen/EcranPrincipal.h"
#include "screen/Edition.h"
#include "services/Fiches.h"
#include "services/Langues.h"
#include "screen/ParametrageRepertoires.h"
#include "services/Parametres.h"
#include "screen/Pompe.h"
#include "results/PartieEnCours.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QTest>

namespace {

// A record as the format lays it out: two lengths little-endian, Windows-1252, zeros behind.
QByteArray Enreg(const QByteArray &nom, const QByteArray &texte)
{
    QByteArray r = char(nom.size()) + QByteArray(1, '\0') + nom + char(texte.size() & 0xFF) + char(texte.size() >> 8) + texte;
    return r + QByteArray(650 - r.size(), '\0');
}

QByteArray Lit(const QString &chemin)
{
    QFile f(chemin);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void Ecrit(const QString &chemin, const QByteArray &octets)
{
    QFile f(chemin);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(octets);
}

class Fiches : public JeuTest {
protected:
    // A file of 26 records, "Nom k" and "Texte k".
    static QByteArray FichierType()
    {
        QByteArray f;
        for (int k = 1; k <= 26; ++k)
            f += Enreg("Nom " + QByteArray::number(k), "Texte " + QByteArray::number(k));
        return f;
    }
    void Relance(std::optional<InfoEcran> écran = std::nullopt)
    {
        delete forme;
        forme = nullptr;
        if (écran)
            InstalleEcran(*écran);
        boîtes.journal.clear();
        ASSERT_TRUE(Main());
        forme = FormePrincipale();
    }
    // Clicks canton c in the revision display and hands the card to `regarde` while it is open.
    void OuvreFiche(int c, const std::function<void(Pompe &)> &regarde)
    {
        LanceRévision();
        boîtes.journal.clear();
        bool ouverte = false;
        InstalleFormesModales([&](QDialog &d) {
            auto &p = dynamic_cast<Pompe &>(d);
            ouverte = true;
            regarde(p);
            p.BTNOK->click();
            return p.result();
        });
        CliqueCanton(c);
        InstalleFormesModales([](QDialog &) { return 0; });
        EXPECT_TRUE(ouverte) << "no card for canton " << c;
    }
};

TEST_F(Fiches, ACardShowsFlagNameWithPlateChiefTownAndTheRecordsTextBesideItsCanton)
{
    QByteArray f = FichierType();
    f.replace(23 * 650, 650, Enreg("Vaud", "Capitale olympique.\r\nL\xE9man\xA0: 582 km\xB2"));
    Ecrit(Langues().CheminsInfo[1], f);
    auto &E = Principal();
    OuvreFiche(24, [&](Pompe &p) {
        EXPECT_EQ(QStringList({p.LBLPays->text(), p.LBLCapitale->text(), p.TXTInfos->Text()}),
                  QStringList({"Vaud (VD)", "Chef-lieu : Lausanne", QString::fromUtf8("Capitale olympique.\r\nLéman\u00A0: 582 km²")}));
        EXPECT_EQ(p.IMGDrapeau->Picture().cacheKey(), E.drapeau[24]->Picture().cacheKey());
        // Right of the canton on a wide screen, halfway down the work area; the target on its town.
        const int cadre = E.frameGeometry().height() - E.geometry().height();
        EXPECT_EQ(p.pos(), QPoint(E.inv[24]->Left() + E.Carte->Left() + E.inv[24]->Width() + 10, (1024 - 493 - cadre) / 2));
        EXPECT_TRUE(E.rond[24]->Visible());
        EXPECT_NE(E.rond[24]->size(), E.RondVille->size());
    });
    EXPECT_EQ(Jeu().CantonFiche, 24);
    EXPECT_EQ(E.rond[24]->size(), E.RondVille->size()) << "closed, the town's dot is at rest";
    EXPECT_TRUE(boîtes.journal.empty());

    // The screen's own width counts: on a narrow one no room right of Appenzell, so left; Graubünden
    // neither, 10 px from the edge. The other placements are PlaceFiche's table below.
    Relance(InfoEcran{800, 600, QRect(0, 0, 800, 570), 24});
    const int x = Principal().inv[2]->Left() + Principal().Carte->Left();
    const int cadre = Principal().frameGeometry().height() - Principal().geometry().height();
    OuvreFiche(2, [&](Pompe &p) { EXPECT_EQ(p.pos(), QPoint(x - 10 - p.width(), (570 - 493 - cadre) / 2)); });
    OuvreFiche(10, [&](Pompe &p) { EXPECT_EQ(p.x(), 10); });
}

TEST_F(Fiches, ALowWorkAreaShrinksTheCardAndMovesItsButtonUp)
{
    for (int bas : {400, 493, 530}) {
        Relance(InfoEcran{1024, 768, QRect(0, 0, 1024, bas), 24});
        // The main window's frame stands for the card's own, unknown before it shows.
        const int cadre = Principal().frameGeometry().height() - Principal().geometry().height();
        const int hauteur = std::min(493, bas - cadre);
        const int hautOK = hauteur == 493 ? 464 : hauteur - 40; // the button moves up with a cut card only
        OuvreFiche(7, [&](Pompe &p) {
            EXPECT_EQ(QList<int>({p.height(), p.y(), p.BTNOK->Top(), p.TXTInfos->Top(), p.TXTInfos->Height()}),
                      QList<int>({hauteur, (bas - hauteur - cadre) / 2, hautOK, 192, hautOK - 197}))
                << bas;
        });
    }
}

TEST(PlaceFiche, TheWholeCardFrameIncludedStaysInTheWorkArea)
{
    struct Cas {
        int x, w, bas, cadre, gauche, haut, hauteur;
    };
    // Card 383 x 493 beside a canton 100 wide, on a screen 1024 wide; OK 25 high.
    for (Cas c : {Cas{100, 100, 984, 0, 210, 245, 493}, Cas{700, 100, 984, 25, 307, 233, 493},
                  Cas{400, 100, 518, 25, 510, 0, 493}, Cas{400, 100, 500, 25, 510, 0, 475},
                  Cas{600, 100, 400, 0, 207, 0, 400}, Cas{380, 300, 20, 25, 10, 0, 40}}) {
        const TPlaceFiche p = PlaceFiche(c.x, c.w, 383, 493, 1024, c.bas, c.cadre, 40);
        EXPECT_EQ(QList<int>({p.gauche, p.haut, p.hauteur}), QList<int>({c.gauche, c.haut, c.hauteur}))
            << c.x << " " << c.bas << " " << c.cadre;
    }
}

TEST_F(Fiches, AMissingOrDamagedFileGivesAnEmptyCardAndADamagedRecordIsTold)
{
    QByteArray abîmé = FichierType();
    abîmé[2 * 650 + 7] = char(0xFF); // record 3's text runs past its 650 bytes
    abîmé[2 * 650 + 8] = char(0x02);
    for (const auto &[cas, contenu] : {std::pair<const char *, QByteArray>{"missing file", {}},
                                       {"short file", Enreg("a", "b") + Enreg("c", "d")},
                                       {"damaged record", abîmé},
                                       {"folder gone", {}}}) {
        if (cas == std::string("folder gone"))
            Langues().CheminsInfo[1] = dossier.filePath("parti/KELMOR.INF");
        else if (contenu.isEmpty())
            ASSERT_TRUE(QFile::remove(Langues().CheminsInfo[1]));
        else
            Ecrit(Langues().CheminsInfo[1], contenu);
        OuvreFiche(3, [&](Pompe &p) {
            EXPECT_TRUE(p.TXTInfos->Text().isEmpty()) << cas;
            EXPECT_FALSE(p.LBLPays->text().isEmpty()) << cas;
        });
        const bool abîmé = cas == std::string("damaged record");
        EXPECT_EQ(boîtes.ADit(Langues().CheminsInfo[1] + " : " + Message(TMessage::FichierNonInterprétable)), abîmé) << cas;
        EXPECT_EQ(boîtes.journal.size(), abîmé ? 1u : 0u) << cas;
        EXPECT_EQ(QFile::exists(Langues().CheminsInfo[1]), !contenu.isEmpty()) << cas << ": a card doesn't make the file";
    }
}

// ---------------------------------------------------------------- the editor

class Editeur : public Fiches {
protected:
    void SetUp() override
    {
        Fiches::SetUp();
        chemin = Langues().CheminsInfo[1];
        Ecrit(chemin, FichierType());
        avant = Lit(chemin);
    }
    QByteArray Record(int k) { return Lit(chemin).mid((k - 1) * 650, 650); }
    QString chemin;
    QByteArray avant;
};

TEST_F(Editeur, TheMenuOpensRecordOneOfTheLanguageInUseCentredInTheWorkArea)
{
    InstalleEcran(InfoEcran{1280, 1024, QRect(0, 30, 1280, 960), 24});
    Ecrit(Langues().CheminsInfo[2], Enreg("Waadt", "Deutsch"));
    for (const auto &[langue, nom, texte] : {std::tuple{1, "Nom 1", "Texte 1"}, {2, "Waadt", "Deutsch"}}) {
        ChangeLangue(langue);
        bool vue = false;
        InstalleFormesModales([&](QDialog &d) {
            auto &e = dynamic_cast<Edition &>(d);
            vue = true;
            EXPECT_EQ(QStringList({e.LBLPays->text(), e.TXTInfos->Text()}), QStringList({nom, texte}));
            EXPECT_EQ(FicheEnEdition().FicheEditée, 1);
            // The work area's own corner isn't added.
            EXPECT_EQ(e.pos(), QPoint((1280 - 416) / 2, (960 - 435) / 2));
            e.BTNQuit->click();
            return e.result();
        });
        Principal().MenuFichInfo->trigger();
        EXPECT_TRUE(vue) << langue;
    }
    ChangeLangue(1);
    EXPECT_EQ(Lit(chemin), avant);
}

TEST_F(Editeur, OnlyAChangedTextIsWrittenAndThenInItsPlace)
{
    // Texts that the box shows with other line breaks or spaces are no change.
    QByteArray f = FichierType();
    f.replace(2 * 650, 650, Enreg("Lucerne", "une\nligne\xA0seule"));
    Ecrit(chemin, avant = f);

    Edition e;
    e.BTNRight->click();
    e.LBLPays->setText("Nom changé seul");
    e.BTNRight->click();
    EXPECT_EQ(e.LBLPays->text(), "Lucerne");
    e.BTNRight->click();
    e.BTNLeft->click();
    e.BTNLeft->click();
    EXPECT_EQ(FicheEnEdition().FicheEditée, 2);
    EXPECT_EQ(e.LBLPays->text(), "Nom 2") << "a name typed alone is lost";
    EXPECT_EQ(Lit(chemin), avant) << "nothing changed, nothing written";

    // A new text, with the name typed beside it, goes to record 2 and nowhere else.
    e.LBLPays->setText("Berne");
    e.TXTInfos->setPlainText(QString::fromUtf8("Capitale fédérale\nAar"));
    e.BTNDown->click();
    EXPECT_EQ(FicheEnEdition().FicheEditée, 26);
    const QByteArray après = Lit(chemin);
    EXPECT_EQ(après.mid(650, 650), QByteArray("\x05\x00" "Berne\x16\x00" "Capitale f\xE9" "d\xE9rale\r\nAar", 31) + QByteArray(619, '\0'));
    EXPECT_EQ(après.left(650) + après.mid(1300), avant.left(650) + avant.mid(1300));
    EXPECT_TRUE(boîtes.journal.empty());
    e.BTNUp->click();
    e.BTNRight->click();
    EXPECT_EQ(QStringList({e.LBLPays->text(), e.TXTInfos->Text()}), QStringList({"Berne", QString::fromUtf8("Capitale fédérale\r\nAar")}));
}

TEST_F(Editeur, ARecordOverSixHundredAndFiftyBytesIsRefusedAndOnlyBTNQuitLeaves)
{
    Edition e;
    e.BTNDown->click();
    e.BTNLeft->click(); // record 25, "Nom 25": 6 characters of name
    // 4 + 6 + 640 = 650, a line break counting two: it fits exactly.
    const QString juste = QString(319, 'a') + "\n" + QString(319, 'b');
    e.TXTInfos->setPlainText(juste);
    e.BTNUp->click();
    EXPECT_TRUE(boîtes.journal.empty() && FicheEnEdition().FicheEditée == 1);
    EXPECT_EQ(Record(25), Enreg("Nom 25", QByteArray(319, 'a') + "\r\n" + QByteArray(319, 'b')));

    e.BTNDown->click();
    e.BTNLeft->click();
    const QByteArray fichier = Lit(chemin);
    e.TXTInfos->setPlainText(juste + "c");
    e.show();
    for (BoutonGraphique *b : {e.BTNUp, e.BTNRight, e.BTNQuit}) {
        boîtes.journal.clear();
        b->click();
        ASSERT_EQ(boîtes.journal.size(), 1u);
        EXPECT_TRUE(boîtes.journal[0].texte.endsWith(QString::fromUtf8("est de 651 pour un maximum autorisé de 650")));
        EXPECT_EQ(e.TXTInfos->Text(), QString(juste).replace("\n", "\r\n") + "c");
        EXPECT_TRUE(FicheEnEdition().FicheEditée == 25 && e.isVisible()) << "not even BTNQuit leaves";
        EXPECT_EQ(Lit(chemin), fichier);
    }
    // Neither Escape nor the window's closing leave either; shortened, it is written and the editor closes.
    QTest::keyClick(&e, Qt::Key_Escape);
    e.close();
    EXPECT_TRUE(e.isVisible());
    e.TXTInfos->setPlainText("court");
    e.BTNQuit->click();
    EXPECT_EQ(e.result(), QDialog::Accepted);
    EXPECT_TRUE(FicheEnEdition().FichierFichesOuvert.isEmpty());
    EXPECT_EQ(Record(25), Enreg("Nom 25", "court"));
}

TEST_F(Editeur, AtTheEdgesTheArrowsWriteAndStayWhileUpAndDownReadAgain)
{
    Edition e;
    for (const auto &[bord, flèche, relit] : {std::tuple{1, e.BTNLeft, e.BTNUp}, {26, e.BTNRight, e.BTNDown}}) {
        SCOPED_TRACE(bord);
        relit->click();
        const QByteArray attendu = Enreg("Nom " + QByteArray::number(bord), "au bord");
        e.TXTInfos->setPlainText("au bord");
        flèche->click();
        EXPECT_EQ(FicheEnEdition().FicheEditée, bord);
        EXPECT_EQ(Record(bord), attendu);
        // The reference is only renewed by a read: the same press writes again, and so does Up or Down,
        // which then reads the record back, so that the box holds no change any more.
        for (BoutonGraphique *b : {flèche, relit}) {
            Ecrit(chemin, avant);
            b->click();
            EXPECT_EQ(Record(bord), attendu);
        }
        Ecrit(chemin, avant);
        relit->click();
        EXPECT_EQ(e.TXTInfos->Text(), "Texte " + QString::number(bord));
        EXPECT_EQ(Lit(chemin), avant);
    }
}

TEST_F(Editeur, AShortOrMissingFileGrowsByEmptyRecordsAndAFailedWriteSaysSo)
{
    ASSERT_TRUE(QFile::remove(chemin));
    {
        Edition e;
        EXPECT_TRUE(e.TXTInfos->Text().isEmpty() && e.LBLPays->text().isEmpty());
        e.BTNRight->click();
        e.BTNRight->click();
        e.LBLPays->setText("Uri");
        e.TXTInfos->setPlainText("Altdorf");
        e.BTNQuit->click();
    }
    EXPECT_EQ(Lit(chemin), QByteArray(1300, '\0') + Enreg("Uri", "Altdorf"));

    // A folder that is gone: the message, with the length, and the editor stays.
    Langues().CheminsInfo[1] = dossier.filePath("parti/KELMOR.INF");
    Edition e;
    e.TXTInfos->setPlainText("Zoug");
    e.BTNRight->click();
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_TRUE(boîtes.journal[0].texte.contains("est de 8 pour"));
    EXPECT_EQ(FicheEnEdition().FicheEditée, 1);
    EXPECT_FALSE(QDir(dossier.filePath("parti")).exists());
}

// ---------------------------------------------------------------- files made at the start

TEST_F(Fiches, AFirstStartMakesBothFilesAndSaysSoOnceInTheLanguageInUse)
{
    auto messagesCréation = [this] {
        return std::count_if(boîtes.journal.begin(), boîtes.journal.end(), [](const auto &b) { return b.titre == Message(TMessage::TitreCréationFichierInfo); });
    };
    QFile::remove(dossier.filePath("KELMOR.INF"));
    QFile::remove(dossier.filePath("DRAVELN.INF"));
    Relance();
    EXPECT_EQ(messagesCréation(), 1);
    QByteArray attendu;
    for (int k = 1; k <= 26; ++k)
        attendu += Enreg(VersAnsi(Jeu().Cantons[k].Nom), VersAnsi(Message(TMessage::FicheÀRemplir)));
    for (const char *nom : {"KELMOR.INF", "DRAVELN.INF"})
        EXPECT_EQ(Lit(dossier.filePath(nom)), attendu) << nom;
    Relance();
    EXPECT_EQ(messagesCréation(), 0) << "the next start finds them and says nothing";

    // In German the French file gets German names and text, without a word.
    ChangeLangue(2);
    QFile::remove(Langues().CheminsInfo[1]);
    QFile::remove(Langues().CheminsInfo[2]);
    boîtes.journal.clear();
    CréeFichierInfo(Jeu(), 1);
    EXPECT_TRUE(boîtes.journal.empty()) << "the French file is not the language in use";
    CréeFichierInfo(Jeu(), 2);
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(boîtes.journal[0].texte, Message(TMessage::FichierInfoAbsent));
    for (int langue : {1, 2}) {
        TFiche fiche;
        ASSERT_TRUE(LitFicheInfo(Langues().CheminsInfo[langue], 24, fiche));
        EXPECT_EQ(QStringList({fiche.Nom, fiche.Texte}), QStringList({"Waadt", Message(TMessage::FicheÀRemplir)}));
    }
    ChangeLangue(1);
}

TEST_F(Fiches, AFolderThatCantBeWrittenAsksForAnother)
{
    // The folder form: first closed by its close box, then a folder that can be written taken.
    ASSERT_TRUE(QDir(dossier.path()).mkdir("cartes"));
    int ouvertures = 0;
    InstalleFormesModales([&](QDialog &d) {
        auto *f = dynamic_cast<ParamétrageRépertoires *>(&d);
        if (!f || ++ouvertures == 1)
            return 0;
        f->ChangeRépertoire(dossier.filePath("cartes"));
        f->BoutonOK->click();
        return f->result();
    });
    const QString disparu = dossier.filePath("parti");
    Réglages().RépertoireInfo = disparu;
    Langues().CheminsInfo[1] = disparu + "/KELMOR.INF";
    DemandeDossier().ModeRépertoires = TModeRépertoires::Aucun;
    CréeFichierInfo(Jeu(), 1);
    ASSERT_EQ(boîtes.journal.size(), 3u);
    EXPECT_EQ(boîtes.journal[1].texte, Message(TMessage::RépertoireNonInscriptible) + " (" + disparu + "/)");
    EXPECT_EQ(DemandeDossier().ModeRépertoires, TModeRépertoires::DossierInformation);
    EXPECT_FALSE(QDir(disparu).exists()) << "given up: no file, no folder";

    boîtes.journal.clear();
    CréeFichierInfo(Jeu(), 1);
    EXPECT_EQ(boîtes.journal.size(), 3u);
    EXPECT_EQ(Langues().CheminsInfo[1], dossier.filePath("cartes/KELMOR.INF"));
    EXPECT_EQ(Lit(Langues().CheminsInfo[1]).size(), 16900);
}

} // namespace
