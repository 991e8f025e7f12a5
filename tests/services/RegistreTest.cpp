// The settings store: paths, result codes, the file behind it and what a damaged file gives.
#include "services/Registre.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <random>

namespace {

const QString Kelmor = QStringLiteral("HKEY_CURRENT_USER\\Software\\Globarium\\Kelmor");

class Registre : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dossier.isValid());
        fichier = dossier.filePath(QStringLiteral("registre.ini"));
        InstalleFichierRegistre(fichier);
    }
    void TearDown() override { InstalleFichierRegistre(QString()); }

    // The text of a value, or "<-1>" / "<-2>" for what the read answered.
    static QString Lit(const QString &clé, const QString &nom)
    {
        QString texte = QStringLiteral("<unset>");
        const i32 r = LitValeur(clé, nom, texte);
        return r == 0 ? texte : QStringLiteral("<%1>").arg(r);
    }
    QByteArray Contenu() const
    {
        QFile f(fichier);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<none>");
    }
    void Ecrit(const QByteArray &octets)
    {
        QFile f(fichier);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(octets);
    }
    // What another copy of the program, or a hand, leaves in the file: read again.
    void Recharge() { InstalleFichierRegistre(fichier); }

    QTemporaryDir dossier;
    QString fichier;
};

QString Chemin(int pièces)
{
    QString c = QStringLiteral("HKEY_CURRENT_USER");
    for (int i = 2; i <= pièces; ++i)
        c += QStringLiteral("\\n%1").arg(i);
    return c;
}

TEST_F(Registre, PathsAreTrimmedEmptyPiecesDroppedAndRootsKnownInAnyCase)
{
    ASSERT_EQ(CréeClé(Kelmor), 0);
    ASSERT_EQ(EcritValeur(Kelmor, QStringLiteral("langue"), QStringLiteral(" 2")), 0);
    for (const char *c : {"hkey_current_user\\Software\\Globarium\\Kelmor",
                          "  HKEY_CURRENT_USER\\\\Software\\\\Globarium\\Kelmor\\\\  ",
                          "\\HKEY_CURRENT_USER\\software\\GLOBARIUM\\kelmor\\",
                          "Hkey_Current_User\\Software\\Globarium\\Kelmor"}) {
        EXPECT_EQ(Lit(QString::fromUtf8(c), QStringLiteral("langue")), " 2") << c;
        const i32 h = OuvreClé(QString::fromUtf8(c));
        EXPECT_GT(h, 0) << c;
        EXPECT_EQ(FermeClé(h), 0);
    }
    // The value's name is trimmed on a read, not its text.
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("  langue ")), " 2");
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("LANGUE")), " 2");

    // Roots outside the six, no root at all, a blank path.
    for (const char *c : {"HKEY_NOWHERE\\Software", "Software\\Globarium\\Kelmor", "", "   ", "\\\\"}) {
        const QString chemin = QString::fromUtf8(c);
        EXPECT_EQ(OuvreClé(chemin), -1) << c;
        EXPECT_EQ(Lit(chemin, QStringLiteral("langue")), "<-1>") << c;
        EXPECT_EQ(EcritValeur(chemin, QStringLiteral("langue"), QStringLiteral("1")), -1) << c;
        EXPECT_EQ(CréeClé(chemin), -2) << c;
    }
}

TEST_F(Registre, ThirtyTwoPiecesAtMostWithoutTouchingTheStore)
{
    ASSERT_EQ(CréeClé(Chemin(32)), 0);
    EXPECT_GT(OuvreClé(Chemin(32)), 0);
    ASSERT_EQ(EcritValeur(Chemin(32), QStringLiteral("v"), QStringLiteral("au fond")), 0);
    EXPECT_EQ(Lit(Chemin(32), QStringLiteral("v")), "au fond");
    // Empty pieces don't count towards the 32.
    EXPECT_EQ(Lit(Chemin(32) + QStringLiteral("\\\\\\"), QStringLiteral("v")), "au fond");

    const QByteArray avant = Contenu();
    const QString long_ = Chemin(33);
    EXPECT_EQ(OuvreClé(long_), -1);
    EXPECT_EQ(CréeClé(long_), -1);
    EXPECT_EQ(EcritValeur(long_, QStringLiteral("v"), QStringLiteral("x")), -1);
    EXPECT_EQ(Lit(long_, QStringLiteral("v")), "<-1>");
    // Too long comes before an unknown root.
    EXPECT_EQ(CréeClé(QStringLiteral("HKEY_NOWHERE") + long_.mid(17)), -1);
    EXPECT_EQ(Contenu(), avant);
}

