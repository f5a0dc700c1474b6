// The main routine of the tests of the upload dialog and its network. Nothing of them leaves this machine.
#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    for (const char* proxy : {"http_proxy", "HTTP_PROXY", "all_proxy", "ALL_PROXY"}) {
        qunsetenv(proxy);
    }
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(qEnvironmentVariable("TARNWICK_TEST_LOCALE", QStringLiteral("en_US"))));
    return RUN_ALL_TESTS();
}
