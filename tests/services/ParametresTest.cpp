// The settings read at the start: first run, upgrade, ordinary run, the reminder
// every 60 days, the language and the folders.
#include "Fixtures.h"

#include "engine/communs.h"
#include "results/Resultats.h"
#include "screen/EcranPrincipal.h"
#include "services/Langues.h"
#include "services/ParametrageRepertoires.h"
#include "services/Parametres.h"
#include "services/Registre.h"
#include "services/TableChaines.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <deque>
#include <gtest/gtest.h>

namespace {

QDateTime Le(const char *texte) { return QDateTime::fromString(QString::fromLatin1(texte), FormatDate); }

// The stored text, or "<-1>" / "<-2>" when it isn't there.
QString Lit(const QString &nom, const QString &clé = CléJeu)
{
    QString texte;
    const i32 r = LitValeur(clé, nom, texte);
    return r == 0 ? texte : QStringLiteral("<%1>").arg(r);
}

class Paramètres : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dossier.isValid());
        dossierCourant = QDir::currentPath();
        programme = dossier.filePath(QStringLiteral("programme"));
        choisi = dossier.filePath(QStringLiteral("choisi"));
        ASSERT_TRUE(QDir().mkpath(programme));
        ASSERT_TRUE(QDir().mkpath(choisi));
        fichier = dossier.filePath(QStringLiteral("registre.ini"));
        InstalleFichierRegistre(fichier);
        InstalleBoîtes(&boîtes);
        InstalleMaintenant([this] { return maintenant; });
        InstalleChoixDossier([this] {
            ++choix;
            if (dossiersChoisis.empty())
                return QString();
            const QString d = dossiersChoisis.front();
            dossiersChoisis.pop_front();
            return d;
        });
        RépertoireApplication = programme;
        RépertoireSauvegarde.clear();
        RépertoireInfo.clear();
        FichierLancement.clear();
        NomJoueur.clear();
        Langue = 1;
    }
    void TearDown() override
    {
        QDir::setCurrent(dossierCourant);
        InstalleChoixDossier(nullptr);
        InstalleMaintenant(nullptr);
        InstalleBoîtes(nullptr);
        InstalleFichierRegistre(QString());
        Langue = 1;
        ChargeChaînes();
    }

    static void Pose(const QString &nom, const QString &texte, const QString &clé = CléJeu)
    {
        ASSERT_EQ(CréeClé(clé), 0);
        ASSERT_EQ(EcritValeur(clé, nom, texte), 0);
    }
    // What an earlier run of this version, with a folder of the player's own, left.
    void InstallationExistante(const QString &version, const char *date)
    {
        if (date)
            Pose(QStringLiteral("date"), QString::fromLatin1(date), CléFamille);
        Pose(QStringLiteral("version"), version);
        Pose(QStringLiteral("joueur"), QStringLiteral("Zoé"));
        Pose(QStringLiteral("langue"), QStringLiteral("1"));
        Pose(QStringLiteral("répertoire"), choisi + QLatin1Char('/'));
        Pose(QStringLiteral("fichier de lancement"), choisi + QStringLiteral("/MES.SCS"));
        Pose(QStringLiteral("répertoire information"), choisi);
    }
    // Each case of a loop starts from a store of its own.
    void NouveauMagasin() { InstalleFichierRegistre(dossier.filePath(QStringLiteral("registre%1.ini").arg(++magasins))); }
    QByteArray Contenu() const
    {
        QFile f(fichier);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    int Rappels() const
    {
        int n = 0;
        for (const auto &b : boîtes.journal)
            if (b.texte == Messages[123] && b.titre == Messages[124] && b.style == StyleInformation)
                ++n;
        return n;
    }
    bool DossierDemandé() const
    {
        return !boîtes.journal.empty() && boîtes.journal.front().texte == Messages[122] &&
               boîtes.journal.front().titre == Messages[118] && boîtes.journal.front().style == StyleInformation;
    }
    static QString Courant() { return QDir::currentPath(); }

    QTemporaryDir dossier;
    QString dossierCourant, programme, choisi, fichier;
    BoîtesScriptées boîtes;
    QDateTime maintenant = Le("2024-05-10 14:30:00");
    std::deque<QString> dossiersChoisis;
    int choix = 0;
    int magasins = 0;
};

