// Kills the program at random moments of a day's work and looks what is left.
//
//   kills [--count N] [--seed S]          so many kills (8), one after another
//   kills --day FOLDER NUMBER SEED        a day that works until it is killed
//   kills --open FOLDER                   opens the shop once
#include "Day.h"
#include "Kills.h"
#include "look/Theme.h"

#include <QApplication>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

int runChild(const QStringList& arguments)
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, arguments[2] + u"/settings"_s);
    QLocale::setDefault(QLocale(qEnvironmentVariable("TARNWICK_TEST_LOCALE", u"en_US"_s)));
    if (arguments[1] == u"--day"_s && arguments.size() == 5) {
        return workAllDay(arguments[2], arguments[3].toInt(), arguments[4].toUInt());
    }
    return openShop(arguments[2]);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    if (arguments.size() > 2 && (arguments[1] == u"--day"_s || arguments[1] == u"--open"_s)) {
        QApplication application(argc, argv);
        applyTheme(application);
        return runChild(arguments);
    }
    const QCoreApplication application(argc, argv);
    const auto valueOf = [&](const QString& option, int otherwise) {
        const qsizetype at = arguments.indexOf(option);
        return at > 0 && at + 1 < arguments.size() ? arguments[at + 1].toInt() : otherwise;
    };
    const QTemporaryDir folder;
    Kills kills(QCoreApplication::applicationFilePath(), folder.path(),
                static_cast<std::uint32_t>(valueOf(u"--seed"_s, 1)));
    for (int count = valueOf(u"--count"_s, 8); count > 0; --count) {
        if (!kills.killOnce()) {
            return 1;
        }
    }
    kills.showFigures();
    return 0;
}
