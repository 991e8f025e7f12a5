#include "screen/EcranPrincipal.h"

#include "engine/communs.h"
#include "engine/Vue.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "platform/Images.h"
#include "screen/Aide.h"
#include "screen/Patience.h"
#include "results/PartieEnCours.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>



namespace {
EcranPrincipal *forme = nullptr;

QString Numéro(int i) { return QStringLiteral("%1").arg(i, 2, 10, QLatin1Char('0')); }

} // namespace

// Sizes of the canton pictures at 100 %, for a picture that is missing.
QSize TaillePays(int i)
{
    static constexpr QSize TaillesPays[27] = {
    {}, {210, 46}, {195, 42}, {93, 90}, {120, 44}, {35, 40}, {200, 211}, {82, 106}, {55, 55}, {48, 72},
    {232, 166}, {88, 65}, {88, 98}, {86, 60}, {60, 47}, {61, 44}, {111, 124}, {75, 61}, {80, 64},
    {90, 80}, {99, 148}, {115, 59}, {73, 89}, {215, 144}, {153, 150}, {40, 33}, {80, 104},
    };
    return (i >= 1 && i <= 26) ? TaillesPays[i] : QSize();
}

namespace {

Image *NouvelleImage(QWidget *parent, const QString &nom, QRect géométrie, bool visible = true)
{
    auto *im = new Image(parent);
    im->setObjectName(nom);
    im->setGeometry(géométrie);
    if (!nom.isEmpty())
        im->setPicture(ImageJeu(nom, géométrie.size()));
    im->setVisible(visible);
    return im;
}

Etiquette *NouvelleEtiquette(QWidget *parent, QRect géométrie, qreal points, bool gras, bool centrée, bool bordée)
{
    auto *e = new Etiquette(parent);
    e->setGeometry(géométrie);
    QFont f = e->font();
    f.setPointSizeF(points);
    f.setBold(gras);
    e->setFont(f);
    e->setWordWrap(true);
    if (centrée)
        e->setAlignment(Qt::AlignCenter);
    if (bordée) {
        e->setFrameShape(QFrame::Box);
        e->setAutoFillBackground(true);
    }
    return e;
}
} // namespace

EcranPrincipal *FormePrincipale() { return forme; }

EcranPrincipal &Principal() { return *forme; }

int IndiceEcranPrincipal()
{
    int indice = -1;
    const auto formes = QApplication::topLevelWidgets();
    for (int i = 0; i < formes.size(); ++i)
        if (formes[i]->objectName() == QLatin1String("EcranPrincipal"))
            indice = i;
    return indice;
}

