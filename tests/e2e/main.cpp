// The main routine of the tests that drive the real browser. The engine gets a home of its own, draws without a
// graphics card, and finds no host but this machine.
#include "shell/browser/PreviewBrowser.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

void prepareEnvironment(const QString& home)
{
    const QByteArray folder = QFile::encodeName(home);
    QDir(home).mkdir(QStringLiteral("run"));
    QFile::setPermissions(home + QStringLiteral("/run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("HOME", folder);
    qputenv("XDG_CONFIG_HOME", folder + "/config");
    qputenv("XDG_CACHE_HOME", folder + "/cache");
    qputenv("XDG_DATA_HOME", folder + "/data");
    qputenv("XDG_RUNTIME_DIR", folder + "/run");
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS",
            // A test follows more links in a row than the engine believes a page to do.
            "--disable-gpu --log-level=3 --disable-ipc-flooding-protection "
            "--host-resolver-rules=\"MAP * ~NOTFOUND , EXCLUDE 127.0.0.1\"");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    prepareEnvironment(home.path());
    PreviewBrowser::prepareProcess();
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(qEnvironmentVariable("TARNWICK_TEST_LOCALE", QStringLiteral("en_US"))));
    return RUN_ALL_TESTS();
}
