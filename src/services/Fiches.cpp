#include "services/Fiches.h"

#include "platform/Ansi.h"
#include "platform/Boites.h"
#include "files/FichierEnregistrements.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/ParametrageRepertoires.h"
#include "services/Parametres.h"

#include <QFile>
#include <QFileInfo>

i16 FicheEditée = 1;
QString TexteLu;
QString FichierFichesOuvert;

namespace {
enum class Lecture { Lue, Absente, Abîmée };

// A file or a record that isn't there is no fault: the card is empty. A record whose
// lengths run past its 650 bytes, or past the end of the file, is damaged.
Lecture LitFiche(const QString &chemin, int numéro, TFiche &fiche)
{
    if (numéro < 1)
        return Lecture::Absente;
    QFile f(chemin);
    if (!f.open(QIODevice::ReadOnly) || !f.seek(qint64(numéro - 1) * TailleFiche))
        return Lecture::Absente;
    const QByteArray r = f.read(TailleFiche);
    if (r.isEmpty())
        return Lecture::Absente;
    auto longueur = [&r](int i) { return int(quint8(r[i]) | quint8(r[i + 1]) << 8); };
    if (r.size() < 4)
        return Lecture::Abîmée;
    const int n1 = longueur(0);
    if (4 + n1 > r.size())
        return Lecture::Abîmée;
    const int n2 = longueur(2 + n1);
    if (4 + n1 + n2 > r.size())
        return Lecture::Abîmée;
    fiche.Nom = DepuisAnsi(r.constData() + 2, n1);
    fiche.Texte = DepuisAnsi(r.constData() + 4 + n1, n2);
    return Lecture::Lue;
}
} // namespace

bool LitFicheInfo(const QString &chemin, int numéro, TFiche &fiche)
{
    return LitFiche(chemin, numéro, fiche) == Lecture::Lue;
}

TFiche FicheMontrée(const QString &chemin, int numéro)
{
    TFiche fiche;
    if (LitFiche(chemin, numéro, fiche) == Lecture::Abîmée) {
        Boîte(chemin + QStringLiteral(" : ") + Messages[27], StyleExclamation, Messages[28]);
        fiche = TFiche{};
    }
    return fiche;
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

TFiche LireFiche(int numéro)
{
    const TFiche fiche = FicheMontrée(FichierFichesOuvert, numéro);
    TexteLu = fiche.Texte;
    return fiche;
}

bool EcrireFiche(int numéro, const TFiche &fiche)
{
    const QByteArray enregistrement = OctetsFiche(fiche);
    bool écrit = false;
    if (!enregistrement.isEmpty() && numéro >= 1) {
        // The other records are kept byte for byte: an existing file that can't be read
        // is not replaced.
        QByteArray contenu;
        if (!QFileInfo::exists(FichierFichesOuvert) || LitFichierEntier(FichierFichesOuvert, contenu)) {
            const qint64 début = qint64(numéro - 1) * TailleFiche;
            if (contenu.size() < début + TailleFiche)
                contenu.append(QByteArray(début + TailleFiche - contenu.size(), '\0'));
            contenu.replace(début, TailleFiche, enregistrement);
            écrit = EcritFichierEntier(FichierFichesOuvert, contenu);
        }
    }
    if (!écrit) {
        // The player counts characters as typed: a line break is two.
        const qsizetype longueur = 4 + fiche.Nom.size() + fiche.Texte.size();
        Boîte(QStringLiteral("Erreur à l'enregistrement de cette fiche ; la longueur de l'enregistrement est de ") +
                  QString::number(longueur) + QStringLiteral(" pour un maximum autorisé de 650"),
              StyleInformation, QStringLiteral("Erreur..."));
    }
    return écrit;
}

void CréeFichierInfo(int langue)
{
    if (langue < 1 || langue >= int(CheminsInfo.size()))
        return;
    if (langue == Langue)
        Boîte(Messages[18], StyleInformation, Messages[102]);
    if (!RépertoireAccessible(RépertoireInfo)) {
        Boîte(Messages[119] + QStringLiteral(" (") + RépertoireInfo + QLatin1Char(')'), StyleInformation, Messages[46]);
        Boîte(Messages[135], StyleInformation, Messages[118]);
        ModeRépertoires = TModeRépertoires::DossierInformation;
        MontreParamétrageRépertoires();
    }
    // The folder chosen may hold a file already written.
    if (QFileInfo::exists(CheminsInfo[langue]))
        return;
    // Names and text in the language in use, also for the other language's file: it is
    // the player's to rewrite them.
    QByteArray contenu;
    contenu.reserve(NombreFiches * TailleFiche);
    for (int k = 1; k <= NombreFiches; ++k) {
        QByteArray r = OctetsFiche({Jeu().Cantons[k].Nom, Messages[103]});
        if (r.isEmpty())
            r = OctetsFiche({Jeu().Cantons[k].Nom, QString()});
        if (r.isEmpty())
            r = QByteArray(TailleFiche, '\0');
        contenu.append(r);
    }
    // A folder that still can't be written leaves the game without cards, and nothing more.
    EcritFichierEntier(CheminsInfo[langue], contenu);
}
