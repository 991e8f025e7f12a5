#include "services/Langues.h"

#include "engine/communs.h"

#include "services/TableChaines.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

std::vector<QString> Messages(170);
short NombreMessages = 169;
unsigned char NombreLangues = 2;
short Langue = 1;
std::vector<QString> NomsFichiersAide;
std::vector<QString> NomsFichiersInfo;
std::vector<QString> CheminsInfo;
QString FichierAide;

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
    const QString nom = Langue == 2 ? QStringLiteral("qtbase_de") : QStringLiteral("qtbase_fr");
    if (!traduction->load(nom, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        return;
    QCoreApplication::removeTranslator(traduction);
    QCoreApplication::installTranslator(traduction);
}

} // namespace

void ChargeMessages()
{
    for (int i = 0; i <= NombreMessages; ++i)
        Messages[i] = ChaîneTable(1000 + i + 250 * (Langue - 1));
    TraductionsQt();
}

void ChargeChaînes()
{
    NombreMessages = static_cast<short>(ValeurEnTête(ChaîneTable(1)));
    Messages.assign(NombreMessages + 1, QString());
    NombreLangues = static_cast<unsigned char>(ValeurEnTête(ChaîneTable(2)));
    if (Langue > NombreLangues)
        Langue = 1;
    NomsFichiersAide.assign(NombreLangues + 1, QString());
    NomsFichiersInfo.assign(NombreLangues + 1, QString());
    CheminsInfo.assign(NombreLangues + 1, QString());
    ChargeMessages();
    for (int i = 1; i <= NombreLangues; ++i) {
        NomsFichiersAide[i] = ChaîneTable(10 + i);
        NomsFichiersInfo[i] = ChaîneTable(20 + i);
    }
}

QString NomImagePays(int k, int langue)
{
    return QStringLiteral("pays%1_%2").arg(k, 2, 10, QLatin1Char('0')).arg(langue == 2 ? "de" : "fr");
}
