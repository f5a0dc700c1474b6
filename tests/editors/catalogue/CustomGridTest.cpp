// The grid of all tables and the fields with a rule of their own.
#include "PanelTest.h"
#include "editors/LinkLabel.h"
#include "editors/NumericBox.h"
#include "editors/TextArea.h"
#include "look/Tones.h"

#include <QHeaderView>
#include <QImage>
#include <QPixmap>
#include <QTextCursor>

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<TextCollection> texts(const QStringList& list)
{
    auto collection = std::make_shared<TextCollection>();
    for (const QString& text : list) {
        collection->Add(text);
    }
    return collection;
}

class Grid : public PanelTest
{
protected:
    void SetUp() override
    {
        PanelTest::SetUp();
        grid = std::make_unique<CustomGrid>(*window, nullptr);
        grid->resize(600, 300);
        grid->show();
        grid->activateWindow();
        QTest::qWait(1);
    }

    void TearDown() override { grid.reset(); }

    std::unique_ptr<CustomGrid> grid;
};

TEST_F(Grid, HasAColumnForEachTitleAndOneForTheLinks)
{
    grid->Init({u"One"_s, u"Two"_s}, {texts({u"a"_s, u"b"_s}), texts({u"c"_s, u"d"_s})});
    EXPECT_EQ(grid->BaseGrd->columnCount(), 3);
    EXPECT_EQ(grid->BaseGrd->horizontalHeaderItem(1)->text(), u"Two"_s);
    EXPECT_EQ(rowOf(grid.get(), 1), (QStringList{u"b"_s, u"d"_s}));
    const QTableWidgetItem* link = grid->BaseGrd->item(1, 2);
    EXPECT_EQ(link->text(), u"Remove"_s);
    EXPECT_TRUE(link->font().bold());
    EXPECT_TRUE(link->font().underline());
    EXPECT_EQ(link->textAlignment(), static_cast<int>(Qt::AlignCenter));
    EXPECT_EQ(grid->BaseGrd->columnWidth(0), grid->BaseGrd->columnWidth(1));
    EXPECT_EQ(grid->BaseGrd->columnWidth(0), (600 - 120) / 2);
    EXPECT_EQ(grid->BaseGrd->columnWidth(2), 113);
}

TEST_F(Grid, ShowsEmptyCellsForAColumnWithoutTexts)
{
    grid->Init({u"One"_s, u"Two"_s}, {texts({u"a"_s, u"b"_s}), nullptr});
    EXPECT_EQ(grid->BaseGrd->rowCount(), 2);
    EXPECT_EQ(rowOf(grid.get(), 0), (QStringList{u"a"_s, QString()}));
}

TEST_F(Grid, TakesTheNumberOfRowsFromTheFirstColumnAlone)
{
    grid->Init({u"One"_s, u"Two"_s}, {texts({u"a"_s}), texts({u"b"_s, u"c"_s, u"d"_s})});
    EXPECT_EQ(grid->BaseGrd->rowCount(), 1);
    grid->Init({u"One"_s, u"Two"_s}, {nullptr, texts({u"b"_s})});
    EXPECT_EQ(grid->BaseGrd->rowCount(), 0);
}

TEST_F(Grid, IsLeftWithItsHeaderWhenTheOnlyRowIsRemoved)
{
    grid->Init({u"One"_s}, {texts({u"a"_s})});
    clickCell(grid.get(), 0, 1);
    EXPECT_EQ(grid->BaseGrd->rowCount(), 0);
    EXPECT_EQ(grid->BaseGrd->horizontalHeaderItem(0)->text(), u"One"_s);
    EXPECT_TRUE(grid->BaseGrd->horizontalHeader()->isVisible());
}

TEST_F(Grid, GivesOneAbsentElementWhenItIsEmpty)
{
    grid->Init({u"One"_s, u"Two"_s}, {});
    const CustomGrid::Columns data = grid->GetData();
    ASSERT_EQ(data.size(), 1U);
    EXPECT_EQ(data[0], nullptr);
}

TEST_F(Grid, GivesItsTextsUnderTheNumbersOfTheRows)
{
    grid->Init({u"One"_s, u"Two"_s}, {texts({u"a"_s, u"b"_s}), nullptr});
    const CustomGrid::Columns data = grid->GetData();
    ASSERT_EQ(data.size(), 2U);
    EXPECT_EQ(data[0]->Item(u"row2"_s), u"b"_s);
    EXPECT_EQ(data[1]->Item(u"row1"_s), QString());
}

