#include "platform/Ansi.h"

namespace {
// 0x80..0x9F differ from Latin-1; 0 marks the five unassigned codes.
constexpr char16_t Cp1252Haut[32] = {
    0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0, 0x017D, 0,
    0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0, 0x017E, 0x0178,
};
} // namespace

QByteArray VersAnsi(const QString &texte)
{
    QByteArray sortie;
    sortie.reserve(texte.size());
    for (QChar c : texte) {
        const char16_t u = c.unicode();
        if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) {
            sortie.append(static_cast<char>(u));
            continue;
        }
        char octet = '?';
        for (int i = 0; i < 32; ++i)
            if (Cp1252Haut[i] == u && u != 0) {
                octet = static_cast<char>(0x80 + i);
                break;
            }
        sortie.append(octet);
    }
    return sortie;
}

QString DepuisAnsi(const char *octets, int longueur)
{
    QString texte;
    texte.reserve(longueur);
    for (int i = 0; i < longueur; ++i) {
        const auto o = static_cast<unsigned char>(octets[i]);
        if (o >= 0x80 && o <= 0x9F && Cp1252Haut[o - 0x80] != 0)
            texte.append(QChar(Cp1252Haut[o - 0x80]));
        else
            texte.append(QChar(char16_t(o)));
    }
    return texte;
}

QString DepuisAnsi(const QByteArray &octets) { return DepuisAnsi(octets.constData(), int(octets.size())); }
