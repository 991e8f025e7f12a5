#include "screen/VueJeu.h"

#include "engine/Vue.h"
#include "engine/specifiques.h"
#include "platform/Ecran.h"
#include "screen/EcranPrincipal.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "results/PartieEnCours.h"

#include <cmath>

namespace {
// Values assigned to a whole-number property round to the nearest, halves to even.
int Arrondi(double v) { return static_cast<int>(std::lrint(v)); }
} // namespace

// ---------------------------------------------------------------- the game's screen

// The screen's part of the start of a step: the bars back to 0, the question's zone
// laid out for the kind of step, and every marker placed.
void PrépareEtape()
{
    auto &E = Principal();
    E.BarreH->setValue(0);
    E.BarreV->setValue(0);
    E.DrapeauPays[0]->hide();

    const int t = E.QueFaire->Top() + E.QueFaire->Height() + 5;
    if ((Jeu().Etape == TEtape::Cantons && Jeu().Niveau != TNiveau::Moyen) || Jeu().Etape == TEtape::ChefsLieux) {
        E.ElémentRecherché->hide();
        E.ImageRecherchée->hide();
        E.TexteAChercher->show();
        E.TexteAChercher->setLeft(E.ElémentRecherché->Left());
        E.TexteAChercher->setTop(t);
        E.TexteAChercher->setTailleFonte(10);
    } else if (Jeu().Etape == TEtape::Cantons && Jeu().Niveau == TNiveau::Moyen) {
        E.ElémentRecherché->show();
        E.ElémentRecherché->setLeft(E.QueFaire->Left());
        E.ElémentRecherché->setTop(t);
        E.ImageRecherchée->show();
        E.TexteAChercher->show();
        E.TexteAChercher->setLeft(E.ElémentRecherché->Left());
        E.TexteAChercher->setTop(E.ElémentRecherché->Top() + E.ElémentRecherché->Height() + 5);
        E.TexteAChercher->setTailleFonte(10);
    } else if (Jeu().Etape == TEtape::Drapeaux) {
        E.ElémentRecherché->show();
        E.ElémentRecherché->setLeft(E.QueFaire->Left());
        E.ElémentRecherché->setTop(t);
        E.ImageRecherchée->show();
        E.ImageRecherchée->setPicture(E.drapeau[1]->Picture());
        E.TexteAChercher->hide();
    } else if (Jeu().Etape == TEtape::ParamétrageModifié || Jeu().Etape == TEtape::ParamétrageAffiché) {
        E.ElémentRecherché->hide();
        E.ImageRecherchée->hide();
        E.TexteAChercher->hide();
    }
    DébutEtapeSpécifique();

    for (int i = 1; i <= NombrePlaces; ++i) {
        const TCanton &c = Jeu().Cantons[i];
        E.rond[i]->setToolTip(Jeu().Etape == TEtape::Révision ? c.ChefLieu : QString());
        PlaceRond(static_cast<i16>(i));
        const Image *région = E.ImageRégion[c.Région];
        E.Pays[i]->move(région->Left() + c.PaysGauche, région->Top() + c.PaysHaut);
        E.inv[i]->move(région->Left() + c.PaysGauche, région->Top() + c.PaysHaut);
    }
    E.BoutonGruge->hide();
    E.BoutonPasse->hide();
}

// The question drawn, in the panel: a name, a town, a border or a flag.
void MontreQuestion()
{
    const i16 c = Jeu().CantonRecherché;
    auto &E = Principal();
    auto remplitCadre = [&E](const Image *source) {
        const int h = source->Height();
        const int w = source->Width();
        E.ImageRecherchée->setTop(Arrondi((E.HauteurVignette - h) / 2.0));
        E.ImageRecherchée->setHeight(h);
        E.ImageRecherchée->setLeft(Arrondi((E.LargeurVignette - w) / 2.0));
        E.ImageRecherchée->setWidth(w);
        E.ImageRecherchée->setPicture(source->Picture());
    };
    if (Jeu().RestantsEtape >= 1) {
        if (Jeu().Etape == TEtape::Cantons) {
            E.TexteAChercher->setText(Jeu().Cantons[c].Nom);
            if (Jeu().Niveau == TNiveau::Moyen && c != 0) {
                const Image *source = E.inv[c];
                if ((source->Width() > E.LargeurVignette - 2 || source->Height() > E.HauteurVignette - 2) && E.miniature[c])
                    source = E.miniature[c];
                remplitCadre(source);
            }
        } else if (Jeu().Etape == TEtape::ChefsLieux) {
            E.TexteAChercher->setText(Jeu().Cantons[c].ChefLieu);
        } else if (Jeu().Etape == TEtape::Drapeaux && c != 0) {
            remplitCadre(E.drapeau[c]);
        }
    }
    QuestionSpécifique();
}

