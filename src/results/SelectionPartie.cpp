#include "results/SelectionPartie.h"

#include "screen/VueJeu.h"
#include "platform/Boites.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "platform/Horloge.h"
#include "results/Parties.h"
#include "results/Scores.h"
#include "screen/Ajustement.h"
#include "screen/EcranPrincipal.h"
#include "engine/Vue.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Registre.h"
#include "results/PartieEnCours.h"
#include "results/HistoriqueJoueur.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStorageInfo>
#include <cmath>


namespace {
const QString Parent = QStringLiteral("..");

} // namespace

SélectionPartie::SélectionPartie() : QDialog(FenêtrePrincipale(), CadreDialogueFixe)
{
    setObjectName(QStringLiteral("SélectionPartie"));
    setFixedSize(4680 / TwipsPerPixelX, 4590 / TwipsPerPixelY);
    DemandeDossier().SortieParamétrage = false;
    setWindowTitle(DemandeDossier().TypeFichier == TTypeFichier::Partie ? Message(TMessage::ArrêtEnCoursDeJeu) : Message(TMessage::ParamétrageDeLaPartie));
    extension = DemandeDossier().TypeFichier == TTypeFichier::Partie ? QStringLiteral(".CAS") : QStringLiteral(".SCS");

    Entête = new QLabel(this);
    Entête->setGeometry(22, 9, 268, 22);
    Entête->setAlignment(Qt::AlignCenter);
    QFont f = Entête->font();
    f.setPointSizeF(9.75);
    f.setBold(true);
    Entête->setFont(f);
    Répertoire = new QListWidget(this);
    Répertoire->setGeometry(22, 39, 129, 126);
    Lecteur = new QComboBox(this);
    Lecteur->setGeometry(23, 178, 129, 21);
    Fichier = new QListWidget(this);
    Fichier->setGeometry(168, 40, 121, 136);
    NomFichier = new QLineEdit(this);
    NomFichier->setGeometry(171, 212, 120, 22);
    BoutonOK = new QPushButton(QStringLiteral("OK"), this);
    BoutonOK->setGeometry(24, 264, 50, 36);
    BoutonAnnuler = new QPushButton(Message(TMessage::Annuler), this);
    BoutonAnnuler->setGeometry(216, 264, 74, 34);
    Entête->setObjectName(QStringLiteral("Entête"));
    Répertoire->setObjectName(QStringLiteral("Répertoire"));
    Lecteur->setObjectName(QStringLiteral("Lecteur"));
    Fichier->setObjectName(QStringLiteral("Fichier"));
    NomFichier->setObjectName(QStringLiteral("NomFichier"));
    BoutonOK->setObjectName(QStringLiteral("BoutonOK"));
    BoutonAnnuler->setObjectName(QStringLiteral("BoutonAnnuler"));
    for (QWidget *w : std::initializer_list<QWidget *>{this, Répertoire, Lecteur, Fichier, NomFichier, BoutonOK, BoutonAnnuler})
        w->setProperty("HelpContextID", 10);

    if (DemandeDossier().ModeRépertoires != TModeRépertoires::Chargement) {
        Entête->setText(DemandeDossier().TypeFichier == TTypeFichier::Partie ? Message(TMessage::NomFichierSauvegarde) : Message(TMessage::FichierParamétrageÀSauver));
        NomFichier->show();
    } else {
        Entête->setText(DemandeDossier().TypeFichier == TTypeFichier::Partie ? Message(TMessage::PartieÀCharger) : Message(TMessage::FichierParamétrageÀCharger));
        NomFichier->hide();
    }

    const InfoEcran écran = MesureEcran();
    move((écran.largeur - width()) / 2, (écran.hauteur - height()) / 2);

    for (const QStorageInfo &v : QStorageInfo::mountedVolumes())
        if (v.isValid() && v.isReady())
            Lecteur->addItem(v.rootPath());
    chemin = SansSéparateurFinal(QDir::currentPath().trimmed());
    RemplitListes();

    connect(Lecteur, &QComboBox::activated, this, [this](int i) { ChangeRépertoire(Lecteur->itemText(i)); });
    connect(Répertoire, &QListWidget::itemActivated, this, [this](QListWidgetItem *item) {
        ChangeRépertoire(item->text() == Parent ? QFileInfo(chemin).path()
                                                : ComposeChemin(chemin, item->text()));
    });
    connect(Fichier, &QListWidget::itemDoubleClicked, this, [this] { Fichier_DblClick(); });
    connect(BoutonOK, &QPushButton::clicked, this, [this] { BoutonOK_Click(); });
    connect(BoutonAnnuler, &QPushButton::clicked, this, [this] { reject(); });
}

