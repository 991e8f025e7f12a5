#include "screen/ParametrageRepertoires.h"

#include "platform/Boites.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Reglages.h"
#include "services/Registre.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStorageInfo>
#include <QStyle>


namespace {
const QString Parent = QStringLiteral("..");
const QString FichierScoresParDéfaut = QStringLiteral("KELMOR.SCS");

QString AvecSéparateurFinal(const QString &d) { return d.endsWith(SéparateurChemin) ? d : d + SéparateurChemin; }

// A folder the lists can show: it exists and can be read and gone through.
bool Listable(const QString &dossier)
{
    const QFileInfo f(dossier);
    return !dossier.isEmpty() && f.isDir() && f.isReadable() && f.isExecutable();
}
} // namespace

ParamétrageRépertoires::ParamétrageRépertoires() : QDialog(FenêtrePrincipale(), CadreDialogueFixe)
{
    setObjectName(QStringLiteral("ParamétrageRépertoires"));
    setFixedSize(284, 345);

    Entête = new QLabel(this);
    Entête->setGeometry(0, 8, 268, 54);
    Entête->setAlignment(Qt::AlignCenter);
    Entête->setWordWrap(true);
    QFont gras = Entête->font();
    gras.setBold(true);
    Entête->setFont(gras);
    Répertoire = new QListWidget(this);
    Répertoire->setGeometry(0, 70, 129, 126);
    Fichier = new QListWidget(this);
    Fichier->setGeometry(146, 71, 121, 136);
    Fichier->setEnabled(false);
    Lecteur = new QComboBox(this);
    Lecteur->setGeometry(1, 208, 129, 21);
    NomFichier = new QLineEdit(this);
    NomFichier->setGeometry(5, 243, 264, 22);
    NomFichier->setEnabled(false);
    Command1 = new QPushButton(this);
    Command1->setGeometry(8, 272, 25, 25);
    Command1->setIcon(style()->standardIcon(QStyle::SP_FileDialogNewFolder));
    Command1->setToolTip(QStringLiteral("Création d'un sous répertoire"));
    SousRépertoire = new QLineEdit(this);
    SousRépertoire->setGeometry(40, 272, 120, 22);
    SousRépertoire->hide();
    BoutonOK = new QPushButton(QStringLiteral("OK"), this);
    BoutonOK->setGeometry(120, 304, 50, 36);
    // No default button: Enter belongs to the control that has the focus, so that in
    // SousRépertoire it makes the folder and in the folder list it goes in.
    Entête->setObjectName(QStringLiteral("Entête"));
    Répertoire->setObjectName(QStringLiteral("Répertoire"));
    Lecteur->setObjectName(QStringLiteral("Lecteur"));
    Fichier->setObjectName(QStringLiteral("Fichier"));
    NomFichier->setObjectName(QStringLiteral("NomFichier"));
    Command1->setObjectName(QStringLiteral("Command1"));
    SousRépertoire->setObjectName(QStringLiteral("SousRépertoire"));
    BoutonOK->setObjectName(QStringLiteral("BoutonOK"));
    BoutonOK->setAutoDefault(false);
    Command1->setAutoDefault(false);
    setTabOrder(BoutonOK, Répertoire);
    setTabOrder(Répertoire, Lecteur);
    setTabOrder(Lecteur, Command1);
    setTabOrder(Command1, SousRépertoire);
    BoutonOK->setFocus();
    setProperty("HelpContextID", 180);

    const InfoEcran écran = MesureEcran();
    EcranMesuré().LargeurEcran = écran.largeur;
    EcranMesuré().HauteurEcran = écran.hauteur;
    move((EcranMesuré().LargeurEcran - width()) / 2, (EcranMesuré().HauteurEcran - height()) / 2);
    setWindowTitle(Message(TMessage::ParamétrageRépertoires));
    if (DemandeDossier().ModeRépertoires == TModeRépertoires::DossierJeu) {
        motif = QStringLiteral("*.SCS");
        Entête->setText(Message(TMessage::RépertoireSauvegardeParties));
    } else {
        motif = QStringLiteral("*.INF");
        Entête->setText(Message(TMessage::RépertoireSauvegardeInfo));
    }

    // Single files mounted in place (as containers do) are no drives.
    for (const QStorageInfo &v : QStorageInfo::mountedVolumes())
        if (v.isValid() && v.isReady() && QFileInfo(v.rootPath()).isDir() && Lecteur->findText(v.rootPath()) < 0)
            Lecteur->addItem(v.rootPath());
    chemin = SansSéparateurFinal(QDir::currentPath());
    RemplitListes();
    // A RépertoireInfo that is gone leaves the list on the current folder.
    if (DemandeDossier().ModeRépertoires == TModeRépertoires::DossierInformation)
        ChangeRépertoire(Réglages().RépertoireInfo);

    connect(Lecteur, &QComboBox::activated, this, [this](int i) { Lecteur_Change(i); });
    connect(Répertoire, &QListWidget::itemActivated, this, [this](QListWidgetItem *item) {
        ChangeRépertoire(item->text() == Parent ? QFileInfo(chemin).path() : ComposeChemin(chemin, item->text()));
    });
    connect(Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(SousRépertoire, &QLineEdit::returnPressed, this, [this] { SousRépertoire_Entrée(); });
    SousRépertoire->installEventFilter(this);
    connect(BoutonOK, &QPushButton::clicked, this, [this] { BoutonOK_Click(); });
}

bool ParamétrageRépertoires::eventFilter(QObject *objet, QEvent *évènement)
{
    // SousRépertoire hides when the player goes to another control; its text stays for OK.
    // A message box or another window taking the front doesn't count.
    if (objet == SousRépertoire && évènement->type() == QEvent::FocusOut) {
        const auto raison = static_cast<QFocusEvent *>(évènement)->reason();
        if (raison != Qt::ActiveWindowFocusReason && raison != Qt::PopupFocusReason)
            SousRépertoire->hide();
    }
    return QDialog::eventFilter(objet, évènement);
}

void ParamétrageRépertoires::keyPressEvent(QKeyEvent *e)
{
    switch (e->key()) {
    case Qt::Key_Escape:
        // There is no Cancel: only the close box leaves without a folder.
        e->accept();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // With no default button, Enter still presses the button that has the focus.
        if (auto *bouton = qobject_cast<QPushButton *>(focusWidget())) {
            bouton->click();
            e->accept();
            return;
        }
        break;
    default:
        break;
    }
    QDialog::keyPressEvent(e);
}

bool ParamétrageRépertoires::ChangeRépertoire(const QString &dossier)
{
    const bool possible = Listable(dossier);
    if (possible)
        chemin = SansSéparateurFinal(QDir::cleanPath(QFileInfo(dossier).absoluteFilePath()));
    RemplitListes();
    return possible;
}

void ParamétrageRépertoires::RemplitListes()
{
    const QDir d(chemin);
    Répertoire->clear();
    if (!d.isRoot())
        Répertoire->addItem(Parent);
    Répertoire->addItems(d.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase));
    Fichier->clear();
    Fichier->addItems(d.entryList({motif}, QDir::Files, QDir::Name | QDir::IgnoreCase));
    NomFichier->setText(AvecSéparateurFinal(chemin));

    const QString volume = QStorageInfo(chemin).rootPath();
    if (!volume.isEmpty() && Lecteur->findText(volume) < 0)
        Lecteur->addItem(volume);
    Lecteur->setCurrentIndex(Lecteur->findText(volume));
}