void CliqueCarte(int Région)
{
    if (Jeu().Etape == TEtape::Aucune)
        return;
    // The click's place on the map, scroll included.
    auto &E = Principal();
    const QRect rectangle = RectangleEcranDe(E.Carte);
    const QPoint curseur = PositionCurseur();
    CliqueCarte(Jeu(), Région, curseur.x() - rectangle.left() + E.BarreH->Value(), curseur.y() - rectangle.top() + E.BarreV->Value());
}




void MontreCantons()
{
    auto &E = Principal();
    E.ImageRégion[0]->setEnabled(true);
    PointeurEcran(PointeurSablier);
    for (int i = 1; i <= NombrePlaces; ++i)
        MontreCanton(static_cast<i16>(i));
    PointeurEcran(PointeurNormal);
}

void CacheMarques()
{
    auto &E = Principal();
    for (int i = 1; i <= NombrePlaces; ++i) {
        E.inv[i]->hide();
        E.Pays[i]->hide();
        E.rond[i]->hide();
    }
}

void CacheZoneJeu()
{
    auto &E = Principal();
    E.QueFaire->hide();
    E.BoîteScore->hide();
    E.ElémentRecherché->hide();
    E.ImageRecherchée->hide();
    E.TexteAChercher->hide();
    E.BoîteRestants->hide();
    for (int i = 0; i <= 6; ++i)
        E.Digit[i]->hide();
    for (int i = 1; i <= 3; ++i)
        E.Reste[i]->hide();
    E.BoutonPasse->hide();
    E.BoutonGruge->hide();
}

void AfficheScore()
{
    auto &E = Principal();
    const QString chiffres = QStringLiteral("%1").arg(std::abs(static_cast<qint64>(Jeu().Score)) % 1000000, 6, 10, QLatin1Char('0'));
    for (int i = 1; i <= 6; ++i)
        E.Digit[i]->setText(chiffres.mid(6 - i, 1));
    E.Digit[0]->setText(Jeu().Score < 0 ? QStringLiteral("-") : QString());
}

void AfficheRestants(i16 n)
{
    auto &E = Principal();
    const QString chiffres = QStringLiteral("%1").arg(std::abs(static_cast<int>(n)) % 1000, 3, 10, QLatin1Char('0'));
    for (int i = 1; i <= 3; ++i)
        E.Reste[i]->setText(chiffres.mid(3 - i, 1));
}

void AmèneEnVue(i16 c)
{
    if (c < 1 || c > NombrePlaces)
        return;
    auto &E = Principal();
    auto amène = [](BarreDéfilement *barre, double p, double h, auto H, auto M, auto T) {
        if (p < -T())
            barre->setValue(p < H() / 2.0 ? 0 : Arrondi(p - H() / 2.0));
        if (p + h > H() - T())
            barre->setValue((M() - p) - h < H() / 2.0 ? Arrondi(M() - H()) : Arrondi((p + h) - H() / 2.0));
    };
    if (E.BarreV->Visible())
        amène(E.BarreV, Jeu().Cantons[c].PaysHaut, E.Pays[c]->Height(),
              [&] { return double(E.Carte->Height()); }, [&] { return double(E.ImageRégion[0]->Height()); },
              [&] { return double(E.ImageRégion[0]->Top()); });
    if (E.BarreH->Visible())
        amène(E.BarreH, Jeu().Cantons[c].PaysGauche, E.Pays[c]->Width(),
              [&] { return double(E.Carte->Width()); }, [&] { return double(E.ImageRégion[0]->Width()); },
              [&] { return double(E.ImageRégion[0]->Left()); });
}

