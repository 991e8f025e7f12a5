#include "services/Registre.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringList>

#include <map>
#include <optional>
#include <vector>

namespace {

// A settings file has a few hundred bytes; past this size it is damaged, and it is
// neither read nor written over.
constexpr qint64 TailleMaxFichier = 16 * 1024 * 1024;

using Clé = TCléRegistre;
using Valeur = TValeurRegistre;
using Arbre = TArbreRegistre;
using Racine = TRacine;
using Découpe = TDécoupe;

// ---------------------------------------------------------------- the store

class Magasin {
public:
    // The file may have been changed by another copy of the game since it was read.
    void Synchronise()
    {
        const Signature s = SignatureFichier();
        if (!chargé || !(s == signature))
            Charge(s);
    }

    void ChangeFichier(const QString &chemin)
    {
        fichier = chemin;
        chargé = false;
        poignées.clear();
    }

    QString Fichier() const
    {
        if (!fichier.isEmpty())
            return fichier;
        return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
               QStringLiteral("/kelmor/registre.ini");
    }

    Clé *Trouve(const QString &cléPliée) { return TrouveClé(arbre, cléPliée); }

    // Opens each level in turn; the key of the last one, or nothing.
    std::optional<QString> Ouvre(const QStringList &pièces)
    {
        QString chemin;
        for (const QString &p : pièces) {
            if (!chemin.isEmpty())
                chemin += QLatin1Char('\\');
            chemin += Plié(p);
            if (!Trouve(chemin))
                return std::nullopt;
        }
        return chemin;
    }

    i32 NouvellePoignée(const QString &clé)
    {
        const i32 h = prochainePoignée++;
        if (prochainePoignée <= 0)
            prochainePoignée = 1;
        poignées[h] = clé;
        return h;
    }

    // A root's handle is its number, always open; other handles come from OuvreClé.
    std::optional<QString> CléDePoignée(i32 h) const
    {
        for (const Racine &r : Racines)
            if (r.numéro == h)
                return Plié(QLatin1String(r.nom));
        auto it = poignées.find(h);
        if (it == poignées.end())
            return std::nullopt;
        return it->second;
    }

    bool Ferme(i32 h)
    {
        for (const Racine &r : Racines)
            if (r.numéro == h)
                return true;
        return poignées.erase(h) == 1;
    }

    bool Ajoute(const QStringList &pièces) { return AjouteClé(arbre, pièces); }

    bool Illisible() const { return illisible; }

    // Runs a change and writes the file; on a failed write the keys go back to what the file holds.
    template <typename F>
    bool Modifie(F &&changement)
    {
        if (illisible)
            return false; // a file that couldn't be read mustn't be written over
        const Arbre avant = arbre;
        if (!changement())
            return true; // nothing to write
        if (Enregistre())
            return true;
        arbre = avant;
        return false;
    }

    // The names of the subkeys of a key, in name order.
    QStringList SousClés(const QString &clé) const
    {
        QStringList r;
        const QString préfixe = clé + QLatin1Char('\\');
        for (auto it = arbre.lower_bound(préfixe); it != arbre.end() && it->first.startsWith(préfixe); ++it)
            if (it->first.indexOf(QLatin1Char('\\'), préfixe.size()) < 0)
                r << it->second.chemin.section(QLatin1Char('\\'), -1);
        return r;
    }

private:
    struct Signature {
        bool existe = false;
        qint64 taille = 0;
        qint64 modifié = 0;
        bool operator==(const Signature &o) const
        {
            return existe == o.existe && taille == o.taille && modifié == o.modifié;
        }
    };

    Signature SignatureFichier() const
    {
        const QFileInfo info(Fichier());
        if (!info.exists())
            return {};
        return {true, info.size(), info.lastModified().toMSecsSinceEpoch()};
    }

    void Charge(const Signature &s)
    {
        arbre = ArbreVide();
        chargé = true;
        signature = s;
        illisible = false;
        if (!s.existe)
            return;
        QFile f(Fichier());
        if (!f.open(QIODevice::ReadOnly) || f.size() > TailleMaxFichier) {
            illisible = true;
            return;
        }
        const QByteArray octets = f.readAll();
        if (octets.size() != f.size()) {
            illisible = true;
            return;
        }
        arbre = LitOctetsRegistre(octets);
    }

