// The .SCS file byte by byte, damaged files refused, the default file taken in place of a bad one, the best ten, a reset.
#include "Fixtures.h"

#include "files/FichierScores.h"
#include "results/PartieEnCours.h"

// A file's head: the version, the language, 4 steps, 26 cantons, the step kinds in order, the cantons left out.
Octets Tête(std::array<int, 4> ordre, std::initializer_list<int> inhibés = {}, const QByteArray &version = "Version 6.07 du 30/07/2008", int langue = 1)
{
    Octets t;
    t.Chaîne(version).Entier(langue).Entier(4).Entier(26);
    for (int k : ordre)
        t.Entier(k);
    for (int i = 1; i <= 26; ++i)
        t.Entier(std::count(inhibés.begin(), inhibés.end(), i) ? -1 : 0);
    return t;
}

TEST(FichierScores, DamagedFilesAreRefusedAndChangeNothing)
{
    const QByteArray bon = Tête({1, 2, 3, 4}).o;
    auto avec = [&](int record, int valeur) { return QByteArray(bon).replace((record - 1) * 128, 2, Octets::LE(valeur, 2)); };
    auto ligne = [](int niveau) { return Octets().Ligne("Y", 1, 1, niveau).o; };
    Octets dix = Tête({1, 2, 3, 4});
    for (int i = 0; i < 10; ++i)
        dix.Ligne("X", 100 - i, 1, 1);
    TFichierScores f;
    ASSERT_TRUE(LitOctetsScores(dix.o + ligne(0), f)) << "ten lines in a level, one at level 0";
    const QByteArray avant = OctetsScores(f, true);
    const struct { QByteArray o; const char *quoi; } mauvais[] = {
        {bon.left(128 + 1), "cut in the language"}, {avec(3, 5), "places"}, {avec(4, 25), "cantons"},
        {avec(5, 5), "a step kind above 4"}, {avec(6, -1), "a step kind below 0"}, {bon.left(20 * 128), "cut inside the set"},
        {bon + ligne(5), "a level above 4"}, {bon + ligne(-1), "a level below 0"},
        {(bon + ligne(1)).left(34 * 128 + 9), "cut inside a score line"}, {dix.Ligne("X", 1, 1, 1).o, "an eleventh line for one level"},
    };
    for (const auto &m : mauvais)
        EXPECT_TRUE(!LitOctetsScores(m.o, f) && OctetsScores(f, true) == avant) << m.quoi;
}

class Store : public JeuTest {
protected:
    // Ends a game at a level with a score, lasting `durée` on the clock.
    void Termine(int niveau, i32 score, i32 durée)
    {
        Jeu().Niveau = static_cast<TNiveau>(niveau), Jeu().ScoreGelé = false, Jeu().Score = score, Jeu().HeureDépart = 1000;
        Jeu().NomJoueur = QString::fromUtf8("Zoé"), horloge = 1000 + durée, boîtes.journal.clear();
        EnregistreScore();
    }
};

