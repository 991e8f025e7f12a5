#pragma once
// The family's games: which ones exist, the highest version heard of for each,
// which ones are on this machine, and the reminder that tells the player what
// could be fetched or brought up to date. On demand the list that the maker
// publishes on the site, in the comments of one page, is read first. Nothing is
// downloaded but that page.
#include "engine/communs.h"

#include <QDate>
#include <QString>
#include <QUrl>
#include <chrono>
#include <vector>

// The date that stands for none.
inline const QDate AucuneDate{1900, 1, 1};

struct TJeu {
    QString Nom;              // its subkey under the family's key, its value under Updates
    QString Description;      // the title shown to the player
    QString VersionInstallée; // "" not on this machine, "0.00" there with no readable version
    QDate DateInstallée = AucuneDate;
    QString VersionDisponible; // the highest heard of, as "6.07"
    QDate DateDisponible = AucuneDate;
};

struct TFamille {
    // The family's games from index 1 (element 0 stays empty), NombreJeux of them.
    // The list lives for the whole run and only grows; only VersionDisponible is kept,
    // in the key Updates.
    std::vector<TJeu> JeuxFamille = std::vector<TJeu>(1);
    i16 NombreJeux = 0;
};
TFamille &Famille();

// The list as the string table has it (ids 6000 on), merged with Updates.
void ChargeListeJeux();
// Each game's VersionDisponible and its value under Updates: the higher wins both ways.
void SauveMisesAJour();
// Which games of the family have a key on this machine, and their versions.
void ExploreJeux();
// The site's message, then the games of the list that could be fetched or updated, with
// their versions and dates (a date in the desktop's short form).
QString TexteRappel(const TFamille &famille);
// The message box of that text.
void AfficheRappel();
// The menu's command: the site's list read, then the reminder.
void ChercheVersions();

// "6.07" from "Version 6.07 du 30/07/2008"; "" when the text is too short.
QString ExtraitVersion(const QString &texte);
// The date after the text's last blank, AucuneDate when there is none.
QDate ExtraitDate(const QString &texte);
// A date written day/month/year ("30/07/2008", also with '.' or '-', a year of two
// digits, or year-month-day); false and the date left alone when it isn't one.
bool LitDate(const QString &texte, QDate &date);

// Index of the game of that exact name, 0 when there is none.
i16 IndiceJeu(const QString &nom);
// The games named in the comments of a page, `<!--Nom#version#date#description-->`,
// merged into the list; any other comment is passed over.
void LitListePage(const QString &page);

// The page as the site sends it: UTF-8 (a leading byte-order mark dropped), or
// Windows-1252 as the family's pages were once written.
QString DécodePage(const QByteArray &octets);

// The longest page read: positions in it are 16-bit numbers.
constexpr qsizetype LongueurMaxPage = 32767;
// The site's root, as message 1123 shows it; the list is the page jeux/listejeux.htm.
inline const QString SiteJeux = QStringLiteral("https://kelmor.example.org/");
// The list's address: the site above, or the root installed for tests.
QUrl AdressePage();
// Another root for the site; an empty one puts the usual one back.
void InstalleAdressePage(const QUrl &site);
// How long the fetch may take, 60 s; zero puts the 60 s back.
void InstalleDélaiPage(std::chrono::milliseconds délai);
// The list's page as text, with the hourglass meanwhile; empty when it can't be
// fetched in time, is refused by the server, or is longer than LongueurMaxPage.
QString ChargePage();
