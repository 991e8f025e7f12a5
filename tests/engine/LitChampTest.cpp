// Fields of the table's rows, and the canton table filled from them in both languages.
#include "engine/communs.h"
#include "engine/specifiques.h"
#include "services/Langues.h"
#include "services/Donnees.h"

#include <gtest/gtest.h>

TEST(LitChamp, FieldsSeparatorsAndEnds)
{
    const QString z = QStringLiteral("Zoug#352#152");
    EXPECT_EQ(LitChamp(z, 1), "Zoug");
    EXPECT_EQ(LitChamp(z, 2), "352");
    EXPECT_EQ(LitChamp(z, 3), "152");
    EXPECT_EQ(LitChamp(z, 4), "");
    EXPECT_EQ(LitChamp(QString(), 1), "");
    EXPECT_EQ(LitChamp(QString(), 3), "");
    EXPECT_EQ(LitChamp("a##c", 2), "");
    EXPECT_EQ(LitChamp("a##c", 3), "c");
    EXPECT_EQ(LitChamp("seul", 1), "seul");
    EXPECT_EQ(LitChamp("seul", 2), "");
    EXPECT_EQ(LitChamp("a#b#", 3), "");
}

TEST(LitChamp, LeadingNumberConversion)
{
    EXPECT_EQ(ValeurEnTête("352"), 352);
    EXPECT_EQ(ValeurEnTête("352px"), 352);
    EXPECT_EQ(ValeurEnTête("x352"), 0);
    EXPECT_EQ(ValeurEnTête(""), 0);
    EXPECT_EQ(ValeurEnTête("99999999999"), 2147483647);
}

TEST(ChargeCantons, GermanNamesSameCoordinatesAndPlates)
{
    Jeu().Cantons[6].Trouvé = True;
    Jeu().Cantons[6].Pertes[2] = 17;
    Langue = 1;
    ChargeChaînes();
    ChargeCantons();
    const TCanton berneFr = Jeu().Cantons[6];
    EXPECT_EQ(berneFr.Nom, "Berne");
    EXPECT_EQ(berneFr.PaysGauche, 151);
    EXPECT_EQ(berneFr.PaysHaut, 103);
    EXPECT_EQ(berneFr.VilleGauche, 218);
    EXPECT_EQ(berneFr.VilleHaut, 198);
    EXPECT_EQ(Jeu().Cantons[5].ChefLieu, QString::fromUtf8("Bâle"));
    EXPECT_EQ(Jeu().Plaques[26], "ZH");

    Langue = 2;
    ChargeChaînes();
    ChargeCantons();
    EXPECT_EQ(Jeu().Cantons[6].Nom, "Bern");
    EXPECT_EQ(Jeu().Cantons[5].ChefLieu, "Basel");
    EXPECT_EQ(Jeu().Cantons[10].Nom, QString::fromUtf8("Graubünden"));
    EXPECT_EQ(Jeu().Cantons[6].PaysGauche, berneFr.PaysGauche);
    EXPECT_EQ(Jeu().Cantons[6].VilleHaut, berneFr.VilleHaut);
    EXPECT_EQ(Jeu().Plaques[6], "BE");
    // A change of language keeps what the game knows of the canton.
    EXPECT_EQ(Jeu().Cantons[6].Trouvé, True);
    EXPECT_EQ(Jeu().Cantons[6].Pertes[2], 17);
    EXPECT_EQ(Jeu().Cantons[0].Trouvé, False);

    Langue = 1;
    ChargeChaînes();
    Jeu().Cantons[6] = TCanton{};
}
