// Saved games: the .CAS file record by record, a game taken up where it stood, files refused, and the file dialog.
#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Formes.h"
#include "results/Parties.h"
#include "results/Scores.h"
#include "results/SelectionPartie.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "results/PartieEnCours.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace {

// A number of n bytes in a record, read by hand, little-endian, independently of the game's reader.
qint32 Long(const QByteArray &o, int record, int décalage = 0, int n = 4)
{
    const auto *p = reinterpret_cast<const unsigned char *>(o.constData()) + (record - 1) * 128 + décalage;
    quint32 v = 0;
    for (int i = n - 1; i >= 0; --i)
        v = v << 8 | p[i];
    return n == 2 ? qint16(v) : qint32(v);
}
int Entier(const QByteArray &o, int record, int décalage = 0) { return Long(o, record, décalage, 2); }
QByteArray Chaîne(const QByteArray &o, int record) { return o.mid((record - 1) * 128 + 2, quint8(o[(record - 1) * 128])); }

class Sauvegarde : public JeuTest {
protected:
    void SetUp() override
    {
        JeuTest::SetUp();
        Réglages().FichierLancement = dossier.filePath("KELMOR.SCS");
        Réglages().RépertoireSauvegarde = dossier.path();
        QDir::setCurrent(dossier.path());
        DemandeDossier().ModeRépertoires = TModeRépertoires::Sauvegarde;
        DemandeDossier().TypeFichier = TTypeFichier::Partie;
    }
    // A game at Difficile in its third step of four, a few cantons found, the question open after two errors.
    void PartieEntamée()
    {
        NouvellePartieAuNiveau(3);
        while (Jeu().Etape < TEtape::Drapeaux)
            RépondJuste();
        for (int n = 0; n < 5; ++n)
            RépondJuste();
        RépondFaux(), RépondJuste(), RépondFaux(), RépondFaux();
    }
    // The dialog opens on its first file and OK is clicked; `nom` typed first when given.
    void Choisit(const char *nom = nullptr)
    {
        InstalleFormesModales([nom](QDialog &d) {
            auto &s = static_cast<SélectionPartie &>(d);
            nom ? s.NomFichier->setText(nom) : s.Fichier->setCurrentRow(0);
            s.BoutonOK->click();
            return s.result();
        });
    }
};

// The record layout, without a parameter set and then with an unsaved one travelling in the file.
TEST_F(Sauvegarde, WrittenRecordByRecordAndAnUnsavedSetTravelsInTheFile)
{
    PartieEntamée();
    Jeu().NomJoueur = QString::fromUtf8("Zoé");
    Jeu().DuréePartie = 3725;
    QByteArray o = ContenuPartie();
    ASSERT_EQ(o.size(), 295 * 128);
    EXPECT_EQ(QList<QByteArray>({Chaîne(o, 1), Chaîne(o, 3), Chaîne(o, 5)}),
              QList<QByteArray>({"Version 6.07 du 30/07/2008", QFile::encodeName(Réglages().FichierLancement), "Zo\xE9"}));
    EXPECT_EQ(std::vector<int>({Entier(o, 2), Entier(o, 4), Entier(o, 6), Entier(o, 7), Long(o, 8), Long(o, 295)}),
              std::vector<int>({1, 3, 3, 0, Jeu().Score, 3725}));
    for (int i = 1; i <= 26; ++i) {
        EXPECT_EQ(std::vector<int>({Entier(o, 8 + i), Entier(o, 8 + i, 2)}), std::vector<int>({i, -int(Jeu().Cantons[i].Trouvé)}));
        for (int j = 0; j <= 4; ++j) {
            EXPECT_EQ(Entier(o, 35 + 10 * (i - 1) + 2 * j), -int(Jeu().Cantons[i].Réussi[j]));
            EXPECT_EQ(Long(o, 36 + 10 * (i - 1) + 2 * j), Jeu().Cantons[i].Pertes[j]);
        }
    }

    Réglages().FichierLancement = "~tmp.~cf";
    Jeu().OrdreEtapes[1] = TEtape::Cantons, Jeu().OrdreEtapes[2] = TEtape::Plaques, Jeu().OrdreEtapes[3] = Jeu().OrdreEtapes[4] = TEtape::Aucune;
    Jeu().NombreScores[2] = 2, Jeu().NombreScores[4] = 1;
    Jeu().MeilleursScores[2][1] = {"A", 10, 1};
    Jeu().MeilleursScores[2][2] = {"B", 5, 2};
    Jeu().MeilleursScores[4][1] = {"C", 3, 3};
    o = ContenuPartie();
    EXPECT_EQ(o.size(), (295 + 5 + 3) * 128);
    EXPECT_EQ(std::vector<int>({Entier(o, 4), Entier(o, 5), Entier(o, 8), Entier(o, 12)}), std::vector<int>({1, 4, 3, 3}))
        << "the order, the number of lines, then Etape behind the block";
    EXPECT_EQ(Chaîne(o, 9).left(1), "A");
    RazScores();
    ASSERT_TRUE(RestaurePartie(o));
    EXPECT_EQ(Jeu().OrdreEtapes[2], TEtape::Plaques);
    EXPECT_EQ(Jeu().NombreScores[2], 2);
    EXPECT_EQ(Jeu().MeilleursScores[4][1].Nom, "C");
    for (int k = 1; k <= 4; ++k)
        Jeu().OrdreEtapes[k] = static_cast<TEtape>(k);
}

