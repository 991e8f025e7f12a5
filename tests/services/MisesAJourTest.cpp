// The family's games: the list of the string table and of the key Updates, the installed games, the
// reminder, and the list read from the site, served here by a small HTTP server on 127.0.0.1.
#include "Services.h"

#include <QElapsedTimer>
#include <QLocale>
#include <QTcpServer>
#include <QTcpSocket>

namespace {

using namespace std::chrono_literals;
QDate Le(int j, int m, int a) { return QDate(a, m, j); }
const QString Updates = CléFamille + "\\Updates";
const TJeu &Jeu(const QString &nom) { return Famille().JeuxFamille[IndiceJeu(nom)]; }

// A game installed here: its key, with a `version` text when given.
void Installe(const QString &jeu, const char *version = nullptr)
{
    ASSERT_TRUE(CréeClé(CléFamille + '\\' + jeu) == 0 && (!version || EcritValeur(CléFamille + '\\' + jeu, "version", version) == 0));
}
// Per game, its value under Updates, or a version the list holds ("-" for a game it doesn't hold).
QStringList Versions(const QStringList &noms, QString TJeu::*version = nullptr)
{
    QStringList l;
    for (const QString &nom : noms)
        l << (!version ? Valeur(Updates, nom) : IndiceJeu(nom) ? Jeu(nom).*version : "-");
    return l;
}

// Answers with that status and page, or never without a status; the fetch's waiting loop serves it.
struct Serveur {
    explicit Serveur(const char *statut, const QByteArray &corps = {})
    {
        if (statut)
            réponse = QByteArray("HTTP/1.1 ") + statut + "\r\nContent-Type: text/html\r\nContent-Length: " +
                      QByteArray::number(corps.size()) + "\r\nConnection: close\r\n\r\n" + corps;
        EXPECT_TRUE(serveur.listen(QHostAddress::LocalHost, 0));
        QObject::connect(&serveur, &QTcpServer::newConnection, [this] {
            QTcpSocket *s = serveur.nextPendingConnection();
            QObject::connect(s, &QTcpSocket::readyRead, s, [this, s] {
                requête += s->readAll();
                if (requête.contains("\r\n\r\n") && !std::exchange(répondu, true) && !réponse.isEmpty())
                    pointeurPendant = PointeurEcranActuel(), s->write(réponse), s->disconnectFromHost();
            });
        });
    }
    QUrl Site() const { return QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(serveur.serverPort())); }
    QTcpServer serveur;
    QByteArray réponse, requête;
    bool répondu = false;
    int pointeurPendant = -1;
};

// The reminder's dates in the short form of a French desktop.
class MisesAJour : public Magasin {
protected:
    void SetUp() override { Magasin::SetUp(), QLocale::setDefault(QLocale(QLocale::French, QLocale::France)); }
    void TearDown() override { QLocale::setDefault(QLocale::system()), Magasin::TearDown(); }
};

