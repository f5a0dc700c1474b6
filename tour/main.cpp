#include "Tour.h"
#include "look/Theme.h"
#include "shell/FatalErrorBox.h"
#include "shell/browser/PreviewBrowser.h"

#include <QApplication>
#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

// What the command line asks for. It is read ahead of the application object, which takes the scale from the
// environment when it is made.
struct Options
{
    QString folder;
    QByteArray scale;
    bool dark = false;
    bool withPages = true;
    QSize size; // empty: as the program opens
};

// A width and a height in pixels, such as 1366x768; an empty size when the text is none.
QSize sizeOf(const QString& text)
{
    const QStringList sides = text.split(u'x');
    return sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize();
}

bool readOptions(const QStringList& arguments, Options& options)
{
    QCommandLineParser parser;
    parser.addPositionalArgument(u"FOLDER"_s, u"where the pictures go"_s);
    const QCommandLineOption scale(u"scale"_s, u"pixels of the screen to a pixel of the window"_s, u"factor"_s);
    const QCommandLineOption dark(u"dark"_s, u"the dark palette"_s);
    const QCommandLineOption withoutPages(u"without-pages"_s, u"the windows alone, not every page of the shop"_s);
    const QCommandLineOption size(u"size"_s, u"the window's size"_s, u"WxH"_s);
    parser.addOptions({scale, dark, withoutPages, size});
    if (!parser.parse(arguments) || parser.positionalArguments().size() != 1) {
        return false;
    }
    options = {parser.positionalArguments().front(), parser.value(scale).toLatin1(), parser.isSet(dark),
               !parser.isSet(withoutPages), sizeOf(parser.value(size))};
    return !parser.isSet(size) || !options.size.isEmpty();
}

} // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    Options options;
    if (!readOptions(arguments, options)) {
        qCritical("usage: tarnwick_tour FOLDER [--scale 1.5] [--dark] [--size 1366x768] [--without-pages]");
        return 2;
    }
    if (!options.scale.isEmpty()) {
        qputenv("QT_SCALE_FACTOR", options.scale);
    }
    PreviewBrowser::prepareProcess();
    QApplication application(argc, argv);
    applyTheme(application);
    if (options.dark) {
        showScheme(Scheme::Dark);
    }
    TourPrompts prompts;
    FatalErrorBox errors(prompts, [] { return false; });
    guarded(errors, [&] { Tour(options.folder, options.size, prompts, errors).walk(options.withPages); });
    return 0;
}
