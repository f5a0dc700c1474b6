// The editor of a template: its letters, numbers and colours, its search, and what it says of mistakes.
#include "TemplatesTest.h"

#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace {

class TheTemplateEditor : public TemplatesTest
{
};

TEST_F(TheTemplateEditor, TellsWhileOneTypesWhatIsWrongAndWhere)
{
    edit(category);
    const std::pair<QString, QString> cases[] = {
        {u"<p>\n<!--:name:-->"_s, noMistakes},
        {u"<p>\nab<!--:name"_s, u"Line 2, column 3: A tag has no closing mark. "_s},
        {u"<!--:a:-->\n\n <!--:if:b=1:-->\nx"_s, u"Line 3, column 2: The block \"b\" is never closed. "_s},
        {u"<!--:cycle:rows:-->\n<!--:if:b=1:-->\n<!--:end:rows:-->"_s,
         u"Line 2, column 1: The block \"b\" is never closed. "_s},
    };
    for (const auto& [text, expected] : cases) {
        type(field(), text);
        EXPECT_TRUE(state().startsWith(expected)) << state().toStdString();
    }
    QTest::keyClick(field(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(TheTemplateEditor, ShowsLettersOfOneWidthAndNumberedLines)
{
    edit(category);
    EXPECT_EQ(field()->fontMetrics().horizontalAdvance(u"iiii"_s), field()->fontMetrics().horizontalAdvance(u"WWWW"_s));
    const auto numbers = [this] {
        QCoreApplication::processEvents();
        const QRect text = field()->viewport()->geometry();
        return field()->grab(QRect(0, text.top(), text.left() - 1, text.height())).toImage();
    };
    type(field(), u"a"_s);
    const QImage one = numbers();
    pressKeys(field(), u"b"_s);
    EXPECT_EQ(numbers(), one);
    QTest::keyClick(field(), Qt::Key_Return);
    EXPECT_NE(numbers(), one);
}

TEST_F(TheTemplateEditor, NumbersNoLineThatStandsBehindTheBarBelowIt)
{
    openInDesign(category.button);
    field()->setPlainText(QString(500, u'x'));
    QCoreApplication::processEvents();
    ASSERT_TRUE(field()->horizontalScrollBar()->isVisible());
    const QRect text = field()->viewport()->geometry();
    int margins = 0;
    for (const QWidget* part : field()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (part->isVisible() && part->geometry().right() < text.left()) {
            EXPECT_EQ(part->geometry().bottom(), text.bottom());
            ++margins;
        }
    }
    EXPECT_EQ(margins, 1);
}

TEST_F(TheTemplateEditor, ShowsTagsInColour)
{
    edit(category);
    type(field(), u"<p><!--:if:b=1:-->x<!--:a\n:--></p>"_s);
    QStringList coloured;
    for (QTextBlock line = field()->document()->begin(); line.isValid(); line = line.next()) {
        for (const QTextLayout::FormatRange& range : line.layout()->formats()) {
            coloured << line.text().mid(range.start, range.length);
        }
    }
    EXPECT_EQ(coloured, (QStringList{u"<!--:"_s, u"if:"_s, u"b=1"_s, u":-->"_s, u"<!--:"_s, u"a"_s, u":-->"_s}));
}

TEST_F(TheTemplateEditor, SearchesFromTheCursorAndOnFromTheOtherEnd)
{
    editCategoryTemplate("one two\r\nTwo three\r\n");
    field()->setFocus();
    QTest::keyClick(field(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(in<QLineEdit>("FindTxt")->hasFocus());
    type(in<QLineEdit>("FindTxt"), u"two"_s);
    QList<int> places;
    for (const char* button : {"FindNextBtn", "FindNextBtn", "FindNextBtn", "FindPreviousBtn"}) {
        pressIn(button);
        EXPECT_EQ(field()->textCursor().selectedText().toLower(), u"two"_s);
        places << field()->textCursor().selectionStart();
    }
    EXPECT_EQ(places, (QList<int>{4, 8, 4, 8}));
    type(in<QLineEdit>("FindTxt"), u"nowhere"_s);
    QTest::keyClick(in<QLineEdit>("FindTxt"), Qt::Key_Return);
    EXPECT_EQ(in<QLabel>("FindResultLbl")->text(), u"Not found"_s);
    EXPECT_EQ(field()->textCursor().selectionStart(), 8);
}

} // namespace
