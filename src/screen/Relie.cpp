// The program's start: the main window made, loaded and wired to what its controls do.
#include "screen/Relie.h"

#include "engine/communs.h"
#include "engine/Vue.h"
#include "platform/Boites.h"
#include "results/Scores.h"
#include "screen/Pompe.h"
#include "platform/Ecran.h"
#include "results/Parties.h"
#include "screen/Ajustement.h"
#include "screen/Chargement.h"
#include "screen/Commandes.h"
#include "screen/EcranPrincipal.h"
#include "screen/Etiquettes.h"
#include "screen/Parametrage.h"
#include "screen/ParametrageRepertoires.h"
#include "screen/Accessibles.h"
#include "screen/VueJeu.h"
#include "services/Donnees.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "screen/Patience.h"
#include "services/Accessibilite.h"
#include "services/Sons.h"
#include "results/PartieEnCours.h"
#include "results/HistoriqueJoueur.h"

#include <QCheckBox>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

namespace {
// The game's screen: what the rules tell it, drawn on the main window.
class VueEcran : public VueJeu {
public:
    void Son(TSon son) override
    {
        switch (son) {
        case TSon::Erreur: JoueSon(SonsJeu().SonErreur); break;
        case TSon::Bravo: JoueSon(SonsJeu().SonBravo); break;
        case TSon::Etape: JoueSon(SonsJeu().SonEtape); break;
        case TSon::Perdu: JoueSon(SonsJeu().SonPerdu); break;
        case TSon::Info: JoueSon(SonsJeu().SonInfo); break;
        }
    }
    void Annonce(TAnnonce annonce) override
    {
        switch (annonce) {
        case TAnnonce::ConseilFiche: Boîte(Message(TMessage::ConseilFiche), StyleInformation, Message(TMessage::TitreAPropos)); break;
        case TAnnonce::QuestionPerdue: Boîte(Message(TMessage::QuestionPerdue), StyleExclamation, Message(TMessage::TitreResaisissezVous)); break;
        case TAnnonce::QuestionPerdueAssistée: Boîte(Message(TMessage::QuestionPerdueAssistée), StyleExclamation, Message(TMessage::TitreResaisissezVous)); break;
        case TAnnonce::PartiePerdue: perdue = true, Boîte(Message(TMessage::PartieTerminée), StyleCritique, Message(TMessage::TitreTourGratuit)); break;
        }
    }
    void AnnonceEtape(TEtape finie, TEtape suivante) override
    {
        NoteHistorique(TIssuePartie::EnCours);
        Boîte(MessageTransition(finie, suivante), StyleInformation, Message(TMessage::TitreEtapeSuivante));
    }
    void EtapeCommencée() override { PrépareEtape(); }
    void QuestionPosée() override
    {
        MontreQuestion();
        AnnonceQuestion();
    }
    void Verdict(TVerdict v, i16 erreurs) override
    {
        static constexpr TAnnonceLue lue[] = {TAnnonceLue::Juste, TAnnonceLue::Faux, TAnnonceLue::QuestionPerdue, TAnnonceLue::QuestionPassée};
        AnnonceVerdict(TexteAnnonce(lue[static_cast<int>(v)], Langues().Langue, QString::number(erreurs)));
    }
    void AfficheScore() override { ::AfficheScore(); }
    void AfficheRestants(i16 n) override { ::AfficheRestants(n); }
    void MontreCanton(i16 i) override { ::MontreCanton(i); }
    void MontreCantons() override { ::MontreCantons(); }
    void PlaceRond(i16 i, bool cible, i16 x, i16 y) override { ::PlaceRond(i, cible, x, y); }
    void CacheMarques() override { ::CacheMarques(); }
    void CacheZoneJeu() override { ::CacheZoneJeu(); }
    void AffichePanneau() override { ::AffichePanneau(); }
    void MontreBoutonPasse(bool visible) override { Principal().BoutonPasse->setVisible(visible); }
    void MontreBoutonGruge(bool visible) override { Principal().BoutonGruge->setVisible(visible); }
    void AmèneEnVue(i16 c) override { ::AmèneEnVue(c); }
    void MontreFiche(bool cible, i16 x, i16 y) override
    {
        const i16 c = Jeu().CantonFiche;
        if (cible) {
            // The target stands where the player clicked, or on the town for a click on its dot.
            if (x == 0 && y == 0) {
                const auto &E = Principal();
                x = static_cast<i16>(Jeu().Cantons[c].VilleGauche + E.RondVille->Width() / 2);
                y = static_cast<i16>(Jeu().Cantons[c].VilleHaut + E.RondVille->Height() / 2);
            }
            ::PlaceRond(c, true, x, y);
        }
        MontrePompe();
        // The card's target goes with it.
        ::PlaceRond(c);
    }
    void EnregistreScore() override
    {
        NoteHistorique(std::exchange(perdue, false) ? TIssuePartie::Perdue : TIssuePartie::Gagnée);
        ::EnregistreScore();
    }

private:
    bool perdue = false; // the game now ending ran out of points
};
} // namespace

