#include "reseau/Reseau.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

extern "C" Q_DECL_EXPORT bool kelmor_reseau(const QUrl &adresse, int délaiMs, qint64 maxOctets, QByteArray *octets)
{
    static QNetworkAccessManager *gestionnaire = new QNetworkAccessManager(QCoreApplication::instance());
    QNetworkRequest demande(adresse);
    demande.setTransferTimeout(délaiMs);
    QNetworkReply *réponse = gestionnaire->get(demande);

    QEventLoop boucle;
    QTimer minuterie;
    minuterie.setSingleShot(true);
    bool tropLong = false;
    QObject::connect(réponse, &QNetworkReply::finished, &boucle, &QEventLoop::quit);
    QObject::connect(&minuterie, &QTimer::timeout, &boucle, &QEventLoop::quit);
    // Past the longest page there is no need to read on.
    QObject::connect(réponse, &QNetworkReply::downloadProgress, &boucle, [&](qint64 reçus, qint64) {
        if (reçus > maxOctets && !tropLong) {
            tropLong = true;
            réponse->abort();
        }
    });
    if (!réponse->isFinished()) {
        minuterie.start(délaiMs);
        // The call blocks as a whole: the player's clicks wait for its end.
        boucle.exec(QEventLoop::ExcludeUserInputEvents);
    }
    if (!réponse->isFinished())
        réponse->abort();
    const bool lue = !tropLong && réponse->error() == QNetworkReply::NoError;
    if (lue)
        *octets = réponse->readAll();
    réponse->deleteLater();
    return lue;
}
