// The folder form: what OK writes in each use, the folders it refuses, the subfolder
// made from it and the folders it can't show, on temporary folders.
#include "engine/communs.h"
#include "platform/Boites.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "services/Aide.h"
#include "services/Langues.h"
#include "services/ParametrageRepertoires.h"
#include "services/Parametres.h"
#include "services/Registre.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace {

QString S(const char *s) { return QString::fromUtf8(s); }

QStringList Liste(const QListWidget *l)
{
    QStringList noms;
    for (int i = 0; i < l->count(); ++i)
        noms << l->item(i)->text();
    return noms;
}

class Dossiers : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dossier.isValid());
        for (const char *d : {"courant", "infos", "choisi/sous"})
            ASSERT_TRUE(QDir().mkpath(Chemin(d)));
        for (const char *f : {"choisi/KELMOR.SCS", "choisi/vieux.scs", "choisi/KELMOR.INF", "infos/KELMOR.INF", "infos/KELMOR.SCS"})
            ASSERT_TRUE(QFile(Chemin(f)).open(QIODevice::WriteOnly));
        // A store of its own for each case of a loop.
        InstalleFichierRegistre(dossier.filePath(QStringLiteral("registre%1.ini").arg(++magasins)));
        ASSERT_EQ(CréeClé(CléJeu), 0);
        InstalleBoîtes(&boîtes);
        InstalleEcran(InfoEcran{1280, 1024, QRect(0, 0, 1280, 984), 24});
        Langue = langue;
        ChargeChaînes();
        CheminsInfo[1] = S("avant/KELMOR.INF");
        CheminsInfo[2] = S("avant/DRAVELN.INF");
        RépertoireSauvegarde = S("avant");
        FichierLancement = S("avant/MES.SCS");
        RépertoireInfo = Chemin("infos");
        boîtes.journal.clear();
        ASSERT_TRUE(QDir::setCurrent(Chemin("courant")));
    }
    void TearDown() override
    {
        QDir::setCurrent(dossierCourant);
        InstalleFormesModales(nullptr);
        InstalleBoîtes(nullptr);
        InstalleEcran(std::nullopt);
        InstalleFichierRegistre(QString());
        Langue = 1;
        ChargeChaînes();
        RépertoireSauvegarde = RépertoireInfo = FichierLancement = QString();
    }

    QString Chemin(const char *nom) const { return dossier.filePath(S(nom)); }
    // répertoire, fichier de lancement, répertoire information; "<-2>" for one not written.
    QStringList Valeurs() const
    {
        QStringList valeurs;
        for (const char *nom : {"répertoire", "fichier de lancement", "répertoire information"}) {
            QString texte;
            valeurs << (LitValeur(CléJeu, S(nom), texte) == 0 ? texte : QStringLiteral("<-2>"));
        }
        return valeurs;
    }
    // RépertoireSauvegarde, FichierLancement, RépertoireInfo, both CheminsInfo and the current folder.
    QStringList Globales() const
    {
        return {RépertoireSauvegarde, FichierLancement, RépertoireInfo, CheminsInfo[1], CheminsInfo[2], QDir::currentPath()};
    }
    QStringList Boîtes() const
    {
        QStringList vues;
        for (const auto &b : boîtes.journal)
            vues << b.texte + " | " + b.titre + " | " + QString::number(b.style);
        return vues;
    }
    static QString Erreur(int id) { return Messages[id - 1000] + " | " + Messages[46] + " | 64"; }

    // Opens the form as the game does; `joue` stands for the player and answers the form's result.
    int Ouvre(i16 mode, const std::function<int(ParamétrageRépertoires &)> &joue)
    {
        ModeRépertoires = mode;
        int résultat = -1;
        InstalleFormesModales([&](QDialog &d) { return résultat = joue(dynamic_cast<ParamétrageRépertoires &>(d)); });
        MontreParamétrageRépertoires();
        return résultat;
    }
    static int Valide(ParamétrageRépertoires &f, const QString &d)
    {
        EXPECT_TRUE(f.ChangeRépertoire(d));
        f.BoutonOK->click();
        return f.result();
    }

    QTemporaryDir dossier;
    QString dossierCourant = QDir::currentPath();
    BoîtesScriptées boîtes;
    short langue = 1;
    int magasins = 0;
};

