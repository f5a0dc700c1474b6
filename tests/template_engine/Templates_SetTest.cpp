#include "template_engine/Templates_Set.h"

#include "support/TestSupport.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QStringList Pages{u"main"_s,   u"footer"_s, u"menu"_s,   u"category"_s,   u"product"_s,
                        u"search"_s, u"cart"_s,   u"header"_s, u"custompage"_s, u"checkout"_s};

// A folder with all eleven templates, each showing its own name and the variable x.
class TemplatesSet : public testing::Test
{
protected:
    TemplatesSet()
    {
        for (const QString& page : Pages + QStringList{u"layout"_s}) {
            write(page, "<!--1.2.0-->\r\n" + page.toUtf8() + " <!--:x=-:-->\r\n");
        }
    }

    void write(const QString& page, const QByteArray& bytes)
    {
        writeFile(shop.path(u"templates/"_s + page + u".html"_s), bytes);
    }
    void remove(const QString& page) { QFile::remove(shop.path(u"templates/"_s + page + u".html"_s)); }

    QString logged() const { return QString::fromUtf8(fileBytes(shop.folder().loadLogFile())); }

    // The keys of all templates that are there.
    QStringList present() const
    {
        QStringList keys;
        for (const QString& page : Pages) {
            if (set.templates.hasKey(page)) {
                keys += page;
            }
        }
        EXPECT_EQ(set.templates.Count(), keys.size());
        return keys;
    }

    QString expand(const Template& page)
    {
        Variables variables(set.names);
        return page.Get_String(variables);
    }

    TemporaryShopFolder shop;
    LoadLog log{shop.folder()};
    Templates_Set set{shop.folder(), log, {u"layout"_s, Pages}};
};

} // namespace

TEST_F(TemplatesSet, ThePathIsTheTemplatesFolderAndCanBeChanged)
{
    EXPECT_EQ(set.Path, shop.folder().templatesFolder());
    EXPECT_TRUE(set.Path.endsWith(QDir::separator()));

    const TemporaryShopFolder other;
    writeFile(other.path(u"templates/main.html"_s), "other\r\n");
    set.Path = other.folder().templatesFolder();
    set.ReLoad(u"main"_s, u"main"_s);
    EXPECT_EQ(set.templates.Item(u"main"_s)->template_text, u"other\r"_s);
}

TEST_F(TemplatesSet, NothingIsThereBeforeItIsRead)
{
    EXPECT_EQ(set.layout_template, nullptr);
    EXPECT_TRUE(set.templates.isEmpty());
}

TEST_F(TemplatesSet, TheFrameAndTheTenPagesAreReadAndParsed)
{
    set.parseTemplates();
    EXPECT_EQ(present(), Pages);
    for (const QString& page : Pages) {
        const Template& parsed = *set.templates.Item(page);
        EXPECT_EQ(parsed.template_text, u"<!--1.2.0-->\r%1 <!--:x=-:-->\r"_s.arg(page));
        EXPECT_EQ(expand(parsed), u"<!--1.2.0-->\r%1 -\r"_s.arg(page));
    }
    ASSERT_NE(set.layout_template, nullptr);
    EXPECT_EQ(expand(*set.layout_template), u"<!--1.2.0-->\rlayout -\r"_s);
    EXPECT_FALSE(set.templates.hasKey(u"layout"_s));
    EXPECT_EQ(logged(), u"\"Start parseTemplates\"\r\n\"End parseTemplates\"\r\n"_s);
}

TEST_F(TemplatesSet, OtherFilesOfTheFolderAreNotRead)
{
    write(u"buying"_s, "<!--:");
    write(u"main.html.def"_s, "<!--:");
    set.parseTemplates();
    EXPECT_EQ(present(), Pages);
    EXPECT_FALSE(set.templates.hasKey(u"buying"_s));
}

TEST_F(TemplatesSet, AMissingPageEndsTheReadingSilentlyAndKeepsWhatWasRead)
{
    remove(u"category"_s);
    set.parseTemplates();
    EXPECT_EQ(present(), (QStringList{u"main"_s, u"footer"_s, u"menu"_s}));
    EXPECT_EQ(expand(*set.templates.Item(u"menu"_s)), u"<!--1.2.0-->\rmenu -\r"_s);
    EXPECT_NE(set.layout_template, nullptr);
    EXPECT_EQ(logged(), u"\"Start parseTemplates\"\r\n"_s);
}

TEST_F(TemplatesSet, AbsentPagesAreReadOnceMoreEachByItself)
{
    write(u"footer"_s, "<!--:if:x:-->");
    remove(u"search"_s);
    set.parseTemplates();
    write(u"main"_s, "<!--:"); // is in the set and stays
    set.reloadAbsent();
    QStringList expected = Pages;
    expected.removeOne(u"footer"_s);
    expected.removeOne(u"search"_s);
    EXPECT_EQ(present(), expected);
    EXPECT_EQ(set.textOfFile(u"footer"_s), u"<!--:if:x:-->\r"_s);
    EXPECT_EQ(errorOf([this] { set.textOfFile(u"search"_s); }), 53);

    write(u"footer"_s, "whole");
    set.reloadAbsent();
    expected.insert(1, u"footer"_s);
    EXPECT_EQ(present(), expected);
}

