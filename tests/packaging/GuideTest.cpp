// The user guide as HTML: every page is there, and nothing on it leads to what is not there or needs a network.
#include "support/TestSupport.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QDir root(QStringLiteral(TARNWICK_SOURCE_DIR));

class Guide : public testing::Test
{
protected:
    void SetUp() override
    {
        QProcess making;
        making.setProcessChannelMode(QProcess::MergedChannels);
        making.start(QStringLiteral(TARNWICK_CMAKE),
                     {u"-DCMARK=" TARNWICK_CMARK ""_s, u"-DFROM="_s + root.filePath(u"docs"_s),
                      u"-DTO="_s + folder.path(), u"-P"_s, root.filePath(u"cmake/MakeGuide.cmake"_s)});
        ASSERT_TRUE(making.waitForFinished(60'000));
        ASSERT_EQ(making.exitCode(), 0) << making.readAll().toStdString();
        pages = QDir(folder.path()).entryList({u"*.html"_s});
    }
    QString text(const QString& page) const { return QString::fromUtf8(fileBytes(folder.filePath(page))); }

    QTemporaryDir folder;
    QStringList pages;
};

TEST_F(Guide, HasAPageForEachPageThatIsWritten)
{
    EXPECT_TRUE(pages.contains(u"index.html"_s));
    for (QString page : QDir(root.filePath(u"docs/guide"_s)).entryList({u"*.md"_s})) {
        page.replace(u".md"_s, u".html"_s).replace(u"README"_s, u"index"_s);
        EXPECT_TRUE(pages.contains(page)) << page.toStdString();
    }
}

TEST_F(Guide, LeadsOnlyToFilesBesideIt)
{
    static const QRegularExpression reference(u"(?:href|src)=\"([^\"]*)\""_s);
    int count = 0;
    for (const QString& page : pages) {
        auto references = reference.globalMatch(text(page));
        while (references.hasNext()) {
            const QString target = references.next().captured(1).section(u'#', 0, 0);
            ++count;
            EXPECT_TRUE(QFileInfo(folder.filePath(target)).isFile())
                << page.toStdString() << " leads to " << target.toStdString();
        }
    }
    EXPECT_GT(count, 30);
}

TEST_F(Guide, ShowsTablesAndATitleOnEachPage)
{
    EXPECT_TRUE(text(u"index.html"_s).contains(u"<table>"_s));
    for (const QString& page : pages) {
        EXPECT_FALSE(text(page).contains(u"<title></title>"_s)) << page.toStdString();
        EXPECT_FALSE(text(page).contains(u"|---"_s)) << page.toStdString();
    }
}

} // namespace
