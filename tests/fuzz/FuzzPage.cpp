// Any bytes as the site's page of games: no crash; the text no longer than the bytes
// nor shorter than a third of them; the list only grows, a known game's version and
// date never go back, a game read has a name, a version, a date and a title; the
// dates and versions read from any line are real ones; the reminder is one box.
#include "Fuzz.h"
#include "services/MisesAJour.h"

namespace {
const std::vector<TJeu> connus = {
    {},
    {QStringLiteral("Kelmor"), QStringLiteral("Les cantons"), QStringLiteral("6.07"), QDate(2008, 7, 30),
     QStringLiteral("6.07"), QDate(2008, 7, 30)},
    {QStringLiteral("Dravel"), QString(), QString(), AucuneDate, QStringLiteral("2.10"), AucuneDate},
};

bool Champ(const QString &s) { return !s.trimmed().isEmpty() && !s.contains(QLatin1Char('#')); }
} // namespace

void Essaie(const QByteArray &octets)
{
    const QString page = DécodePage(octets);
    // The fetch stops past three bytes a character: no page it could keep is longer.
    // Only a leading byte-order mark stands for no character at all.
    Vérifie(page.size() <= octets.size() && 3 * page.size() + 3 >= octets.size());
    for (const QString &ligne : page.left(4000).split(QLatin1Char('\n'))) {
        QDate date(2001, 2, 3);
        const bool lue = LitDate(ligne, date);
        Vérifie(lue ? date.isValid() : date == QDate(2001, 2, 3));
        const QString version = ExtraitVersion(ligne);
        Vérifie((ligne.size() > 7 || version.isEmpty()) && ligne.contains(version));
        for (QChar c : version)
            Vérifie(c.isDigit() || c == QLatin1Char('.'));
        Vérifie(ExtraitDate(ligne).isValid());
    }
    if (page.size() > LongueurMaxPage)
        return; // refused whole, as the fetch does
    Famille().JeuxFamille = connus;
    Famille().NombreJeux = i16(connus.size() - 1);
    LitListePage(page);
    Vérifie(Famille().NombreJeux == qsizetype(Famille().JeuxFamille.size()) - 1 &&
            Famille().NombreJeux - qsizetype(connus.size() - 1) <= page.count(QStringLiteral("<!--")));
    for (i16 i = 1; i <= Famille().NombreJeux; ++i) {
        const TJeu &jeu = Famille().JeuxFamille[i];
        Vérifie(IndiceJeu(jeu.Nom) == i);
        if (i < i16(connus.size()))
            Vérifie(jeu.VersionDisponible >= connus[i].VersionDisponible && jeu.DateDisponible >= connus[i].DateDisponible);
        else
            Vérifie(Champ(jeu.Nom) && Champ(jeu.VersionDisponible) && Champ(jeu.Description) &&
                    jeu.DateDisponible.isValid() && jeu.VersionInstallée.isEmpty());
    }
    boîtes.journal.clear();
    AfficheRappel();
    Vérifie(boîtes.journal.size() == 1);
}
