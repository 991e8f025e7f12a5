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

i16 ZoneEn(const TCarteZones &carte, int Région, int x, int y)
{
    if (Région < 0 || Région >= NombreCartes || y < 0 || y + 1 >= MaxLignes)
        return 0;
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

void CliqueCarte(Partie &P, int Région, int x, int y)
{
    if (P.Etape == TEtape::Aucune)
        return;
    i16 c = ZoneEn(P.Carte, Région, x, y);
    CorrectionZone(c);
    // The level's filter: at Facile and Moyen a canton already found counts for nothing.
    if (c != 0 && EtapeDeJeu(P.Etape) && c <= NombrePlaces) {
        if ((P.Niveau == TNiveau::Facile && !P.ModeApprentissage) || P.Niveau == TNiveau::Moyen)
            if (P.Cantons[c].Trouvé)
                c = 0;
    }
    if (c != 0 && c <= NombrePlaces)
        TraiteClic(P, c, static_cast<i16>(x), static_cast<i16>(y));
}

// ---------------------------------------------------------------- the turn cycle

namespace {
// The question asked is settled: the history keeps how it went.
void NoteQuestion(Partie &P, i16 erreurs, bool passée)
{
    if (EtapeDeJeu(P.Etape))
        P.QuestionsJouées.push_back({P.CantonRecherché, P.Etape, erreurs, passée, P.AssistanceUtilisée, DuréeDepuis(P.DébutQuestion)});
}
} // namespace

void DébutEtape(Partie &P)
{
    P.RestantsEtape = 0;
    P.NombreCantons = 0;
    P.AssistanceUtilisée = false;
    for (int i = 1; i <= NombrePlaces; ++i) {
        TCanton &c = P.Cantons[i];
        if (c.Inhibé) {
            c.Trouvé = true;
        } else {
            c.Trouvé = false;
            P.RestantsEtape = P.RestantsEtape + 1;
            P.NombreCantons = P.NombreCantons + 1;
        }
        if (P.Etape < TEtape::ParamétrageModifié)
            c.Réussi[Numéro(P.Etape)] = false;
    }
    P.ErreursQuestion = 0;
    P.PartieEnregistrée = false;
    P.CantonRecherché = 0;
    P.ScoresFinPartie = false;
    Vue(P).EtapeCommencée();
}

void QuestionSuivante(Partie &P)
{
    if (P.RestantsEtape < 1) {
        Vue(P).QuestionPosée();
        return;
    }
    const float tirage = Rnd();
    int r = static_cast<int>(std::floor(static_cast<double>(P.RestantsEtape) * static_cast<double>(tirage) + 1.0));

    auto rangParmiRestants = [&P](int rang) -> i16 {
        int vus = 0;
        for (int i = 1; i <= NombrePlaces; ++i)
            if (!P.Cantons[i].Trouvé && ++vus == rang)
                return static_cast<i16>(i);
        return 0;
    };

    i16 c = rangParmiRestants(r);
    // Never the same question twice in a row: take its neighbour in the list of those left.
    if (c == P.CantonRecherché && P.RestantsEtape >= 2) {
        r = r > 1 ? r - 1 : 2;
        c = rangParmiRestants(r);
    }
    P.CantonRecherché = c;
    P.DébutQuestion = SecondesDepuisMinuit();
    Vue(P).QuestionPosée();
}

void FinEtape(Partie &P)
{
    // A set made by hand may name a kind twice: the rank under way, not the first one
    // that holds the kind, leads on, so that the game still ends.
    int pos = P.RangEtape >= 1 && P.RangEtape <= 4 && P.OrdreEtapes[P.RangEtape] == P.Etape ? P.RangEtape : 0;
    for (int i = 1; i <= 4 && pos == 0; ++i)
        if (P.OrdreEtapes[i] == P.Etape)
            pos = i;
    const TEtape suivante = (pos == 0 || pos == 4) ? TEtape::Aucune : P.OrdreEtapes[pos + 1];
    P.RangEtape = static_cast<i16>(pos + 1);

    if (suivante != TEtape::Aucune) {
        Vue(P).Son(TSon::Etape);
        Vue(P).AnnonceEtape(P.Etape, suivante);
        P.Etape = suivante;
        DébutEtape(P);
        Vue(P).MontreCantons();
        Vue(P).AfficheScore();
        Vue(P).AfficheRestants(P.RestantsEtape);
        QuestionSuivante(P);
        return;
    }
    TerminePartie(P);
}

// Back to the bare map with no game: what a saved game or a validated parameter set leaves.
void RetourAuRepos(Partie &P)
{
    P.Etape = TEtape::Aucune;
    DébutEtape(P);
    P.PartieVierge = true;
    Vue(P).CacheMarques();
    Vue(P).CacheZoneJeu();
}

// A game that is over, won or lost: its result dealt with, the map and the panel cleared.
void TerminePartie(Partie &P)
{
    P.Etape = TEtape::Aucune;
    Vue(P).EnregistreScore();
    DébutEtape(P);
    P.PartieVierge = true;
    Vue(P).CacheMarques();
    Vue(P).CacheZoneJeu();
    P.PartieEnregistrée = true;
}

// ---------------------------------------------------------------- judging

void rond_Click(Partie &P, i16 Index) { TraiteClic(P, Index, 0, 0); }

void TraiteClic(Partie &P, i16 c, i16 x, i16 y)
{
    c = NuméroPlace(c);
    if (c < 1 || c > NombrePlaces)
        return;
    if (EtapeDeJeu(P.Etape))
        P.PartieVierge = false;
    if (P.Etape == TEtape::ParamétrageModifié) {
        P.Cantons[c].Trouvé = !P.Cantons[c].Trouvé;
        Vue(P).PlaceRond(c);
        return;
    }
    if (P.Etape == TEtape::ParamétrageAffiché)
        return;
    if (P.Etape == TEtape::Révision) {
        Vue(P).Son(TSon::Info);
        P.CantonFiche = c;
        Vue(P).MontreFiche(true, x, y);
        return;
    }
    CorrectionZone(c);
    if (!P.Cantons[c].Trouvé) {
        if (c == P.CantonRecherché)
            BonneRéponse(P);
        else
            MauvaiseRéponse(P);
        return;
    }
    // The canton is out of play in this step.
    if (P.ModeApprentissage) {
        Vue(P).Son(TSon::Info);
        P.CantonFiche = c;
        Vue(P).MontreFiche(false, 0, 0);
        return;
    }
    if (P.Niveau != TNiveau::Difficile && P.Niveau != TNiveau::Expert)
        return;
    if (P.Cantons[c].Inhibé)
        return;
    MauvaiseRéponse(P);
}

void BonneRéponse(Partie &P)
{
    const i16 c = P.CantonRecherché;
    Vue(P).Verdict(TVerdict::Juste, P.ErreursQuestion);
    NoteQuestion(P, P.ErreursQuestion, false);
    if (P.Niveau == TNiveau::Facile) {
        Vue(P).MontreBoutonPasse(false);
        if (!P.AssistanceUtilisée)
            P.Cantons[c].Trouvé = true;
    } else {
        P.Cantons[c].Trouvé = true;
    }
    Vue(P).MontreCanton(c);
    if (!P.AssistanceUtilisée) {
        Vue(P).PlaceRond(c);
        P.RestantsEtape = P.RestantsEtape - 1;
        if (P.Etape >= TEtape::Cantons && P.Etape <= TEtape::Plaques)
            P.Cantons[c].Réussi[Numéro(P.Etape)] = true;
        Vue(P).AfficheRestants(P.RestantsEtape);
        if (P.RestantsEtape == 0) {
            FinEtape(P);
            return;
        }
        Vue(P).Son(TSon::Bravo);
        if (P.RestantsEtape == P.NombreCantons - 1 && P.ModeApprentissage && !P.ConseilFicheDonné) {
            Vue(P).Annonce(TAnnonce::ConseilFiche);
            P.ConseilFicheDonné = true;
        }
        QuestionSuivante(P);
        P.ErreursQuestion = 0;
        Vue(P).MontreBoutonGruge(false);
        return;
    }
    // The answer was given away: the canton comes back later, and the question is paid in full.
    P.AssistanceUtilisée = false;
    Vue(P).PlaceRond(c);
    if (SoldeQuestion(P) > 0) {
        Vue(P).Son(TSon::Bravo);
        QuestionSuivante(P);
        P.ErreursQuestion = 0;
        Vue(P).MontreBoutonGruge(false);
    } else {
        PartiePerdue(P);
    }
}

void MauvaiseRéponse(Partie &P)
{
    P.Score = Pénalité(P, P.Score, P.ErreursQuestion);
    if (P.Score <= 0) {
        Vue(P).Verdict(TVerdict::Faux, static_cast<i16>(P.ErreursQuestion + 1));
        NoteQuestion(P, static_cast<i16>(P.ErreursQuestion + 1), false);
        PartiePerdue(P);
        return;
    }
    Vue(P).AfficheScore();
    P.ErreursQuestion = P.ErreursQuestion + 1;
    if (P.ErreursQuestion < 9) {
        Vue(P).Verdict(TVerdict::Faux, P.ErreursQuestion);
        Vue(P).Son(TSon::Erreur);
        if (P.ErreursQuestion == 1 && P.Niveau == TNiveau::Facile && !P.ModeApprentissage)
            Vue(P).MontreBoutonPasse(true);
        if (P.ErreursQuestion == 3 && P.ModeApprentissage)
            Vue(P).MontreBoutonGruge(true);
        return;
    }
    Vue(P).Verdict(TVerdict::Perdue, P.ErreursQuestion);
    Vue(P).Son(TSon::Perdu);
    NoteQuestion(P, P.ErreursQuestion, false);
    if (P.AssistanceUtilisée) {
        Vue(P).Annonce(TAnnonce::QuestionPerdueAssistée);
        P.AssistanceUtilisée = false;
        Vue(P).PlaceRond(P.CantonRecherché);
    } else {
        Vue(P).Annonce(TAnnonce::QuestionPerdue);
    }
    P.ErreursQuestion = 0;
    QuestionSuivante(P);
    Vue(P).MontreBoutonGruge(false);
    Vue(P).MontreBoutonPasse(false);
}

// ---------------------------------------------------------------- score and clock

i32 Pénalité(Partie &P, i32 S, i16 k)
{
    const double p = std::pow(4.0, k);
    const int étape = P.Etape <= TEtape::Plaques ? Numéro(P.Etape) : 0;
    TCanton &c = P.Cantons[(P.CantonRecherché >= 0 && P.CantonRecherché <= NombrePlaces) ? P.CantonRecherché : 0];
    c.Pertes[étape] = static_cast<i32>(std::lrint(c.Pertes[étape] + p));
    c.Pertes[0] = static_cast<i32>(std::lrint(c.Pertes[0] + p));
    if (P.ScoreGelé)
        return S;
    return static_cast<i32>(std::lrint(S - p));
}

i32 SoldeQuestion(Partie &P)
{
    if (P.ErreursQuestion != 0)
        for (i16 k = P.ErreursQuestion; k <= 8; ++k)
            P.Score = Pénalité(P, P.Score, k);
    Vue(P).AfficheScore();
    return P.Score;
}

void ScoreAbandon(Partie &P)
{
    PoidsSpécifiques(P);
    P.Score = -999999;
    for (int i = 1; i <= 4; ++i) {
        const TEtape étape = P.OrdreEtapes[i];
        if (étape == TEtape::Aucune)
            break;
        if (étape == P.Etape) {
            P.Score += (P.NombreCantons - P.RestantsEtape) * P.PoidsEtapes[Numéro(P.Etape)] * P.PointsParCanton;
            break;
        }
        if (EtapeDeJeu(étape))
            P.Score += P.PoidsEtapes[Numéro(étape)] * P.NombreCantons * P.PointsParCanton;
    }
}

void PartiePerdue(Partie &P)
{
    ScoreAbandon(P);
    Vue(P).AfficheScore();
    Vue(P).Son(TSon::Perdu);
    Vue(P).Annonce(TAnnonce::PartiePerdue);
    TerminePartie(P);
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

void BoutonPasse_Click(Partie &P)
{
    Vue(P).Verdict(TVerdict::Passée, P.ErreursQuestion);
    NoteQuestion(P, P.ErreursQuestion, true);
    for (i16 k = P.ErreursQuestion; k <= 8; ++k)
        P.Score = Pénalité(P, P.Score, k);
    if (P.Score <= 0) {
        PartiePerdue(P);
        return;
    }
    Vue(P).AfficheScore();
    Vue(P).Son(TSon::Perdu);
    P.ErreursQuestion = 0;
    QuestionSuivante(P);
    Vue(P).MontreBoutonPasse(false);
}

