#include "screen/Aide.h"

#include "platform/Formes.h"
#include "services/Langues.h"
#include "services/Parametres.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPointer>
#include <QTextBrowser>
#include <QUrl>

int ContexteDe(QWidget *contrôle);

namespace {
std::function<void(int)> aideScriptée;
QPointer<QTextBrowser> fenêtre;

// F1 anywhere in the program: the context of the form or control that has the focus.
class ToucheAide : public QObject {
protected:
    bool eventFilter(QObject *objet, QEvent *e) override
    {
        if (e->type() != QEvent::KeyPress)
            return false;
        auto *touche = static_cast<QKeyEvent *>(e);
        // The key reaches the window's system object before the control that has the
        // focus: wait for the control, whose context is the one the player asks for.
        if (touche->key() != Qt::Key_F1 || !objet->isWidgetType())
            return false;
        if (!touche->isAutoRepeat())
            OuvreAide(ContexteDe(static_cast<QWidget *>(objet)));
        return true;
    }
};
} // namespace

QString PageAide(int contexte)
{
    // Each language's help is a folder of pages named after their contexts.
    const QString langue = Langues().FichierAide.endsWith(QLatin1String("DRAVELN.HLP"), Qt::CaseInsensitive) ? QStringLiteral("de")
                                                                                                    : QStringLiteral("fr");
    return Réglages().RépertoireDonnées + QStringLiteral("/aide/") + langue + QStringLiteral("/aide_%1.html").arg(contexte);
}

int ContexteDe(QWidget *contrôle)
{
    // The control's own context, or that of the first form or control above it.
    for (QWidget *w = contrôle; w; w = w->parentWidget()) {
        const int c = w->property("HelpContextID").toInt();
        if (c > 0)
            return c;
    }
    const QWidget *principale = FenêtrePrincipale();
    const int c = principale ? principale->property("HelpContextID").toInt() : 0;
    return c > 0 ? c : 10;
}

void OuvreAide(int contexte)
{
    if (aideScriptée) {
        aideScriptée(contexte);
        return;
    }
    QString page = PageAide(contexte);
    if (!QFileInfo::exists(page))
        page = PageAide(10);
    // Over a modal form the help window belongs to it, so the player can still scroll
    // and close it while the form waits.
    QWidget *propriétaire = QApplication::activeModalWidget();
    if (fenêtre && fenêtre->parentWidget() != propriétaire)
        fenêtre->setParent(propriétaire, Qt::Window);
    if (!fenêtre) {
        fenêtre = new QTextBrowser(propriétaire);
        fenêtre->setObjectName(QStringLiteral("Aide"));
        fenêtre->setWindowFlag(Qt::Window);
        fenêtre->setAttribute(Qt::WA_DeleteOnClose);
        fenêtre->setOpenExternalLinks(false);
        fenêtre->resize(640, 560);
    }
    fenêtre->setSource(QUrl::fromLocalFile(page));
    // The topic stands in the title, as in the desktop's own help viewers.
    const QString aide = Langues().Messages.size() > 67 ? Message(TMessage::Aide) : QStringLiteral("Aide");
    const QString sujet = fenêtre->documentTitle();
    fenêtre->setWindowTitle(sujet.isEmpty() ? aide : aide + QStringLiteral(" - ") + sujet);
    fenêtre->show();
    fenêtre->raise();
    fenêtre->activateWindow();
}

void InstalleToucheAide()
{
    static ToucheAide *filtre = nullptr;
    if (!filtre) {
        filtre = new ToucheAide();
        qApp->installEventFilter(filtre);
    }
}

void InstalleAide(std::function<void(int)> aide) { aideScriptée = std::move(aide); }
