// The stand-ins for the desktop's services: code page, draws, folders.
#include "Fixtures.h"

#include "platform/Ansi.h"
#include "platform/Horloge.h"

#include <unistd.h>

TEST(Ansi, EveryFrenchAndGermanLetterRoundTrips)
{
    const QString lettres = QString::fromUtf8("àâäçéèêëîïôöùûüÿÀÂÄÇÉÈÊËÎÏÔÖÙÛÜŸæœÆŒßẞ€‚„…‹›‘’“”–—™Šš");
    EXPECT_EQ(DepuisAnsi(VersAnsi(lettres)), QString(lettres).replace(QString::fromUtf8("ẞ"), "?")) << "ẞ has no code in the page";
    EXPECT_EQ(VersAnsi(QString::fromUtf8("é€Ÿ")), QByteArray("\xE9\x80\x9F"));
    EXPECT_EQ(DepuisAnsi(QByteArray("\x81\x8D")), QString::fromUtf8("\u0081\u008D"));
}

// A place beyond the last, 26, would mean a draw of 1.
TEST(Hasard, DrawsInTheHalfOpenUnitWithEqualChancesOverTwentySixPlaces)
{
    InstalleHasard(nullptr);
    int compte[27] = {};
    for (int i = 0; i < 26000; ++i)
        ++compte[std::clamp(static_cast<int>(26.0 * Rnd()), 0, 26)];
    EXPECT_TRUE(compte[26] == 0 && *std::min_element(compte, compte + 26) > 800 && *std::max_element(compte, compte + 26) < 1200);
}

TEST(Chemins, AnAccessibleFolderIsTestedByARealWriteThatLeavesNothingBehind)
{
    QTemporaryDir d;
    QString dossier = d.path(), absent = d.filePath("nulle/part"), lecture = d.filePath("lecture");
    ASSERT_TRUE(EcritFichierEntier(d.filePath("~zut.tmp"), "x")); // the trial file's name, left by something else: it goes too
    EXPECT_TRUE(RépertoireAccessible(dossier) && dossier == d.path() + "/" && QDir(d.path()).isEmpty(QDir::Files | QDir::Hidden));
    EXPECT_TRUE(!RépertoireAccessible(absent) && absent.endsWith('/'));
    QDir(d.path()).mkdir("lecture"), QFile::setPermissions(lecture, QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_TRUE(geteuid() == 0 || !RépertoireAccessible(lecture)) << "root writes anywhere";
}
