// The table of what each canton cost: its order, its colours, its scrolling, and KELM_STA.TXT byte by byte.
#include "Fixtures.h"

#include "results/Stats.h"
#include "results/PartieEnCours.h"

#include <QWheelEvent>

// Found or not, the losses, left out or not, the colour of the kind's absence: the cell's colour.
TEST(CouleurCase, GreenAtTheFirstTryRedWhenNeverFoundInAKindPlayedNeutralOtherwise)
{
    const QColor N = CouleurNeutre(), V = CouleurTrouvé, R = CouleurAbsent;
    ASSERT_TRUE(N != R && N != V);
    const struct { bool réussi; i32 pertes; bool inhibé; QColor absence, fond; } cas[] = {
        {true, 0, false, R, V}, {true, 0, true, R, V},  {true, 3, false, R, N},
        {false, 0, false, R, R}, {false, 2, false, N, N}, {false, 0, true, R, N},
    };
    for (size_t i = 0; i < std::size(cas); ++i)
        EXPECT_EQ(CouleurCase(cas[i].réussi, cas[i].pertes, cas[i].inhibé, cas[i].absence), cas[i].fond) << "case " << i;
    const TEtape ordre[5] = {TEtape::Aucune, TEtape::Plaques, TEtape::Cantons, TEtape::Aucune, TEtape::Aucune}; // no flags, no towns
    std::copy_n(ordre, 5, Jeu().OrdreEtapes);
    EXPECT_TRUE(CouleurAbsence(4) == R && CouleurAbsence(1) == R && CouleurAbsence(2) == N && CouleurAbsence(3) == N);
    std::copy_n(Partie{}.OrdreEtapes, 5, Jeu().OrdreEtapes);
}

// Every canton starts in play, without a loss and with nothing found.
class Statistiques : public JeuTest {
protected:
    static void Pertes(int c, i32 p1, i32 p2, i32 p3, i32 p4)
    {
        const i32 p[5] = {p1 + p2 + p3 + p4, p1, p2, p3, p4};
        std::copy(p, p + 5, Jeu().Cantons[c].Pertes);
    }
    static QColor Fond(const Etiquette *e) { return e->palette().color(QPalette::Window); }
};

TEST_F(Statistiques, TheCostliestFirstEqualLossesByNumberTheCellsColouredAndTheBarAndTheWheelReachTheRowsBelowTheForm)
{
    for (auto [c, p] : {std::pair{3, 10}, {7, 10}, {1, 4}, {20, 10}, {26, 50}, {25, 4}})
        Pertes(c, p, 0, 0, 0);
    Jeu().Cantons[2].Inhibé = true; // left out: takes part with its 0
    Jeu().Cantons[26].Réussi[1] = Jeu().Cantons[25].Réussi[2] = true; // its canton after errors, its town at once
    Stats s;
    EXPECT_EQ(std::vector<int>(ScoresAffichés().TriPertes + 1, ScoresAffichés().TriPertes + NombrePlaces + 1),
              (std::vector<int>{26, 3, 7, 20, 1, 25, 2, 4, 5, 6, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 21, 22, 23, 24}));
    EXPECT_TRUE(s.PertePlaques[17]->Visible() && !s.NomPays[18]->Visible() && !s.PertePays[18]->Visible() && s.PertePays[1]->text() == "50");
    EXPECT_TRUE(Fond(s.PertePays[1]) == CouleurNeutre() && Fond(s.PerteCapitales[1]) == CouleurAbsent && Fond(s.PertePays[7]) == CouleurNeutre());
    s.BarreVerticale->setValue(5); // each row repainted for the canton that scrolls into it
    EXPECT_TRUE(s.NomPays[1]->text() == Jeu().Cantons[25].Nom && Fond(s.PerteCapitales[1]) == CouleurTrouvé);
    s.BarreVerticale->setValue(s.BarreVerticale->Max());
    EXPECT_TRUE(s.NomPays[1]->text() == Jeu().Cantons[6].Nom && s.PertePays[1]->text() == "0" && s.NomPays[17]->text() == Jeu().Cantons[24].Nom);
    s.BarreVerticale->setValue(0);
    QWheelEvent roue(QPointF(100, 200), QPointF(100, 200), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&s, &roue);
    EXPECT_TRUE(s.BarreVerticale->Value() > 0 && s.NomPays[1]->text() == Jeu().Cantons[ScoresAffichés().TriPertes[1 + s.BarreVerticale->Value()]].Nom);
}

// Four cantons cost something, two of them with an umlaut; an older file is there before.
// Then a file stands where the program's folder should: told, nothing written, and the form still closes.
TEST_F(Statistiques, TheTextFileByteByByteInGermanReplacingTheOldOneAndAnUnwritableFolderTold)
{
    Pertes(22, 64, 0, 0, 0), Pertes(10, 1, 4, 16, 0), Pertes(6, 0, 5, 0, 0), Pertes(26, 4, 0, 0, 1);
    const QString chemin = dossier.filePath(QStringLiteral("KELM_STA.TXT"));
    ASSERT_TRUE(EcritFichierEntier(chemin, QByteArray(5000, 'x'))); // an older, longer file
    ChangeLangue(2);
    Stats s;
    s.BarreVerticale->setValue(5); // the file doesn't follow the scroll position
    s.BoutonSauvegarde->click();
    EXPECT_TRUE(boîtes.journal.size() == 1 && boîtes.journal[0].texte == Message(TMessage::StatistiquesEnregistrées) + chemin);
    const QList<QByteArray> lignes = Contenu(chemin).split('\n');
    ASSERT_EQ(lignes.size(), 7 + 26 + 1);
    // Every fourth row ruled; the last line ends too.
    EXPECT_EQ(lignes.mid(3, 8).join('\n').toStdString(),
              "Die kelmorischen Kantone , Version 6.07 vom 04/01/2008\r\n"
              "----------------------\r\n"
              "\r\n"
              "                           \tKantone/Hauptorte/Wappen/Kennzeichen\r\n"
              "Uri                        \t64\t 0\t 0\t 0\r\n"
              "Graub\xFC" "nden                 \t1\t 4\t 16\t 0\r\n"
              "Bern                       \t0\t 5\t 0\t 0\r\n"
              "Z\xFC" "rich---------------------\t4\t-0\t-0\t-1\r");
    EXPECT_TRUE(lignes[14] == "Basel-Landschaft-----------\t0\t-0\t-0\t-0\r" && lignes[32] + lignes[33] == "Zug                        \t0\t 0\t 0\t 0\r");

    const QString bouchon = dossier.filePath(QStringLiteral("pas-un-dossier")); // an empty file where the folder should be
    ASSERT_TRUE(EcritFichierEntier(bouchon, {}));
    Réglages().RépertoireApplication = bouchon, boîtes.journal.clear();
    s.BoutonSauvegarde->click();
    EXPECT_TRUE(boîtes.journal.size() == 1 && boîtes.journal[0].style == StyleExclamation &&
                boîtes.journal[0].texte.startsWith(Message(TMessage::FichierNonEcrit) + ' ' + bouchon));
    s.Command1->click();
    EXPECT_TRUE(s.result() == QDialog::Accepted && QFileInfo(bouchon).size() == 0) << "the form closes; the file in the folder's place is left alone";
}
