#include "results/NouvellePartie.h"

#include "engine/communs.h"
#include "platform/Formes.h"
#include "platform/Boites.h"
#include "platform/Ecran.h"
#include "results/Resultats.h"
#include "screen/EcranPrincipal.h"
#include "services/Langues.h"
#include "results/PartieEnCours.h"

#include <QGroupBox>
#include <functional>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

NouvellePartie::NouvellePartie() : QDialog(FenêtrePrincipale(), CadreDialogueFixe)
{
    setObjectName(QStringLiteral("NouvellePartie"));
    setFixedSize(4680 / TwipsPerPixelX, 4545 / TwipsPerPixelY);
    setWindowTitle(Message(TMessage::NouvellePartie));
    setProperty("HelpContextID", HelpContextID);

    Label1 = new QLabel(Message(TMessage::EntrezVotreNom), this);
    Label1->setGeometry(31, 29, 226, 21);
    Label1->setAlignment(Qt::AlignCenter);
    QFont f(QStringLiteral("Times New Roman"));
    f.setPointSize(12);
    f.setBold(true);
    Label1->setFont(f);
    BoîteNomJoueur = new QLineEdit(this);
    BoîteNomJoueur->setGeometry(33, 56, 224, 24);
    Frame1 = new QGroupBox(Message(TMessage::Difficulté), this);
    Frame1->setGeometry(31, 109, 140, 129);
    NiveauApprentissage = new QRadioButton(Message(TMessage::Apprentissage), Frame1);
    NiveauApprentissage->setGeometry(16, 24, 105, 17);
    NiveauFacile = new QRadioButton(Message(TMessage::Facile), Frame1);
    NiveauFacile->setGeometry(16, 43, 108, 17);
    NiveauMoyen = new QRadioButton(Message(TMessage::Moyen), Frame1);
    NiveauMoyen->setGeometry(16, 63, 118, 17);
    NiveauDifficile = new QRadioButton(Message(TMessage::Difficile), Frame1);
    NiveauDifficile->setGeometry(16, 84, 114, 17);
    NiveauExpert = new QRadioButton(Message(TMessage::Expert), Frame1);
    NiveauExpert->setGeometry(16, 104, 105, 17);
    BoutonSortie = new QPushButton(QStringLiteral("OK"), this);
    BoutonSortie->setGeometry(56, 264, 66, 31);
    BoutonSortie->setDefault(true);
    BoutonAnnuler = new QPushButton(Message(TMessage::Annuler), this);
    BoutonAnnuler->setGeometry(184, 264, 66, 31);
    BoîteNomJoueur->setObjectName(QStringLiteral("BoîteNomJoueur"));
    Frame1->setObjectName(QStringLiteral("Difficulté"));
    NiveauApprentissage->setObjectName(QStringLiteral("Niveau0"));
    NiveauFacile->setObjectName(QStringLiteral("Niveau1"));
    NiveauMoyen->setObjectName(QStringLiteral("Niveau2"));
    NiveauDifficile->setObjectName(QStringLiteral("Niveau3"));
    NiveauExpert->setObjectName(QStringLiteral("Niveau4"));
    BoutonSortie->setObjectName(QStringLiteral("BoutonSortie"));
    BoutonAnnuler->setObjectName(QStringLiteral("BoutonAnnuler"));
    setTabOrder(BoîteNomJoueur, NiveauFacile);

    // Centred on the screen.
    const InfoEcran écran = MesureEcran();
    move((écran.largeur - width()) / 2, (écran.hauteur - height()) / 2);

    // Apprentissage is never offered again: it shares level 1 with Facile.
    switch (Jeu().Niveau) {
    case TNiveau::Moyen: NiveauMoyen->setChecked(true); break;
    case TNiveau::Difficile: NiveauDifficile->setChecked(true); break;
    case TNiveau::Expert: NiveauExpert->setChecked(true); break;
    default: NiveauFacile->setChecked(true); break;
    }
    BoîteNomJoueur->setText(Jeu().NomJoueur);

    connect(BoutonSortie, &QPushButton::clicked, this, [this] { BoutonSortie_Click(); });
    connect(BoutonAnnuler, &QPushButton::clicked, this, [this] { BoutonAnnuler_Click(); });
}

void NouvellePartie::showEvent(QShowEvent *e)
{
    QDialog::showEvent(e);
    if (!Jeu().NomJoueur.isEmpty())
        BoutonSortie->setFocus();
    else
        BoîteNomJoueur->setFocus();
}

void NouvellePartie::BoutonSortie_Click()
{
    if (BoîteNomJoueur->text().trimmed().isEmpty()) {
        Boîte(Message(TMessage::IndiquerVotreNom), StyleExclamation, Message(TMessage::TitreSaisieIncomplète));
        return;
    }
    Jeu().NomJoueur = BoîteNomJoueur->text().left(20);
    Jeu().ModeApprentissage = false;
    Jeu().ScoreGelé = false;
    auto &E = Principal();
    E.BoutonGruge->setPicture(E.AmpouleAllumée->Picture());
    if (NiveauFacile->isChecked())
        Jeu().Niveau = TNiveau::Facile;
    else if (NiveauMoyen->isChecked())
        Jeu().Niveau = TNiveau::Moyen;
    else if (NiveauDifficile->isChecked())
        Jeu().Niveau = TNiveau::Difficile;
    else if (NiveauExpert->isChecked())
        Jeu().Niveau = TNiveau::Expert;
    else if (NiveauApprentissage->isChecked()) {
        Jeu().Niveau = TNiveau::Facile;
        Jeu().ModeApprentissage = true;
        Jeu().ScoreGelé = true;
    }
    EnregistreJoueur();
    Jeu().Etape = Jeu().OrdreEtapes[1];
    Jeu().HeureDépart = SecondesDepuisMinuit();
    accept();
}

void NouvellePartie::BoutonAnnuler_Click()
{
    Jeu().Etape = TEtape::Aucune;
    QDialog::reject();
}

// Escape and the close box cancel like the button.
void NouvellePartie::reject() { BoutonAnnuler_Click(); }

namespace {
std::function<void()> dialogueScripté;
}

void InstalleDialogueNouvellePartie(std::function<void()> script) { dialogueScripté = std::move(script); }

void MontreNouvellePartie()
{
    if (dialogueScripté) {
        dialogueScripté();
        return;
    }
    NouvellePartie dialogue;
    ExécuteModal(dialogue);
}
