#include "engine/communs.h"

#include "engine/specifiques.h"
#include "engine/Vue.h"
#include "platform/Horloge.h"

#include <cmath>

// ---------------------------------------------------------------- the places

QString LitChamp(const QString &Texte, i16 Rang)
{
    qsizetype pos = 0; // positions count from 1; 0 means none
    qsizetype début = 1;
    i16 n = 1;
    while (n <= Rang) {
        début = pos + 1;
        const qsizetype trouvé = Texte.indexOf(QLatin1Char('#'), début - 1);
        pos = trouvé < 0 ? 0 : trouvé + 1;
        if (pos == 0)
            break;
        n = n + 1;
    }
    if (pos != 0)
        return Texte.mid(début - 1, pos - début);
    if (n == Rang)
        return Texte.mid(début - 1);
    return QString();
}

i32 ValeurEnTête(const QString &champ)
{
    qint64 v = 0;
    for (QChar c : champ) {
        if (!c.isDigit() || c.unicode() > '9')
            break;
        v = v * 10 + (c.unicode() - '0');
        if (v > 2147483647)
            return 2147483647;
    }
    return static_cast<i32>(v);
}

// ---------------------------------------------------------------- the raster

i16 ZoneEn(int Région, int x, int y)
{
    if (Région < 0 || Région >= NombreCartes || y < 0 || y + 1 >= MaxLignes)
        return 0;
    const TCarteZones &carte = Jeu().Carte;
    const int premier = carte.DébutsLignes[Région][y];
    const int dernier = std::min<int>(carte.DébutsLignes[Région][y + 1] - 1, MaxSegments - 1);
    i16 c = 0;
    for (int s = std::max(premier, 0); s <= dernier; ++s) {
        const TPointSegment &r = carte.PointsSegments[Région][s];
        if (r.X >= x)
            break;
        c = r.Zone;
    }
    return c;
}

void CliqueCarte(int Région, int x, int y)
{
    if (Jeu().Etape == TEtape::Aucune)
        return;
    i16 c = ZoneEn(Région, x, y);
    CorrectionZone(c);
    // The level's filter: at Facile and Moyen a canton already found counts for nothing.
    if (c != 0 && EtapeDeJeu(Jeu().Etape) && c <= NombrePlaces) {
        if ((Jeu().Niveau == TNiveau::Facile && !Jeu().ModeApprentissage) || Jeu().Niveau == TNiveau::Moyen)
            if (Jeu().Cantons[c].Trouvé)
                c = 0;
    }
    if (c != 0 && c <= NombrePlaces)
        TraiteClic(c, static_cast<i16>(x), static_cast<i16>(y));
}

// ---------------------------------------------------------------- the turn cycle

void DébutEtape()
{
    Jeu().RestantsEtape = 0;
    Jeu().NombreCantons = 0;
    Jeu().AssistanceUtilisée = false;
    for (int i = 1; i <= NombrePlaces; ++i) {
        TCanton &c = Jeu().Cantons[i];
        if (c.Inhibé) {
            c.Trouvé = True;
        } else {
            c.Trouvé = False;
            Jeu().RestantsEtape = Jeu().RestantsEtape + 1;
            Jeu().NombreCantons = Jeu().NombreCantons + 1;
        }
        if (Jeu().Etape < TEtape::ParamétrageModifié)
            c.Réussi[Numéro(Jeu().Etape)] = False;
    }
    Jeu().ErreursQuestion = 0;
    Jeu().PartieEnregistrée = false;
    Jeu().CantonRecherché = 0;
    Jeu().ScoresFinPartie = false;
    Vue().EtapeCommencée();
}

void QuestionSuivante()
{
    if (Jeu().RestantsEtape < 1) {
        Vue().QuestionPosée();
        return;
    }
    const float tirage = Rnd();
    int r = static_cast<int>(std::floor(static_cast<double>(Jeu().RestantsEtape) * static_cast<double>(tirage) + 1.0));

    auto rangParmiRestants = [](int rang) -> i16 {
        int vus = 0;
        for (int i = 1; i <= NombrePlaces; ++i)
            if (!Jeu().Cantons[i].Trouvé && ++vus == rang)
                return static_cast<i16>(i);
        return 0;
    };

    i16 c = rangParmiRestants(r);
    // Never the same question twice in a row: take its neighbour in the list of those left.
    if (c == Jeu().CantonRecherché && Jeu().RestantsEtape >= 2) {
        r = r > 1 ? r - 1 : 2;
        c = rangParmiRestants(r);
    }
    Jeu().CantonRecherché = c;
    Vue().QuestionPosée();
}