TEST_F(Grid, HasEachKeyInTheCellAtOnce)
{
    grid->Init({u"One"_s}, {texts({u"a"_s})});
    EXPECT_FALSE(grid->ForGridTxt->isVisible());
    clickCell(grid.get(), 0, 0);
    EXPECT_TRUE(grid->ForGridTxt->isVisible());
    EXPECT_EQ(grid->ForGridTxt->text(), u"a"_s);
    QTest::keyClicks(grid->ForGridTxt, u"b"_s);
    EXPECT_EQ(cell(grid.get(), 0, 0), u"ab"_s);
    EXPECT_EQ(grid->GetData()[0]->Item(1), u"ab"_s);
}

TEST_F(Grid, PutsItsEditorOverTheCell)
{
    grid->Init({u"One"_s, u"Two"_s}, {texts({u"a"_s, u"b"_s}), nullptr});
    clickCell(grid.get(), 1, 1);
    EXPECT_EQ(grid->ForGridTxt->geometry(), grid->BaseGrd->visualItemRect(grid->BaseGrd->item(1, 1)));
    clickCell(grid.get(), 0, 2);
    EXPECT_FALSE(grid->ForGridTxt->isVisible());
}

TEST_F(Grid, HidesItsEditorWhenAnotherControlTakesTheFocus)
{
    grid->Init({u"One"_s}, {texts({u"a"_s})});
    clickCell(grid.get(), 0, 0);
    QTest::keyClicks(grid->ForGridTxt, u"b"_s);
    grid->AddItemButtonLbl->setFocus();
    EXPECT_FALSE(grid->ForGridTxt->isVisible());
    EXPECT_EQ(cell(grid.get(), 0, 0), u"ab"_s);
}

TEST_F(Grid, DoesNothingWhenItsHeaderIsClicked)
{
    grid->Init({u"One"_s}, {texts({u"a"_s})});
    QTest::mouseClick(grid->BaseGrd->horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 5));
    EXPECT_FALSE(grid->ForGridTxt->isVisible());
    EXPECT_EQ(grid->BaseGrd->rowCount(), 1);
}

TEST_F(Grid, AppendsARowAndOpensItsFirstCell)
{
    grid->Init({u"One"_s, u"Two"_s}, {});
    press(grid->AddItemButtonLbl);
    EXPECT_EQ(grid->BaseGrd->rowCount(), 1);
    EXPECT_EQ(cell(grid.get(), 0, 2), u"Remove"_s);
    EXPECT_TRUE(grid->ForGridTxt->isVisible());
    QTest::keyClicks(grid->ForGridTxt, u"new"_s);
    EXPECT_EQ(rowOf(grid.get(), 0), (QStringList{u"new"_s, QString()}));
}

TEST_F(Grid, CanBeUsedWithTheKeyboardAlone)
{
    grid->Init({u"One"_s, u"Two"_s}, {texts({u"a"_s, u"b"_s}), texts({u"c"_s, u"d"_s})});
    grid->BaseGrd->setFocus();
    grid->BaseGrd->setCurrentCell(0, 0);
    QTest::keyClick(grid->BaseGrd, Qt::Key_Return);
    EXPECT_TRUE(grid->ForGridTxt->isVisible());
    QTest::keyClicks(grid->ForGridTxt, u"1"_s);
    QTest::keyClick(grid->ForGridTxt, Qt::Key_Tab);
    QTest::keyClicks(grid->ForGridTxt, u"2"_s);
    QTest::keyClick(grid->ForGridTxt, Qt::Key_Tab);
    QTest::keyClicks(grid->ForGridTxt, u"3"_s);
    EXPECT_EQ(rowOf(grid.get(), 0), (QStringList{u"a1"_s, u"c2"_s}));
    EXPECT_EQ(rowOf(grid.get(), 1), (QStringList{u"b3"_s, u"d"_s}));
    QTest::keyClick(grid->ForGridTxt, Qt::Key_Return);
    EXPECT_FALSE(grid->ForGridTxt->isVisible());
    grid->BaseGrd->setCurrentCell(0, 2);
    QTest::keyClick(grid->BaseGrd, Qt::Key_Space);
    EXPECT_EQ(grid->BaseGrd->rowCount(), 1);
    EXPECT_EQ(cell(grid.get(), 0, 0), u"b3"_s);
}

