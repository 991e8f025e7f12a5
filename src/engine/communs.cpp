#include "engine/communs.h"

#include "engine/specifiques.h"
#include "platform/Boites.h"
#include "platform/Ecran.h"
#include "platform/Horloge.h"
#include "results/Resultats.h"
#include "screen/EcranPrincipal.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Patience.h"
#include "services/Pompe.h"
#include "services/Sons.h"
#include "screen/Parametrage.h"
#include "services/TableChaines.h"

#include <QFile>
#include <cmath>
#include <cstring>

i16 HauteurVignette = 188;
i16 LargeurVignette = 200;
QString FinDeLigne = QStringLiteral("\r\n");

TPointSegment PointsSegments[NombreCartes][MaxSegments];
i16 DébutsLignes[NombreCartes][MaxLignes];
QString CheminFichierZones;

i16 PoidsEtapes[5] = {0, 1, 2, 4, 1};
i32 PointsParCanton = 0;

namespace {

// Values assigned to a whole-number property round to the nearest, halves to even.
int Arrondi(double v) { return static_cast<int>(std::lrint(v)); }

bool EtapeDeJeu() { return Jeu().Etape >= TEtape::Cantons && Jeu().Etape <= TEtape::Plaques; }

} // namespace

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

void ChargeCantons()
{
    const int décalage = 200 * (Langue - 1);
    for (int i = 1; i <= NombrePlaces; ++i) {
        TCanton &c = Jeu().Cantons[i];
        const QString ville = ChaîneTable(4000 + i);
        c.ChefLieu = LitChamp(ChaîneTable(4000 + décalage + i), 1);
        c.VilleGauche = static_cast<i16>(ValeurEnTête(LitChamp(ville, 2)));
        c.VilleHaut = static_cast<i16>(ValeurEnTête(LitChamp(ville, 3)));
        const QString canton = ChaîneTable(2000 + i);
        c.Nom = LitChamp(ChaîneTable(2000 + décalage + i), 1);
        c.Région = static_cast<u8>(ValeurEnTête(LitChamp(canton, 2)));
        c.PaysGauche = static_cast<i16>(ValeurEnTête(LitChamp(canton, 3)));
        c.PaysHaut = static_cast<i16>(ValeurEnTête(LitChamp(canton, 4)));
    }
    ChargePlaques();
}

// ---------------------------------------------------------------- the raster

bool ChargeCarteZones()
{
    CheminFichierZones = ComposeChemin(RépertoireApplication, QStringLiteral("KELMOR.pts"));
    if (!QFile::exists(CheminFichierZones)) {
        Boîte(Messages[132], StyleInformation, Messages[46]);
        return false;
    }
    auto refuse = [] {
        Boîte(Messages[27], StyleCritique, CheminFichierZones);
        return false;
    };

    QFile fichier(CheminFichierZones);
    // Any valid file fits in a header, the row marks and the runs of the tables; a
    // cut last record is left unread.
    constexpr qint64 RecordsMax = 1 + MaxLignes + MaxSegments;
    if (!fichier.open(QIODevice::ReadOnly) || fichier.size() / 4 > RecordsMax)
        return refuse();
    const QByteArray octets = fichier.readAll();
    fichier.close();
    if (octets.size() != fichier.size())
        return refuse();

    // Filled aside, so that a refused file leaves the tables as they were.
    static TPointSegment segments[NombreCartes][MaxSegments];
    static i16 débuts[NombreCartes][MaxLignes];
    std::memset(segments, 0, sizeof segments);
    std::memset(débuts, 0, sizeof débuts);

    int carte = -1; // none yet
    int ligne = -1;
    int compte = 0;
    const auto *p = reinterpret_cast<const unsigned char *>(octets.constData());
    const qsizetype nombre = octets.size() / 4;
    for (qsizetype n = 0; n < nombre; ++n, p += 4) {
        TPointSegment r;
        r.NuméroCarte = p[0];
        r.X = static_cast<i16>(static_cast<std::uint16_t>(p[1] | (p[2] << 8)));
        r.Zone = p[3];

        if (r.NuméroCarte != carte && r.NuméroCarte != 255) {
            if (r.NuméroCarte >= NombreCartes)
                return refuse();
            if (carte >= 0) {
                ligne = ligne + 1;
                if (ligne >= MaxLignes)
                    return refuse();
                débuts[carte][ligne] = static_cast<i16>(compte);
            }
            carte = r.NuméroCarte;
            ligne = -1;
            compte = 0;
        }
        if (carte < 0)
            return refuse(); // 255 can't open the file: it names the map of the records before
        if (n == 0) {
            if (r.Zone != 4 || r.X != 0)
                return refuse();
        } else if (r.Zone == 0 && r.X == 0) {
            ligne = ligne + 1;
            if (ligne >= MaxLignes)
                return refuse();
            débuts[carte][ligne] = static_cast<i16>(compte);
        } else {
            if (compte >= MaxSegments)
                return refuse();
            segments[carte][compte] = r;
            compte = compte + 1;
        }
    }
    // A file that stops before the last row is closed, or leaves a canton without a
    // pixel, would start a game in which some click never finds its canton.
    if (carte != 0 || ligne < HauteurCarte)
        return refuse();
    bool couvert[NombrePlaces + 1] = {};
    for (int y = 0; y < HauteurCarte; ++y)
        for (int s = débuts[0][y]; s < débuts[0][y + 1]; ++s) {
            const int fin = s + 1 < débuts[0][y + 1] ? segments[0][s + 1].X : LargeurCarte - 1;
            const int zone = segments[0][s].Zone;
            if (zone <= NombrePlaces && std::max(segments[0][s].X + 1, 0) <= std::min(fin, LargeurCarte - 1))
                couvert[zone] = true;
        }
    for (int c = 1; c <= NombrePlaces; ++c)
        if (!couvert[c])
            return refuse();
    std::memcpy(PointsSegments, segments, sizeof segments);
    std::memcpy(DébutsLignes, débuts, sizeof débuts);
    return true;
}

