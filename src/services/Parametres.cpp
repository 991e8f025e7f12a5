#include "services/Parametres.h"

#include "platform/Boites.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/MisesAJour.h"
#include "services/Dossiers.h"
#include "services/Registre.h"
#include "services/Sons.h"
#include "services/TableChaines.h"

#include <QCoreApplication>
#include <QDir>


namespace {

const QString Version = QStringLiteral("version");
const QString Date = QStringLiteral("date");
const QString Joueur = QStringLiteral("joueur");
const QString LangueValeur = QStringLiteral("langue");
const QString Répertoire = QStringLiteral("répertoire");
const QString FichierDeLancement = QStringLiteral("fichier de lancement");
const QString RépertoireInformation = QStringLiteral("répertoire information");
const QString FichierScoresParDéfaut = QStringLiteral("KELMOR.SCS");

QString TexteMaintenant() { return Maintenant().toString(FormatDate); }

// The number at the head of a text, blanks before it skipped: " 2" is 2, "x" is 0.
int ValeurNumérique(const QString &texte)
{
    const QString t = texte.trimmed();
    qsizetype i = 0;
    const bool négatif = t.startsWith(QLatin1Char('-'));
    if (négatif || t.startsWith(QLatin1Char('+')))
        ++i;
    qint64 v = 0;
    for (; i < t.size() && t[i] >= QLatin1Char('0') && t[i] <= QLatin1Char('9'); ++i)
        v = qMin<qint64>(v * 10 + (t[i].unicode() - '0'), 32767);
    return int(négatif ? -v : v);
}

void DemandeRépertoireSauvegarde()
{
    Boîte(Message(TMessage::ChoisirRépertoireScores), StyleInformation, Message(TMessage::TitreChoixRépertoire));
    ChoisitDossier(TModeRépertoires::DossierJeu);
}

// The current folder is where the bare name of the score file is found. A folder
// that doesn't exist leaves it where it was.
void VaDansRépertoireSauvegarde()
{
    if (!Réglages().RépertoireSauvegarde.trimmed().isEmpty())
        QDir::setCurrent(Réglages().RépertoireSauvegarde);
}

// The installed games are looked at on every ordinary run. The reminder comes when
// at least 60 calendar days separate the stored date from today, whatever the hours.
// A date that can't be read is renewed without one.
void RappelSiLeTempsEstVenu()
{
    QString texte;
    LitValeur(CléFamille, Date, texte);
    ExploreJeux();
    const QDateTime dernier = QDateTime::fromString(texte.trimmed(), FormatDate);
    if (dernier.isValid()) {
        if (dernier.date().daysTo(Maintenant().date()) < JoursEntreRappels)
            return;
        AfficheRappel();
    }
    EcritValeur(CléFamille, Date, TexteMaintenant());
}

// Before the language is read the messages aren't loaded: those of the start are then in French.
QString MessageDuDémarrage(TMessage id)
{
    const auto i = static_cast<std::size_t>(id);
    return i < Langues().Messages.size() && !Langues().Messages[i].isEmpty() ? Langues().Messages[i] : ChaîneTable(1000 + int(id));
}

void SignaleRéglagesIllisibles()
{
    Boîte(MessageDuDémarrage(TMessage::RéglagesIllisibles) + QDir::toNativeSeparators(FichierRegistre()), StyleCritique,
          MessageDuDémarrage(TMessage::NomDuJeu).trimmed());
}

void MessageCléImpossible()
{
    Boîte(MessageDuDémarrage(TMessage::RéglagesNonEnregistrables).arg(QDir::toNativeSeparators(FichierRegistre())), StyleCritique,
          MessageDuDémarrage(TMessage::NomDuJeu).trimmed());
}
} // namespace


void DossiersParDéfaut()
{
    if (RépertoireAccessible(Réglages().RépertoireApplication)) {
        EcritValeur(CléJeu, Répertoire, Réglages().RépertoireApplication);
        Réglages().RépertoireSauvegarde = Réglages().RépertoireApplication;
        EcritValeur(CléJeu, FichierDeLancement, ComposeChemin(Réglages().RépertoireSauvegarde, FichierScoresParDéfaut));
        Réglages().FichierLancement = FichierScoresParDéfaut;
    } else {
        DemandeRépertoireSauvegarde();
    }
    Réglages().RépertoireInfo = Réglages().RépertoireApplication;
    EcritValeur(CléJeu, RépertoireInformation, Réglages().RépertoireInfo);
}

void PremierLancement()
{
    EcritValeur(CléFamille, Date, TexteMaintenant());
    EcritValeur(CléJeu, Version, Réglages().VersionJeu);
    EcritValeur(CléJeu, Joueur, QString());
    EcritValeur(CléJeu, LangueValeur, QStringLiteral("1"));
    Langues().Langue = Réglages().LangueDemandée ? Réglages().LangueDemandée : short(1);
    ChargeChaînes();
    DossiersParDéfaut();
    // The very first run always reminds.
    ExploreJeux();
    AfficheRappel();
}

void MiseAJourVersion()
{
    EcritValeur(CléFamille, Date, TexteMaintenant());
    EcritValeur(CléJeu, Version, Réglages().VersionJeu);
    DossiersParDéfaut();
}

void LitParamètres(Partie &P)
{
    Réglages().ParamètresLus = true;
    Réglages().VersionJeu = VersionDuProgramme();
    NettoieRegistre();
    if (!RegistreLisible()) {
        Réglages().ParamètresLus = false;
        SignaleRéglagesIllisibles();
        return;
    }
    ChargeListeJeux();

    QString version;
    const i32 lu = LitValeur(CléJeu, Version, version);
    if (lu == -1 && CréeClé(CléJeu) != 0) {
        Réglages().ParamètresLus = false;
        MessageCléImpossible();
        return;
    }
    if (lu != 0 || version.isEmpty()) {
        PremierLancement();
        // The bare name of the score file is looked for in the current folder.
        VaDansRépertoireSauvegarde();
        CoupeSonsSystème();
        return;
    }

    QString langue;
    LitValeur(CléJeu, LangueValeur, langue);
    Langues().Langue = static_cast<short>(ValeurNumérique(langue));
    if (Langues().Langue < 1)
        Langues().Langue = 1;
    if (Réglages().LangueDemandée)
        Langues().Langue = Réglages().LangueDemandée;
    ChargeChaînes();

    if (version != Réglages().VersionJeu)
        MiseAJourVersion();
    else
        RappelSiLeTempsEstVenu();

    LitValeur(CléJeu, Joueur, P.NomJoueur);
    LitValeur(CléJeu, Répertoire, Réglages().RépertoireSauvegarde);
    if (!RépertoireAccessible(Réglages().RépertoireSauvegarde))
        DemandeRépertoireSauvegarde();
    VaDansRépertoireSauvegarde();
    LitValeur(CléJeu, FichierDeLancement, Réglages().FichierLancement);
    LitValeur(CléJeu, RépertoireInformation, Réglages().RépertoireInfo);
    CoupeSonsSystème();
}
