// The game for a screen reader and the keyboard alone, read through Qt's accessibility
// interfaces as a screen reader reads it.
#include "Fixtures.h"

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "results/AffichageScores.h"
#include "results/NouvellePartie.h"
#include "results/Stats.h"
#include "screen/Aide.h"
#include "screen/Edition.h"
#include "screen/Palette.h"
#include "screen/ParametrageRepertoires.h"
#include "screen/PointsFaibles.h"
#include "screen/Progression.h"
#include "screen/Pompe.h"
#include "services/Accessibilite.h"

#include <QAccessible>
#include <QMenuBar>

namespace {
QWidget *Fenêtre(const char *nom)
{
    for (QWidget *w : QApplication::topLevelWidgets())
        if (w->objectName() == QLatin1String(nom))
            return w;
    return nullptr;
}

// Every form, made as the game makes it, and the button that closes it where Escape doesn't;
// a new form is one more line.
const struct { const char *nom; std::function<QWidget *()> crée; const char *fermeture = ""; } Formes[] = {
    {"EcranPrincipal", [] { return FormePrincipale(); }},
    {"NouvellePartie", [] { return new NouvellePartie; }},
    {"AffichageScores", [] { return new AffichageScores; }},
    {"Stats", [] { return new Stats; }},
    {"SélectionPartie", [] { return new SélectionPartie; }},
    {"ParamétrageRépertoires", [] { return new ParamétrageRépertoires; }, "BoutonOK"},
    {"Pompe", [] { return Jeu().CantonFiche = 3, new Pompe; }},
    {"Edition", [] { return new Edition; }, "BTNQuit"},
    {"Palette", [] { return new Palette(1); }},
    {"PointsFaibles", [] { return new PointsFaibles; }},
    {"Progression", [] { return new Progression; }},
    {"Aide", [] { return OuvreAide(10), Fenêtre("Aide"); }},
};

struct Lu {
    QString objet, nom, description;
};

bool Actif(QAccessible::Role r)
{
    using A = QAccessible;
    return r == A::PushButton || r == A::CheckBox || r == A::RadioButton || r == A::ComboBox || r == A::PageTabList ||
           r == A::List || r == A::ScrollBar || r == A::EditableText || r == A::Graphic || r == A::Slider;
}

// What a screen reader finds in the form: the controls a player acts on and those the game names.
void Lit(QAccessibleInterface *i, std::vector<Lu> &lus)
{
    for (int k = 0; k < i->childCount(); ++k) {
        QAccessibleInterface *c = i->child(k);
        if (!c || c->role() == QAccessible::MenuBar)
            continue;
        const QString objet = c->object() ? c->object()->objectName() : QString();
        if (Actif(c->role()) || TexteAccessible(objet, 1))
            lus.push_back({objet + QLatin1Char('/') + QString::number(c->role(), 16), c->text(QAccessible::Name), c->text(QAccessible::Description)});
        Lit(c, lus);
    }
}

void ChangeLangueVue(int n) { ChangeLangue(n), QCoreApplication::sendPostedEvents(), QCoreApplication::processEvents(); }
} // namespace

TEST_F(JeuTest, EveryControlOfEveryFormHasANameAndADescriptionInTheLanguageInUse)
{
    for (const auto &f : Formes) {
        QWidget *forme = f.crée();
        ASSERT_TRUE(forme) << f.nom;
        forme->show();
        std::vector<Lu> lus[2];
        for (int langue : {1, 2}) {
            ChangeLangueVue(langue);
            Lit(QAccessible::queryAccessibleInterface(forme), lus[langue - 1]);
            // An empty label says nothing; Qt's tab bar speaks of its tabs, and has no description.
            for (const Lu &l : lus[langue - 1])
                EXPECT_FALSE((l.nom.trimmed().isEmpty() && !l.objet.contains("/29")) || (l.description.isEmpty() && !l.objet.contains("/3c"))) << f.nom << " " << l.objet.toStdString() << " " << langue << " " << l.nom.toStdString() << "|" << l.description.toStdString();
        }
        EXPECT_GE(lus[0].size(), 2u) << f.nom;
        for (size_t k = 0; k < lus[0].size() && k < lus[1].size(); ++k)
            EXPECT_TRUE(lus[0][k].description != lus[1][k].description || lus[0][k].objet.contains("/3c")) << f.nom << " " << lus[0][k].objet.toStdString();
        ChangeLangueVue(1);
        if (forme != FormePrincipale())
            delete forme;
    }
}

