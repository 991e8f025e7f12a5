// The settings read at the start: first run, upgrade, ordinary run, the reminder
// every 60 days, the language and the folders.
#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Formes.h"
#include "results/Resultats.h"
#include "screen/EcranPrincipal.h"
#include "services/Langues.h"
#include "services/MisesAJour.h"
#include "screen/ParametrageRepertoires.h"
#include "services/Parametres.h"
#include "services/Registre.h"
#include "services/TableChaines.h"
#include "results/PartieEnCours.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <optional>

namespace {

QString S(const char *s) { return QString::fromUtf8(s); }
using Boîtes = std::vector<int>;

// The stored text, or "<-1>" / "<-2>" when it isn't there.
QString Lit(const char *nom, const QString &clé = CléJeu)
{
    QString texte;
    const i32 r = LitValeur(clé, S(nom), texte);
    return r == 0 ? texte : QStringLiteral("<%1>").arg(r);
}

void Pose(const char *nom, const QString &texte, const QString &clé = CléJeu)
{
    ASSERT_EQ(CréeClé(clé), 0);
    ASSERT_EQ(EcritValeur(clé, S(nom), texte), 0);
}

class Paramètres : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dossier.isValid());
        ASSERT_TRUE(QDir().mkpath(programme) && QDir().mkpath(choisi));
        NouveauMagasin();
        InstalleBoîtes(&boîtes);
        InstalleMaintenant([this] { return maintenant; });
        // In the folder form the player goes to each folder in turn and presses OK; past them, the close box.
        InstalleFormesModales([this](QDialog &forme) {
            auto *f = dynamic_cast<ParamétrageRépertoires *>(&forme);
            while (f && f->result() != QDialog::Accepted && choix < dossiersChoisis.size()) {
                f->ChangeRépertoire(dossiersChoisis[choix++]);
                f->BoutonOK->click();
            }
            return forme.result();
        });
        Réglages().RépertoireApplication = programme;
    }
    void TearDown() override
    {
        QDir::setCurrent(dossierCourant);
        InstalleFormesModales(nullptr);
        InstalleMaintenant(nullptr);
        InstalleBoîtes(nullptr);
        InstalleFichierRegistre(QString());
        InstalleDossierProgramme(QString());
        Langues().Langue = 1;
        ChargeChaînes();
    }

    // Each case of a loop starts from a store of its own, in French, with nothing read yet.
    void NouveauMagasin()
    {
        for (QString *g : {&Réglages().RépertoireSauvegarde, &Réglages().RépertoireInfo, &Réglages().FichierLancement, &Jeu().NomJoueur})
            g->clear();
        fichier = dossier.filePath(QStringLiteral("registre%1.ini").arg(++magasins));
        InstalleFichierRegistre(fichier);
        boîtes.journal.clear();
        QDir::setCurrent(dossierCourant);
        Langues().Langue = 1;
    }
    // What an earlier run, with a folder of the player's own, left.
    void InstallationExistante(std::optional<QString> version = ChaîneTable(1000), const char *date = "2024-05-01 08:00:00",
                               const char *langue = "1")
    {
        if (date)
            Pose("date", S(date), CléFamille);
        if (version)
            Pose("version", *version);
        for (const auto &[nom, texte] : {std::pair{"joueur", S("Zoé")}, {"langue", S(langue)}, {"répertoire", choisi + '/'},
                                         {"fichier de lancement", choisi + "/MES.SCS"}, {"répertoire information", choisi}})
            Pose(nom, texte);
        ChargeListeJeux(); // the family's versions known, under Updates
    }
    QByteArray Contenu() const
    {
        QFile f(fichier);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    // The boxes shown, by message: 123 the reminder (followed by the games to fetch) and
    // 122 the folder asked for, each with its own title and the information style; −1 for anything else.
    Boîtes Vues() const
    {
        Boîtes vues;
        for (const auto &b : boîtes.journal) {
            vues.push_back(-1);
            for (const auto &[texte, titre] : {std::pair{123, 124}, {122, 118}})
                if ((texte == 123 ? b.texte.startsWith(Langues().Messages[texte]) : b.texte == Langues().Messages[texte]) &&
                    b.titre == Langues().Messages[titre] && b.style == StyleInformation)
                    vues.back() = texte;
        }
        return vues;
    }

    QTemporaryDir dossier;
    QString dossierCourant = QDir::currentPath(), fichier;
    QString programme = dossier.filePath(QStringLiteral("programme")), choisi = dossier.filePath(QStringLiteral("choisi"));
    BoîtesScriptées boîtes;
    QDateTime maintenant = QDateTime::fromString(QStringLiteral("2024-05-10 14:30:00"), FormatDate);
    QStringList dossiersChoisis;
    qsizetype choix = 0;
    int magasins = 0;
};

