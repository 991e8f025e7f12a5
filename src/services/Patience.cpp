#include "services/Patience.h"

#include "services/Langues.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QScreen>

namespace {
QPointer<QLabel> patience;
}

void AffichePatience()
{
    if (patience)
        return;
    patience = new QLabel();
    patience->setObjectName(QStringLiteral("Patience"));
    patience->setWindowFlags(Qt::SplashScreen);
    patience->setText(Messages.size() > 91 ? Messages[91] : QString());
    patience->setAlignment(Qt::AlignCenter);
    patience->setMargin(24);
    patience->adjustSize();
    if (const QScreen *s = QGuiApplication::primaryScreen())
        patience->move(s->geometry().center() - patience->rect().center());
    patience->show();
    patience->repaint();
}

void FermePatience()
{
    // Deleted now: a deferred deletion asked for inside the first show would wait for a later loop.
    delete patience.data();
    patience = nullptr;
}
