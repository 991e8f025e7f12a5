// The family's games: the list of the string table and of the key Updates, the
// installed games, the reminder, and the list read from the site, served here by a
// small HTTP server on 127.0.0.1.
#include "Fixtures.h"

#include "platform/Ansi.h"
#include "platform/Ecran.h"
#include "screen/EcranPrincipal.h"
#include "services/Langues.h"
#include "services/MisesAJour.h"
#include "services/Parametres.h"
#include "services/Registre.h"
#include "services/TableChaines.h"
#include "results/PartieEnCours.h"

#include <QAction>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocale>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTextEdit>

namespace {

using namespace std::chrono_literals;

QString S(const char *s) { return QString::fromUtf8(s); }
QDate Le(int j, int m, int a) { return QDate(a, m, j); }
const QString Updates = CléFamille + S("\\Updates");

QString Lit(const QString &clé, const QString &nom)
{
    QString texte;
    const i32 r = LitValeur(clé, nom, texte);
    return r == 0 ? texte : QStringLiteral("<%1>").arg(r);
}
// A value under a key, or a game installed on this machine: its key, with a `version` text when given.
void Pose(const QString &clé, const char *nom, const char *texte)
{
    ASSERT_EQ(CréeClé(clé), 0);
    if (texte) {
        ASSERT_EQ(EcritValeur(clé, S(nom), S(texte)), 0);
    }
}
void Installe(const char *jeu, const char *version) { Pose(CléFamille + '\\' + S(jeu), "version", version); }

const TJeu *Jeu(const QString &nom)
{
    const i16 i = IndiceJeu(nom);
    return i ? &Famille().JeuxFamille[i] : nullptr;
}

QByteArray Http(const char *statut, const QByteArray &corps)
{
    return QByteArray("HTTP/1.1 ") + statut + "\r\nContent-Type: text/html\r\nContent-Length: " +
           QByteArray::number(corps.size()) + "\r\nConnection: close\r\n\r\n" + corps;
}

// One answer to every request, or none at all when it is empty. Runs in the test's
// own thread: the fetch's waiting loop serves it.
struct Serveur {
    explicit Serveur(QByteArray r) : réponse(std::move(r))
    {
        EXPECT_TRUE(serveur.listen(QHostAddress::LocalHost, 0));
        QObject::connect(&serveur, &QTcpServer::newConnection, [this] {
            while (QTcpSocket *s = serveur.nextPendingConnection())
                QObject::connect(s, &QTcpSocket::readyRead, s, [this, s] {
                    requête += s->readAll();
                    if (!requête.contains("\r\n\r\n") || std::exchange(répondu, true))
                        return;
                    pointeurPendant = PointeurEcranActuel();
                    if (!réponse.isEmpty()) {
                        s->write(réponse);
                        s->disconnectFromHost();
                    }
                });
        });
    }
    QUrl Site() const { return QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(serveur.serverPort())); }

    QTcpServer serveur;
    QByteArray réponse, requête;
    bool répondu = false;
    int pointeurPendant = -1;
};

class MisesAJour : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dossier.isValid());
        InstalleFichierRegistre(dossier.filePath(QStringLiteral("registre.ini")));
        InstalleBoîtes(&boîtes);
        Réglages().RépertoireApplication = dossier.path(); // a first run keeps its files there
        Langues().Langue = 1;
        ChargeChaînes();
        // Nothing leaves this machine: a port where no server listens, unless a test serves a page.
        InstalleAdressePage(QUrl(QStringLiteral("http://127.0.0.1:1/")));
        // The dates of the reminder in the short form of a French desktop.
        QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    }
    void TearDown() override
    {
        QDir::setCurrent(dossierCourant);
        QLocale::setDefault(QLocale::system());
        InstalleAdressePage(QUrl());
        InstalleDélaiPage(0ms);
        InstalleMaintenant(nullptr);
        InstalleBoîtes(nullptr);
        InstalleFichierRegistre(QString());
    }
    // The text of the one box shown since the last look, which must be the reminder.
    QString RappelVu()
    {
        EXPECT_EQ(boîtes.journal.size(), 1u);
        if (boîtes.journal.size() != 1)
            return QString();
        const auto b = boîtes.journal.back();
        boîtes.journal.clear();
        EXPECT_EQ(b.titre, Message(TMessage::TitrePublicité));
        EXPECT_EQ(b.style, StyleInformation);
        return b.texte;
    }

    QTemporaryDir dossier;
    QString dossierCourant = QDir::currentPath();
    BoîtesScriptées boîtes;
};

