// The table of what each canton cost: its order, its colours, its scrolling, and KELM_STA.TXT byte by byte.
#include "Fixtures.h"

#include "results/Stats.h"
#include "results/PartieEnCours.h"

#include <QWheelEvent>

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

TEST_F(Statistiques, TheCostliestFirstEqualLossesByNumberAndTheBarAndTheWheelReachTheRowsBelowTheForm)
{
    for (auto [c, p] : {std::pair{3, 10}, {7, 10}, {1, 4}, {20, 10}, {26, 50}, {25, 4}})
        Pertes(c, p, 0, 0, 0);
    Jeu().Cantons[2].Inhibé = true; // left out: takes part with its 0
    Stats s;
    EXPECT_EQ(std::vector<int>(ScoresAffichés().TriPertes + 1, ScoresAffichés().TriPertes + NombrePlaces + 1),
              (std::vector<int>{26, 3, 7, 20, 1, 25, 2, 4, 5, 6, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 21, 22, 23, 24}));
    EXPECT_TRUE(s.PertePlaques[17]->Visible() && !s.NomPays[18]->Visible() && !s.PertePays[18]->Visible() && s.PertePays[1]->text() == "50");
    s.BarreVerticale->setValue(s.BarreVerticale->Max());
    EXPECT_TRUE(s.NomPays[1]->text() == Jeu().Cantons[6].Nom && s.PertePays[1]->text() == "0" && s.NomPays[17]->text() == Jeu().Cantons[24].Nom);
    s.BarreVerticale->setValue(0);
    QWheelEvent roue(QPointF(100, 200), QPointF(100, 200), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&s, &roue);
    EXPECT_GT(s.BarreVerticale->Value(), 0);
    EXPECT_EQ(s.NomPays[1]->text(), Jeu().Cantons[ScoresAffichés().TriPertes[1 + s.BarreVerticale->Value()]].Nom);
}

TEST_F(Statistiques, GreenAtTheFirstTryRedWhenNeverFoundNeutralOtherwise)
{
    const TEtape ordre[] = {TEtape::Aucune, TEtape::Plaques, TEtape::Cantons, TEtape::ChefsLieux, TEtape::Aucune}; // no flags
    std::copy(ordre, ordre + 5, Jeu().OrdreEtapes);
    ASSERT_TRUE(CouleurNeutre() != CouleurAbsent && CouleurNeutre() != CouleurTrouvé);
    Pertes(5, 0, 3, 0, 0); // cantons at once, its town after errors, its plates never found (the game stopped)
    Jeu().Cantons[5].Réussi[1] = Jeu().Cantons[5].Réussi[2] = true;
    Pertes(8, 0, 0, 0, 2); // its plates found after errors, the rest never asked
    Jeu().Cantons[8].Réussi[4] = true;
    Stats s;
    ASSERT_TRUE(s.NomPays[1]->text() == Jeu().Cantons[5].Nom && s.NomPays[2]->text() == Jeu().Cantons[8].Nom);
    const struct { Etiquette *cellule; QColor fond; const char *texte; } cas[] = {
        {s.PertePays[1], CouleurTrouvé, "0"},       {s.PerteCapitales[1], CouleurNeutre(), "3"},
        {s.PerteDrapeaux[1], CouleurNeutre(), "0"}, // flags aren't part of this game
        {s.PertePlaques[1], CouleurAbsent, "0"},    // never found, though it cost nothing
        {s.PertePays[2], CouleurAbsent, "0"},       {s.PerteCapitales[2], CouleurAbsent, "0"},
        {s.PertePlaques[2], CouleurNeutre(), "2"},
    };
    for (size_t i = 0; i < std::size(cas); ++i)
        EXPECT_TRUE(Fond(cas[i].cellule) == cas[i].fond && cas[i].cellule->text() == cas[i].texte) << "case " << i;
    s.BarreVerticale->setValue(1); // scrolling repaints a row for the canton that comes into it
    EXPECT_TRUE(s.NomPays[1]->text() == Jeu().Cantons[8].Nom && Fond(s.PertePlaques[1]) == CouleurNeutre() && Fond(s.PertePays[1]) == CouleurAbsent);
}

// Four cantons cost something, two of them with an umlaut; a French file is there before the German one.
// Then the program's folder is missing or a file: told, nothing written, and the form still closes.
TEST_F(Statistiques, TheTextFileByteByByteInGermanReplacingTheOldOneAndAnUnwritableFolderTold)
{
    Pertes(22, 64, 0, 0, 0), Pertes(10, 1, 4, 16, 0), Pertes(6, 0, 5, 0, 0), Pertes(26, 4, 0, 0, 1);
    const QString chemin = dossier.filePath(QStringLiteral("KELM_STA.TXT")), ditFr = Message(TMessage::StatistiquesEnregistrées) + chemin;
    Stats().BoutonSauvegarde->click();
    ChangeLangue(2);
    Stats s;
    s.BarreVerticale->setValue(5); // the file doesn't follow the scroll position
    s.BoutonSauvegarde->click();
    EXPECT_TRUE(boîtes.journal.size() == 2 && boîtes.journal[0].texte == ditFr && boîtes.journal[1].texte == Message(TMessage::StatistiquesEnregistrées) + chemin);
    const QList<QByteArray> lignes = Contenu(chemin).split('\n');
    ASSERT_EQ(lignes.size(), 7 + 26 + 1);
    // Rows of no loss keep the order of the numbers, every fourth row ruled; the last line ends too.
    EXPECT_EQ(lignes.mid(3, 13).join('\n').toStdString(),
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
              "Basel-Stadt                \t0\t 0\t 0\t 0\r");
    EXPECT_EQ(lignes[32] + lignes[33], "Zug                        \t0\t 0\t 0\t 0\r");

    const QString bouchon = dossier.filePath(QStringLiteral("pas-un-dossier"));
    ASSERT_TRUE(EcritFichierEntier(bouchon, {})); // an empty file where the folder should be
    InstalleFormesModales([](QDialog &forme) {
        auto &s = dynamic_cast<Stats &>(forme);
        s.BoutonSauvegarde->click(), s.Command1->click();
        return s.result();
    });
    for (const QString &d : {dossier.filePath(QStringLiteral("absent/encore")), bouchon}) {
        Réglages().RépertoireApplication = d;
        boîtes.journal.clear();
        EXPECT_EQ(ExécuteModal(s), QDialog::Accepted);
        const auto &dit = boîtes.journal.at(0);
        EXPECT_TRUE(boîtes.journal.size() == 1 && dit.style == StyleExclamation && dit.texte.startsWith(Message(TMessage::FichierNonEcrit) + ' ' + d) &&
                    dit.texte.endsWith(Message(TMessage::StatsNonEcrites)));
    }
    EXPECT_FALSE(QFile::exists(dossier.filePath(QStringLiteral("absent")))) << "no folder made";
    EXPECT_EQ(QFileInfo(bouchon).size(), 0) << "the file in the folder's place is left alone";
}
