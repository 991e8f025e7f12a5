// The .SCS file byte by byte, the ranking into the best ten, and files that must be refused.
#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Formes.h"
#include "results/Scores.h"
#include "services/Langues.h"
#include "services/Chemins.h"
#include "services/Parametres.h"

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
    Octets &Ligne(const QByteArray &nom, qint32 points, qint32 durée, int niveau)
    {
        return R(LE(nom.size(), 2) + nom + LE(points, 4) + LE(durée, 4) + char(niveau));
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

class Store : public JeuTest {
protected:
    void SetUp() override
    {
        JeuTest::SetUp();
        InstalleFormesModales([this](QDialog &) { return 0; });
        FormesMontrées().clear();
        FichierLancement = dossier.filePath("KELMOR.SCS");
    }
    void TearDown() override
    {
        for (int k = 1; k <= 26; ++k)
            Jeu().Cantons[k].Inhibé = False;
        for (int k = 1; k <= 4; ++k)
            Jeu().OrdreEtapes[k] = static_cast<TEtape>(k);
        JeuTest::TearDown();
    }
    void Ecrit(const QByteArray &o)
    {
        QFile f(FichierLancement);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(o);
    }
    QByteArray Lit()
    {
        QFile f(FichierLancement);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    // Ends a game at a level with a score, started at `départ` and ended at `fin` on the clock.
    void Termine(int niveau, i32 score, i32 durée, i32 départ = 1000)
    {
        Jeu().Niveau = static_cast<TNiveau>(niveau);
        Jeu().ScoreGelé = false;
        Jeu().Score = score;
        Jeu().HeureDépart = départ;
        horloge = (départ + durée) % 86400;
        Jeu().NomJoueur = QString::fromUtf8("Zoé");
        boîtes.journal.clear();
        EnregistreScore();
    }
};

TEST_F(Store, WrittenByteByByteAndReadFromBytesBuiltByHand)
{
    Jeu().OrdreEtapes[1] = TEtape::ChefsLieux; Jeu().OrdreEtapes[2] = TEtape::Drapeaux; Jeu().OrdreEtapes[3] = TEtape::Aucune; Jeu().OrdreEtapes[4] = TEtape::Aucune;
    Jeu().Cantons[5].Inhibé = True;
    Jeu().NombreScores[2] = 2;
    Jeu().MeilleursScores[2][1] = {QString::fromUtf8("Zoé"), 999998, 125};
    Jeu().MeilleursScores[2][2] = {"Max", -432773, 3725};
    Jeu().NombreScores[4] = 1;
    Jeu().MeilleursScores[4][1] = {QString::fromUtf8("Jürg"), 12, 0};
    ASSERT_TRUE(EcritFichierScores(true));
    const QByteArray attendu =
        Octets{}.Tête(2, 3, 0, 0, {5}).Ligne("Zo\xE9", 999998, 125, 2).Ligne("Max", -432773, 3725, 2).Ligne("J\xFCrg", 12, 0, 4).o;
    EXPECT_EQ(Lit(), attendu);
    ASSERT_TRUE(EcritFichierScores(false));
    EXPECT_EQ(Lit(), attendu.left(34 * 128)) << "without the scores: the parameter set alone";
    EXPECT_TRUE(QDir(dossier.path()).entryList({"*.tmp", "*~*"}, QDir::Files | QDir::Hidden).isEmpty());

    Jeu().Cantons[5].Inhibé = False;
    // The last record may stop behind its value.
    Ecrit(Octets{}.Tête(4, 1, 0, 0, {3, 26}).Ligne("Anna", 500, 60, 1).Ligne("Ben", 400, 70, 1).Ligne("Cy", 7, 8, 3).o.chopped(114));
    ChargeScores();
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(std::vector<int>({Numéro(Jeu().OrdreEtapes[1]), Numéro(Jeu().OrdreEtapes[2]), Numéro(Jeu().OrdreEtapes[3]), Jeu().Cantons[3].Inhibé, Jeu().Cantons[26].Inhibé,
                                Jeu().Cantons[4].Inhibé, Jeu().NombreScores[1], Jeu().MeilleursScores[1][2].Durée, Jeu().NombreScores[3]}),
              std::vector<int>({4, 1, 0, True, True, False, 2, 70, 1}));
    EXPECT_EQ(Jeu().MeilleursScores[1][2].Nom, "Ben");
    EXPECT_EQ(FichierLancement, dossier.filePath("KELMOR.SCS"));

    // Orders made by hand: a kind twice, a kind behind a 0.
    for (auto [a, b, c] : {std::array{1, 1, 0}, std::array{2, 0, 3}}) {
        Ecrit(Octets{}.Tête(a, b, c, 0).o);
        ChargeScores();
        EXPECT_EQ(std::vector<int>({Numéro(Jeu().OrdreEtapes[1]), Numéro(Jeu().OrdreEtapes[2]), Numéro(Jeu().OrdreEtapes[3])}), std::vector<int>({a, b, c}));
    }
    EXPECT_TRUE(boîtes.journal.empty());
}

TEST_F(Store, AnotherMinorVersionIsReadAnotherMajorRefused)
{
    Ecrit(Octets{}.Tête(1, 2, 3, 4, {}, "Version 6.12 du 01/02/2011", 2).Ligne("Lou", 9, 9, 2).o);
    ChargeScores();
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(Jeu().NombreScores[2], 1);

    Ecrit(Octets{}.Tête(1, 2, 3, 4, {}, "Version 7.12 du 01/02/2011", 2).Ligne("Lou", 9, 9, 2).o);
    const QString nom = FichierLancement;
    ChargeScores();
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(boîtes.journal[0].texte, nom + " : " + Messages[27]);
    EXPECT_EQ(boîtes.journal[0].titre, "Erreur de format");
    EXPECT_EQ(boîtes.journal[0].style, StyleExclamation);
    EXPECT_EQ(Jeu().NombreScores[2], 0);
    EXPECT_EQ(FichierLancement, ComposeChemin(RépertoireSauvegarde, "KELMOR.SCS"));
}

TEST_F(Store, DamagedFilesFallBackToTheDefaultSet)
{
    const QByteArray bon = Octets{}.Tête(1, 2, 3, 4).o;
    auto avec = [&](int record, int valeur) { return QByteArray(bon).replace((record - 1) * 128, 2, LE(valeur, 2)); };
    Octets onzeLignes;
    onzeLignes.Tête(1, 2, 3, 4);
    for (int i = 0; i < 11; ++i)
        onzeLignes.Ligne("X", 100 - i, 1, 1);
    const QByteArray mauvais[] = {
        avec(3, 5), avec(4, 25),               // places, cantons
        avec(5, 9),                            // a step kind the game hasn't
        bon.left(20 * 128),                    // cut inside the set
        bon + Octets{}.Ligne("Y", 1, 1, 7).o,  // a level that doesn't exist
        (bon + Octets{}.Ligne("Y", 1, 1, 1).o).left(34 * 128 + 9), // cut inside a score line
        onzeLignes.o,                          // an eleventh line for one level
    };
    // The default file's lists are taken in place of the bad file's, not written over later.
    FichierLancement = ComposeChemin(RépertoireSauvegarde, "KELMOR.SCS");
    Ecrit(Octets{}.Tête(1, 2, 3, 4).Ligne("Def", 77, 7, 3).o);
    for (const QByteArray &o : mauvais) {
        FichierLancement = dossier.filePath("abime.SCS");
        Ecrit(o);
        boîtes.journal.clear();
        ChargeScores();
        EXPECT_EQ(boîtes.journal.size(), 1u);
        EXPECT_EQ(Jeu().OrdreEtapes[1], TEtape::Cantons);
        EXPECT_EQ(Jeu().OrdreEtapes[4], TEtape::Plaques);
        for (int i = 1; i <= 26; ++i)
            EXPECT_EQ(Jeu().Cantons[i].Inhibé, False);
        EXPECT_EQ(Jeu().NombreScores[3], 1);
    }
    // No file at all: no message, nothing created.
    FichierLancement = dossier.filePath("absent.SCS");
    boîtes.journal.clear();
    ChargeScores();
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(Jeu().MeilleursScores[3][1].Nom, "Def");
    EXPECT_FALSE(QFile::exists(dossier.filePath("absent.SCS")));
}

TEST_F(Store, RankingIntoTheBestTen)
{
    RazScores();
    for (int i = 0; i <= 9; ++i)
        Termine(2, 500 + 10 * i, 100);
    EXPECT_EQ(boîtes.journal[0].texte, Messages[39]);
    EXPECT_EQ(boîtes.journal[0].titre, Messages[40]);
    EXPECT_EQ(FormesMontrées().back(), "AffichageScores");
    EXPECT_EQ(NiveauAffiché, 2);
    EXPECT_TRUE(Jeu().ScoresFinPartie);
    ASSERT_EQ(Jeu().NombreScores[2], 10);
    EXPECT_EQ(Jeu().MeilleursScores[2][1].Points, 590);

    const QByteArray avant = Lit();
    Termine(2, 499, 10); // an eleventh below the tenth: nothing changes, the list shows all the same
    EXPECT_EQ(boîtes.journal[0].texte, Messages[43]);
    Termine(2, 500, 100); // equal in points and length: the older line stays
    EXPECT_EQ(boîtes.journal[0].texte, Messages[43]);
    EXPECT_EQ(Lit(), avant);
    EXPECT_EQ(Jeu().MeilleursScores[2][10].Points, 500);
    Termine(2, 500, 99); // equal in points, shorter: takes the tenth place
    EXPECT_EQ(Jeu().MeilleursScores[2][10].Durée, 99);
    EXPECT_NE(Lit(), avant);
    Termine(2, 555, 50);
    EXPECT_EQ(std::vector<int>({Jeu().MeilleursScores[2][5].Points, Jeu().MeilleursScores[2][6].Points, Jeu().MeilleursScores[2][10].Points}),
              std::vector<int>({555, 550, 510}));

    // Negative, across midnight.
    Termine(3, -432773, 500, 86000);
    EXPECT_EQ(Jeu().MeilleursScores[3][1].Points, -432773);
    EXPECT_EQ(Jeu().MeilleursScores[3][1].Durée, 500);
    EXPECT_EQ(boîtes.journal.back().texte, Messages[41]);
    // Apprentissage keeps no score.
    boîtes.journal.clear();
    Jeu().ScoreGelé = true;
    Jeu().Niveau = TNiveau::Facile;
    EnregistreScore();
    EXPECT_EQ(Jeu().NombreScores[1], 0);
    EXPECT_EQ(boîtes.journal.at(0).texte, Messages[44]);
    EXPECT_TRUE(Jeu().PartieEnregistrée);
}

TEST_F(Store, ResetKeepsTheSetAndAnUnwritableFileIsTold)
{
    Jeu().OrdreEtapes[1] = TEtape::Drapeaux; Jeu().OrdreEtapes[2] = TEtape::Cantons; Jeu().OrdreEtapes[3] = TEtape::Aucune; Jeu().OrdreEtapes[4] = TEtape::Aucune;
    Termine(1, 800, 10);
    boîtes.réponses = {RéponseOui};
    ConfirmeRazScores();
    EXPECT_EQ(boîtes.journal.back().style, StyleQuestion);
    EXPECT_EQ(Jeu().NombreScores[1], 0);
    EXPECT_EQ(Lit(), Octets{}.Tête(3, 1, 0, 0).o);

    FichierLancement = dossier.filePath("nulle/part/KELMOR.SCS");
    Termine(4, 1000, 10);
    ASSERT_GE(boîtes.journal.size(), 2u);
    EXPECT_TRUE(boîtes.journal[1].texte.startsWith(Messages[134]));
    EXPECT_TRUE(boîtes.journal[1].texte.contains(Messages[147]));
    EXPECT_EQ(Jeu().NombreScores[4], 1);
}

} // namespace
