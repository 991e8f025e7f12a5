// Any bytes as the site's page of games: no crash; the text no longer than the bytes
// nor shorter than a third of them; the list only grows, a known game's version and
// date never go back, a game read has a name, a version, a date and a title; the
// dates and versions read from any line are real ones; the reminder is one box.
#include "Doublures.h"
#include "platform/Boites.h"
#include "services/Langues.h"
#include "services/MisesAJour.h"

#include <QCoreApplication>

namespace {
BoîtesScriptées *boîtes;
const std::vector<TJeu> connus = {
    {},
    {QStringLiteral("Kelmor"), QStringLiteral("Les cantons"), QStringLiteral("6.07"), QDate(2008, 7, 30),
     QStringLiteral("6.07"), QDate(2008, 7, 30)},
    {QStringLiteral("Dravel"), QString(), QString(), AucuneDate, QStringLiteral("2.10"), AucuneDate},
};

bool Champ(const QString &s) { return !s.trimmed().isEmpty() && !s.contains(QLatin1Char('#')); }
} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication application(*argc, *argv);
    boîtes = new BoîtesScriptées();
    InstalleBoîtes(boîtes);
    ChargeChaînes();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *octets, size_t taille)
{
    const QString page = DécodePage(QByteArray(reinterpret_cast<const char *>(octets), qsizetype(taille)));
    // The fetch stops past three bytes a character: no page it could keep is longer.
    // Only a leading byte-order mark stands for no character at all.
    if (page.size() > qsizetype(taille) || 3 * page.size() + 3 < qsizetype(taille))
        __builtin_trap();
    for (const QString &ligne : page.left(4000).split(QLatin1Char('\n'))) {
        QDate date(2001, 2, 3);
        const bool lue = LitDate(ligne, date);
        if (lue ? !date.isValid() : date != QDate(2001, 2, 3))
            __builtin_trap();
        const QString version = ExtraitVersion(ligne);
        if ((ligne.size() <= 7 && !version.isEmpty()) || !ligne.contains(version))
            __builtin_trap();
        for (QChar c : version)
            if (!c.isDigit() && c != QLatin1Char('.'))
                __builtin_trap();
        if (!ExtraitDate(ligne).isValid())
            __builtin_trap();
    }
    if (page.size() > LongueurMaxPage)
        return 0; // refused whole, as the fetch does
    Famille().JeuxFamille = connus;
    Famille().NombreJeux = i16(connus.size() - 1);
    LitListePage(page);
    if (Famille().NombreJeux != qsizetype(Famille().JeuxFamille.size()) - 1 ||
        Famille().NombreJeux - qsizetype(connus.size() - 1) > page.count(QStringLiteral("<!--")))
        __builtin_trap();
    for (i16 i = 1; i <= Famille().NombreJeux; ++i) {
        const TJeu &jeu = Famille().JeuxFamille[i];
        if (IndiceJeu(jeu.Nom) != i)
            __builtin_trap();
        if (i < i16(connus.size())) {
            if (jeu.VersionDisponible < connus[i].VersionDisponible || jeu.DateDisponible < connus[i].DateDisponible)
                __builtin_trap();
        } else if (!Champ(jeu.Nom) || !Champ(jeu.VersionDisponible) || !Champ(jeu.Description) ||
                   !jeu.DateDisponible.isValid() || !jeu.VersionInstallée.isEmpty()) {
            __builtin_trap();
        }
    }
    boîtes->journal.clear();
    AfficheRappel();
    if (boîtes->journal.size() != 1)
        __builtin_trap();
    boîtes->journal.clear();
    return 0;
}
