// The main window after its load: its controls, their stacking and the idle state.
#include "Fixtures.h"

#include "engine/communs.h"
#include "screen/EcranPrincipal.h"
#include "platform/Ecran.h"
#include "services/Langues.h"
#include "services/Sons.h"

#include <QLineEdit>
#include <QMenuBar>
#include <QTest>
#include "results/AffichageScores.h"
#include "results/NouvellePartie.h"
#include "results/Scores.h"
#include "results/SelectionPartie.h"
#include "services/ParametrageRepertoires.h"
#include "screen/Pompe.h"
#include <QDir>
#include <QFile>
#include <QListWidget>
#include "services/Aide.h"

namespace {

using Chargement = JeuTest;

TEST_F(Chargement, IdleWithTheBareMapAndNoPanel)
{
    auto &E = Principal();
    EXPECT_GE(IndiceEcranPrincipal(), 0);
    EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    EXPECT_EQ(Jeu().Niveau, TNiveau::Aucun);
    EXPECT_EQ(LargeurVignette, 200);
    EXPECT_EQ(HauteurVignette, 188);
    EXPECT_TRUE(E.ImageRégion[0]->Visible());
    EXPECT_FALSE(E.QueFaire->Visible());
    EXPECT_FALSE(E.BoîteScore->Visible());
    for (int i = 1; i <= 26; ++i) {
        EXPECT_FALSE(E.Pays[i]->Visible() || E.inv[i]->Visible() || E.rond[i]->Visible());
        EXPECT_EQ(E.Pays[i]->pos(), QPoint(Jeu().Cantons[i].PaysGauche, Jeu().Cantons[i].PaysHaut));
        EXPECT_EQ(E.inv[i]->pos(), E.Pays[i]->pos());
    }
    // On a screen that shows the whole map the score box sits on the map's bottom edge.
    EXPECT_EQ(E.Carte->Width(), 656);
    EXPECT_EQ(E.BoîteScore->Top(), 403);
    EXPECT_EQ(E.BoîteRestants->Top(), 341);
    EXPECT_EQ(E.BoutonGruge->Top(), 353);
    EXPECT_EQ(E.Digit[1]->Left() - E.BoîteScore->Left(), 178 - 31);
    EXPECT_EQ(E.Reste[3]->Left() - E.BoîteRestants->Left(), 37 - 31);
}

TEST_F(Chargement, DotsLieOverEveryBorderAndLaterBordersOverEarlierOnes)
{
    auto &E = Principal();
    const QObjectList enfants = E.Carte->children();
    auto rang = [&](QObject *o) { return enfants.indexOf(o); };
    for (int i = 1; i <= 26; ++i) {
        EXPECT_GT(rang(E.Pays[i]), rang(E.ImageRégion[0]));
        EXPECT_GT(rang(E.inv[i]), rang(E.Pays[i]));
        EXPECT_GT(rang(E.rond[i]), rang(E.inv[26]));
        if (i > 1) {
            EXPECT_GT(rang(E.Pays[i]), rang(E.inv[i - 1]));
        }
    }
    // A dot stays clickable where borders overlap.
    NouvellePartieAuNiveau(3);
    const TCanton &c = Jeu().Cantons[6];
    EXPECT_EQ(E.Carte->childAt(c.VilleGauche + 3, c.VilleHaut + 4), E.rond[6]);
}

TEST_F(Chargement, MenusSpeakTheLanguageAndLanguageNamesStayFixed)
{
    auto &E = Principal();
    EXPECT_EQ(E.FichierNouveau->text(), "Nouvelle partie");
    EXPECT_EQ(E.MenuScores->title(), "Score");
    EXPECT_EQ(E.LBLParam[7]->text(), "Plaques");
    ChangeLangue(2);
    EXPECT_EQ(E.FichierNouveau->text(), Messages[56]);
    EXPECT_NE(E.FichierNouveau->text(), "Nouvelle partie");
    EXPECT_EQ(E.MenuAllemand->text(), "Auf deutsch spielen");
    EXPECT_EQ(E.MenuLangue->title(), "Langue / Sprache");
    ChangeLangue(1);
}

TEST_F(Chargement, AScrollKeepsMarkersAndHitsInLine)
{
    // A small screen: the map scrolls under its window.
    delete forme;
    forme = nullptr;
    InstalleEcran(InfoEcran{800, 600, QRect(0, 0, 800, 570), 24});
    ASSERT_TRUE(Main());
    forme = FormePrincipale();
    auto &E = Principal();
    EXPECT_EQ(E.BarreH->Max(), 86);
    EXPECT_EQ(E.BarreH->LargeChange(), 82);
    EXPECT_EQ(E.BarreH->SmallChange(), 16);

    NouvellePartieAuNiveau(1, true);
    const i16 asked = Jeu().CantonRecherché;
    RépondFaux();
    RépondFaux();
    RépondFaux();
    E.BoutonGruge->click();
    E.BarreH->setValue(40);
    EXPECT_EQ(E.ImageRégion[0]->Left(), -40);
    for (int i = 1; i <= 26; ++i) {
        EXPECT_EQ(E.inv[i]->Left(), Jeu().Cantons[i].PaysGauche - 40);
        EXPECT_EQ(E.rond[i]->Left(), Jeu().Cantons[i].VilleGauche - 40 - (i == asked ? 4 : 0));
        EXPECT_EQ(E.rond[i]->Width(), i == asked ? 16 : 7) << "only the canton asked stays black";
    }
    RépondJuste();
    EXPECT_FALSE(Jeu().AssistanceUtilisée);
}

} // namespace