TEST_F(TemplatesSet, APageThatIsNotClosedEndsTheReadingSilently)
{
    write(u"footer"_s, "<!--:if:x:-->");
    set.parseTemplates();
    EXPECT_EQ(present(), QStringList{u"main"_s});
    EXPECT_EQ(logged(), u"\"Start parseTemplates\"\r\n"_s);
}

TEST_F(TemplatesSet, APageWithATagPastTheLimitEndsTheReadingSilently)
{
    write(u"checkout"_s, QByteArray(32767, '.') + "<!--:x:-->");
    set.parseTemplates();
    EXPECT_EQ(present(), Pages.mid(0, 9));
}

TEST_F(TemplatesSet, AMissingFrameLeavesEverythingAbsent)
{
    remove(u"layout"_s);
    set.parseTemplates();
    EXPECT_EQ(present(), QStringList());
    EXPECT_EQ(set.layout_template, nullptr);
}

TEST_F(TemplatesSet, AFrameThatIsNotClosedKeepsItsTextAndThePagesOfBefore)
{
    set.parseTemplates();
    write(u"layout"_s, "<!--:x");
    set.parseTemplates();
    ASSERT_NE(set.layout_template, nullptr);
    EXPECT_EQ(set.layout_template->template_text, u"<!--:x\r"_s);
    EXPECT_EQ(present(), Pages);
}

TEST_F(TemplatesSet, ReadingAllAgainTakesTheNewFiles)
{
    set.parseTemplates();
    write(u"main"_s, "new");
    remove(u"menu"_s);
    set.parseTemplates();
    EXPECT_EQ(present(), (QStringList{u"main"_s, u"footer"_s}));
    EXPECT_EQ(set.templates.Item(u"main"_s)->template_text, u"new\r"_s);
}

TEST_F(TemplatesSet, ALogThatCannotBeWrittenEndsTheReadingSilentlyToo)
{
    QDir().mkdir(shop.folder().loadLogFile());
    set.parseTemplates();
    EXPECT_EQ(present(), QStringList());
}

TEST_F(TemplatesSet, AReloadTakesTheFileAsItIsNow)
{
    set.parseTemplates();
    write(u"main"_s, "new <!--:x=1:-->\r\n");
    EXPECT_EQ(set.templates.Item(u"main"_s)->template_text, u"<!--1.2.0-->\rmain <!--:x=-:-->\r"_s);
    set.ReLoad(u"main"_s, u"main"_s);
    EXPECT_EQ(expand(*set.templates.Item(u"main"_s)), u"new 1\r"_s);
    EXPECT_EQ(present(), Pages);
    // The reading of one page is not logged.
    EXPECT_EQ(logged(), u"\"Start parseTemplates\"\r\n\"End parseTemplates\"\r\n"_s);
}

TEST_F(TemplatesSet, AReloadOfAKeyThatIsNotThereAddsIt)
{
    set.ReLoad(u"menu"_s, u"menu"_s);
    EXPECT_EQ(present(), QStringList{u"menu"_s});
    set.ReLoad(u"menu"_s, u"another"_s);
    EXPECT_EQ(set.templates.Item(u"another"_s)->template_text, set.templates.Item(u"menu"_s)->template_text);
}

TEST_F(TemplatesSet, AReloadThatFailsLeavesThePageAbsent)
{
    set.parseTemplates();
    write(u"main"_s, "<!--:if:x:-->");
    EXPECT_EQ(errorOf([&] { set.ReLoad(u"main"_s, u"main"_s); }), 5);
    EXPECT_FALSE(set.templates.hasKey(u"main"_s));
    remove(u"cart"_s);
    EXPECT_EQ(errorOf([&] { set.ReLoad(u"cart"_s, u"cart"_s); }), 53);
    EXPECT_FALSE(set.templates.hasKey(u"cart"_s));
    write(u"menu"_s, QByteArray(40000, '.') + "<!--:x:-->");
    EXPECT_EQ(errorOf([&] { set.ReLoad(u"menu"_s, u"menu"_s); }), 6);
    EXPECT_EQ(set.templates.Count(), 7);

    write(u"main"_s, "well again");
    set.ReLoad(u"main"_s, u"main"_s);
    EXPECT_EQ(set.templates.Item(u"main"_s)->template_text, u"well again\r"_s);
}

