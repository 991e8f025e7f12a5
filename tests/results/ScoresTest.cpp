// The .SCS file as bytes (written byte by byte, read, damaged files refused), then the
// store around it: the default file taken in place of a bad one, the best ten, a reset.
#include "Fixtures.h"

#include "engine/communs.h"
#include "files/FichierScores.h"
#include "platform/Formes.h"
#include "results/Scores.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "results/PartieEnCours.h"

#include <QDir>
#include <QFile>

namespace {

QByteArray LE(qint64 v, int n)
{
    QByteArray b;
    for (int i = 0; i < n; ++i)
        b += char((quint64(v) >> (8 * i)) & 0xFF);
    return b;
}

// Records of 128 bytes built by hand, independently of the game's writer.
struct Octets {
    QByteArray o;
    Octets &R(const QByteArray &b) { o += b.leftJustified(128, '\0'); return *this; }
    Octets &Entier(int v) { return R(LE(v, 2)); }
    // A score line: the name, the points, the length in seconds and the level, packed.
    Octets &Ligne(const QByteArray &nom, qint32 points, qint32 durée, int niveau)
    {
        return R(LE(nom.size(), 2) + nom + LE(points, 4) + LE(durée, 4) + LE(niveau, 2));
    }
    Octets &Tête(int o1, int o2, int o3, int o4, std::initializer_list<int> inhibés = {},
                 const QByteArray &version = "Version 6.07 du 30/07/2008", int langue = 1)
    {
        R(LE(version.size(), 2) + version).Entier(langue).Entier(4).Entier(26).Entier(o1).Entier(o2).Entier(o3).Entier(o4);
        for (int i = 1; i <= 26; ++i)
            Entier(std::find(inhibés.begin(), inhibés.end(), i) != inhibés.end() ? -1 : 0);
        return *this;
    }
};

TEST(FichierScores, WrittenByteByByteAndReadBack)
{
    TFichierScores f;
    f.Version = "Version 6.07 du 30/07/2008";
    f.Langue = 2;
    f.OrdreEtapes[1] = TEtape::ChefsLieux, f.OrdreEtapes[2] = TEtape::Drapeaux, f.OrdreEtapes[3] = f.OrdreEtapes[4] = TEtape::Aucune;
    f.Inhibé[5] = f.Inhibé[26] = true;
    f.Nombres[2] = 2, f.Nombres[4] = 1;
    f.Lignes[2][1] = {QString::fromUtf8("Zoé"), 999998, 125};
    f.Lignes[2][2] = {"Max", -432773, 3725};
    f.Lignes[4][1] = {QString::fromUtf8("Jürg"), 12, 0};
    const QByteArray attendu = Octets{}.Tête(2, 3, 0, 0, {5, 26}, "Version 6.07 du 30/07/2008", 2)
                                   .Ligne("Zo\xE9", 999998, 125, 2).Ligne("Max", -432773, 3725, 2).Ligne("J\xFCrg", 12, 0, 4).o;
    EXPECT_EQ(OctetsScores(f, true), attendu);
    EXPECT_EQ(OctetsScores(f, false), attendu.left(34 * 128)) << "without the scores: the set alone";

    // Read back, the last record stopping behind its value: the same bytes again, so the same values.
    TFichierScores lu;
    ASSERT_TRUE(LitOctetsScores(attendu.chopped(128 - 16), lu));
    EXPECT_EQ(OctetsScores(lu, true), attendu);
    // Orders made by hand are the file's to say: a kind twice, a kind behind a 0.
    for (auto [a, b, c] : {std::array{1, 1, 0}, std::array{2, 0, 3}}) {
        ASSERT_TRUE(LitOctetsScores(Octets{}.Tête(a, b, c, 0).o, lu));
        EXPECT_EQ(std::vector<int>({Numéro(lu.OrdreEtapes[1]), Numéro(lu.OrdreEtapes[2]), Numéro(lu.OrdreEtapes[3])}), std::vector<int>({a, b, c}));
    }
}

TEST(FichierScores, DamagedFilesAreRefusedAndChangeNothing)
{
    const QByteArray bon = Octets{}.Tête(1, 2, 3, 4).o;
    auto avec = [&](int record, int valeur) { return QByteArray(bon).replace((record - 1) * 128, 2, LE(valeur, 2)); };
    Octets dix = Octets{}.Tête(1, 2, 3, 4);
    for (int i = 0; i < 10; ++i)
        dix.Ligne("X", 100 - i, 1, 1);
    TFichierScores f;
    ASSERT_TRUE(LitOctetsScores(dix.o + Octets{}.Ligne("Y", 1, 1, 0).o, f)) << "ten lines in a level, one at level 0";
    const QByteArray avant = OctetsScores(f, true);
    const struct { QByteArray o; const char *quoi; } mauvais[] = {
        {bon.left(128 + 1), "cut in the language"}, {avec(3, 5), "places"}, {avec(4, 25), "cantons"},
        {avec(5, 5), "a step kind above 4"}, {avec(6, -1), "a step kind below 0"}, {bon.left(20 * 128), "cut inside the set"},
        {bon + Octets{}.Ligne("Y", 1, 1, 5).o, "a level above 4"}, {bon + Octets{}.Ligne("Y", 1, 1, -1).o, "a level below 0"},
        {(bon + Octets{}.Ligne("Y", 1, 1, 1).o).left(34 * 128 + 9), "cut inside a score line"},
        {dix.Ligne("X", 1, 1, 1).o, "an eleventh line for one level"},
    };
    for (const auto &m : mauvais) {
        EXPECT_FALSE(LitOctetsScores(m.o, f)) << m.quoi;
        EXPECT_EQ(OctetsScores(f, true), avant) << m.quoi;
    }
}

void Ecrit(const QString &chemin, const QByteArray &o) { QFile f(chemin); EXPECT_TRUE(f.open(QIODevice::WriteOnly) && f.write(o) == o.size()); }
QByteArray Lit() { QFile f(Réglages().FichierLancement); return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray(); }
// The step kinds in order, then whether cantons 3 and 7 are left out, then the number of lines at levels 2 and 3.
std::vector<int> Ensemble()
{
    return {Numéro(Jeu().OrdreEtapes[1]), Numéro(Jeu().OrdreEtapes[2]), Numéro(Jeu().OrdreEtapes[3]), Numéro(Jeu().OrdreEtapes[4]),
            Jeu().Cantons[3].Inhibé, Jeu().Cantons[7].Inhibé, Jeu().NombreScores[2], Jeu().NombreScores[3]};
}

class Store : public JeuTest {
protected:
    void SetUp() override { JeuTest::SetUp(), Réglages().FichierLancement = dossier.filePath("KELMOR.SCS"); }
    void TearDown() override
    {
        for (int k = 1; k <= 4; ++k)
            Jeu().OrdreEtapes[k] = static_cast<TEtape>(k);
        JeuTest::TearDown();
    }
    // Ends a game at a level with a score, started at `départ` and lasting `durée` on the clock.
    void Termine(int niveau, i32 score, i32 durée, i32 départ = 1000)
    {
        Jeu().Niveau = static_cast<TNiveau>(niveau), Jeu().ScoreGelé = false, Jeu().Score = score, Jeu().HeureDépart = départ;
        horloge = (départ + durée) % 86400;
        Jeu().NomJoueur = QString::fromUtf8("Zoé");
        boîtes.journal.clear();
        EnregistreScore();
    }
};

TEST_F(Store, TheFileGoesInWholeAndAnotherMajorVersionOrADamagedFileFallsBackToTheDefault)
{
    Jeu().OrdreEtapes[1] = TEtape::Plaques;
    Jeu().Cantons[5].Inhibé = true;
    Jeu().NombreScores[2] = 1;
    Jeu().MeilleursScores[2][1] = {"Max", 7, 8};
    ASSERT_TRUE(EcritFichierScores(true));
    EXPECT_EQ(Lit(), Octets{}.Tête(4, 2, 3, 4, {5}).Ligne("Max", 7, 8, 2).o);
    EXPECT_TRUE(QDir(dossier.path()).entryList({"*.tmp", "*~*"}, QDir::Files | QDir::Hidden).isEmpty());

    // Another minor version is read whole, the set with the lists.
    Ecrit(Réglages().FichierLancement, Octets{}.Tête(4, 1, 0, 0, {3}, "Version 6.12 du 01/02/2011", 2).Ligne("Lou", 9, 9, 2).o);
    ChargeScores();
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(Ensemble(), std::vector<int>({4, 1, 0, 0, 1, 0, 1, 0}));

    // The default file's set and lists are taken in place of a bad file's; a bad default file too gives the default set.
    const QString défaut = ComposeChemin(Réglages().RépertoireSauvegarde, "KELMOR.SCS"), abîmé = dossier.filePath("abime.SCS");
    Ecrit(défaut, Octets{}.Tête(2, 1, 0, 0, {7}).Ligne("Def", 77, 7, 3).o);
    // Another major version, a file cut inside the set, then (empty here) a bad default file as well.
    for (const QByteArray &o : {Octets{}.Tête(1, 2, 3, 4, {}, "Version 7.12 du 01/02/2011").o, Octets{}.Tête(1, 2, 3, 4).o.left(20 * 128),
                                QByteArray()}) {
        const bool défautBon = !o.isEmpty();
        if (!défautBon)
            Ecrit(défaut, "x");
        Ecrit(Réglages().FichierLancement = abîmé, o.isEmpty() ? "y" : o);
        boîtes.journal.clear();
        ChargeScores();
        ASSERT_EQ(boîtes.journal.size(), défautBon ? 1u : 2u);
        EXPECT_EQ(boîtes.journal[0].texte, abîmé + " : " + Message(TMessage::FichierNonInterprétable));
        EXPECT_EQ(Réglages().FichierLancement, défaut);
        EXPECT_EQ(Ensemble(), défautBon ? std::vector<int>({2, 1, 0, 0, 0, 1, 0, 1}) : std::vector<int>({1, 2, 3, 4, 0, 0, 0, 0}));
    }
    // No file at all: no message, nothing created.
    QFile::remove(défaut);
    Réglages().FichierLancement = dossier.filePath("absent.SCS");
    boîtes.journal.clear();
    ChargeScores();
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_FALSE(QFile::exists(dossier.filePath("absent.SCS")));
}

TEST_F(Store, RankingIntoTheBestTen)
{
    RazScores();
    for (int i = 0; i <= 9; ++i)
        Termine(2, 500 + 10 * i, 100);
    EXPECT_EQ(boîtes.journal[0].texte, Message(TMessage::BravoTopTen));
    EXPECT_TRUE(FormesMontrées().back() == "AffichageScores" && ScoresAffichés().NiveauAffiché == TNiveau::Moyen) << "the list of the game's level follows";
    ASSERT_EQ(Jeu().NombreScores[2], 10);
    EXPECT_EQ(Jeu().MeilleursScores[2][1].Points, 590);

    const QByteArray avant = Lit();
    Termine(2, 499, 10); // an eleventh below the tenth: nothing changes
    EXPECT_EQ(boîtes.journal[0].texte, Message(TMessage::HorsDesDixMeilleurs));
    Termine(2, 500, 100); // equal in points and length: the older line stays
    EXPECT_EQ(boîtes.journal[0].texte, Message(TMessage::HorsDesDixMeilleurs));
    EXPECT_EQ(Lit(), avant);
    Termine(2, 500, 99); // equal in points, shorter: takes the tenth place
    EXPECT_EQ(Jeu().MeilleursScores[2][10].Durée, 99);
    EXPECT_EQ(Lit(), ContenuScores(true));
    Termine(2, 555, 50);
    EXPECT_EQ(std::vector<int>({Jeu().MeilleursScores[2][5].Points, Jeu().MeilleursScores[2][6].Points, Jeu().MeilleursScores[2][10].Points}),
              std::vector<int>({555, 550, 510}));

    // Negative, across midnight.
    Termine(3, -432773, 500, 86000);
    EXPECT_TRUE(Jeu().MeilleursScores[3][1].Points == -432773 && Jeu().MeilleursScores[3][1].Durée == 500);
    EXPECT_EQ(boîtes.journal.back().texte, Message(TMessage::MieuxFaireTopTen));
    // Apprentissage keeps no score.
    boîtes.journal.clear();
    Jeu().ScoreGelé = true, Jeu().Niveau = TNiveau::Facile, Jeu().PartieEnregistrée = false;
    EnregistreScore();
    EXPECT_TRUE(Jeu().NombreScores[1] == 0 && Jeu().PartieEnregistrée);
    EXPECT_EQ(boîtes.journal.at(0).texte, Message(TMessage::ScoreNonEnregistréAssistance));
}

TEST_F(Store, ResetKeepsTheSetAndAnUnwritableFileIsTold)
{
    Jeu().OrdreEtapes[1] = TEtape::Drapeaux, Jeu().OrdreEtapes[2] = TEtape::Cantons, Jeu().OrdreEtapes[3] = Jeu().OrdreEtapes[4] = TEtape::Aucune;
    Jeu().Cantons[7].Inhibé = true;
    Termine(1, 800, 10);
    boîtes.réponses = {RéponseOui};
    ConfirmeRazScores();
    EXPECT_EQ(boîtes.journal.back().style, StyleQuestion);
    EXPECT_EQ(Jeu().NombreScores[1], 0);
    EXPECT_EQ(Lit(), Octets{}.Tête(3, 1, 0, 0, {7}).o);

    Réglages().FichierLancement = dossier.filePath("nulle/part/KELMOR.SCS");
    Termine(4, 1000, 10);
    ASSERT_GE(boîtes.journal.size(), 2u);
    EXPECT_TRUE(boîtes.journal[1].texte.startsWith(Message(TMessage::FichierNonEcrit)));
    EXPECT_TRUE(boîtes.journal[1].texte.contains(Message(TMessage::PeutÊtreProtégé)));
    EXPECT_EQ(Jeu().NombreScores[4], 1);
}

} // namespace