EcranPrincipal::EcranPrincipal()
{
    forme = this;
    InstalleFenêtrePrincipale(this);
    setProperty("HelpContextID", 10);
    setObjectName(QStringLiteral("EcranPrincipal"));
    setWindowTitle(QStringLiteral("Les cantons kelmors"));
    // A fixed window: its close box, and neither minimise nor maximise.
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint);
    setWindowIcon(QIcon(ImageJeu(QStringLiteral("Icone"), QSize(32, 32))));
    setAttribute(Qt::WA_DeleteOnClose);

    auto *surface = new QWidget(this);
    surface->setObjectName(QStringLiteral("surface"));
    setCentralWidget(surface);
    ConstruitMenus();
    setFixedSize(1013, 736 + menuBar()->sizeHint().height());

    // The map and what lies on it.
    Carte = new BoîteImage(surface);
    Carte->setGeometry(64, 56, 667, 616);
    Carte->setAutoFillBackground(true);
    Carte->setStyleSheet(QStringLiteral("background-color: #5d6b73;"));
    ImageRégion[0] = NouvelleImage(Carte, QStringLiteral("carte"), {0, 0, 652, 456});
    Pays[0] = NouvelleImage(Carte, QString(), {8, 80, 17, 81}, false);
    rond[0] = NouvelleImage(Carte, QStringLiteral("Rond0"), {32, 424, 7, 8}, false);
    RondVille = NouvelleImage(Carte, QStringLiteral("RondVille"), {40, 392, 7, 8}, false);
    RondPref = NouvelleImage(Carte, QStringLiteral("RondPref"), {16, 424, 7, 8}, false);
    Rondnoir = NouvelleImage(Carte, QStringLiteral("Rondnoir"), {56, 432, 16, 16}, false);
    Rondrouge = NouvelleImage(Carte, QStringLiteral("Rondrouge"), {32, 432, 16, 16}, false);
    Rondjaune = NouvelleImage(Carte, QStringLiteral("Rondjaune"), {8, 432, 20, 20}, false);
    Rondcible = NouvelleImage(Carte, QStringLiteral("Rondcible"), {0, 0, 23, 23}, false);
    miniature[6] = NouvelleImage(Carte, QStringLiteral("miniature06"), {496, 0, 174, 184}, false);
    miniature[23] = NouvelleImage(Carte, QStringLiteral("miniature23"), {0, 0, 196, 130}, false);
    for (int i = 1; i <= NombrePlaces; ++i) {
        QSize taille = TaillePays(i);
        if (i == 1)
            taille.setWidth(170);
        // Placed from the canton table at load; the design places them alike.
        inv[i] = NouvelleImage(Carte, QStringLiteral("inv") + Numéro(i), {QPoint(0, 0), taille}, false);
    }

    // The question and score panel.
    QueFaire = NouvelleEtiquette(surface, {384, 25, 200, 26}, 9.75, true, true, true);
    TexteAChercher = NouvelleEtiquette(surface, {22, 32, 200, 55}, 9.75, true, true, true);
    TexteAChercher->hide();
    ElémentRecherché = new BoîteImage(surface);
    ElémentRecherché->setGeometry(38, 688, 200, 188);
    ElémentRecherché->setAutoFillBackground(true);
    ImageRecherchée = new Image(ElémentRecherché);
    ImageRecherchée->Stretch = true;
    ImageRecherchée->setGeometry(0, 0, 200, 188);
    BoîteRestants = new Cadre(surface);
    BoîteRestants->setGeometry(32, 80, 109, 57);
    const int gaucheReste[4] = {0, 85, 61, 37};
    for (int i = 1; i <= 3; ++i) {
        Reste[i] = new CaseChiffre(surface);
        Reste[i]->setGeometry(gaucheReste[i], 94, 24, 37);
    }
    BoîteScore = new Cadre(surface);
    BoîteScore->setGeometry(31, 166, 176, 58);
    const int gaucheDigit[7] = {34, 178, 154, 130, 106, 82, 58};
    for (int i = 0; i <= 6; ++i) {
        Digit[i] = new CaseChiffre(surface);
        Digit[i]->setGeometry(gaucheDigit[i], 182, 24, 37);
    }
    BoutonPasse = new BoutonGraphique(surface);
    BoutonPasse->setGeometry(744, 472, 60, 45);
    BoutonPasse->setPicture(ImageJeu(QStringLiteral("BoutonPasse"), QSize(40, 30)));
    BoutonPasse->hide();
    BoutonGruge = new BoutonGraphique(surface);
    BoutonGruge->setGeometry(816, 472, 60, 45);
    BoutonGruge->hide();
    AmpouleAllumée = NouvelleImage(surface, QStringLiteral("AmpouleAllumee"), {258, 32, 32, 32}, false);
    AmpouleEteinte = NouvelleImage(surface, QStringLiteral("AmpouleEteinte"), {324, 31, 32, 32}, false);
    BoutonGruge->setPicture(AmpouleEteinte->Picture());
    for (int i = 1; i <= NombrePlaces; ++i)
        drapeau[i] = NouvelleImage(surface, QStringLiteral("drapeau") + Numéro(i), {0, 0, 125, 125}, false);
    miniature[10] = NouvelleImage(surface, QStringLiteral("miniature10"), {0, 0, 196, 140}, false);
    DrapeauPays[0] = NouvelleImage(surface, QString(), {32, 408, 9, 1}, false);

    BarreH = new BarreDéfilement(Qt::Horizontal, surface);
    BarreH->setGeometry(22, 0, 707, 15);
    BarreV = new BarreDéfilement(Qt::Vertical, surface);
    BarreV->setGeometry(0, 99, 14, 536);

    // The parameterisation panel, hidden until a parameter set is shown.
    LBLParam[1] = NouvelleEtiquette(surface, {752, 56, 249, 25}, 9.75, true, true, false);
    LBLParam[1]->setText(QStringLiteral("Paramétrage du jeu"));
    LBLParam[2] = NouvelleEtiquette(surface, {752, 96, 241, 89}, 8, false, false, false);
    LBLParam[3] = NouvelleEtiquette(surface, {744, 192, 241, 48}, 8, false, false, false);
    LBLParam[3]->setText(QStringLiteral("Nom du fichier paramétrage :"));
    for (int r = 0; r < 4; ++r)
        LBLParam[4 + r] = NouvelleEtiquette(surface, {752, 274 + 20 * r, 89, 17}, 8, false, false, false);
    // Each heading centred over its column of boxes: at the design's places, the last
    // two touched and "1er" was cut.
    const int gaucheColonne[4] = {848, 882, 915, 949};
    const char *têtes[4] = {"1er", "2ème", "3ème", "4ème"};
    for (int k = 0; k < 4; ++k) {
        LBLParam[8 + k] = NouvelleEtiquette(surface, {gaucheColonne[k] + 8 - 16, 252, 33, 17}, 8, false, true, false);
        LBLParam[8 + k]->setText(QString::fromUtf8(têtes[k]));
    }
    // The two sentences beside their boxes take the width of the panel and the height
    // between the boxes: the German ones need three lines.
    LBLParam[12] = NouvelleEtiquette(surface, {784, 352, 209, 34}, 8, false, false, false);
    LBLParam[13] = NouvelleEtiquette(surface, {784, 386, 209, 36}, 8, false, false, false);
    for (int colonne = 1; colonne <= 4; ++colonne)
        for (int ligne = 1; ligne <= 4; ++ligne) {
            auto *b = new CaseACocher(surface);
            b->setGeometry(gaucheColonne[colonne - 1], 274 + 20 * (ligne - 1), 17, 17);
            Bouton[(colonne - 1) * 4 + ligne] = b;
        }
    Bouton[17] = new CaseACocher(surface);
    Bouton[17]->setGeometry(752, 356, 17, 17);
    Bouton[17]->setChecked(true);
    Bouton[18] = new CaseACocher(surface);
    Bouton[18]->setGeometry(752, 388, 17, 17);
    Bouton[18]->setChecked(true);
    BTN[1] = new QPushButton(QStringLiteral("OK"), surface);
    BTN[1]->setGeometry(811, 424, 66, 31);
    BTN[2] = new QPushButton(QStringLiteral("Annuler"), surface);
    BTN[2]->setGeometry(888, 424, 66, 31);
    for (int i = 1; i <= 13; ++i)
        LBLParam[i]->hide();
    for (int i = 1; i <= 18; ++i)
        Bouton[i]->hide();
    BTN[1]->hide();
    BTN[2]->hide();


    for (int i : {11, 12, 15, 16})
        Bouton[i]->setProperty("HelpContextID", 65);
    InstalleToucheAide();
}

