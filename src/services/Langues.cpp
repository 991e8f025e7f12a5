#include "services/Langues.h"

#include "engine/communs.h"

#include "services/TableChaines.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

TLangues &Langues()
{
    static TLangues langues;
    return langues;
}

namespace {
// The buttons of the message boxes and dialogs speak the language too.
void TraductionsQt()
{
    static QTranslator *traduction = nullptr;
    if (!QCoreApplication::instance())
        return;
    if (!traduction) {
        traduction = new QTranslator(QCoreApplication::instance());
        QCoreApplication::installTranslator(traduction);
    }
    // An empty translator leaves Qt's own English: the French one is loaded for French too.
    const QString nom = Langues().Langue == 2 ? QStringLiteral("qtbase_de") : QStringLiteral("qtbase_fr");
    if (!traduction->load(nom, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        return;
    QCoreApplication::removeTranslator(traduction);
    QCoreApplication::installTranslator(traduction);
}

} // namespace

void ChargeMessages()
{
    for (int i = 0; i <= Langues().NombreMessages; ++i)
        Langues().Messages[i] = ChaîneTable(1000 + i + 250 * (Langues().Langue - 1));
    TraductionsQt();
    // Open windows that keep their own words (the weak-spot map, the progress chart, what a
    // screen reader is told) hear of the change as Qt's own widgets do, even when Qt's
    // translations are missing.
    if (QCoreApplication::instance())
        QCoreApplication::postEvent(QCoreApplication::instance(), new QEvent(QEvent::LanguageChange));
}

void ChargeChaînes()
{
    Langues().NombreMessages = static_cast<short>(ValeurEnTête(ChaîneTable(1)));
    Langues().Messages.assign(Langues().NombreMessages + 1, QString());
    Langues().NombreLangues = static_cast<unsigned char>(ValeurEnTête(ChaîneTable(2)));
    if (Langues().Langue > Langues().NombreLangues)
        Langues().Langue = 1;
    Langues().NomsFichiersAide.assign(Langues().NombreLangues + 1, QString());
    Langues().NomsFichiersInfo.assign(Langues().NombreLangues + 1, QString());
    Langues().CheminsInfo.assign(Langues().NombreLangues + 1, QString());
    ChargeMessages();
    for (int i = 1; i <= Langues().NombreLangues; ++i) {
        Langues().NomsFichiersAide[i] = ChaîneTable(10 + i);
        Langues().NomsFichiersInfo[i] = ChaîneTable(20 + i);
    }
}

QString NomImagePays(int k, int langue)
{
    return QStringLiteral("pays%1_%2").arg(k, 2, 10, QLatin1Char('0')).arg(langue == 2 ? "de" : "fr");
}
