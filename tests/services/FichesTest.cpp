// The information cards: a canton's card, the records' editor, the files made at the start.
#include "Services.h"

#include "screen/Edition.h"
#include "screen/Pompe.h"
#include "services/Fiches.h"
#include "results/PartieEnCours.h"

namespace {

// A record as the format lays it out: two lengths little-endian, Windows-1252, zeros behind.
QByteArray Enreg(const QByteArray &nom, const QByteArray &texte)
{
    QByteArray r = char(nom.size()) + QByteArray(1, '\0') + nom + char(texte.size() & 0xFF) + char(texte.size() >> 8) + texte;
    return r + QByteArray(650 - r.size(), '\0');
}

// The file of the language in use holds 26 records, "Nom k" and "Texte k".
class Fiches : public JeuTest {
protected:
    void SetUp() override
    {
        JeuTest::SetUp();
        for (int k = 1; k <= 26; ++k)
            avant += Enreg("Nom " + QByteArray::number(k), "Texte " + QByteArray::number(k));
        EcritFichierEntier(chemin = Langues().CheminsInfo[1], avant);
    }
    void Relance() { delete std::exchange(forme, nullptr), boîtes.journal.clear(); ASSERT_TRUE(Main()); forme = FormePrincipale(); }
    QString chemin;
    QByteArray avant;
};
using Editeur = Fiches;

// The name and the chief town are the game's own, the text the record's, read in Windows-1252.
TEST_F(Fiches, ACardShowsItsCantonAndItsRecord)
{
    EcritFichierEntier(chemin, avant.replace(23 * 650, 650, Enreg("Waadt", "Capitale olympique.\r\nL\xE9man\xA0: 582 km\xB2")));
    auto &E = Principal();
    LanceRévision(), boîtes.journal.clear();
    InstalleFormesModales([&](QDialog &d) {
        auto &p = dynamic_cast<Pompe &>(d);
        EXPECT_EQ(QStringList({p.LBLPays->text(), p.LBLCapitale->text(), p.TXTInfos->Text()}),
                  QStringList({"Vaud (VD)", "Chef-lieu : Lausanne", "Capitale olympique.\r\nLéman\u00A0: 582 km²"}));
        EXPECT_EQ(p.IMGDrapeau->Picture().cacheKey(), E.drapeau[24]->Picture().cacheKey());
        EXPECT_TRUE(E.rond[24]->Visible() && E.rond[24]->size() != E.RondVille->size()) << "the target on its town";
        return 0;
    });
    CliqueCanton(24);
    EXPECT_TRUE(FormesMontrées().back() == "Pompe" && boîtes.journal.empty());
    EXPECT_EQ(E.rond[24]->size(), E.RondVille->size()) << "closed, the town's dot is at rest";
}

TEST(PlaceFiche, TheWholeCardFrameIncludedStaysInTheWorkArea)
{
    // Card 383 x 493 beside a canton 100 wide, on a screen 1024 wide; OK 25 high.
    const std::array<int, 7> cas[] = {{100, 100, 984, 0, 210, 245, 493}, {700, 100, 984, 25, 307, 233, 493},
                                      {400, 100, 518, 25, 510, 0, 493},  {400, 100, 500, 25, 510, 0, 475},
                                      {600, 100, 400, 0, 207, 0, 400},   {380, 300, 20, 25, 10, 0, 40}};
    for (const auto &[x, w, bas, cadre, gauche, haut, hauteur] : cas) {
        const TPlaceFiche p = PlaceFiche(x, w, 383, 493, 1024, bas, cadre, 40);
        EXPECT_EQ(QList<int>({p.gauche, p.haut, p.hauteur}), QList<int>({gauche, haut, hauteur})) << x << " " << bas << " " << cadre;
    }
}

TEST_F(Editeur, OnlyAChangedRecordIsWrittenInItsPlaceAndOneOverSixHundredAndFiftyBytesIsRefused)
{
    // A text that the box shows with other line breaks or spaces is no change, nor is a name typed alone.
    EcritFichierEntier(chemin, avant.replace(2 * 650, 650, Enreg("Lucerne", "une\nligne\xA0seule")));
    Edition e;
    e.show(), e.BTNRight->click(), e.LBLPays->setText("Nom changé seul");
    for (BoutonGraphique *b : {e.BTNRight, e.BTNRight, e.BTNLeft, e.BTNLeft})
        b->click();
    EXPECT_TRUE(e.LBLPays->text() == "Nom 2" && Contenu(chemin) == avant);
    // A new text, with the name typed beside it, goes to record 2 and nowhere else.
    e.LBLPays->setText("Berne"), e.TXTInfos->setPlainText("Capitale fédérale\nAar"), e.BTNUp->click();
    avant.replace(650, 650, QByteArray("\x05\x00" "Berne\x16\x00" "Capitale f\xE9" "d\xE9rale\r\nAar", 31) + QByteArray(619, '\0'));
    EXPECT_EQ(Contenu(chemin), avant);

    // 4 + 5 + 641 = 650, a line break counting two, fits; one more is refused by every button, and neither
    // Escape nor the close box leave.
    const QString juste = QString(320, 'a') + "\n" + QString(319, 'b');
    e.TXTInfos->setPlainText(juste), e.BTNUp->click();
    avant.replace(0, 650, Enreg("Nom 1", QByteArray(320, 'a') + "\r\n" + QByteArray(319, 'b')));
    EXPECT_TRUE(Contenu(chemin) == avant && boîtes.journal.empty());
    e.TXTInfos->setPlainText(juste + "c");
    const QString gardé = e.TXTInfos->Text();
    for (BoutonGraphique *b : {e.BTNRight, e.BTNUp, e.BTNQuit})
        b->click();
    QTest::keyClick(&e, Qt::Key_Escape), e.close();
    EXPECT_TRUE(boîtes.journal.size() == 3 && boîtes.journal[2].texte == Message(TMessage::FicheTropLongue).arg(651));
    EXPECT_TRUE(e.TXTInfos->Text() == gardé && FicheEnEdition().FicheEditée == 1 && e.isVisible() && Contenu(chemin) == avant);
    e.TXTInfos->setPlainText("court"), e.BTNQuit->click();
    EXPECT_TRUE(e.result() == QDialog::Accepted && FicheEnEdition().FichierFichesOuvert.isEmpty() && Contenu(chemin).left(650) == Enreg("Nom 1", "court"));
}

// A damaged record shows empty and is told, and a card makes no file; a missing file or record is an empty
// one in the editor, which makes the file and grows it by empty records; a failed write says so.
TEST_F(Editeur, ADamagedRecordIsToldAMissingOneIsEmptyAndAFailedWriteSaysSo)
{
    EcritFichierEntier(chemin, avant.replace(2 * 650 + 7, 2, "\xFF\x02")); // record 3's text runs past its 650 bytes
    const QString absent = dossier.filePath("absent.INF");
    EXPECT_TRUE(FicheMontrée(chemin, 3).Texte.isEmpty() && FicheMontrée(chemin, 4).Texte == "Texte 4" && FicheMontrée(absent, 3).Texte.isEmpty());
    EXPECT_TRUE(boîtes.journal.size() == 1 && boîtes.journal[0].texte == chemin + " : " + Message(TMessage::FichierNonInterprétable));
    EXPECT_TRUE(!QFile::exists(absent) && QFile::remove(chemin));
    boîtes.journal.clear();
    Edition e;
    EXPECT_TRUE(e.TXTInfos->Text().isEmpty() && e.LBLPays->text().isEmpty());
    // Left on the first record stays there.
    e.BTNLeft->click(), e.BTNRight->click(), e.BTNRight->click(), e.LBLPays->setText("Uri"), e.TXTInfos->setPlainText("Altdorf"), e.BTNRight->click();
    EXPECT_EQ(Contenu(chemin), QByteArray(1300, '\0') + Enreg("Uri", "Altdorf"));
    // A folder that is gone: the message with the length, and the editor stays.
    FicheEnEdition().FichierFichesOuvert = dossier.filePath("parti/KELMOR.INF");
    e.TXTInfos->setPlainText("Zoug"), e.BTNLeft->click();
    EXPECT_TRUE(boîtes.journal.size() == 1 && boîtes.ADit(Message(TMessage::FicheTropLongue).arg(8)) && FicheEnEdition().FicheEditée == 4 &&
                !QDir(dossier.filePath("parti")).exists());
}

// Both in the language in use: it is the player's to rewrite the other's.
TEST_F(Fiches, AFirstStartMakesBothFilesAndSaysSoOnceAndAFolderThatCantBeWrittenAsksForAnother)
{
    QFile::remove(Langues().CheminsInfo[1]), QFile::remove(Langues().CheminsInfo[2]);
    Relance();
    EXPECT_EQ(Vues(boîtes), QList<int>{18});
    QByteArray attendu;
    for (int k = 1; k <= 26; ++k)
        attendu += Enreg(VersAnsi(Jeu().Cantons[k].Nom), VersAnsi(Message(TMessage::FicheÀRemplir)));
    EXPECT_TRUE(Contenu(Langues().CheminsInfo[1]) == attendu && Contenu(Langues().CheminsInfo[2]) == attendu);
    Relance();
    EXPECT_TRUE(boîtes.journal.empty()) << "the next start finds them and says nothing";

    // The menu opens the editor, on the file of the language in use.
    ChangeLangue(2), EcritFichierEntier(Langues().CheminsInfo[2], Enreg("Waadt", "Deutsch"));
    Principal().MenuFichInfo->trigger();
    EXPECT_TRUE(FormesMontrées().back() == "Edition" && Edition().LBLPays->text() == "Waadt");
    ChangeLangue(1);

    // A folder that can't be written asks for another in the cards' use, which takes the file.
    const QString disparu = dossier.filePath("parti");
    ASSERT_TRUE(QDir(dossier.path()).mkdir("cartes"));
    ChoisiraDossiers({dossier.filePath("cartes")}), boîtes.journal.clear();
    Langues().CheminsInfo[1] = (Réglages().RépertoireInfo = disparu) + "/KELMOR.INF", DemandeDossier().ModeRépertoires = TModeRépertoires::Aucun;
    CréeFichierInfo(Jeu(), 1);
    EXPECT_TRUE(boîtes.journal.size() == 3 && boîtes.journal[1].texte == Message(TMessage::RépertoireNonInscriptible) + " (" + disparu + "/)");
    EXPECT_TRUE(DemandeDossier().ModeRépertoires == TModeRépertoires::DossierInformation && !QDir(disparu).exists());
    EXPECT_EQ(Contenu(dossier.filePath("cartes/KELMOR.INF")).size(), 16900);
}

} // namespace