namespace {

// Keys reach the program as a player types them: through the active window, to its focus.
void Tape(QWidget &forme, QWidget *focus, Qt::Key touche)
{
    forme.show();
    forme.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&forme));
    if (focus)
        focus->setFocus();
    QTest::keyClick(forme.windowHandle(), touche);
}

TEST_F(Chargement, F1OpensTheContextOfTheFormOrControlWithTheFocus)
{
    std::vector<int> ouverts;
    InstalleAide([&](int c) { ouverts.push_back(c); });
    auto &E = Principal();
    Tape(E, nullptr, Qt::Key_F1);
    E.setHelpContextID(65); // as after a parameterisation command
    for (int b : {3, 11})
        E.Bouton[b]->show(), Tape(E, E.Bouton[b], Qt::Key_F1);
    E.MenuAide->trigger();
    Tape(E, E.Bouton[3], Qt::Key_F1);
    NiveauAffiché = 1;
    Jeu().CantonFiche = 6;
    ModeRépertoires = TModeRépertoires::DossierJeu;
    const std::vector<std::pair<std::function<QDialog *()>, int>> formes = {
        {[] { return new NouvellePartie; }, 20},
        {[] { return new AffichageScores; }, 90},
        {[] { return new Pompe; }, 160},
        {[] { return new ParamétrageRépertoires; }, 180},
        {[] { ModeRépertoires = TModeRépertoires::Sauvegarde; return new SélectionPartie; }, 10},
    };
    std::vector<int> attendus = {10, 65, 65, 10, 10};
    for (const auto &[crée, contexte] : formes) {
        std::unique_ptr<QDialog> d(crée());
        Tape(*d, nullptr, Qt::Key_F1);
        attendus.push_back(contexte);
    }
    InstalleAide(nullptr);
    EXPECT_EQ(ouverts, attendus);
    EXPECT_TRUE(PageAide(20).endsWith("/aide/fr/aide_20.html"));
    ChangeLangue(2);
    EXPECT_TRUE(PageAide(160).endsWith("/aide/de/aide_160.html"));
    ChangeLangue(1);
}

TEST_F(Chargement, EnterInTheFileDialogDoesOneThingOnly)
{
    QDir::setCurrent(dossier.path());
    QDir(dossier.path()).mkdir("autre");
    QFile(dossier.filePath("pris.CAS")).open(QIODevice::WriteOnly);
    ModeRépertoires = TModeRépertoires::Sauvegarde;
    TypeFichier = TTypeFichier::Partie;
    SélectionPartie s;
    s.NomFichier->setText("pris");
    Tape(s, s.NomFichier, Qt::Key_Return);
    ASSERT_EQ(boîtes.journal.size(), 1u) << "OK was pressed twice";
    EXPECT_EQ(boîtes.journal[0].texte, Messages[5]);
    s.Répertoire->setCurrentRow(s.Répertoire->count() - 1);
    Tape(s, s.Répertoire, Qt::Key_Return);
    EXPECT_EQ(s.Chemin(), dossier.filePath("autre")) << "Enter opens the folder";
    EXPECT_EQ(boîtes.journal.size(), 1u) << "and presses nothing else";
    EXPECT_TRUE(s.isVisible());
}

} // namespace

namespace {

TEST_F(Chargement, TheLoadingFormIsGoneOnceTheMainWindowShows)
{
    QApplication::processEvents();
    for (QWidget *w : QApplication::topLevelWidgets())
        EXPECT_NE(w->objectName(), "Patience") << "visible: " << w->isVisible();
}

} // namespace
