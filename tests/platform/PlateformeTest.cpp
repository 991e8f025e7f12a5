// The stand-ins for the desktop's services: code page, draws, boxes, folders.
#include "Doublures.h"
#include "platform/Ansi.h"
#include "platform/Boites.h"
#include "platform/Horloge.h"
#include "services/Chemins.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <unistd.h>

TEST(Ansi, EveryFrenchAndGermanLetterRoundTrips)
{
    const QString lettres = QString::fromUtf8("àâäçéèêëîïôöùûüÿÀÂÄÇÉÈÊËÎÏÔÖÙÛÜŸæœÆŒßẞ€‚„…‹›‘’“”–—™Šš");
    const QByteArray octets = VersAnsi(lettres);
    EXPECT_EQ(octets.size(), lettres.size());
    // ẞ has no code in the page; every other letter comes back.
    QString attendu = lettres;
    attendu.replace(QString::fromUtf8("ẞ"), QStringLiteral("?"));
    EXPECT_EQ(DepuisAnsi(octets), attendu);
    EXPECT_EQ(VersAnsi(QString::fromUtf8("é€Ÿ")), QByteArray("\xE9\x80\x9F"));
    EXPECT_EQ(DepuisAnsi(QByteArray("\x81\x8D")), QString::fromUtf8("\u0081\u008D"));
}

TEST(Hasard, DrawsStayInTheHalfOpenUnitAndRepeatFromASeed)
{
    InstalleHasard(nullptr);
    Randomize(1234.5);
    std::vector<float> première;
    for (int i = 0; i < 5000; ++i) {
        const float r = Rnd();
        ASSERT_GE(r, 0.0f);
        ASSERT_LT(r, 1.0f);
        if (i < 10)
            première.push_back(r);
    }
    Randomize(1234.5);
    std::vector<float> seconde;
    for (int i = 0; i < 10; ++i)
        seconde.push_back(Rnd());
    EXPECT_NE(première, seconde) << "a seed mixes into the state, as a new seed of the clock would";
    // Equal chances over 26 places: no place drawn twice as often as another.
    int compte[26] = {};
    for (int i = 0; i < 26000; ++i)
        ++compte[static_cast<int>(26.0 * Rnd())];
    for (int n : compte) {
        EXPECT_GT(n, 800);
        EXPECT_LT(n, 1200);
    }
}

TEST(Boites, ScriptAnswersInOrderAndLogsEveryBox)
{
    BoîtesScriptées script;
    script.réponses = {RéponseNon};
    InstalleBoîtes(&script);
    EXPECT_EQ(Boîte("Quitter ?", StyleQuestion, "Partie"), RéponseNon);
    EXPECT_EQ(Boîte("Quitter ?", StyleQuestion, "Partie"), RéponseOui);
    EXPECT_EQ(Boîte("Erreur", StyleCritique, "Titre"), RéponseOK);
    InstalleBoîtes(nullptr);
    ASSERT_EQ(script.journal.size(), 3u);
    EXPECT_EQ(script.journal[2].style, 16);
    EXPECT_EQ(script.journal[2].titre, "Titre");
    EXPECT_TRUE(script.ADit("Quitter"));
}

TEST(Chemins, OneSeparatorBetweenFolderAndName)
{
    EXPECT_EQ(ComposeChemin("/jeux/kelmor", "KELMOR.pts"), "/jeux/kelmor/KELMOR.pts");
    EXPECT_EQ(ComposeChemin("/jeux/kelmor/", "KELMOR.pts"), "/jeux/kelmor/KELMOR.pts");
}

TEST(Chemins, AccessibleFolderIsTestedByARealWrite)
{
    QTemporaryDir d;
    ASSERT_TRUE(d.isValid());
    QString dossier = d.path();
    EXPECT_TRUE(RépertoireAccessible(dossier));
    EXPECT_EQ(dossier, d.path() + "/");
    EXPECT_TRUE(QDir(d.path()).entryList(QDir::Files | QDir::Hidden).isEmpty()) << "the test leaves nothing behind";

    // A file of that name left by something else goes too.
    QFile reste(d.filePath("~zut.tmp"));
    ASSERT_TRUE(reste.open(QIODevice::WriteOnly));
    reste.close();
    EXPECT_TRUE(RépertoireAccessible(dossier));
    EXPECT_FALSE(QFile::exists(d.filePath("~zut.tmp")));

    QString absent = d.filePath("nulle/part");
    EXPECT_FALSE(RépertoireAccessible(absent));
    EXPECT_TRUE(absent.endsWith('/'));

    if (geteuid() != 0) { // root writes anywhere
        QDir(d.path()).mkdir("lecture");
        QFile::setPermissions(d.filePath("lecture"), QFile::ReadOwner | QFile::ExeOwner);
        QString lecture = d.filePath("lecture");
        EXPECT_FALSE(RépertoireAccessible(lecture));
    }
}