TEST_F(Paramètres, AFirstRunWritesTheDefaultsAndRemindsOnce)
{
    LitParamètres();
    EXPECT_TRUE(ParamètresLus);
    EXPECT_EQ(VersionJeu, "Version 6.07 du 30/07/2008");
    EXPECT_EQ(Lit(QStringLiteral("date"), CléFamille), "2024-05-10 14:30:00");
    EXPECT_EQ(Lit(QStringLiteral("version")), VersionJeu);
    EXPECT_EQ(Lit(QStringLiteral("joueur")), "");
    EXPECT_EQ(Lit(QStringLiteral("langue")), "1");
    EXPECT_EQ(Lit(QStringLiteral("répertoire")), programme + "/");
    EXPECT_EQ(Lit(QStringLiteral("fichier de lancement")), programme + "/KELMOR.SCS");
    EXPECT_EQ(Lit(QStringLiteral("répertoire information")), programme + "/");
    // The bare name in memory, found in the current folder.
    EXPECT_EQ(FichierLancement, "KELMOR.SCS");
    EXPECT_EQ(RépertoireSauvegarde, programme + "/");
    EXPECT_EQ(RépertoireInfo, programme + "/");
    EXPECT_EQ(Courant(), programme);
    EXPECT_EQ(Langue, 1);
    EXPECT_EQ(Messages[110], "Les cantons kelmors ");
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(Rappels(), 1);
    EXPECT_FALSE(QFile::exists(programme + "/~zut.tmp"));

    // The next start, the same day: an ordinary run that writes nothing.
    const QByteArray avant = Contenu();
    boîtes.journal.clear();
    maintenant = maintenant.addSecs(3600);
    LitParamètres();
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(Contenu(), avant);
    EXPECT_EQ(FichierLancement, programme + "/KELMOR.SCS");
}

TEST_F(Paramètres, AKeyWithoutVersionOrAnEmptyOneIsAFirstRunToo)
{
    for (const bool versionVide : {false, true}) {
        SCOPED_TRACE(versionVide ? "empty version" : "no version");
        NouveauMagasin();
        Pose(QStringLiteral("joueur"), QStringLiteral("Zoé"));
        Pose(QStringLiteral("langue"), QStringLiteral(" 2"));
        if (versionVide)
            Pose(QStringLiteral("version"), QString());
        boîtes.journal.clear();
        LitParamètres();
        EXPECT_TRUE(ParamètresLus);
        EXPECT_EQ(Lit(QStringLiteral("version")), VersionJeu);
        EXPECT_EQ(Lit(QStringLiteral("joueur")), "");
        EXPECT_EQ(Lit(QStringLiteral("langue")), "1");
        EXPECT_EQ(Langue, 1);
        EXPECT_EQ(Rappels(), 1);
    }
}

