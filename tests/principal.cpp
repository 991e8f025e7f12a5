// Every test program runs with a QApplication on the offscreen platform, and the
// settings reach the folder form as the program's start wires them.
#include "screen/ParametrageRepertoires.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    InstalleChoixDossier(MontreParamétrageRépertoires);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
