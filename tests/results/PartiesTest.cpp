// Saved games: the .CAS file byte by byte, a game taken up where it stood, and files refused.
#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Formes.h"
#include "results/Parties.h"
#include "results/Scores.h"
#include "results/SelectionPartie.h"
#include "screen/EcranPrincipal.h"
#include "services/Langues.h"
#include "services/Parametres.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace {

// Numbers of a record read by hand, little-endian, independently of the game's reader.
qint32 Long(const QByteArray &o, int record, int décalage = 0, int n = 4)
{
    const auto *p = reinterpret_cast<const unsigned char *>(o.constData()) + (record - 1) * 128 + décalage;
    quint32 v = 0;
    for (int i = n - 1; i >= 0; --i)
        v = v << 8 | p[i];
    return n == 2 ? qint16(v) : qint32(v);
}
int Entier(const QByteArray &o, int record, int décalage = 0) { return Long(o, record, décalage, 2); }
QByteArray Chaîne(const QByteArray &o, int record)
{
    return o.mid((record - 1) * 128 + 2, quint8(o[(record - 1) * 128]));
}

class Sauvegarde : public JeuTest {
protected:
    void SetUp() override
    {
        JeuTest::SetUp();
        FormesMontrées().clear();
        FichierLancement = dossier.filePath("KELMOR.SCS");
        RépertoireSauvegarde = dossier.path();
        QDir::setCurrent(dossier.path());
    }
    // A game at Difficile in its third step of four, with a few cantons found.
    void PartieEntamée()
    {
        NouvellePartieAuNiveau(3);
        while (Jeu().Etape < TEtape::Drapeaux)
            RépondJuste();
        for (int n = 0; n < 5; ++n)
            RépondJuste();
        RépondFaux();
        RépondJuste();
        RépondFaux();
        RépondFaux();
    }
    void Ecrit(const char *nom, const QByteArray &o = {})
    {
        QFile f(dossier.filePath(nom));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(o);
    }
    // The dialog opens on its first file and OK is clicked; `nom` typed first when given.
    void Choisit(const char *nom = nullptr)
    {
        InstalleFormesModales([nom](QDialog &d) {
            auto &s = static_cast<SélectionPartie &>(d);
            if (nom)
                s.NomFichier->setText(nom);
            else
                s.Fichier->setCurrentRow(0);
            s.BoutonOK->click();
            return s.result();
        });
    }
};

TEST_F(Sauvegarde, WrittenRecordByRecord)
{
    PartieEntamée();
    Jeu().NomJoueur = QString::fromUtf8("Zoé");
    Jeu().DuréePartie = 3725;
    const QByteArray o = ContenuPartie();
    ASSERT_EQ(o.size(), 37760);
    EXPECT_EQ(QList<QByteArray>({Chaîne(o, 1), Chaîne(o, 3), Chaîne(o, 5)}),
              QList<QByteArray>({"Version 6.07 du 30/07/2008", QFile::encodeName(FichierLancement), "Zo\xE9"}));
    EXPECT_EQ(std::vector<int>({Entier(o, 2), Entier(o, 4), Entier(o, 6), Entier(o, 7), Long(o, 8), Long(o, 295)}),
              std::vector<int>({1, 3, 3, 0, Jeu().Score, 3725}));
    for (int i = 1; i <= 26; ++i) {
        EXPECT_EQ(Entier(o, 8 + i), i);
        EXPECT_EQ(Entier(o, 8 + i, 2), Jeu().Cantons[i].Trouvé);
        for (int j = 0; j <= 4; ++j) {
            EXPECT_EQ(Entier(o, 35 + 10 * (i - 1) + 2 * j), Jeu().Cantons[i].Réussi[j]);
            EXPECT_EQ(Long(o, 36 + 10 * (i - 1) + 2 * j), Jeu().Cantons[i].Pertes[j]);
        }
    }
}

