// Reads the includes of all sources and holds them against the table in docs/architecture.md: an include goes down,
// never up and never sideways, and what needs a window stands in the upper folders only.
#include "support/TestSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Include
{
    QString file; // relative to the root of the sources
    QString header;
    bool own; // "header", not <header>
};

const QString withoutWindows = u"every folder without a window"_s;
const QString everything = u"all folders"_s;

QStringList quotedNames(const QString& text)
{
    static const QRegularExpression name(u"`([a-z_/]+)`"_s);
    QStringList names;
    for (const QRegularExpressionMatch& match : name.globalMatch(text)) {
        names << match.captured(1);
    }
    return names;
}

// The rows of the table in docs/architecture.md: which folders, and what they may include from and show icons of.
QList<std::pair<QStringList, QString>> documentedRules()
{
    static const QRegularExpression row(u"^\\| (`[^|]+) \\| ([^|]+) \\|$"_s, QRegularExpression::MultilineOption);
    const QString page = QString::fromUtf8(fileBytes(QStringLiteral(TARNWICK_SOURCE_DIR "/docs/architecture.md")));
    const QString table = page.section(u"| Folder | Knows, beside itself |"_s, 1).section(u"\n\n"_s, 0, 0);
    QList<std::pair<QStringList, QString>> rules;
    for (const QRegularExpressionMatch& match : row.globalMatch(table)) {
        rules.append({quotedNames(match.captured(1)), match.captured(2)});
    }
    return rules;
}

bool hasWindows(const QString& folder)
{
    return folder == u"look"_s || folder.startsWith(u"editors") || folder.startsWith(u"shell") ||
           folder == u"publish/dialog"_s;
}

// What each folder may include from, itself apart. A folder that is not listed is an error; each stands by itself,
// whatever folder it lies in.
QMap<QString, QStringList> readAllowedFolders()
{
    QStringList all;
    for (const auto& [folders, knows] : documentedRules()) {
        all += folders;
    }
    QMap<QString, QStringList> table;
    for (const auto& [folders, knows] : documentedRules()) {
        for (const QString& folder : folders) {
            QStringList& allowed = table[folder];
            allowed = quotedNames(knows);
            for (const QString& other : std::as_const(all)) {
                if (knows == everything || (knows.contains(withoutWindows) && !hasWindows(other))) {
                    allowed << other;
                }
            }
        }
    }
    return table;
}

const QMap<QString, QStringList>& allowedFolders()
{
    static const QMap<QString, QStringList> table = readAllowedFolders();
    return table;
}

QString folderOf(const QString& path)
{
    return path.section(u'/', 0, -2);
}

bool mayUse(const QString& from, const QString& to)
{
    return from == to || allowedFolders().value(from).contains(to);
}

QList<Include> allIncludes()
{
    static const QRegularExpression line(uR"re(^\s*#\s*include\s*([<"])([^>"]+)[>"])re"_s,
                                         QRegularExpression::MultilineOption);
    const QDir root(QStringLiteral(TARNWICK_SOURCE_DIR "/src"));
    QList<Include> includes;
    QDirIterator files(root.path(), {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString text = QString::fromUtf8(fileBytes(path));
        auto matches = line.globalMatch(text);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            includes.append({root.relativeFilePath(path), match.captured(2), match.captured(1) == u"\""_s});
        }
    }
    return includes;
}

TEST(Architecture, EverySourceFileStandsInAFolderOfTheTable)
{
    ASSERT_GE(allowedFolders().size(), 15);
    EXPECT_EQ(allowedFolders().value(u"base"_s), QStringList());
    EXPECT_EQ(allowedFolders().value(u"publish"_s), (QStringList{u"design"_s, u"base"_s}));
    for (const Include& include : allIncludes()) {
        EXPECT_TRUE(allowedFolders().contains(folderOf(include.file))) << include.file.toStdString();
    }
}