    bool Enregistre()
    {
        const QString chemin = Fichier();
        QDir().mkpath(QFileInfo(chemin).absolutePath());
        QSaveFile f(chemin);
        if (!f.open(QIODevice::WriteOnly))
            return false;
        const QByteArray octets = OctetsRegistre(arbre);
        if (f.write(octets) != octets.size()) {
            f.cancelWriting();
            return false;
        }
        if (!f.commit())
            return false;
        signature = SignatureFichier();
        return true;
    }

private:
    QString fichier;
    Arbre arbre;
    bool chargé = false;
    bool illisible = false;
    Signature signature;
    std::map<i32, QString> poignées;
    i32 prochainePoignée = 1;
};

Magasin &Store()
{
    static Magasin m;
    return m;
}

} // namespace

i32 OuvreClé(const QString &chemin)
{
    const Découpe d = DécoupeChemin(chemin);
    if (d.tropLong || d.racineInconnue)
        return -1;
    Magasin &m = Store();
    m.Synchronise();
    if (d.pièces.size() == 1)
        for (const Racine &r : Racines)
            if (d.pièces[0] == QLatin1String(r.nom))
                return r.numéro;
    const auto clé = m.Ouvre(d.pièces);
    if (!clé)
        return -1;
    return m.NouvellePoignée(*clé);
}

i32 FermeClé(i32 clé) { return Store().Ferme(clé) ? 0 : -1; }

i32 LitValeur(const QString &chemin, const QString &nom, QString &texte)
{
    const i32 h = OuvreClé(chemin);
    if (h == -1)
        return -1;
    Magasin &m = Store();
    i32 r = -2;
    if (const auto clé = m.CléDePoignée(h))
        if (const Clé *c = m.Trouve(*clé))
            if (const Valeur *v = ChercheValeur(*c, nom.trimmed()); v && v->texte.size() <= LongueurMaxValeur) {
                texte = v->texte;
                r = 0;
            }
    FermeClé(h);
    return r;
}

i32 EcritValeur(const QString &chemin, const QString &nom, const QString &texte)
{
    const i32 h = OuvreClé(chemin);
    if (h == -1)
        return -1;
    Magasin &m = Store();
    const auto clé = m.CléDePoignée(h);
    FermeClé(h);
    if (!clé || !m.Trouve(*clé))
        return -2;
    const bool écrit = m.Modifie([&] {
        Clé &c = *m.Trouve(*clé);
        if (const Valeur *v = ChercheValeur(c, nom); v && v->texte == texte)
            return false; // already so: nothing to rewrite
        PoseValeur(c, nom, texte);
        return true;
    });
    return écrit ? 0 : -2;
}

i32 CréeClé(const QString &chemin)
{
    const Découpe d = DécoupeChemin(chemin);
    if (d.tropLong)
        return -1;
    if (d.pièces.isEmpty() || d.pièces[0] != QLatin1String("HKEY_CURRENT_USER"))
        return -2;
    for (const QString &p : d.pièces)
        if (!NomCléValide(p))
            return -1;
    Magasin &m = Store();
    m.Synchronise();
    if (!m.Modifie([&] { return m.Ajoute(d.pièces); }))
        return -1;
    // The key is opened as it is created, and what its closing gives is the answer.
    return FermeClé(OuvreClé(chemin));
}

i32 EnumèreSousClés(i32 clé, i32 index, QString &nom)
{
    Magasin &m = Store();
    m.Synchronise();
    const auto c = m.CléDePoignée(clé);
    if (!c)
        return ErreurClé;
    const QStringList noms = m.SousClés(*c);
    if (index < 0 || index >= noms.size())
        return FinSousClés;
    nom = noms[index];
    return 0;
}

void InstalleFichierRegistre(const QString &chemin) { Store().ChangeFichier(chemin); }

bool RegistreLisible()
{
    Magasin &m = Store();
    m.Synchronise();
    return !m.Illisible();
}

void NettoieRegistre()
{
    // A run stopped between the link of its temporary file and its rename leaves a
    // whole copy under the name "registre.ini.XXXXXX"; only those are taken away.
    const QFileInfo fichier(Store().Fichier());
    const QRegularExpression temporaire(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(fichier.fileName()) + QStringLiteral("\\.[A-Za-z0-9]{6}")));
    QDir dossier = fichier.absoluteDir();
    for (const QString &nom : dossier.entryList(QDir::Files | QDir::Hidden))
        if (temporaire.match(nom).hasMatch())
            dossier.remove(nom);
}

QString FichierRegistre() { return Store().Fichier(); }
