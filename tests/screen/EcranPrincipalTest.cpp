// The main window's keys, and the file dialog.
#include "Fixtures.h"

#include "screen/Aide.h"

using Fenêtre = JeuTest;

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

// F1 on a box of the panel gives the context the panel's command set; the help menu takes the general one back.
TEST_F(Fenêtre, F1OpensTheContextOfTheControlWithTheFocusAndItsPageInTheLanguageInUse)
{
    std::vector<int> ouverts;
    InstalleAide([&](int c) { ouverts.push_back(c); });
    Principal().setHelpContextID(65), Principal().Bouton[3]->show(); // as after a parameterisation command
    Tape(Principal(), Principal().Bouton[3], Qt::Key_F1);
    Principal().MenuAide->trigger();
    Tape(Principal(), Principal().Bouton[3], Qt::Key_F1);
    InstalleAide(nullptr), ChangeLangue(2);
    EXPECT_TRUE(ouverts == std::vector<int>({65, 10, 10}) && PageAide(160).endsWith("/aide/de/aide_160.html"));
}

TEST_F(Fenêtre, TheFileDialogRefusesTakenEmptyAndUnselectedNamesOffersAnotherFolderOnceAndEnterDoesOneThingOnly)
{
    const QString autre = dossier.filePath("autre");
    QDir(dossier.path()).mkdir("autre");
    ASSERT_TRUE(EcritFichierEntier(dossier.filePath("pris.CAS"), {}));
    Réglages().RépertoireSauvegarde = dossier.path(), DemandeDossier().ModeRépertoires = TModeRépertoires::Sauvegarde, DemandeDossier().TypeFichier = TTypeFichier::Partie;
    SélectionPartie s;
    s.NomFichier->setText("pris");
    Tape(s, s.NomFichier, Qt::Key_Return);
    EXPECT_TRUE(boîtes.journal.size() == 1 && boîtes.journal[0].texte == Message(TMessage::FichierExisteDéjà)) << "the name taken refused, once";
    s.NomFichier->setText("   ");
    s.BoutonOK->click();
    EXPECT_TRUE(boîtes.journal.back().texte == Message(TMessage::NomFichierObligatoire) && s.NomFichier->text() == "   .CAS");
    s.Fichier->setCurrentRow(0);
    s.Fichier_DblClick();
    EXPECT_TRUE(s.NomFichier->text() == "pris.CAS" && s.result() == 0) << "a double click names the file and saves nothing";
    boîtes.journal.clear(), s.Répertoire->setCurrentRow(s.Répertoire->count() - 1);
    Tape(s, s.Répertoire, Qt::Key_Return);
    EXPECT_TRUE(s.Chemin() == autre && boîtes.journal.empty() && s.isVisible()) << "Enter opens the folder and presses nothing else";
    s.ProposeRépertoire(); // and Yes
    EXPECT_TRUE(boîtes.ADit(Message(TMessage::RépertoireParDéfaut) + autre) && Réglages().RépertoireSauvegarde == autre && QDir::currentPath() == autre);
    boîtes.journal.clear(), s.ChangeRépertoire(autre + "/"), s.ProposeRépertoire();
    EXPECT_TRUE(boîtes.journal.empty()) << "the same folder, with a final separator, is not offered again";
    DemandeDossier().ModeRépertoires = TModeRépertoires::Chargement;
    SélectionPartie l;
    l.Fichier->setCurrentRow(-1);
    l.BoutonOK->click();
    EXPECT_TRUE(l.NomFichier->isHidden() && boîtes.journal.back().texte == Message(TMessage::ChoisirFichierPartie));
}