TEST_F(Sauvegarde, TheScoreFileComesBackExactlyOrTheGameIsNotSaved)
{
    // A folder outside Windows-1252, one too long for a record: noted from the saved game's folder.
    const QString loin = QString::fromUtf8("Łukasz"), long_ = QString(130, 'a');
    struct Cas {
        QString scores, partie;
        bool enregistrée;
    };
    PartieEntamée();
    for (const Cas &c : {Cas{loin, loin, true}, Cas{long_, long_, true}, Cas{loin, ".", false}, Cas{long_, ".", false}}) {
        QDir(dossier.path()).mkdir(c.scores);
        FichierLancement = dossier.filePath(c.scores + "/KELMOR.SCS");
        Jeu().NombreScores[2] = 1;
        Jeu().MeilleursScores[2][1] = {"Ola", 5, 5};
        ASSERT_TRUE(EcritFichierScores(true));
        const QString chemin = dossier.filePath(c.partie + "/p.CAS"), avant = FichierLancement;
        boîtes.journal.clear();
        EXPECT_EQ(EcritPartie(chemin), c.enregistrée);
        EXPECT_EQ(QFile::exists(chemin), c.enregistrée);
        EXPECT_EQ(boîtes.ADit(Messages[MessagePartieNonNotable] + avant), !c.enregistrée);
        RazScores();
        if (!c.enregistrée)
            continue;
        ASSERT_TRUE(LitPartie(chemin));
        EXPECT_EQ(FichierLancement, avant);
        EXPECT_EQ(Jeu().MeilleursScores[2][1].Nom, "Ola");
        QFile::remove(chemin);
    }
}

TEST_F(Sauvegarde, AnUnsavedParameterSetTravelsInTheFile)
{
    NouvellePartieAuNiveau(2);
    RépondJuste();
    FichierLancement = "~tmp.~cf";
    Jeu().OrdreEtapes[1] = TEtape::Cantons; Jeu().OrdreEtapes[2] = TEtape::Plaques; Jeu().OrdreEtapes[3] = TEtape::Aucune; Jeu().OrdreEtapes[4] = TEtape::Aucune;
    Jeu().NombreScores[2] = 2;
    Jeu().MeilleursScores[2][1] = {"A", 10, 1};
    Jeu().MeilleursScores[2][2] = {"B", 5, 2};
    Jeu().NombreScores[4] = 1;
    Jeu().MeilleursScores[4][1] = {"C", 3, 3};
    const QByteArray o = ContenuPartie();
    EXPECT_EQ(o.size(), (295 + 5 + 3) * 128);
    EXPECT_EQ(std::vector<int>({Entier(o, 4), Entier(o, 5), Entier(o, 8), Entier(o, 12)}), std::vector<int>({1, 4, 3, 1}))
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

TEST_F(Sauvegarde, SavedInStepThreeAndTakenUpOnce)
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
    EXPECT_TRUE(QFile::exists(dossier.filePath("essai.CAS"))) << "the extension is the game's own";
    EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    EXPECT_TRUE(Jeu().PartieVierge);
    boîtes.journal.clear();
    EXPECT_TRUE(ConfirmeArrêt());
    EXPECT_TRUE(boîtes.journal.empty()) << "a saved game has nothing to confirm";

    // Taken up later: the clock goes on from where it stood.
    horloge = 50000;
    Choisit();
    FichierLire_Click();
    EXPECT_EQ(std::vector<int>({Numéro(Jeu().Etape), Jeu().Score, Jeu().RestantsEtape, Jeu().DuréePartie, Jeu().HeureDépart}),
              std::vector<int>({3, scoreAvant - solde, restants, 600, 50000 - 600}));
    for (int i = 1; i <= 26; ++i) {
        EXPECT_EQ(Jeu().Cantons[i].Trouvé, avant[i].Trouvé) << i;
        for (int j = 0; j <= 4; ++j) {
            EXPECT_EQ(Jeu().Cantons[i].Réussi[j], avant[i].Réussi[j]) << i;
            EXPECT_GE(Jeu().Cantons[i].Pertes[j], avant[i].Pertes[j]) << "the save charged the open question";
        }
    }
    EXPECT_FALSE(QFile::exists(dossier.filePath("essai.CAS"))) << "a saved game is taken up once";
    EXPECT_FALSE(Jeu().Cantons[Jeu().CantonRecherché].Trouvé);
    // The resumed game asks before it is left, even before its first click.
    boîtes.réponses = {RéponseNon};
    EXPECT_FALSE(ConfirmeArrêt());
    EXPECT_EQ(boîtes.journal.back().titre, Messages[33]);
}

