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

constexpr int PiècesMax = 32;
constexpr int LongueurMaxNomClé = 255;
// A settings file has a few hundred bytes; past this size it is damaged, and it is
// neither read nor written over.
constexpr qint64 TailleMaxFichier = 16 * 1024 * 1024;

struct Racine {
    const char *nom;
    i32 numéro;
};
constexpr Racine Racines[] = {
    {"HKEY_CLASSES_ROOT", HKEY_CLASSES_ROOT},       {"HKEY_CURRENT_USER", HKEY_CURRENT_USER},
    {"HKEY_LOCAL_MACHINE", HKEY_LOCAL_MACHINE},     {"HKEY_USERS", HKEY_USERS},
    {"HKEY_PERFORMANCE_DATA", HKEY_PERFORMANCE_DATA}, {"HKEY_CURRENT_CONFIG", HKEY_CURRENT_CONFIG},
};

struct Valeur {
    QString nom;
    QString texte;
};

struct Clé {
    QString chemin; // pieces as first written, the root in capitals
    std::vector<Valeur> valeurs;
};

// Keys by their path folded to one case, so that a key's subkeys follow it in name order.
using Arbre = std::map<QString, Clé>;

QString Plié(const QString &s) { return s.toCaseFolded(); }

// The path cut into pieces, the root named as the desktop writes it; nothing when
// the path is too long or the root unknown.
struct Découpe {
    QStringList pièces;
    bool tropLong = false;
    bool racineInconnue = false;
};

Découpe DécoupeChemin(const QString &chemin)
{
    Découpe d;
    d.pièces = chemin.trimmed().split(QLatin1Char('\\'), Qt::SkipEmptyParts);
    if (d.pièces.size() > PiècesMax) {
        d.tropLong = true;
        return d;
    }
    d.racineInconnue = true;
    if (!d.pièces.isEmpty())
        for (const Racine &r : Racines)
            if (d.pièces[0].compare(QLatin1String(r.nom), Qt::CaseInsensitive) == 0) {
                d.pièces[0] = QLatin1String(r.nom);
                d.racineInconnue = false;
            }
    return d;
}

// Key names of the desktop: at most 255 characters, no control character.
bool NomCléValide(const QString &nom)
{
    if (nom.size() > LongueurMaxNomClé)
        return false;
    for (QChar c : nom)
        if (c.unicode() < 0x20 || c.unicode() == 0x7F)
            return false;
    return true;
}

// ---------------------------------------------------------------- the file

QString ÉchappeTexte(const QString &s)
{
    QString r;
    r.reserve(s.size() + 2);
    r += QLatin1Char('"');
    for (QChar c : s) {
        switch (c.unicode()) {
        case '\\': r += QLatin1String("\\\\"); break;
        case '"': r += QLatin1String("\\\""); break;
        case '\n': r += QLatin1String("\\n"); break;
        case '\r': r += QLatin1String("\\r"); break;
        case '\t': r += QLatin1String("\\t"); break;
        default:
            if (c.unicode() < 0x20 || c.unicode() == 0x7F)
                r += QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
            else
                r += c;
        }
    }
    r += QLatin1Char('"');
    return r;
}

int ChiffreHexa(QChar c)
{
    const char16_t u = c.unicode();
    if (u >= '0' && u <= '9')
        return u - '0';
    if (u >= 'a' && u <= 'f')
        return u - 'a' + 10;
    if (u >= 'A' && u <= 'F')
        return u - 'A' + 10;
    return -1;
}

// The quoted text that starts at i, which then stands past its closing quote.
std::optional<QString> LitTexteCité(const QString &ligne, qsizetype &i)
{
    if (i >= ligne.size() || ligne[i] != QLatin1Char('"'))
        return std::nullopt;
    QString r;
    for (++i; i < ligne.size(); ++i) {
        const QChar c = ligne[i];
        if (c == QLatin1Char('"')) {
            ++i;
            return r;
        }
        if (c != QLatin1Char('\\')) {
            r += c;
            continue;
        }
        if (++i >= ligne.size())
            return std::nullopt;
        switch (ligne[i].unicode()) {
        case 'n': r += QLatin1Char('\n'); break;
        case 'r': r += QLatin1Char('\r'); break;
        case 't': r += QLatin1Char('\t'); break;
        case 'x': {
            const int h = i + 2 < ligne.size() ? ChiffreHexa(ligne[i + 1]) : -1;
            const int l = h >= 0 ? ChiffreHexa(ligne[i + 2]) : -1;
            if (l < 0)
                return std::nullopt;
            r += QChar(char16_t(h * 16 + l));
            i += 2;
            break;
        }
        default: r += ligne[i]; // \\ and \" and whatever a hand may have escaped
        }
    }
    return std::nullopt; // no closing quote
}

void SauteBlancs(const QString &ligne, qsizetype &i)
{
    while (i < ligne.size() && ligne[i].isSpace())
        ++i;
}

