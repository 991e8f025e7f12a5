#include "screen/Pompe.h"

#include "engine/communs.h"
#include "engine/specifiques.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "screen/EcranPrincipal.h"
#include "services/Fiches.h"
#include "services/Langues.h"
#include "results/PartieEnCours.h"

#include <algorithm>
#include <QTextDocument>

namespace {
constexpr int LargeurPompe = 383;
constexpr int HauteurPompe = 493;

// Rounds down, also below zero.
int Moitié(int n) { return n >= 0 ? n / 2 : -((-n + 1) / 2); }
} // namespace

// ---------------------------------------------------------------- text box

TexteFiche::TexteFiche(QWidget *parent) : Contrôle<QPlainTextEdit>(parent)
{
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
    setTabChangesFocus(true);
}

QString TexteFiche::Text() const
{
    // The raw text keeps no-break spaces, which the plain text would turn into spaces.
    QString t = document()->toRawText();
    t.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    t.replace(QChar::LineSeparator, QLatin1Char('\n'));
    t.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    return t;
}

void TexteFiche::setText(const QString &texte)
{
    QString t = texte;
    t.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    setPlainText(t);
}

QString TexteFiche::CommeAffiché(const QString &texte)
{
    QString t = texte;
    t.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    t.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    t.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    t.replace(QChar::LineSeparator, QLatin1Char('\n'));
    t.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    return t;
}

void HabilleFormeFiche(QWidget &forme)
{
    forme.setAutoFillBackground(true);
    QPalette p = forme.palette();
    p.setColor(QPalette::Window, QColor(64, 0, 0));
    p.setColor(QPalette::WindowText, Qt::white);
    forme.setPalette(p);
    QFont f(QStringLiteral("Times New Roman"));
    f.setPointSize(12);
    f.setItalic(true);
    forme.setFont(f);
}

// ---------------------------------------------------------------- the card

TPlaceFiche PlaceFiche(int x, int w, int s, int h, int W, int bas, int cadre, int hauteurMinimale)
{
    // Right of the canton if there is room, else left, else 10 pixels from the screen's edge.
    TPlaceFiche p{10, 0, h};
    if (x + 10 + w + s < W)
        p.gauche = x + 10 + w;
    else if (x - 10 - s > 0)
        p.gauche = x - 10 - s;
    // On a low work area the card takes its whole height, frame included.
    if (h + cadre > bas)
        p.hauteur = std::max(hauteurMinimale, bas - cadre);
    p.haut = std::max(0, Moitié(bas - p.hauteur - cadre));
    return p;
}

Pompe::Pompe() : QDialog(FenêtrePrincipale())
{
    setObjectName(QStringLiteral("Pompe"));
    // A small fixed window with a title and a close box.
    setWindowFlags(Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setFixedSize(LargeurPompe, HauteurPompe);
    setProperty("HelpContextID", 160);
    HabilleFormeFiche(*this);

    BTNOK = new Contrôle<QPushButton>(this);
    BTNOK->setText(QStringLiteral("OK"));
    BTNOK->Place(168, 464, 49, 25);
    BTNOK->setDefault(true);
    LBLPays = new Etiquette(this);
    LBLPays->Place(8, 8, 369, 25);
    LBLPays->setAlignment(Qt::AlignCenter);
    IMGDrapeau = new Image(this);
    IMGDrapeau->Place(8, 32, 73, 33);
    LBLCapitale = new Etiquette(this);
    LBLCapitale->Place(8, 96, 297, 25);
    LBLCapitale->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    TXTInfos = new TexteFiche(this);
    TXTInfos->Place(8, 136, 369, 233);
    TXTInfos->setReadOnly(true);
    TXTInfos->setFocusPolicy(Qt::ClickFocus);
    BTNOK->setObjectName(QStringLiteral("BTNOK"));
    LBLPays->setObjectName(QStringLiteral("LBLPays"));
    IMGDrapeau->setObjectName(QStringLiteral("IMGDrapeau"));
    LBLCapitale->setObjectName(QStringLiteral("LBLCapitale"));
    TXTInfos->setObjectName(QStringLiteral("TXTInfos"));
    connect(BTNOK, &QPushButton::clicked, this, [this] { BTNOK_Click(); });

    const int i = Jeu().CantonFiche;
    if (i < 1 || i > NombrePlaces || !FormePrincipale())
        return;
    auto &E = Principal();
    setWindowTitle(Message(TMessage::FicheDeRenseignements));
    E.rond[i]->show();

    // The frame isn't known before the card is shown: the main window's, from the same
    // window manager, stands for it, so that the whole card stays above the task bar.
    int cadre = frameGeometry().height() - geometry().height();
    if (cadre <= 0)
        cadre = E.frameGeometry().height() - E.geometry().height();
    const TPlaceFiche place = PlaceFiche(E.inv[i]->Left() + E.Carte->Left(), E.inv[i]->Width(), width(), height(),
                                         EcranMesuré().LargeurEcran, EcranMesuré().BasZoneTravail, cadre, BTNOK->Height() + 15);
    if (place.hauteur != height()) {
        setFixedSize(width(), place.hauteur);
        BTNOK->setTop(height() - 15 - BTNOK->Height());
    }
    move(place.gauche, place.haut);

    LBLPays->setText(Jeu().Cantons[i].Nom + QStringLiteral(" (") + Jeu().Plaques[i] + QLatin1Char(')'));
    IMGDrapeau->setPicture(E.drapeau[i]->Picture());
    IMGDrapeau->setLeft(Moitié(width() - IMGDrapeau->Width()));
    LBLCapitale->setText(Message(TMessage::ChefLieu) + QStringLiteral(" : ") + Jeu().Cantons[i].ChefLieu);
    LBLCapitale->setTop(IMGDrapeau->Top() + IMGDrapeau->Height() + 5);
    TXTInfos->setTop(LBLCapitale->Top() + LBLCapitale->Height() + 5);
    TXTInfos->setHeight(qMax(0, BTNOK->Top() - TXTInfos->Top() - 5));

    // The name on the card comes from the game; the file gives the text alone.
    TFiche fiche;
    if (Langues().Langue >= 1 && Langues().Langue < int(Langues().CheminsInfo.size()))
        fiche = FicheMontrée(Langues().CheminsInfo[Langues().Langue], i);
    TXTInfos->setText(fiche.Texte);
    BTNOK->setFocus();
}

void Pompe::BTNOK_Click() { accept(); }

void MontrePompe()
{
    if (Jeu().CantonFiche < 1 || Jeu().CantonFiche > NombrePlaces || !FormePrincipale())
        return;
    {
        Pompe forme;
        ExécuteModal(forme);
    }
}
