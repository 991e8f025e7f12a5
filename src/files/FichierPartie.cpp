#include "files/FichierPartie.h"

#include "files/FichierEnregistrements.h"

bool LitOctetsPartie(const QByteArray &octets, const QString &version, TFichierPartie &résultat)
{
    LectureEnregistrements f(octets);
    TFichierPartie p;
    if (!f.Chaîne(p.Version) || p.Version != version)
        return false;
    if (!f.Entier(p.Langue) || !f.Chaîne(p.FichierNoté))
        return false;
    if (p.FichierNoté == ParamétrageNonSauvé) {
        for (int i = 1; i <= 4; ++i) {
            i16 k = 0;
            if (!f.Entier(k) || k < 0 || k > 4)
                return false;
            p.OrdreEtapes[i] = static_cast<TEtape>(k);
        }
        i16 n = 0;
        if (!f.Entier(n) || n < 0 || n > 40)
            return false;
        i16 parNiveau[5] = {};
        for (int k = 0; k < n; ++k) {
            TLigneScore l;
            i16 niveau = 0;
            if (!f.LigneScore(l, niveau) || niveau < 0 || niveau > 4 || ++parNiveau[niveau] > 10)
                return false;
            p.Lignes.emplace_back(l, niveau);
        }
    }
    i16 étape = 0, niveau = 0, apprentissage = 0;
    if (!f.Entier(étape) || !f.Chaîne(p.NomJoueur) || !f.Entier(niveau) || !f.Entier(apprentissage) || !f.Long(p.Score))
        return false;
    if (étape < 1 || étape > 4 || niveau < 1 || niveau > 4)
        return false;
    p.Etape = static_cast<TEtape>(étape);
    p.Niveau = static_cast<TNiveau>(niveau);
    p.Apprentissage = apprentissage != 0;
    for (int k = 1; k <= NombrePlaces; ++k) {
        i16 numéro = 0, drapeau = 0;
        if (!f.Paire(numéro, drapeau))
            return false;
        if (numéro >= 1 && numéro <= NombrePlaces)
            p.Trouvé[numéro] = drapeau != 0;
    }
    for (int i = 1; i <= NombrePlaces; ++i)
        for (int j = 0; j <= 4; ++j) {
            i16 réussi = 0;
            if (!f.Entier(réussi) || !f.Long(p.Pertes[i][j]))
                return false;
            p.Réussi[i][j] = réussi != 0;
        }
    if (!f.Long(p.Durée))
        return false;
    résultat = p;
    return true;
}

QByteArray OctetsPartie(const TFichierPartie &p)
{
    EcritureEnregistrements f;
    f.Chaîne(p.Version);
    f.Entier(p.Langue);
    f.Chaîne(p.FichierNoté);
    if (p.FichierNoté == ParamétrageNonSauvé) {
        for (int i = 1; i <= 4; ++i)
            f.Entier(p.OrdreEtapes[i]);
        f.Entier(static_cast<i16>(p.Lignes.size()));
        for (const auto &[ligne, niveau] : p.Lignes)
            f.LigneScore(ligne, niveau);
    }
    f.Entier(p.Etape);
    f.Chaîne(p.NomJoueur);
    f.Entier(p.Niveau);
    f.Entier(Booléen(p.Apprentissage));
    f.Long(p.Score);
    for (int i = 1; i <= NombrePlaces; ++i)
        f.Paire(static_cast<i16>(i), Booléen(p.Trouvé[i]));
    for (int i = 1; i <= NombrePlaces; ++i)
        for (int j = 0; j <= 4; ++j) {
            f.Entier(Booléen(p.Réussi[i][j]));
            f.Long(p.Pertes[i][j]);
        }
    f.Long(p.Durée);
    return f.Octets();
}
