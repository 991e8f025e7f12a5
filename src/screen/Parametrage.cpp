#include "screen/Parametrage.h"

#include "screen/VueJeu.h"
#include "files/FichierPartie.h"
#include "platform/Boites.h"
#include "results/Parties.h"
#include "results/Scores.h"
#include "results/SelectionPartie.h"
#include "screen/Ajustement.h"
#include "screen/EcranPrincipal.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Registre.h"
#include "results/PartieEnCours.h"

#include <QFile>
#include <QMenu>

namespace {
bool GrilleActive = false;
i32 CodeEtapes = 0;
bool ParamétrageNommé = false;
bool ParamétrageDeLancement = false;

const QString FichierDeLancement = QStringLiteral("fichier de lancement");

CaseACocher *Case(int colonne, int rang) { return Principal().Bouton[(colonne - 1) * 4 + rang]; }

// The sixteen boxes of the grid, 1..16, and the message of the last refusal.
struct Cases {
    bool b[17] = {};
    std::optional<TMessage> refus;
    bool coché(int colonne, int rang) const { return b[(colonne - 1) * 4 + rang]; }
    bool ColonneRemplie(int colonne) const { return coché(colonne, 1) || coché(colonne, 2) || coché(colonne, 3) || coché(colonne, 4); }
    void Ecrit(int k, bool valeur);
    void Clic(int k);
};

// A box written changes, and only then runs the rules for itself, at once.
void Cases::Ecrit(int k, bool valeur)
{
    if (b[k] != valeur)
        b[k] = valeur, Clic(k);
}

void Cases::Clic(int k)
{
    const int c = (k - 1) / 4 + 1;
    const int r = (k - 1) % 4 + 1;
    bool vide = true;
    bool doublon = false;
    const bool estCoché = b[k];
    if (estCoché) {
        for (int j = 1; j < c; ++j)
            doublon = doublon || coché(j, r);
        vide = c == 1 ? false : !ColonneRemplie(c - 1);
    } else {
        vide = !ColonneRemplie(c);
    }
    if (!estCoché) {
        if (!vide)
            return;
        if (c != 1) {
            // A gap closes by dropping all later ranks.
            for (int j = c + 1; j <= 4; ++j)
                for (int rr = 1; rr <= 4; ++rr)
                    Ecrit((j - 1) * 4 + rr, false);
            return;
        }
        refus = TMessage::PremierJeu;
        Ecrit(k, true);
        return;
    }
    if (vide) {
        refus = TMessage::ColonnePrécédenteVide;
        Ecrit(k, false);
    } else if (doublon) {
        refus = TMessage::JeuDéjàChoisi;
        Ecrit(k, false);
    } else {
        for (int rr = 1; rr <= 4; ++rr)
            if (rr != r)
                Ecrit((c - 1) * 4 + rr, false);
        for (int j = c + 1; j <= 4; ++j)
            Ecrit((j - 1) * 4 + r, false);
    }
}

void MenusDeJeu(bool actifs)
{
    auto &E = Principal();
    E.MenuFichier->setEnabled(actifs);
    E.MenuScores->setEnabled(actifs);
    E.MenuRévision->setEnabled(actifs);
    E.MenuParamétrer->setEnabled(actifs);
}

// What the four commands share once the step is set.
void SéquenceEntrée()
{
    Principal().setHelpContextID(65);
    DébutEtape(Jeu());
    AffichePanneau();
    Jeu().PartieVierge = true;
    Jeu().ModeRévision = false;
    AjusteCarte();
    MontreCantons();
}
} // namespace

void DéfinitParamétrage()
{
    if (!ConfirmeArrêt())
        return;
    Jeu().Etape = TEtape::ParamétrageModifié;
    SéquenceEntrée();
}

void RevoitParamétrage()
{
    if (!ConfirmeArrêt())
        return;
    Jeu().Etape = TEtape::ParamétrageAffiché;
    SéquenceEntrée();
}

void ParamétrageDéfaut()
{
    if (!ConfirmeArrêt())
        return;
    Réglages().FichierLancement = ComposeChemin(Réglages().RépertoireSauvegarde, QStringLiteral("KELMOR.SCS"));
    EcritValeur(CléJeu, FichierDeLancement, Réglages().FichierLancement);
    ChargeScores();
    Jeu().Etape = TEtape::ParamétrageAffiché;
    SéquenceEntrée();
}

void RechargeParamétrage()
{
    if (!ConfirmeArrêt())
        return;
    DemandeDossier().ModeRépertoires = TModeRépertoires::Chargement;
    DemandeDossier().TypeFichier = TTypeFichier::Paramétrage;
    MontreSélectionPartie();
    Jeu().Etape = TEtape::ParamétrageAffiché;
    SéquenceEntrée();
}