TEST_F(JeuTest, EveryMenuTitleAndEntryHasItsOwnKeyboardLetterInBothLanguagesAndNoneLeaksIntoTheTexts)
{
    for (int langue : {1, 2}) {
        ChangeLangueVue(langue);
        std::vector<QWidget *> menus{Principal().menuBar()};
        for (QAction *a : Principal().menuBar()->actions())
            if (a->menu())
                menus.push_back(a->menu()), emit a->menu()->aboutToShow();
        for (QWidget *m : menus) {
            QSet<int> touches;
            for (QAction *a : m->actions()) {
                if (a->isSeparator())
                    continue;
                const int touche = QKeySequence::mnemonic(a->text())[0].toCombined();
                EXPECT_TRUE(touche && !touches.contains(touche)) << a->text().toStdString() << " " << langue;
                QAccessibleInterface *entrée = QAccessible::queryAccessibleInterface(m)->child(int(m->actions().indexOf(a)));
                EXPECT_TRUE(entrée && entrée->role() == QAccessible::MenuItem && !entrée->text(QAccessible::Description).isEmpty() &&
                            entrée->text(QAccessible::Name) == SansMnémonique(a->text()) && entrée->parent()->object() == m)
                    << a->text().toStdString();
                touches.insert(touche);
            }
        }
        EXPECT_FALSE(Principal().windowTitle().contains('&') || Principal().BoutonPasse->toolTip().contains('&'));
    }
    // Underlined from Alt to the next click only: the menu bar looks as ever to a player of the mouse.
    const auto soulignées = [] { return Principal().style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, Principal().menuBar()); };
    EXPECT_FALSE(soulignées());
    QTest::keyPress(Principal().menuBar(), Qt::Key_Alt), QTest::keyRelease(Principal().menuBar(), Qt::Key_Alt);
    EXPECT_TRUE(soulignées());
    QTest::mouseClick(Principal().Carte, Qt::LeftButton);
    EXPECT_FALSE(soulignées());
}

TEST_F(JeuTest, TheQuestionAndTheVerdictOfEachClickAreAnnouncedInTheLanguageInUse)
{
    QAccessibleInterface *annonceur = QAccessible::queryAccessibleInterface(Principal().findChild<QWidget *>("Annonces"));
    ASSERT_TRUE(annonceur && annonceur->role() == QAccessible::AlertMessage && annonceur->rect().isEmpty());
    // Qt hands its events on only to an active desktop bridge: the platform's is made active,
    // and the alerts are heard as a screen reader hears them, one a click.
    static QStringList alertes;
    alertes.clear();
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
    QAccessible::installUpdateHandler([](QAccessibleEvent *e) {
        if (e->type() == QAccessible::Alert)
            alertes << e->accessibleInterface()->text(QAccessible::Name);
    });
    auto dit = [] {
        QCoreApplication::processEvents();
        return alertes.size() == 1 ? alertes.takeFirst() : QStringLiteral("%1 alerts: ").arg(alertes.size()) + alertes.join('|');
    };
    auto question = [](const char *avant) { return QString::fromUtf8(avant) + Jeu().Cantons[Jeu().CantonRecherché].Nom; };
    NouvellePartieAuNiveau(1);
    EXPECT_EQ(dit(), question("Trouvez le canton : "));
    RépondFaux();
    EXPECT_EQ(dit(), "Mauvaise réponse, erreur 1 sur cette question");
    RépondFaux();
    EXPECT_EQ(dit(), "Mauvaise réponse, erreur 2 sur cette question");
    RépondJuste();
    EXPECT_EQ(dit(), question("Bonne réponse. Trouvez le canton : "));
    ChangeLangueVue(2);
    RépondFaux();
    EXPECT_EQ(dit(), "Falsch, Fehler 1 bei dieser Frage");
    Principal().BoutonPasse->click();
    EXPECT_EQ(dit(), question("Frage übersprungen. Finden Sie den Kanton: "));
    NouvellePartieAuNiveau(2);
    EXPECT_EQ(dit(), question("Finden Sie den Kanton: "));
    for (int k = 0; k < 9; ++k)
        RépondFaux(), QCoreApplication::processEvents();
    alertes.erase(alertes.begin(), alertes.end() - 1);
    EXPECT_EQ(dit(), question("Frage verloren. Finden Sie den Kanton: "));
    EXPECT_EQ(boîtes.journal.back().texte, Message(TMessage::QuestionPerdue)) << "the box is still shown";
    QAccessible::installUpdateHandler(nullptr);
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(false);
    ChangeLangueVue(1);
}

// Tab reaches every button, the picture buttons and the colours too; Escape closes each dialog,
// or Tab to its closing button and Space.
TEST_F(JeuTest, EveryDialogIsWalkedWithTabAndClosedFromTheKeyboard)
{
    for (const auto &f : Formes) {
        auto *d = qobject_cast<QDialog *>(f.crée());
        if (!d)
            continue;
        d->show(), QApplication::setActiveWindow(d);
        auto touche = [d](Qt::Key k) { QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : d, k); };
        QSet<QWidget *> atteints;
        for (int k = 0; k < 60; ++k)
            touche(Qt::Key_Tab), atteints.insert(QApplication::focusWidget());
        for (QWidget *w : d->findChildren<QWidget *>()) {
            auto *b = qobject_cast<QAbstractButton *>(w);
            if (w->isVisibleTo(d) && w->isEnabled() && ((b && (b->isChecked() || !b->autoExclusive())) || w->objectName().startsWith("Couleur")))
                EXPECT_TRUE(atteints.contains(w)) << f.nom << " " << w->objectName().toStdString();
        }
        for (int k = 0; *f.fermeture && QApplication::focusWidget()->objectName() != f.fermeture && k < 60; ++k)
            touche(Qt::Key_Tab);
        touche(*f.fermeture ? Qt::Key_Space : Qt::Key_Escape);
        EXPECT_FALSE(d->isVisible()) << f.nom;
        delete d;
    }
}