TEST_F(Registre, ReadsAnswerByWhatIsMissingAndLeaveTheTextAlone)
{
    QString texte = QStringLiteral("before");
    EXPECT_EQ(LitValeur(Kelmor, QStringLiteral("version"), texte), -1) << "no key yet";
    EXPECT_EQ(texte, "before");

    ASSERT_EQ(CréeClé(Kelmor), 0);
    EXPECT_EQ(LitValeur(Kelmor, QStringLiteral("version"), texte), -2) << "key, no value";
    EXPECT_EQ(texte, "before");

    ASSERT_EQ(EcritValeur(Kelmor, QStringLiteral("joueur"), QString()), 0);
    EXPECT_EQ(LitValeur(Kelmor, QStringLiteral("joueur"), texte), 0);
    EXPECT_TRUE(texte.isEmpty());

    const QString c255(255, QLatin1Char('a'));
    const QString c256 = c255 + QLatin1Char('b');
    ASSERT_EQ(EcritValeur(Kelmor, QStringLiteral("255"), c255), 0);
    ASSERT_EQ(EcritValeur(Kelmor, QStringLiteral("256"), c256), 0) << "a long value can be written";
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("255")), c255);
    texte = QStringLiteral("before");
    EXPECT_EQ(LitValeur(Kelmor, QStringLiteral("256"), texte), -2) << "but not read back";
    EXPECT_EQ(texte, "before");

    // The default value is the one with the empty name.
    ASSERT_EQ(EcritValeur(Kelmor, QString(), QStringLiteral("défaut")), 0);
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("  ")), "défaut");
}

TEST_F(Registre, KeysAreCreatedUnderTheCurrentUserOnly)
{
    for (const char *c : {"HKEY_LOCAL_MACHINE\\Software\\Globarium", "HKEY_CLASSES_ROOT\\.scs",
                          "hkey_users\\Software", "HKEY_CURRENT_CONFIG\\Software"}) {
        EXPECT_EQ(CréeClé(QString::fromUtf8(c)), -2) << c;
        EXPECT_EQ(OuvreClé(QString::fromUtf8(c)), -1) << c << ": a key that doesn't exist";
    }
    EXPECT_FALSE(QFile::exists(fichier)) << "nothing was written";

    // A root alone is always there, its handle is its number and closing it is harmless.
    EXPECT_EQ(OuvreClé(QStringLiteral("hkey_local_machine")), HKEY_LOCAL_MACHINE);
    EXPECT_EQ(OuvreClé(QStringLiteral("HKEY_CURRENT_USER\\")), HKEY_CURRENT_USER);
    EXPECT_EQ(FermeClé(HKEY_CURRENT_USER), 0);
    EXPECT_EQ(CréeClé(QStringLiteral("HKEY_CURRENT_USER")), 0);

    // Creation makes every level; creating again changes nothing.
    ASSERT_EQ(CréeClé(Kelmor), 0);
    EXPECT_NE(OuvreClé(QStringLiteral("HKEY_CURRENT_USER\\Software\\Globarium")), -1);
    const QByteArray après = Contenu();
    EXPECT_EQ(CréeClé(QStringLiteral("hkey_current_user\\SOFTWARE\\Globarium\\Kelmor")), 0);
    EXPECT_EQ(Contenu(), après);

    // Names the desktop refuses for a key.
    EXPECT_EQ(CréeClé(Kelmor + QStringLiteral("\\") + QString(256, QLatin1Char('k'))), -1);
    EXPECT_EQ(CréeClé(Kelmor + QStringLiteral("\\a\nb")), -1);
    EXPECT_EQ(CréeClé(Kelmor + QStringLiteral("\\") + QString(255, QLatin1Char('k'))), 0);
}

TEST_F(Registre, HandlesCloseOnceAndEnumerateSubkeysInNameOrder)
{
    const QString famille = QStringLiteral("HKEY_CURRENT_USER\\Software\\Globarium");
    for (const char *jeu : {"Kelmor", "Updates", "arvenne", "Brisolie", "Kelmor\\Sous-clé"})
        ASSERT_EQ(CréeClé(famille + QLatin1Char('\\') + QString::fromUtf8(jeu)), 0) << jeu;

    const i32 h = OuvreClé(famille);
    ASSERT_GT(h, 0);
    QStringList noms;
    QString nom;
    i32 r = 0;
    for (i32 i = 0; (r = EnumèreSousClés(h, i, nom)) == 0; ++i)
        noms << nom;
    EXPECT_EQ(r, FinSousClés);
    EXPECT_EQ(noms, QStringList({"arvenne", "Brisolie", "Kelmor", "Updates"})) << "only the level below, by name";
    EXPECT_EQ(EnumèreSousClés(h, -1, nom), FinSousClés);

    const i32 feuille = OuvreClé(famille + QStringLiteral("\\Kelmor\\Sous-clé"));
    ASSERT_GT(feuille, 0);
    EXPECT_NE(feuille, h);
    EXPECT_EQ(EnumèreSousClés(feuille, 0, nom), FinSousClés) << "a key with nothing below";

    EXPECT_EQ(FermeClé(h), 0);
    EXPECT_EQ(FermeClé(h), -1) << "already closed";
    EXPECT_EQ(EnumèreSousClés(h, 0, nom), ErreurClé);
    EXPECT_EQ(FermeClé(feuille), 0);
    EXPECT_EQ(FermeClé(12345), -1);
    EXPECT_EQ(FermeClé(-1), -1);

    // The root's handle enumerates too.
    ASSERT_EQ(EnumèreSousClés(HKEY_CURRENT_USER, 0, nom), 0);
    EXPECT_EQ(nom, "Software");
}

