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

TCarteAjustée AjustementCarte(int largeur, int hauteur, int W, int H, int épaisseurH, int épaisseurV)
{
    TCarteAjustée a;
    a.Largeur = largeur;
    a.Hauteur = hauteur;
    // The width: the whole map with a margin of 4, or a horizontal bar under the window.
    if (a.Largeur >= W) {
        a.Largeur = W + 4;
    } else {
        a.BarreH = true;
        a.Hauteur = a.Hauteur - épaisseurH;
    }
    // The height: the whole map, or a vertical bar beside the window, which narrows it.
    if (a.Hauteur >= H) {
        a.Hauteur = H;
    } else {
        a.BarreV = true;
        a.Largeur = a.Largeur - épaisseurV;
        a.MaxV = H - a.Hauteur + 4;
        a.GrandPasV = H < 1.5 * a.Hauteur ? H - a.Hauteur : int(0.9 * a.Hauteur);
    }
    if (a.BarreH) {
        a.MaxH = W - a.Largeur + 4;
        a.GrandPasH = W < 1.5 * a.Largeur ? W - a.Largeur : int(0.9 * a.Largeur);
        a.PetitPasH = a.GrandPasH / 5;
    }
    return a;
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

    const TCarteAjustée a = AjustementCarte(carte->Width(), carte->Height(), E.ImageRégion[0]->Width(), E.ImageRégion[0]->Height(),
                                            E.BarreH->Height(), E.BarreV->Width());
    carte->setWidth(a.Largeur);
    carte->setHeight(a.Hauteur);
    if (a.BarreH) {
        E.BarreH->setWidth(a.Largeur);
        E.BarreH->setTop(carte->Top() + a.Hauteur);
        E.BarreH->setLeft(carte->Left());
        E.BarreH->show();
    } else {
        E.BarreH->hide();
    }
    if (a.BarreV) {
        E.BarreV->setTop(carte->Top());
        E.BarreV->setLeft(carte->Left() + a.Largeur);
        E.BarreV->setHeight(a.Hauteur);
        E.BarreV->setMax(a.MaxV);
        E.BarreV->setMin(0);
        E.BarreV->setLargeChange(a.GrandPasV);
        E.BarreV->setSmallChange(a.GrandPasV);
    }
    E.BarreV->setVisible(a.BarreV);
    if (a.BarreH) {
        E.BarreH->setMax(a.MaxH);
        E.BarreH->setMin(0);
        E.BarreH->setLargeChange(a.GrandPasH);
        E.BarreH->setSmallChange(a.PetitPasH);
    }

    if (FenêtreAjustée().HauteurFenêtre != 0)
        E.setHeight(FenêtreAjustée().HauteurFenêtre);
    else
        E.setHeight(TwipsPerPixelY * (carte->Height() + carte->Top() + FenêtreAjustée().RectangleEcran.Top) - E.Top());
    if (a.BarreH)
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