TEST_F(Grid, OpensTheCellAboveOrBelowByTheArrowsInAnOpenCell)
{
    grid->Init({u"One"_s, u"Two"_s}, {texts({u"a"_s, u"b"_s, u"c"_s}), texts({u"d"_s, u"e"_s, u"f"_s})});
    clickCell(grid.get(), 0, 1);
    const std::pair<Qt::Key, int> presses[] = {{Qt::Key_Up, 0}, // there is none above
                                               {Qt::Key_Down, 1},
                                               {Qt::Key_Down, 2},
                                               {Qt::Key_Down, 2}, // nor below
                                               {Qt::Key_Up, 1}};
    for (const auto& [key, row] : presses) {
        QTest::keyClick(grid->ForGridTxt, key);
        ASSERT_TRUE(grid->ForGridTxt->hasFocus());
        EXPECT_EQ(grid->BaseGrd->currentRow(), row);
        EXPECT_EQ(grid->ForGridTxt->text(), cell(grid.get(), row, 1));
        EXPECT_EQ(grid->ForGridTxt->geometry(), grid->BaseGrd->visualItemRect(grid->BaseGrd->item(row, 1)));
        QTest::keyClicks(grid->ForGridTxt, QString::number(row));
    }
    EXPECT_EQ(grid->GetData()[0]->Item(2), u"b"_s);
    const QStringList column = {cell(grid.get(), 0, 1), cell(grid.get(), 1, 1), cell(grid.get(), 2, 1)};
    EXPECT_EQ(column, (QStringList{u"d0"_s, u"e11"_s, u"f22"_s}));
}

TEST_F(Grid, WritesIntoTheCellUnderItsEditorWhateverKeyIsPressed)
{
    struct Press
    {
        Qt::Key key;
        Qt::KeyboardModifiers with;
    };
    for (const Press& press : {Press{Qt::Key_PageDown, Qt::NoModifier}, Press{Qt::Key_PageUp, Qt::NoModifier},
                               Press{Qt::Key_End, Qt::ControlModifier}, Press{Qt::Key_Home, Qt::ControlModifier},
                               Press{Qt::Key_F2, Qt::NoModifier}, Press{Qt::Key_Escape, Qt::NoModifier}}) {
        grid->Init({u"One"_s, u"Two"_s}, {texts({u"a"_s, u"b"_s, u"c"_s}), texts({u"d"_s, u"e"_s, u"f"_s})});
        clickCell(grid.get(), 1, 0);
        QTest::keyClick(grid->ForGridTxt, press.key, press.with);
        EXPECT_EQ(grid->BaseGrd->currentRow(), 1) << press.key;
        EXPECT_EQ(grid->BaseGrd->currentColumn(), 0) << press.key;
        EXPECT_EQ(grid->ForGridTxt->geometry(), grid->BaseGrd->visualItemRect(grid->BaseGrd->item(1, 0)));
        QTest::keyClicks(grid->ForGridTxt, u"x"_s);
        EXPECT_EQ(rowOf(grid.get(), 0), (QStringList{u"a"_s, u"d"_s})) << press.key;
        EXPECT_EQ(rowOf(grid.get(), 1), (QStringList{u"bx"_s, u"e"_s})) << press.key;
        EXPECT_EQ(rowOf(grid.get(), 2), (QStringList{u"c"_s, u"f"_s})) << press.key;
    }
}

TEST_F(Grid, WritesIntoTheCellUnderItsEditorThoughAnotherBecomesTheCurrentOne)
{
    grid->Init({u"One"_s}, {texts({u"a"_s, u"b"_s})});
    clickCell(grid.get(), 0, 0);
    const QRect place = grid->ForGridTxt->geometry();
    grid->BaseGrd->setCurrentCell(1, 0);
    QTest::keyClicks(grid->ForGridTxt, u"x"_s);
    EXPECT_EQ(grid->ForGridTxt->geometry(), place);
    EXPECT_EQ(rowOf(grid.get(), 0), QStringList{u"ax"_s});
    EXPECT_EQ(rowOf(grid.get(), 1), QStringList{u"b"_s});
}

TEST_F(Grid, HidesTableAndLinkTogether)
{
    grid->Hide();
    EXPECT_FALSE(grid->BaseGrd->isVisible());
    EXPECT_FALSE(grid->AddItemButtonLbl->isVisible());
    grid->Show();
    EXPECT_TRUE(grid->BaseGrd->isVisible());
    EXPECT_TRUE(grid->AddItemButtonLbl->isVisible());
}

