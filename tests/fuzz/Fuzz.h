#pragma once
// What every fuzz target shares: the start-up before the first input (Qt offscreen,
// message boxes that only log, the strings) and libFuzzer's two entries. A target gives
// Essaie(octets), its reader call and its checks, and may give Prépare(), its own
// start-up. A failed check stops the run, and libFuzzer keeps the input that led there.
#include "Doublures.h"
#include "services/Langues.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

void Essaie(const QByteArray &octets);
[[gnu::weak]] void Prépare();

inline BoîtesScriptées boîtes;

inline void Vérifie(bool condition) { if (!condition) __builtin_trap(); }

// In memory, and taken away at the end: a file rewritten at every input would wait for the disk.
inline QString DossierEnMémoire()
{
    static QTemporaryDir dossier(QStringLiteral("/dev/shm/kelmor-fuzz-XXXXXX"));
    return dossier.path();
}

inline void Écrit(const QString &chemin, const QByteArray &octets)
{
    QFile f(chemin);
    Vérifie(f.open(QIODevice::WriteOnly) && f.write(octets) == octets.size());
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Never destroyed: at exit Qt's own statics (the SQL connections') may go before it.
    static auto *application = new QApplication(*argc, *argv);
    Q_UNUSED(application);
    InstalleBoîtes(&boîtes);
    ChargeChaînes();
    if (Prépare)
        Prépare();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *octets, size_t taille)
{
    boîtes.journal.clear();
    Essaie(QByteArray(reinterpret_cast<const char *>(octets), qsizetype(taille)));
    return 0;
}