TEST_F(MisesAJour, VersionAndDateAreReadFromTheVersionText)
{
    for (const auto &[texte, version] : {std::pair{"Version 6.07 du 30/07/2008", "6.07"}, {"Version 6.07 vom 30.07.2008", "6.07"},
                                         {"Version   v10.2b du", "10.2"}, {"Version .5 x", ".5"}, {"Version", ""},
                                         {"Version ", ""}, {"Version sans numéro", ""}, {"", ""}, {"6.07", ""}})
        EXPECT_EQ(ExtraitVersion(S(texte)), S(version)) << texte;
    for (const auto &[texte, date] : {std::pair{"Version 6.07 du 30/07/2008", Le(30, 7, 2008)},
                                      {"Version 6.07 vom 30.07.2008", Le(30, 7, 2008)}, {"01/02/2003", Le(1, 2, 2003)},
                                      {"du 5/3/07", Le(5, 3, 2007)}, {"du 5/3/45", Le(5, 3, 1945)}, {"le 2024-02-29", Le(29, 2, 2024)},
                                      {"du 29/02/2023", AucuneDate}, {"du 30/07/2008 ", AucuneDate}, {"du 30/07", AucuneDate},
                                      {"du 30/07-2008", AucuneDate}, {"Version 6.07", AucuneDate}, {"", AucuneDate}})
        EXPECT_EQ(ExtraitDate(S(texte)), date) << texte;
}

TEST_F(MisesAJour, TheListComesFromTheTableAndUpdatesKeepsTheHigherVersionBothWays)
{
    ChargeListeJeux();
    ASSERT_EQ(Famille().NombreJeux, 12);
    ASSERT_EQ(Famille().JeuxFamille.size(), 13u);
    for (i16 i = 1; i <= Famille().NombreJeux; ++i)
        EXPECT_EQ(Lit(Updates, Famille().JeuxFamille[i].Nom), Famille().JeuxFamille[i].VersionDisponible) << "written at the first run";

    // Versions compare as text: "10.00" is below "6.07". A name the table doesn't hold stays apart.
    for (const auto &[nom, version] : {std::pair{"Arvenne", "5.20"}, {"Brisolie", "4.10"}, {"Kelmor", "10.00"}, {"Zébrane", "1.00"}})
        Pose(Updates, nom, version);
    ChargeListeJeux();
    EXPECT_EQ(Famille().NombreJeux, 12);
    EXPECT_EQ(QStringList({Jeu("Arvenne")->VersionDisponible, Jeu("Brisolie")->VersionDisponible, Jeu("Kelmor")->VersionDisponible}),
              QStringList({"5.20", "4.30", "6.07"}));
    EXPECT_EQ(Jeu("Arvenne")->DateDisponible, Le(14, 3, 2007)) << "the stored version brings no date";
    EXPECT_EQ(QStringList({Lit(Updates, "Arvenne"), Lit(Updates, "Brisolie"), Lit(Updates, "Kelmor"), Lit(Updates, S("Zébrane"))}),
              QStringList({"5.20", "4.30", "6.07", "1.00"}));
    EXPECT_EQ(Jeu(S("Zébrane")), nullptr);

    // A store that can't be written: the list works from memory.
    ASSERT_TRUE(QFile(dossier.filePath(QStringLiteral("plain"))).open(QIODevice::WriteOnly));
    InstalleFichierRegistre(dossier.filePath(QStringLiteral("plain/registre.ini")));
    ChargeListeJeux();
    EXPECT_EQ(Jeu("Arvenne")->VersionDisponible, "5.12");
}