TEST_F(TemplatesSet, LinesEndAtCrLfOrCrAndEachIsFollowedByOneCr)
{
    const struct
    {
        QByteArray bytes;
        QString text;
    } cases[] = {
        {"", u""_s},
        {"a", u"a\r"_s},
        {"a\r\n", u"a\r"_s},
        {"a\r", u"a\r"_s},
        {"a\r\nb", u"a\rb\r"_s},
        {"a\rb\r", u"a\rb\r"_s},
        // A lone LF ends no line and stays.
        {"a\nb", u"a\nb\r"_s},
        {"a\n", u"a\n\r"_s},
        {"a\n\r\n", u"a\n\r"_s},
        // An empty last line stays as a CR of its own.
        {"a\r\n\r\n", u"a\r\r"_s},
        {"a\r\r", u"a\r\r"_s},
        {"\r\n", u"\r"_s},
        {"a\r\r\n", u"a\r\r"_s},
        {"a\n\r", u"a\n\r"_s},
    };
    for (const auto& one : cases) {
        write(u"main"_s, one.bytes);
        set.ReLoad(u"main"_s, u"main"_s);
        EXPECT_EQ(set.templates.Item(u"main"_s)->template_text, one.text)
            << one.bytes.toPercentEncoding().toStdString();
    }
}

TEST_F(TemplatesSet, AnEmptyFileIsAnEmptyTemplate)
{
    write(u"main"_s, "");
    set.ReLoad(u"main"_s, u"main"_s);
    const Template& page = *set.templates.Item(u"main"_s);
    EXPECT_EQ(upperBound(page.parts()), 0);
    EXPECT_EQ(expand(page), u""_s);
}

TEST_F(TemplatesSet, TheEncodingOfEachFileIsKnown)
{
    EXPECT_EQ(set.encodingOf(u"main"_s), TextEncoding::Utf8);
    write(u"main"_s, "caf\xE9 \x80");
    write(u"menu"_s, "caf\xC3\xA9");
    write(u"cart"_s, "\xEF\xBB\xBF<!--:x=1:-->");
    set.parseTemplates();
    EXPECT_EQ(set.templates.Item(u"main"_s)->template_text, u"café €\r"_s);
    EXPECT_EQ(set.encodingOf(u"main"_s), TextEncoding::Windows1252);
    EXPECT_EQ(set.templates.Item(u"menu"_s)->template_text, u"café\r"_s);
    EXPECT_EQ(set.encodingOf(u"menu"_s), TextEncoding::Utf8);
    EXPECT_EQ(expand(*set.templates.Item(u"cart"_s)), u"1\r"_s);
    EXPECT_EQ(set.encodingOf(u"layout"_s), TextEncoding::Utf8);

    // It follows the file, and is known of a file that is no template too.
    write(u"main"_s, "caf\xC3\xA9");
    set.ReLoad(u"main"_s, u"main"_s);
    EXPECT_EQ(set.encodingOf(u"main"_s), TextEncoding::Utf8);
    write(u"main"_s, "\xE9<!--:");
    EXPECT_EQ(errorOf([&] { set.ReLoad(u"main"_s, u"main"_s); }), 5);
    EXPECT_EQ(set.encodingOf(u"main"_s), TextEncoding::Windows1252);
}

TEST_F(TemplatesSet, KnowsWhetherAFileChangedSinceItWasRead)
{
    set.parseTemplates();
    EXPECT_FALSE(set.isChangedOutside(u"main"_s));
    write(u"main"_s, "other");
    EXPECT_TRUE(set.isChangedOutside(u"main"_s));
    EXPECT_FALSE(set.isChangedOutside(u"menu"_s));
    set.ReLoad(u"main"_s, u"main"_s);
    EXPECT_FALSE(set.isChangedOutside(u"main"_s));
    write(u"main"_s, "<!--:");
    EXPECT_EQ(errorOf([&] { set.ReLoad(u"main"_s, u"main"_s); }), 5);
    EXPECT_FALSE(set.isChangedOutside(u"main"_s)); // it was read, though it is no template
    remove(u"main"_s);
    EXPECT_FALSE(set.isChangedOutside(u"main"_s));
}

TEST_F(TemplatesSet, IsToldOfAFileThatCameLater)
{
    remove(u"main"_s);
    set.parseTemplates();
    EXPECT_FALSE(set.isChangedOutside(u"main"_s));
    write(u"main"_s, "new");
    EXPECT_TRUE(set.isChangedOutside(u"main"_s));
}

TEST_F(TemplatesSet, ToldOfAMistakeNamesTheTemplateAndTheLine)
{
    write(u"menu"_s, "<!--1.2.0-->\r\nfirst\nsecond <!--:if:x=1:--> never closed\r\n");
    EXPECT_EQ(circumstancesOf([&] { set.ReLoad(u"menu"_s, u"menu"_s); }),
              QStringList{u"Line 3 of the template \"menu.html\" is not understood."_s});
    write(u"cart"_s, "<!--:");
    EXPECT_EQ(circumstancesOf([&] { set.ReLoad(u"cart"_s, u"cart"_s); }),
              QStringList{u"Line 1 of the template \"cart.html\" is not understood."_s});
}