void SélectionPartie::showEvent(QShowEvent *e)
{
    QDialog::showEvent(e);
    if (DemandeDossier().ModeRépertoires == TModeRépertoires::Sauvegarde)
        NomFichier->setFocus();
}

void SélectionPartie::keyPressEvent(QKeyEvent *e)
{
    // Enter does one thing, that of the control it was typed in: OK from the name, the
    // file's own action from the file list. A folder list has opened its folder already
    // and a button has pressed itself; nothing may press OK on top of that.
    if (e->key() != Qt::Key_Return && e->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(e);
        return;
    }
    e->accept();
    if (focusWidget() == NomFichier)
        BoutonOK_Click();
    else if (focusWidget() == Fichier && Fichier->currentItem())
        Fichier_DblClick();
}

void SélectionPartie::ChangeRépertoire(const QString &dossier)
{
    chemin = SansSéparateurFinal(QDir::cleanPath(dossier).trimmed());
    RemplitListes();
}

void SélectionPartie::RemplitListes()
{
    // A folder that can't be listed shows empty lists; the dialog stays usable.
    Répertoire->clear();
    Fichier->clear();
    const QDir d(chemin);
    if (!d.isRoot())
        Répertoire->addItem(Parent);
    Répertoire->addItems(d.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase));
    Fichier->addItems(d.entryList({QLatin1Char('*') + extension}, QDir::Files, QDir::Name | QDir::IgnoreCase));
    const int i = Lecteur->findText(QStorageInfo(chemin).rootPath());
    if (i >= 0)
        Lecteur->setCurrentIndex(i);
}

void SélectionPartie::Fichier_DblClick()
{
    if (DemandeDossier().ModeRépertoires == TModeRépertoires::Chargement) {
        BoutonOK_Click();
        return;
    }
    if (Fichier->currentItem())
        NomFichier->setText(Fichier->currentItem()->text());
}

void SélectionPartie::ProposeRépertoire()
{
    const QString a = SansSéparateurFinal(chemin.trimmed());
    const QString b = SansSéparateurFinal(Réglages().RépertoireSauvegarde.trimmed());
    if (a.compare(b, Qt::CaseInsensitive) == 0)
        return;
    if (Boîte(Message(TMessage::RépertoireParDéfaut) + chemin, StyleQuestion, Message(TMessage::TitreChoixRépertoire)) != RéponseOui)
        return;
    EcritValeur(CléJeu, QStringLiteral("répertoire"), chemin);
    QDir::setCurrent(chemin);
    Réglages().RépertoireSauvegarde = chemin;
}

