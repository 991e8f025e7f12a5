// Saved games: the .CAS file record by record, a game taken up where it stood, files refused.
#include "Fixtures.h"

#include "files/FichierPartie.h"
#include "results/PartieEnCours.h"

class Sauvegarde : public JeuTest {
protected:
    // A game at Difficile in its third step of four, five cantons found in it, the question open after two errors.
    void PartieEntamée()
    {
        NouvellePartieAuNiveau(3);
        while (Jeu().Etape < TEtape::Drapeaux || Jeu().RestantsEtape > 21)
            RépondJuste();
        RépondFaux(), RépondJuste(), RépondFaux(), RépondFaux();
    }
};

TEST_F(Sauvegarde, WrittenRecordByRecordAnUnsavedSetTravelsInTheFileAndTheScoreFileComesBackExactlyOrTheGameIsNotSaved)
{
    PartieEntamée();
    Jeu().NomJoueur = QString::fromUtf8("Zoé"), Jeu().DuréePartie = 3725;
    // The version, the language, the score file, the step, the player, the level, Apprentissage, the score; each
    // canton's number and found flag; its successes and losses by step kind; the time played.
    Octets a;
    a.Chaîne("Version 6.07 du 30/07/2008").Entier(1).Chaîne(QFile::encodeName(Réglages().FichierLancement)).Entier(3).Chaîne("Zo\xE9").Entier(3).Entier(0).Entier(Jeu().Score, 4);
    for (int i = 1; i <= 26; ++i)
        a.R(Octets::LE(i, 2) + Octets::LE(Booléen(Jeu().Cantons[i].Trouvé), 2));
    for (int i = 1; i <= 26; ++i)
        for (int j = 0; j <= 4; ++j)
            a.Entier(Booléen(Jeu().Cantons[i].Réussi[j])).Entier(Jeu().Cantons[i].Pertes[j], 4);
    const QByteArray o = a.Entier(3725, 4).o;
    EXPECT_EQ(ContenuPartie(), o);

    // A set never saved: its step kinds, its number of lines and the lines follow the file's name; taken back whole.
    Réglages().FichierLancement = ParamétrageNonSauvé;
    Jeu().OrdreEtapes[1] = TEtape::Cantons, Jeu().OrdreEtapes[2] = TEtape::Plaques, Jeu().OrdreEtapes[3] = Jeu().OrdreEtapes[4] = TEtape::Aucune;
    Jeu().NombreScores[2] = 2, Jeu().NombreScores[4] = 1;
    Jeu().MeilleursScores[2][1] = {"A", 10, 1}, Jeu().MeilleursScores[2][2] = {"B", 5, 2}, Jeu().MeilleursScores[4][1] = {"C", 3, 3};
    const QByteArray avecSet = o.left(2 * 128) + Octets().Chaîne("~tmp.~cf").Entier(1).Entier(4).Entier(0).Entier(0).Entier(3)
                                   .Ligne("A", 10, 1, 2).Ligne("B", 5, 2, 2).Ligne("C", 3, 3, 4).o + o.mid(3 * 128);
    EXPECT_EQ(ContenuPartie(), avecSet);
    RazScores(), std::copy_n(Partie{}.OrdreEtapes, 5, Jeu().OrdreEtapes);
    EXPECT_TRUE(RestaurePartie(avecSet) && ContenuPartie() == avecSet);

    // A score file's folder outside Windows-1252 or too long for a record is noted from the saved game's
    // folder; where that can't be, the game isn't saved.
    const QString loin = QString::fromUtf8("Łukasz"), long_ = QString(130, 'a');
    for (auto [scores, partie] : {std::pair{loin, loin}, {long_, long_}, {loin, QString(".")}, {long_, QString(".")}}) {
        const bool enregistrée = partie != ".";
        QDir(dossier.path()).mkdir(scores);
        Réglages().FichierLancement = dossier.filePath(scores + "/KELMOR.SCS");
        Jeu().NombreScores[2] = 1, Jeu().MeilleursScores[2][1] = {"Ola", 5, 5};
        ASSERT_TRUE(EcritFichierScores(true));
        const QString chemin = dossier.filePath(partie + "/p.CAS"), avant = Réglages().FichierLancement;
        boîtes.journal.clear();
        EXPECT_TRUE(EcritPartie(chemin) == enregistrée && QFile::exists(chemin) == enregistrée &&
                    boîtes.ADit(Message(TMessage::PartieNonNotable) + avant) != enregistrée) << partie.size();
        RazScores();
        EXPECT_TRUE(!enregistrée || (LitPartie(chemin) && Réglages().FichierLancement == avant && Jeu().MeilleursScores[2][1].Nom == "Ola")) << partie.size();
    }
}

TEST_F(Sauvegarde, SavedInStepThreeDamagedCopiesRefusedAndTakenUpOnce)
{
    EnregistrePartie();
    EXPECT_TRUE(FormesMontrées().empty()) << "nothing to save without a game";
    PartieEntamée();
    EXPECT_TRUE(!EcritPartie(dossier.filePath("nulle/part/x.CAS")) && boîtes.journal.back().texte == Message(TMessage::RépertoireNonInscriptible));
    const i32 solde = Jeu().Score - (16 + 64 + 256 + 1024 + 4096 + 16384 + 65536); // errors 3 to 9 of the open question
    const i16 restants = Jeu().RestantsEtape;
    horloge = 36000 + 600;
    ChoisitFichier("essai.txt");
    EnregistrePartie();
    boîtes.journal.clear();
    EXPECT_TRUE(ConfirmeArrêt() && boîtes.journal.empty()) << "a saved game has nothing to confirm";

    // Damaged copies change nothing: the score charged, the bare map.
    const QByteArray bon = Contenu(dossier.filePath("essai.CAS")); // the extension is the game's own
    const QByteArray autre = QByteArray(bon).replace(2 + 8, 4, "6.08");
    for (const QByteArray &o : {bon.left(200 * 128), bon.left(100), QByteArray(), autre})
        EXPECT_EQ(std::vector<int>({RestaurePartie(o), Jeu().Score, Numéro(Jeu().Etape), Jeu().PartieVierge}), std::vector<int>({false, solde, 0, true}));

    // Taken up later, once, as it was saved: the clock goes on from where it stood.
    horloge = 50000;
    ChoisitFichier();
    FichierLire_Click();
    EXPECT_TRUE(ContenuPartie() == bon && Jeu().RestantsEtape == restants && Jeu().HeureDépart == 50000 - 600);
    EXPECT_FALSE(QFile::exists(dossier.filePath("essai.CAS")) || Jeu().Cantons[Jeu().CantonRecherché].Trouvé);
    boîtes.réponses = {RéponseNon}; // the resumed game asks before it is left, even before its first click
    EXPECT_TRUE(!ConfirmeArrêt() && boîtes.journal.back().texte == Message(TMessage::ConfirmerAbandon));

    // Another version chosen in the dialog: its message, then the dialog's own; the file stays.
    ASSERT_TRUE(EcritFichierEntier(dossier.filePath("vieux.CAS"), autre));
    boîtes.journal.clear(), Jeu().PartieVierge = true;
    ChoisitFichier();
    FichierLire_Click();
    EXPECT_TRUE(boîtes.journal.size() == 2 && boîtes.journal[0].texte.startsWith(Message(TMessage::ReprisePartieImpossible)) && QFile::exists(dossier.filePath("vieux.CAS")));
}