// The scan of the family's keys and what the reminder makes of it.
TEST_F(MisesAJour, InstalledGamesAreFoundAndOnlyTheOnesBehindAreListed)
{
    ChargeListeJeux();
    Installe("Arvenne", "Version 5.12 du 14/03/2007");     // as published
    Installe("Brisolie", nullptr);                        // no version: behind
    Installe("Corvalie", "Version 3.10 du 01/02/2007");   // ahead of the table: becomes the known one
    Installe("Dunmark", "Version 2.41 du 01/01/2004");    // same version, older copy
    Installe("Estrava", "Version 3.99 du 01/01/2010");     // older version, later date
    Installe("Kelmor", "Version 6.07 du 30/07/2008");     // this game, dated later than its row
    Installe("Zébrane", "Version 1.00 du 05/05/2020");    // a game the table doesn't know
    Installe("Orvelle", nullptr);                         // another, without a version
    ASSERT_EQ(CréeClé(CléFamille + S("\\Faldine\\Extensions")), 0); // one level down only: Faldine is there
    ExploreJeux();

    ASSERT_EQ(Famille().NombreJeux, 14) << "Updates itself is no game";
    EXPECT_EQ(QStringList({Jeu("Arvenne")->VersionInstallée, Jeu("Brisolie")->VersionInstallée,
                           Jeu("Corvalie")->VersionInstallée, Jeu("Corvalie")->VersionDisponible,
                           Jeu("Faldine")->VersionInstallée, Jeu("Gorvane")->VersionInstallée}),
              QStringList({"5.12", "0.00", "3.10", "3.10", "0.00", ""}));
    const TJeu *z = Jeu(S("Zébrane"));
    ASSERT_NE(z, nullptr);
    EXPECT_EQ(QStringList({z->VersionInstallée, z->VersionDisponible, z->Description}), QStringList({"1.00", "1.00", ""}));
    EXPECT_EQ(QList<QDate>({Jeu("Corvalie")->DateDisponible, Jeu("Arvenne")->DateInstallée, z->DateDisponible}),
              QList<QDate>({Le(20, 6, 2005), Le(14, 3, 2007), Le(5, 5, 2020)}))
        << "Corvalie's version is taken, not its date";
    EXPECT_EQ(QStringList({Lit(Updates, "Corvalie"), Lit(Updates, S("Zébrane")), Lit(Updates, "Orvelle")}),
              QStringList({"3.10", "1.00", ""}));

    AfficheRappel();
    QString attendu = Message(TMessage::VisiterLeSite) + "\r\n\r\n" + Message(TMessage::MisesÀJourSuivantes) + "\r\n\r\n";
    for (const char *l : {"Les régions brisoliennes : version 4.30 du 02/11/2006", "Les états dunmarkois : version 2.41 du 09/09/2004",
                          "Les provinces estravaises : version 4.02 du 17/05/2006", "Les comtés faldins : version 1.90 du 28/02/2003",
                          "Les districts gorvanais : version 3.60 du 11/12/2005", "Les pays d'Afrique : version 2.15 du 05/04/2004",
                          "Les préfectures ilmariennes : version 5.01 du 23/08/2007", "Les îles lunessiennes : version 1.20 du 30/10/2002",
                          "Les pays d'Amérique : version 3.33 du 15/01/2006"})
        attendu += S(l) + "\r\n";
    EXPECT_EQ(RappelVu(), attendu);
    EXPECT_EQ(Jeu("Orvelle")->VersionDisponible, "") << "nothing known of it, nothing to tell";

    // Everything there as published: the site's message alone.
    for (i16 i = 1; i <= Famille().NombreJeux; ++i) {
        const TJeu &j = Famille().JeuxFamille[i];
        if (!j.VersionDisponible.isEmpty())
            Installe(j.Nom.toUtf8().constData(),
                 ("Version " + j.VersionDisponible + " du " + j.DateDisponible.toString("dd/MM/yyyy")).toUtf8().constData());
    }
    ExploreJeux();
    AfficheRappel();
    EXPECT_EQ(RappelVu(), Message(TMessage::VisiterLeSite));
}

TEST_F(MisesAJour, TheReminderAtAFirstRunAndAfterSixtyDaysTellsWhatIsKnown)
{
    QDateTime maintenant = QDateTime::fromString(QStringLiteral("2024-05-10 14:30:00"), FormatDate);
    InstalleMaintenant([&] { return maintenant; });
    Installe("Arvenne", "Version 5.12 du 14/03/2007");
    LitParamètres(::Jeu());
    const QString premier = RappelVu();
    EXPECT_EQ(premier.count(S(" : version ")), 10) << "all but this game and the one installed";
    EXPECT_FALSE(premier.contains(S("kelmors"))) << "the copy that runs is up to date";
    EXPECT_TRUE(premier.contains(S("\r\nLes états dunmarkois : version 2.41 du 09/09/2004\r\n")));

    // Meanwhile another game of the family let it be known that this one has a new version.
    Pose(Updates, "Kelmor", "6.10");
    maintenant = maintenant.addDays(59);
    LitParamètres(::Jeu());
    EXPECT_EQ(Jeu("Kelmor")->VersionDisponible, "6.10") << "read at every start, before the reminder is due";
    maintenant = maintenant.addDays(1);
    LitParamètres(::Jeu());
    const QString rappel = RappelVu();
    EXPECT_TRUE(rappel.contains(S("\r\nLes cantons kelmors : version 6.10 du 01/01/2008\r\n"))) << "old date, newer version";
    EXPECT_EQ(rappel.count(S(" : version ")), 11);
}

