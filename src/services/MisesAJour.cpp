#include "services/MisesAJour.h"

#include "reseau/Reseau.h"
#include "platform/Modules.h"

#include "platform/Ansi.h"
#include "platform/Boites.h"
#include "platform/Ecran.h"
#include "services/Langues.h"
#include "services/Reglages.h"
#include "services/Registre.h"
#include "services/TableChaines.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QLocale>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QTimer>

TFamille &Famille()
{
    static TFamille famille;
    return famille;
}

namespace {
const QString Version = QStringLiteral("version");
const QString Updates = QStringLiteral("Updates");
constexpr std::chrono::milliseconds DélaiUsuel{60000};

QUrl siteInstallé;
std::chrono::milliseconds délaiPage = DélaiUsuel;

QString CléUpdates() { return CléFamille + QLatin1Char('\\') + Updates; }

bool ChiffreOuPoint(QChar c) { return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('.'); }

TJeu &Ajoute(TJeu jeu)
{
    Famille().JeuxFamille.push_back(std::move(jeu));
    Famille().NombreJeux = static_cast<i16>(Famille().JeuxFamille.size() - 1);
    return Famille().JeuxFamille.back();
}

// Two-digit years as the desktop reads them: 00 to 29 this century, 30 to 99 the last.
int AnnéeComplète(const QString &chiffres)
{
    const int a = chiffres.toInt();
    return chiffres.size() > 2 ? a : a < 30 ? 2000 + a : 1900 + a;
}

} // namespace

QString DécodePage(const QByteArray &octets)
{
    // A character cut short at the page's end is no UTF-8: without this the decoder keeps
    // it for a next piece that never comes, and the page's last bytes are lost.
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString texte = utf8(octets);
    return utf8.hasError() ? DepuisAnsi(octets) : texte;
}

bool LitDate(const QString &texte, QDate &date)
{
    static const QRegularExpression jourMoisAn(QStringLiteral("^(\\d{1,2})([/.-])(\\d{1,2})\\2(\\d{4}|\\d{2})$"));
    static const QRegularExpression anMoisJour(QStringLiteral("^(\\d{4})-(\\d{1,2})-(\\d{1,2})$"));
    const QString t = texte.trimmed();
    QDate lue;
    if (const auto m = jourMoisAn.match(t); m.hasMatch())
        lue = QDate(AnnéeComplète(m.captured(4)), m.captured(3).toInt(), m.captured(1).toInt());
    else if (const auto m = anMoisJour.match(t); m.hasMatch())
        lue = QDate(m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt());
    if (!lue.isValid())
        return false;
    date = lue;
    return true;
}

QString ExtraitVersion(const QString &texte)
{
    // Past the word "Version" (or "version"), whatever stands before the number.
    qsizetype début = 7;
    if (texte.size() <= début)
        return QString();
    while (début < texte.size() && !ChiffreOuPoint(texte[début]))
        ++début;
    qsizetype fin = début;
    while (fin < texte.size() && ChiffreOuPoint(texte[fin]))
        ++fin;
    return texte.mid(début, fin - début);
}

QDate ExtraitDate(const QString &texte)
{
    QDate date = AucuneDate;
    LitDate(texte.mid(texte.lastIndexOf(QLatin1Char(' ')) + 1), date);
    return date;
}

i16 IndiceJeu(const QString &nom)
{
    for (i16 i = 1; i <= Famille().NombreJeux; ++i)
        if (Famille().JeuxFamille[i].Nom == nom)
            return i;
    return 0;
}

