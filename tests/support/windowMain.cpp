// The main routine of the tests with windows.
#include "look/Theme.h"

#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    applyTheme(application);
    QLocale::setDefault(QLocale(qEnvironmentVariable("TARNWICK_TEST_LOCALE", QStringLiteral("en_US"))));
    return RUN_ALL_TESTS();
}