void FinEtape()
{
    // A set made by hand may name a kind twice: the rank under way, not the first one
    // that holds the kind, leads on, so that the game still ends.
    int pos = Jeu().RangEtape >= 1 && Jeu().RangEtape <= 4 && Jeu().OrdreEtapes[Jeu().RangEtape] == Jeu().Etape ? Jeu().RangEtape : 0;
    for (int i = 1; i <= 4 && pos == 0; ++i)
        if (Jeu().OrdreEtapes[i] == Jeu().Etape)
            pos = i;
    const TEtape suivante = (pos == 0 || pos == 4) ? TEtape::Aucune : Jeu().OrdreEtapes[pos + 1];
    Jeu().RangEtape = static_cast<i16>(pos + 1);

    if (suivante != TEtape::Aucune) {
        Vue().Son(TSon::Etape);
        Vue().AnnonceEtape(Jeu().Etape, suivante);
        Jeu().Etape = suivante;
        DébutEtape();
        Vue().MontreCantons();
        Vue().AfficheScore();
        Vue().AfficheRestants(Jeu().RestantsEtape);
        QuestionSuivante();
        return;
    }
    TerminePartie();
}

// Back to the bare map with no game: what a saved game or a validated parameter set leaves.
void RetourAuRepos()
{
    Jeu().Etape = TEtape::Aucune;
    DébutEtape();
    Jeu().PartieVierge = true;
    Vue().CacheMarques();
    Vue().CacheZoneJeu();
}

// A game that is over, won or lost: its result dealt with, the map and the panel cleared.
void TerminePartie()
{
    Jeu().Etape = TEtape::Aucune;
    Vue().EnregistreScore();
    DébutEtape();
    Jeu().PartieVierge = true;
    Vue().CacheMarques();
    Vue().CacheZoneJeu();
    Jeu().PartieEnregistrée = true;
}

// ---------------------------------------------------------------- judging

void rond_Click(i16 Index) { TraiteClic(Index, 0, 0); }

void TraiteClic(i16 c, i16 x, i16 y)
{
    c = NuméroPlace(c);
    if (c < 1 || c > NombrePlaces)
        return;
    if (EtapeDeJeu(Jeu().Etape))
        Jeu().PartieVierge = false;
    if (Jeu().Etape == TEtape::ParamétrageModifié) {
        Jeu().Cantons[c].Trouvé = Booléen(!Jeu().Cantons[c].Trouvé);
        Vue().PlaceRond(c);
        return;
    }
    if (Jeu().Etape == TEtape::ParamétrageAffiché)
        return;
    if (Jeu().Etape == TEtape::Révision) {
        Vue().Son(TSon::Info);
        Jeu().CantonFiche = c;
        Vue().MontreFiche(true, x, y);
        return;
    }
    CorrectionZone(c);
    if (!Jeu().Cantons[c].Trouvé) {
        if (c == Jeu().CantonRecherché)
            BonneRéponse();
        else
            MauvaiseRéponse();
        return;
    }
    // The canton is out of play in this step.
    if (Jeu().ModeApprentissage) {
        Vue().Son(TSon::Info);
        Jeu().CantonFiche = c;
        Vue().MontreFiche(false, 0, 0);
        return;
    }
    if (Jeu().Niveau != TNiveau::Difficile && Jeu().Niveau != TNiveau::Expert)
        return;
    if (Jeu().Cantons[c].Inhibé)
        return;
    MauvaiseRéponse();
}

void BonneRéponse()
{
    const i16 c = Jeu().CantonRecherché;
    if (Jeu().Niveau == TNiveau::Facile) {
        Vue().MontreBoutonPasse(false);
        if (!Jeu().AssistanceUtilisée)
            Jeu().Cantons[c].Trouvé = True;
    } else {
        Jeu().Cantons[c].Trouvé = True;
    }
    Vue().MontreCanton(c);
    if (!Jeu().AssistanceUtilisée) {
        Vue().PlaceRond(c);
        Jeu().RestantsEtape = Jeu().RestantsEtape - 1;
        if (Jeu().Etape >= TEtape::Cantons && Jeu().Etape <= TEtape::Plaques)
            Jeu().Cantons[c].Réussi[Numéro(Jeu().Etape)] = True;
        Vue().AfficheRestants(Jeu().RestantsEtape);
        if (Jeu().RestantsEtape == 0) {
            FinEtape();
            return;
        }
        Vue().Son(TSon::Bravo);
        if (Jeu().RestantsEtape == Jeu().NombreCantons - 1 && Jeu().ModeApprentissage && !Jeu().ConseilFicheDonné) {
            Vue().Annonce(TAnnonce::ConseilFiche);
            Jeu().ConseilFicheDonné = true;
        }
        QuestionSuivante();
        Jeu().ErreursQuestion = 0;
        Vue().MontreBoutonGruge(false);
        return;
    }
    // The answer was given away: the canton comes back later, and the question is paid in full.
    Jeu().AssistanceUtilisée = false;
    Vue().PlaceRond(c);
    if (SoldeQuestion() > 0) {
        Vue().Son(TSon::Bravo);
        QuestionSuivante();
        Jeu().ErreursQuestion = 0;
        Vue().MontreBoutonGruge(false);
    } else {
        PartiePerdue();
    }
}

