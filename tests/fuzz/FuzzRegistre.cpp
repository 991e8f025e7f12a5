// Any bytes as the settings store's file: no crash; what is read is written back in a
// text that reads again as the same keys and values; then the store itself reads,
// lists and writes through it.
#include "Fuzz.h"
#include "files/FichierRegistre.h"
#include "services/Registre.h"
#include "services/Reglages.h"

namespace {
QString chemin;
}

void Prépare() { chemin = DossierEnMémoire() + QStringLiteral("/registre.ini"); }

void Essaie(const QByteArray &octets)
{
    // The reader and the writer alone, on bytes.
    const TArbreRegistre arbre = LitOctetsRegistre(octets);
    const QByteArray écrit = OctetsRegistre(arbre);
    Vérifie(OctetsRegistre(LitOctetsRegistre(écrit)) == écrit);
    for (const auto &[plié, clé] : arbre)
        Vérifie(plié == Plié(clé.chemin) && plié.count(QLatin1Char('\\')) < 32);

    // The store on that file: every read answers with one of its codes and leaves the text
    // alone unless it read it, and a value written reads back.
    Écrit(chemin, octets);
    InstalleFichierRegistre(chemin);
    for (const char *nom : {"version", "langue", "joueur", ""}) {
        QString texte = QStringLiteral("avant");
        const i32 r = LitValeur(CléJeu, QString::fromLatin1(nom), texte);
        Vérifie(r == 0 ? texte.size() <= LongueurMaxValeur : (r == -1 || r == -2) && texte == QLatin1String("avant"));
    }
    const i32 h = OuvreClé(CléFamille);
    if (h != -1) {
        QString nom;
        for (i32 i = 0; i < 64 && EnumèreSousClés(h, i, nom) == 0; ++i) {}
        FermeClé(h);
    }
    if (EcritValeur(CléJeu, QStringLiteral("langue"), QStringLiteral(" 2")) == 0) {
        QString texte;
        Vérifie(LitValeur(CléJeu, QStringLiteral("langue"), texte) == 0 && texte == QLatin1String(" 2"));
    }
}