std::optional<TMarques> MarquesEtapesSuivantes(TNiveau niveau, bool Trouvé, bool Inhibé)
{
    const bool S = Trouvé || Inhibé;
    const bool I = Inhibé;
    switch (niveau) {
    case TNiveau::Facile: return TMarques{!S, S, true};
    case TNiveau::Moyen: return TMarques{S, !S, true};
    case TNiveau::Difficile: return TMarques{I, !I, true};
    case TNiveau::Expert: return TMarques{I, false, false};
    default: return std::nullopt;
    }
}

std::optional<TMarques> MarquesCanton(TEtape étape, TNiveau niveau, bool Trouvé, bool Inhibé)
{
    const bool S = Trouvé || Inhibé;
    const bool I = Inhibé;
    switch (étape) {
    case TEtape::Aucune: return TMarques{false, false, false};
    case TEtape::Cantons:
        switch (niveau) {
        case TNiveau::Facile: return TMarques{S, !S, true};
        case TNiveau::Moyen: return TMarques{S, false, true};
        case TNiveau::Difficile: return TMarques{I, !I, true};
        case TNiveau::Expert: return TMarques{I, false, false};
        default: return std::nullopt;
        }
    case TEtape::ChefsLieux:
    case TEtape::Drapeaux: return MarquesEtapesSuivantes(niveau, Trouvé, Inhibé);
    case TEtape::ParamétrageModifié:
    case TEtape::ParamétrageAffiché:
    case TEtape::Révision: return TMarques{true, false, true};
    default: return std::nullopt;
    }
}

namespace {
void Montre(i16 i, const std::optional<TMarques> &m)
{
    if (!m)
        return;
    auto &E = Principal();
    E.Pays[i]->setVisible(m->Pays);
    E.inv[i]->setVisible(m->inv);
    E.rond[i]->setVisible(m->rond);
}
} // namespace

// Which of a canton's pictures show in the steps after "Cantons"; the plate step follows the same rule.
void MontreCantonEtapesSuivantes(i16 i)
{
    Montre(i, MarquesEtapesSuivantes(Jeu().Niveau, Jeu().Cantons[i].Trouvé, Jeu().Cantons[i].Inhibé));
}

void MontreCanton(i16 i)
{
    Montre(i, MarquesCanton(Jeu().Etape, Jeu().Niveau, Jeu().Cantons[i].Trouvé, Jeu().Cantons[i].Inhibé));
    MontreCantonSpécifique(i);
}

namespace {
void Centre(Image *r, const TCanton &c)
{
    auto &E = Principal();
    const Image *région = E.ImageRégion[c.Région];
    r->move(région->Left() + c.VilleGauche - (r->Width() - E.RondVille->Width()) / 2,
            région->Top() + c.VilleHaut - (r->Height() - E.RondVille->Height()) / 2);
}

void Pose(Image *r, const Image *modèle, const TCanton &c)
{
    r->setPicture(modèle->Picture());
    Centre(r, c);
}
} // namespace

// The dot of one canton during a game; the plate step follows the same rule.
void MarqueRondPartie(i16 i)
{
    auto &E = Principal();
    Image *r = E.rond[i];
    const TCanton &c = Jeu().Cantons[i];
    if (Jeu().AssistanceUtilisée && i == Jeu().CantonRecherché)
        Pose(r, E.Rondnoir, c);
    if (Jeu().Niveau == TNiveau::Facile) {
        if (c.Trouvé)
            Pose(r, E.RondPref, c);
        r->setToolTip(c.Trouvé && Jeu().ModeApprentissage ? c.ChefLieu : QString());
    } else if (Jeu().Niveau == TNiveau::Moyen) {
        if (c.Trouvé)
            Pose(r, E.RondPref, c);
    }
    if (c.Inhibé)
        Pose(r, E.RondPref, c);
}