TEST_F(Paramètres, AnUpgradeResetsTheFoldersAndKeepsPlayerAndLanguage)
{
    // A blank version is there and differs; so does a later one.
    for (const char *ancienne : {" ", "Version 6.06 du 01/02/2008", "Version 7.00 du 01/01/2030"}) {
        SCOPED_TRACE(ancienne);
        NouveauMagasin();
        InstallationExistante(QString::fromLatin1(ancienne), "2024-05-01 08:00:00");
        Pose(QStringLiteral("langue"), QStringLiteral(" 2"));
        boîtes.journal.clear();
        QDir::setCurrent(dossierCourant);
        LitParamètres();
        EXPECT_EQ(Rappels(), 0) << "no reminder on an upgrade";
        EXPECT_TRUE(boîtes.journal.empty());
        EXPECT_EQ(Lit(QStringLiteral("date"), CléFamille), "2024-05-10 14:30:00");
        EXPECT_EQ(Lit(QStringLiteral("version")), VersionJeu);
        EXPECT_EQ(Lit(QStringLiteral("répertoire")), programme + "/") << "with its trailing separator";
        EXPECT_EQ(Lit(QStringLiteral("fichier de lancement")), programme + "/KELMOR.SCS");
        EXPECT_EQ(Lit(QStringLiteral("répertoire information")), programme + "/");
        EXPECT_EQ(Lit(QStringLiteral("joueur")), "Zoé");
        EXPECT_EQ(Lit(QStringLiteral("langue")), " 2");
        EXPECT_EQ(NomJoueur, "Zoé");
        EXPECT_EQ(Langue, 2);
        EXPECT_EQ(Messages[0], ChaîneTable(1250)) << "the messages in German";
        EXPECT_EQ(VersionJeu, ChaîneTable(1000)) << "the version always in French";
        EXPECT_EQ(RépertoireSauvegarde, programme + "/");
        EXPECT_EQ(FichierLancement, programme + "/KELMOR.SCS");
        EXPECT_EQ(RépertoireInfo, programme + "/");
        EXPECT_EQ(Courant(), programme);
    }
}

TEST_F(Paramètres, AnOrdinaryRunReadsEverythingAndWritesNothing)
{
    InstallationExistante(ChaîneTable(1000), "2024-04-01 09:00:00");
    const QByteArray avant = Contenu();
    LitParamètres();
    EXPECT_TRUE(ParamètresLus);
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(Contenu(), avant);
    EXPECT_EQ(NomJoueur, "Zoé");
    EXPECT_EQ(Langue, 1);
    EXPECT_EQ(RépertoireSauvegarde, choisi + "/");
    EXPECT_EQ(FichierLancement, choisi + "/MES.SCS");
    EXPECT_EQ(RépertoireInfo, choisi);
    EXPECT_EQ(Courant(), choisi);
    EXPECT_EQ(Messages[0], ChaîneTable(1000));
}

TEST_F(Paramètres, TheReminderComesAfterSixtyCalendarDays)
{
    struct Cas {
        const char *stocké, *maintenant;
        bool rappel;
    };
    // 2024 is a leap year: 1 January to 29 February is 59 days.
    for (const Cas &c : {Cas{"2024-01-01 12:00:00", "2024-02-29 12:00:00", false},
                         Cas{"2024-01-01 12:00:00", "2024-03-01 00:00:01", true},
                         Cas{"2024-01-01 00:00:00", "2024-02-29 23:59:59", false},
                         // 23:59 to 00:01 is a whole day: 60 days by the calendar, 59 by the hours.
                         Cas{"2024-01-01 23:59:00", "2024-03-01 00:01:00", true},
                         Cas{"2023-01-01 08:00:00", "2024-05-10 08:00:00", true},
                         // A stored date ahead of the clock never reminds.
                         Cas{"2030-01-01 08:00:00", "2024-05-10 08:00:00", false}}) {
        SCOPED_TRACE(std::string(c.stocké) + " -> " + c.maintenant);
        NouveauMagasin();
        InstallationExistante(ChaîneTable(1000), c.stocké);
        maintenant = Le(c.maintenant);
        boîtes.journal.clear();
        LitParamètres();
        EXPECT_EQ(Rappels(), c.rappel ? 1 : 0);
        EXPECT_EQ(boîtes.journal.size(), c.rappel ? 1u : 0u);
        EXPECT_EQ(Lit(QStringLiteral("date"), CléFamille), QString::fromLatin1(c.rappel ? c.maintenant : c.stocké))
            << "renewed after a reminder only";
    }
}

TEST_F(Paramètres, ADateThatCantBeReadIsReplacedWithoutAReminder)
{
    for (const char *date : std::initializer_list<const char *>{"10/05/2023", "n'importe quoi", "", "2023-02-30 10:00:00", nullptr}) {
        SCOPED_TRACE(date ? date : "no date");
        NouveauMagasin();
        InstallationExistante(ChaîneTable(1000), date);
        boîtes.journal.clear();
        LitParamètres();
        EXPECT_TRUE(boîtes.journal.empty());
        EXPECT_EQ(Lit(QStringLiteral("date"), CléFamille), "2024-05-10 14:30:00");
    }
}