TEST_F(Registre, EverythingSurvivesAReloadAndTheFileIsReplacedWhole)
{
    const QString vide = Kelmor + QStringLiteral("\\Vide");
    const QString bizarre = QStringLiteral("a\\b \"c\" d=e\r\nf\tg\x01h ");
    ASSERT_EQ(CréeClé(vide), 0);
    ASSERT_EQ(EcritValeur(Kelmor, QStringLiteral("langue"), QStringLiteral(" 2")), 0);
    ASSERT_EQ(EcritValeur(Kelmor, QStringLiteral("Joueur"), QStringLiteral("Zoé")), 0);
    ASSERT_EQ(EcritValeur(Kelmor, QStringLiteral("joueur"), QStringLiteral("Jürg")), 0) << "the same value";
    ASSERT_EQ(EcritValeur(Kelmor, QStringLiteral("répertoire information"), QStringLiteral("/home/zoé/Cartes/")), 0);
    ASSERT_EQ(EcritValeur(Kelmor, QStringLiteral("vide"), QString()), 0);
    ASSERT_EQ(EcritValeur(Kelmor, QString(), QStringLiteral("défaut")), 0);
    ASSERT_EQ(EcritValeur(Kelmor, QStringLiteral("[x] \"y\"="), bizarre), 0);

    // Each write went through a temporary file that took the old one's place.
    EXPECT_EQ(QDir(dossier.path()).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList({"registre.ini"}));
    EXPECT_TRUE(Contenu().contains("[HKEY_CURRENT_USER\\Software\\Globarium\\Kelmor\\Vide]"));
    EXPECT_TRUE(Contenu().contains(QString::fromUtf8("\"Joueur\"=\"Jürg\"").toUtf8())) << Contenu().constData();

    Recharge();
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("langue")), " 2");
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("joueur")), "Jürg");
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("répertoire information")), "/home/zoé/Cartes/");
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("vide")), "");
    EXPECT_EQ(Lit(Kelmor, QString()), "défaut");
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("[x] \"y\"=")), bizarre);
    EXPECT_EQ(Lit(vide, QStringLiteral("x")), "<-2>") << "a key without values still exists";
    EXPECT_EQ(Lit(vide + QStringLiteral("\\Rien"), QStringLiteral("x")), "<-1>");
}

TEST_F(Registre, TheFileIsReadAgainWhenAnotherCopyChangedIt)
{
    ASSERT_EQ(CréeClé(Kelmor), 0);
    ASSERT_EQ(EcritValeur(Kelmor, QStringLiteral("joueur"), QStringLiteral("Zoé")), 0);
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("joueur")), "Zoé");
    Ecrit("[HKEY_CURRENT_USER\\Software\\Globarium\\Kelmor]\n\"joueur\"=\"Lou, from elsewhere\"\n");
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("joueur")), "Lou, from elsewhere");
    // A write keeps what the other copy wrote.
    ASSERT_EQ(EcritValeur(Kelmor, QStringLiteral("langue"), QStringLiteral("1")), 0);
    Recharge();
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("joueur")), "Lou, from elsewhere");
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("langue")), "1");
}

