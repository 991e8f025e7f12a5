// The folder form: what OK writes in each use, the folders it refuses, the subfolder
// made from it and the folders it can't show, on temporary folders.
#include "Doublures.h"
#include "engine/communs.h"
#include "platform/Boites.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "services/Langues.h"
#include "screen/ParametrageRepertoires.h"
#include "services/Parametres.h"
#include "services/Registre.h"
#include "screen/EcranPrincipal.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace {

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
        for (const char *f : {"choisi/KELMOR.SCS", "choisi/vieux.scs", "choisi/KELMOR.INF", "infos/KELMOR.INF"})
            ASSERT_TRUE(QFile(Chemin(f)).open(QIODevice::WriteOnly));
        // A store of its own for each case of a loop.
        InstalleFichierRegistre(dossier.filePath(QStringLiteral("registre%1.ini").arg(++magasins)));
        ASSERT_EQ(CréeClé(CléJeu), 0);
        InstalleBoîtes(&boîtes);
        InstalleEcran(InfoEcran{1280, 1024, QRect(0, 0, 1280, 984), 24});
        EcranMesuré().LargeurEcran = EcranMesuré().HauteurEcran = 0;
        Langues().Langue = langue;
        ChargeChaînes();
        Langues().CheminsInfo[1] = "avant/KELMOR.INF";
        Langues().CheminsInfo[2] = "avant/DRAVELN.INF";
        Réglages().RépertoireSauvegarde = "avant";
        Réglages().FichierLancement = "avant/MES.SCS";
        Réglages().RépertoireInfo = Chemin("infos");
        ASSERT_TRUE(QDir::setCurrent(Chemin("courant")));
    }
    void TearDown() override
    {
        QDir::setCurrent(dossierCourant);
        InstalleFormesModales(nullptr);
        InstalleBoîtes(nullptr);
        InstalleEcran(std::nullopt);
        InstalleFichierRegistre(QString());
        Langues().Langue = 1;
        ChargeChaînes();
        Réglages().RépertoireSauvegarde = Réglages().RépertoireInfo = Réglages().FichierLancement = QString();
    }

    QString Chemin(const char *nom) const { return dossier.filePath(QString::fromUtf8(nom)); }
    // répertoire, fichier de lancement, répertoire information; "<-2>" for one not written.
    QStringList Valeurs() const
    {
        QStringList valeurs;
        for (const char *nom : {"répertoire", "fichier de lancement", "répertoire information"}) {
            QString texte;
            valeurs << (LitValeur(CléJeu, QString::fromUtf8(nom), texte) == 0 ? texte : QStringLiteral("<-2>"));
        }
        return valeurs;
    }
    QStringList Globales() const
    {
        return {Réglages().RépertoireSauvegarde, Réglages().FichierLancement, Réglages().RépertoireInfo, Langues().CheminsInfo[1], Langues().CheminsInfo[2], QDir::currentPath()};
    }
    QStringList Boîtes() const
    {
        QStringList vues;
        for (const auto &b : boîtes.journal)
            vues << b.texte + " | " + b.titre;
        return vues;
    }
    static QString Erreur(int id) { return Langues().Messages[id - 1000] + " | " + Message(TMessage::TitreErreur); }

    // Opens the form as the game does; `joue` stands for the player and answers the form's result.
    int Ouvre(i16 mode, const std::function<int(ParamétrageRépertoires &)> &joue)
    {
        DemandeDossier().ModeRépertoires = static_cast<TModeRépertoires>(mode);
        int résultat = -1;
        InstalleFormesModales([&](QDialog &d) { return résultat = joue(dynamic_cast<ParamétrageRépertoires &>(d)); });
        MontreParamétrageRépertoires();
        return résultat;
    }

    QTemporaryDir dossier;
    QString dossierCourant = QDir::currentPath();
    BoîtesScriptées boîtes;
    short langue = 1;
    int magasins = 0;
};