// A first run when `version` is missing or empty, an upgrade when it differs in any way.
TEST_F(Paramètres, FirstRunAndUpgradeWriteTheDefaultsAndOnlyAFirstRunForgetsPlayerAndLanguage)
{
    struct Cas {
        bool clé;
        const char *version;
        bool premier;
    };
    for (const Cas &c : {Cas{false, nullptr, true}, {true, nullptr, true}, {true, "", true}, {true, " ", false},
                         {true, "Version 6.06 du 01/02/2008", false}, {true, "Version 7.00 du 01/01/2030", false}}) {
        SCOPED_TRACE(c.clé ? c.version ? c.version : "no version" : "no key");
        NouveauMagasin();
        if (c.clé)
            InstallationExistante(c.version ? std::optional(S(c.version)) : std::nullopt, "2024-05-01 08:00:00", " 2");
        Langues().Langue = 2;
        LitParamètres(Jeu());
        EXPECT_TRUE(Réglages().ParamètresLus);
        EXPECT_EQ(Vues(), c.premier ? Boîtes{123} : Boîtes{}) << "the very first run reminds, an upgrade doesn't";
        for (const auto &[nom, texte] : {std::pair{"version", ChaîneTable(1000)}, {"joueur", S(c.premier ? "" : "Zoé")},
                                         {"langue", S(c.premier ? "1" : " 2")}, {"répertoire", programme + '/'},
                                         {"fichier de lancement", programme + "/KELMOR.SCS"}, {"répertoire information", programme + '/'}})
            EXPECT_EQ(Lit(nom), texte) << nom;
        EXPECT_EQ(Lit("date", CléFamille), "2024-05-10 14:30:00");
        EXPECT_EQ(Langues().Langue, c.premier ? 1 : 2);
        EXPECT_EQ(Message(TMessage::VersionDuJeu), ChaîneTable(c.premier ? 1000 : 1250));
        EXPECT_EQ(Réglages().VersionJeu, ChaîneTable(1000)) << "the version always in French";
        // A first run leaves the bare name of the score file, found in the current folder.
        EXPECT_EQ(QStringList({Jeu().NomJoueur, Réglages().RépertoireSauvegarde, Réglages().RépertoireInfo, Réglages().FichierLancement, QDir::currentPath()}),
                  QStringList({S(c.premier ? "" : "Zoé"), programme + '/', programme + '/',
                               c.premier ? S("KELMOR.SCS") : programme + "/KELMOR.SCS", programme}));

        const QByteArray avant = Contenu();
        LitParamètres(Jeu());
        EXPECT_EQ(Contenu(), avant) << "the next start is an ordinary run that writes nothing";
    }
}

