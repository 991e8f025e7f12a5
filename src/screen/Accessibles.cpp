#include "screen/Accessibles.h"

#include "engine/communs.h"
#include "results/PartieEnCours.h"
#include "screen/EcranPrincipal.h"
#include "services/Accessibilite.h"
#include "services/Langues.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QAction>
#include <QAbstractButton>
#include <QApplication>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QProxyStyle>
#include <QScrollBar>
#include <QTimer>
#include <utility>

namespace {
// What a family's %1 stands for: a canton's name or town, or a parameter box's step and rank.
QString Complément(const QString &famille, int k)
{
    auto *E = FormePrincipale();
    if (famille == QLatin1String("Bouton") && E) {
        if (k >= 1 && k <= 16)
            return E->LBLParam[4 + (k - 1) % 4]->text() + QStringLiteral(", ") + E->LBLParam[8 + (k - 1) / 4]->text();
        if (k == 17 || k == 18)
            return E->LBLParam[k - 5]->text();
    }
    if (k >= 1 && k <= NombrePlaces) {
        const TCanton &c = Jeu().Cantons[k];
        const QString mot = famille == QLatin1String("rond") ? c.ChefLieu : c.Nom;
        if (!mot.isEmpty())
            return mot;
    }
    return QString::number(k);
}

void Habille(QWidget *w);

// The key of a control: its name, or for the parts Qt builds unnamed, what they are.
QString Clé(QWidget *w)
{
    if (!w->objectName().isEmpty())
        return w->objectName();
    if (auto *barre = qobject_cast<QScrollBar *>(w))
        return barre->orientation() == Qt::Horizontal ? QStringLiteral("DéfilementH") : QStringLiteral("DéfilementV");
    if (w->inherits("QComboBoxListView"))
        return QStringLiteral("ListeDéroulante");
    return QString();
}

void Habille(QWidget *w)
{
    if (auto *liste = qobject_cast<QComboBox *>(w))
        Habille(static_cast<QWidget *>(liste->view())); // made when first asked for: a screen reader asks for it
    const QString clé = Clé(w);
    const auto texte = TexteAccessible(clé, Langues().Langue);
    if (!texte)
        return;
    QString nom = texte->Nom;
    if (nom.contains(QLatin1String("%1"))) {
        int fin = clé.size();
        while (fin > 0 && clé[fin - 1].isDigit())
            --fin;
        nom = nom.arg(Complément(clé.left(fin), clé.mid(fin).toInt()));
    }
    // A picture says nothing by itself: its tooltip names it.
    auto *bouton = qobject_cast<QAbstractButton *>(w);
    auto *étiquette = qobject_cast<QLabel *>(w);
    if (nom.isEmpty() && (bouton ? bouton->text() : étiquette ? étiquette->text() : QString()).isEmpty())
        nom = w->toolTip();
    if (w->accessibleName() != nom)
        w->setAccessibleName(nom);
    if (w->accessibleDescription() != texte->Description)
        w->setAccessibleDescription(texte->Description);
}

// An entry of the menu bar or of a menu as Qt presents it, with its description too (Qt's
// own entries have none): the words of the entry's object name in the language in use.
class EntréeMenu : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    EntréeMenu(QWidget *menu, QAction *action) : menu(menu), action(action) {}
    bool isValid() const override { return menu && action; }
    QObject *object() const override { return action; }
    QWindow *window() const override { return menu ? menu->window()->windowHandle() : nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(menu); }
    int childCount() const override { return action->menu() ? 1 : 0; }
    QAccessibleInterface *child(int i) const override
    {
        return i == 0 && action->menu() ? QAccessible::queryAccessibleInterface(action->menu()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *c) const override { return c && c->object() == action->menu() ? 0 : -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QRect rect() const override
    {
        const auto *barre = qobject_cast<QMenuBar *>(menu);
        const QRect r = barre ? barre->actionGeometry(action) : static_cast<QMenu *>(menu.data())->actionGeometry(action);
        return QRect(menu->mapToGlobal(r.topLeft()), r.size());
    }
    QAccessible::Role role() const override { return action->isSeparator() ? QAccessible::Separator : QAccessible::MenuItem; }
    QAccessible::State state() const override
    {
        QAccessible::State s;
        s.focusable = true;
        s.disabled = !action->isEnabled();
        s.invisible = !action->isVisible();
        s.hasPopup = action->menu() != nullptr;
        s.checkable = action->isCheckable();
        s.checked = action->isChecked();
        const auto *barre = qobject_cast<QMenuBar *>(menu);
        s.focused = (barre ? barre->activeAction() : static_cast<QMenu *>(menu.data())->activeAction()) == action;
        return s;
    }
    QString text(QAccessible::Text t) const override
    {
        switch (t) {
        case QAccessible::Name: return SansMnémonique(action->text());
        case QAccessible::Accelerator: {
            const QKeySequence lettre = QKeySequence::mnemonic(action->text());
            return (action->shortcut().isEmpty() ? lettre : action->shortcut()).toString(QKeySequence::NativeText);
        }
        case QAccessible::Description: {
            const auto texte = TexteAccessible(action->objectName(), Langues().Langue);
            return texte ? texte->Description : QString();
        }
        default: return QString();
        }
    }
    void setText(QAccessible::Text, const QString &) override {}
    void *interface_cast(QAccessible::InterfaceType t) override
    {
        return t == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }
    QStringList actionNames() const override { return {action->menu() ? showMenuAction() : pressAction()}; }
    void doAction(const QString &) override
    {
        if (!action->isEnabled())
            return;
        if (auto *barre = qobject_cast<QMenuBar *>(menu))
            barre->setActiveAction(action);
        else if (action->menu())
            static_cast<QMenu *>(menu.data())->setActiveAction(action);
        else
            action->trigger();
    }
    QStringList keyBindingsForAction(const QString &) const override { return {text(QAccessible::Accelerator)}; }

private:
    QPointer<QWidget> menu; // the menu bar or menu that holds the entry
    QPointer<QAction> action;
};

// A screen reader reads the announcer as an alert, not as a plain text; a menu's entries
// come with their descriptions.
QAccessibleInterface *FabriqueAnnonces(const QString &, QObject *o)
{
    auto *w = qobject_cast<QWidget *>(o);
    if (w && w->objectName() == QLatin1String("Annonces"))
        return new QAccessibleWidget(w, QAccessible::AlertMessage);
    if (auto *action = qobject_cast<QAction *>(o); action && !action->objectName().isEmpty())
        for (QObject *porteur : action->associatedObjects())
            if (qobject_cast<QMenu *>(porteur) || qobject_cast<QMenuBar *>(porteur))
                return new EntréeMenu(static_cast<QWidget *>(porteur), action);
    return nullptr;
}

QWidget *annonceur = nullptr;
// The verdict of the click being handled: the question it brings follows it in one announcement,
// as a second one at once would cut the first short.
QString verdictEnCours;

// The menus' letters are underlined once the player reaches for the keyboard (Alt), until
// the next click: the window looks as it always did to a player of the mouse.
bool lettresMontrées = false;

class StyleLettres : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget, QStyleHintReturn *retour) const override
    {
        if (hint == SH_UnderlineShortcut)
            return lettresMontrées;
        return QProxyStyle::styleHint(hint, option, widget, retour);
    }
};