TEST_F(MisesAJour, TheSitesCommentsBringNewVersionsDatesAndGames)
{
    ChargeListeJeux();
    Installe("Kelmor", "Version 6.07 du 30/07/2008");
    Installe("Corvalie", "Version 3.05 du 20/06/2005");
    Serveur serveur(Http("200 OK", S("<html><head><!-- le menu du site --><title>Jeux</title></head><body>\n"
                                     "<!--Arvenne#5.20#01/09/2008#Les départements arvennais, 2e édition-->\n"
                                     "<p>texte</p><!--Brisolie#4.30#02/11/2006#Les régions brisoliennes-->"
                                     "<!--Corvalie#3.01#01/01/2009#Les pays d'Europe-->\n"
                                     "<!--Dunmark#2.50#01/01/2009-->"
                                     "<!--Estrava#4.10#31/02/2009#Les provinces estravaises-->"
                                     "<!--#1.00#01/01/2009#Sans nom--><!--Gorvane# #01/01/2009#Sans version-->"
                                     "<!--Hestral#2.20#01/01/2009#  -->"
                                     "<!--Nordhal#1.00#15/06/2009#Les fjords nordhaliens-->"
                                     "<!-- Faldine#1.50#01/01/2009#Avec un blanc-->"
                                     "<!--Ilmarie#9.00#01/01/2010#Jamais fermé</body></html>")
                                       .toUtf8()));
    InstalleAdressePage(serveur.Site());
    ChercheVersions();

    EXPECT_TRUE(serveur.requête.startsWith("GET /jeux/listejeux.htm HTTP/1.1\r\n")) << serveur.requête.constData();
    EXPECT_EQ(serveur.pointeurPendant, PointeurSablier);
    EXPECT_EQ(PointeurEcranActuel(), PointeurNormal);
    // Corvalie, an older version with a later date: the date is taken and the version kept.
    EXPECT_EQ(QStringList({Jeu("Arvenne")->VersionDisponible, Jeu("Arvenne")->Description, Jeu("Corvalie")->VersionDisponible}),
              QStringList({"5.20", S("Les départements arvennais, 2e édition"), "3.05"}));
    EXPECT_EQ(QList<QDate>({Jeu("Arvenne")->DateDisponible, Jeu("Corvalie")->DateDisponible}), QList<QDate>({Le(1, 9, 2008), Le(1, 1, 2009)}));
    // Three fields, a date that isn't one, a blank name, version or description: passed over.
    EXPECT_EQ(QStringList({Jeu("Dunmark")->VersionDisponible, Jeu("Estrava")->VersionDisponible, Jeu("Gorvane")->VersionDisponible,
                           Jeu("Hestral")->VersionDisponible, Jeu("Ilmarie")->VersionDisponible}),
              QStringList({"2.41", "4.02", "3.60", "2.15", "5.01"}));
    ASSERT_EQ(Famille().NombreJeux, 14);
    // The blank belongs to the name: " Faldine" is another game than Faldine.
    EXPECT_EQ(QStringList({Famille().JeuxFamille[13].Nom, Famille().JeuxFamille[14].Nom, Famille().JeuxFamille[14].VersionDisponible, Jeu("Faldine")->VersionDisponible}),
              QStringList({"Nordhal", S(" Faldine"), "1.50", "1.90"}));
    EXPECT_EQ(QStringList({Lit(Updates, "Arvenne"), Lit(Updates, "Nordhal"), Lit(Updates, "Corvalie"), Lit(Updates, "Faldine")}),
              QStringList({"5.20", "1.00", "3.05", "1.90"}));

    const QString rappel = RappelVu();
    for (const char *ligne : {"Les départements arvennais, 2e édition : version 5.20 du 01/09/2008",
                              "Les pays d'Europe : version 3.05 du 01/01/2009", "Les fjords nordhaliens : version 1.00 du 15/06/2009",
                              "Avec un blanc : version 1.50 du 01/01/2009"})
        EXPECT_TRUE(rappel.contains("\r\n" + S(ligne) + "\r\n")) << ligne;
    EXPECT_FALSE(rappel.contains(S("kelmors")));
    EXPECT_EQ(rappel.count(S(" : version ")), 13);
}

