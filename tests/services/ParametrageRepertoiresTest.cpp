// The folder form: what OK writes in each use, the folders it refuses or can't show, the subfolder it makes.
#include "Services.h"

#include <QComboBox>

namespace {

QStringList Liste(const QListWidget *l)
{
    QStringList noms;
    for (int i = 0; i < l->count(); ++i)
        noms << l->item(i)->text();
    return noms;
}
constexpr auto DossierJeu = TModeRépertoires::DossierJeu, DossierInfo = TModeRépertoires::DossierInformation;

// A store of its own for each case of a loop, and the folders of an earlier run in memory.
class Dossiers : public Magasin {
protected:
    void SetUp() override
    {
        fichier = dossier.filePath(QStringLiteral("registre%1.ini").arg(++magasins));
        Magasin::SetUp();
        for (const char *d : {"courant", "infos", "choisi/sous"})
            ASSERT_TRUE(QDir().mkpath(Chemin(d)));
        for (const char *f : {"choisi/KELMOR.SCS", "choisi/vieux.scs", "choisi/KELMOR.INF", "infos/KELMOR.INF"})
            ASSERT_TRUE(QFile(Chemin(f)).open(QIODevice::WriteOnly));
        Langues().CheminsInfo[1] = "avant/KELMOR.INF", Langues().CheminsInfo[2] = "avant/DRAVELN.INF";
        Réglages().RépertoireSauvegarde = "avant", Réglages().FichierLancement = "avant/MES.SCS", Réglages().RépertoireInfo = Chemin("infos");
        ASSERT_TRUE(CréeClé(CléJeu) == 0 && QDir::setCurrent(Chemin("courant")));
    }
    QString Chemin(const char *nom) const { return dossier.filePath(nom); }
    QStringList Etat() const { return Magasin::Dossiers() << Langues().CheminsInfo[1] << Langues().CheminsInfo[2]; }
    int magasins = 0;
};

// Saving: the bare score file is found in the new current folder. Information: only the language in use follows.
TEST_F(Dossiers, EachUseStartsWhereItShouldAndItsOKWritesItsOwnValuesOnly)
{
    const QString choisi = Chemin("choisi"), courant = Chemin("courant"), infos = Chemin("infos");
    for (const auto mode : {DossierJeu, DossierInfo}) {
        TearDown(), SetUp(), DemandeDossier().ModeRépertoires = mode;
        ParamétrageRépertoires f;
        EXPECT_EQ(f.Chemin(), mode == DossierJeu ? courant : infos);
        // The files of the use's pattern, in any case of letters, and nothing else.
        EXPECT_TRUE(f.ChangeRépertoire(choisi));
        EXPECT_EQ(Liste(f.Fichier), mode == DossierJeu ? QStringList({"KELMOR.SCS", "vieux.scs"}) : QStringList{"KELMOR.INF"});
        f.BoutonOK->click();
        EXPECT_TRUE(f.result() == QDialog::Accepted && boîtes.journal.empty() && !QFile::exists(choisi + "/~zut.tmp"))
            << "the write test leaves nothing behind";
        EXPECT_EQ(Etat(), mode == DossierJeu ? QStringList({choisi, choisi + "/KELMOR.SCS", "<-2>", choisi, "KELMOR.SCS", infos, choisi, "avant/KELMOR.INF", "avant/DRAVELN.INF"})
                                             : QStringList({"<-2>", "<-2>", choisi, "avant", "avant/MES.SCS", choisi, courant, choisi + "/KELMOR.INF", "avant/DRAVELN.INF"}));
    }
}

// The information folder gone, the list stays on the current folder; a folder that can't be written is refused
// and the form stays for another: one where the write test's file can't be deleted (also for root), one taken away.
TEST_F(Dossiers, AFolderThatCantBeShownLeavesTheListWhereItStoodAndOneThatCantBeWrittenIsRefused)
{
    DemandeDossier().ModeRépertoires = DossierInfo, Réglages().RépertoireInfo = Chemin("parti");
    ParamétrageRépertoires g;
    g.BoutonOK->click();
    EXPECT_TRUE(boîtes.journal.empty() && Etat()[2] == Chemin("courant") && Réglages().RépertoireInfo == Chemin("courant"));
    // A folder gone before its double click, a file: passed over in silence, the lists read again.
    ASSERT_TRUE(g.ChangeRépertoire(Chemin("choisi")) && QDir(Chemin("choisi/sous")).removeRecursively());
    emit g.Répertoire->itemActivated(g.Répertoire->item(1));
    EXPECT_TRUE(!g.ChangeRépertoire(Chemin("choisi/KELMOR.SCS")) && Liste(g.Répertoire) == QStringList{".."} && g.Chemin() == Chemin("choisi"));

    for (const auto &[mode, refusé, retiré] : {std::tuple{DossierJeu, "bloqué", false}, {DossierInfo, "retiré", true}}) {
        SCOPED_TRACE(refusé);
        ASSERT_TRUE(QDir().mkpath(Chemin(refusé) + (retiré ? "" : "/~zut.tmp")));
        const QStringList avant = Etat();
        DemandeDossier().ModeRépertoires = mode;
        ParamétrageRépertoires f;
        EXPECT_TRUE(f.ChangeRépertoire(Chemin(refusé)) && (!retiré || QDir(Chemin(refusé)).removeRecursively()));
        boîtes.journal.clear(), f.BoutonOK->click();
        EXPECT_TRUE(f.result() != QDialog::Accepted && Vues(boîtes) == QList<int>{119} && Etat() == avant) << "the form stays";
        EXPECT_TRUE(f.ChangeRépertoire(Chemin("choisi")));
        f.BoutonOK->click();
        EXPECT_TRUE(f.result() == QDialog::Accepted && Etat()[mode == DossierJeu ? 0 : 2] == Chemin("choisi"));
    }
}

TEST_F(Dossiers, ASubfolderIsMadeOnceAndANameThatCantBeMadeIsRefused)
{
    const QString choisi = Chemin("choisi");
    ASSERT_TRUE(QFile(Chemin("choisi/un fichier")).open(QIODevice::WriteOnly));
    DemandeDossier().ModeRépertoires = DossierJeu;
    ParamétrageRépertoires f;
    f.show();
    ASSERT_TRUE(f.ChangeRépertoire(choisi));
    // No name, an existing folder, a file in the way, a missing parent, a new one twice: none goes into it.
    for (const auto &[nom, fait, message] : {std::tuple<const char *, std::optional<bool>, int>{"", std::nullopt, 0},
                                             {"sous", false, 125}, {"un fichier", false, 120}, {"absent/dessous", false, 120},
                                             {"Parties d'été", true, 0}, {"Parties d'été", false, 125}}) {
        SCOPED_TRACE(nom);
        boîtes.journal.clear(), f.SousRépertoire->setText(nom);
        EXPECT_EQ(f.CréeSousRépertoire(), fait);
        EXPECT_TRUE(Vues(boîtes) == (message ? QList<int>{message} : QList<int>{}) && f.Chemin() == choisi && QDir::currentPath() == Chemin("courant"));
    }
    EXPECT_TRUE(QFileInfo(Chemin("choisi/Parties d'été")).isDir() && !QFileInfo::exists(Chemin("choisi/absent")));

    // Enter in the box makes the folder and goes in, in the list goes up: neither presses OK, nor does Escape.
    f.SousRépertoire->clear(), f.Command1->click(), QTest::keyClicks(f.SousRépertoire, "neuf"), QTest::keyClick(f.SousRépertoire, Qt::Key_Return);
    EXPECT_EQ(f.Chemin(), choisi + "/neuf");
    f.Répertoire->setCurrentRow(0), QTest::keyClick(f.Répertoire, Qt::Key_Return), QTest::keyClick(&f, Qt::Key_Escape);
    EXPECT_TRUE(f.Chemin() == choisi && f.isVisible());

    // A new name left in the box when OK is pressed is made and chosen.
    boîtes.journal.clear(), f.SousRépertoire->setText("nouveau"), f.BoutonOK->click();
    EXPECT_TRUE(boîtes.journal.empty() && Etat().mid(0, 3) == QStringList({choisi + "/nouveau", choisi + "/nouveau/KELMOR.SCS", "<-2>"}));
}

} // namespace
