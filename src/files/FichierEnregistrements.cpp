#include "files/FichierEnregistrements.h"

#include "platform/Ansi.h"

#include <QFile>
#include <QSaveFile>
#include <cstring>

namespace {
void PoseEntier(char *p, i16 v)
{
    const auto u = static_cast<std::uint16_t>(v);
    p[0] = char(u & 0xFF);
    p[1] = char(u >> 8);
}
void PoseLong(char *p, i32 v)
{
    const auto u = static_cast<std::uint32_t>(v);
    for (int i = 0; i < 4; ++i)
        p[i] = char((u >> (8 * i)) & 0xFF);
}
i16 PrendEntier(const unsigned char *p) { return static_cast<i16>(std::uint16_t(p[0] | (p[1] << 8))); }
i32 PrendLong(const unsigned char *p)
{
    return static_cast<i32>(std::uint32_t(p[0]) | std::uint32_t(p[1]) << 8 | std::uint32_t(p[2]) << 16 |
                            std::uint32_t(p[3]) << 24);
}
// The longest file the game reads: a saved game with its block and forty lines, with room to spare.
constexpr qint64 TailleFichierMax = 1 << 20;
} // namespace

char *EcritureEnregistrements::Nouveau()
{
    const qsizetype début = octets.size();
    octets.append(TailleEnregistrement, '\0');
    return octets.data() + début;
}

void EcritureEnregistrements::Entier(i16 v) { PoseEntier(Nouveau(), v); }

void EcritureEnregistrements::Long(i32 v) { PoseLong(Nouveau(), v); }

void EcritureEnregistrements::Chaîne(const QString &texte)
{
    const QByteArray t = VersAnsi(texte).left(LongueurChaîneMax);
    char *p = Nouveau();
    PoseEntier(p, static_cast<i16>(t.size()));
    std::memcpy(p + 2, t.constData(), size_t(t.size()));
}

void EcritureEnregistrements::LigneScore(const TLigneScore &ligne, i16 niveau)
{
    // Name, points, length and level packed; the name is cut so that the line fits its record.
    const QByteArray nom = VersAnsi(ligne.Nom).left(LongueurChaîneMax - 10);
    char *p = Nouveau();
    PoseEntier(p, static_cast<i16>(nom.size()));
    std::memcpy(p + 2, nom.constData(), size_t(nom.size()));
    char *q = p + 2 + nom.size();
    PoseLong(q, ligne.Points);
    PoseLong(q + 4, ligne.Durée);
    PoseEntier(q + 8, niveau);
}

void EcritureEnregistrements::Paire(i16 a, i16 b)
{
    char *p = Nouveau();
    PoseEntier(p, a);
    PoseEntier(p + 2, b);
}

LectureEnregistrements::LectureEnregistrements(QByteArray contenu) : octets(std::move(contenu)), taille(octets.size())
{
    // The last record may stop behind its value, where its filler would begin; a value
    // that the end of the file cuts is a damaged file.
    nombre = int((octets.size() + TailleEnregistrement - 1) / TailleEnregistrement);
    octets.append(qsizetype(nombre) * TailleEnregistrement - octets.size(), '\0');
}

bool LectureEnregistrements::Présents(const unsigned char *p, int utiles) const
{
    return p - reinterpret_cast<const unsigned char *>(octets.constData()) + utiles <= taille;
}

const unsigned char *LectureEnregistrements::Prochain(int utiles)
{
    if (suivant >= nombre)
        return nullptr;
    const auto *p = reinterpret_cast<const unsigned char *>(octets.constData()) + qsizetype(suivant++) * TailleEnregistrement;
    return Présents(p, utiles) ? p : nullptr;
}

bool LectureEnregistrements::Entier(i16 &v)
{
    const unsigned char *p = Prochain(2);
    if (!p)
        return false;
    v = PrendEntier(p);
    return true;
}

bool LectureEnregistrements::Paire(i16 &a, i16 &b)
{
    const unsigned char *p = Prochain(4);
    if (!p)
        return false;
    a = PrendEntier(p);
    b = PrendEntier(p + 2);
    return true;
}

bool LectureEnregistrements::Long(i32 &v)
{
    const unsigned char *p = Prochain(4);
    if (!p)
        return false;
    v = PrendLong(p);
    return true;
}

bool LectureEnregistrements::Chaîne(QString &texte)
{
    const unsigned char *p = Prochain(2);
    if (!p)
        return false;
    const int l = std::uint16_t(p[0] | (p[1] << 8));
    if (l > LongueurChaîneMax || !Présents(p, 2 + l))
        return false;
    texte = DepuisAnsi(reinterpret_cast<const char *>(p + 2), l);
    return true;
}

bool LectureEnregistrements::LigneScore(TLigneScore &ligne, i16 &niveau)
{
    const unsigned char *p = Prochain(2);
    if (!p)
        return false;
    const int l = std::uint16_t(p[0] | (p[1] << 8));
    if (2 + l + 10 > TailleEnregistrement || !Présents(p, 2 + l + 10))
        return false;
    ligne.Nom = DepuisAnsi(reinterpret_cast<const char *>(p + 2), l);
    const unsigned char *q = p + 2 + l;
    ligne.Points = PrendLong(q);
    ligne.Durée = PrendLong(q + 4);
    niveau = PrendEntier(q + 8);
    return true;
}

bool EcritFichierEntier(const QString &chemin, const QByteArray &contenu)
{
    QSaveFile f(chemin);
    if (!f.open(QIODevice::WriteOnly))
        return false;
    if (f.write(contenu) != contenu.size()) {
        f.cancelWriting();
        return false;
    }
    return f.commit();
}

bool LitFichierEntier(const QString &chemin, QByteArray &contenu)
{
    QFile f(chemin);
    if (!f.open(QIODevice::ReadOnly) || f.size() > TailleFichierMax)
        return false;
    contenu = f.readAll();
    return contenu.size() == f.size();
}
