// The settings read at the start: first run, upgrade, ordinary run, the reminder, the language, the folders.
#include "Services.h"
#include "results/PartieEnCours.h"

namespace {

class Paramètres : public Magasin {
protected:
    void SetUp() override
    {
        Magasin::SetUp();
        ASSERT_TRUE(QDir().mkpath(programme) && QDir().mkpath(choisi));
        Réglages().RépertoireApplication = programme, ChoisiraDossiers({});
    }
    void TearDown() override { InstalleDossierProgramme(QString()), Magasin::TearDown(); }

    // A store of its own as an earlier run left it: nothing without a version, none for "-", this one's for "*".
    void Installation(const char *version = "*", const char *date = "2024-05-01 08:00:00", const char *langue = "1")
    {
        Réglages().RépertoireSauvegarde.clear(), Réglages().RépertoireInfo.clear(), Réglages().FichierLancement.clear(), Jeu().NomJoueur.clear();
        InstalleFichierRegistre(fichier = dossier.filePath(QStringLiteral("registre%1.ini").arg(++magasins)));
        boîtes.journal.clear(), QDir::setCurrent(dossierCourant), Langues().Langue = 1;
        if (!version)
            return;
        if (date)
            Pose(CléFamille, "date", date);
        for (const auto &[nom, texte] : {std::pair<const char *, QString>{"version", version == std::string("*") ? ChaîneTable(1000) : version},
                                         {"joueur", "Zoé"}, {"langue", langue}, {"répertoire", choisi + '/'},
                                         {"fichier de lancement", choisi + "/MES.SCS"}, {"répertoire information", choisi}})
            if (nom != std::string("version") || version != std::string("-"))
                Pose(CléJeu, nom, texte);
        ChargeListeJeux(); // the family's versions known, under Updates
    }

