// Any bytes as an information file: no crash, every record read as its two lengths
// say or refused when they run past it, a card read writes back, and a damaged
// record is one message and an empty card.
#include "Fuzz.h"
#include "services/Fiches.h"

namespace {
QString chemin;

int Longueur(const QByteArray &r, qsizetype i)
{
    return i + 1 < r.size() ? quint8(r[i]) | quint8(r[i + 1]) << 8 : 1 << 20;
}
} // namespace

void Prépare() { chemin = DossierEnMémoire() + QStringLiteral("/KELMOR.INF"); }

void Essaie(const QByteArray &contenu)
{
    Écrit(chemin, contenu);
    const int dernier = int(contenu.size() / TailleFiche) + 1;
    for (int numéro = 0; numéro <= dernier + 1; ++numéro) {
        const QByteArray r = numéro < 1 ? QByteArray() : contenu.mid(qsizetype(numéro - 1) * TailleFiche, TailleFiche);
        const int n1 = Longueur(r, 0), n2 = Longueur(r, 2 + n1);
        const bool entier = 4 + n1 + n2 <= r.size();
        TFiche fiche;
        Vérifie(LitFicheInfo(chemin, numéro, fiche) == entier);
        if (entier) {
            const QByteArray réécrit = OctetsFiche(fiche);
            Vérifie(fiche.Nom.size() == n1 && fiche.Texte.size() == n2 && réécrit.size() == TailleFiche &&
                    Longueur(réécrit, 0) == n1 && Longueur(réécrit, 2 + n1) == n2);
        }
        boîtes.journal.clear();
        const TFiche montrée = FicheMontrée(chemin, numéro);
        Vérifie(boîtes.journal.size() == (!r.isEmpty() && !entier ? 1u : 0u));
        Vérifie(entier ? montrée.Nom == fiche.Nom && montrée.Texte == fiche.Texte
                       : montrée.Nom.isEmpty() && montrée.Texte.isEmpty());
    }
}