void MontreLettres(bool montrées)
{
    if (montrées == lettresMontrées)
        return;
    lettresMontrées = montrées;
    for (QWidget *w : QApplication::topLevelWidgets())
        if (w->isVisible()) {
            w->update();
            for (QMenuBar *barre : w->findChildren<QMenuBar *>())
                barre->update();
        }
}

class Veilleur : public QObject {
protected:
    bool eventFilter(QObject *o, QEvent *e) override
    {
        const auto type = e->type();
        if (type == QEvent::KeyPress && static_cast<QKeyEvent *>(e)->key() == Qt::Key_Alt)
            MontreLettres(true);
        else if (type == QEvent::MouseButtonPress)
            MontreLettres(false);
        if (type != QEvent::Show && type != QEvent::LanguageChange && type != QEvent::KeyPress)
            return false;
        auto *w = qobject_cast<QWidget *>(o);
        if (!w || !w->isWindow())
            return false;
        if (type == QEvent::KeyPress) {
            // The help window closes with Escape, as the dialogs do.
            if (static_cast<QKeyEvent *>(e)->key() == Qt::Key_Escape && w->objectName() == QLatin1String("Aide")) {
                w->close();
                return true;
            }
            return false;
        }
        HabilleAccessible(w);
        if (type == QEvent::LanguageChange)
            if (auto *E = qobject_cast<QMainWindow *>(w))
                PlaceMnémoniques(E->menuBar());
        return false;
    }
};