// "name"="value", or @="value" for the default value.
std::optional<Valeur> LitLigneValeur(const QString &ligne)
{
    qsizetype i = 0;
    Valeur v;
    if (ligne.startsWith(QLatin1Char('@'))) {
        i = 1;
    } else {
        auto nom = LitTexteCité(ligne, i);
        if (!nom)
            return std::nullopt;
        v.nom = *nom;
    }
    SauteBlancs(ligne, i);
    if (i >= ligne.size() || ligne[i] != QLatin1Char('='))
        return std::nullopt;
    ++i;
    SauteBlancs(ligne, i);
    auto texte = LitTexteCité(ligne, i);
    if (!texte)
        return std::nullopt;
    SauteBlancs(ligne, i);
    if (i != ligne.size())
        return std::nullopt;
    v.texte = *texte;
    return v;
}

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

    Clé *Trouve(const QString &cléPliée)
    {
        auto it = arbre.find(cléPliée);
        return it == arbre.end() ? nullptr : &it->second;
    }

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

    // Adds the key and the levels above it; true when something was added.
    bool Ajoute(const QStringList &pièces)
    {
        bool ajouté = false;
        QString chemin, plié;
        for (const QString &p : pièces) {
            if (!chemin.isEmpty()) {
                chemin += QLatin1Char('\\');
                plié += QLatin1Char('\\');
            }
            chemin += p;
            plié += Plié(p);
            if (!Trouve(plié)) {
                arbre[plié] = Clé{chemin, {}};
                ajouté = true;
            }
        }
        return ajouté;
    }

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

    void PoseRacines()
    {
        arbre.clear();
        for (const Racine &r : Racines)
            arbre[Plié(QLatin1String(r.nom))] = Clé{QLatin1String(r.nom), {}};
    }

    void Charge(const Signature &s)
    {
        PoseRacines();
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
        QString texte = QString::fromUtf8(octets);
        if (texte.startsWith(QChar(0xFEFF)))
            texte.remove(0, 1);
        Clé *courante = nullptr;
        for (QString ligne : texte.split(QLatin1Char('\n'))) {
            ligne = ligne.trimmed();
            if (ligne.isEmpty() || ligne.startsWith(QLatin1Char(';')) || ligne.startsWith(QLatin1Char('#')))
                continue;
            if (ligne.startsWith(QLatin1Char('[')) && ligne.endsWith(QLatin1Char(']'))) {
                courante = nullptr;
                const Découpe d = DécoupeChemin(ligne.mid(1, ligne.size() - 2));
                if (d.tropLong || d.racineInconnue)
                    continue;
                bool valide = true;
                for (const QString &p : d.pièces)
                    valide = valide && NomCléValide(p);
                if (!valide)
                    continue;
                Ajoute(d.pièces);
                courante = Trouve(Plié(d.pièces.join(QLatin1Char('\\'))));
                continue;
            }
            if (!courante)
                continue;
            if (auto v = LitLigneValeur(ligne))
                Pose(*courante, v->nom, v->texte);
        }
    }

    bool Enregistre()
    {
        const QString chemin = Fichier();
        QDir().mkpath(QFileInfo(chemin).absolutePath());
        QString texte = QStringLiteral("; Settings of the Globarium games: a [key] per section, \"name\"=\"value\" lines, UTF-8.\n");
        for (const auto &[plié, clé] : arbre) {
            if (!plié.contains(QLatin1Char('\\')) && clé.valeurs.empty())
                continue; // the roots are always there
            texte += QStringLiteral("\n[") + clé.chemin + QStringLiteral("]\n");
            for (const Valeur &v : clé.valeurs)
                texte += (v.nom.isEmpty() ? QStringLiteral("@") : ÉchappeTexte(v.nom)) + QLatin1Char('=') +
                         ÉchappeTexte(v.texte) + QLatin1Char('\n');
        }
        QSaveFile f(chemin);
        if (!f.open(QIODevice::WriteOnly))
            return false;
        const QByteArray octets = texte.toUtf8();
        if (f.write(octets) != octets.size()) {
            f.cancelWriting();
            return false;
        }
        if (!f.commit())
            return false;
        signature = SignatureFichier();
        return true;
    }

public:
    static void Pose(Clé &clé, const QString &nom, const QString &texte)
    {
        for (Valeur &v : clé.valeurs)
            if (v.nom.compare(nom, Qt::CaseInsensitive) == 0) {
                v.texte = texte;
                return;
            }
        clé.valeurs.push_back({nom, texte});
    }

    static const Valeur *Cherche(const Clé &clé, const QString &nom)
    {
        for (const Valeur &v : clé.valeurs)
            if (v.nom.compare(nom, Qt::CaseInsensitive) == 0)
                return &v;
        return nullptr;
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
            if (const Valeur *v = Magasin::Cherche(*c, nom.trimmed()); v && v->texte.size() <= LongueurMaxValeur) {
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
        if (const Valeur *v = Magasin::Cherche(c, nom); v && v->texte == texte)
            return false; // already so: nothing to rewrite
        Magasin::Pose(c, nom, texte);
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