void PlaceRond(i16 i, bool Cible, i16 x, i16 y)
{
    if (i < 1 || i > NombrePlaces)
        return;
    auto &E = Principal();
    Image *r = E.rond[i];
    const TCanton &c = Jeu().Cantons[i];
    const bool visible = r->Visible();
    r->hide();
    Pose(r, E.RondVille, c);
    if (Jeu().Etape >= TEtape::Cantons && Jeu().Etape <= TEtape::Drapeaux) {
        MarqueRondPartie(i);
    } else if (Jeu().Etape == TEtape::ParamétrageModifié || Jeu().Etape == TEtape::ParamétrageAffiché) {
        Pose(r, c.Trouvé ? E.Rondrouge : E.Rondjaune, c);
    } else if (Jeu().Etape == TEtape::Révision && Cible) {
        r->setPicture(E.Rondcible->Picture());
        r->move(x - E.Rondcible->Width() / 2 - 1 - E.BarreH->Value(),
                y - E.Rondcible->Height() / 2 - 1 - E.BarreV->Value());
    }
    PlaceRondSpécifique(i);
    r->setVisible(visible);
}

void BoutonGruge_Click()
{
    AmèneEnVue(Jeu().CantonRecherché);
    Jeu().AssistanceUtilisée = true;
    PlaceRond(Jeu().CantonRecherché);
}

// ---------------------------------------------------------------- this game's own screen

QString MessageTransition(TEtape étape, TEtape suivante)
{
    QString tête;
    switch (étape) {
    case TEtape::Cantons: tête = Message(TMessage::AprèsLesCantons); break;
    case TEtape::ChefsLieux: tête = Message(TMessage::AprèsLesChefsLieux); break;
    case TEtape::Drapeaux: tête = Message(TMessage::AprèsLesDrapeaux); break;
    case TEtape::Plaques: tête = Message(TMessage::AprèsLesPlaques); break;
    default: break;
    }
    QString queue;
    switch (suivante) {
    case TEtape::Cantons: queue = Message(TMessage::AuxCantons); break;
    case TEtape::ChefsLieux: queue = Message(TMessage::AuxChefsLieux); break;
    case TEtape::Drapeaux: queue = Message(TMessage::AuxDrapeaux); break;
    case TEtape::Plaques: queue = Message(TMessage::ÀLaRechercheDesPlaques); break;
    default: break;
    }
    return tête + queue;
}

void DébutEtapeSpécifique()
{
    if (Jeu().Etape != TEtape::Plaques)
        return;
    // The plate letters stand where a town's name would, under the panel's head.
    auto &E = Principal();
    E.ElémentRecherché->hide();
    E.ImageRecherchée->hide();
    E.TexteAChercher->show();
    E.TexteAChercher->setLeft(E.ElémentRecherché->Left());
    E.TexteAChercher->setTop(E.QueFaire->Top() + E.QueFaire->Height() + 5);
    E.TexteAChercher->setTailleFonte(10);
}

void QuestionSpécifique()
{
    if (Jeu().Etape == TEtape::Plaques)
        Principal().TexteAChercher->setText(Jeu().Plaques[Jeu().CantonRecherché]);
}

void ZoneQuestionSpécifique()
{
    if (Jeu().Etape != TEtape::Plaques)
        return;
    auto &E = Principal();
    E.QueFaire->show();
    E.BoîteRestants->show();
    for (int i = 1; i <= 3; ++i)
        E.Reste[i]->show();
    E.BoîteScore->setVisible(!Jeu().ModeApprentissage);
    for (int i = 0; i <= 6; ++i) {
        E.Digit[i]->setVisible(!Jeu().ModeApprentissage);
        if (!Jeu().ModeApprentissage)
            E.Digit[i]->raise();
    }
    E.TexteAChercher->show();
    E.ImageRecherchée->hide();
    E.ElémentRecherché->hide();
}

void PlaceTexteSpécifique()
{
    if (Jeu().Etape != TEtape::Plaques)
        return;
    auto &E = Principal();
    E.TexteAChercher->setTop(E.QueFaire->Top() + E.QueFaire->Height() + 5);
}

void PlaceRondSpécifique(i16 i)
{
    if (Jeu().Etape == TEtape::Plaques)
        MarqueRondPartie(i);
}

void MontreCantonSpécifique(i16 i)
{
    if (Jeu().Etape == TEtape::Plaques)
        MontreCantonEtapesSuivantes(i);
}

void LibelléSpécifique() { Principal().LBLParam[7]->setText(Message(TMessage::Plaques)); }

