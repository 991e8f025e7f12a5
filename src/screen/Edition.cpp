#include "screen/Edition.h"

#include "results/Parties.h"
#include "screen/VueJeu.h"
#include "engine/communs.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "platform/Images.h"
#include "screen/Ajustement.h"
#include "screen/EcranPrincipal.h"
#include "services/Fiches.h"
#include "services/Langues.h"
#include "screen/Pompe.h"
#include "results/PartieEnCours.h"

namespace {
constexpr int LargeurEdition = 416;
constexpr int HauteurEdition = 435;

BoutonGraphique *BoutonFlèche(QWidget *parent, const QString &image, int gauche, int haut, int côté)
{
    auto *b = new BoutonGraphique(parent);
    b->setObjectName(image);
    b->setGeometry(gauche, haut, côté, côté);
    b->setPicture(ImageJeu(image, QSize(côté, côté)));
    // The picture inside the button's frame.
    b->setIconSize(QSize(côté - 6, côté - 6));
    b->hide();
    return b;
}

int Moitié(int n) { return n >= 0 ? n / 2 : -((-n + 1) / 2); }
} // namespace

Edition::Edition() : QDialog(FenêtrePrincipale())
{
    setObjectName(QStringLiteral("Edition"));
    // A title and no close box.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    setFixedSize(LargeurEdition, HauteurEdition);
    setProperty("HelpContextID", 10);
    HabilleFormeFiche(*this);

    LBLPays = new Contrôle<QLineEdit>(this);
    LBLPays->Place(16, 16, 369, 25);
    LBLPays->setAlignment(Qt::AlignCenter);
    LBLPays->setFocusPolicy(Qt::ClickFocus);
    LBLPays->hide();
    TXTInfos = new TexteFiche(this);
    TXTInfos->Place(32, 56, 337, 233);
    TXTInfos->hide();
    BTNUp = BoutonFlèche(this, QStringLiteral("BTNUp"), 32, 344, 33);
    BTNLeft = BoutonFlèche(this, QStringLiteral("BTNLeft"), 168, 344, 33);
    BTNRight = BoutonFlèche(this, QStringLiteral("BTNRight"), 216, 344, 33);
    BTNDown = BoutonFlèche(this, QStringLiteral("BTNDown"), 336, 344, 33);
    BTNQuit = BoutonFlèche(this, QStringLiteral("BTNQuit"), 192, 392, 41);
    LBLPays->setObjectName(QStringLiteral("NomCanton"));
    TXTInfos->setObjectName(QStringLiteral("TXTInfos"));
    setTabOrder(TXTInfos, BTNUp);
    setTabOrder(BTNUp, BTNLeft);
    setTabOrder(BTNLeft, BTNRight);
    setTabOrder(BTNRight, BTNDown);
    setTabOrder(BTNDown, BTNQuit);
    connect(BTNUp, &QToolButton::clicked, this, [this] { BTNUp_Click(); });
    connect(BTNLeft, &QToolButton::clicked, this, [this] { BTNLeft_Click(); });
    connect(BTNRight, &QToolButton::clicked, this, [this] { BTNRight_Click(); });
    connect(BTNDown, &QToolButton::clicked, this, [this] { BTNDown_Click(); });
    connect(BTNQuit, &QToolButton::clicked, this, [this] { BTNQuit_Click(); });

    // Centred in the work area as it is now, counted from the screen's corner.
    const QRect zone = MesureEcran().zoneTravail;
    move(Moitié(zone.width() - width()), Moitié(zone.height() - height()));
    setWindowTitle(Message(TMessage::TitreModificationFiches));

    FicheEnEdition().FichierFichesOuvert = (Langues().Langue >= 1 && Langues().Langue < int(Langues().CheminsInfo.size())) ? Langues().CheminsInfo[Langues().Langue] : QString();
    VaÀ(1);

    BTNQuit->show();
    LBLPays->show();
    TXTInfos->show();
    BTNUp->show();
    BTNLeft->show();
    BTNRight->show();
    BTNDown->show();
    TXTInfos->setFocus();
}

bool Edition::EnregistreSiModifiée()
{
    // The name alone decides nothing: it is written with a changed text, or lost.
    if (TXTInfos->Text() == TexteFiche::CommeAffiché(FicheEnEdition().TexteLu))
        return true;
    return EcrireFiche(FicheEnEdition().FicheEditée, TFiche{LBLPays->text(), TXTInfos->Text()});
}

void Edition::VaÀ(int numéro)
{
    FicheEnEdition().FicheEditée = static_cast<i16>(numéro);
    const TFiche fiche = LireFiche(numéro);
    TXTInfos->setText(fiche.Texte);
    LBLPays->setText(fiche.Nom);
}

void Edition::BTNUp_Click()
{
    if (EnregistreSiModifiée())
        VaÀ(1);
}

void Edition::BTNDown_Click()
{
    if (EnregistreSiModifiée())
        VaÀ(NombreFiches);
}

void Edition::BTNLeft_Click()
{
    if (EnregistreSiModifiée() && FicheEnEdition().FicheEditée > 1)
        VaÀ(FicheEnEdition().FicheEditée - 1);
}

void Edition::BTNRight_Click()
{
    if (EnregistreSiModifiée() && FicheEnEdition().FicheEditée < NombreFiches)
        VaÀ(FicheEnEdition().FicheEditée + 1);
}

void Edition::BTNQuit_Click()
{
    if (!EnregistreSiModifiée())
        return;
    FicheEnEdition().FichierFichesOuvert.clear();
    accept();
}

void EditerFiches()
{
    // A game the player keeps stays where it was, behind the editor.
    if (ConfirmeArrêt()) {
        Jeu().Etape = TEtape::Aucune;
        Jeu().ModeRévision = false;
        AjusteEcran();
        AjusteCarte();
        MontreCantons();
    }
    Edition forme;
    ExécuteModal(forme);
    FicheEnEdition().FichierFichesOuvert.clear();
}