TEST(Architecture, NoIncludeRunsUpOrSideways)
{
    const QList<Include> includes = allIncludes();
    ASSERT_GT(includes.size(), 100);
    for (const Include& include : includes) {
        // A header without a folder is one that the build makes (a moc or ui file).
        if (!include.own || !include.header.contains(u'/')) {
            continue;
        }
        EXPECT_TRUE(mayUse(folderOf(include.file), folderOf(include.header)))
            << include.file.toStdString() << " includes " << include.header.toStdString();
    }
}

// The folder of the sources that each prefix of resources lies in, such as "editors" for ":/editors/submit.svg".
QMap<QString, QString> foldersOfResources()
{
    static const QRegularExpression prefix(uR"re(prefix="/([^"]+)")re"_s);
    const QDir root(QStringLiteral(TARNWICK_SOURCE_DIR "/src"));
    QMap<QString, QString> folders;
    QDirIterator lists(root.path(), {u"*.qrc"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (lists.hasNext()) {
        const QString path = lists.next();
        const QString name = prefix.match(QString::fromUtf8(fileBytes(path))).captured(1);
        EXPECT_FALSE(folders.contains(name)) << "two lists of resources under " << name.toStdString();
        folders.insert(name, folderOf(folderOf(root.relativeFilePath(path)))); // out of its folder "icons"
    }
    return folders;
}

TEST(Architecture, NoResourceIsShownFromAboveOrBeside)
{
    static const QRegularExpression use(uR"re(":/([a-z_]+)/)re"_s);
    const QMap<QString, QString> folders = foldersOfResources();
    const QDir root(QStringLiteral(TARNWICK_SOURCE_DIR "/src"));
    QDirIterator files(root.path(), {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    int count = 0;
    while (files.hasNext()) {
        const QString file = root.relativeFilePath(files.next());
        auto uses = use.globalMatch(QString::fromUtf8(fileBytes(root.filePath(file))));
        while (uses.hasNext()) {
            const QString prefix = uses.next().captured(1);
            EXPECT_TRUE(folders.contains(prefix) && mayUse(folderOf(file), folders.value(prefix)))
                << file.toStdString() << " shows a resource of " << prefix.toStdString();
            ++count;
        }
    }
    EXPECT_GE(count, 4);
}

TEST(Architecture, OnlyTheFoldersWithWindowsUseWidgets)
{
    const QDir widgetHeaders(QStringLiteral(TARNWICK_QT_HEADERS "/QtWidgets"));
    const QStringList names = widgetHeaders.entryList(QDir::Files);
    ASSERT_GT(names.size(), 100);
    const QSet<QString> widgets(names.begin(), names.end());
    for (const Include& include : allIncludes()) {
        const QString header = include.header.section(u'/', -1);
        const bool windowHeader = !include.own && (widgets.contains(header) || include.header.startsWith(u"QtWidgets"));
        if (windowHeader && !hasWindows(folderOf(include.file))) {
            ADD_FAILURE() << include.file.toStdString() << " includes <" << include.header.toStdString() << '>';
        }
    }
}

TEST(Architecture, OnlyTheBrowsersFolderUsesTheEngine)
{
    for (const Include& include : allIncludes()) {
        if (include.header.startsWith(u"QWebEngine")) {
            EXPECT_EQ(folderOf(include.file), u"shell/browser"_s) << include.file.toStdString();
        }
    }
}

TEST(Architecture, OnlyTheDialogPromptsOpenMessageInputFileAndColourBoxes)
{
    const QStringList boxes = {u"QMessageBox"_s, u"QInputDialog"_s, u"QFileDialog"_s, u"QColorDialog"_s};
    for (const Include& include : allIncludes()) {
        if (boxes.contains(include.header)) {
            EXPECT_TRUE(include.file.startsWith(u"shell/DialogPrompts")) << include.file.toStdString();
        }
    }
}

TEST(Architecture, NoSourceIncludesAllSharedRoutinesForTheSakeOfOne)
{
    for (const Include& include : allIncludes()) {
        EXPECT_NE(include.header, u"model/CommonFunctions.h"_s) << include.file.toStdString();
    }
}

} // namespace
