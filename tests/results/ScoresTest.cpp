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

// Builds records by hand, independently of the game's writer.
struct Octets {
    QByteArray o;
    char *Nouveau()
    {
        o.append(128, '\0');
        return o.data() + o.size() - 128;
    }
    Octets &Entier(int v)
    {
        char *p = Nouveau();
        p[0] = char(v & 0xFF);
        p[1] = char((v >> 8) & 0xFF);
        return *this;
    }
    Octets &Long(qint32 v)
    {
        char *p = Nouveau();
        for (int i = 0; i < 4; ++i)
            p[i] = char((quint32(v) >> (8 * i)) & 0xFF);
        return *this;
    }
    Octets &Chaîne(const QByteArray &ansi)
    {
        char *p = Nouveau();
        p[0] = char(ansi.size());
        memcpy(p + 2, ansi.constData(), size_t(ansi.size()));
        return *this;
    }
    Octets &Ligne(const QByteArray &nom, qint32 points, qint32 durée, int niveau)
    {
        char *p = Nouveau();
        p[0] = char(nom.size());
        memcpy(p + 2, nom.constData(), size_t(nom.size()));
        char *q = p + 2 + nom.size();
        for (int i = 0; i < 4; ++i) {
            q[i] = char((quint32(points) >> (8 * i)) & 0xFF);
            q[4 + i] = char((quint32(durée) >> (8 * i)) & 0xFF);
        }
        q[8] = char(niveau);
        return *this;
    }
    Octets &Tête(int o1, int o2, int o3, int o4, std::initializer_list<int> inhibés = {})
    {
        Chaîne("Version 6.07 du 30/07/2008").Entier(1).Entier(4).Entier(26).Entier(o1).Entier(o2).Entier(o3).Entier(o4);
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
    // Ends a game at a level with a score and a length.
    void Termine(int niveau, i32 score, i32 durée)
    {
        Niveau = static_cast<i16>(niveau);
        ScoreGelé = False;
        Score = score;
        HeureDépart = 1000;
        horloge = 1000 + durée;
        NomJoueur = QString::fromUtf8("Zoé");
        boîtes.journal.clear();
        EnregistreScore();
    }
};

TEST_F(Store, WrittenByteByByte)
{
    OrdreEtapes[1] = 2; OrdreEtapes[2] = 3; OrdreEtapes[3] = 0; OrdreEtapes[4] = 0;
    Cantons[5].Inhibé = True;
    NombreScores[2] = 2;
    MeilleursScores[2][1] = {QString::fromUtf8("Zoé"), 999998, 125};
    MeilleursScores[2][2] = {"Max", -432773, 3725};
    NombreScores[4] = 1;
    MeilleursScores[4][1] = {QString::fromUtf8("Jürg"), 12, 0};
    ASSERT_TRUE(EcritFichierScores(true));
    const QByteArray attendu = Octets{}
                                   .Tête(2, 3, 0, 0, {5})
                                   .Ligne("Zo\xE9", 999998, 125, 2)
                                   .Ligne("Max", -432773, 3725, 2)
                                   .Ligne("J\xFCrg", 12, 0, 4)
                                   .o;
    EXPECT_EQ(Lit(), attendu);
    EXPECT_EQ(Lit().size(), 37 * 128);
    // Without the scores: the parameter set alone, 34 records.
    ASSERT_TRUE(EcritFichierScores(false));
    EXPECT_EQ(Lit(), attendu.left(34 * 128));
    EXPECT_TRUE(QDir(dossier.path()).entryList({"*.tmp", "*~*"}, QDir::Files | QDir::Hidden).isEmpty());
    Cantons[5].Inhibé = False;
}

TEST_F(Store, ReadBackFromAFileBuiltByHand)
{
    Ecrit(Octets{}.Tête(4, 1, 0, 0, {3, 26}).Ligne("Anna", 500, 60, 1).Ligne("Ben", 400, 70, 1).Ligne("Cy", 7, 8, 3).o);
    ChargeScores();
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(OrdreEtapes[1], 4);
    EXPECT_EQ(OrdreEtapes[2], 1);
    EXPECT_EQ(OrdreEtapes[3], 0);
    EXPECT_EQ(Cantons[3].Inhibé, True);
    EXPECT_EQ(Cantons[26].Inhibé, True);
    EXPECT_EQ(Cantons[4].Inhibé, False);
    EXPECT_EQ(NombreScores[1], 2);
    EXPECT_EQ(MeilleursScores[1][2].Nom, "Ben");
    EXPECT_EQ(MeilleursScores[1][2].Durée, 70);
    EXPECT_EQ(NombreScores[3], 1);
    EXPECT_EQ(FichierLancement, dossier.filePath("KELMOR.SCS"));
    Cantons[3].Inhibé = Cantons[26].Inhibé = False;
}

TEST_F(Store, AnotherMinorVersionIsReadAnotherMajorRefused)
{
    Octets autreMineure;
    autreMineure.Chaîne("Version 6.12 du 01/02/2011").Entier(2).Entier(4).Entier(26);
    for (int i = 0; i < 30; ++i)
        autreMineure.Entier(i < 4 ? i + 1 : 0);
    autreMineure.Ligne("Lou", 9, 9, 2);
    Ecrit(autreMineure.o);
    ChargeScores();
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(NombreScores[2], 1);

    QByteArray majeure = autreMineure.o;
    majeure.replace(0, 12, QByteArray("\x1A\x00Version 7.", 12));
    Ecrit(majeure);
    const QString nom = FichierLancement;
    ChargeScores();
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(boîtes.journal[0].texte, nom + " : " + Messages[27]);
    EXPECT_EQ(boîtes.journal[0].titre, "Erreur de format");
    EXPECT_EQ(boîtes.journal[0].style, StyleExclamation);
    EXPECT_EQ(NombreScores[2], 0);
    EXPECT_EQ(FichierLancement, ComposeChemin(RépertoireSauvegarde, "KELMOR.SCS"));
}

TEST_F(Store, DamagedFilesFallBackToTheDefaultSet)
{
    const QByteArray bon = Octets{}.Tête(1, 2, 3, 4).o;
    auto avec = [&](int record, int valeur) {
        QByteArray o = bon;
        o[(record - 1) * 128] = char(valeur & 0xFF);
        o[(record - 1) * 128 + 1] = char((valeur >> 8) & 0xFF);
        return o;
    };
    Octets onzeLignes;
    onzeLignes.Tête(1, 2, 3, 4);
    for (int i = 0; i < 11; ++i)
        onzeLignes.Ligne("X", 100 - i, 1, 1);
    const QByteArray mauvais[] = {
        avec(3, 5),                         // places
        avec(4, 25),                        // cantons
        avec(5, 9),                         // a step kind the game hasn't
        avec(6, 1),                         // the same kind twice
        bon.left(20 * 128),                 // cut inside the set
        bon + Octets{}.Ligne("Y", 1, 1, 7).o, // a level that doesn't exist
        onzeLignes.o,                       // an eleventh line for one level
    };
    for (const QByteArray &o : mauvais) {
        FichierLancement = dossier.filePath("abime.SCS");
        Ecrit(o);
        boîtes.journal.clear();
        ChargeScores();
        EXPECT_EQ(boîtes.journal.size(), 1u);
        EXPECT_EQ(OrdreEtapes[1], 1);
        EXPECT_EQ(OrdreEtapes[4], 4);
        for (int i = 1; i <= 26; ++i)
            EXPECT_EQ(Cantons[i].Inhibé, False);
        for (int n = 1; n <= 4; ++n)
            EXPECT_LE(NombreScores[n], 10);
    }
    // No file at all: no message, default set-up, nothing created.
    FichierLancement = dossier.filePath("absent.SCS");
    boîtes.journal.clear();
    ChargeScores();
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_FALSE(QFile::exists(dossier.filePath("absent.SCS")));
}

TEST_F(Store, RankingIntoTheBestTen)
{
    RazScores();
    Termine(2, 500, 100);
    EXPECT_EQ(NombreScores[2], 1);
    EXPECT_EQ(boîtes.journal[0].texte, Messages[39]);
    EXPECT_EQ(boîtes.journal[0].titre, Messages[40]);
    EXPECT_EQ(FormesMontrées().back(), "AffichageScores");
    EXPECT_EQ(NiveauAffiché, 2);
    EXPECT_EQ(ScoresFinPartie, True);
    for (int i = 1; i <= 9; ++i)
        Termine(2, 500 + 10 * i, 100);
    ASSERT_EQ(NombreScores[2], 10);
    EXPECT_EQ(MeilleursScores[2][1].Points, 590);
    EXPECT_EQ(MeilleursScores[2][10].Points, 500);

    // An eleventh below the tenth: nothing changes, the list shows all the same.
    const QByteArray avant = Lit();
    Termine(2, 499, 10);
    EXPECT_EQ(boîtes.journal[0].texte, Messages[43]);
    EXPECT_EQ(Lit(), avant);
    EXPECT_EQ(MeilleursScores[2][10].Points, 500);
    // Equal in points and length: the older line stays.
    Termine(2, 500, 100);
    EXPECT_EQ(Lit(), avant);
    // Equal in points, shorter: takes the tenth place.
    Termine(2, 500, 99);
    EXPECT_EQ(MeilleursScores[2][10].Durée, 99);
    EXPECT_NE(Lit(), avant);
    // A higher score goes in above and pushes the others down.
    Termine(2, 555, 50);
    EXPECT_EQ(MeilleursScores[2][5].Points, 555);
    EXPECT_EQ(MeilleursScores[2][6].Points, 550);
    EXPECT_EQ(MeilleursScores[2][10].Points, 510);
}

TEST_F(Store, NegativeScoresAcrossMidnightAndApprentissage)
{
    RazScores();
    Niveau = 3;
    ScoreGelé = False;
    Score = -432773;
    HeureDépart = 86000;
    horloge = 100;
    NomJoueur = "Nuit";
    EnregistreScore();
    EXPECT_EQ(MeilleursScores[3][1].Points, -432773);
    EXPECT_EQ(MeilleursScores[3][1].Durée, 500);
    EXPECT_EQ(boîtes.journal.back().texte, Messages[41]);

    boîtes.journal.clear();
    ScoreGelé = True;
    Niveau = 1;
    EnregistreScore();
    EXPECT_EQ(NombreScores[1], 0);
    EXPECT_EQ(boîtes.journal.at(0).texte, Messages[44]);
    EXPECT_EQ(PartieEnregistrée, True);
}

TEST_F(Store, ResetKeepsTheParameterSet)
{
    OrdreEtapes[1] = 3; OrdreEtapes[2] = 1; OrdreEtapes[3] = 0; OrdreEtapes[4] = 0;
    Termine(1, 800, 10);
    boîtes.réponses = {RéponseOui};
    ConfirmeRazScores();
    EXPECT_EQ(boîtes.journal.back().style, StyleQuestion);
    EXPECT_EQ(NombreScores[1], 0);
    EXPECT_EQ(Lit(), Octets{}.Tête(3, 1, 0, 0).o);
    for (int k = 1; k <= 4; ++k)
        OrdreEtapes[k] = static_cast<i16>(k);
}

TEST_F(Store, AFileThatCantBeWrittenIsToldAndTheGameGoesOn)
{
    FichierLancement = dossier.filePath("nulle/part/KELMOR.SCS");
    Termine(4, 1000, 10);
    ASSERT_GE(boîtes.journal.size(), 2u);
    EXPECT_TRUE(boîtes.journal[1].texte.startsWith(Messages[134]));
    EXPECT_TRUE(boîtes.journal[1].texte.contains(Messages[147]));
    EXPECT_EQ(NombreScores[4], 1);
}

} // namespace