TEST_F(Dossiers, EachUseStartsWhereItShouldAndItsOKWritesItsOwnValuesOnly)
{
    const QString choisi = Chemin("choisi"), courant = Chemin("courant"), infos = Chemin("infos");
    for (const auto &[mode, l] : {std::pair<i16, short>{7, 1}, {6, 1}, {6, 2}}) {
        SCOPED_TRACE(testing::Message() << "mode " << mode << ", language " << l);
        TearDown();
        langue = l;
        SetUp();
        const bool sauvegarde = mode == 7;
        EXPECT_EQ(Ouvre(mode,
                        [&](ParamétrageRépertoires &f) {
                            EXPECT_EQ(f.Chemin(), sauvegarde ? courant : infos);
                            EXPECT_EQ(QSize(EcranMesuré().LargeurEcran, EcranMesuré().HauteurEcran), QSize(1280, 1024)) << "the screen measured";
                            // The files of the use's pattern, in any case of letters, and nothing else.
                            EXPECT_TRUE(f.ChangeRépertoire(choisi));
                            EXPECT_EQ(Liste(f.Fichier), sauvegarde ? QStringList({"KELMOR.SCS", "vieux.scs"}) : QStringList{"KELMOR.INF"});
                            f.BoutonOK->click();
                            return f.result();
                        }),
                  QDialog::Accepted);
        EXPECT_TRUE(boîtes.journal.empty());
        EXPECT_FALSE(QFile::exists(choisi + "/~zut.tmp")) << "the write test leaves nothing behind";
        // Saving: the bare score file is found in the new current folder. Information: only the language in use follows.
        const QString fr = sauvegarde || l == 2 ? "avant/KELMOR.INF" : choisi + "/KELMOR.INF";
        const QString de = sauvegarde || l == 1 ? "avant/DRAVELN.INF" : choisi + "/DRAVELN.INF";
        EXPECT_EQ(Valeurs(), sauvegarde ? QStringList({choisi, choisi + "/KELMOR.SCS", "<-2>"}) : QStringList({"<-2>", "<-2>", choisi}));
        EXPECT_EQ(Globales(), sauvegarde ? QStringList({choisi, "KELMOR.SCS", infos, fr, de, choisi})
                                         : QStringList({"avant", "avant/MES.SCS", choisi, fr, de, courant}));
    }

    // The close box (Escape does nothing) leaves everything as it was.
    const QStringList valeurs = Valeurs(), globales = Globales();
    ParamétrageRépertoires f;
    f.show();
    f.ChangeRépertoire(courant);
    QTest::keyClick(&f, Qt::Key_Escape);
    EXPECT_TRUE(f.isVisible());
    f.close();
    EXPECT_EQ(QList<QStringList>({Valeurs(), Globales()}), QList<QStringList>({valeurs, globales}));
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
            EXPECT_EQ(Ouvre(mode,
                            [&](ParamétrageRépertoires &f) {
                                EXPECT_TRUE(f.ChangeRépertoire(refusé));
                                EXPECT_TRUE(!retiré || QDir(refusé).removeRecursively());
                                f.BoutonOK->click();
                                EXPECT_NE(f.result(), QDialog::Accepted) << "the form stays";
                                EXPECT_EQ(Boîtes(), QStringList{Erreur(1119)});
                                EXPECT_EQ(QList<QStringList>({Valeurs(), Globales()}), QList<QStringList>({valeurs, globales}));
                                EXPECT_TRUE(f.ChangeRépertoire(Chemin("choisi")));
                                f.BoutonOK->click();
                                return f.result();
                            }),
                      QDialog::Accepted);
            EXPECT_EQ(Valeurs()[mode == 7 ? 0 : 2], Chemin("choisi"));
        }
}

TEST_F(Dossiers, ASubfolderIsMadeOnceAndANameThatCantBeMadeIsRefused)
{
    const QString choisi = Chemin("choisi");
    ASSERT_TRUE(QFile(Chemin("choisi/un fichier")).open(QIODevice::WriteOnly));
    DemandeDossier().ModeRépertoires = TModeRépertoires::DossierJeu;
    ParamétrageRépertoires f;
    f.show();
    ASSERT_TRUE(f.ChangeRépertoire(choisi));

    // No name, an existing folder, a file in the way, a name under a folder that isn't there, a new one twice.
    const QStringList avant = QDir(choisi).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const auto &[nom, fait, message] : {std::tuple<const char *, std::optional<bool>, int>{"", std::nullopt, 0},
                                             {"sous", false, 1125}, {"un fichier", false, 1120}, {"absent/dessous", false, 1120},
                                             {"Parties d'été", true, 0}, {"Parties d'été", false, 1125}}) {
        SCOPED_TRACE(nom);
        boîtes.journal.clear();
        f.SousRépertoire->setText(QString::fromUtf8(nom));
        EXPECT_EQ(f.CréeSousRépertoire(), fait);
        EXPECT_EQ(Boîtes(), message ? QStringList{Erreur(message)} : QStringList{});
        EXPECT_EQ(QStringList({f.Chemin(), QDir::currentPath()}), QStringList({choisi, Chemin("courant")}))
            << "making a folder neither goes into it nor moves the process";
    }
    EXPECT_TRUE(QFileInfo(Chemin("choisi/Parties d'été")).isDir());
    EXPECT_EQ(QDir(choisi).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), avant.size() + 1) << "nothing else made";

    // Enter in the box makes the folder and goes into it; in the list, goes up: neither presses OK.
    f.SousRépertoire->clear();
    f.Command1->click();
    QTest::keyClicks(f.SousRépertoire, QStringLiteral("neuf"));
    QTest::keyClick(f.SousRépertoire, Qt::Key_Return);
    EXPECT_EQ(f.Chemin(), choisi + "/neuf");
    f.Répertoire->setCurrentRow(0);
    QTest::keyClick(f.Répertoire, Qt::Key_Return);
    EXPECT_EQ(f.Chemin(), choisi);
    EXPECT_TRUE(f.isVisible());

    // A name left in the box when OK is pressed: an existing one is refused and the folder shown is taken;
    // a new one is made and chosen.
    boîtes.journal.clear();
    f.SousRépertoire->setText("sous");
    f.BoutonOK->click();
    EXPECT_EQ(Boîtes(), QStringList{Erreur(1125)});
    EXPECT_EQ(Valeurs()[0], choisi);
    boîtes.journal.clear();
    f.SousRépertoire->setText("nouveau");
    f.BoutonOK->click();
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(Valeurs(), QStringList({choisi + "/nouveau", choisi + "/nouveau/KELMOR.SCS", "<-2>"}));
}

TEST_F(Dossiers, FoldersThatCantBeShownLeaveTheListWhereItStood)
{
    // The information folder is gone: the list stays on the current folder, and OK takes that one.
    Réglages().RépertoireInfo = Chemin("parti");
    EXPECT_EQ(Ouvre(6, [](ParamétrageRépertoires &f) { f.BoutonOK->click(); return f.result(); }), QDialog::Accepted);
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(QStringList({Valeurs()[2], Réglages().RépertoireInfo}), QStringList({Chemin("courant"), Chemin("courant")}));

    Réglages().RépertoireInfo = Chemin("infos/");
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
    // A drive goes to its root, where there is no "..".
    f.Lecteur_Change(f.Lecteur->findText(QStringLiteral("/")));
    EXPECT_EQ(f.Chemin(), "/");
    EXPECT_FALSE(Liste(f.Répertoire).contains(".."));
}

} // namespace
