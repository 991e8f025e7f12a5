#include "services/Fiches.h"

#include "platform/Ansi.h"

#include <QFile>

bool LitFicheInfo(const QString &chemin, int numéro, TFiche &fiche)
{
    if (numéro < 1)
        return false;
    QFile f(chemin);
    if (!f.open(QIODevice::ReadOnly) || !f.seek(qint64(numéro - 1) * TailleFiche))
        return false;
    const QByteArray r = f.read(TailleFiche);
    if (r.size() < 4)
        return false;
    auto longueur = [&r](int i) { return int(quint8(r[i]) | quint8(r[i + 1]) << 8); };
    const int n1 = longueur(0);
    if (4 + n1 > r.size())
        return false;
    const int n2 = longueur(2 + n1);
    if (4 + n1 + n2 > r.size())
        return false;
    fiche.Nom = DepuisAnsi(r.constData() + 2, n1);
    fiche.Texte = DepuisAnsi(r.constData() + 4 + n1, n2);
    return true;
}
