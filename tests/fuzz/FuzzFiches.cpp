// Any bytes as an information file: no crash, every record read as its two lengths
// say or refused when they run past it, a card read writes back, and a damaged
// record is one message and an empty card.
#include "Doublures.h"
#include "platform/Boites.h"
#include "services/Fiches.h"
#include "services/Langues.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

namespace {
QString chemin;
BoîtesScriptées *boîtes;

int Longueur(const QByteArray &r, qsizetype i)
{
    return i + 1 < r.size() ? quint8(r[i]) | quint8(r[i + 1]) << 8 : 1 << 20;
}
} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication application(*argc, *argv);
    // In memory: the file is rewritten at every run.
    static QTemporaryDir dossier(QStringLiteral("/dev/shm/fiches-XXXXXX"));
    chemin = dossier.filePath(QStringLiteral("KELMOR.INF"));
    boîtes = new BoîtesScriptées();
    InstalleBoîtes(boîtes);
    ChargeChaînes();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *octets, size_t taille)
{
    const QByteArray contenu(reinterpret_cast<const char *>(octets), qsizetype(taille));
    QFile f(chemin);
    if (!f.open(QIODevice::WriteOnly) || f.write(contenu) != contenu.size())
        __builtin_trap();
    f.close();
    const int dernier = int(taille / TailleFiche) + 1;
    for (int numéro = 0; numéro <= dernier + 1; ++numéro) {
        const QByteArray r = numéro < 1 ? QByteArray() : contenu.mid(qsizetype(numéro - 1) * TailleFiche, TailleFiche);
        const int n1 = Longueur(r, 0), n2 = Longueur(r, 2 + n1);
        const bool entier = 4 + n1 + n2 <= r.size();
        TFiche fiche;
        if (LitFicheInfo(chemin, numéro, fiche) != entier)
            __builtin_trap();
        if (entier) {
            if (fiche.Nom.size() != n1 || fiche.Texte.size() != n2)
                __builtin_trap();
            const QByteArray réécrit = OctetsFiche(fiche);
            if (réécrit.size() != TailleFiche || Longueur(réécrit, 0) != n1 || Longueur(réécrit, 2 + n1) != n2)
                __builtin_trap();
        }
        boîtes->journal.clear();
        const TFiche montrée = FicheMontrée(chemin, numéro);
        const bool abîmée = !r.isEmpty() && !entier;
        if (boîtes->journal.size() != (abîmée ? 1u : 0u))
            __builtin_trap();
        if (entier ? montrée.Nom != fiche.Nom || montrée.Texte != fiche.Texte
                   : !montrée.Nom.isEmpty() || !montrée.Texte.isEmpty())
            __builtin_trap();
    }
    boîtes->journal.clear();
    return 0;
}
