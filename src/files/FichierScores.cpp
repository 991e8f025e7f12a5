#include "files/FichierScores.h"

#include "files/FichierEnregistrements.h"

bool LitOctetsScores(const QByteArray &octets, TFichierScores &résultat)
{
    LectureEnregistrements f(octets);
    TFichierScores lu;
    i16 places = 0, cantons = 0;
    if (!f.Chaîne(lu.Version) || !f.Entier(lu.Langue) || !f.Entier(places) || !f.Entier(cantons))
        return false;
    if (places != 4 || cantons != NombrePlaces)
        return false;
    // A step order may be made by hand: a kind twice, or kinds behind a 0, are the
    // file's to say. Only a kind the game hasn't is refused.
    for (int i = 1; i <= 4; ++i) {
        i16 k = 0;
        if (!f.Entier(k) || k < 0 || k > 4)
            return false;
        lu.OrdreEtapes[i] = static_cast<TEtape>(k);
    }
    for (int i = 1; i <= NombrePlaces; ++i) {
        i16 inhibé = 0;
        if (!f.Entier(inhibé))
            return false;
        lu.Inhibé[i] = inhibé != 0;
    }
    while (!f.Fin()) {
        TLigneScore ligne;
        i16 n = 0;
        if (!f.LigneScore(ligne, n) || n < 0 || n > 4 || lu.Nombres[n] >= 10)
            return false;
        lu.Nombres[n] = lu.Nombres[n] + 1;
        lu.Lignes[n][lu.Nombres[n]] = ligne;
    }
    résultat = lu;
    return true;
}

QByteArray OctetsScores(const TFichierScores &s, bool avecScores)
{
    EcritureEnregistrements f;
    f.Chaîne(s.Version);
    f.Entier(s.Langue);
    f.Entier(4);
    f.Entier(NombrePlaces);
    for (int i = 1; i <= 4; ++i)
        f.Entier(s.OrdreEtapes[i]);
    for (int i = 1; i <= NombrePlaces; ++i)
        f.Entier(Booléen(s.Inhibé[i]));
    if (avecScores)
        for (int n = 1; n <= 4; ++n)
            for (int r = 1; r <= s.Nombres[n]; ++r)
                f.LigneScore(s.Lignes[n][r], static_cast<i16>(n));
    return f.Octets();
}