void SélectionPartie::BoutonOK_Click()
{
    if (DemandeDossier().ModeRépertoires == TModeRépertoires::Chargement) {
        if (!Fichier->currentItem()) {
            Boîte(DemandeDossier().TypeFichier == TTypeFichier::Partie ? Message(TMessage::ChoisirFichierPartie) : Message(TMessage::ChoisirFichierParamétrage), StyleExclamation, Message(TMessage::TitreMEnfin));
            return;
        }
        const QString cheminFichier = ComposeChemin(chemin, Fichier->currentItem()->text());
        if (DemandeDossier().TypeFichier == TTypeFichier::Partie) {
            if (!LitPartie(cheminFichier)) {
                Boîte(Message(TMessage::FichierNonInterprétable), StyleExclamation, Message(TMessage::TitreErreurDeFormat));
                return;
            }
            CommenceHistorique(QFileInfo(cheminFichier).absoluteFilePath());
            QFile::remove(cheminFichier);
            ProposeRépertoire();
            Jeu().ModeRévision = false;
            AjusteCarte();
            Vue(Jeu()).AffichePanneau();
            MontreCantons();
            AfficheScore();
            AfficheRestants(Jeu().RestantsEtape);
            QuestionSuivante(Jeu());
            Jeu().PartieVierge = false;
            Jeu().PartieEnregistrée = false;
            accept();
            Jeu().HeureDépart = static_cast<i32>(std::lrint(Timer() - Jeu().DuréePartie));
            return;
        }
        if (Boîte(Message(TMessage::ParamétrageParDéfautAuLancement), StyleQuestion, Message(TMessage::TitreChargementParamétrage)) == RéponseOui) {
            EcritValeur(CléJeu, QStringLiteral("fichier de lancement"), cheminFichier);
            ProposeRépertoire();
        }
        Réglages().FichierLancement = cheminFichier;
        ChargeScores();
        Jeu().Etape = TEtape::Aucune;
        DébutEtape(Jeu());
        Jeu().PartieVierge = true;
        Jeu().ModeRévision = false;
        AjusteCarte();
        MontreCantons();
        accept();
        return;
    }

    // A save: the name that is really used stands in the box.
    QString nom = NomFichier->text();
    const qsizetype point = nom.indexOf(QLatin1Char('.'));
    if (point >= 0)
        nom = nom.left(point);
    NomFichier->setText(nom + extension);
    if (nom.trimmed().isEmpty()) {
        Boîte(Message(TMessage::NomFichierObligatoire), StyleExclamation, Message(TMessage::TitreCourage));
        return;
    }
    const QString cheminFichier = ComposeChemin(chemin, nom + extension);
    if (QFile::exists(cheminFichier)) {
        Boîte(Message(TMessage::FichierExisteDéjà), StyleExclamation, Message(TMessage::TitrePasDAccord));
        return;
    }
    if (DemandeDossier().TypeFichier == TTypeFichier::Partie) {
        if (!EcritPartie(cheminFichier))
            return;
        NoteHistorique(TIssuePartie::Enregistrée, QFileInfo(cheminFichier).absoluteFilePath());
        ProposeRépertoire();
    } else {
        Réglages().FichierLancement = cheminFichier;
        for (int i = 1; i <= NombrePlaces; ++i)
            Jeu().Cantons[i].Inhibé = Jeu().Cantons[i].Trouvé;
        if (DemandeDossier().ModeRépertoires == TModeRépertoires::SauvegardeAvecScores) {
            EcritFichierScores(true);
        } else {
            EcritFichierScores(false);
            RazScores();
        }
        if (DemandeDossier().LancementDemandé) {
            EcritValeur(CléJeu, QStringLiteral("fichier de lancement"), Réglages().FichierLancement);
            ProposeRépertoire();
        }
    }
    RetourAuRepos(Jeu());
    DemandeDossier().SortieParamétrage = true;
    accept();
}

void MontreSélectionPartie()
{
    SélectionPartie dialogue;
    ExécuteModal(dialogue);
}

// ---------------------------------------------------------------- the commands that open it

void EnregistrePartie()
{
    if (!PartieEnCours())
        return;
    SoldeQuestion(Jeu());
    if (Jeu().Score <= 0) {
        PartiePerdue(Jeu());
        return;
    }
    Jeu().DuréePartie = DuréeDepuis(Jeu().HeureDépart);
    DemandeDossier().ModeRépertoires = TModeRépertoires::Sauvegarde;
    DemandeDossier().TypeFichier = TTypeFichier::Partie;
    MontreSélectionPartie();
}

void FichierLire_Click()
{
    if (!ConfirmeArrêt())
        return;
    DemandeDossier().ModeRépertoires = TModeRépertoires::Chargement;
    DemandeDossier().TypeFichier = TTypeFichier::Partie;
    MontreSélectionPartie();
    Jeu().ConseilFicheDonné = false;
}