TEST_F(Paramètres, TheStoredLanguageIsReadAsANumber)
{
    struct Cas {
        const char *stocké;
        int langue;
    };
    for (const Cas &c : {Cas{" 2", 2}, Cas{"2", 2}, Cas{"1", 1}, Cas{"0", 1}, Cas{"de", 1}, Cas{"", 1},
                         Cas{"2x", 2}, Cas{"-2", 1}, Cas{"7", 1}, Cas{"99999999999", 1}}) {
        SCOPED_TRACE(c.stocké);
        NouveauMagasin();
        InstallationExistante(ChaîneTable(1000), "2024-05-01 00:00:00");
        Pose(QStringLiteral("langue"), QString::fromLatin1(c.stocké));
        Langue = 2;
        LitParamètres();
        EXPECT_EQ(Langue, c.langue);
        EXPECT_EQ(Messages[0], ChaîneTable(c.langue == 2 ? 1250 : 1000));
        EXPECT_EQ(Lit(QStringLiteral("langue")), QString::fromLatin1(c.stocké)) << "the stored value stays";
    }
}

TEST_F(Paramètres, ASaveFolderThatCantBeWrittenIsAskedFor)
{
    InstallationExistante(ChaîneTable(1000), "2024-05-01 00:00:00");
    Pose(QStringLiteral("répertoire"), dossier.filePath(QStringLiteral("disparu")));
    // First a file where a folder should be, refused; then a good folder.
    QFile(dossier.filePath(QStringLiteral("un-fichier"))).open(QIODevice::WriteOnly);
    dossiersChoisis = {dossier.filePath(QStringLiteral("un-fichier")), choisi};
    boîtes.journal.clear();
    LitParamètres();
    EXPECT_TRUE(ParamètresLus);
    EXPECT_TRUE(DossierDemandé());
    EXPECT_EQ(ModeRépertoires, 7);
    EXPECT_EQ(choix, 2);
    ASSERT_EQ(boîtes.journal.size(), 2u);
    EXPECT_EQ(boîtes.journal[1].texte, Messages[119]);
    EXPECT_EQ(Lit(QStringLiteral("répertoire")), choisi + "/");
    EXPECT_EQ(Lit(QStringLiteral("fichier de lancement")), choisi + "/KELMOR.SCS");
    EXPECT_EQ(RépertoireSauvegarde, choisi + "/");
    EXPECT_EQ(FichierLancement, choisi + "/KELMOR.SCS");
    EXPECT_EQ(Courant(), choisi);
}

TEST_F(Paramètres, GivingUpTheFolderChoiceLeavesTheStartGoingOn)
{
    InstallationExistante(ChaîneTable(1000), "2024-05-01 00:00:00");
    const QString disparu = dossier.filePath(QStringLiteral("disparu"));
    Pose(QStringLiteral("répertoire"), disparu);
    boîtes.journal.clear();
    LitParamètres();
    EXPECT_TRUE(ParamètresLus);
    EXPECT_TRUE(DossierDemandé());
    EXPECT_EQ(choix, 1);
    EXPECT_EQ(Lit(QStringLiteral("répertoire")), disparu);
    EXPECT_EQ(Courant(), dossierCourant) << "no folder to go to";
    EXPECT_EQ(FichierLancement, choisi + "/MES.SCS");
}