TEST_F(Grid, NamesItsLinkAddItemUntilItIsTold)
{
    EXPECT_EQ(grid->AddItemButtonTitle(), u"Add item"_s);
    grid->setAddItemButtonTitle(u"Add a band"_s);
    EXPECT_EQ(grid->AddItemButtonTitle(), u"Add a band"_s);
}

TEST_F(Grid, KeepsItsFourWidthsForCharges)
{
    grid->InitForCharges();
    EXPECT_EQ(grid->Tag(), u"Charge"_s);
    for (int column = 0; const int width : {250, 150, 40, 113}) {
        EXPECT_EQ(grid->BaseGrd->columnWidth(column++), width);
    }
    EXPECT_EQ(rowOf(grid.get(), 1), (QStringList{u"Far"_s, u"9"_s, QString()}));
}

// Numeric boxes ------------------------------------------------------------------------------------------------------

class Boxes : public PanelTest
{
protected:
    static QString typed(NumericBox& box, const QString& keys)
    {
        QTest::keyClicks(&box, keys);
        return box.text();
    }
};

TEST_F(Boxes, ShowNoLetterThatIsTyped)
{
    NumericBox box(NumericBox::Takes::Number);
    EXPECT_EQ(typed(box, u"1x2y3"_s), u"123"_s);
}

TEST_F(Boxes, CanBeEmptied)
{
    NumericBox box(NumericBox::Takes::Number);
    box.fill(u"12"_s);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), QString());
}

TEST_F(Boxes, TakeTheUsersSeparatorAsItIsTyped)
{
    NumericBox box(NumericBox::Takes::Number);
    EXPECT_EQ(typed(box, localised(u"12.75"_s)), localised(u"12.75"_s));
}

TEST_F(Boxes, TakeEitherSeparatorWhereTheModelNormalisesIt)
{
    for (const QString& text : {u"12.75"_s, u"12,75"_s}) {
        NumericBox box(NumericBox::Takes::NormalisedNumber);
        EXPECT_EQ(typed(box, text), text);
    }
    NumericBox box(NumericBox::Takes::NormalisedNumber);
    EXPECT_EQ(typed(box, u"1.2.5"_s), u"1.25"_s);
}

TEST_F(Boxes, RefuseAFractionOnlyWhereItIsNoNumberOfTheUser)
{
    NumericBox box(NumericBox::Takes::Number);
    const QString foreign = localised(u"."_s) == u"."_s ? u"7,5"_s : u"7.5"_s;
    EXPECT_EQ(typed(box, foreign), u"75"_s);
}

TEST_F(Boxes, TakeASignInFrontOfANumber)
{
    NumericBox box(NumericBox::Takes::Number);
    box.fill(u"10"_s);
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClicks(&box, u"-"_s);
    EXPECT_EQ(box.text(), u"-10"_s);
}

TEST_F(Boxes, KeepTheCursorWhereItWasWhenTheyRefuse)
{
    NumericBox box(NumericBox::Takes::Number);
    box.fill(u"1234"_s);
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Right);
    QTest::keyClicks(&box, u"x5"_s);
    EXPECT_EQ(box.text(), u"15234"_s);
}

TEST_F(Boxes, ShowWhatTheModelHoldsWhateverItIs)
{
    NumericBox box(NumericBox::Takes::Number);
    box.fill(u"on request"_s);
    EXPECT_EQ(box.text(), u"on request"_s);
    QTest::keyClicks(&box, u"1"_s);
    EXPECT_EQ(box.text(), u"on request"_s);
    QTest::keySequence(&box, QKeySequence::SelectAll);
    QTest::keyClicks(&box, u"5"_s);
    EXPECT_EQ(box.text(), u"5"_s);
}

TEST_F(Boxes, RefuseSizesThatDoNotFit)
{
    NumericBox box(NumericBox::Takes::WholeNumber);
    EXPECT_EQ(typed(box, u"32768"_s), u"3276"_s);
    box.fill(QString());
    EXPECT_EQ(typed(box, u"32767"_s), u"32767"_s);
}

TEST_F(Boxes, ReportOnlyWhatTheyAccept)
{
    NumericBox box(NumericBox::Takes::WholeNumber);
    QStringList reported;
    QObject::connect(&box, &NumericBox::edited, &box, [&](const QString& text) { reported << text; });
    box.fill(u"8"_s);
    QTest::keyClicks(&box, u"1x2"_s);
    EXPECT_EQ(reported, (QStringList{u"81"_s, u"812"_s}));
}

// Texts of several lines ---------------------------------------------------------------------------------------------