// An ordinary run reads everything, the language as a number; it writes `date` only, after a reminder or
// over a date it can't read.
TEST_F(Paramètres, TheReminderComesAfterSixtyCalendarDaysAndAnOrdinaryRunWritesNothingElse)
{
    struct Cas {
        const char *stocké, *maintenant;
        bool rappel, renouvelée;
        const char *langue;
        short lue;
    };
    // 2024 is a leap year: 1 January to 29 February is 59 days; 23:59 to 00:01 is a whole day.
    // A date ahead of the clock never reminds; one that can't be read is renewed without a reminder.
    const Cas cas[] = {{"2024-01-01 12:00:00", "2024-02-29 12:00:00", false, false, " 2", 2},
                       {"2024-01-01 12:00:00", "2024-03-01 00:00:01", true, true, "2x", 2},
                       {"2024-01-01 00:00:00", "2024-02-29 23:59:59", false, false, "0", 1},
                       {"2024-01-01 23:59:00", "2024-03-01 00:01:00", true, true, "de", 1},
                       {"2023-01-01 08:00:00", "2024-05-10 08:00:00", true, true, "", 1},
                       {"2030-01-01 08:00:00", "2024-05-10 08:00:00", false, false, "-2", 1},
                       {"10/05/2023", "2024-05-10 08:00:00", false, true, "7", 1},
                       {"2023-02-30 10:00:00", "2024-05-10 08:00:00", false, true, "99999999999", 1},
                       {"", "2024-05-10 08:00:00", false, true, "1", 1},
                       {nullptr, "2024-05-10 08:00:00", false, true, "2", 2}};
    for (const Cas &c : cas) {
        SCOPED_TRACE(std::string(c.stocké ? c.stocké : "no date") + " -> " + c.maintenant + ", language " + c.langue);
        NouveauMagasin();
        InstallationExistante(ChaîneTable(1000), c.stocké, c.langue);
        maintenant = QDateTime::fromString(S(c.maintenant), FormatDate);
        const QByteArray avant = Contenu();
        Langues().Langue = 2;
        LitParamètres(Jeu());
        EXPECT_EQ(Vues(), c.rappel ? Boîtes{123} : Boîtes{});
        EXPECT_EQ(Lit("date", CléFamille), S(c.renouvelée ? c.maintenant : c.stocké));
        if (!c.renouvelée) {
            EXPECT_EQ(Contenu(), avant);
        }
        EXPECT_EQ(Langues().Langue, c.lue);
        EXPECT_EQ(Message(TMessage::VersionDuJeu), ChaîneTable(c.lue == 2 ? 1250 : 1000));
        EXPECT_EQ(QStringList({Lit("langue"), Jeu().NomJoueur, Réglages().RépertoireSauvegarde, Réglages().FichierLancement, Réglages().RépertoireInfo, QDir::currentPath()}),
                  QStringList({S(c.langue), "Zoé", choisi + '/', choisi + "/MES.SCS", choisi, choisi}));
    }
}

TEST_F(Paramètres, ASaveFolderThatCantBeWrittenIsAskedForAtEachStartUntilOneIsGiven)
{
    InstallationExistante();
    const QString disparu = dossier.filePath(QStringLiteral("disparu"));
    Pose("répertoire", disparu);
    DemandeDossier().ModeRépertoires = TModeRépertoires::Aucun;
    LitParamètres(Jeu()); // given up: the start goes on with what it had
    EXPECT_EQ(Vues(), Boîtes{122});
    EXPECT_EQ(DemandeDossier().ModeRépertoires, TModeRépertoires::DossierJeu);
    EXPECT_EQ(Lit("répertoire"), disparu);
    EXPECT_EQ(QDir::currentPath(), dossierCourant) << "no folder to go to";
    EXPECT_EQ(Réglages().FichierLancement, choisi + "/MES.SCS");

    // The form's refusal of a folder that can't be written is the folder form's own test.
    boîtes.journal.clear();
    dossiersChoisis = {choisi};
    LitParamètres(Jeu());
    EXPECT_EQ(Vues(), Boîtes{122});
    EXPECT_EQ(QStringList({Lit("répertoire"), Lit("fichier de lancement"), Réglages().RépertoireSauvegarde, Réglages().FichierLancement, QDir::currentPath()}),
              QStringList({choisi, choisi + "/KELMOR.SCS", choisi, choisi + "/KELMOR.SCS", choisi}));
}