TEST_F(Paramètres, AFirstRunInAProgramFolderThatCantBeWritten)
{
    // The program's folder is a file: nothing can be made in it.
    RépertoireApplication = dossier.filePath(QStringLiteral("programme.bin"));
    QFile(RépertoireApplication).open(QIODevice::WriteOnly);
    dossiersChoisis = {choisi};
    LitParamètres();
    EXPECT_TRUE(ParamètresLus);
    EXPECT_TRUE(DossierDemandé()) << "asked in the messages that the first run loaded";
    EXPECT_EQ(Rappels(), 1);
    EXPECT_EQ(Lit(QStringLiteral("répertoire")), choisi + "/");
    EXPECT_EQ(Lit(QStringLiteral("fichier de lancement")), choisi + "/KELMOR.SCS");
    EXPECT_EQ(Lit(QStringLiteral("répertoire information")), RépertoireApplication);
    EXPECT_TRUE(RépertoireApplication.endsWith("programme.bin/"));
    EXPECT_EQ(FichierLancement, "KELMOR.SCS");
    EXPECT_EQ(Courant(), choisi);
}

TEST_F(Paramètres, InstalledGamesAreTheFamilysOtherKeys)
{
    EXPECT_TRUE(JeuxInstallés().isEmpty()) << "no family key at all";
    Pose(QStringLiteral("version"), QStringLiteral("Version 5.12 du 14/03/2007"),
         CléFamille + QStringLiteral("\\Arvenne"));
    ASSERT_EQ(CréeClé(CléFamille + QStringLiteral("\\Brisolie")), 0);
    Pose(QStringLiteral("Kelmor"), QStringLiteral("6.07"), CléFamille + QStringLiteral("\\Updates"));
    LitParamètres();
    const QMap<QString, QString> jeux = JeuxInstallés();
    EXPECT_EQ(jeux.keys(), QStringList({"Arvenne", "Brisolie", "Kelmor"}));
    EXPECT_EQ(jeux.value("Arvenne"), "Version 5.12 du 14/03/2007");
    EXPECT_EQ(jeux.value("Brisolie"), "");
    EXPECT_EQ(jeux.value("Kelmor"), VersionJeu);
}

TEST_F(Paramètres, AStoreThatCantBeCreatedEndsTheStartInOrder)
{
    QFile(dossier.filePath(QStringLiteral("plain"))).open(QIODevice::WriteOnly);
    InstalleFichierRegistre(dossier.filePath(QStringLiteral("plain/registre.ini")));
    InstalleDossierProgramme(programme);
    ASSERT_TRUE(QFile::copy(QStringLiteral(DOSSIER_DONNEES "/KELMOR.pts"), programme + "/KELMOR.pts"));
    const bool démarré = Main();
    InstalleDossierProgramme(QString());
    EXPECT_FALSE(démarré);
    EXPECT_FALSE(ParamètresLus);
    EXPECT_EQ(FormePrincipale(), nullptr);
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(boîtes.journal[0].style, StyleCritique);
    EXPECT_TRUE(boîtes.journal[0].texte.contains(dossier.filePath(QStringLiteral("plain/registre.ini"))));
    EXPECT_EQ(Courant(), dossierCourant);
}

// Through the game: what the player changes is there at the next start.
using ParamètresDuJeu = JeuTest;

TEST_F(ParamètresDuJeu, LanguageAndPlayerAreThereAtTheNextStart)
{
    ChangeLangue(2);
    EXPECT_EQ(Lit(QStringLiteral("langue")), " 2");
    ChangeLangue(3); // the third entry changes nothing
    EXPECT_EQ(Lit(QStringLiteral("langue")), " 2");
    NouvellePartieAuNiveau(2);
    NomJoueur = QStringLiteral("Zoé");
    EnregistreJoueur();
    EXPECT_EQ(Lit(QStringLiteral("joueur")), "Zoé");

    PartieVierge = True;
    delete forme;
    forme = nullptr;
    Langue = 1;
    NomJoueur.clear();
    ASSERT_TRUE(Main());
    forme = FormePrincipale();
    EXPECT_EQ(Langue, 2);
    EXPECT_EQ(NomJoueur, "Zoé");
    EXPECT_EQ(Principal().FichierNouveau->text(), ChaîneTable(1306));
    ChangeLangue(1);
    EXPECT_EQ(Lit(QStringLiteral("langue")), " 1");
}

} // namespace