void MauvaiseRéponse()
{
    Jeu().Score = Pénalité(Jeu().Score, Jeu().ErreursQuestion);
    if (Jeu().Score <= 0) {
        PartiePerdue();
        return;
    }
    Vue().AfficheScore();
    Jeu().ErreursQuestion = Jeu().ErreursQuestion + 1;
    if (Jeu().ErreursQuestion < 9) {
        Vue().Son(TSon::Erreur);
        if (Jeu().ErreursQuestion == 1 && Jeu().Niveau == TNiveau::Facile && !Jeu().ModeApprentissage)
            Vue().MontreBoutonPasse(true);
        if (Jeu().ErreursQuestion == 3 && Jeu().ModeApprentissage)
            Vue().MontreBoutonGruge(true);
        return;
    }
    Vue().Son(TSon::Perdu);
    if (Jeu().AssistanceUtilisée) {
        Vue().Annonce(TAnnonce::QuestionPerdueAssistée);
        Jeu().AssistanceUtilisée = false;
        Vue().PlaceRond(Jeu().CantonRecherché);
    } else {
        Vue().Annonce(TAnnonce::QuestionPerdue);
    }
    Jeu().ErreursQuestion = 0;
    QuestionSuivante();
    Vue().MontreBoutonGruge(false);
    Vue().MontreBoutonPasse(false);
}

// ---------------------------------------------------------------- score and clock

i32 Pénalité(i32 S, i16 k)
{
    const double p = std::pow(4.0, k);
    const int étape = Jeu().Etape <= TEtape::Plaques ? Numéro(Jeu().Etape) : 0;
    TCanton &c = Jeu().Cantons[(Jeu().CantonRecherché >= 0 && Jeu().CantonRecherché <= NombrePlaces) ? Jeu().CantonRecherché : 0];
    c.Pertes[étape] = static_cast<i32>(std::lrint(c.Pertes[étape] + p));
    c.Pertes[0] = static_cast<i32>(std::lrint(c.Pertes[0] + p));
    if (Jeu().ScoreGelé)
        return S;
    return static_cast<i32>(std::lrint(S - p));
}

i32 SoldeQuestion()
{
    if (Jeu().ErreursQuestion != 0)
        for (i16 k = Jeu().ErreursQuestion; k <= 8; ++k)
            Jeu().Score = Pénalité(Jeu().Score, k);
    Vue().AfficheScore();
    return Jeu().Score;
}

void ScoreAbandon()
{
    PoidsSpécifiques();
    Jeu().Score = -999999;
    for (int i = 1; i <= 4; ++i) {
        const TEtape étape = Jeu().OrdreEtapes[i];
        if (étape == TEtape::Aucune)
            break;
        if (étape == Jeu().Etape) {
            Jeu().Score += (Jeu().NombreCantons - Jeu().RestantsEtape) * Jeu().PoidsEtapes[Numéro(Jeu().Etape)] * Jeu().PointsParCanton;
            break;
        }
        if (EtapeDeJeu(étape))
            Jeu().Score += Jeu().PoidsEtapes[Numéro(étape)] * Jeu().NombreCantons * Jeu().PointsParCanton;
    }
}

void PartiePerdue()
{
    ScoreAbandon();
    Vue().AfficheScore();
    Vue().Son(TSon::Perdu);
    Vue().Annonce(TAnnonce::PartiePerdue);
    TerminePartie();
}

i32 SecondesDepuisMinuit() { return static_cast<i32>(std::lrint(Timer())); }

i32 DuréeDepuis(i32 heureDépart)
{
    i32 d = SecondesDepuisMinuit() - heureDépart;
    if (d < 0)
        d += 86400;
    return d;
}

// ---------------------------------------------------------------- help buttons

void BoutonPasse_Click()
{
    for (i16 k = Jeu().ErreursQuestion; k <= 8; ++k)
        Jeu().Score = Pénalité(Jeu().Score, k);
    if (Jeu().Score <= 0) {
        PartiePerdue();
        return;
    }
    Vue().AfficheScore();
    Vue().Son(TSon::Perdu);
    Jeu().ErreursQuestion = 0;
    QuestionSuivante();
    Vue().MontreBoutonPasse(false);
}

