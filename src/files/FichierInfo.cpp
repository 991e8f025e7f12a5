#include "files/FichierInfo.h"

#include "platform/Ansi.h"

TLectureFiche LitOctetsFiche(const QByteArray &r, TFiche &fiche)
{
    if (r.isEmpty())
        return TLectureFiche::Absente;
    auto longueur = [&r](int i) { return int(quint8(r[i]) | quint8(r[i + 1]) << 8); };
    if (r.size() < 4)
        return TLectureFiche::Abîmée;
    const int n1 = longueur(0);
    if (4 + n1 > r.size())
        return TLectureFiche::Abîmée;
    const int n2 = longueur(2 + n1);
    if (4 + n1 + n2 > r.size())
        return TLectureFiche::Abîmée;
    fiche.Nom = DepuisAnsi(r.constData() + 2, n1);
    fiche.Texte = DepuisAnsi(r.constData() + 4 + n1, n2);
    return TLectureFiche::Lue;
}

QByteArray OctetsFiche(const TFiche &fiche)
{
    const QByteArray nom = VersAnsi(fiche.Nom);
    const QByteArray texte = VersAnsi(fiche.Texte);
    if (4 + nom.size() + texte.size() > TailleFiche)
        return {};
    QByteArray r;
    r.reserve(TailleFiche);
    r.append(char(nom.size() & 0xFF)).append(char(nom.size() >> 8)).append(nom);
    r.append(char(texte.size() & 0xFF)).append(char(texte.size() >> 8)).append(texte);
    r.append(QByteArray(TailleFiche - r.size(), '\0'));
    return r;
}