void AfficheParamétrage()
{
    auto &E = Principal();
    GrilleActive = false;
    Jeu().PartieEnregistrée = true;
    Jeu().PartieVierge = true;
    CacheZoneJeu();
    CodeEtapes = 0;
    for (int k = 1; k <= 16; ++k) {
        E.Bouton[k]->setChecked(false);
        E.Bouton[k]->show();
        E.Bouton[k]->setEnabled(Jeu().Etape != TEtape::ParamétrageAffiché);
    }
    for (int i = 1; i <= 12; ++i)
        E.LBLParam[i]->show();
    E.Bouton[17]->show();
    E.Bouton[17]->setEnabled(Jeu().Etape != TEtape::ParamétrageAffiché);
    for (int n = 1; n <= 4; ++n)
        if (Jeu().OrdreEtapes[n] >= TEtape::Cantons && Jeu().OrdreEtapes[n] <= TEtape::Plaques) {
            const int k = (n - 1) * 4 + Numéro(Jeu().OrdreEtapes[n]);
            E.Bouton[k]->setChecked(true);
            CodeEtapes += 1 << k;
        }
    if (Réglages().FichierLancement == ParamétrageNonSauvé) {
        E.LBLParam[3]->setText(Message(TMessage::ParamétrageNonSauvé));
        ParamétrageNommé = false;
        E.Bouton[18]->hide();
        E.LBLParam[13]->hide();
    } else {
        E.LBLParam[3]->setText(Message(TMessage::NomFichierParamétrage) + QLatin1Char('\n') + Réglages().FichierLancement);
        E.LBLParam[3]->setToolTip(Réglages().FichierLancement);
        ParamétrageNommé = true;
        E.Bouton[17]->setChecked(true);
        E.Bouton[18]->show();
        E.LBLParam[13]->show();
        E.Bouton[18]->setEnabled(Jeu().Etape != TEtape::ParamétrageAffiché);
        QString lancement;
        LitValeur(CléJeu, FichierDeLancement, lancement);
        ParamétrageDeLancement = lancement == Réglages().FichierLancement;
        E.Bouton[18]->setChecked(ParamétrageDeLancement);
    }
    if (Jeu().Etape == TEtape::ParamétrageAffiché) {
        E.BTN[1]->hide();
        E.BTN[2]->hide();
        E.LBLParam[2]->setText(Message(TMessage::ConseilParamétrageRonds));
    } else {
        E.BTN[1]->show();
        E.BTN[2]->show();
        E.LBLParam[2]->setText(Message(TMessage::ConseilParamétrageCantons));
        MenusDeJeu(false);
    }
    GrilleActive = true;
}

void CacheParamétrage()
{
    auto &E = Principal();
    for (int i = 1; i <= 13; ++i)
        E.LBLParam[i]->hide();
    for (int i = 1; i <= 18; ++i)
        E.Bouton[i]->hide();
    E.BTN[1]->hide();
    E.BTN[2]->hide();
    MenusDeJeu(true);
}

TClicGrille RègleGrille(const TGrille &avant, int rang, int genre, bool coché)
{
    Cases g;
    for (int c = 1; c <= 4; ++c)
        if (avant[c - 1] != 0)
            g.b[(c - 1) * 4 + avant[c - 1]] = true;
    const int k = (rang - 1) * 4 + genre;
    g.b[k] = coché;
    g.Clic(k);
    TClicGrille après{{0, 0, 0, 0}, g.refus};
    for (int c = 1; c <= 4; ++c)
        for (int r = 1; r <= 4; ++r)
            if (g.coché(c, r))
                après.Grille[c - 1] = r;
    return après;
}

void Bouton_Click(int k)
{
    auto &E = Principal();
    if (k <= 16 && GrilleActive) {
        const int c = (k - 1) / 4 + 1;
        const int r = (k - 1) % 4 + 1;
        const bool coché = E.Bouton[k]->isChecked();
        // The grid before this box changed: one box at most in each rank.
        TGrille avant{0, 0, 0, 0};
        for (int j = 1; j <= 4; ++j)
            for (int rr = 1; rr <= 4; ++rr)
                if (j == c && rr == r ? !coché : Case(j, rr)->isChecked())
                    avant[j - 1] = rr;
        const TClicGrille après = RègleGrille(avant, c, r, coché);
        if (après.Refus)
            Boîte(Message(*après.Refus), StyleInformation, Message(TMessage::TitreErreur));
        // The boxes take the rules' outcome; the rules have already run for each of them.
        GrilleActive = false;
        for (int j = 1; j <= 4; ++j)
            for (int rr = 1; rr <= 4; ++rr)
                Case(j, rr)->setChecked(après.Grille[j - 1] == rr);
        GrilleActive = true;
        return;
    }
    if (k == 17) {
        if (E.Bouton[17]->isChecked()) {
            E.Bouton[18]->show();
            E.LBLParam[13]->show();
        } else {
            E.Bouton[18]->hide();
            E.LBLParam[13]->hide();
            E.Bouton[18]->setChecked(false);
        }
    }
}

