// The settings store: paths, result codes, the file behind it and what a damaged file gives.
// Random bytes in the file are left to the fuzz target (tests/fuzz/FuzzRegistre.cpp).
#include "services/Registre.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QString Kelmor = QStringLiteral("HKEY_CURRENT_USER\\Software\\Globarium\\Kelmor");
QString S(const char *s) { return QString::fromUtf8(s); }

// The text of a value, or "<-1>" / "<-2>" for what the read answered; a failed
// read that touched the caller's text says so.
QString Lit(const QString &clé, const QString &nom)
{
    QString texte = QStringLiteral("<unset>");
    const i32 r = LitValeur(clé, nom, texte);
    if (r == 0)
        return texte;
    return texte == u"<unset>" ? QStringLiteral("<%1>").arg(r) : QStringLiteral("<%1, text changed>").arg(r);
}

class Registre : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dossier.isValid());
        InstalleFichierRegistre(fichier);
    }
    void TearDown() override { InstalleFichierRegistre(QString()); }
    QByteArray Contenu() const
    {
        QFile f(fichier);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<none>");
    }

    QTemporaryDir dossier;
    QString fichier = dossier.filePath(QStringLiteral("registre.ini"));
};

TEST_F(Registre, EachOperationAnswersByTheRootTheSeparatorsAndTheNumberOfPieces)
{
    QString profond = S("HKEY_CURRENT_USER"); // 32 pieces
    for (int i = 2; i <= 32; ++i)
        profond += QStringLiteral("\\n%1").arg(i);
    for (const QString &clé : {Kelmor, profond}) {
        ASSERT_EQ(CréeClé(clé), 0);
        ASSERT_EQ(EcritValeur(clé, S("langue"), S(" 2")), 0);
    }
    const QByteArray avant = Contenu();
    const struct {
        QString chemin;
        const char *lu;
        i32 créé;
    } cas[] = {
        {S("hkey_current_user\\Software\\Globarium\\Kelmor"), " 2", 0},
        {S("  HKEY_CURRENT_USER\\\\Software\\\\Globarium\\Kelmor\\\\  "), " 2", 0},
        {S("\\HKEY_CURRENT_USER\\software\\GLOBARIUM\\kelmor\\"), " 2", 0},
        {profond + S("\\\\\\"), " 2", 0}, // empty pieces don't count towards the 32
        {profond + S("\\n33"), "<-1>", -1},
        {S("HKEY_NOWHERE") + profond.mid(17) + S("\\n33"), "<-1>", -1}, // too long before an unknown root
        {S("HKEY_NOWHERE\\Software"), "<-1>", -2}, {S("Software\\Globarium\\Kelmor"), "<-1>", -2},
        {S(""), "<-1>", -2}, {S("   "), "<-1>", -2}, {S("\\\\"), "<-1>", -2},
        // Known roots, but keys are created under the current user only.
        {S("HKEY_LOCAL_MACHINE\\Software\\Globarium"), "<-1>", -2}, {S("hkey_users\\Software"), "<-1>", -2}};
    for (const auto &c : cas) {
        SCOPED_TRACE(c.chemin.toStdString());
        EXPECT_EQ(Lit(c.chemin, S("langue")), c.lu);
        EXPECT_EQ(EcritValeur(c.chemin, S("langue"), S(" 2")), c.créé == 0 ? 0 : -1);
        EXPECT_EQ(CréeClé(c.chemin), c.créé);
    }
    EXPECT_EQ(Contenu(), avant) << "nothing created or written";
    EXPECT_EQ(Lit(Kelmor, S("  LANGUE ")), " 2") << "the value's name is trimmed and found in any case";
}

TEST_F(Registre, AMissingKeyAndAMissingValueAnswerApartAndLeaveTheTextAlone)
{
    EXPECT_EQ(Lit(Kelmor, S("version")), "<-1>") << "no key yet";
    ASSERT_EQ(CréeClé(Kelmor), 0);
    EXPECT_EQ(Lit(Kelmor, S("version")), "<-2>") << "key, no value";
    const QString c255(255, QLatin1Char('a'));
    for (const auto &[nom, texte] : {std::pair{"vide", QString()}, {"255", c255}, {"256", c255 + 'b'}, {"", S("défaut")}})
        ASSERT_EQ(EcritValeur(Kelmor, S(nom), texte), 0) << nom << ": any length can be written";
    // Over 255 characters a value is not read back; the default value is the one with the empty name.
    EXPECT_EQ(QStringList({Lit(Kelmor, S("vide")), Lit(Kelmor, S("255")), Lit(Kelmor, S("256")), Lit(Kelmor, S("  "))}),
              QStringList({"", c255, "<-2>", S("défaut")}));
}

