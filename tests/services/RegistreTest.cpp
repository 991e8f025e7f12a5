// The settings store: paths, result codes, its file and what a damaged one gives (random bytes: FuzzRegistre).
#include "Services.h"

namespace {

using Registre = Magasin;

TEST_F(Registre, EachOperationAnswersByTheRootTheSeparatorsAndTheNumberOfPieces)
{
    QString profond = "HKEY_CURRENT_USER"; // 32 pieces
    for (int i = 2; i <= 32; ++i)
        profond += QStringLiteral("\\n%1").arg(i);
    for (const QString &clé : {CléJeu, profond})
        Pose(clé, "langue", " 2");
    const QByteArray avant = Contenu(fichier);
    const std::pair<QString, i32> cas[] = { // what creating the key answers; reading and writing answer 0 or −1 alike
        {"hkey_current_user\\Software\\Globarium\\Kelmor", 0}, {"  HKEY_CURRENT_USER\\\\Software\\\\Globarium\\Kelmor\\\\  ", 0},
        {"\\HKEY_CURRENT_USER\\software\\GLOBARIUM\\kelmor\\", 0}, {profond + "\\\\\\", 0}, // empty pieces don't count towards the 32
        {profond + "\\n33", -1}, {"HKEY_NOWHERE" + profond.mid(17) + "\\n33", -1},             // too long before an unknown root
        {"HKEY_NOWHERE\\Software", -2}, {"Software\\Globarium\\Kelmor", -2}, {"", -2}, {"\\\\", -2},
        {"HKEY_LOCAL_MACHINE\\Software\\Globarium", -2}, {"hkey_users\\Software", -2}}; // keys are made under the current user only
    for (const auto &[chemin, créé] : cas)
        EXPECT_EQ(QStringList({Valeur(chemin, "langue"), QString::number(EcritValeur(chemin, "langue", " 2")), QString::number(CréeClé(chemin))}),
                  QStringList({créé == 0 ? " 2" : "<-1>", créé == 0 ? "0" : "-1", QString::number(créé)})) << chemin.toStdString();
    EXPECT_EQ(Contenu(fichier), avant) << "nothing created or written";
    EXPECT_EQ(Valeur(CléJeu, "  LANGUE "), " 2") << "the value's name is trimmed and found in any case";
}

TEST_F(Registre, CreationMakesEveryLevelOnceAndAMissingKeyAndAMissingValueAnswerApart)
{
    EXPECT_EQ(Valeur(CléJeu, "version"), "<-1>") << "no key yet";
    EXPECT_EQ(OuvreClé("hkey_local_machine"), HKEY_LOCAL_MACHINE) << "a root is always there";
    EXPECT_TRUE(CréeClé("HKEY_CURRENT_USER") == 0 && !QFile::exists(fichier));
    ASSERT_EQ(CréeClé(CléJeu), 0);
    EXPECT_EQ(QStringList({Valeur(CléJeu, "version"), Valeur(CléFamille, "x")}), QStringList({"<-2>", "<-2>"}))
        << "the key and the level above it made, with no value";
    EXPECT_EQ(QList<i32>({CréeClé(CléJeu + '\\' + QString(256, 'k')), CréeClé(CléJeu + "\\a\nb"), CréeClé(CléJeu + '\\' + QString(255, 'k'))}),
              QList<i32>({-1, -1, 0}));

    // Any length is written, but over 255 characters a value is not read back; the default value has the empty name.
    const QString c255(255, 'a');
    for (const auto &[nom, texte] : {std::pair{"vide", QString()}, {"255", c255}, {"256", c255 + 'b'}, {"", QString("défaut")}})
        ASSERT_EQ(EcritValeur(CléJeu, nom, texte), 0) << nom;
    EXPECT_EQ(QStringList({Valeur(CléJeu, "vide"), Valeur(CléJeu, "255"), Valeur(CléJeu, "256"), Valeur(CléJeu, "  ")}),
              QStringList({"", c255, "<-2>", "défaut"}));

    // On a fresh machine the configuration folder isn't there yet.
    InstalleFichierRegistre(dossier.filePath("a/b/registre.ini"));
    EXPECT_TRUE(CréeClé(CléJeu) == 0 && QFile::exists(dossier.filePath("a/b/registre.ini")));
}

// Changed by another copy or a hand since it was read; what it holds survives a write, through a temporary file.
TEST_F(Registre, ADamagedFileChangedBehindTheStoreGivesWhatItStillHoldsAndAWriteKeepsIt)
{
    ASSERT_TRUE(CréeClé(CléJeu) == 0 && EcritValeur(CléJeu, "version", "read before") == 0);
    static const char abîmé[] =
        "\xEF\xBB\xBF; a comment\r\n\"orphan\"=\"before any key\"\r\n"
        "[HKEY_CURRENT_USER\\Software\\Globarium\\Kelmor]\r\n\"version\"=\"Version 6.07 du 30/07/2008\"\r\n"
        "\"unterminated\"=\"abc\r\nno equals sign here\r\n\"bad escape\"=\"\\x4\"\r\n\"trailing\"=\"x\" junk\r\n"
        "   \"langue\"   =   \" 2\"   \r\n\"bytes\"=\"\xFF\xFE\x00\x01\"\n\"[x] \\\"y\\\"=\"=\"a\\\\b \\\"c\\\" d=e\\r\\nf\\tg\\x01h \"\n"
        "[HKEY_NOWHERE\\Software]\n\"lost\"=\"x\"\n[HKEY_CURRENT_USER\\Software\\Globarium\\Kelmor\n\"half header\"=\"x\"\n"
        "[hkey_current_user\\Software\\Globarium\\Arvenne]\n@=\"default\"\n\"vide\"=\"\"\n\"joueur\"=\"Ana\"\n\"JOUEUR\"=\"Ana again\"\n"
        "[HKEY_CURRENT_USER\\Software\\Globarium\\Vide]\n";
    EcritFichierEntier(fichier, QByteArray(abîmé, sizeof abîmé - 1)); // with its NUL byte

    const QString octets = Valeur(CléJeu, "bytes"), arvenne = CléFamille + "\\Arvenne";
    EXPECT_FALSE(octets.startsWith("<-")) << "bad UTF-8 is read as what it can be";
    for (const char *fois : {"as read", "as written again"}) {
        EXPECT_EQ(QStringList({Valeur(CléJeu, "version"), Valeur(CléJeu, "langue"), Valeur(CléJeu, "bytes"), Valeur(CléJeu, "[x] \"y\"="),
                               Valeur(arvenne, ""), Valeur(arvenne, "vide"), Valeur(arvenne, "joueur"), Valeur(CléFamille + "\\Vide", "x"), Valeur("HKEY_NOWHERE\\Software", "lost")}),
                  QStringList({"Version 6.07 du 30/07/2008", " 2", octets, "a\\b \"c\" d=e\r\nf\tg\x01h ", "default", "", "Ana again", "<-2>", "<-1>"}))
            << fois << ": the last of a name wins, a key without values still exists";
        for (const char *perdu : {"unterminated", "bad escape", "trailing", "half header", "orphan"})
            EXPECT_EQ(Valeur(CléJeu, perdu), "<-2>") << fois << " " << perdu;
        ASSERT_EQ(EcritValeur(CléJeu, "joueur", "Zoé"), 0);
        InstalleFichierRegistre(fichier);
    }
    EXPECT_FALSE(Contenu(fichier).contains("orphan"));
    EXPECT_EQ(QDir(dossier.path()).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot), QStringList({"registre.ini"}));
}

} // namespace