void NommeEcranPrincipal(EcranPrincipal &E)
{
    auto nomme = [](QWidget *w, const QString &nom, int k = -1) {
        w->setObjectName(k < 0 ? nom : nom + QStringLiteral("%1").arg(k, nom == QLatin1String("Bouton") ? 2 : 1, 10, QLatin1Char('0')));
    };
    nomme(E.Carte, QStringLiteral("Carte"));
    nomme(E.QueFaire, QStringLiteral("QueFaire"));
    nomme(E.TexteAChercher, QStringLiteral("TexteAChercher"));
    nomme(E.ElémentRecherché, QStringLiteral("ElémentRecherché"));
    nomme(E.ImageRecherchée, QStringLiteral("ImageRecherchée"));
    nomme(E.BoîteRestants, QStringLiteral("BoîteRestants"));
    nomme(E.BoîteScore, QStringLiteral("BoîteScore"));
    nomme(E.BoutonPasse, QStringLiteral("BoutonPasse"));
    nomme(E.BoutonGruge, QStringLiteral("BoutonGruge"));
    nomme(E.BarreH, QStringLiteral("BarreH"));
    nomme(E.BarreV, QStringLiteral("BarreV"));
    for (int i = 1; i <= 3; ++i)
        nomme(E.Reste[i], QStringLiteral("Reste"), i);
    for (int i = 0; i <= 6; ++i)
        nomme(E.Digit[i], QStringLiteral("Digit"), i);
    for (int i = 1; i <= 13; ++i)
        nomme(E.LBLParam[i], QStringLiteral("LBLParam"), i);
    for (int i = 1; i <= 18; ++i)
        nomme(E.Bouton[i], QStringLiteral("Bouton"), i);
    for (int i = 1; i <= 2; ++i)
        nomme(E.BTN[i], QStringLiteral("BTN"), i);
    // The menus' entries, under the names their descriptions are found by.
    const std::pair<QAction *, const char *> entrées[] = {
        {E.MenuFichier->menuAction(), "MenuFichier"}, {E.MenuParamétrer->menuAction(), "MenuParamétrer"},
        {E.MenuScores->menuAction(), "MenuScores"}, {E.MenuLangue->menuAction(), "MenuLangue"},
        {E.FichierNouveau, "FichierNouveau"}, {E.FichierEnregistrer, "FichierEnregistrer"}, {E.FichierLire, "FichierLire"},
        {E.FichierVersion, "FichierVersion"}, {E.FichierQuitter, "FichierQuitter"},
        {E.MenuAfficheParamètres, "MenuAfficheParamètres"}, {E.MenuDéfaut, "MenuDéfaut"}, {E.MenuRecharger, "MenuRecharger"},
        {E.MenuDéfinir, "MenuDéfinir"}, {E.Menuson, "Menuson"}, {E.MenuCouleurCapitalesATrouver, "MenuCouleurCapitalesATrouver"},
        {E.MenuCouleurCapitalesTrouvées, "MenuCouleurCapitalesTrouvées"}, {E.MenuInf, "MenuInf"}, {E.MenuFichInfo, "MenuFichInfo"},
        {E.ScoreEnCours, "ScoreEnCours"}, {E.ScoreFacile, "ScoreFacile"}, {E.ScoreMoyen, "ScoreMoyen"},
        {E.ScoreDifficile, "ScoreDifficile"}, {E.ScoreExpert, "ScoreExpert"}, {E.MenuRazScores, "MenuRazScores"},
        {E.MenuPointsFaibles, "MenuPointsFaibles"}, {E.MenuProgression, "MenuProgression"}, {E.MenuRévision, "MenuRévision"},
        {E.MenuFrançais, "MenuFrançais"}, {E.MenuAllemand, "MenuAllemand"}, {E.MenuAutreLangue, "MenuAutreLangue"},
        {E.MenuAide, "MenuAide"}, {E.MenuAPropos, "MenuAPropos"}};
    for (auto [action, nom] : entrées)
        action->setObjectName(QString::fromUtf8(nom));
}
} // namespace

