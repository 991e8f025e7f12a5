// The table of what each canton cost: its order, its colours, its scrolling, and KELM_STA.TXT byte by byte.
#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Formes.h"
#include "results/Stats.h"
#include "services/Langues.h"
#include "services/Parametres.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QWheelEvent>
#include <numeric>

namespace {

class Statistiques : public JeuTest {
protected:
    void SetUp() override
    {
        JeuTest::SetUp();
        for (int i = 1; i <= 4; ++i)
            OrdreEtapes[i] = static_cast<i16>(i);
        for (int i = 1; i <= NombrePlaces; ++i) {
            Cantons[i].Inhibé = False;
            for (int k = 0; k <= 4; ++k) {
                Cantons[i].Pertes[k] = 0;
                Cantons[i].Réussi[k] = False;
            }
        }
    }
    static void Pertes(int c, i32 p1, i32 p2, i32 p3, i32 p4)
    {
        const i32 p[5] = {p1 + p2 + p3 + p4, p1, p2, p3, p4};
        std::copy(p, p + 5, Cantons[c].Pertes);
    }
    static std::vector<int> Ordre() { return std::vector<int>(TriPertes + 1, TriPertes + NombrePlaces + 1); }
    static QByteArray LitFichier(const QString &chemin)
    {
        QFile f(chemin);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    // The visible row that shows canton c, 0 if none.
    static int RangÀLEcran(const Stats &s, int c)
    {
        for (int r = 1; r <= NombrePlaces; ++r)
            if (s.NomPays[r]->Visible() && s.NomPays[r]->text() == Cantons[c].Nom)
                return r;
        return 0;
    }
    static QColor Fond(const Etiquette *e) { return e->palette().color(QPalette::Window); }
};

TEST_F(Statistiques, TheCostliestFirstAndEqualLossesInTheOrderOfTheNumbers)
{
    TriePertes();
    std::vector<int> identité(NombrePlaces);
    std::iota(identité.begin(), identité.end(), 1);
    EXPECT_EQ(Ordre(), identité) << "a game without a single error keeps the order of the numbers";

    Cantons[3].Pertes[0] = 10;
    Cantons[7].Pertes[0] = 10;
    Cantons[1].Pertes[0] = 4;
    Cantons[20].Pertes[0] = 10;
    Cantons[26].Pertes[0] = 50;
    Cantons[25].Pertes[0] = 4;
    Cantons[2].Inhibé = True; // left out: takes part with its 0
    TriePertes();
    std::vector<int> attendu = {26, 3, 7, 20, 1, 25};
    for (int c = 2; c <= 24; ++c)
        if (c != 3 && c != 7 && c != 20)
            attendu.push_back(c);
    EXPECT_EQ(Ordre(), attendu);
}

TEST_F(Statistiques, SeventeenRowsShowAndTheBarReachesTheLastOnes)
{
    for (int c = 1; c <= NombrePlaces; ++c)
        Pertes(c, c, 0, 0, 0); // canton 26 costs most, canton 1 least
    Stats s;
    EXPECT_EQ(s.size(), QSize(550, 475));
    EXPECT_EQ(s.windowTitle(), QStringLiteral("Statistiques"));
    EXPECT_EQ(s.Baratin->text(), Messages[148]);
    EXPECT_EQ(s.EntêtePays->text(), QStringLiteral("Recherche des\ncantons"));
    EXPECT_EQ(s.EntêtePlaques->text(), QStringLiteral("Recherche des\nplaques"));
    EXPECT_EQ(s.NomPays[1]->geometry(), QRect(8, 128, 212, 17));
    EXPECT_EQ(s.PertePlaques[17]->geometry(), QRect(440, 128 + 16 * 17, 69, 17));
    for (int r = 1; r <= NombrePlaces; ++r) {
        const bool visible = r <= 17;
        for (auto *colonne : {&s.NomPays, &s.PertePays, &s.PerteCapitales, &s.PerteDrapeaux, &s.PertePlaques})
            EXPECT_EQ((*colonne)[r]->Visible(), visible) << "row " << r;
    }
    ASSERT_TRUE(s.BarreVerticale->Visible());
    EXPECT_EQ(s.BarreVerticale->geometry(), QRect(520, 128, 17, 297));
    EXPECT_EQ(s.BarreVerticale->Max(), 9);
    EXPECT_EQ(s.BarreVerticale->SmallChange(), 1);
    EXPECT_EQ(s.BarreVerticale->LargeChange(), 3);
    EXPECT_EQ(s.BarreVerticale->Value(), 0);
    EXPECT_EQ(s.NomPays[1]->text(), Cantons[26].Nom);
    EXPECT_EQ(s.PertePays[1]->text(), "26");
    EXPECT_EQ(s.NomPays[17]->text(), Cantons[10].Nom);

    s.BarreVerticale->setValue(s.BarreVerticale->Max());
    EXPECT_EQ(s.NomPays[1]->text(), Cantons[17].Nom) << "rank 10 on top";
    EXPECT_EQ(s.PertePays[1]->text(), "17");
    EXPECT_EQ(s.NomPays[17]->text(), Cantons[1].Nom) << "rank 26 at the foot";
    EXPECT_EQ(s.PertePays[17]->text(), "1");

    // The wheel over the table scrolls it too.
    s.BarreVerticale->setValue(0);
    QWheelEvent roue(QPointF(100, 200), QPointF(100, 200), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&s, &roue);
    EXPECT_GT(s.BarreVerticale->Value(), 0);
    EXPECT_EQ(s.NomPays[1]->text(), Cantons[26 - s.BarreVerticale->Value()].Nom);
}

TEST_F(Statistiques, GreenAtTheFirstTryRedWhenNeverFoundNeutralOtherwise)
{
    // Plates, then cantons, then towns; flags aren't played.
    OrdreEtapes[1] = 4;
    OrdreEtapes[2] = 1;
    OrdreEtapes[3] = 2;
    OrdreEtapes[4] = 0;
    EXPECT_EQ(CouleurAbsence(3), CouleurNeutre());
    EXPECT_EQ(CouleurAbsence(4), CouleurAbsent);
    ASSERT_NE(CouleurNeutre(), CouleurAbsent);
    ASSERT_NE(CouleurNeutre(), CouleurTrouvé);

    // Canton 5: cantons at once, its town after errors, its plates never found (the game stopped).
    Pertes(5, 0, 3, 0, 0);
    Cantons[5].Réussi[1] = True;
    Cantons[5].Réussi[2] = True;
    // Canton 8: its plates found after errors, the rest never asked.
    Pertes(8, 0, 0, 0, 2);
    Cantons[8].Réussi[4] = True;
    // Canton 9: left out by the parameter set.
    Cantons[9].Inhibé = True;

    Stats s;
    const int r5 = RangÀLEcran(s, 5), r8 = RangÀLEcran(s, 8), r9 = RangÀLEcran(s, 9);
    ASSERT_EQ(r5, 1);
    ASSERT_EQ(r8, 2);
    ASSERT_GT(r9, 0);

    EXPECT_EQ(Fond(s.PertePays[r5]), CouleurTrouvé);
    EXPECT_EQ(s.PertePays[r5]->text(), "0");
    EXPECT_EQ(Fond(s.PerteCapitales[r5]), CouleurNeutre());
    EXPECT_EQ(s.PerteCapitales[r5]->text(), "3");
    EXPECT_EQ(Fond(s.PerteDrapeaux[r5]), CouleurNeutre()) << "flags aren't part of this game";
    EXPECT_EQ(Fond(s.PertePlaques[r5]), CouleurAbsent) << "never found, though it cost nothing";

    EXPECT_EQ(Fond(s.PertePlaques[r8]), CouleurNeutre());
    EXPECT_EQ(s.PertePlaques[r8]->text(), "2");
    EXPECT_EQ(Fond(s.PertePays[r8]), CouleurAbsent);
    EXPECT_EQ(Fond(s.PerteCapitales[r8]), CouleurAbsent);

    for (auto *cellule : {s.PertePays[r9], s.PerteCapitales[r9], s.PerteDrapeaux[r9], s.PertePlaques[r9]}) {
        EXPECT_EQ(Fond(cellule), CouleurNeutre());
        EXPECT_EQ(cellule->text(), "0");
    }

    // Scrolling repaints a row for the canton that comes into it.
    s.BarreVerticale->setValue(1);
    EXPECT_EQ(s.NomPays[1]->text(), Cantons[8].Nom);
    EXPECT_EQ(Fond(s.PertePlaques[1]), CouleurNeutre());
    EXPECT_EQ(Fond(s.PertePays[1]), CouleurAbsent);
}

// A small game in German: four cantons cost something, one of them with an umlaut.
TEST_F(Statistiques, TheTextFileByteByByteInBothLanguagesAndReplacedOnEachSave)
{
    Pertes(22, 64, 0, 0, 0);
    Pertes(10, 1, 4, 16, 0);
    Pertes(6, 0, 5, 0, 0);
    Pertes(26, 4, 0, 0, 1);
    const QString chemin = dossier.filePath(QStringLiteral("KELM_STA.TXT"));

    {
        Stats s;
        s.BarreVerticale->setValue(5); // the file doesn't follow the scroll position
        s.BoutonSauvegarde->click();
    }
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(boîtes.journal[0].texte, QString::fromUtf8("Vos statistiques ont été enregistrées dans le fichier ") + chemin);
    EXPECT_EQ(boîtes.journal[0].titre, QStringLiteral("Statistiques"));
    EXPECT_EQ(boîtes.journal[0].style, StyleInformation);
    const QByteArray français = LitFichier(chemin);
    const QList<QByteArray> lignes = français.split('\n');
    ASSERT_EQ(lignes.size(), 34) << "33 lines, each ended";
    EXPECT_EQ(lignes[0], "Utilisez la police Courier pour lire ce tableau\r");
    EXPECT_EQ(lignes[1], QByteArray(28, '-') + '\r') << "Appenzell Rhodes Extérieures is the longest name";
    EXPECT_EQ(lignes[3], "Les cantons kelmors , Version 6.07 du 30/07/2008\r");
    EXPECT_EQ(lignes[6], QByteArray(33, ' ') + "\tCantons/Chefs-lieux/Drapeaux/Plaques\r");
    EXPECT_EQ(lignes[8], "Grisons" + QByteArray(26, ' ') + "\t1\t 4\t 16\t 0\r");
    EXPECT_EQ(lignes[17], "Gen\xE8ve" + QByteArray(27, ' ') + "\t0\t 0\t 0\t 0\r");

    ChangeLangue(2);
    boîtes.journal.clear();
    {
        Stats s;
        s.BoutonSauvegarde->click();
    }
    const QByteArray attendu =
        "Verwenden Sie die Schrift Courier, um diese Tabelle zu lesen\r\n"
        "----------------------\r\n"
        "\r\n"
        "Die kelmorischen Kantone , Version 6.07 vom 04/01/2008\r\n"
        "----------------------\r\n"
        "\r\n"
        "                           \tKantone/Hauptorte/Wappen/Kennzeichen\r\n"
        "Uri                        \t64\t 0\t 0\t 0\r\n"
        "Graub\xFC" "nden                 \t1\t 4\t 16\t 0\r\n"
        "Bern                       \t0\t 5\t 0\t 0\r\n"
        "Z\xFC" "rich---------------------\t4\t-0\t-0\t-1\r\n"
        "Appenzell Ausserrhoden     \t0\t 0\t 0\t 0\r\n"
        "Appenzell Innerrhoden      \t0\t 0\t 0\t 0\r\n"
        "Aargau                     \t0\t 0\t 0\t 0\r\n"
        "Basel-Landschaft-----------\t0\t-0\t-0\t-0\r\n"
        "Basel-Stadt                \t0\t 0\t 0\t 0\r\n"
        "Freiburg                   \t0\t 0\t 0\t 0\r\n"
        "Genf                       \t0\t 0\t 0\t 0\r\n"
        "Glarus---------------------\t0\t-0\t-0\t-0\r\n"
        "Jura                       \t0\t 0\t 0\t 0\r\n"
        "Luzern                     \t0\t 0\t 0\t 0\r\n"
        "Neuenburg                  \t0\t 0\t 0\t 0\r\n"
        "Nidwalden------------------\t0\t-0\t-0\t-0\r\n"
        "Obwalden                   \t0\t 0\t 0\t 0\r\n"
        "St Gallen                  \t0\t 0\t 0\t 0\r\n"
        "Schaffhausen               \t0\t 0\t 0\t 0\r\n"
        "Schwyz---------------------\t0\t-0\t-0\t-0\r\n"
        "Solothurn                  \t0\t 0\t 0\t 0\r\n"
        "Tessin                     \t0\t 0\t 0\t 0\r\n"
        "Thurgau                    \t0\t 0\t 0\t 0\r\n"
        "Wallis---------------------\t0\t-0\t-0\t-0\r\n"
        "Waadt                      \t0\t 0\t 0\t 0\r\n"
        "Zug                        \t0\t 0\t 0\t 0\r\n";
    const QByteArray allemand = LitFichier(chemin);
    EXPECT_EQ(allemand, attendu);
    for (int i = 0; i < std::min(allemand.size(), attendu.size()); ++i)
        if (allemand[i] != attendu[i]) {
            ADD_FAILURE() << "first difference at byte " << i;
            break;
        }
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_TRUE(boîtes.journal[0].texte.endsWith(chemin));
    EXPECT_EQ(boîtes.journal[0].titre, Messages[152]);
    // The new file took the old one's place whole; nothing else is left beside it.
    EXPECT_EQ(QDir(dossier.path()).entryList({QStringLiteral("KELM_STA*")}, QDir::Files | QDir::Hidden),
              QStringList{QStringLiteral("KELM_STA.TXT")});
}

TEST_F(Statistiques, AnUnwritableProgramFolderIsToldAndTheTableStaysUsable)
{
    for (int c = 1; c <= NombrePlaces; ++c)
        Pertes(c, 0, c, 0, 0);
    QFile bouchon(dossier.filePath(QStringLiteral("pas-un-dossier")));
    ASSERT_TRUE(bouchon.open(QIODevice::WriteOnly));
    bouchon.close();
    const QString dossierProgramme = RépertoireApplication;
    const QString dossiers[] = {dossier.filePath(QStringLiteral("absent/encore")), bouchon.fileName()};
    for (const QString &d : dossiers) {
        RépertoireApplication = d;
        boîtes.journal.clear();
        int résultat = -1;
        InstalleFormesModales([&](QDialog &forme) {
            auto &s = dynamic_cast<Stats &>(forme);
            s.BoutonSauvegarde->click();
            s.BarreVerticale->setValue(9);
            EXPECT_EQ(s.NomPays[1]->text(), Cantons[17].Nom) << "the table still scrolls";
            s.Command1->click();
            résultat = s.result();
            return résultat;
        });
        MontreStats();
        ASSERT_EQ(boîtes.journal.size(), 1u) << d.toStdString();
        const auto &b = boîtes.journal[0];
        EXPECT_EQ(b.style, StyleExclamation);
        EXPECT_TRUE(b.texte.startsWith(QStringLiteral("Impossible d'écrire le fichier ") + d)) << b.texte.toStdString();
        EXPECT_FALSE(b.texte.contains(Messages[153]));
        EXPECT_EQ(b.titre, QStringLiteral("Statistiques"));
        EXPECT_EQ(résultat, QDialog::Accepted) << "Command1 still closes the form";
    }
    RépertoireApplication = dossierProgramme;
    EXPECT_FALSE(QFile::exists(dossier.filePath(QStringLiteral("absent"))));
    EXPECT_EQ(QFileInfo(bouchon.fileName()).size(), 0) << "the file in the folder's place is left alone";
}

} // namespace
