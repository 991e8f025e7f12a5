// The compiled-in string table: the messages in both languages, the canton rows, the addresses.
#include "Services.h"

#include <QRegularExpression>

namespace {

QString T(int id) { return ChaîneTable(id); }

// Row 1 counts each language's messages, German's 250 ids on; they keep the French's joins and %1, as a lost
// blank or line break runs words together. 1069 and 1123 (a line less), 1104 and 1166 are built otherwise.
TEST(TableChaines, EveryMessageInBothLanguagesWithTheFrenchsJoinsTheCantonsRowsAndOnlyPlaceholderAddresses)
{
    const int dernier = T(1).toInt();
    for (int id = 1000; id <= 1000 + dernier; ++id) {
        const bool autrement = id == 1069 || id == 1104 || id == 1123 || id == 1166;
        EXPECT_TRUE(!T(id).isEmpty() && !T(id + 250).isEmpty() && T(id).count("%1") == T(id + 250).count("%1")) << id;
        EXPECT_TRUE(autrement || (T(id).endsWith(' ') == T(id + 250).endsWith(' ') && T(id).count('\n') == T(id + 250).count('\n'))) << id;
    }
    for (int id : {999, 1001 + dernier, 1249, 1251 + dernier})
        EXPECT_FALSE(ChaîneExiste(id)) << id;
    // The running copy's version, in both languages, is its row in the family's list.
    EXPECT_TRUE(ExtraitVersion(T(1000)) == LitChamp(T(6009), 2) && ExtraitVersion(T(1250)) == LitChamp(T(6009), 2));

    // Each canton has a plate of its own and German names (their places are the data's test), and addresses
    // are placeholders only.
    QSet<QString> plaques;
    for (int k = 1; k <= 26; ++k) {
        plaques.insert(LitChamp(T(2000 + k), 5));
        for (int id : {2200 + k, 4200 + k})
            EXPECT_TRUE(!T(id).isEmpty() && !T(id).contains('#')) << id;
    }
    EXPECT_TRUE(plaques.size() == 26 && !plaques.contains("")) << plaques.size();
    const QRegularExpression adresse("https?://([^/\\s]+)|[\\w.+-]+@([\\w-]+(?:\\.[\\w-]+)*)");
    for (int id = 0; id <= 7000; ++id) {
        EXPECT_FALSE(T(id).contains("www.", Qt::CaseInsensitive)) << id;
        for (auto it = adresse.globalMatch(T(id)); it.hasNext();) {
            const auto m = it.next();
            EXPECT_TRUE(QStringList({"kelmor.example.org", "example.org"}).contains(m.captured(1) + m.captured(2))) << id;
        }
    }
}

} // namespace
