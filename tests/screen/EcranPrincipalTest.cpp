// The main window after its load, its keys, and the file dialog's Enter.
#include "Fixtures.h"

#include "results/AffichageScores.h"
#include "services/Aide.h"
#include "results/PartieEnCours.h"

using Chargement = JeuTest;

TEST_F(Chargement, IdleWithTheBareMapAndDotsOverEveryBorderOnceTheLoadingFormIsGone)
{
    QApplication::processEvents();
    for (QWidget *w : QApplication::topLevelWidgets())
        EXPECT_NE(w->objectName(), "Patience") << "visible: " << w->isVisible();
    auto &E = Principal();
    EXPECT_TRUE(Jeu().Etape == TEtape::Aucune && E.ImageRégion[0]->Visible() && !E.QueFaire->Visible() && !E.BoîteScore->Visible());
    // Stacked from the bottom: the map, each border then its inverse in order, the dots over all.
    const QObjectList enfants = E.Carte->children();
    std::vector<qsizetype> rangs{enfants.indexOf(E.ImageRégion[0])};
    for (int i = 1; i <= 26; ++i)
        rangs.insert(rangs.end(), {enfants.indexOf(E.Pays[i]), enfants.indexOf(E.inv[i])});
    for (int i = 1; i <= 26; ++i)
        rangs.push_back(enfants.indexOf(E.rond[i]));
    EXPECT_EQ(std::adjacent_find(rangs.begin(), rangs.end(), std::greater_equal<>()), rangs.end());
    // A dot stays clickable where borders overlap.
    NouvellePartieAuNiveau(3);
    const TCanton &c = Jeu().Cantons[6];
    EXPECT_EQ(E.Carte->childAt(c.VilleGauche + 3, c.VilleHaut + 4), E.rond[6]);
}

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
    ScoresAffichés().NiveauAffiché = TNiveau::Facile;
    Tape(*std::make_unique<AffichageScores>(), nullptr, Qt::Key_F1);
    InstalleAide(nullptr);
    // F1 on the window, on a box of the panel without a context and one with it, the help menu, F1 after it, on a form.
    EXPECT_EQ(ouverts, (std::vector<int>{10, 65, 65, 10, 10, 90}));
    ChangeLangue(2);
    EXPECT_TRUE(PageAide(160).endsWith("/aide/de/aide_160.html"));
}

TEST_F(Chargement, EnterInTheFileDialogDoesOneThingOnly)
{
    QDir(dossier.path()).mkdir("autre");
    ASSERT_TRUE(EcritFichierEntier(dossier.filePath("pris.CAS"), {}));
    DemandeDossier().ModeRépertoires = TModeRépertoires::Sauvegarde;
    DemandeDossier().TypeFichier = TTypeFichier::Partie;
    SélectionPartie s;
    s.NomFichier->setText("pris");
    Tape(s, s.NomFichier, Qt::Key_Return);
    EXPECT_TRUE(boîtes.journal.size() == 1 && boîtes.journal[0].texte == Message(TMessage::FichierExisteDéjà)) << "the name taken refused, once";
    s.Répertoire->setCurrentRow(s.Répertoire->count() - 1);
    Tape(s, s.Répertoire, Qt::Key_Return);
    EXPECT_EQ(s.Chemin(), dossier.filePath("autre")) << "Enter opens the folder";
    EXPECT_TRUE(boîtes.journal.size() == 1 && s.isVisible()) << "and presses nothing else";
}