void HabilleAccessible(QWidget *forme)
{
    if (!forme)
        return;
    Habille(forme);
    const auto enfants = forme->findChildren<QWidget *>();
    for (QWidget *w : enfants)
        Habille(w);
}

void PlaceMnémoniques(QWidget *menu)
{
    if (!menu)
        return;
    QList<QAction *> actions;
    QStringList textes;
    for (QAction *a : menu->actions())
        if (!a->isSeparator() && !a->text().isEmpty())
            actions << a, textes << a->text();
    const QStringList marqués = Mnémoniques(textes);
    for (int i = 0; i < actions.size(); ++i)
        if (actions[i]->text() != marqués[i])
            actions[i]->setText(marqués[i]);
}

void InstalleAccessibilité(EcranPrincipal &E)
{
    static Veilleur *veilleur = nullptr;
    if (!veilleur) {
        veilleur = new Veilleur;
        qApp->installEventFilter(veilleur);
        QAccessible::installFactory(FabriqueAnnonces);
    }
    NommeEcranPrincipal(E);
    // Nothing to see: a screen reader alone hears it.
    annonceur = new QWidget(E.centralWidget());
    annonceur->setObjectName(QStringLiteral("Annonces"));
    annonceur->setGeometry(0, 0, 0, 0);
    QObject::connect(annonceur, &QObject::destroyed, [] { annonceur = nullptr; });
    // A menu's entries may change their text as the game goes (the sound's entry): their
    // letters are placed again each time it opens.
    for (QAction *a : E.menuBar()->actions())
        if (QMenu *m = a->menu())
            QObject::connect(m, &QMenu::aboutToShow, m, [m] { PlaceMnémoniques(m); });
    PlaceMnémoniques(E.menuBar());
    HabilleAccessible(&E);
}

void InstalleLettresCachées()
{
    static bool installé = false;
    if (!std::exchange(installé, true))
        QApplication::setStyle(new StyleLettres(QApplication::style()->name()));
}

void Annonce(const QString &texte)
{
    if (!annonceur)
        return;
    annonceur->setAccessibleName(texte);
    QAccessibleEvent alerte(annonceur, QAccessible::Alert);
    QAccessible::updateAccessibility(&alerte);
}

void AnnonceVerdict(const QString &texte)
{
    // Said once the click is handled, alone unless the next question took it along.
    verdictEnCours = texte;
    if (annonceur)
        QTimer::singleShot(0, annonceur, [] {
            if (!verdictEnCours.isEmpty())
                Annonce(std::exchange(verdictEnCours, QString()));
        });
}

void AnnonceQuestion()
{
    const i16 c = Jeu().CantonRecherché;
    if (!EtapeDeJeu(Jeu().Etape) || Jeu().RestantsEtape < 1 || c < 1 || c > NombrePlaces)
        return;
    const int l = Langues().Langue;
    QString question;
    switch (Jeu().Etape) {
    case TEtape::Cantons: question = TexteAnnonce(TAnnonceLue::QuestionCanton, l, Jeu().Cantons[c].Nom); break;
    case TEtape::ChefsLieux: question = TexteAnnonce(TAnnonceLue::QuestionChefLieu, l, Jeu().Cantons[c].ChefLieu); break;
    case TEtape::Drapeaux: question = TexteAnnonce(TAnnonceLue::QuestionDrapeau, l); break;
    default: question = TexteAnnonce(TAnnonceLue::QuestionPlaque, l, Jeu().Plaques[c]); break;
    }
    const QString verdict = std::exchange(verdictEnCours, QString());
    Annonce(verdict.isEmpty() ? question : verdict + QStringLiteral(". ") + question);
}