i16 ZoneEn(int Région, int x, int y)
{
    if (Région < 0 || Région >= NombreCartes || y < 0 || y + 1 >= MaxLignes)
        return 0;
    const int premier = DébutsLignes[Région][y];
    const int dernier = std::min<int>(DébutsLignes[Région][y + 1] - 1, MaxSegments - 1);
    i16 c = 0;
    for (int s = std::max(premier, 0); s <= dernier; ++s) {
        const TPointSegment &r = PointsSegments[Région][s];
        if (r.X >= x)
            break;
        c = r.Zone;
    }
    return c;
}

void CliqueCarte(int Région)
{
    if (Jeu().Etape == TEtape::Aucune)
        return;
    auto &E = Principal();
    const QRect rectangle = RectangleEcranDe(E.Carte);
    const QPoint curseur = PositionCurseur();
    const int x = curseur.x() - rectangle.left() + E.BarreH->Value();
    const int y = curseur.y() - rectangle.top() + E.BarreV->Value();
    i16 c = ZoneEn(Région, x, y);
    CorrectionZone(c);
    // The level's filter: at Facile and Moyen a canton already found counts for nothing.
    if (c != 0 && EtapeDeJeu() && c <= NombrePlaces) {
        if ((Jeu().Niveau == TNiveau::Facile && !Jeu().ModeApprentissage) || Jeu().Niveau == TNiveau::Moyen)
            if (Jeu().Cantons[c].Trouvé)
                c = 0;
    }
    if (c != 0 && c <= NombrePlaces)
        TraiteClic(c, static_cast<i16>(x), static_cast<i16>(y));
}

// ---------------------------------------------------------------- the turn cycle

bool Main()
{
    HauteurFenêtre = 0;
    LargeurFenêtre = 0;
    FinDeLigne = QStringLiteral("\r\n");
    RépertoireApplication = DossierProgramme();
    LitParamètres();
    if (!ParamètresLus)
        return false;
    SonActif = True;
    if (!ChargeCarteZones())
        return false;
    AffichePatience();
    PointeurEcran(PointeurSablier);
    auto *forme = new EcranPrincipal();
    Form_Load();
    forme->show();
    if (Langue != 1)
        ChargeImagesPays();
    PointeurEcran(PointeurNormal);
    return true;
}