// A page that can't be had is a page without games: the reminder of what is known.
TEST_F(MisesAJour, APageThatCantBeHadEndsInTheReminderOfWhatIsKnown)
{
    ChargeListeJeux();
    AfficheRappel();
    const QString connu = RappelVu();
    EXPECT_EQ(connu.count(S(" : version ")), 12) << "nothing installed: every game is listed";
    EXPECT_TRUE(connu.contains(S("\r\nLes cantons kelmors : version 6.07 du 01/01/2008\r\n")));
    const QByteArray jeu = "<!--Nordhal#1.00#15/06/2009#Les fjords nordhaliens-->";

    Serveur absent(QByteArray("-"));
    const QUrl refusé = absent.Site();
    absent.serveur.close();
    Serveur introuvable(Http("404 Not Found", jeu));
    Serveur muet{QByteArray()};
    Serveur long_(Http("200 OK", jeu + QByteArray(LongueurMaxPage + 1 - jeu.size(), ' ')));
    Serveur énorme(Http("200 OK", jeu + QByteArray(4 * LongueurMaxPage, 'x')));
    InstalleDélaiPage(1s);
    // The silent server holds the fetch for the whole time-out, and no longer.
    for (const auto &[quoi, site, auMoins, auPlus] :
         {std::tuple{"refused", refusé, 0, 1000}, {"404", introuvable.Site(), 0, 1000}, {"never answers", muet.Site(), 900, 3000},
          {"one character too long", long_.Site(), 0, 1000}, {"far too long", énorme.Site(), 0, 1000}}) {
        SCOPED_TRACE(quoi);
        InstalleAdressePage(site);
        QElapsedTimer chrono;
        chrono.start();
        ChercheVersions();
        EXPECT_GE(chrono.elapsed(), auMoins);
        EXPECT_LT(chrono.elapsed(), auPlus);
        EXPECT_EQ(RappelVu(), connu);
        EXPECT_EQ(Jeu("Nordhal"), nullptr);
        EXPECT_EQ(PointeurEcranActuel(), PointeurNormal);
    }
    EXPECT_TRUE(muet.répondu) << "the silent server did get the request";

    // A page of the longest length is read, in Windows-1252 as well as in UTF-8.
    const QByteArray ansi = VersAnsi(S("<!--Nordhal#1.00#15/06/2009#Les fjords de l'été-->"));
    Serveur juste(Http("200 OK", ansi + QByteArray(LongueurMaxPage - ansi.size(), ' ')));
    InstalleAdressePage(juste.Site());
    ChercheVersions();
    ASSERT_NE(Jeu("Nordhal"), nullptr);
    EXPECT_EQ(Jeu("Nordhal")->Description, S("Les fjords de l'été"));
    EXPECT_TRUE(RappelVu().contains(S("Les fjords de l'été : version 1.00 du 15/06/2009")));
    // Windows-1252 to the last byte, though all before it could be UTF-8.
    EXPECT_EQ(DécodePage("<p>Les jeux du caf\xE9"), S("<p>Les jeux du café"));
}

TEST_F(MisesAJour, TheListsAddressIsOnTheSiteUnlessAnotherRootIsGiven)
{
    InstalleAdressePage(QUrl());
    EXPECT_EQ(AdressePage(), QUrl(S("https://kelmor.example.org/jeux/listejeux.htm")));
    InstalleAdressePage(QUrl(S("http://127.0.0.1:9/essai")));
    EXPECT_EQ(AdressePage(), QUrl(S("http://127.0.0.1:9/essai/jeux/listejeux.htm")));
}

// From the menu of the running game, through the main form's own transfer control.
using MisesAJourDuJeu = JeuTest;

TEST_F(MisesAJourDuJeu, TheMenuEntryReadsTheSitesList)
{
    const QByteArray page = "<html><!--Nordhal#1.00#15/06/2009#Les fjords nordhaliens--></html>";
    Serveur serveur(Http("200 OK", page));
    InstalleAdressePage(serveur.Site());
    Principal().FichierVersion->trigger();
    InstalleAdressePage(QUrl());
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_TRUE(boîtes.journal[0].texte.contains(S("Les fjords nordhaliens : version 1.00")));
    EXPECT_FALSE(boîtes.journal[0].texte.contains(S("kelmors"))) << "the running copy counts as installed";
}

} // namespace