void ChargeListeJeux()
{
    // The list is made once per run; starting afresh keeps a second reading of the
    // settings from mixing two stores.
    Famille().JeuxFamille.assign(1, TJeu{});
    Famille().NombreJeux = 0;
    const int nombre = ValeurEnTête(ChaîneTable(6000).trimmed());
    for (int i = 1; i <= nombre; ++i) {
        const QString ligne = ChaîneTable(6001 + 2 * (i - 1));
        QString nom, version, description;
        QDate date = AucuneDate;
        if (!LitChamp(ligne, 2).trimmed().isEmpty()) {
            nom = LitChamp(ligne, 1);
            version = LitChamp(ligne, 2);
            LitDate(LitChamp(ligne, 3), date);
            description = LitChamp(ligne, 4);
        } else {
            // A row of the first lists: the name alone, its version in the next id.
            nom = ligne;
            version = ChaîneTable(6002 + 2 * (i - 1));
        }
        const i16 j = IndiceJeu(nom);
        if (j == 0) {
            Ajoute(TJeu{nom, description, QString(), AucuneDate, version, date});
            continue;
        }
        TJeu &jeu = Famille().JeuxFamille[j];
        if (version > jeu.VersionDisponible) {
            jeu.VersionDisponible = version;
            jeu.DateDisponible = date;
            jeu.Description = description;
        }
        if (version == jeu.VersionDisponible && date > jeu.DateDisponible) {
            jeu.DateDisponible = date;
            jeu.Description = description;
        }
        if (jeu.Description.trimmed().isEmpty())
            jeu.Description = description;
    }
    SauveMisesAJour();
}

void SauveMisesAJour()
{
    // When the key can't be made, reads and writes fail and the list works from memory.
    const QString clé = CléUpdates();
    CréeClé(clé);
    for (i16 i = 1; i <= Famille().NombreJeux; ++i) {
        TJeu &jeu = Famille().JeuxFamille[i];
        // The store trims value names: a name with blanks around it would land on
        // another game's value. Such a game, read from the site, lives in memory only.
        if (jeu.Nom.isEmpty() || jeu.Nom != jeu.Nom.trimmed())
            continue;
        QString stocké;
        if (LitValeur(clé, jeu.Nom, stocké) == 0 && stocké >= jeu.VersionDisponible)
            jeu.VersionDisponible = stocké;
        else
            EcritValeur(clé, jeu.Nom, jeu.VersionDisponible);
    }
}

void ExploreJeux()
{
    const i32 racine = OuvreClé(CléFamille);
    if (racine == -1)
        return;
    bool changée = false;
    QString nom;
    for (i32 index = 0; EnumèreSousClés(racine, index, nom) == 0; ++index) {
        nom = nom.left(nom.indexOf(QChar(0)));
        QString texte;
        const bool lu = LitValeur(CléFamille + QLatin1Char('\\') + nom, Version, texte) == 0;
        if (const i16 j = IndiceJeu(nom)) {
            TJeu &jeu = Famille().JeuxFamille[j];
            // Found without a readable version: counted as out of date.
            jeu.VersionInstallée = QStringLiteral("0.00");
            if (lu) {
                jeu.VersionInstallée = ExtraitVersion(texte);
                if (jeu.VersionInstallée > jeu.VersionDisponible.trimmed()) {
                    jeu.VersionDisponible = jeu.VersionInstallée;
                    changée = true;
                }
                jeu.DateInstallée = ExtraitDate(texte);
            }
        } else if (nom.compare(Updates, Qt::CaseInsensitive) != 0) {
            // A game of the family that this one doesn't know yet.
            TJeu jeu{nom, QString(), QStringLiteral("0.00"), AucuneDate, QString(), AucuneDate};
            if (lu) {
                jeu.VersionInstallée = ExtraitVersion(texte);
                jeu.DateInstallée = ExtraitDate(texte);
                if (jeu.VersionDisponible.isEmpty()) {
                    jeu.VersionDisponible = jeu.VersionInstallée;
                    jeu.DateDisponible = jeu.DateInstallée;
                }
            }
            Ajoute(std::move(jeu));
            changée = true;
        }
    }
    FermeClé(racine);
    if (changée)
        SauveMisesAJour();
}