// Between the table and Updates the higher version wins both ways, as text ("10.00" is below "6.07"), bringing
// no date; a name the table doesn't hold stays apart. Then the family's keys scanned, and the games behind listed.
TEST_F(MisesAJour, TheListMergesTheTableUpdatesAndTheInstalledGamesAndTheReminderListsTheOnesBehind)
{
    for (const auto &[nom, version] : {std::pair{"Arvenne", "5.20"}, {"Brisolie", "4.10"}, {"Kelmor", "10.00"}, {"Zébrane", "1.00"}})
        Pose(Updates, nom, version);
    ChargeListeJeux();
    const QStringList stockés{"Arvenne", "Brisolie", "Kelmor", "Zébrane", "Gorvane"};
    EXPECT_EQ(Versions(stockés) + Versions(stockés, &TJeu::VersionDisponible),
              QStringList({"5.20", "4.30", "6.07", "1.00", "3.60", "5.20", "4.30", "6.07", "-", "3.60"}));
    EXPECT_TRUE(Famille().NombreJeux == 12 && Jeu("Arvenne").DateDisponible == Le(14, 3, 2007));

    // As known; without a version (behind); ahead of the table (becomes the known one); same version, older copy;
    // older version, later date; this game, later than its row; two the table doesn't know; Faldine by a subkey.
    for (const auto &[jeu, version] : {std::pair<const char *, const char *>{"Arvenne", "Version 5.20 du 14/03/2007"}, {"Brisolie", nullptr},
                                       {"Corvalie", "Version 3.10 du 01/02/2007"}, {"Dunmark", "Version 2.41 du 01/01/2004"},
                                       {"Estrava", "Version 3.99 du 01/01/2010"}, {"Kelmor", "Version 6.07 du 30/07/2008"},
                                       {"Zébrane", "Version 1.00 du 05/05/2020"}, {"Orvelle", nullptr}, {"Faldine\\Extensions", nullptr}})
        Installe(jeu, version);
    ExploreJeux();
    ASSERT_EQ(Famille().NombreJeux, 14) << "Updates itself is no game";
    const QStringList noms{"Arvenne", "Brisolie", "Corvalie", "Faldine", "Gorvane", "Zébrane", "Orvelle"};
    EXPECT_EQ(Versions(noms, &TJeu::VersionInstallée), QStringList({"5.20", "0.00", "3.10", "0.00", "", "1.00", "0.00"}));
    EXPECT_EQ(Versions(noms, &TJeu::VersionDisponible), QStringList({"5.20", "4.30", "3.10", "1.90", "3.60", "1.00", ""}));
    EXPECT_EQ(Versions(noms), Versions(noms, &TJeu::VersionDisponible));
    EXPECT_EQ(QList<QDate>({Jeu("Corvalie").DateDisponible, Jeu("Arvenne").DateInstallée, Jeu("Zébrane").DateDisponible}),
              QList<QDate>({Le(20, 6, 2005), Le(14, 3, 2007), Le(5, 5, 2020)})) << "Corvalie's version is taken, not its date";
    const QString rappel = TexteRappel(Famille());
    QStringList listés;
    for (const TJeu &j : Famille().JeuxFamille)
        if (rappel.contains("\r\n" + j.Description + " : version " + j.VersionDisponible + " du "))
            listés << j.Nom;
    EXPECT_EQ(listés, QStringList({"Brisolie", "Dunmark", "Estrava", "Faldine", "Gorvane", "Hestral", "Ilmarie", "Lunesse", "Morvald"}));
    EXPECT_TRUE(rappel.startsWith(Message(TMessage::VisiterLeSite) + "\r\n\r\n" + Message(TMessage::MisesÀJourSuivantes) +
                                  "\r\n\r\nLes régions brisoliennes : version 4.30 du 02/11/2006\r\n"));
    EXPECT_EQ(TexteRappel(TFamille{}), Message(TMessage::VisiterLeSite)) << "nothing behind: the site's message alone";
}

// The version and the date of an installed game's text, then the site's comments.
TEST_F(MisesAJour, VersionTextsAndTheSitesCommentsGiveVersionsDatesAndGames)
{
    for (const auto &[texte, version] : {std::pair{"Version 6.07 du 30/07/2008", "6.07"}, {"Version   v10.2b du", "10.2"},
                                         {"Version .5 x", ".5"}, {"Version", ""}, {"Version ", ""}, {"Version sans numéro", ""}, {"6.07", ""}})
        EXPECT_EQ(ExtraitVersion(texte), version) << texte;
    for (const auto &[texte, date] : {std::pair{"Version 6.07 du 30/07/2008", Le(30, 7, 2008)},
                                      {"Version 6.07 vom 30.07.2008", Le(30, 7, 2008)}, {"01/02/2003", Le(1, 2, 2003)},
                                      {"du 5/3/07", Le(5, 3, 2007)}, {"du 5/3/45", Le(5, 3, 1945)}, {"le 2024-02-29", Le(29, 2, 2024)},
                                      {"du 29/02/2023", AucuneDate}, {"du 30/07/2008 ", AucuneDate}, {"du 30/07", AucuneDate},
                                      {"du 30/07-2008", AucuneDate}, {"Version 6.07", AucuneDate}, {"", AucuneDate}})
        EXPECT_EQ(ExtraitDate(texte), date) << texte;
    ChargeListeJeux(), Installe("Kelmor", "Version 6.07 du 30/07/2008"), Installe("Corvalie", "Version 3.05 du 20/06/2005");
    LitListePage("<html><head><!-- le menu du site --><title>Jeux</title></head><body>\n"
                 "<!--Arvenne#5.20#01/09/2008#Les départements arvennais, 2e édition-->\n<p>texte</p>"
                 "<!--Brisolie#4.30#02/11/2006#Les régions brisoliennes--><!--Corvalie#3.01#01/01/2009#Les pays d'Europe-->\n"
                 "<!--Dunmark#2.50#01/01/2009--><!--Estrava#4.10#31/02/2009#Les provinces estravaises-->"
                 "<!--#1.00#01/01/2009#Sans nom--><!--Gorvane# #01/01/2009#Sans version--><!--Hestral#2.20#01/01/2009#  -->"
                 "<!--Nordhal#1.00#15/06/2009#Les fjords nordhaliens--><!-- Faldine#1.50#01/01/2009#Avec un blanc-->"
                 "<!--Ilmarie#9.00#01/01/2010#Jamais fermé</body></html>");
    SauveMisesAJour(), ExploreJeux(); // as the menu's command goes on

    // Corvalie, an older version with a later date: the date is taken, the version kept. Three fields, a date
    // that isn't one, a blank name, version or description: passed over. " Faldine" is another game, in memory only.
    const QStringList noms{"Arvenne", "Corvalie", "Dunmark", "Estrava", "Gorvane", "Hestral", "Ilmarie", "Nordhal", " Faldine", "Faldine"};
    EXPECT_EQ(Versions(noms, &TJeu::VersionDisponible),
              QStringList({"5.20", "3.05", "2.41", "4.02", "3.60", "2.15", "5.01", "1.00", "1.50", "1.90"}));
    EXPECT_EQ(Versions(noms), QStringList({"5.20", "3.05", "2.41", "4.02", "3.60", "2.15", "5.01", "1.00", "1.90", "1.90"}));
    EXPECT_EQ(QList<QDate>({Jeu("Arvenne").DateDisponible, Jeu("Corvalie").DateDisponible}), QList<QDate>({Le(1, 9, 2008), Le(1, 1, 2009)}));
    EXPECT_EQ(QStringList({Jeu("Arvenne").Description, Jeu("Corvalie").Description, Jeu(" Faldine").Description}),
              QStringList({"Les départements arvennais, 2e édition", "Les pays d'Europe", "Avec un blanc"}));
    EXPECT_EQ(Famille().NombreJeux, 14);
}

