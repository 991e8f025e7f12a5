#include "services/Fiches.h"

#include "platform/Boites.h"
#include "files/FichierEnregistrements.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Dossiers.h"
#include "services/Parametres.h"

#include <QFile>
#include <QFileInfo>

TFicheEnEdition &FicheEnEdition()
{
    static TFicheEnEdition édition;
    return édition;
}

namespace {
using Lecture = TLectureFiche;

Lecture LitFiche(const QString &chemin, int numéro, TFiche &fiche)
{
    if (numéro < 1)
        return Lecture::Absente;
    QFile f(chemin);
    if (!f.open(QIODevice::ReadOnly) || !f.seek(qint64(numéro - 1) * TailleFiche))
        return Lecture::Absente;
    return LitOctetsFiche(f.read(TailleFiche), fiche);
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
        Boîte(chemin + QStringLiteral(" : ") + Message(TMessage::FichierNonInterprétable), StyleExclamation, Message(TMessage::TitreErreurDeFormat));
        fiche = TFiche{};
    }
    return fiche;
}


TFiche LireFiche(int numéro)
{
    const TFiche fiche = FicheMontrée(FicheEnEdition().FichierFichesOuvert, numéro);
    FicheEnEdition().TexteLu = fiche.Texte;
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
        if (!QFileInfo::exists(FicheEnEdition().FichierFichesOuvert) || LitFichierEntier(FicheEnEdition().FichierFichesOuvert, contenu)) {
            const qint64 début = qint64(numéro - 1) * TailleFiche;
            if (contenu.size() < début + TailleFiche)
                contenu.append(QByteArray(début + TailleFiche - contenu.size(), '\0'));
            contenu.replace(début, TailleFiche, enregistrement);
            écrit = EcritFichierEntier(FicheEnEdition().FichierFichesOuvert, contenu);
        }
    }
    if (!écrit) {
        // The player counts characters as typed: a line break is two.
        const qsizetype longueur = 4 + fiche.Nom.size() + fiche.Texte.size();
        Boîte(Message(TMessage::FicheTropLongue).arg(longueur), StyleInformation, Message(TMessage::TitreErreurFiche));
    }
    return écrit;
}

void CréeFichierInfo(const Partie &P, int langue)
{
    if (langue < 1 || langue >= int(Langues().CheminsInfo.size()))
        return;
    if (langue == Langues().Langue)
        Boîte(Message(TMessage::FichierInfoAbsent), StyleInformation, Message(TMessage::TitreCréationFichierInfo));
    if (!RépertoireAccessible(Réglages().RépertoireInfo)) {
        Boîte(Message(TMessage::RépertoireNonInscriptible) + QStringLiteral(" (") + Réglages().RépertoireInfo + QLatin1Char(')'), StyleInformation, Message(TMessage::TitreErreur));
        Boîte(Message(TMessage::ChoisirRépertoireInfo), StyleInformation, Message(TMessage::TitreChoixRépertoire));
        ChoisitDossier(TModeRépertoires::DossierInformation);
    }
    // The folder chosen may hold a file already written.
    if (QFileInfo::exists(Langues().CheminsInfo[langue]))
        return;
    // Names and text in the language in use, also for the other language's file: it is
    // the player's to rewrite them.
    QByteArray contenu;
    contenu.reserve(NombreFiches * TailleFiche);
    for (int k = 1; k <= NombreFiches; ++k) {
        QByteArray r = OctetsFiche({P.Cantons[k].Nom, Message(TMessage::FicheÀRemplir)});
        if (r.isEmpty())
            r = OctetsFiche({P.Cantons[k].Nom, QString()});
        if (r.isEmpty())
            r = QByteArray(TailleFiche, '\0');
        contenu.append(r);
    }
    // A folder that still can't be written leaves the game without cards, and nothing more.
    EcritFichierEntier(Langues().CheminsInfo[langue], contenu);
}
