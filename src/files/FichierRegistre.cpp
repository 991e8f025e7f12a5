#include "files/FichierRegistre.h"

#include <optional>

namespace {
constexpr int PiècesMax = 32;
constexpr int LongueurMaxNomClé = 255;
} // namespace

QString Plié(const QString &s) { return s.toCaseFolded(); }

TDécoupe DécoupeChemin(const QString &chemin, bool section)
{
    TDécoupe d;
    qsizetype début = 0;
    while (section && début < chemin.size() && chemin[début].isSpace())
        ++début;
    d.pièces = (section ? chemin.mid(début) : chemin.trimmed()).split(QLatin1Char('\\'), Qt::SkipEmptyParts);
    if (d.pièces.size() > PiècesMax) {
        d.tropLong = true;
        return d;
    }
    d.racineInconnue = true;
    if (!d.pièces.isEmpty())
        for (const TRacine &r : Racines)
            if (d.pièces[0].compare(QLatin1String(r.nom), Qt::CaseInsensitive) == 0) {
                d.pièces[0] = QLatin1String(r.nom);
                d.racineInconnue = false;
            }
    return d;
}

bool NomCléValide(const QString &nom)
{
    if (nom.size() > LongueurMaxNomClé)
        return false;
    for (QChar c : nom)
        if (c.unicode() < 0x20 || c.unicode() == 0x7F)
            return false;
    return true;
}

namespace {

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
std::optional<TValeurRegistre> LitLigneValeur(const QString &ligne)
{
    qsizetype i = 0;
    TValeurRegistre v;
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

} // namespace

TArbreRegistre ArbreVide()
{
    TArbreRegistre arbre;
    for (const TRacine &r : Racines)
        arbre[Plié(QLatin1String(r.nom))] = TCléRegistre{QLatin1String(r.nom), {}};
    return arbre;
}

TCléRegistre *TrouveClé(TArbreRegistre &arbre, const QString &cléPliée)
{
    auto it = arbre.find(cléPliée);
    return it == arbre.end() ? nullptr : &it->second;
}

bool AjouteClé(TArbreRegistre &arbre, const QStringList &pièces)
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
        if (!TrouveClé(arbre, plié)) {
            arbre[plié] = TCléRegistre{chemin, {}};
            ajouté = true;
        }
    }
    return ajouté;
}

void PoseValeur(TCléRegistre &clé, const QString &nom, const QString &texte)
{
    for (TValeurRegistre &v : clé.valeurs)
        if (v.nom.compare(nom, Qt::CaseInsensitive) == 0) {
            v.texte = texte;
            return;
        }
    clé.valeurs.push_back({nom, texte});
}

const TValeurRegistre *ChercheValeur(const TCléRegistre &clé, const QString &nom)
{
    for (const TValeurRegistre &v : clé.valeurs)
        if (v.nom.compare(nom, Qt::CaseInsensitive) == 0)
            return &v;
    return nullptr;
}

TArbreRegistre LitOctetsRegistre(const QByteArray &octets)
{
    TArbreRegistre arbre = ArbreVide();
    QString texte = QString::fromUtf8(octets);
    if (texte.startsWith(QChar(0xFEFF)))
        texte.remove(0, 1);
    TCléRegistre *courante = nullptr;
    for (QString ligne : texte.split(QLatin1Char('\n'))) {
        ligne = ligne.trimmed();
        if (ligne.isEmpty() || ligne.startsWith(QLatin1Char(';')) || ligne.startsWith(QLatin1Char('#')))
            continue;
        if (ligne.startsWith(QLatin1Char('[')) && ligne.endsWith(QLatin1Char(']'))) {
            courante = nullptr;
            const TDécoupe d = DécoupeChemin(ligne.mid(1, ligne.size() - 2), true);
            if (d.tropLong || d.racineInconnue)
                continue;
            bool valide = true;
            for (const QString &p : d.pièces)
                valide = valide && NomCléValide(p);
            if (!valide)
                continue;
            AjouteClé(arbre, d.pièces);
            courante = TrouveClé(arbre, Plié(d.pièces.join(QLatin1Char('\\'))));
            continue;
        }
        if (!courante)
            continue;
        if (auto v = LitLigneValeur(ligne))
            PoseValeur(*courante, v->nom, v->texte);
    }
    return arbre;
}

QByteArray OctetsRegistre(const TArbreRegistre &arbre)
{
    QString texte = QStringLiteral("; Settings of the Globarium games: a [key] per section, \"name\"=\"value\" lines, UTF-8.\n");
    for (const auto &[plié, clé] : arbre) {
        if (!plié.contains(QLatin1Char('\\')) && clé.valeurs.empty())
            continue; // the roots are always there
        texte += QStringLiteral("\n[") + clé.chemin + QStringLiteral("]\n");
        for (const TValeurRegistre &v : clé.valeurs)
            texte += (v.nom.isEmpty() ? QStringLiteral("@") : ÉchappeTexte(v.nom)) + QLatin1Char('=') +
                     ÉchappeTexte(v.texte) + QLatin1Char('\n');
    }
    return texte.toUtf8();
}
