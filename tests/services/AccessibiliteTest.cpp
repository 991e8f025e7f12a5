// The menus' keyboard letters: one per entry, unique in its menu, on a letter every keyboard has.
#include "Services.h"

#include "services/Accessibilite.h"

TEST(Mnemoniques, OneFreeUnaccentedLetterPerEntryInitialsFirstOwnLettersKeptAmpersandsLeftAlone)
{
    const struct { QStringList textes, attendus; } cas[] = {
        {{"Fichier", "Score", "Paramétrer"}, {"&Fichier", "&Score", "&Paramétrer"}},
        {{"Nouvelle partie", "Lire une partie"}, {"&Nouvelle partie", "&Lire une partie"}},
        {{"Remise à zéro", "Révision", "Rechercher"}, {"&Remise à zéro", "Ré&vision", "R&echercher"}},
        {{"Aide", "À propos..."}, {"&Aide", "À &propos..."}},
        {{"Éditer", "Édition", "Über"}, {"É&diter", "Éd&ition", "Ü&ber"}},
        {{"Sauver", "&Sortir"}, {"S&auver", "&Sortir"}},
        {{"a", "A", "ä"}, {"&a", "A", "ä"}},
        {{"R&&D", "Rien"}, {"&R&&D", "R&ien"}},
        {{"&Aa", "A&&B", "&&"}, {"&Aa", "A&&&B", "&&"}},
        {{"Niveau 1", "Niveau 2"}, {"&Niveau 1", "Niveau &2"}},
    };
    for (const auto &c : cas) {
        EXPECT_EQ(Mnémoniques(c.textes), c.attendus) << c.textes.join('|').toStdString();
        QStringList vus;
        for (const QString &t : Mnémoniques(c.textes))
            vus << SansMnémonique(t);
        QStringList montrés;
        for (const QString &t : c.textes)
            montrés << SansMnémonique(t);
        EXPECT_EQ(vus, montrés) << "the letter changes nothing that is read";
    }
    EXPECT_EQ(SansMnémonique("A&&&B"), "A&B");
    EXPECT_EQ(SansMnémonique("R&&D"), "R&D");
}