TEST_F(Sauvegarde, DamagedFilesChangeNothing)
{
    PartieEntamée();
    const QByteArray bon = ContenuPartie();
    RépondJuste();
    const i32 score = Jeu().Score;
    const int étape = Numéro(Jeu().Etape), restants = Jeu().RestantsEtape;

    QByteArray horsTable = bon;
    horsTable[(9 - 1) * 128] = char(200); // the first pair names canton 200
    QByteArray autre = bon;
    autre.replace(2 + 8, 4, "6.08");
    const QByteArray mauvais[] = {
        bon.left(200 * 128),  // cut short
        bon.left(100),        // cut in its first records
        QByteArray(), autre,  // another version
    };
    for (const QByteArray &o : mauvais) {
        EXPECT_FALSE(RestaurePartie(o));
        EXPECT_EQ(std::vector<int>({Jeu().Score, Numéro(Jeu().Etape), Jeu().RestantsEtape}), std::vector<int>({score, étape, restants}));
    }
    // A number outside 0..26 in a pair is never used as an index.
    EXPECT_TRUE(RestaurePartie(horsTable));

    // Another version chosen in the dialog: its message, then the dialog's own.
    Ecrit("vieux.CAS", autre);
    boîtes.journal.clear();
    Jeu().PartieVierge = true;
    Choisit();
    FichierLire_Click();
    ASSERT_EQ(boîtes.journal.size(), 2u);
    EXPECT_EQ(boîtes.journal[0].texte, Messages[104] + Messages[0] + Messages[105]);
    EXPECT_EQ(boîtes.journal[0].style, StyleCritique);
    EXPECT_EQ(boîtes.journal[1].titre, "Erreur de format");
    EXPECT_TRUE(QFile::exists(dossier.filePath("vieux.CAS")));
}

TEST_F(Sauvegarde, TheDialogRefusesEmptyExistingAndUnselectedNamesAndAnUnwritableFolderIsTold)
{
    EnregistrePartie();
    EXPECT_TRUE(FormesMontrées().empty()) << "nothing to save without a game";
    PartieEntamée();
    Ecrit("pris.CAS");
    ModeRépertoires = TModeRépertoires::Sauvegarde;
    TypeFichier = TTypeFichier::Partie;
    {
        SélectionPartie s;
        s.NomFichier->setText("   ");
        s.BoutonOK->click();
        EXPECT_EQ(boîtes.journal.back().texte, Messages[3]);
        EXPECT_EQ(s.NomFichier->text(), "   .CAS");
        s.Fichier->setCurrentRow(0);
        s.Fichier_DblClick();
        EXPECT_EQ(s.NomFichier->text(), "pris.CAS");
        s.BoutonOK->click();
        EXPECT_EQ(boîtes.journal.back().texte, Messages[5]);
        EXPECT_EQ(s.result(), 0);
    }
    ModeRépertoires = TModeRépertoires::Chargement;
    {
        SélectionPartie s;
        EXPECT_TRUE(s.NomFichier->isHidden());
        s.Fichier->setCurrentRow(-1);
        s.BoutonOK->click();
        EXPECT_EQ(boîtes.journal.back().texte, Messages[7]);
        EXPECT_EQ(boîtes.journal.back().titre, "M'enffffin");
    }
    EXPECT_FALSE(EcritPartie(dossier.filePath("nulle/part/x.CAS")));
    EXPECT_EQ(boîtes.journal.back().texte, Messages[119]);
    EXPECT_EQ(Jeu().Etape, TEtape::Drapeaux);
}

TEST_F(Sauvegarde, AnotherFolderIsOfferedOnceAsTheDefault)
{
    ModeRépertoires = TModeRépertoires::Sauvegarde;
    TypeFichier = TTypeFichier::Partie;
    SélectionPartie s;
    s.ChangeRépertoire(dossier.path() + "/");
    s.ProposeRépertoire();
    EXPECT_TRUE(boîtes.journal.empty()) << "the same folder with a final separator asks nothing";
    QDir(dossier.path()).mkdir("autre");
    s.ChangeRépertoire(dossier.filePath("autre"));
    boîtes.réponses = {RéponseOui};
    s.ProposeRépertoire();
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(boîtes.journal[0].texte, Messages[117] + dossier.filePath("autre"));
    EXPECT_EQ(RépertoireSauvegarde, dossier.filePath("autre"));
    EXPECT_EQ(QDir::currentPath(), dossier.filePath("autre"));
}

} // namespace
