#include "services/Pompe.h"

#include "engine/communs.h"
#include "engine/specifiques.h"
#include "platform/Formes.h"
#include "screen/EcranPrincipal.h"
#include "services/Fiches.h"
#include "services/Langues.h"

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

Pompe::Pompe() : QDialog(FormePrincipale())
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
    connect(BTNOK, &QPushButton::clicked, this, [this] { BTNOK_Click(); });

    const int i = CantonFiche;
    if (i < 1 || i > NombrePlaces || !FormePrincipale())
        return;
    auto &E = Principal();
    setWindowTitle(Messages[114]);
    E.rond[i]->show();

    // Beside the canton, right if there is room, else left, else at the screen's edge.
    const int x = E.inv[i]->Left() + E.Carte->Left();
    const int w = E.inv[i]->Width();
    const int s = width();
    int gauche = 10;
    if (x + 10 + w + s < LargeurEcran)
        gauche = x + 10 + w;
    else if (x - 10 - s > 0)
        gauche = x - 10 - s;

    // On a low work area the card takes its whole height and the OK button moves up.
    if (height() > BasZoneTravail) {
        const int cadre = frameGeometry().height() - geometry().height();
        setFixedSize(width(), qMax(BTNOK->Height() + 15, BasZoneTravail - cadre));
        BTNOK->setTop(height() - 15 - BTNOK->Height());
    }
    move(gauche, Moitié(BasZoneTravail - height()));

    LBLPays->setText(Cantons[i].Nom + QStringLiteral(" (") + Plaques[i] + QLatin1Char(')'));
    IMGDrapeau->setPicture(E.drapeau[i]->Picture());
    IMGDrapeau->setLeft(Moitié(width() - IMGDrapeau->Width()));
    LBLCapitale->setText(Messages[115] + QStringLiteral(" : ") + Cantons[i].ChefLieu);
    LBLCapitale->setTop(IMGDrapeau->Top() + IMGDrapeau->Height() + 5);
    TXTInfos->setTop(LBLCapitale->Top() + LBLCapitale->Height() + 5);
    TXTInfos->setHeight(qMax(0, BTNOK->Top() - TXTInfos->Top() - 5));

    // The name on the card comes from the game; the file gives the text alone. A file
    // that is missing or damaged gives an empty card.
    TFiche fiche;
    if (Langue >= 1 && Langue < int(CheminsInfo.size()))
        LitFicheInfo(CheminsInfo[Langue], i, fiche);
    TXTInfos->setText(fiche.Texte);
    BTNOK->setFocus();
}

void Pompe::BTNOK_Click() { accept(); }

void MontrePompe()
{
    if (CantonFiche < 1 || CantonFiche > NombrePlaces || !FormePrincipale())
        return;
    {
        Pompe forme;
        ExécuteModal(forme);
    }
    // The card's target goes with it.
    PlaceRond(CantonFiche);
}
