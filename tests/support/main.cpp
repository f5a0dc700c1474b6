// The main routine of the tests without windows. The user's locale comes from TARNWICK_TEST_LOCALE, so that every test
// runs with a decimal point and with a decimal comma.
#include <QCoreApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    QLocale::setDefault(QLocale(qEnvironmentVariable("TARNWICK_TEST_LOCALE", QStringLiteral("en_US"))));
    return RUN_ALL_TESTS();
}
