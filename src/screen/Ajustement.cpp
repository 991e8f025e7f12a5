// The main window fitted to the screen, and the map scrolled.
#include "screen/Ajustement.h"

#include "engine/communs.h"
#include "engine/specifiques.h"
#include "platform/Ecran.h"
#include "screen/EcranPrincipal.h"
#include "screen/VueJeu.h"
#include "results/PartieEnCours.h"

#include <QLayout>

TFenêtreAjustée &FenêtreAjustée()
{
    static TFenêtreAjustée fenêtre;
    return fenêtre;
}

// ---------------------------------------------------------------- screen fit

void MesureCarte()
{
    const QRect r = RectangleEcranDe(Principal().Carte);
    FenêtreAjustée().RectangleEcran = {r.left(), r.top(), r.left() + r.width(), r.top() + r.height()};
}

void AjusteCarte()
{
    auto &E = Principal();
    Contrôle<QWidget> *carte = E.Carte;
    carte->setTop(5);
    if (Jeu().ModeRévision)
        carte->setWidth(EcranMesuré().LargeurEcran - 30);
    else
        carte->setWidth(EcranMesuré().LargeurEcran - E.QueFaire->Width() - 30);
    // Refresh: the menu bar and the client area take their places before Carte is measured.
    E.layout()->activate();
    E.update();
    const QRect travail = MesureEcran().zoneTravail;
    FenêtreAjustée().RectangleEcran = {travail.left(), travail.top(), travail.left() + travail.width(), travail.top() + travail.height()};
    EcranMesuré().BasZoneTravail = FenêtreAjustée().RectangleEcran.Bottom;
    MesureCarte();
    carte->setHeight(EcranMesuré().BasZoneTravail - FenêtreAjustée().RectangleEcran.Top);
    carte->setLeft(0);

    const int W = E.ImageRégion[0]->Width();
    const int H = E.ImageRégion[0]->Height();
    bool barreH = false;
    if (carte->Width() >= W) {
        carte->setWidth(W + 4);
        E.BarreH->hide();
    } else {
        barreH = true;
        carte->setHeight(carte->Height() - E.BarreH->Height());
        E.BarreH->setWidth(carte->Width());
        E.BarreH->setTop(carte->Height() > H ? carte->Top() + H : carte->Top() + carte->Height());
        E.BarreH->setLeft(carte->Left());
        E.BarreH->show();
    }
    bool barreV = false;
    if (carte->Height() >= H) {
        carte->setHeight(H);
    } else {
        barreV = true;
        carte->setWidth(carte->Width() - E.BarreV->Width());
        if (barreH)
            E.BarreH->setWidth(carte->Width());
        E.BarreV->setTop(carte->Top());
        E.BarreV->setLeft(carte->Left() + carte->Width());
        E.BarreV->setHeight(carte->Height());
        E.BarreV->setMax(H - carte->Height() + 4);
        E.BarreV->setMin(0);
        E.BarreV->setLargeChange(H < 1.5 * carte->Height() ? H - carte->Height() : int(0.9 * carte->Height()));
        E.BarreV->setSmallChange(E.BarreV->LargeChange());
    }
    E.BarreV->setVisible(barreV);
    if (barreH) {
        E.BarreH->setMax(W - carte->Width() + 4);
        E.BarreH->setMin(0);
        E.BarreH->setLargeChange(W < 1.5 * carte->Width() ? W - carte->Width() : int(0.9 * carte->Width()));
        E.BarreH->setSmallChange(E.BarreH->LargeChange() / 5);
    }

    if (FenêtreAjustée().HauteurFenêtre != 0)
        E.setHeight(FenêtreAjustée().HauteurFenêtre);
    else
        E.setHeight(TwipsPerPixelY * (carte->Height() + carte->Top() + FenêtreAjustée().RectangleEcran.Top) - E.Top());
    if (barreH)
        E.setHeight(E.Height() + TwipsPerPixelY * E.BarreH->Height());
    if (FenêtreAjustée().LargeurFenêtre != 0)
        E.setWidth(FenêtreAjustée().LargeurFenêtre);
    else
        E.setWidth(TwipsPerPixelX * (carte->Left() + carte->Width() + E.BarreV->Width() + 30 + E.QueFaire->Width()));
}

