// docs/architecture.md and the tree agree: a newcomer finds what the page names, and the page names what there is.
#include "support/TestSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QDir root(QStringLiteral(TARNWICK_SOURCE_DIR));

QString page()
{
    return QString::fromUtf8(fileBytes(root.filePath(u"docs/architecture.md"_s)));
}

TEST(ArchitecturePage, NamesEveryFolderAtTheTop)
{
    const QString text = page();
    for (const QString& folder : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        // What the scripts make is not part of the tree.
        if (folder != u"build"_s && folder != u"screenshots"_s) {
            EXPECT_TRUE(text.contains(u'`' + folder + u"/`"_s)) << folder.toStdString();
        }
    }
}

TEST(ArchitecturePage, NamesEveryLibrary)
{
    const QString text = page();
    QDirIterator lists(root.filePath(u"src"_s), {u"CMakeLists.txt"_s}, QDir::Files, QDirIterator::Subdirectories);
    int count = 0;
    while (lists.hasNext()) {
        const QString folder = QDir(root.filePath(u"src"_s)).relativeFilePath(QFileInfo(lists.next()).path());
        if (folder != u"."_s) {
            EXPECT_TRUE(text.contains(folder)) << folder.toStdString();
            ++count;
        }
    }
    EXPECT_GT(count, 10);
}

TEST(ArchitecturePage, NamesNoFileOrFolderThatIsNotThere)
{
    static const QRegularExpression name(u"`([a-z_]+/[A-Za-z_/.]*)`"_s);
    auto names = name.globalMatch(page());
    int count = 0;
    while (names.hasNext()) {
        const QString path = names.next().captured(1);
        bool found = false;
        for (const char* place : {"", "src/", "tests/", "app/"}) {
            for (const char* ending : {"", ".cpp", ".h"}) {
                found = found || root.exists(QLatin1String(place) + path + QLatin1String(ending));
            }
        }
        EXPECT_TRUE(found) << path.toStdString();
        ++count;
    }
    EXPECT_GE(count, 20);
}

} // namespace
