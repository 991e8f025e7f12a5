// The information cards: the card of a canton, the editor of the records, the files made
// at the start, all on files of a temporary folder.
#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "screen/Commandes.h"
#include "screen/EcranPrincipal.h"
#include "services/Edition.h"
#include "services/Fiches.h"
#include "services/Langues.h"
#include "services/ParametrageRepertoires.h"
#include "services/Parametres.h"
#include "services/Pompe.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QTest>

namespace {

// A record as the format lays it out: two lengths little-endian, Windows-1252, zeros behind.
QByteArray Enreg(const QByteArray &nom, const QByteArray &texte)
{
    QByteArray r;
    r += char(nom.size() & 0xFF);
    r += char(nom.size() >> 8);
    r += nom;
    r += char(texte.size() & 0xFF);
    r += char(texte.size() >> 8);
    r += texte;
    r += QByteArray(650 - r.size(), '\0');
    return r;
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
    QByteArray FichierType()
    {
        QByteArray f;
        for (int k = 1; k <= 26; ++k)
            f += Enreg("Nom " + QByteArray::number(k), "Texte " + QByteArray::number(k));
        return f;
    }

    // Clicks canton c in the revision display and hands the card to `regarde` while it is open.
    void OuvreFiche(int c, const std::function<void(Pompe &)> &regarde)
    {
        LanceRévision();
        boîtes.journal.clear();
        bool ouverte = false;
        InstalleFormesModales([&](QDialog &d) {
            auto *p = dynamic_cast<Pompe *>(&d);
            EXPECT_NE(p, nullptr);
            if (!p)
                return 0;
            ouverte = true;
            regarde(*p);
            p->BTNOK->click();
            return p->result();
        });
        CliqueCanton(c);
        InstalleFormesModales([](QDialog &) { return 0; });
        EXPECT_TRUE(ouverte) << "no card for canton " << c;
        EXPECT_EQ(CantonFiche, c);
    }
};

// ---------------------------------------------------------------- the card

TEST_F(Fiches, ACardShowsFlagNameWithPlateChiefTownAndTheRecordsText)
{
    QByteArray f = FichierType();
    // Record 24 holds its text with a line break, an accent and a no-break space.
    f.replace(23 * 650, 650, Enreg("Vaud", "Capitale olympique.\r\nL\xE9man\xA0: 582 km\xB2"));
    Ecrit(CheminsInfo[1], f);
    auto &E = Principal();
    OuvreFiche(24, [&](Pompe &p) {
        EXPECT_EQ(p.windowTitle(), "Fiche de renseignements");
        EXPECT_EQ(p.property("HelpContextID").toInt(), 160);
        EXPECT_EQ(p.LBLPays->text(), "Vaud (VD)");
        EXPECT_EQ(p.LBLCapitale->text(), "Chef-lieu : Lausanne");
        EXPECT_EQ(p.TXTInfos->toPlainText(), QString::fromUtf8("Capitale olympique.\nLéman : 582 km²"));
        EXPECT_TRUE(p.TXTInfos->isReadOnly());
        EXPECT_EQ(p.TXTInfos->Text(), QString::fromUtf8("Capitale olympique.\r\nLéman\u00A0: 582 km²"));
        // The flag at its own size, centred; the chief town and the text stacked under it.
        EXPECT_FALSE(p.IMGDrapeau->Picture().isNull());
        EXPECT_EQ(p.IMGDrapeau->Picture().cacheKey(), E.drapeau[24]->Picture().cacheKey());
        EXPECT_EQ(p.IMGDrapeau->geometry(), QRect(129, 32, 125, 125));
        EXPECT_EQ(p.LBLCapitale->Top(), 162);
        EXPECT_EQ(p.TXTInfos->geometry(), QRect(8, 192, 369, 267));
        EXPECT_EQ(p.BTNOK->geometry(), QRect(168, 464, 49, 25));
        EXPECT_EQ(p.size(), QSize(383, 493));
        // Right of the canton on a wide screen, halfway down the work area.
        EXPECT_EQ(p.x(), E.inv[24]->Left() + E.Carte->Left() + E.inv[24]->Width() + 10);
        EXPECT_EQ(p.y(), (1024 - 493) / 2);
        // Dark red, white letters in italics; the target on the canton's town.
        EXPECT_EQ(p.palette().color(QPalette::Window), QColor(64, 0, 0));
        EXPECT_EQ(p.LBLPays->palette().color(QPalette::WindowText), QColor(Qt::white));
        EXPECT_TRUE(p.LBLPays->font().italic());
        EXPECT_TRUE(E.rond[24]->Visible());
        EXPECT_EQ(E.rond[24]->size(), QSize(23, 23));
        EXPECT_TRUE(p.windowFlags() & Qt::WindowCloseButtonHint);
        if (const QByteArray dossierAperçu = qgetenv("KELMOR_APERCU"); !dossierAperçu.isEmpty())
            p.grab().save(QString::fromLocal8Bit(dossierAperçu) + "/fiche-vaud.png");
    });
    EXPECT_EQ(FormesMontrées().back(), "Pompe");
    EXPECT_TRUE(sons.AJoué("carte_hl.wav"));
    // Closed, the target is gone: the town's dot at rest.
    EXPECT_EQ(E.rond[24]->size(), E.RondVille->size());
    EXPECT_TRUE(boîtes.journal.empty());

    // The card itself takes the target away when it closes, whoever opened it.
    PlaceRond(24, true, 100, 100);
    MontrePompe();
    EXPECT_EQ(E.rond[24]->size(), E.RondVille->size());
}

TEST_F(Fiches, TheCardStandsBesideItsCantonWhereverThereIsRoom)
{
    delete forme;
    forme = nullptr;
    InstalleEcran(InfoEcran{800, 600, QRect(0, 0, 800, 570), 24});
    ASSERT_TRUE(Main());
    forme = FormePrincipale();
    auto &E = Principal();
    auto x = [&E](int c) { return E.inv[c]->Left() + E.Carte->Left(); };
    // Appenzell in the north-east: no room to its right on 800 pixels, the card goes left.
    OuvreFiche(2, [&](Pompe &p) {
        ASSERT_GE(x(2) + 10 + E.inv[2]->Width() + 383, 800) << "the canton should lie too far east";
        EXPECT_EQ(p.x() + p.width() + 10, x(2));
        EXPECT_EQ(p.y(), (570 - 493) / 2);
    });
    // Geneva at the far west: to its right.
    OuvreFiche(8, [&](Pompe &p) { EXPECT_EQ(p.x(), x(8) + E.inv[8]->Width() + 10); });
    // Graubünden, wide and in the middle: room on neither side, 10 pixels from the screen's edge.
    OuvreFiche(10, [&](Pompe &p) {
        ASSERT_LE(x(10) - 10 - 383, 0);
        ASSERT_GE(x(10) + 10 + E.inv[10]->Width() + 383, 800);
        EXPECT_EQ(p.x(), 10);
    });
}

TEST_F(Fiches, ALowWorkAreaShrinksTheCardAndMovesItsButtonUp)
{
    struct Cas {
        int basTravail, hauteur, haut, hautOK, hauteurTexte;
    };
    // 493 is no lower than the card: nothing moves.
    for (Cas c : {Cas{400, 400, 0, 360, 163}, Cas{493, 493, 0, 464, 267}, Cas{494, 493, 0, 464, 267}}) {
        delete forme;
        forme = nullptr;
        InstalleEcran(InfoEcran{1024, 768, QRect(0, 0, 1024, c.basTravail), 24});
        ASSERT_TRUE(Main());
        forme = FormePrincipale();
        OuvreFiche(7, [&](Pompe &p) {
            EXPECT_EQ(BasZoneTravail, c.basTravail);
            EXPECT_EQ(p.height(), c.hauteur) << c.basTravail;
            EXPECT_EQ(p.y(), c.haut) << c.basTravail;
            EXPECT_EQ(p.BTNOK->Top(), c.hautOK) << c.basTravail;
            EXPECT_EQ(p.TXTInfos->Top(), 192);
            EXPECT_EQ(p.TXTInfos->Height(), c.hauteurTexte) << c.basTravail;
        });
    }
}

TEST_F(Fiches, AMissingOrDamagedFileGivesAnEmptyCardAndNothingElse)
{
    auto ouvreVide = [this](const char *cas) {
        OuvreFiche(3, [&](Pompe &p) {
            EXPECT_TRUE(p.TXTInfos->Text().isEmpty()) << cas;
            EXPECT_FALSE(p.LBLPays->text().isEmpty()) << cas;
        });
        EXPECT_TRUE(boîtes.journal.empty()) << cas;
    };
    ASSERT_TRUE(QFile::remove(CheminsInfo[1]));
    ouvreVide("missing file");
    EXPECT_FALSE(QFile::exists(CheminsInfo[1])) << "a card doesn't make the file";

    // A file of two records: record 3 lies past its end.
    Ecrit(CheminsInfo[1], Enreg("a", "b") + Enreg("c", "d"));
    ouvreVide("short file");

    // A record whose text runs past its 650 bytes.
    QByteArray f = FichierType();
    f[2 * 650 + 2 + 5] = char(0xFF);
    f[2 * 650 + 3 + 5] = char(0x02);
    Ecrit(CheminsInfo[1], f);
    ouvreVide("damaged record");

    // A folder that is gone.
    CheminsInfo[1] = dossier.filePath("parti/KELMOR.INF");
    ouvreVide("folder gone");
}

// ---------------------------------------------------------------- the editor

class Editeur : public Fiches {
protected:
    void SetUp() override
    {
        Fiches::SetUp();
        chemin = CheminsInfo[1];
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
    Ecrit(CheminsInfo[2], Enreg("Waadt", "Deutsch"));
    bool vue = false;
    InstalleFormesModales([&](QDialog &d) {
        auto *e = dynamic_cast<Edition *>(&d);
        EXPECT_NE(e, nullptr);
        if (!e)
            return 0;
        vue = true;
        EXPECT_EQ(e->windowTitle(), "Modification de la description des cantons");
        EXPECT_EQ(e->LBLPays->text(), "Nom 1");
        EXPECT_EQ(e->TXTInfos->Text(), "Texte 1");
        EXPECT_EQ(FicheEditée, 1);
        for (QWidget *w : std::initializer_list<QWidget *>{e->LBLPays, e->TXTInfos, e->BTNUp, e->BTNLeft, e->BTNRight,
                                                           e->BTNDown, e->BTNQuit})
            EXPECT_FALSE(w->isHidden());
        EXPECT_EQ(e->size(), QSize(416, 435));
        // The work area's own corner isn't added.
        EXPECT_EQ(e->pos(), QPoint((1280 - 416) / 2, (960 - 435) / 2));
        EXPECT_FALSE(e->BTNUp->icon().isNull());
        EXPECT_FALSE(e->windowFlags() & Qt::WindowCloseButtonHint);
        e->BTNQuit->click();
        return e->result();
    });
    Principal().MenuFichInfo->trigger();
    EXPECT_TRUE(vue);
    EXPECT_EQ(FormesMontrées().back(), "Edition");
    EXPECT_EQ(Lit(chemin), avant);

    // In German the German file.
    ChangeLangue(2);
    InstalleFormesModales([&](QDialog &d) {
        auto &e = dynamic_cast<Edition &>(d);
        EXPECT_EQ(e.windowTitle(), Messages[169]);
        EXPECT_EQ(e.LBLPays->text(), "Waadt");
        EXPECT_EQ(e.TXTInfos->Text(), "Deutsch");
        return 0;
    });
    EditerFiches();
    ChangeLangue(1);
}

TEST_F(Editeur, OnlyAChangedTextIsWrittenAndThenInItsPlace)
{
    // Texts that the box shows with other line breaks or spaces are no change.
    QByteArray f = FichierType();
    f.replace(2 * 650, 650, Enreg("Lucerne", "une\nligne\xA0seule"));
    Ecrit(chemin, f);
    avant = f;

    Edition e;
    e.BTNRight->click();
    EXPECT_EQ(FicheEditée, 2);
    e.LBLPays->setText("Nom changé seul");
    e.BTNRight->click();
    EXPECT_EQ(FicheEditée, 3);
    EXPECT_EQ(e.LBLPays->text(), "Lucerne");
    e.BTNRight->click();
    e.BTNLeft->click();
    e.BTNLeft->click();
    EXPECT_EQ(FicheEditée, 2);
    EXPECT_EQ(e.LBLPays->text(), "Nom 2") << "a name typed alone is lost";
    EXPECT_EQ(Lit(chemin), avant) << "nothing changed, nothing written";

    // A new text, with the name typed beside it, goes to record 2 and nowhere else.
    e.LBLPays->setText(QString::fromUtf8("Berne"));
    e.TXTInfos->setPlainText(QString::fromUtf8("Capitale fédérale\nAar"));
    e.BTNDown->click();
    EXPECT_EQ(FicheEditée, 26);
    const QByteArray après = Lit(chemin);
    ASSERT_EQ(après.size(), 16900);
    EXPECT_EQ(après.mid(650, 650), Enreg("Berne", "Capitale f\xE9" "d\xE9rale\r\nAar"));
    EXPECT_EQ(après.mid(650, 31), QByteArray("\x05\x00" "Berne\x16\x00" "Capitale f\xE9" "d\xE9rale\r\nAar", 31));
    EXPECT_EQ(après.left(650), avant.left(650));
    EXPECT_EQ(après.mid(1300), avant.mid(1300));
    EXPECT_TRUE(boîtes.journal.empty());

    // Back on it, the box shows what was written.
    e.BTNUp->click();
    e.BTNRight->click();
    EXPECT_EQ(e.TXTInfos->Text(), QString::fromUtf8("Capitale fédérale\r\nAar"));
    EXPECT_EQ(e.LBLPays->text(), "Berne");
}

TEST_F(Editeur, ARecordOverSixHundredAndFiftyBytesIsRefusedAndOnlyBTNQuitLeaves)
{
    Edition e;
    e.BTNDown->click();
    e.BTNLeft->click(); // record 25, "Nom 25": 6 characters of name
    ASSERT_EQ(FicheEditée, 25);
    // 4 + 6 + 640 = 650, a line break counting two: it fits exactly.
    const QString juste = QString(319, 'a') + "\n" + QString(319, 'b');
    e.TXTInfos->setPlainText(juste);
    e.BTNUp->click();
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(FicheEditée, 1);
    const QByteArray r25 = Record(25);
    EXPECT_EQ(r25.mid(8, 2), QByteArray("\x80\x02", 2)); // n2 = 640
    EXPECT_EQ(r25.right(3), QByteArray("bbb"));

    e.BTNDown->click();
    e.BTNLeft->click();
    const QByteArray fichier = Lit(chemin);
    e.TXTInfos->setPlainText(juste + "c");
    for (BoutonGraphique *b : {e.BTNUp, e.BTNRight, e.BTNQuit}) {
        boîtes.journal.clear();
        e.show();
        b->click();
        ASSERT_EQ(boîtes.journal.size(), 1u);
        EXPECT_EQ(boîtes.journal[0].texte, QString::fromUtf8("Erreur à l'enregistrement de cette fiche ; la longueur de "
                                                             "l'enregistrement est de 651 pour un maximum autorisé de 650"));
        EXPECT_EQ(boîtes.journal[0].titre, "Erreur...");
        EXPECT_EQ(boîtes.journal[0].style, StyleInformation);
        EXPECT_EQ(FicheEditée, 25);
        EXPECT_EQ(e.TXTInfos->Text(), QString(juste).replace("\n", "\r\n") + "c");
        EXPECT_TRUE(e.isVisible()) << "not even BTNQuit leaves";
        EXPECT_EQ(Lit(chemin), fichier);
    }
    // Neither Escape nor the window's closing leave either.
    QTest::keyClick(&e, Qt::Key_Escape);
    e.close();
    EXPECT_TRUE(e.isVisible());
    // Shortened, it is written and the editor closes.
    e.TXTInfos->setPlainText("court");
    e.BTNQuit->click();
    EXPECT_FALSE(e.isVisible());
    EXPECT_EQ(e.result(), QDialog::Accepted);
    EXPECT_TRUE(FichierFichesOuvert.isEmpty());
    EXPECT_EQ(Record(25), Enreg("Nom 25", "court"));
}

TEST_F(Editeur, AtTheEdgesTheArrowsWriteAndStayWhileUpAndDownReadAgain)
{
    Edition e;
    e.TXTInfos->setPlainText("premier");
    e.BTNLeft->click();
    EXPECT_EQ(FicheEditée, 1);
    EXPECT_EQ(Record(1), Enreg("Nom 1", "premier"));
    // The reference is only renewed by a read: the same press writes again.
    Ecrit(chemin, avant);
    e.BTNLeft->click();
    EXPECT_EQ(Record(1), Enreg("Nom 1", "premier"));
    EXPECT_EQ(e.TXTInfos->Text(), "premier");

    // BTNUp on record 1 reads it again: from then on the box holds no change.
    e.BTNUp->click();
    Ecrit(chemin, avant);
    e.BTNRight->click();
    EXPECT_EQ(Record(1), Enreg("Nom 1", "Texte 1"));

    // On record 26 the right arrow writes and stays, the down arrow reads again.
    e.BTNDown->click();
    e.TXTInfos->setPlainText("dernier");
    e.BTNRight->click();
    EXPECT_EQ(FicheEditée, 26);
    EXPECT_EQ(Record(26), Enreg("Nom 26", "dernier"));
    // Still unread, the text goes again with the down arrow, which then reads it back.
    Ecrit(chemin, avant);
    e.BTNDown->click();
    EXPECT_EQ(Record(26), Enreg("Nom 26", "dernier"));
    Ecrit(chemin, avant);
    e.BTNDown->click();
    EXPECT_EQ(e.TXTInfos->Text(), "Texte 26");
    EXPECT_EQ(Lit(chemin), avant);
}

TEST_F(Editeur, AShortOrMissingFileGrowsByEmptyRecordsAndAFailedWriteSaysSo)
{
    ASSERT_TRUE(QFile::remove(chemin));
    {
        Edition e;
        EXPECT_TRUE(e.TXTInfos->Text().isEmpty());
        EXPECT_TRUE(e.LBLPays->text().isEmpty());
        e.BTNRight->click();
        e.BTNRight->click();
        e.LBLPays->setText("Uri");
        e.TXTInfos->setPlainText("Altdorf");
        e.BTNQuit->click();
    }
    EXPECT_EQ(Lit(chemin), QByteArray(1300, '\0') + Enreg("Uri", "Altdorf"));

    // A folder that is gone: the message, with the length, and the editor stays.
    CheminsInfo[1] = dossier.filePath("parti/KELMOR.INF");
    Edition e;
    e.TXTInfos->setPlainText("Zoug");
    e.BTNRight->click();
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_TRUE(boîtes.journal[0].texte.contains("est de 8 pour"));
    EXPECT_EQ(FicheEditée, 1);
    EXPECT_FALSE(QDir(dossier.filePath("parti")).exists());
}

// ---------------------------------------------------------------- files made at the start

TEST_F(Fiches, AFirstStartMakesBothFilesAndSaysSoOnceInTheLanguageInUse)
{
    delete forme;
    forme = nullptr;
    QFile::remove(dossier.filePath("KELMOR.INF"));
    QFile::remove(dossier.filePath("DRAVELN.INF"));
    boîtes.journal.clear();
    ASSERT_TRUE(Main());
    forme = FormePrincipale();
    std::vector<BoîtesScriptées::Entrée> fichiers;
    for (const auto &b : boîtes.journal)
        if (b.titre == "Création du fichier Info")
            fichiers.push_back(b);
    ASSERT_EQ(fichiers.size(), 1u);
    EXPECT_TRUE(fichiers[0].texte.startsWith("Apparamment, le fichier facultatif"));
    EXPECT_EQ(fichiers[0].style, StyleInformation);
    for (const char *nom : {"KELMOR.INF", "DRAVELN.INF"}) {
        const QByteArray f = Lit(dossier.filePath(nom));
        ASSERT_EQ(f.size(), 16900) << nom;
        EXPECT_EQ(f.mid(23 * 650, 6), QByteArray("\x04\x00Vaud", 6)) << nom;
        for (int k = 1; k <= 26; ++k) {
            TFiche fiche;
            ASSERT_TRUE(LitFicheInfo(dossier.filePath(nom), k, fiche));
            EXPECT_EQ(fiche.Nom, Cantons[k].Nom);
            EXPECT_EQ(fiche.Texte, "Vous pouvez enregistrer les caractéristiques du pays par l'utilitaire Fichinfo, "
                                   "disponible sur mon site");
        }
    }
    // The next start finds them and says nothing.
    delete forme;
    boîtes.journal.clear();
    ASSERT_TRUE(Main());
    forme = FormePrincipale();
    for (const auto &b : boîtes.journal)
        EXPECT_NE(b.titre, "Création du fichier Info");
}

TEST_F(Fiches, InGermanTheFrenchFileGetsGermanNamesWithoutAWord)
{
    ChangeLangue(2);
    QFile::remove(CheminsInfo[1]);
    QFile::remove(CheminsInfo[2]);
    CréeFichierInfo(1);
    EXPECT_TRUE(boîtes.journal.empty()) << "the French file is not the language in use";
    CréeFichierInfo(2);
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(boîtes.journal[0].texte, Messages[18]);
    EXPECT_EQ(boîtes.journal[0].titre, Messages[102]);
    EXPECT_NE(Messages[103], QString::fromUtf8("Vous pouvez enregistrer les caractéristiques du pays par l'utilitaire "
                                               "Fichinfo, disponible sur mon site"));
    for (int langue : {1, 2}) {
        TFiche fiche;
        ASSERT_TRUE(LitFicheInfo(CheminsInfo[langue], 24, fiche));
        EXPECT_EQ(fiche.Nom, "Waadt");
        EXPECT_EQ(fiche.Texte, Messages[103]);
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
    RépertoireInfo = disparu;
    CheminsInfo[1] = dossier.filePath("parti/KELMOR.INF");
    ModeRépertoires = 0;
    CréeFichierInfo(1);
    ASSERT_EQ(boîtes.journal.size(), 3u);
    EXPECT_EQ(boîtes.journal[1].texte, QString::fromUtf8("Impossible d'écrire dans le répertoire spécifié ! (") + disparu +
                                           "/)");
    EXPECT_EQ(boîtes.journal[1].titre, "Erreur");
    EXPECT_EQ(boîtes.journal[2].titre, QString::fromUtf8("Choix du répertoire"));
    EXPECT_EQ(ModeRépertoires, 6);
    EXPECT_FALSE(QDir(disparu).exists()) << "given up: no file, no folder";

    boîtes.journal.clear();
    CréeFichierInfo(1);
    EXPECT_EQ(boîtes.journal.size(), 3u);
    EXPECT_EQ(CheminsInfo[1], dossier.filePath("cartes/KELMOR.INF"));
    EXPECT_EQ(Lit(CheminsInfo[1]).size(), 16900);
}

} // namespace