TEST_F(Registre, ADamagedFileGivesWhatItStillHolds)
{
    static const char abîmé[] = "\xEF\xBB\xBF; a comment\r\n"
                                "\"orphan\"=\"before any key\"\r\n"
                                "[HKEY_CURRENT_USER\\Software\\Globarium\\Kelmor]\r\n"
                                "\"version\"=\"Version 6.07 du 30/07/2008\"\r\n"
                                "\"unterminated\"=\"abc\r\n"
                                "no equals sign here\r\n"
                                "\"bad escape\"=\"\\x4\"\r\n"
                                "\"trailing\"=\"x\" junk\r\n"
                                "   \"langue\"   =   \" 2\"   \r\n"
                                "\"bytes\"=\"\xFF\xFE\x00\x01\"\n"
                                "[HKEY_NOWHERE\\Software]\n"
                                "\"lost\"=\"x\"\n"
                                "[HKEY_CURRENT_USER\\Software\\Globarium\\Kelmor\n"
                                "\"half header\"=\"x\"\n"
                                "[hkey_current_user\\Software\\Globarium\\Arvenne]\n"
                                "@=\"default\"\n"
                                "\"joueur\"=\"Ana\"\n"
                                "\"joueur\"=\"Ana again\"\n";
    Ecrit(QByteArray(abîmé, sizeof abîmé - 1)); // with its NUL byte
    Recharge();
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("version")), "Version 6.07 du 30/07/2008");
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("langue")), " 2");
    for (const char *perdu : {"unterminated", "bad escape", "trailing", "half header", "orphan"})
        EXPECT_EQ(Lit(Kelmor, QString::fromUtf8(perdu)), "<-2>") << perdu;
    EXPECT_EQ(Lit(QStringLiteral("HKEY_NOWHERE\\Software"), QStringLiteral("lost")), "<-1>");
    const QString arvenne = QStringLiteral("HKEY_CURRENT_USER\\Software\\Globarium\\Arvenne");
    EXPECT_EQ(Lit(arvenne, QString()), "default");
    EXPECT_EQ(Lit(arvenne, QStringLiteral("joueur")), "Ana again") << "the last of a name wins";
    QString bytes;
    EXPECT_EQ(LitValeur(Kelmor, QStringLiteral("bytes"), bytes), 0) << "bad UTF-8 is read as what it can be";

    // The next write leaves a clean file with what was read.
    ASSERT_EQ(EcritValeur(Kelmor, QStringLiteral("joueur"), QStringLiteral("Zoé")), 0);
    Recharge();
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("version")), "Version 6.07 du 30/07/2008");
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("bytes")), bytes);
    EXPECT_EQ(Lit(arvenne, QStringLiteral("joueur")), "Ana again");
    EXPECT_FALSE(Contenu().contains("orphan"));
}

TEST_F(Registre, RandomBytesNeverCrashTheStore)
{
    std::mt19937 gen(7);
    const QByteArray alphabet("[]\\\"=@;\n\r x\xC3\xA9HKEY_CURRENT_USER");
    for (int essai = 0; essai < 300; ++essai) {
        QByteArray octets;
        const int n = int(gen() % 400);
        for (int i = 0; i < n; ++i)
            octets += (gen() % 3) ? alphabet[int(gen() % alphabet.size())] : char(gen() & 0xFF);
        if (essai % 2)
            octets.prepend("[HKEY_CURRENT_USER\\Software\\Globarium\\Kelmor]\n\"version\"=\"6\"\n");
        Ecrit(octets);
        Recharge();
        QString texte;
        const i32 r = LitValeur(Kelmor, QStringLiteral("version"), texte);
        ASSERT_TRUE(r == 0 || r == -1 || r == -2);
        if (essai % 2) {
            ASSERT_EQ(r, 0) << "a good head survives the junk after it";
        }
        const i32 h = OuvreClé(QStringLiteral("HKEY_CURRENT_USER"));
        QString nom;
        for (i32 i = 0; EnumèreSousClés(h, i, nom) == 0 && i < 1000; ++i)
            ASSERT_FALSE(nom.isEmpty());
        ASSERT_EQ(CréeClé(Kelmor), 0);
    }
}

TEST_F(Registre, AStoreThatCantBeReadIsNeverWrittenOver)
{
    // A folder where the file should be: nothing can be read, created or written.
    ASSERT_TRUE(QDir().mkpath(fichier));
    Recharge();
    EXPECT_EQ(CréeClé(Kelmor), -1);
    EXPECT_EQ(Lit(Kelmor, QStringLiteral("version")), "<-1>");
    EXPECT_TRUE(QFileInfo(fichier).isDir());

    // A file where the store's folder should be.
    const QString dansUnFichier = dossier.filePath(QStringLiteral("plain/registre.ini"));
    QFile plain(dossier.filePath(QStringLiteral("plain")));
    ASSERT_TRUE(plain.open(QIODevice::WriteOnly));
    plain.close();
    InstalleFichierRegistre(dansUnFichier);
    EXPECT_EQ(CréeClé(Kelmor), -1);
    EXPECT_EQ(OuvreClé(Kelmor), -1) << "a failed creation leaves no key behind";
    EXPECT_EQ(FichierRegistre(), dansUnFichier);

    // A folder of the store that doesn't exist yet is made.
    const QString neuf = dossier.filePath(QStringLiteral("a/b/registre.ini"));
    InstalleFichierRegistre(neuf);
    EXPECT_EQ(CréeClé(Kelmor), 0);
    EXPECT_TRUE(QFile::exists(neuf));
}

} // namespace