TEST(TextAreas, GiveBackAnUnchangedTextLetterForLetter)
{
    TextArea area;
    const QString text = u"one\r\ntwo\u00a0three\rfour\n"_s;
    area.fill(text);
    EXPECT_EQ(area.text(), text);
}

TEST(TextAreas, KeepTheKindOfLineEndAndHardBlanksOfAChangedText)
{
    TextArea area;
    area.fill(u"one\r\ntwo\u00a0three"_s);
    area.moveCursor(QTextCursor::End);
    QTest::keyClicks(&area, u"!"_s);
    EXPECT_EQ(area.text(), u"one\r\ntwo\u00a0three!"_s);
    area.fill(u"one\ntwo"_s);
    area.moveCursor(QTextCursor::End);
    QTest::keyClick(&area, Qt::Key_Return);
    QTest::keyClicks(&area, u"3"_s);
    EXPECT_EQ(area.text(), u"one\ntwo\n3"_s);
}

TEST(TextAreas, EndALineByShiftAndEnterToo)
{
    TextArea area;
    area.fill(u"one\r\ntwo"_s);
    area.moveCursor(QTextCursor::End);
    QTest::keyClick(&area, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&area, u"3"_s);
    EXPECT_EQ(area.text(), u"one\r\ntwo\r\n3"_s);
}

TEST_F(Grid, RemovesOneRowByADoubleClick)
{
    grid->Init({u"One"_s, u"Two"_s}, {texts({u"a"_s, u"b"_s, u"c"_s}), texts({u"d"_s, u"e"_s, u"f"_s})});
    QCoreApplication::processEvents();
    QWidget* cells = grid->BaseGrd->viewport();
    const QPoint place = grid->BaseGrd->visualItemRect(grid->BaseGrd->item(0, 2)).center();
    const auto pressTwice = [&] {
        QTest::mousePress(cells, Qt::LeftButton, {}, place);
        QTest::mouseRelease(cells, Qt::LeftButton, {}, place);
        QMouseEvent second(QEvent::MouseButtonDblClick, place, cells->mapToGlobal(place), Qt::LeftButton,
                           Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(cells, &second);
        QTest::mouseRelease(cells, Qt::LeftButton, {}, place);
    };
    pressTwice();
    ASSERT_EQ(grid->BaseGrd->rowCount(), 2);
    EXPECT_EQ(cell(grid.get(), 0, 0), u"b"_s);
    QTest::mouseClick(cells, Qt::LeftButton, {}, place); // a single one still does
    EXPECT_EQ(grid->BaseGrd->rowCount(), 1);
}

TEST_F(Grid, PutsTheMarkOfUseInTheMiddleOfItsCellAtAnyScale)
{
    grid->InitForCharges();
    QTableWidgetItem* use = grid->BaseGrd->item(0, 2);
    const QRect room = grid->BaseGrd->visualItemRect(use);
    for (const double scale : {1.0, 1.5, 2.0}) {
        QPixmap mark((QSizeF(18, 18) * scale).toSize());
        mark.setDevicePixelRatio(scale);
        mark.fill(Qt::red);
        use->setData(Qt::DecorationRole, mark);
        const QImage shown = grid->BaseGrd->viewport()->grab(room).toImage();
        QRect red;
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                if (shown.pixelColor(x, y) == QColor(Qt::red)) {
                    red |= QRect(x, y, 1, 1);
                }
            }
        }
        EXPECT_EQ(red.size(), QSize(18, 18)) << scale;
        EXPECT_NEAR(red.center().x(), shown.rect().center().x(), 1) << scale;
        EXPECT_NEAR(red.center().y(), shown.rect().center().y(), 1) << scale;
    }
}

TEST_F(Grid, DrawsTheLineOfARowToItsOwnEdge)
{
    grid->InitForCharges(); // whose columns leave some room beside them
    QCoreApplication::processEvents();
    const QTableWidget& table = *grid->BaseGrd;
    const int end = table.horizontalHeader()->length();
    const int width = table.viewport()->width();
    ASSERT_LT(end, width);
    const QImage shown = table.viewport()->grab().toImage();
    const int bottom = table.rowViewportPosition(0) + table.rowHeight(0) - 1;
    for (const int x : {0, end - 1, end, width - 1}) {
        EXPECT_EQ(shown.pixelColor(x, bottom), tone(Tone::Line)) << x;
        EXPECT_EQ(shown.pixelColor(x, bottom - 1), tone(Tone::Field)) << x;
    }
}

} // namespace