    QString programme = dossier.filePath("programme"), choisi = dossier.filePath("choisi");
    int magasins = 0;
};

// A first run when `version` is missing or empty, an upgrade when it differs at all: both write the defaults,
// a first run also forgets player and language, and reminds.
TEST_F(Paramètres, FirstRunAndUpgradeWriteTheDefaultsAndOnlyAFirstRunForgetsPlayerAndLanguage)
{
    for (const auto &[version, premier] : {std::pair<const char *, bool>{nullptr, true}, {"-", true}, {"", true}, {" ", false},
                                           {"Version 6.06 du 01/02/2008", false}, {"Version 7.00 du 01/01/2030", false}}) {
        SCOPED_TRACE(version ? version : "no key");
        Installation(version, "2024-05-01 08:00:00", " 2");
        Langues().Langue = 2, LitParamètres(Jeu());
        EXPECT_EQ(Vues(boîtes), premier ? QList<int>{123} : QList<int>{});
        EXPECT_EQ(QStringList({Valeur(CléJeu, "version"), Valeur(CléJeu, "joueur"), Valeur(CléJeu, "langue"), Valeur(CléFamille, "date")}),
                  QStringList({ChaîneTable(1000), premier ? "" : "Zoé", premier ? "1" : " 2", "2024-05-10 14:30:00"}));
        // A first run leaves the bare name of the score file, found in the current folder.
        EXPECT_EQ(Dossiers(), QStringList({programme + '/', programme + "/KELMOR.SCS", programme + '/', programme + '/',
                                           premier ? "KELMOR.SCS" : programme + "/KELMOR.SCS", programme + '/', programme}));
        EXPECT_TRUE(Réglages().ParamètresLus && Jeu().NomJoueur == (premier ? "" : "Zoé") && Langues().Langue == (premier ? 1 : 2));
        EXPECT_EQ(Réglages().VersionJeu, ChaîneTable(1000)) << "the version kept always in French";
    }
}

// An ordinary run reads everything, the language as a number; it writes `date` only, after a reminder or
// over a date it can't read. 2024 is a leap year: 1 January to 29 February is 59 days; 23:59 to 00:01 is a
// whole day. A date ahead of the clock never reminds; one that can't be read is renewed without a reminder.
TEST_F(Paramètres, TheReminderComesAfterSixtyCalendarDaysAndAnOrdinaryRunWritesNothingElse)
{
    for (const auto &[stocké, aujourdhui, rappel, renouvelée, langue, lue] :
         {std::tuple{"2024-01-01 12:00:00", "2024-02-29 12:00:00", false, false, " 2", 2}, {nullptr, "2024-05-10 08:00:00", false, true, "2", 2},
          {"2024-01-01 12:00:00", "2024-03-01 00:00:01", true, true, "2x", 2}, {"", "2024-05-10 08:00:00", false, true, "1", 1},
          {"2024-01-01 00:00:00", "2024-02-29 23:59:59", false, false, "0", 1}, {"10/05/2023", "2024-05-10 08:00:00", false, true, "7", 1},
          {"2024-01-01 23:59:00", "2024-03-01 00:01:00", true, true, "de", 1}, {"2023-01-01 08:00:00", "2024-05-10 08:00:00", true, true, "", 1},
          {"2030-01-01 08:00:00", "2024-05-10 08:00:00", false, false, "-2", 1},
          {"2023-02-30 10:00:00", "2024-05-10 08:00:00", false, true, "99999999999", 1}}) {
        SCOPED_TRACE(std::string(stocké ? stocké : "no date") + " -> " + aujourdhui + ", language " + langue);
        Installation("*", stocké, langue);
        maintenant = QDateTime::fromString(aujourdhui, FormatDate);
        const QByteArray avant = Contenu(fichier);
        Langues().Langue = 2, LitParamètres(Jeu());
        EXPECT_EQ(Vues(boîtes), rappel ? QList<int>{123} : QList<int>{});
        EXPECT_TRUE(Valeur(CléFamille, "date") == (renouvelée ? aujourdhui : stocké) && (renouvelée || Contenu(fichier) == avant));
        EXPECT_TRUE(Langues().Langue == lue && Message(TMessage::VersionDuJeu) == ChaîneTable(lue == 2 ? 1250 : 1000) && Valeur(CléJeu, "langue") == langue);
        EXPECT_EQ(Dossiers() << Jeu().NomJoueur, QStringList({choisi + '/', choisi + "/MES.SCS", choisi, choisi + '/', choisi + "/MES.SCS", choisi, choisi, "Zoé"}));
    }
}

// A save folder that can't be written is asked for at each start until one is given, at a first run before the reminder.
TEST_F(Paramètres, AFolderThatCantBeWrittenIsAskedForAtEachStartUntilOneIsGiven)
{
    Installation();
    const QString disparu = dossier.filePath("disparu"), fichierProgramme = dossier.filePath("programme.bin");
    Pose(CléJeu, "répertoire", disparu);
    LitParamètres(Jeu()); // given up: the start goes on with what it had
    EXPECT_EQ(Dossiers(), QStringList({disparu, choisi + "/MES.SCS", choisi, disparu + '/', choisi + "/MES.SCS", choisi, dossierCourant}));
    ChoisiraDossiers({choisi}), LitParamètres(Jeu());
    EXPECT_EQ(Dossiers(), QStringList({choisi, choisi + "/KELMOR.SCS", choisi, choisi, choisi + "/KELMOR.SCS", choisi, choisi}));
    Installation(nullptr), ChoisiraDossiers({choisi});
    ASSERT_TRUE(QFile(Réglages().RépertoireApplication = fichierProgramme).open(QIODevice::WriteOnly)); // nothing can be made in a file
    LitParamètres(Jeu());
    EXPECT_EQ(Vues(boîtes), (QList<int>{122, 123})) << "asked in the messages that the first run loaded";
    EXPECT_EQ(Dossiers(),
              QStringList({choisi, choisi + "/KELMOR.SCS", fichierProgramme + '/', choisi, "KELMOR.SCS", fichierProgramme + '/', choisi}));
}

// Before it is read, the copies that an interrupted write left beside it are taken away, and only those. The
// family's list is read before the game's key is made: from a store that can't be written it works from memory.
TEST_F(Paramètres, AStoreThatCantBeCreatedOrReadWholeEndsTheStartInOrderAndIsLeftAsItIs)
{
    Installation();
    for (const char *fin : {".Ab12Cd", ".bak", ".Ab12Cde"})
        ASSERT_TRUE(QFile(fichier + fin).open(QIODevice::WriteOnly));
    const QByteArray gros = ";" + QByteArray(17 << 20, 'x') + "\n" + Contenu(fichier); // the settings behind 17 MiB
    EcritFichierEntier(fichier, gros);
    ASSERT_TRUE(QFile(dossier.filePath("plain")).open(QIODevice::WriteOnly));
    InstalleDossierProgramme(programme);
    ASSERT_TRUE(QFile::copy(DOSSIER_DONNEES "/KELMOR.pts", programme + "/KELMOR.pts"));
    const QString plain = dossier.filePath("plain/registre.ini");
    for (const auto &[magasin, texte] : {std::pair{plain, Message(TMessage::RéglagesNonEnregistrables).arg(plain)},
                                         {fichier, Message(TMessage::RéglagesIllisibles) + fichier}}) {
        InstalleFichierRegistre(magasin), boîtes.journal.clear();
        EXPECT_TRUE(!Main() && !Réglages().ParamètresLus && !FormePrincipale() && QDir::currentPath() == dossierCourant);
        EXPECT_EQ(Famille().JeuxFamille[1].VersionDisponible, LitChamp(ChaîneTable(6001), 2)) << "the family's list works from memory";
        EXPECT_TRUE(boîtes.journal.size() == 1 && boîtes.journal[0].style == StyleCritique && boîtes.journal[0].texte == texte);
    }
    EXPECT_TRUE(Contenu(fichier) == gros);
    EXPECT_EQ(QDir(dossier.path()).entryList({"registre1.ini.*"}), QStringList({"registre1.ini.Ab12Cde", "registre1.ini.bak"}));
}

// The third language entry changes nothing; --langue fr is for one run and leaves the stored language alone.
using ParamètresDuJeu = JeuTest;

TEST_F(ParamètresDuJeu, LanguageAndPlayerAreThereAtTheNextStartAndTheCommandLinesLanguageIsForOneRun)
{
    ChangeLangue(2), ChangeLangue(3);
    Jeu().NomJoueur = "Zoé";
    EnregistreJoueur();
    for (const short demandée : {0, 1}) {
        Jeu().PartieVierge = true, Langues().Langue = 1, Jeu().NomJoueur.clear(), Réglages().LangueDemandée = demandée;
        delete std::exchange(forme, nullptr);
        const bool démarré = Main();
        forme = FormePrincipale(), Réglages().LangueDemandée = 0;
        EXPECT_TRUE(démarré && Langues().Langue == (demandée ? 1 : 2) && Jeu().NomJoueur == "Zoé");
        EXPECT_TRUE(Principal().FichierNouveau->text() == ChaîneTable(demandée ? 1056 : 1306) && Valeur(CléJeu, "langue") == " 2");
    }
}

} // namespace