TEST_F(Dossiers, EachUseStartsWhereItShouldAndItsOKWritesItsOwnValuesOnly)
{
    const QString choisi = Chemin("choisi"), courant = Chemin("courant");
    for (const auto &[mode, l] : {std::pair<i16, short>{7, 1}, {6, 1}, {6, 2}}) {
        SCOPED_TRACE(testing::Message() << "mode " << mode << ", language " << l);
        TearDown();
        langue = l;
        SetUp();
        const bool sauvegarde = mode == 7;
        const int résultat = Ouvre(mode, [&](ParamétrageRépertoires &f) {
            EXPECT_EQ(QStringList({f.windowTitle(), f.Entête->text(), f.NomFichier->text()}),
                      QStringList({Messages[145], Messages[sauvegarde ? 143 : 144], (sauvegarde ? courant : Chemin("infos")) + '/'}));
            EXPECT_EQ(ContexteDe(f.Répertoire), 180) << "F1 finds the form's help";
            // The files of the use's pattern, in any case of letters, and nothing else.
            EXPECT_TRUE(f.ChangeRépertoire(choisi));
            EXPECT_EQ(Liste(f.Fichier), sauvegarde ? QStringList({"KELMOR.SCS", "vieux.scs"}) : QStringList{"KELMOR.INF"});
            EXPECT_EQ(Liste(f.Répertoire), QStringList({"..", "sous"}));
            f.BoutonOK->click();
            return f.result();
        });
        EXPECT_EQ(résultat, QDialog::Accepted);
        EXPECT_TRUE(boîtes.journal.empty());
        EXPECT_FALSE(QFile::exists(choisi + "/~zut.tmp")) << "the write test leaves nothing behind";
        if (sauvegarde) {
            EXPECT_EQ(Valeurs(), QStringList({choisi, choisi + "/KELMOR.SCS", "<-2>"}));
            // The bare name of the score file is found in the new current folder.
            EXPECT_EQ(Globales(), QStringList({choisi, "KELMOR.SCS", Chemin("infos"), "avant/KELMOR.INF", "avant/DRAVELN.INF", choisi}));
        } else {
            EXPECT_EQ(Valeurs(), QStringList({"<-2>", "<-2>", choisi}));
            // Only the language in use follows; the other finds its file at the next start.
            EXPECT_EQ(Globales(), QStringList({"avant", "avant/MES.SCS", choisi,
                                               langue == 1 ? choisi + "/KELMOR.INF" : S("avant/KELMOR.INF"),
                                               langue == 2 ? choisi + "/DRAVELN.INF" : S("avant/DRAVELN.INF"), courant}));
        }
    }

    // The close box (there is no Cancel, and Escape does nothing) leaves everything as it was.
    const QStringList valeurs = Valeurs(), globales = Globales();
    ParamétrageRépertoires f;
    f.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&f));
    f.ChangeRépertoire(courant);
    QTest::keyClick(&f, Qt::Key_Escape);
    EXPECT_TRUE(f.isVisible());
    f.close();
    EXPECT_EQ(f.result(), QDialog::Rejected);
    EXPECT_EQ(Valeurs(), valeurs);
    EXPECT_EQ(Globales(), globales);
}

TEST_F(Dossiers, AFolderThatCantBeWrittenIsRefusedAndTheFormStaysForAnother)
{
    // One where the write test's file can't be deleted (also for root), one taken away while shown.
    for (i16 mode : {7, 6})
        for (const auto &[refusé, retiré] : {std::pair{Chemin("bloqué"), false}, {Chemin("retiré"), true}}) {
            SCOPED_TRACE(testing::Message() << "mode " << mode << ", " << refusé.toStdString());
            ASSERT_TRUE(QDir().mkpath(refusé + (retiré ? "" : "/~zut.tmp")));
            boîtes.journal.clear();
            const QStringList valeurs = Valeurs(), globales = Globales();
            const int résultat = Ouvre(mode, [&](ParamétrageRépertoires &f) {
                EXPECT_TRUE(f.ChangeRépertoire(refusé));
                if (retiré) {
                    EXPECT_TRUE(QDir(refusé).removeRecursively());
                }
                f.BoutonOK->click();
                EXPECT_NE(f.result(), QDialog::Accepted) << "the form stays";
                EXPECT_EQ(Boîtes(), QStringList{Erreur(1119)});
                EXPECT_EQ(Valeurs(), valeurs);
                EXPECT_EQ(Globales(), globales);
                return Valide(f, Chemin("choisi"));
            });
            EXPECT_EQ(résultat, QDialog::Accepted);
            EXPECT_EQ(Valeurs()[mode == 7 ? 0 : 2], Chemin("choisi"));
        }
}

