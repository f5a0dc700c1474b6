// The monkey: presses at random on the real window and finds crashes, hangs, and errors that are none of the program's.
//
//   monkey [--seed N] [--seconds S] [--steps N]     runs from seed N on, until the time is over; --jobs at a time,
//                                                   --talk tells of each, --on goes on after a defect,
//                                                   --careful plays the careful owner
//   monkey --alone --folder F --seed N [--steps N]  one run in this process, to look at a defect
//   monkey --check --folder F                       opens the shop that the run has left, with what was not saved, and
//                                                   saves it
#include "Run.h"
#include "Runs.h"
#include "look/Theme.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// For the runs, and for one that is seen again: the same order of hashes each time, a stack when the watchdog ends it,
// and no way out, neither to other hosts nor to other programs.
void setEnvironment()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_HASH_SEED", "0");
    qputenv("ASAN_OPTIONS", qgetenv("ASAN_OPTIONS") + ":handle_abort=1");
    qputenv("http_proxy", "http://127.0.0.1:1");
    qputenv("no_proxy", "127.0.0.1");
}

void addOptions(QCommandLineParser& parser)
{
    parser.addOptions({{u"seed"_s, u"The first run's."_s, u"N"_s, u"1"_s},
                       {u"seconds"_s, u"No new run is begun after this time."_s, u"S"_s, u"20"_s},
                       {u"steps"_s, u"Of a run."_s, u"N"_s, u"150"_s},
                       {u"jobs"_s, u"Runs at a time."_s, u"N"_s, u"4"_s},
                       {u"talk"_s, u"Tell the end of each run."_s},
                       {u"on"_s, u"Go on after a defect."_s},
                       {u"wild"_s, u"Play wild hands, which do anything; so it is unless told otherwise."_s},
                       {u"careful"_s, u"Play the careful owner, who types what each field asks for."_s},
                       {u"alone"_s, u"One run in this process."_s},
                       {u"check"_s, u"Open and save, in this process, the shop that a run has left."_s},
                       {u"folder"_s, u"Of that run."_s, u"FOLDER"_s}});
}

} // namespace

int main(int argc, char** argv)
{
    setEnvironment();
    QCommandLineParser parser;
    addOptions(parser);
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    if (!parser.parse(arguments) ||
        parser.isSet(u"folder"_s) != (parser.isSet(u"alone"_s) || parser.isSet(u"check"_s))) {
        std::fprintf(stderr, "%s\n%s", qPrintable(parser.errorText()), qPrintable(parser.helpText()));
        return 2;
    }
    const std::uint32_t seed = parser.value(u"seed"_s).toUInt();
    const int steps = parser.value(u"steps"_s).toInt();

    if (parser.isSet(u"folder"_s)) {
        QApplication application(argc, argv);
        QApplication::setQuitOnLastWindowClosed(false);
        applyTheme(application);
        QLocale::setDefault(QLocale(qEnvironmentVariable("TARNWICK_TEST_LOCALE", u"en_US"_s)));
        const QString folder = parser.value(u"folder"_s);
        const PlayedBy player = parser.isSet(u"careful"_s) ? PlayedBy::CarefulOwner : PlayedBy::WildHands;
        return parser.isSet(u"check"_s) ? checkShop(folder) : runMonkey(folder, seed, steps, player);
    }
    const QCoreApplication application(argc, argv);
    // Asked for here: the library makes the path when it is first asked, and not for several threads at once.
    const QString program = QCoreApplication::applicationFilePath();
    Runs runs(program, {seed, parser.value(u"seconds"_s).toInt(), steps, parser.value(u"jobs"_s).toInt(),
                        parser.isSet(u"careful"_s), parser.isSet(u"talk"_s), parser.isSet(u"on"_s)});
    return runs.runAll() ? 0 : 1;
}
