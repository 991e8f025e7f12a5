// Fields of the table's rows, and the canton table filled from them in both languages.
#include "engine/communs.h"
#include "results/PartieEnCours.h"
#include "services/Langues.h"
#include "services/Donnees.h"

#include <gtest/gtest.h>

TEST(LitChamp, FieldsBetweenHashesAndTheirLeadingNumbers)
{
    const struct { const char *texte; i16 rang; const char *champ; } champs[] = {
        {"Zoug#352#152", 1, "Zoug"}, {"Zoug#352#152", 2, "352"}, {"Zoug#352#152", 3, "152"}, {"Zoug#352#152", 4, ""},
        {"", 1, ""}, {"", 3, ""}, {"a##c", 2, ""}, {"a##c", 3, "c"}, {"seul", 1, "seul"}, {"seul", 2, ""}, {"a#b#", 3, ""},
    };
    for (const auto &c : champs)
        EXPECT_EQ(LitChamp(QString::fromUtf8(c.texte), c.rang), QString::fromUtf8(c.champ)) << c.texte << " " << c.rang;
    const struct { const char *champ; i32 valeur; } nombres[] = {
        {"352", 352}, {"352px", 352}, {"x352", 0}, {"", 0}, {"99999999999", 2147483647},
    };
    for (const auto &n : nombres)
        EXPECT_EQ(ValeurEnTête(QString::fromUtf8(n.champ)), n.valeur) << n.champ;
}

TEST(ChargeCantons, GermanNamesOnTheSamePlacesAndAChangeKeepsWhatTheGameKnows)
{
    Jeu().Cantons[6].Trouvé = true, Jeu().Cantons[6].Pertes[2] = 17;
    auto charge = [](int langue) { Langues().Langue = langue, ChargeChaînes(), ChargeCantons(Jeu()); };
    charge(1);
    const std::vector<TCanton> fr(std::begin(Jeu().Cantons), std::end(Jeu().Cantons));
    charge(2);
    const TCanton &berne = Jeu().Cantons[6];
    EXPECT_TRUE(fr[6].Nom == "Berne" && fr[5].ChefLieu == QString::fromUtf8("Bâle") && berne.Nom == "Bern");
    EXPECT_TRUE(Jeu().Cantons[5].ChefLieu == "Basel" && Jeu().Cantons[10].Nom == QString::fromUtf8("Graubünden"));
    EXPECT_TRUE(Jeu().Plaques[6] == "BE" && Jeu().Plaques[26] == "ZH");
    for (int i = 1; i <= 26; ++i) { // on the same places
        const TCanton &de = Jeu().Cantons[i], &f = fr[i];
        EXPECT_TRUE(std::tie(de.PaysGauche, de.PaysHaut, de.VilleGauche, de.VilleHaut, de.Région) ==
                    std::tie(f.PaysGauche, f.PaysHaut, f.VilleGauche, f.VilleHaut, f.Région)) << i;
    }
    EXPECT_TRUE(berne.Trouvé && berne.Pertes[2] == 17 && !Jeu().Cantons[0].Trouvé);
    charge(1);
    Jeu().Cantons[6].Trouvé = false, Jeu().Cantons[6].Pertes[2] = 0;
}
