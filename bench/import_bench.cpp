// The import into the window, model and tree, grows with its lines and with its categories, whatever their shape: each
// shape is imported with N and with 4 N lines, each time into an empty shop, and a line of the larger file may take
// half as much again as one of the smaller.
#include "EmptyProgram.h"
#include "base/FileBytes.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 7;
constexpr double wantedAtMost = 1.5;

struct ImportShape
{
    const char* title;
    QByteArray (*category)(int line); // the third field of a line, 0-based
    int lines;                        // N
};

QByteArray oneOfThousandRoots(int line)
{
    return "Shelf " + QByteArray::number(line % 1'000);
}

QByteArray rootOfItsOwn(int line)
{
    return "Shelf " + QByteArray::number(line);
}

QByteArray sameFiftyDeep(int /*line*/)
{
    return QByteArray("Row\\").repeated(49) + "Row";
}

QByteArray leafOfItsOwnFiftyDeep(int line)
{
    return QByteArray("Row\\").repeated(49) + "Row " + QByteArray::number(line);
}

QByteArray chainForTenLines(int line)
{
    return "Shelf " + QByteArray::number(line / 10) + QByteArray("\\Row").repeated(49);
}

QByteArray text(const ImportShape& shape, int lines)
{
    QByteArray text;
    for (int i = 0; i < lines; ++i) {
        text +=
            "Espresso cup number " + QByteArray::number(i) + ",\"Stoneware, fired twice\"," + shape.category(i) + '\n';
    }
    return text;
}

double secondsOf(const QByteArray& text)
{
    EmptyProgram program;
    const QString file = program.folder.path() + u"/lines.txt"_s;
    writeFileBytes(file, text);
    const double before = processorSeconds();
    program.import(file);
    return processorSeconds() - before;
}

} // namespace

int main(int argc, char** argv)
{
    // What one round gives back the next one takes again, so that no round pays for the system's pages.
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const ImportShape shapes[] = {
        {"1,000 root categories", oneOfThousandRoots, 12'500},
        {"a root category for each line", rootOfItsOwn, 12'500},
        {"one category, 50 deep", sameFiftyDeep, 5'000},
        {"a category for each line, 50 deep", leafOfItsOwnFiftyDeep, 5'000},
        {"50 categories in each other for ten lines", chainForTenLines, 2'500},
    };
    std::printf("%-46s %8s %10s %8s %10s\n", "processor time of an import", "lines", "", "lines", "");
    bool isLinear = true;
    for (const ImportShape& shape : shapes) {
        const QByteArray small = text(shape, shape.lines);
        const QByteArray large = text(shape, 4 * shape.lines);
        std::vector<double> ofSmall;
        std::vector<double> ofLarge;
        secondsOf(large);
        for (int round = 0; round < rounds; ++round) {
            ofSmall.push_back(secondsOf(small));
            ofLarge.push_back(secondsOf(large));
        }
        std::printf("%-46s %8d %7.1f ms %8d %7.1f ms\n", shape.title, shape.lines, median(ofSmall) * 1e3,
                    4 * shape.lines, median(ofLarge) * 1e3);
        isLinear &=
            judgeAtMost("  a line of the larger : of the smaller", median(ofLarge) / median(ofSmall) / 4, wantedAtMost);
    }
    return isLinear ? 0 : 1;
}