void ParamétrageRépertoires::Lecteur_Change(int index)
{
    // A volume that can't be read is passed over: the list stays, and so does the drive shown.
    ChangeRépertoire(Lecteur->itemText(index));
}

void ParamétrageRépertoires::Command1_Click()
{
    SousRépertoire->show();
    SousRépertoire->setFocus();
}

std::optional<bool> ParamétrageRépertoires::CréeSousRépertoire()
{
    if (SousRépertoire->text().isEmpty())
        return std::nullopt;
    const QString cible = NomFichier->text() + SousRépertoire->text();
    // The folder is looked at, not gone into: the process's current folder is where the
    // bare name of the score file is found, and it must not follow the player's attempts.
    if (QFileInfo(cible).isDir()) {
        Boîte(Message(TMessage::RépertoireExisteDéjà), StyleInformation, Message(TMessage::TitreErreur));
        return false;
    }
    if (!QDir().mkdir(cible) || !Listable(cible)) {
        Boîte(Message(TMessage::DossierNonCréé), StyleInformation, Message(TMessage::TitreErreur));
        return false;
    }
    return true;
}

void ParamétrageRépertoires::EntreDansSousRépertoire()
{
    ChangeRépertoire(NomFichier->text() + SousRépertoire->text());
    SousRépertoire->clear();
    Répertoire->setFocus();
}

void ParamétrageRépertoires::SousRépertoire_Entrée()
{
    if (CréeSousRépertoire() == true)
        EntreDansSousRépertoire();
}

void ParamétrageRépertoires::BoutonOK_Click()
{
    // A name left in the hidden box is still made and chosen; one that is refused
    // leaves the folder shown as the choice.
    if (!SousRépertoire->text().isEmpty() && CréeSousRépertoire() == true)
        EntreDansSousRépertoire();

    const QString dossier = chemin;
    QString essai = dossier;
    if (!RépertoireAccessible(essai)) {
        Boîte(Message(TMessage::RépertoireNonInscriptible), StyleInformation, Message(TMessage::TitreErreur));
        return;
    }
    if (DemandeDossier().ModeRépertoires == TModeRépertoires::DossierJeu) {
        EcritValeur(CléJeu, QStringLiteral("répertoire"), dossier);
        Réglages().RépertoireSauvegarde = dossier;
        // The bare name of the score file is found in the current folder.
        QDir::setCurrent(dossier);
        EcritValeur(CléJeu, QStringLiteral("fichier de lancement"), ComposeChemin(dossier, FichierScoresParDéfaut));
        Réglages().FichierLancement = FichierScoresParDéfaut;
    } else {
        EcritValeur(CléJeu, QStringLiteral("répertoire information"), dossier);
        Réglages().RépertoireInfo = dossier;
        // The other language's file is looked for in the new folder at the next start.
        if (Langues().Langue >= 1 && Langues().Langue < int(Langues().CheminsInfo.size()) && Langues().Langue < int(Langues().NomsFichiersInfo.size()))
            Langues().CheminsInfo[Langues().Langue] = ComposeChemin(Réglages().RépertoireInfo, Langues().NomsFichiersInfo[Langues().Langue]);
    }
    accept();
}

void MontreParamétrageRépertoires()
{
    ParamétrageRépertoires forme;
    ExécuteModal(forme);
}