TEST_F(Paramètres, AFirstRunInAProgramFolderThatCantBeWrittenAsksBeforeTheReminder)
{
    Réglages().RépertoireApplication = dossier.filePath(QStringLiteral("programme.bin")); // a file: nothing can be made in it
    ASSERT_TRUE(QFile(Réglages().RépertoireApplication).open(QIODevice::WriteOnly));
    dossiersChoisis = {choisi};
    LitParamètres(Jeu());
    EXPECT_EQ(Vues(), (Boîtes{122, 123})) << "asked in the messages that the first run loaded";
    EXPECT_EQ(QStringList({Lit("répertoire"), Lit("fichier de lancement"), Lit("répertoire information"), Réglages().FichierLancement,
                           QDir::currentPath()}),
              QStringList({choisi, choisi + "/KELMOR.SCS", dossier.filePath(QStringLiteral("programme.bin/")),
                           "KELMOR.SCS", choisi}));
}

TEST_F(Paramètres, AStoreThatCantBeCreatedOrReadWholeEndsTheStartInOrderAndIsLeftAsItIs)
{
    InstallationExistante();
    const QByteArray gros = ";" + QByteArray(17 << 20, 'x') + "\n" + Contenu(); // the settings behind 17 MiB
    {
        QFile f(fichier);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(gros);
    }
    ASSERT_TRUE(QFile(dossier.filePath(QStringLiteral("plain"))).open(QIODevice::WriteOnly));
    InstalleDossierProgramme(programme);
    ASSERT_TRUE(QFile::copy(QStringLiteral(DOSSIER_DONNEES "/KELMOR.pts"), programme + "/KELMOR.pts"));
    for (const auto &[magasin, message] : {std::pair{dossier.filePath(QStringLiteral("plain/registre.ini")),
                                                     S("Les paramètres du jeu ne peuvent pas")},
                                           {fichier, ChaîneTable(1000 + int(TMessage::RéglagesIllisibles))}}) {
        InstalleFichierRegistre(magasin);
        boîtes.journal.clear();
        EXPECT_FALSE(Main());
        EXPECT_FALSE(Réglages().ParamètresLus);
        EXPECT_EQ(FormePrincipale(), nullptr);
        ASSERT_EQ(boîtes.journal.size(), 1u);
        EXPECT_EQ(boîtes.journal[0].style, StyleCritique);
        EXPECT_TRUE(boîtes.journal[0].texte.startsWith(message) && boîtes.journal[0].texte.contains(magasin));
        EXPECT_EQ(QDir::currentPath(), dossierCourant);
    }
    EXPECT_TRUE(Contenu() == gros);
}

TEST_F(Paramètres, CopiesLeftByAnInterruptedWriteAreTakenAwayAtTheStart)
{
    for (const char *fin : {".Ab12Cd", ".bak", ".Ab12Cde"})
        ASSERT_TRUE(QFile(fichier + fin).open(QIODevice::WriteOnly));
    LitParamètres(Jeu());
    const QString nom = QFileInfo(fichier).fileName();
    EXPECT_EQ(QDir(dossier.path()).entryList({nom + ".*"}), QStringList({nom + ".Ab12Cde", nom + ".bak"}));
}

// Through the game: what the player changes is there at the next start.
using ParamètresDuJeu = JeuTest;

TEST_F(ParamètresDuJeu, LanguageAndPlayerAreThereAtTheNextStart)
{
    ChangeLangue(2);
    ChangeLangue(3); // the third entry changes nothing
    EXPECT_EQ(Lit("langue"), " 2");
    Jeu().NomJoueur = QStringLiteral("Zoé");
    EnregistreJoueur();

    Jeu().PartieVierge = true;
    delete forme;
    forme = nullptr;
    Langues().Langue = 1;
    Jeu().NomJoueur.clear();
    ASSERT_TRUE(Main());
    forme = FormePrincipale();
    EXPECT_EQ(Langues().Langue, 2);
    EXPECT_EQ(Jeu().NomJoueur, "Zoé");
    EXPECT_EQ(Principal().FichierNouveau->text(), ChaîneTable(1306));
}

} // namespace