TEST_F(Dossiers, ASubfolderIsMadeOnceAndANameThatCantBeMadeIsRefused)
{
    const QString choisi = Chemin("choisi");
    ASSERT_TRUE(QFile(Chemin("choisi/un fichier")).open(QIODevice::WriteOnly));
    ModeRépertoires = 7;
    ParamétrageRépertoires f;
    f.show();
    f.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&f));
    EXPECT_EQ(QApplication::focusWidget(), f.BoutonOK) << "OK comes first";
    ASSERT_TRUE(f.ChangeRépertoire(choisi));

    // No name: nothing is made, nothing is said.
    const QStringList avant = QDir(choisi).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    EXPECT_EQ(f.CréeSousRépertoire(), std::nullopt);
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(QDir(choisi).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), avant);

    // An existing folder, a file in the way, a name under a folder that isn't there, a new one twice.
    for (const auto &[nom, fait, message] : {std::tuple<const char *, std::optional<bool>, int>{"sous", false, 1125},
                                             {"un fichier", false, 1120}, {"absent/dessous", false, 1120},
                                             {"Parties d'été", true, 0}, {"Parties d'été", false, 1125}}) {
        SCOPED_TRACE(nom);
        boîtes.journal.clear();
        f.SousRépertoire->setText(S(nom));
        EXPECT_EQ(f.CréeSousRépertoire(), fait);
        EXPECT_EQ(Boîtes(), message ? QStringList{Erreur(message)} : QStringList{});
        EXPECT_EQ(QStringList({f.Chemin(), QDir::currentPath()}), QStringList({choisi, Chemin("courant")}))
            << "making a folder neither goes into it nor moves the process";
    }
    EXPECT_TRUE(QFileInfo(Chemin("choisi/Parties d'été")).isDir());
    EXPECT_FALSE(QFileInfo::exists(Chemin("choisi/absent")));

    // Enter in the box makes the folder and goes into it; in the list, goes up: neither presses OK.
    boîtes.journal.clear();
    f.SousRépertoire->clear();
    f.Command1->click();
    EXPECT_EQ(QApplication::focusWidget(), f.SousRépertoire);
    QTest::keyClicks(f.SousRépertoire, QStringLiteral("neuf"));
    QTest::keyClick(f.SousRépertoire, Qt::Key_Return);
    EXPECT_EQ(QStringList({f.Chemin(), f.NomFichier->text(), f.SousRépertoire->text()}),
              QStringList({choisi + "/neuf", choisi + "/neuf/", ""}));
    EXPECT_FALSE(f.SousRépertoire->isVisible()) << "the focus went to the list";
    f.Répertoire->setCurrentRow(0);
    QTest::keyClick(f.Répertoire, Qt::Key_Return);
    EXPECT_EQ(f.Chemin(), choisi);
    EXPECT_TRUE(f.isVisible());
    EXPECT_TRUE(boîtes.journal.empty());

    // A name that exists, left in the hidden box: the message, and OK takes the folder shown.
    f.Command1->click();
    QTest::keyClicks(f.SousRépertoire, QStringLiteral("sous"));
    f.Répertoire->setFocus();
    EXPECT_FALSE(f.SousRépertoire->isVisible());
    f.BoutonOK->click();
    EXPECT_EQ(Boîtes(), QStringList{Erreur(1125)});
    EXPECT_EQ(Valeurs()[0], choisi);

    // A new name left there is made and chosen.
    boîtes.journal.clear();
    f.SousRépertoire->setText(S("nouveau"));
    f.BoutonOK->click();
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(Valeurs(), QStringList({choisi + "/nouveau", choisi + "/nouveau/KELMOR.SCS", "<-2>"}));
    EXPECT_EQ(QDir::currentPath(), choisi + "/nouveau");
}

TEST_F(Dossiers, FoldersThatCantBeShownLeaveTheListWhereItStood)
{
    // The information folder is gone: the list stays on the current folder, and OK takes that one.
    RépertoireInfo = Chemin("parti");
    EXPECT_EQ(Ouvre(6,
                    [&](ParamétrageRépertoires &f) {
                        EXPECT_EQ(f.NomFichier->text(), Chemin("courant/"));
                        f.BoutonOK->click();
                        return f.result();
                    }),
              QDialog::Accepted);
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(QStringList({Valeurs()[2], RépertoireInfo}), QStringList({Chemin("courant"), Chemin("courant")}));

    RépertoireInfo = Chemin("infos/");
    ParamétrageRépertoires f;
    EXPECT_EQ(f.Chemin(), Chemin("infos")) << "a final separator in the settings is no matter";

    // A folder taken away between the listing and the double click, a file, nothing, a drive without a disc.
    ASSERT_TRUE(f.ChangeRépertoire(Chemin("choisi")));
    const QString volume = f.Lecteur->currentText();
    ASSERT_TRUE(QDir(Chemin("choisi/sous")).removeRecursively());
    emit f.Répertoire->itemActivated(f.Répertoire->item(1));
    EXPECT_EQ(Liste(f.Répertoire), QStringList{".."}) << "the lists are read again";
    EXPECT_FALSE(f.ChangeRépertoire(Chemin("choisi/KELMOR.SCS")));
    EXPECT_FALSE(f.ChangeRépertoire(QString()));
    f.Lecteur->addItem(Chemin("pas de disque"));
    f.Lecteur_Change(f.Lecteur->count() - 1);
    EXPECT_EQ(QStringList({f.Chemin(), f.Lecteur->currentText()}), QStringList({Chemin("choisi"), volume}));
    EXPECT_TRUE(boîtes.journal.empty()) << "passed over in silence";

    // ".." goes up; a drive goes to its root, where there is no "..".
    emit f.Répertoire->itemActivated(f.Répertoire->item(0));
    EXPECT_EQ(f.Chemin(), dossier.path());
    ASSERT_GE(f.Lecteur->findText(QStringLiteral("/")), 0);
    f.Lecteur_Change(f.Lecteur->findText(QStringLiteral("/")));
    EXPECT_EQ(QStringList({f.Chemin(), f.NomFichier->text()}), QStringList({"/", "/"}));
    EXPECT_FALSE(Liste(f.Répertoire).contains(".."));
}

} // namespace