QString TexteRappel(const TFamille &famille)
{
    bool aDire = false;
    for (i16 i = 1; i <= famille.NombreJeux; ++i) {
        const TJeu &jeu = famille.JeuxFamille[i];
        if (jeu.VersionInstallée.isEmpty() || jeu.VersionInstallée < jeu.VersionDisponible ||
            jeu.DateInstallée < jeu.DateDisponible)
            aDire = true;
    }
    QString texte = Message(TMessage::VisiterLeSite);
    if (aDire) {
        texte += FinDeLigne + FinDeLigne + Message(TMessage::MisesÀJourSuivantes) + FinDeLigne + FinDeLigne;
        for (i16 i = 1; i <= famille.NombreJeux; ++i) {
            const TJeu &jeu = famille.JeuxFamille[i];
            if (jeu.VersionInstallée >= jeu.VersionDisponible && jeu.DateInstallée >= jeu.DateDisponible)
                continue;
            texte += (jeu.Description.trimmed().isEmpty() ? jeu.Nom : jeu.Description) + QStringLiteral(" : version ") +
                     jeu.VersionDisponible;
            if (jeu.DateDisponible != AucuneDate)
                texte += QStringLiteral(" du ") + QLocale().toString(jeu.DateDisponible, QLocale::ShortFormat);
            texte += FinDeLigne;
        }
    }
    return texte;
}

void AfficheRappel() { Boîte(TexteRappel(Famille()), StyleInformation, Message(TMessage::TitrePublicité)); }

void LitListePage(const QString &page)
{
    const QString début = QStringLiteral("<!--"), fin = QStringLiteral("-->");
    qsizetype d = page.indexOf(début);
    while (d >= 0) {
        const qsizetype f = page.indexOf(fin, d + début.size());
        if (f < 0)
            break; // a comment left open: what stands before it is all there is
        const QString contenu = page.mid(d + début.size(), f - d - début.size());
        d = page.indexOf(début, f + fin.size());

        // Any other comment of the page is passed over without a word. Blanks belong to the fields.
        const QString nom = LitChamp(contenu, 1), version = LitChamp(contenu, 2), description = LitChamp(contenu, 4);
        QDate date;
        if (nom.trimmed().isEmpty() || version.trimmed().isEmpty() || description.trimmed().isEmpty() ||
            !LitDate(LitChamp(contenu, 3), date))
            continue;
        if (const i16 j = IndiceJeu(nom)) {
            TJeu &jeu = Famille().JeuxFamille[j];
            jeu.Description = description;
            if (date > jeu.DateDisponible)
                jeu.DateDisponible = date;
            if (version > jeu.VersionDisponible)
                jeu.VersionDisponible = version;
        } else {
            Ajoute(TJeu{nom, description, QString(), AucuneDate, version, date});
        }
    }
}

QUrl AdressePage()
{
    QUrl site = siteInstallé;
    if (site.isEmpty() || !site.isValid())
        site = QUrl(SiteJeux);
    if (!site.path().endsWith(QLatin1Char('/')))
        site.setPath(site.path() + QLatin1Char('/'));
    return site.resolved(QUrl(QStringLiteral("jeux/listejeux.htm")));
}

void InstalleAdressePage(const QUrl &site) { siteInstallé = site; }

void InstalleDélaiPage(std::chrono::milliseconds délai) { délaiPage = délai.count() > 0 ? délai : DélaiUsuel; }

QString ChargePage()
{
    PointeurEcran(PointeurSablier);
    // Without its module a page can't be had, as without a network.
    static const auto télécharge = reinterpret_cast<TéléchargeurPage>(FonctionDuModule(QStringLiteral("kelmor_reseau"), EntréeRéseau));
    QByteArray octets;
    QString page;
    // Past three bytes a character no page of the right length can go.
    if (télécharge && télécharge(AdressePage(), int(délaiPage.count()), 3 * LongueurMaxPage, &octets)) {
        page = DécodePage(octets);
        if (page.size() > LongueurMaxPage)
            page.clear();
    }
    PointeurEcran(PointeurNormal);
    return page;
}

void ChercheVersions()
{
    // A page that can't be had counts as one without any game: the reminder tells what is known.
    const QString page = ChargePage();
    LitListePage(page);
    SauveMisesAJour();
    ExploreJeux();
    AfficheRappel();
}