// From the running game's menu, which counts as installed; a page that can't be had reminds of what is known.
using MisesAJourDuJeu = JeuTest;

TEST_F(MisesAJourDuJeu, TheMenuEntryReadsTheSitesListThenRemindsAndAPageThatCantBeHadIsEmpty)
{
    Serveur serveur("200 OK", "<html><!--Nordhal#1.00#15/06/2009#Les fjords nordhaliens--></html>");
    InstalleAdressePage(serveur.Site());
    Principal().FichierVersion->trigger();
    EXPECT_TRUE(serveur.requête.startsWith("GET /jeux/listejeux.htm HTTP/1.1\r\n") && serveur.pointeurPendant == PointeurSablier);
    ASSERT_TRUE(boîtes.journal.size() == 1 && boîtes.journal[0].titre == Message(TMessage::TitrePublicité));
    EXPECT_TRUE(boîtes.ADit("\r\nLes fjords nordhaliens : version 1.00 du ") && !boîtes.ADit("kelmors"));
    serveur.serveur.close();
    Principal().FichierVersion->trigger();
    EXPECT_TRUE(boîtes.journal.size() == 2 && boîtes.journal[1].texte == boîtes.journal[0].texte);

    // A page refused, too long or not had in time is empty; the silent server holds the fetch for the time-out only.
    const QByteArray jeu = "<!--Nordhal#1.00#15/06/2009#Les fjords nordhaliens-->";
    Serveur absent("200 OK"), introuvable("404 Not Found", jeu), muet(nullptr);
    Serveur long_("200 OK", jeu + QByteArray(LongueurMaxPage + 1 - jeu.size(), ' '));
    Serveur énorme("200 OK", jeu + QByteArray(4 * LongueurMaxPage, 'x'));
    const QUrl refusé = absent.Site();
    absent.serveur.close();
    InstalleDélaiPage(1s);
    QElapsedTimer chrono;
    for (const auto &[quoi, site, auMoins, auPlus] :
         {std::tuple{"refused", refusé, 0, 1000}, {"404", introuvable.Site(), 0, 1000}, {"never answers", muet.Site(), 900, 3000},
          {"one character too long", long_.Site(), 0, 1000}, {"far too long", énorme.Site(), 0, 1000}}) {
        InstalleAdressePage(site), chrono.start();
        EXPECT_TRUE(ChargePage().isEmpty() && PointeurEcranActuel() == PointeurNormal) << quoi;
        EXPECT_TRUE(chrono.elapsed() >= auMoins && chrono.elapsed() < auPlus) << quoi << " " << chrono.elapsed();
    }
    EXPECT_TRUE(muet.répondu) << "the silent server did get the request";

    // The longest page is read, in Windows-1252 too, to the last byte though all before it could be UTF-8.
    const QByteArray ansi = VersAnsi("<!--Nordhal#1.00#15/06/2009#Les fjords de l'été-->");
    Serveur juste("200 OK", ansi + QByteArray(LongueurMaxPage - ansi.size(), ' '));
    InstalleAdressePage(juste.Site());
    EXPECT_EQ(ChargePage(), DepuisAnsi(ansi) + QString(LongueurMaxPage - ansi.size(), ' '));
    EXPECT_EQ(DécodePage("<p>Les jeux du caf\xE9"), "<p>Les jeux du café");
    InstalleAdressePage(QUrl("http://127.0.0.1:9/essai"));
    EXPECT_EQ(AdressePage(), QUrl("http://127.0.0.1:9/essai/jeux/listejeux.htm")) << "another root, with no final separator";
    InstalleDélaiPage(0ms);
}

} // namespace
