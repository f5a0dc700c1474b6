// docs/architecture.md and the tree agree: a newcomer finds what the page names, and the page names what there is.
#include "support/TestSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QDir projectFolder(QStringLiteral(TARNWICK_SOURCE_DIR));

QString page()
{
    return QString::fromUtf8(fileBytes(projectFolder.filePath(u"docs/architecture.md"_s)));
}

TEST(ArchitecturePage, NamesEveryFolderAtTheTop)
{
    const QString text = page();
    for (const QString& folder : projectFolder.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        // What the scripts make is not part of the tree.
        if (folder != u"build"_s && folder != u"screenshots"_s) {
            EXPECT_TRUE(text.contains(u'`' + folder + u"/`"_s)) << folder.toStdString();
        }
    }
}

// The folders below src/ that hold sources.
QStringList sourceFolders()
{
    const QDir sources(projectFolder.filePath(u"src"_s));
    QSet<QString> folders;
    QDirIterator files(sources.path(), {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        folders.insert(sources.relativeFilePath(QFileInfo(files.next()).path()));
    }
    QStringList sorted(folders.begin(), folders.end());
    sorted.sort();
    return sorted;
}

TEST(ArchitecturePage, DrawsEveryFolderOfTheSourcesAndNoOther)
{
    static const QRegularExpression drawn(u"^    [ |]*([a-z_]+(?:/[a-z_]+)*)  "_s, QRegularExpression::MultilineOption);
    const QString picture = page().section(u"## The folders"_s, 1).section(u"An include goes down"_s, 0, 0);
    QStringList names;
    for (const QRegularExpressionMatch& match : drawn.globalMatch(picture)) {
        names << match.captured(1);
    }
    names.sort();
    EXPECT_EQ(names, sourceFolders());
}

TEST(ArchitecturePage, NamesNoFileOrFolderThatIsNotThere)
{
    static const QRegularExpression name(u"`([a-z_]+/[A-Za-z_/.-]*)`"_s);
    auto names = name.globalMatch(page());
    int count = 0;
    while (names.hasNext()) {
        const QString path = names.next().captured(1);
        bool found = false;
        for (const char* place : {"", "src/", "tests/", "app/"}) {
            for (const char* ending : {"", ".cpp", ".h"}) {
                found = found || projectFolder.exists(QLatin1String(place) + path + QLatin1String(ending));
            }
        }
        EXPECT_TRUE(found) << path.toStdString();
        ++count;
    }
    EXPECT_GE(count, 60);
}

} // namespace