TEST_F(Sauvegarde, TheScoreFileComesBackExactlyOrTheGameIsNotSaved)
{
    // A folder outside Windows-1252, one too long for a record: noted from the saved game's folder.
    const QString loin = QString::fromUtf8("Łukasz"), long_ = QString(130, 'a');
    PartieEntamée();
    for (auto [scores, partie] : {std::pair{loin, loin}, {long_, long_}, {loin, QString(".")}, {long_, QString(".")}}) {
        const bool enregistrée = partie != ".";
        QDir(dossier.path()).mkdir(scores);
        Réglages().FichierLancement = dossier.filePath(scores + "/KELMOR.SCS");
        Jeu().NombreScores[2] = 1;
        Jeu().MeilleursScores[2][1] = {"Ola", 5, 5};
        ASSERT_TRUE(EcritFichierScores(true));
        const QString chemin = dossier.filePath(partie + "/p.CAS"), avant = Réglages().FichierLancement;
        boîtes.journal.clear();
        EXPECT_EQ(EcritPartie(chemin), enregistrée);
        EXPECT_EQ(QFile::exists(chemin), enregistrée);
        EXPECT_EQ(boîtes.ADit(Message(TMessage::PartieNonNotable) + avant), !enregistrée);
        RazScores();
        if (enregistrée) {
            ASSERT_TRUE(LitPartie(chemin));
            EXPECT_EQ(Réglages().FichierLancement, avant);
            EXPECT_EQ(Jeu().MeilleursScores[2][1].Nom, "Ola");
            QFile::remove(chemin);
        }
    }
}

TEST_F(Sauvegarde, SavedInStepThreeDamagedCopiesRefusedAndTakenUpOnce)
{
    PartieEntamée();
    const i32 scoreAvant = Jeu().Score;
    const i16 restants = Jeu().RestantsEtape;
    std::vector<TCanton> avant(Jeu().Cantons, Jeu().Cantons + 27);

    // Saving charges what is left of the question that drew errors.
    horloge = 36000 + 600;
    Choisit("essai.txt");
    EnregistrePartie();
    const i32 solde = 16 + 64 + 256 + 1024 + 4096 + 16384 + 65536; // errors 3 to 9 of the question
    EXPECT_EQ(Jeu().Score, scoreAvant - solde);
    EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    EXPECT_TRUE(Jeu().PartieVierge);
    boîtes.journal.clear();
    EXPECT_TRUE(ConfirmeArrêt());
    EXPECT_TRUE(boîtes.journal.empty()) << "a saved game has nothing to confirm";

    // Damaged copies of it change nothing; a number outside 0..26 in a pair is never used as an index.
    QFile f(dossier.filePath("essai.CAS")); // the extension is the game's own
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray bon = f.readAll();
    QByteArray horsTable = bon, autre = bon;
    horsTable[(9 - 1) * 128] = char(200);
    autre.replace(2 + 8, 4, "6.08");
    for (const QByteArray &o : {bon.left(200 * 128), bon.left(100), QByteArray(), autre}) {
        EXPECT_FALSE(RestaurePartie(o));
        EXPECT_EQ(std::vector<int>({Jeu().Score, Numéro(Jeu().Etape), Jeu().PartieVierge}), std::vector<int>({scoreAvant - solde, 0, true}));
    }
    EXPECT_TRUE(RestaurePartie(horsTable));
    Jeu().Etape = TEtape::Aucune, Jeu().PartieVierge = true;

    // Taken up later: the clock goes on from where it stood.
    horloge = 50000;
    Choisit();
    FichierLire_Click();
    EXPECT_EQ(std::vector<int>({Numéro(Jeu().Etape), Jeu().Score, Jeu().RestantsEtape, Jeu().DuréePartie, Jeu().HeureDépart}),
              std::vector<int>({3, scoreAvant - solde, restants, 600, 50000 - 600}));
    for (int i = 1; i <= 26; ++i)
        for (int j = 0; j <= 4; ++j)
            EXPECT_TRUE(Jeu().Cantons[i].Trouvé == avant[i].Trouvé && Jeu().Cantons[i].Réussi[j] == avant[i].Réussi[j] &&
                        Jeu().Cantons[i].Pertes[j] >= avant[i].Pertes[j]) << i << ' ' << j << ": the save charged the open question only";
    EXPECT_FALSE(QFile::exists(dossier.filePath("essai.CAS"))) << "a saved game is taken up once";
    EXPECT_FALSE(Jeu().Cantons[Jeu().CantonRecherché].Trouvé);
    // The resumed game asks before it is left, even before its first click.
    boîtes.réponses = {RéponseNon};
    EXPECT_FALSE(ConfirmeArrêt());
    EXPECT_EQ(boîtes.journal.back().texte, Message(TMessage::ConfirmerAbandon));

    // Another version chosen in the dialog: its message, then the dialog's own; the file stays.
    QFile vieux(dossier.filePath("vieux.CAS"));
    ASSERT_TRUE(vieux.open(QIODevice::WriteOnly) && vieux.write(autre) == autre.size());
    vieux.close();
    boîtes.journal.clear();
    Jeu().PartieVierge = true;
    Choisit();
    FichierLire_Click();
    ASSERT_EQ(boîtes.journal.size(), 2u);
    EXPECT_EQ(boîtes.journal[0].texte, Message(TMessage::ReprisePartieImpossible) + Message(TMessage::VersionDuJeu) + Message(TMessage::VersionAntérieure));
    EXPECT_TRUE(QFile::exists(dossier.filePath("vieux.CAS")));
}