void InstalleVueEcran(bool installée)
{
    static VueEcran vue;
    Jeu().Ecouteur = installée ? &vue : nullptr;
}

bool Form_Unload()
{
    if (!ConfirmeArrêt())
        return false;
    RestaureSonsSystème();
    return true;
}

void RelieEcranPrincipal(EcranPrincipal &E)
{
    for (int i = 0; i < 1; ++i)
        E.ImageRégion[i]->Click = [i] { CliqueCarte(i); };
    for (int i = 1; i <= NombrePlaces; ++i)
        E.inv[i]->Click = [i] { CliqueCarte(Jeu().Cantons[i].Région); };
    QObject::connect(E.BarreH, &QScrollBar::valueChanged, &E, [] { BarreH_Change(); });
    QObject::connect(E.BarreV, &QScrollBar::valueChanged, &E, [] { BarreV_Change(); });
    QObject::connect(E.BoutonPasse, &QToolButton::clicked, &E, [] { BoutonPasse_Click(Jeu()); });
    QObject::connect(E.BoutonGruge, &QToolButton::clicked, &E, [] { BoutonGruge_Click(); });
    // A check box's change, by the player or by the program, runs its rule at once.
    for (int k = 1; k <= 18; ++k)
        QObject::connect(E.Bouton[k], &QCheckBox::toggled, &E, [k] { Bouton_Click(k); });
    for (int i = 1; i <= 2; ++i)
        QObject::connect(E.BTN[i], &QPushButton::clicked, &E, [i] { BTN_Click(i); });
    RelieCommandes(E);
    // Closing by the menu or the close box asks first; showing unloads the loading form.
    E.ÀLaFermeture = Form_Unload;
    InstalleVueEcran(true);
    InstalleAccessibilité(E);
}

bool Main()
{
    InstalleLettresCachées();
    // A first run asks for the game's folder before the window is there.
    InstalleChoixDossier(MontreParamétrageRépertoires);
    FenêtreAjustée().HauteurFenêtre = 0;
    FenêtreAjustée().LargeurFenêtre = 0;
    Réglages().RépertoireDonnées = DossierDonnées();
    Réglages().RépertoireApplication = DossierProgramme();
    LitParamètres(Jeu());
    if (!Réglages().ParamètresLus)
        return false;
    Réglages().SonActif = true;
    if (!ChargeCarteZones(Jeu().Carte))
        return false;
    AffichePatience();
    PointeurEcran(PointeurSablier);
    auto *forme = new EcranPrincipal();
    RelieEcranPrincipal(*forme);
    Form_Load();
    forme->show();
    if (Langues().Langue != 1)
        ChargeImagesPays();
    PointeurEcran(PointeurNormal);
    return true;
}