void BTN_Click(int i)
{
    if (i == 2) {
        AnnuleParamétrage();
        return;
    }
    bool tousRouges = true;
    for (int c = 1; c <= NombrePlaces; ++c)
        tousRouges = tousRouges && Jeu().Cantons[c].Trouvé;
    if (tousRouges) {
        Boîte(Message(TMessage::AuMoinsUnCanton), StyleExclamation, Message(TMessage::TitreErreur));
        return;
    }
    ValideParamétrage();
}

void ValideParamétrage()
{
    auto &E = Principal();
    DemandeDossier().SortieParamétrage = true;
    i32 code = 0;
    for (int n = 1; n <= 4; ++n) {
        Jeu().OrdreEtapes[n] = TEtape::Aucune;
        for (int r = 1; r <= 4; ++r)
            if (Case(n, r)->isChecked()) {
                Jeu().OrdreEtapes[n] = static_cast<TEtape>(r);
                code += 1 << ((n - 1) * 4 + r);
            }
    }
    bool modifié = false;
    for (int c = 1; c <= NombrePlaces; ++c)
        modifié = modifié || Jeu().Cantons[c].Trouvé != Jeu().Cantons[c].Inhibé;

    if (!E.Bouton[17]->isChecked()) {
        if (Boîte(Message(TMessage::ScoresNonSauvegardés), StyleQuestion, Message(TMessage::TitreEtesVousCertain)) != RéponseOui)
            return;
        QFile::remove(ParamétrageNonSauvé);
        Réglages().FichierLancement = ParamétrageNonSauvé;
        if (code == CodeEtapes && !modifié) {
            EcritFichierScores(true);
        } else {
            for (int c = 1; c <= NombrePlaces; ++c)
                Jeu().Cantons[c].Inhibé = Jeu().Cantons[c].Trouvé;
            RazScores();
            EcritFichierScores(false);
        }
    } else {
        DemandeDossier().LancementDemandé = E.Bouton[18]->isChecked();
        if (code != CodeEtapes || modifié) {
            DemandeDossier().ModeRépertoires = TModeRépertoires::Sauvegarde;
            DemandeDossier().TypeFichier = TTypeFichier::Paramétrage;
            MontreSélectionPartie();
        } else if (ParamétrageNommé && !ParamétrageDeLancement && DemandeDossier().LancementDemandé) {
            EcritValeur(CléJeu, FichierDeLancement, Réglages().FichierLancement);
        } else if (!ParamétrageNommé) {
            DemandeDossier().ModeRépertoires = TModeRépertoires::SauvegardeAvecScores;
            DemandeDossier().TypeFichier = TTypeFichier::Paramétrage;
            MontreSélectionPartie();
        }
    }
    if (DemandeDossier().SortieParamétrage) {
        CacheParamétrage();
        RetourAuRepos(Jeu());
    }
}

void AnnuleParamétrage()
{
    Jeu().Etape = TEtape::Aucune;
    DébutEtape(Jeu());
    AffichePanneau();
    Jeu().ModeRévision = false;
    AjusteCarte();
    MontreCantons();
}

void AffichePanneau()
{
    auto &E = Principal();
    if (Jeu().Etape == TEtape::ParamétrageModifié || Jeu().Etape == TEtape::ParamétrageAffiché)
        AfficheParamétrage();
    else
        CacheParamétrage();

    auto boîtesDuCompte = [&E](bool visible) {
        E.QueFaire->setVisible(visible);
        E.BoîteRestants->setVisible(visible);
        for (int i = 1; i <= 3; ++i)
            E.Reste[i]->setVisible(visible);
    };
    auto boîtesDuScore = [&E](bool visible) {
        E.BoîteScore->setVisible(visible);
        for (int i = 0; i <= 6; ++i) {
            E.Digit[i]->setVisible(visible);
            if (visible)
                E.Digit[i]->raise();
        }
    };
    auto cadreQuestion = [&E](bool visible) {
        E.ImageRecherchée->setVisible(visible);
        E.ElémentRecherché->setVisible(visible);
    };

    if (Jeu().Etape == TEtape::Aucune) {
        boîtesDuCompte(false);
        boîtesDuScore(false);
    } else if (Jeu().Etape >= TEtape::ParamétrageModifié) {
        boîtesDuCompte(false);
        boîtesDuScore(false);
        E.TexteAChercher->hide();
        cadreQuestion(false);
    } else if (Jeu().Etape <= TEtape::Drapeaux) {
        boîtesDuCompte(true);
        boîtesDuScore(!Jeu().ModeApprentissage);
        E.TexteAChercher->setVisible(Jeu().Etape != TEtape::Drapeaux);
        cadreQuestion(Jeu().Etape == TEtape::Drapeaux || (Jeu().Etape == TEtape::Cantons && Jeu().Niveau == TNiveau::Moyen));
    }
    ZoneQuestionSpécifique();
}