TEST_F(Registre, CreationMakesEveryLevelOnceAndRefusesNamesTheDesktopRefuses)
{
    EXPECT_EQ(OuvreClé(S("hkey_local_machine")), HKEY_LOCAL_MACHINE) << "a root is always there";
    EXPECT_EQ(CréeClé(S("HKEY_CURRENT_USER")), 0);
    EXPECT_FALSE(QFile::exists(fichier));
    ASSERT_EQ(CréeClé(Kelmor), 0);
    EXPECT_EQ(Lit(S("HKEY_CURRENT_USER\\Software\\Globarium"), S("x")), "<-2>") << "the level above was made";
    const QByteArray après = Contenu();
    EXPECT_EQ(CréeClé(S("hkey_current_user\\SOFTWARE\\Globarium\\Kelmor")), 0);
    EXPECT_EQ(Contenu(), après) << "creating again changes nothing";
    EXPECT_EQ(CréeClé(Kelmor + '\\' + QString(256, 'k')), -1);
    EXPECT_EQ(CréeClé(Kelmor + S("\\a\nb")), -1);
    EXPECT_EQ(CréeClé(Kelmor + '\\' + QString(255, 'k')), 0);
    // On a fresh machine the configuration folder isn't there yet.
    InstalleFichierRegistre(dossier.filePath(S("a/b/registre.ini")));
    EXPECT_EQ(CréeClé(Kelmor), 0);
    EXPECT_TRUE(QFile::exists(dossier.filePath(S("a/b/registre.ini"))));
}

TEST_F(Registre, EverythingSurvivesAReloadAndTheFileIsReplacedWhole)
{
    const QString vide = Kelmor + S("\\Vide");
    ASSERT_EQ(CréeClé(vide), 0);
    ASSERT_EQ(EcritValeur(Kelmor, S("JOUEUR"), S("Zoé")), 0); // "joueur" below is the same value
    const std::pair<const char *, QString> valeurs[] = {
        {"joueur", S("Jürg")}, {"langue", S(" 2")}, {"répertoire information", S("/home/zoé/Cartes/")}, {"vide", QString()},
        {"", S("défaut")}, {"[x] \"y\"=", S("a\\b \"c\" d=e\r\nf\tg\x01h ")}};
    for (const auto &[nom, texte] : valeurs)
        ASSERT_EQ(EcritValeur(Kelmor, S(nom), texte), 0) << nom;
    // Each write went through a temporary file that took the old one's place.
    EXPECT_EQ(QDir(dossier.path()).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot), QStringList({"registre.ini"}));

    InstalleFichierRegistre(fichier);
    for (const auto &[nom, texte] : valeurs)
        EXPECT_EQ(Lit(Kelmor, S(nom)), texte) << nom;
    EXPECT_EQ(Lit(vide, S("x")), "<-2>") << "a key without values still exists";
    EXPECT_EQ(Lit(vide + S("\\Rien"), S("x")), "<-1>");
}

// The file as another copy of the game, or a hand, left it since this one read it.
TEST_F(Registre, ADamagedFileChangedBehindTheStoreGivesWhatItStillHolds)
{
    ASSERT_EQ(CréeClé(Kelmor), 0);
    ASSERT_EQ(EcritValeur(Kelmor, S("version"), S("read before")), 0);
    static const char abîmé[] =
        "\xEF\xBB\xBF; a comment\r\n\"orphan\"=\"before any key\"\r\n"
        "[HKEY_CURRENT_USER\\Software\\Globarium\\Kelmor]\r\n\"version\"=\"Version 6.07 du 30/07/2008\"\r\n"
        "\"unterminated\"=\"abc\r\nno equals sign here\r\n\"bad escape\"=\"\\x4\"\r\n\"trailing\"=\"x\" junk\r\n"
        "   \"langue\"   =   \" 2\"   \r\n\"bytes\"=\"\xFF\xFE\x00\x01\"\n"
        "[HKEY_NOWHERE\\Software]\n\"lost\"=\"x\"\n[HKEY_CURRENT_USER\\Software\\Globarium\\Kelmor\n\"half header\"=\"x\"\n"
        "[hkey_current_user\\Software\\Globarium\\Arvenne]\n@=\"default\"\n\"joueur\"=\"Ana\"\n\"joueur\"=\"Ana again\"\n";
    QFile f(fichier);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(abîmé, sizeof abîmé - 1); // with its NUL byte
    f.close();

    QString octets;
    EXPECT_EQ(LitValeur(Kelmor, S("bytes"), octets), 0) << "bad UTF-8 is read as what it can be";
    const QString arvenne = S("HKEY_CURRENT_USER\\Software\\Globarium\\Arvenne");
    for (int fois = 0; fois < 2; ++fois) {
        SCOPED_TRACE(fois == 0 ? "as read" : "as written again");
        EXPECT_EQ(Lit(Kelmor, S("version")), "Version 6.07 du 30/07/2008");
        EXPECT_EQ(Lit(Kelmor, S("langue")), " 2");
        EXPECT_EQ(Lit(Kelmor, S("bytes")), octets);
        for (const char *perdu : {"unterminated", "bad escape", "trailing", "half header", "orphan"})
            EXPECT_EQ(Lit(Kelmor, S(perdu)), "<-2>") << perdu;
        EXPECT_EQ(Lit(S("HKEY_NOWHERE\\Software"), S("lost")), "<-1>");
        EXPECT_EQ(Lit(arvenne, QString()), "default");
        EXPECT_EQ(Lit(arvenne, S("joueur")), "Ana again") << "the last of a name wins";
        // The next write keeps what the other copy left, in a clean file.
        ASSERT_EQ(EcritValeur(Kelmor, S("joueur"), S("Zoé")), 0);
        InstalleFichierRegistre(fichier);
    }
    EXPECT_FALSE(Contenu().contains("orphan"));
}

} // namespace