void AjusteEcran()
{
    auto &E = Principal();
    Jeu().ModeRévision = false;
    AjusteCarte();
    const int Droite = E.Carte->Left() + E.Carte->Width() + E.BarreV->Width();

    E.QueFaire->setTop(E.Carte->Top());
    E.QueFaire->setLeft(Droite + 10);
    const int ancienne = E.BoîteScore->Left();
    E.BoîteScore->setLeft(Droite + 10);
    const int D = E.BoîteScore->Left() - ancienne;

    E.ElémentRecherché->setTop(E.QueFaire->Top() + E.QueFaire->Height() + 5);
    E.ElémentRecherché->setLeft(E.QueFaire->Left());
    E.TexteAChercher->setLeft(E.ElémentRecherché->Left());

    const int S = E.QueFaire->Top() + E.QueFaire->Height() + 5 + E.ElémentRecherché->Height() + 5 +
                  E.TexteAChercher->Height() + 5 + E.BoîteScore->Height() + 5 + E.BoîteRestants->Height();
    if (E.Carte->Height() > S)
        E.BoîteScore->setTop(E.Carte->Top() + E.Carte->Height() - E.BoîteScore->Height());
    else
        E.BoîteScore->setTop(E.QueFaire->Top() + E.QueFaire->Height() + 5 + E.ElémentRecherché->Height() + 5 +
                             E.TexteAChercher->Height() + 5 + 5 + E.BoîteRestants->Height());

    E.BoîteScore->raise();
    for (int i = 0; i <= 6; ++i) {
        E.Digit[i]->setTop(E.BoîteScore->Top() + 15);
        E.Digit[i]->setLeft(E.Digit[i]->Left() + D);
        E.Digit[i]->raise();
    }
    E.BoîteRestants->setTop(E.BoîteScore->Top() - E.BoîteRestants->Height() - 5);
    E.BoîteRestants->setLeft(E.BoîteScore->Left());
    E.BoutonGruge->setTop(E.BoîteRestants->Top() + E.BoîteRestants->Height() - E.BoutonGruge->Height());
    E.BoutonGruge->setLeft(E.BoîteRestants->Left() + E.BoîteRestants->Width() + 5);
    E.BoutonPasse->setLeft(E.BoutonGruge->Left());
    E.BoutonPasse->setTop(E.BoutonGruge->Top());
    E.BoutonPasse->raise();
    E.BoîteRestants->raise();
    for (int i = 1; i <= 3; ++i) {
        E.Reste[i]->setTop(E.BoîteRestants->Top() + 15);
        E.Reste[i]->setLeft(E.Reste[i]->Left() + D);
        E.Reste[i]->raise();
    }

    // The parameterisation panel moves as one block.
    const int P = E.Carte->Top() - E.LBLParam[1]->Top();
    const int Q = Droite + 5 - E.LBLParam[1]->Left();
    auto déplace = [P, Q](QWidget *w) { w->move(w->x() + Q, w->y() + P); };
    for (int i = 1; i <= 13; ++i)
        déplace(E.LBLParam[i]);
    for (int i = 1; i <= 18; ++i)
        déplace(E.Bouton[i]);
    for (int i = 1; i <= 2; ++i)
        déplace(E.BTN[i]);

    if (E.BarreH->Value() != 0)
        E.BarreH->setValue(0);
    if (E.BarreV->Value() != 0)
        E.BarreV->setValue(0);

    const int Bs = E.BoîteScore->Top() + E.BoîteScore->Height() + 5;
    const int Bb = E.BTN[1]->y() + E.BTN[1]->height() + 5;
    const int Bc = E.Carte->Top() + E.Carte->Height();
    if (Bs > Bb) {
        if (Bs > Bc) {
            E.setHeight(E.Height() + TwipsPerPixelY * (Bs - Bc));
            FenêtreAjustée().HauteurFenêtre = static_cast<short>(E.Height());
        }
    } else if (Bb > Bc) {
        E.setHeight(E.Height() + TwipsPerPixelY * (Bb + 10 - Bc));
        FenêtreAjustée().HauteurFenêtre = static_cast<short>(E.Height());
    }
    const int largeur = TwipsPerPixelX * (E.LBLParam[2]->Left() + E.LBLParam[2]->Width() + 15);
    if (largeur > E.Width()) {
        E.setWidth(largeur);
        FenêtreAjustée().LargeurFenêtre = static_cast<short>(E.Width());
    }
    PlaceTexteSpécifique();
}

// ---------------------------------------------------------------- scrolling

namespace {
template <class Place>
void Défile(Place place)
{
    auto &E = Principal();
    if (!E.rond[NombrePlaces])
        return; // the markers aren't made yet
    CacheMarques();
    place(E);
    for (int i = 1; i <= NombrePlaces; ++i)
        PlaceRond(static_cast<i16>(i));
    MontreCantons();
}
} // namespace

void BarreH_Change()
{
    Défile([](EcranPrincipal &E) {
        E.ImageRégion[0]->setLeft(-E.BarreH->Value());
        for (int i = 1; i <= NombrePlaces; ++i) {
            const int gauche = E.ImageRégion[Jeu().Cantons[i].Région]->Left() + Jeu().Cantons[i].PaysGauche;
            E.Pays[i]->setLeft(gauche);
            E.inv[i]->setLeft(gauche);
        }
    });
}

void BarreV_Change()
{
    Défile([](EcranPrincipal &E) {
        E.ImageRégion[0]->setTop(-E.BarreV->Value());
        for (int i = 1; i <= NombrePlaces; ++i) {
            const int haut = E.ImageRégion[Jeu().Cantons[i].Région]->Top() + Jeu().Cantons[i].PaysHaut;
            E.Pays[i]->setTop(haut);
            E.inv[i]->setTop(haut);
        }
    });
}