TEST_F(Sauvegarde, TheDialogRefusesEmptyAndUnselectedNamesOffersAnotherFolderOnceAndAnUnwritableFolderIsTold)
{
    EnregistrePartie();
    EXPECT_TRUE(FormesMontrées().empty()) << "nothing to save without a game";
    PartieEntamée();
    QFile(dossier.filePath("pris.CAS")).open(QIODevice::WriteOnly);
    {
        SélectionPartie s;
        s.NomFichier->setText("   ");
        s.BoutonOK->click();
        EXPECT_EQ(boîtes.journal.back().texte, Message(TMessage::NomFichierObligatoire));
        EXPECT_EQ(s.NomFichier->text(), "   .CAS");
        s.Fichier->setCurrentRow(0);
        s.Fichier_DblClick(); // an existing name refused is the screen tests' (Enter in the file dialog)
        EXPECT_EQ(s.NomFichier->text(), "pris.CAS");
        EXPECT_EQ(s.result(), 0);

        boîtes.journal.clear();
        s.ChangeRépertoire(dossier.path() + "/");
        s.ProposeRépertoire();
        EXPECT_TRUE(boîtes.journal.empty()) << "the same folder with a final separator asks nothing";
        QDir(dossier.path()).mkdir("autre");
        s.ChangeRépertoire(dossier.filePath("autre"));
        boîtes.réponses = {RéponseOui};
        s.ProposeRépertoire();
        ASSERT_EQ(boîtes.journal.size(), 1u);
        EXPECT_EQ(boîtes.journal[0].texte, Message(TMessage::RépertoireParDéfaut) + dossier.filePath("autre"));
        EXPECT_EQ(Réglages().RépertoireSauvegarde, dossier.filePath("autre"));
        EXPECT_EQ(QDir::currentPath(), dossier.filePath("autre"));
    }
    DemandeDossier().ModeRépertoires = TModeRépertoires::Chargement;
    {
        SélectionPartie s;
        EXPECT_TRUE(s.NomFichier->isHidden());
        s.Fichier->setCurrentRow(-1);
        s.BoutonOK->click();
        EXPECT_EQ(boîtes.journal.back().texte, Message(TMessage::ChoisirFichierPartie));
    }
    EXPECT_FALSE(EcritPartie(dossier.filePath("nulle/part/x.CAS")));
    EXPECT_EQ(boîtes.journal.back().texte, Message(TMessage::RépertoireNonInscriptible));
    EXPECT_EQ(Jeu().Etape, TEtape::Drapeaux);
}

} // namespace