void LanceNouvellePartie()
{
    if (!ConfirmeArrêt())
        return;
    Principal().HelpContextID = 10;
    MontreNouvellePartie();
    Jeu().RangEtape = 1;
    DébutEtape();
    for (int i = 1; i <= NombrePlaces; ++i)
        for (int k = 0; k <= 4; ++k) {
            Jeu().Cantons[i].Pertes[k] = 0;
            Jeu().Cantons[i].Réussi[k] = False;
        }
    Jeu().PartieVierge = True;
    Jeu().ModeRévision = False;
    Jeu().ConseilFicheDonné = False;
    AjusteCarte();
    if (Jeu().Etape == TEtape::Aucune) {
        CacheZoneJeu();
        CacheMarques();
        return;
    }
    MontreCantons();
    Jeu().Score = 999999;
    AffichePanneau();
    AfficheScore();
    AfficheRestants(Jeu().RestantsEtape);
    QuestionSuivante();
}

void DébutEtape()
{
    auto &E = Principal();
    E.BarreH->setValue(0);
    E.BarreV->setValue(0);
    E.DrapeauPays[0]->hide();

    Jeu().RestantsEtape = 0;
    Jeu().NombreCantons = 0;

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

    Jeu().AssistanceUtilisée = False;

    for (int i = 1; i <= NombrePlaces; ++i) {
        TCanton &c = Jeu().Cantons[i];
        E.rond[i]->setToolTip(Jeu().Etape == TEtape::Révision ? c.ChefLieu : QString());
        if (c.Inhibé) {
            c.Trouvé = True;
        } else {
            c.Trouvé = False;
            Jeu().RestantsEtape = Jeu().RestantsEtape + 1;
            Jeu().NombreCantons = Jeu().NombreCantons + 1;
        }
        PlaceRond(static_cast<i16>(i));
        const Image *région = E.ImageRégion[c.Région];
        E.Pays[i]->move(région->Left() + c.PaysGauche, région->Top() + c.PaysHaut);
        E.inv[i]->move(région->Left() + c.PaysGauche, région->Top() + c.PaysHaut);
        if (Jeu().Etape < TEtape::ParamétrageModifié)
            c.Réussi[Numéro(Jeu().Etape)] = False;
    }

    Jeu().ErreursQuestion = 0;
    Jeu().PartieEnregistrée = False;
    E.BoutonGruge->hide();
    E.BoutonPasse->hide();
    Jeu().CantonRecherché = 0;
    Jeu().ScoresFinPartie = False;
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

void QuestionSuivante()
{
    if (Jeu().RestantsEtape < 1) {
        QuestionSpécifique();
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

    auto &E = Principal();
    auto remplitCadre = [&E](const Image *source) {
        const int h = source->Height();
        const int w = source->Width();
        E.ImageRecherchée->setTop(Arrondi((HauteurVignette - h) / 2.0));
        E.ImageRecherchée->setHeight(h);
        E.ImageRecherchée->setLeft(Arrondi((LargeurVignette - w) / 2.0));
        E.ImageRecherchée->setWidth(w);
        E.ImageRecherchée->setPicture(source->Picture());
    };
    if (Jeu().Etape == TEtape::Cantons) {
        E.TexteAChercher->setText(Jeu().Cantons[c].Nom);
        if (Jeu().Niveau == TNiveau::Moyen && c != 0) {
            const Image *source = E.inv[c];
            if ((source->Width() > LargeurVignette - 2 || source->Height() > HauteurVignette - 2) && E.miniature[c])
                source = E.miniature[c];
            remplitCadre(source);
        }
    } else if (Jeu().Etape == TEtape::ChefsLieux) {
        E.TexteAChercher->setText(Jeu().Cantons[c].ChefLieu);
    } else if (Jeu().Etape == TEtape::Drapeaux && c != 0) {
        remplitCadre(E.drapeau[c]);
    }
    QuestionSpécifique();
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
    const QString annonce = MessageTransition(Jeu().Etape, suivante);

    if (suivante != TEtape::Aucune) {
        JoueSon(SonEtape);
        Boîte(annonce, StyleInformation, Messages[20]);
        Jeu().Etape = suivante;
        DébutEtape();
        MontreCantons();
        AfficheScore();
        AfficheRestants(Jeu().RestantsEtape);
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
    Jeu().PartieVierge = True;
    CacheMarques();
    CacheZoneJeu();
}

// A game that is over, won or lost: its result dealt with, the map and the panel cleared.
void TerminePartie()
{
    Jeu().Etape = TEtape::Aucune;
    EnregistreScore();
    DébutEtape();
    Jeu().PartieVierge = True;
    CacheMarques();
    CacheZoneJeu();
    Jeu().PartieEnregistrée = True;
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

// ---------------------------------------------------------------- judging

void rond_Click(i16 Index) { TraiteClic(Index, 0, 0); }

void TraiteClic(i16 c, i16 x, i16 y)
{
    c = NuméroPlace(c);
    if (c < 1 || c > NombrePlaces)
        return;
    if (EtapeDeJeu())
        Jeu().PartieVierge = False;
    if (Jeu().Etape == TEtape::ParamétrageModifié) {
        Jeu().Cantons[c].Trouvé = Booléen(!Jeu().Cantons[c].Trouvé);
        PlaceRond(c);
        return;
    }
    if (Jeu().Etape == TEtape::ParamétrageAffiché)
        return;
    if (Jeu().Etape == TEtape::Révision) {
        JoueSon(SonInfo);
        Jeu().CantonFiche = c;
        if (x == 0 && y == 0) {
            const auto &E = Principal();
            x = static_cast<i16>(Jeu().Cantons[c].VilleGauche + E.RondVille->Width() / 2);
            y = static_cast<i16>(Jeu().Cantons[c].VilleHaut + E.RondVille->Height() / 2);
        }
        PlaceRond(c, true, x, y);
        MontrePompe();
        PlaceRond(c);
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
        JoueSon(SonInfo);
        Jeu().CantonFiche = c;
        MontrePompe();
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
    auto &E = Principal();
    const i16 c = Jeu().CantonRecherché;
    if (Jeu().Niveau == TNiveau::Facile) {
        E.BoutonPasse->hide();
        if (!Jeu().AssistanceUtilisée)
            Jeu().Cantons[c].Trouvé = True;
    } else {
        Jeu().Cantons[c].Trouvé = True;
    }
    MontreCanton(c);
    if (!Jeu().AssistanceUtilisée) {
        PlaceRond(c);
        Jeu().RestantsEtape = Jeu().RestantsEtape - 1;
        if (Jeu().Etape >= TEtape::Cantons && Jeu().Etape <= TEtape::Plaques)
            Jeu().Cantons[c].Réussi[Numéro(Jeu().Etape)] = True;
        AfficheRestants(Jeu().RestantsEtape);
        if (Jeu().RestantsEtape == 0) {
            FinEtape();
            return;
        }
        JoueSon(SonBravo);
        if (Jeu().RestantsEtape == Jeu().NombreCantons - 1 && Jeu().ModeApprentissage && !Jeu().ConseilFicheDonné) {
            Boîte(Messages[137], StyleInformation, Messages[17]);
            Jeu().ConseilFicheDonné = True;
        }
        QuestionSuivante();
        Jeu().ErreursQuestion = 0;
        E.BoutonGruge->hide();
        return;
    }
    // The answer was given away: the canton comes back later, and the question is paid in full.
    Jeu().AssistanceUtilisée = False;
    PlaceRond(c);
    if (SoldeQuestion() > 0) {
        JoueSon(SonBravo);
        QuestionSuivante();
        Jeu().ErreursQuestion = 0;
        E.BoutonGruge->hide();
    } else {
        PartiePerdue();
    }
}

void MauvaiseRéponse()
{
    auto &E = Principal();
    Jeu().Score = Pénalité(Jeu().Score, Jeu().ErreursQuestion);
    if (Jeu().Score <= 0) {
        PartiePerdue();
        return;
    }
    AfficheScore();
    Jeu().ErreursQuestion = Jeu().ErreursQuestion + 1;
    if (Jeu().ErreursQuestion < 9) {
        JoueSon(SonErreur);
        if (Jeu().ErreursQuestion == 1 && Jeu().Niveau == TNiveau::Facile && !Jeu().ModeApprentissage)
            E.BoutonPasse->show();
        if (Jeu().ErreursQuestion == 3 && Jeu().ModeApprentissage)
            E.BoutonGruge->show();
        return;
    }
    JoueSon(SonPerdu);
    if (Jeu().AssistanceUtilisée) {
        Boîte(Messages[36], StyleExclamation, Messages[37]);
        Jeu().AssistanceUtilisée = False;
        PlaceRond(Jeu().CantonRecherché);
    } else {
        Boîte(Messages[38], StyleExclamation, Messages[37]);
    }
    Jeu().ErreursQuestion = 0;
    QuestionSuivante();
    E.BoutonGruge->hide();
    E.BoutonPasse->hide();
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
    AfficheScore();
    return Jeu().Score;
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

void ScoreAbandon()
{
    PoidsSpécifiques();
    Jeu().Score = -999999;
    for (int i = 1; i <= 4; ++i) {
        const TEtape étape = Jeu().OrdreEtapes[i];
        if (étape == TEtape::Aucune)
            break;
        if (étape == Jeu().Etape) {
            Jeu().Score += (Jeu().NombreCantons - Jeu().RestantsEtape) * PoidsEtapes[Numéro(Jeu().Etape)] * PointsParCanton;
            break;
        }
        if (EtapeDeJeu(étape))
            Jeu().Score += PoidsEtapes[Numéro(étape)] * Jeu().NombreCantons * PointsParCanton;
    }
}

void PartiePerdue()
{
    ScoreAbandon();
    AfficheScore();
    JoueSon(SonPerdu);
    Boîte(Messages[34], StyleCritique, Messages[35]);
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
    AfficheScore();
    JoueSon(SonPerdu);
    Jeu().ErreursQuestion = 0;
    QuestionSuivante();
    Principal().BoutonPasse->hide();
}

void BoutonGruge_Click()
{
    AmèneEnVue(Jeu().CantonRecherché);
    Jeu().AssistanceUtilisée = True;
    PlaceRond(Jeu().CantonRecherché);
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

// ---------------------------------------------------------------- markers

// Which of a canton's pictures show in the steps after "Cantons"; the plate step follows the same rule.
void MontreCantonEtapesSuivantes(i16 i)
{
    auto &E = Principal();
    const bool S = Jeu().Cantons[i].Trouvé || Jeu().Cantons[i].Inhibé;
    const bool I = Jeu().Cantons[i].Inhibé;
    switch (Jeu().Niveau) {
    case TNiveau::Facile: E.Pays[i]->setVisible(!S); E.inv[i]->setVisible(S); E.rond[i]->show(); break;
    case TNiveau::Moyen: E.Pays[i]->setVisible(S); E.inv[i]->setVisible(!S); E.rond[i]->show(); break;
    case TNiveau::Difficile: E.Pays[i]->setVisible(I); E.inv[i]->setVisible(!I); E.rond[i]->show(); break;
    case TNiveau::Expert: E.Pays[i]->setVisible(I); E.inv[i]->hide(); E.rond[i]->hide(); break;
    default: break;
    }
}

void MontreCanton(i16 i)
{
    auto &E = Principal();
    const bool S = Jeu().Cantons[i].Trouvé || Jeu().Cantons[i].Inhibé;
    const bool I = Jeu().Cantons[i].Inhibé;
    switch (Jeu().Etape) {
    case TEtape::Aucune:
        E.Pays[i]->hide();
        E.inv[i]->hide();
        E.rond[i]->hide();
        break;
    case TEtape::Cantons:
        switch (Jeu().Niveau) {
        case TNiveau::Facile: E.Pays[i]->setVisible(S); E.inv[i]->setVisible(!S); E.rond[i]->show(); break;
        case TNiveau::Moyen: E.Pays[i]->setVisible(S); E.inv[i]->hide(); E.rond[i]->show(); break;
        case TNiveau::Difficile: E.Pays[i]->setVisible(I); E.inv[i]->setVisible(!I); E.rond[i]->show(); break;
        case TNiveau::Expert: E.Pays[i]->setVisible(I); E.inv[i]->hide(); E.rond[i]->hide(); break;
        default: break;
        }
        break;
    case TEtape::ChefsLieux:
    case TEtape::Drapeaux:
        MontreCantonEtapesSuivantes(i);
        break;
    case TEtape::ParamétrageModifié:
    case TEtape::ParamétrageAffiché:
    case TEtape::Révision:
        E.Pays[i]->show();
        E.inv[i]->hide();
        E.rond[i]->show();
        break;
    default:
        break;
    }
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