EcranPrincipal::~EcranPrincipal()
{
    if (forme == this) {
        forme = nullptr;
        InstalleFenêtrePrincipale(nullptr);
        Jeu().Ecouteur = nullptr;
    }
}

Image *EcranPrincipal::CréeDepuisModèle(Image *modèle)
{
    auto *im = new Image(modèle->parentWidget());
    im->setGeometry(modèle->geometry());
    im->setPicture(modèle->Picture());
    im->hide();
    return im;
}

void EcranPrincipal::ConstruitMenus()
{
    QMenuBar *barre = menuBar();
    MenuFichier = barre->addMenu(QStringLiteral("Fichier"));
    FichierNouveau = MenuFichier->addAction(QString());
    FichierEnregistrer = MenuFichier->addAction(QString());
    FichierLire = MenuFichier->addAction(QString());
    FichierVersion = MenuFichier->addAction(QString());
    FichierQuitter = MenuFichier->addAction(QString());
    MenuParamétrer = barre->addMenu(QString());
    MenuAfficheParamètres = MenuParamétrer->addAction(QString());
    MenuDéfaut = MenuParamétrer->addAction(QString());
    MenuRecharger = MenuParamétrer->addAction(QString());
    MenuDéfinir = MenuParamétrer->addAction(QString());
    Menuson = MenuParamétrer->addAction(QString());
    MenuCouleurCapitalesATrouver = MenuParamétrer->addAction(QString());
    MenuCouleurCapitalesTrouvées = MenuParamétrer->addAction(QString());
    MenuInf = MenuParamétrer->addAction(QString());
    MenuFichInfo = MenuParamétrer->addAction(QString());
    MenuScores = barre->addMenu(QString());
    ScoreEnCours = MenuScores->addAction(QString());
    ScoreFacile = MenuScores->addAction(QString());
    ScoreMoyen = MenuScores->addAction(QString());
    ScoreDifficile = MenuScores->addAction(QString());
    ScoreExpert = MenuScores->addAction(QString());
    MenuRazScores = MenuScores->addAction(QString());
    MenuScores->addSeparator();
    MenuPointsFaibles = MenuScores->addAction(QString());
    MenuProgression = MenuScores->addAction(QString());
    MenuRévision = barre->addAction(QString());
    MenuLangue = barre->addMenu(QStringLiteral("Langue / Sprache"));
    MenuFrançais = MenuLangue->addAction(QStringLiteral("Jouer en français"));
    MenuAllemand = MenuLangue->addAction(QStringLiteral("Auf deutsch spielen"));
    MenuAutreLangue = MenuLangue->addAction(QStringLiteral("Other language"));
    MenuAide = barre->addAction(QString());
    MenuAPropos = barre->addAction(QString());
}


