// The file of a template: how it is read and written, and how its factory copy takes its place.
#include "TemplatesTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class TemplateFiles : public TemplatesTest
{
};

TEST_F(TemplateFiles, AreRestoredByTheirButtonWithoutAQuestion)
{
    edit(category);
    appendToTemplate(u"more"_s);
    pressIn("SaveTemplteBtn");
    pressIn("RestoreTemplateBtn");
    EXPECT_EQ(templateFile("category"), fileBytes(factoryPathOf("category")));
    EXPECT_TRUE(isEditable());
    EXPECT_FALSE(field()->toPlainText().contains(u"more\n"_s));
}

TEST_F(TemplateFiles, CannotBeRestoredWithoutTheirFactoryCopy)
{
    edit(category);
    QFile::remove(factoryPathOf("category"));
    const QByteArray before = templateFile("category");
    pressIn("RestoreTemplateBtn");
    EXPECT_EQ(errors.numbers, std::vector<int>{53});
    EXPECT_EQ(templateFile("category"), before);
}

TEST_F(TemplateFiles, ThatAreBrokenAreWrittenAndThenFailToBeRead)
{
    edit(category);
    appendToTemplate(openBlock);
    pressIn("SaveTemplteBtn");
    EXPECT_EQ(errors.numbers, std::vector<int>{5});
    EXPECT_TRUE(templateFile("category").endsWith("<!--:if:open=Yes:-->\r\n"));
    EXPECT_FALSE(hasTemplate("category"));
}

TEST_F(TemplateFiles, AreWrittenBackInTheirEncoding)
{
    editCategoryTemplate("Gr\xFC\xDF"
                         "e\r\n");
    appendToTemplate(u"\u00e9"_s);
    pressIn("SaveTemplteBtn");
    EXPECT_EQ(templateFile("category"), "Gr\xFC\xDF"
                                        "e\r\n\xE9\r\n");
    // A letter that this encoding does not have.
    appendToTemplate(u"\u4f60"_s);
    pressIn("SaveTemplteBtn");
    EXPECT_EQ(templateFile("category"), u"Gr\u00fc\u00dfe\r\n\u00e9\u4f60\r\n"_s.toUtf8());
}

TEST_F(TemplateFiles, KeepTheirNonBreakingBlanks)
{
    editCategoryTemplate("a\xC2\xA0"
                         "b\r\n");
    pressIn("SaveTemplteBtn");
    EXPECT_EQ(templateFile("category"), "a\xC2\xA0"
                                        "b\r\n\r\n");
}

TEST_F(TemplateFiles, EndALineByShiftAndEnterToo)
{
    editCategoryTemplate("one");
    field()->moveCursor(QTextCursor::End);
    QTest::keyClick(field(), Qt::Key_Return, Qt::ShiftModifier);
    pressKeys(field(), u"two"_s);
    pressIn("SaveTemplteBtn");
    EXPECT_EQ(templateFile("category"), "one\r\n\r\ntwo\r\n");
}

TEST_F(TemplateFiles, AreWrittenWithCrLfWhateverTheirLineEnds)
{
    editCategoryTemplate("one\ntwo\rthree\r\nfour");
    pressIn("SaveTemplteBtn");
    EXPECT_EQ(templateFile("category"), "one\r\ntwo\r\nthree\r\nfour\r\n\r\n");
}

TEST_F(TemplateFiles, ThatTheSetDoesNotHaveAreReadOnceMore)
{
    writeFile(pathOf("category"), "from the file\r\n");
    set().templates.Remove(u"category"_s);
    openInDesign(category.button);
    EXPECT_EQ(templateText("category"), u"from the file\r"_s);
    EXPECT_EQ(state(), noMistakes);
    EXPECT_TRUE(errors.numbers.empty());
}

// A file that another program mended, or broke, is left alone as long as its page is in the set.
TEST_F(TemplateFiles, ThatTheSetHasAreNotReadAgain)
{
    writeFile(pathOf("category"), "<!--:");
    writeFile(pathOf("menu"), "<!--:");
    set().templates.Remove(u"search"_s);
    openInDesign(category.button);
    EXPECT_FALSE(hasTemplate("search"));
    EXPECT_TRUE(hasTemplate("menu"));
    EXPECT_EQ(state(), noMistakes);
}

} // namespace
