#include "files/FichierStats.h"

#include "platform/Ansi.h"

#include <algorithm>

namespace {
// Blanks or, on every fourth line, hyphens, that lead the eye along the table.
QString Bourrage(int n, QChar c) { return n > 0 ? QString(n, c) : QString(); }
} // namespace

QByteArray OctetsStats(const TEntêteStats &entête, const std::vector<TLigneStats> &lignes)
{
    int L = 0;
    for (const TLigneStats &l : lignes)
        L = std::max<int>(L, l.Nom.size());
    const QString fin = QStringLiteral("\r\n");
    const QString tirets = Bourrage(L, QLatin1Char('-'));
    const QChar tab = QLatin1Char('\t');

    QString t;
    t += entête.Police + fin;
    t += tirets + fin;
    t += fin;
    t += entête.Titre + fin;
    t += tirets + fin;
    t += fin;
    t += Bourrage(L + 5, QLatin1Char(' ')) + tab + entête.Colonnes[1] + QLatin1Char('/') + entête.Colonnes[2] +
         QLatin1Char('/') + entête.Colonnes[3] + QLatin1Char('/') + entête.Colonnes[4] + fin;
    for (std::size_t n = 1; n <= lignes.size(); ++n) {
        const TLigneStats &c = lignes[n - 1];
        const QChar guide = n % 4 == 0 ? QLatin1Char('-') : QLatin1Char(' ');
        t += c.Nom + Bourrage(L - int(c.Nom.size()) + 5, guide);
        t += tab + QString::number(c.Pertes[1]);
        for (int k = 2; k <= 4; ++k)
            t += QString(tab) + guide + QString::number(c.Pertes[k]);
        t += fin;
    }
    return VersAnsi(t);
}