// The window's geometry in twips. The frame is the window manager's and unknown until
// the window is shown, so it never counts: the window is its menu bar and client area,
// and the sizes the screen fit computes hold with or without a frame.
int EcranPrincipal::Left() const { return geometry().x() * TwipsPerPixelX; }
int EcranPrincipal::Top() const { return geometry().y() * TwipsPerPixelY; }
int EcranPrincipal::Width() const { return geometry().width() * TwipsPerPixelX; }
int EcranPrincipal::Height() const { return geometry().height() * TwipsPerPixelY; }
void EcranPrincipal::setLeft(int twips) { move(twips / TwipsPerPixelX, pos().y()); }
void EcranPrincipal::setTop(int twips) { move(pos().x(), twips / TwipsPerPixelY); }
// Only the screen fit sizes the window: the player can't drag its edges.
void EcranPrincipal::setWidth(int twips) { setFixedSize(std::max(1, twips / TwipsPerPixelX), height()); }
void EcranPrincipal::setHeight(int twips) { setFixedSize(width(), std::max(1, twips / TwipsPerPixelY)); }
// The client area, from the window's own size: the layout may not have run yet.
int EcranPrincipal::ScaleWidth() const { return width(); }
int EcranPrincipal::ScaleHeight() const { return height() - menuBar()->sizeHint().height(); }

void EcranPrincipal::showEvent(QShowEvent *e)
{
    QMainWindow::showEvent(e);
    // Form_Activate: the first showing ends the loading form.
    FermePatience();
}

void EcranPrincipal::changeEvent(QEvent *e)
{
    QMainWindow::changeEvent(e);
    if (e->type() == QEvent::ActivationChange && isActiveWindow())
        FermePatience();
}

void EcranPrincipal::closeEvent(QCloseEvent *e)
{
    if (!ÀLaFermeture || ÀLaFermeture())
        e->accept();
    else
        e->ignore();
}

