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

// Changed by another program ------------------------------------------------------------------------------------------

// A manager that writes the template with the panel: what another program made of its file.
class ChangedTemplateFiles : public TemplatesTest
{
protected:
    void leave() { openManager("CategoryPageDesignSBtn"); }
    void answerOverwriting(bool answer)
    {
        prompts.answerDefaultNo(u"Ambrel eCommerce Software"_s,
                                u"The template was changed by another program. Overwrite it?"_s, answer);
    }

    const ManagerCase footer = managers[2];
    const QByteArray theirs = "by another program";
};

TEST_F(ChangedTemplateFiles, StayAsTheyAreWhenTheirPanelIsWalkedThrough)
{
    const QString before = templateText("footer");
    writeFile(pathOf("footer"), theirs);
    openInDesign(footer.button);
    pressIn("imgButtonSubmit");
    leave();
    EXPECT_EQ(templateFile("footer"), theirs);
    EXPECT_EQ(templateText("footer"), before); // the file is read at the next start
    // Changed back, it is written as ever.
    writeFile(pathOf("footer"), fileBytes(factoryPathOf("footer")));
    set().ReLoad(u"footer"_s, u"footer"_s);
    openManager(footer.button);
    leave();
    EXPECT_EQ(templateFile("footer"), fileBytes(factoryPathOf("footer")) + "\r\n");
}

TEST_F(ChangedTemplateFiles, AreOverwrittenByWhatWasTypedOnYesOnly)
{
    for (const bool answer : {false, true}) {
        openInDesign(footer.button);
        if (!isEditable()) {
            switchOn(footer);
        }
        appendToTemplate(u"typed"_s);
        writeFile(pathOf("footer"), theirs);
        answerOverwriting(answer);
        leave();
        EXPECT_EQ(templateFile("footer") == theirs, !answer);
        EXPECT_EQ(templateFile("footer").endsWith("typed\r\n"), answer);
        EXPECT_EQ(templateText("footer").endsWith(u"typed\r"_s), answer);
        EXPECT_TRUE(errors.numbers.empty());
    }
    openManager(footer.button); // the file is the program's own again: no question
    leave();
    EXPECT_TRUE(templateFile("footer").endsWith("typed\r\n\r\n"));
}

TEST_F(ChangedTemplateFiles, AreAskedAboutOnceForEachText)
{
    edit(footer);
    appendToTemplate(u"one"_s);
    writeFile(pathOf("footer"), theirs);
    answerOverwriting(false);
    pressIn("imgButtonSubmit");
    pressIn("imgButtonSubmit");
    appendToTemplate(u"two"_s);
    answerOverwriting(false);
    leave();
    EXPECT_EQ(templateFile("footer"), theirs);
    openInDesign(footer.button); // shown anew, asked anew
    appendToTemplate(u"onetwo"_s);
    answerOverwriting(true);
    leave();
    EXPECT_TRUE(templateFile("footer").endsWith("onetwo\r\n"));
}

TEST_F(ChangedTemplateFiles, AreWrittenAndRestoredByTheButtonsWithoutAQuestion)
{
    edit(footer);
    appendToTemplate(u"typed"_s);
    writeFile(pathOf("footer"), theirs);
    pressIn("SaveTemplteBtn");
    EXPECT_TRUE(templateFile("footer").endsWith("typed\r\n"));
    writeFile(pathOf("footer"), theirs);
    pressIn("RestoreTemplateBtn");
    EXPECT_EQ(templateFile("footer"), fileBytes(factoryPathOf("footer")));
}

TEST_F(ChangedTemplateFiles, AreMadeAnewByThePanelWhenTheyAreGone)
{
    openInDesign(footer.button);
    const QByteArray before = templateFile("footer");
    QFile::remove(pathOf("footer"));
    leave();
    EXPECT_EQ(templateFile("footer"), before + "\r\n");
}

} // namespace