TEST_F(Store, WrittenByteByByteReadBackWholeAndAnotherMajorVersionOrADamagedFileFallsBackToTheDefault)
{
    const QString défaut = Réglages().FichierLancement, abîmé = dossier.filePath("abime.SCS");
    ChargeScores(); // no file yet: no message, and none made
    EXPECT_TRUE(boîtes.journal.empty() && !QFile::exists(défaut));
    Jeu().OrdreEtapes[1] = TEtape::ChefsLieux, Jeu().OrdreEtapes[2] = TEtape::Drapeaux, Jeu().OrdreEtapes[3] = Jeu().OrdreEtapes[4] = TEtape::Aucune;
    Jeu().Cantons[5].Inhibé = Jeu().Cantons[26].Inhibé = true;
    Jeu().NombreScores[2] = 2, Jeu().NombreScores[4] = 1;
    Jeu().MeilleursScores[2][1] = {QString::fromUtf8("Zoé"), 999998, 125}, Jeu().MeilleursScores[2][2] = {"Max", -432773, 3725};
    Jeu().MeilleursScores[4][1] = {QString::fromUtf8("Jürg"), 12, 0};
    Langues().Langue = 2;
    ASSERT_TRUE(EcritFichierScores(true));
    const auto lignes = [](Octets t) { return t.Ligne("Zo\xE9", 999998, 125, 2).Ligne("Max", -432773, 3725, 2).Ligne("J\xFCrg", 12, 0, 4).o; };
    EXPECT_EQ(Contenu(défaut), lignes(Tête({2, 3, 0, 0}, {5, 26}, "Version 6.07 du 30/07/2008", 2)));
    EXPECT_EQ(QDir(dossier.path()).entryList({"*.SCS*", "*.tmp", "*~*"}, QDir::Files | QDir::Hidden), QStringList{"KELMOR.SCS"});

    // Another minor version is read whole, the set with the lists, its last record stopping behind its value;
    // orders made by hand (a kind twice, a kind behind a 0) are the file's to say.
    Langues().Langue = 1;
    ASSERT_TRUE(EcritFichierEntier(défaut, lignes(Tête({3, 3, 0, 2}, {3}, "Version 6.12 du 01/02/2011", 2)).chopped(128 - 16)));
    ChargeScores();
    EXPECT_TRUE(boîtes.journal.empty() && ContenuScores(true) == lignes(Tête({3, 3, 0, 2}, {3})));

    // The default file's set and lists are taken in place of a bad file's (another major version, a file
    // cut inside the set); a bad default file too gives the default set.
    const QByteArray bonDéfaut = Tête({2, 1, 0, 0}, {7}).Ligne("Def", 77, 7, 3).o;
    for (const QByteArray &o : {Tête({1, 2, 3, 4}, {}, "Version 7.12 du 01/02/2011").o, Tête({1, 2, 3, 4}).o.left(20 * 128), QByteArray("y")}) {
        const bool défautBon = o != "y";
        EcritFichierEntier(défaut, défautBon ? bonDéfaut : "x"), EcritFichierEntier(Réglages().FichierLancement = abîmé, o);
        boîtes.journal.clear();
        ChargeScores();
        EXPECT_TRUE(boîtes.journal.size() == (défautBon ? 1u : 2u) && boîtes.ADit(abîmé + " : " + Message(TMessage::FichierNonInterprétable)) &&
                    Réglages().FichierLancement == défaut && ContenuScores(true) == (défautBon ? bonDéfaut : Tête({1, 2, 3, 4}).o)) << o.size();
    }
}

// A place taken is told and written, a score left out is told and changes nothing, Apprentissage keeps none;
// a reset keeps the set; a file that can't be written is told and the game goes on.
TEST_F(Store, TheBestTenTakeAScoreWithItsVerdictAndItsFileAFrozenScoreIsNotKeptAndAResetKeepsTheSet)
{
    Jeu().OrdreEtapes[1] = TEtape::Drapeaux, Jeu().Cantons[7].Inhibé = true;
    for (int i = 0; i <= 9; ++i)
        Termine(2, 500 + 10 * i, 100);
    EXPECT_TRUE(boîtes.journal[0].texte == Message(TMessage::BravoTopTen) && FormesMontrées().back() == "AffichageScores" &&
                ScoresAffichés().NiveauAffiché == TNiveau::Moyen) << "the list of the game's level follows";
    EXPECT_TRUE(Jeu().NombreScores[2] == 10 && Jeu().MeilleursScores[2][1].Points == 590 && Contenu(Réglages().FichierLancement) == ContenuScores(true));
    const QByteArray avant = Contenu(Réglages().FichierLancement);
    Termine(2, 500, 100); // equal in points and length: the older line stays
    EXPECT_TRUE(boîtes.journal[0].texte == Message(TMessage::HorsDesDixMeilleurs) && Contenu(Réglages().FichierLancement) == avant);
    Termine(2, 555, 50); // the lines below move down, the tenth goes
    EXPECT_EQ(std::vector<int>({Jeu().MeilleursScores[2][5].Points, Jeu().MeilleursScores[2][6].Points, Jeu().MeilleursScores[2][10].Points}),
              std::vector<int>({555, 550, 510}));
    Jeu().ScoreGelé = true, Jeu().Niveau = TNiveau::Facile, Jeu().PartieEnregistrée = false, boîtes.journal.clear();
    EnregistreScore();
    EXPECT_TRUE(Jeu().NombreScores[1] == 0 && Jeu().PartieEnregistrée && boîtes.journal.at(0).texte == Message(TMessage::ScoreNonEnregistréAssistance));
    ConfirmeRazScores(); // and Yes
    EXPECT_TRUE(boîtes.journal.back().style == StyleQuestion && Contenu(Réglages().FichierLancement) == Tête({3, 2, 3, 4}, {7}).o && Jeu().NombreScores[2] == 0);
    Réglages().FichierLancement = dossier.filePath("nulle/part/KELMOR.SCS");
    Termine(4, 1000, 10);
    EXPECT_TRUE(boîtes.journal.at(1).texte.startsWith(Message(TMessage::FichierNonEcrit)) && Jeu().NombreScores[4] == 1) << "told, and the game goes on";
}
