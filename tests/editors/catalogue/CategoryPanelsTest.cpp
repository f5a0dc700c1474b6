// The category's panels in the real window.
#include "PanelTest.h"
#include "editors/DateField.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QRadioButton>
#include <QScreen>
#include <QSpinBox>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

class CategoryPanels : public PanelTest
{
protected:
    void SetUp() override
    {
        PanelTest::SetUp();
        clickNode(u"ID3"_s);
    }

    clsDiscount& discount() const { return *category("3")->Discount(); }
    // Made when it first opens.
    MonthCalendar* calendar() const { return window->VisibleFrame->findChild<MonthCalendar*>(u"DateMV"_s); }
    bool isMonthShown() const { return calendar() && calendar()->isVisible(); }
    void clickField(const char* name) { QTest::mouseClick(in(name), Qt::LeftButton); }
    // Clicks that day of the month that is shown.
    void clickDay(int day)
    {
        auto* days = calendar()->findChild<QAbstractItemView*>();
        for (int row = 1; row < days->model()->rowCount(); ++row) {
            for (int column = 0; column < days->model()->columnCount(); ++column) {
                const QModelIndex index = days->model()->index(row, column);
                if (index.data().toInt() == day && (row > 1 || day < 15)) {
                    QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, days->visualRect(index).center());
                    return;
                }
            }
        }
        FAIL() << day;
    }
};

TEST_F(CategoryPanels, ShowAndWriteTheGeneralProperties)
{
    EXPECT_EQ(in<QLabel>("IdLbl")->text(), u"ID = 3"_s);
    type("CategoryNameTxt", u"Green tea"_s);
    type("CategoryDescriptionTxt", u"From the hills"_s);
    EXPECT_EQ(window->SelectedNode->text, u"Green tea"_s);
    EXPECT_EQ(category("3")->name, u"Green"_s);
    submit();
    EXPECT_EQ(category("3")->name, u"Green tea"_s);
    EXPECT_EQ(category("3")->Description, u"From the hills"_s);
}

TEST_F(CategoryPanels, WriteToTheCategoryThatTheyWereBoundTo)
{
    type("CategoryNameTxt", u"Matcha"_s);
    clickNode(u"ID2"_s);
    EXPECT_EQ(category("3")->name, u"Matcha"_s);
    EXPECT_EQ(category("2")->name, u"Tea"_s);
    EXPECT_EQ(textIn("CategoryNameTxt"), u"Tea"_s);
}

TEST_F(CategoryPanels, UseOfTheirFieldsWhatTheOptionNeeds)
{
    struct Use
    {
        const char* option;
        bool percent, bands, inherit, dates;
    };
    click("CategoryDiscountSBtn");
    for (const Use& use : {Use{"NoDiscountOpt", false, false, false, false}, Use{"ApplyOpt", true, false, false, true},
                           Use{"DependOpt", false, true, false, true}, Use{"InheritOpt", false, false, true, false}}) {
        press(use.option);
        EXPECT_EQ(in("ApplyTxt")->isEnabled(), use.percent) << use.option;
        EXPECT_EQ(in("BaseGrd")->isVisible(), use.bands) << use.option;
        EXPECT_EQ(in("AddItemButtonLbl")->isVisible(), use.bands) << use.option;
        EXPECT_EQ(in("lblInherit")->isVisible(), use.inherit) << use.option;
        for (const char* field : {"DateFromTxt", "DateToTxt"}) {
            const QColor colour = in(field)->palette().color(QPalette::Base);
            EXPECT_EQ(colour, use.dates ? QColor(255, 255, 255) : QColor(192, 192, 192)) << use.option;
        }
    }
    EXPECT_EQ(discount().Status, DiscountStatus::No);
}

TEST_F(CategoryPanels, BringTheSavedStatusBackOnReset)
{
    discount().Status = DiscountStatus::ToAll;
    click("CategoryDiscountSBtn");
    press("InheritOpt");
    EXPECT_FALSE(in<QRadioButton>("ApplyOpt")->isChecked());
    reset();
    EXPECT_TRUE(in<QRadioButton>("ApplyOpt")->isChecked());
    EXPECT_FALSE(in<QRadioButton>("InheritOpt")->isChecked());
    EXPECT_EQ(discount().Status, DiscountStatus::ToAll);
}

TEST_F(CategoryPanels, TellWhatIsInheritedOnlyWhereItIs)
{
    discount().Inherit = localised(u"12.5"_s);
    for (const int status : {DiscountStatus::No, DiscountStatus::ToAll, DiscountStatus::Depend}) {
        discount().Status = status;
        click("CategoryDiscountSBtn");
        EXPECT_EQ(in<QLabel>("lblInherit")->text(), QString()) << status;
        click("CategoryGeneralSBtn");
    }
    discount().Inherit = localised(u"12.5"_s);
    discount().Status = DiscountStatus::Inherit;
    click("CategoryDiscountSBtn");
    EXPECT_TRUE(in<QLabel>("lblInherit")->text().contains(localised(u"12.5"_s)));
    EXPECT_TRUE(in("lblInherit")->isVisible());
    click("CategoryGeneralSBtn");

    discount().ParentDependDiscounts = std::make_shared<clsDependedDiscounts>();
    click("CategoryDiscountSBtn");
    EXPECT_TRUE(in<QLabel>("lblInherit")->text().contains(u"price"_s));
    click("CategoryGeneralSBtn");

    discount().ParentDependDiscounts.reset();
    discount().Inherit.clear();
    click("CategoryDiscountSBtn");
    EXPECT_TRUE(in<QLabel>("lblInherit")->text().contains(u"Nothing"_s));
}

TEST_F(CategoryPanels, LeaveTheBandsInPlaceWhenTheGridIsEmpty)
{
    discount().Status = DiscountStatus::Depend;
    discount().DependedDiscounts()->Add(u"1"_s, u"20"_s, u"5"_s);
    click("CategoryDiscountSBtn");
    auto* grid = in<CustomGrid>("DiscountGrd");
    clickCell(grid, 0, 3);
    EXPECT_FALSE(grid->hasRows());
    submit();
    ASSERT_EQ(discount().DependedDiscounts()->Count(), 1);
    reset();
    EXPECT_EQ(rowOf(grid, 0), (QStringList{u"1"_s, u"20"_s, u"5"_s}));
    typeIntoCell(grid, 0, 1, u"30"_s);
    submit();
    ASSERT_EQ(discount().DependedDiscounts()->Count(), 1);
    EXPECT_EQ(discount().DependedDiscounts()->Item(1).PriceTo(), u"30"_s);
}

TEST_F(CategoryPanels, PushTheirDiscountDownOnSubmit)
{
    clsDiscount& below = *product("5")->Price()->Discount();
    below.Status = DiscountStatus::Inherit;
    click("CategoryDiscountSBtn");
    press("ApplyOpt");
    type("ApplyTxt", u"20"_s);
    EXPECT_EQ(below.Value(u"8"_s), QString());
    submit();
    EXPECT_EQ(below.Value(u"8"_s), u"20"_s);
}

TEST_F(CategoryPanels, CannotChangeADiscountWhileTheCartIsKept)
{
    putIntoCart("5");
    answerTheCartQuestion(false);
    click("CategoryDiscountSBtn");
    for (const char* name : {"NoDiscountOpt", "ApplyOpt", "DependOpt", "InheritOpt", "ApplyTxt", "DateFromTxt",
                             "DateToTxt", "DiscountGrd"}) {
        EXPECT_FALSE(in(name)->isEnabled()) << name;
    }
    answerTheCartQuestion(true);
    reset();
    EXPECT_TRUE(in("InheritOpt")->isEnabled());
}

TEST_F(CategoryPanels, SpellTheirOptionsAsTheyAlwaysDid)
{
    click("CategoryDiscountSBtn");
    EXPECT_EQ(in<QRadioButton>("NoDiscountOpt")->text(), u"NO DISCOUNT"_s);
    EXPECT_EQ(in<QRadioButton>("ApplyOpt")->text(), u"APPLY TO ALL CATEGORY (%)"_s);
    EXPECT_EQ(in<QRadioButton>("DependOpt")->text(), u"DEPEND ON PRODUCT PRICE"_s);
    EXPECT_EQ(in<QRadioButton>("InheritOpt")->text(), u"INHERIT FROM  SHOP, CATEGORY, SUBCATEGORY"_s); // two blanks
}

// Dates --------------------------------------------------------------------------------------------------------------

TEST_F(CategoryPanels, OpenAMonthUnderTheDateWithItsDaySelected)
{
    const QDate day(2026, 3, 9);
    discount().Status = DiscountStatus::ToAll;
    discount().DateTo =
        QLocale().toString(day, QLocale().language() == QLocale::German ? u"dd.MM.yyyy"_s : u"M/d/yyyy"_s);
    click("CategoryDiscountSBtn");
    EXPECT_FALSE(isMonthShown());
    clickField("DateToTxt");
    ASSERT_TRUE(isMonthShown());
    EXPECT_EQ(calendar()->selectedDate(), day);
    // At the left of the field, but for the width of a frame, unless the screen ends before the calendar would.
    const int lastPlace = calendar()->screen()->availableGeometry().right() - calendar()->width();
    const int expected = qMin(in("DateToTxt")->mapToGlobal(QPoint()).x(), lastPlace);
    EXPECT_NEAR(calendar()->mapToGlobal(QPoint()).x(), expected, 3);
    clickDay(21);
    EXPECT_FALSE(isMonthShown());
    EXPECT_EQ(textIn("DateToTxt"), QLocale().language() == QLocale::German ? u"21.03.2026"_s : u"3/21/2026"_s);
    EXPECT_EQ(textIn("DateFromTxt"), QString());
    submit();
    EXPECT_EQ(discount().DateTo, textIn("DateToTxt"));
}

TEST_F(CategoryPanels, OpenAMonthWithRoomForTheNamesOfItsDaysAndMonthsInAnyLanguage)
{
    for (const char* language : {"pt_PT", "de_DE", "en_US", "kde_TZ"}) { // the last has the longest months
        MonthCalendar month(clock, window.get());
        month.setLocale(QLocale(QLatin1String(language)));
        QLineEdit field;
        month.openUnder(field);
        QCoreApplication::processEvents();
        const auto* days = month.findChild<QAbstractItemView*>();
        const int besideText = 2 * (days->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, days) + 1);
        for (int column = 0; column < days->model()->columnCount(); ++column) {
            const QModelIndex head = days->model()->index(0, column);
            EXPECT_GE(days->visualRect(head).width(),
                      days->fontMetrics().horizontalAdvance(head.data().toString()) + besideText)
                << language << ": " << head.data().toString().toStdString();
        }
        const auto* bar = month.findChild<QWidget*>(u"qt_calendar_navigationbar"_s);
        for (int number = 1; number <= 12; ++number) {
            month.setCurrentPage(2026, number);
            EXPECT_GE(bar->width(), bar->sizeHint().width()) << language << ": " << number;
        }
    }
}

TEST_F(CategoryPanels, TakeADateByTheKeyboardToo)
{
    discount().Status = DiscountStatus::ToAll;
    click("CategoryDiscountSBtn");
    QTest::keyClick(in("DateFromTxt"), Qt::Key_Down);
    ASSERT_TRUE(isMonthShown());
    EXPECT_EQ(calendar()->selectedDate(), clock.day); // an empty field starts with today
    auto* days = calendar()->findChild<QAbstractItemView*>();
    QTest::keyClick(days, Qt::Key_Right);
    QTest::keyClick(days, Qt::Key_Return);
    EXPECT_FALSE(isMonthShown());
    EXPECT_EQ(textIn("DateFromTxt"), QLocale().language() == QLocale::German ? u"16.07.2026"_s : u"7/16/2026"_s);
}

TEST_F(CategoryPanels, CloseTheMonthOnEscapeAndOnAClickElsewhere)
{
    discount().Status = DiscountStatus::ToAll;
    click("CategoryDiscountSBtn");
    clickField("DateFromTxt");
    ASSERT_TRUE(isMonthShown());
    QTest::keyClick(calendar()->findChild<QAbstractItemView*>(), Qt::Key_Escape);
    EXPECT_FALSE(isMonthShown());
    EXPECT_EQ(textIn("DateFromTxt"), QString());
    clickField("DateFromTxt");
    ASSERT_TRUE(isMonthShown());
    QTest::mousePress(calendar(), Qt::LeftButton, {}, QPoint(-40, -40));
    EXPECT_FALSE(isMonthShown());
    EXPECT_EQ(textIn("DateFromTxt"), QString());
}

TEST_F(CategoryPanels, LeaveATextThatIsNoDateWhileItIsTyped)
{
    discount().Status = DiscountStatus::ToAll;
    click("CategoryDiscountSBtn");
    clickField("DateFromTxt");
    // What is typed while the month is open goes into the field.
    QTest::keyClicks(calendar()->findChild<QAbstractItemView*>(), u"s"_s);
    EXPECT_FALSE(isMonthShown());
    QTest::keyClicks(in("DateFromTxt"), u"oon"_s);
    EXPECT_EQ(textIn("DateFromTxt"), u"soon"_s);
    clickField("DateFromTxt");
    EXPECT_EQ(calendar()->selectedDate(), clock.day);
    calendar()->hide();
    EXPECT_EQ(textIn("DateFromTxt"), u"soon"_s);
    reset();
}

TEST_F(CategoryPanels, TakeTheFormerDateBackWhenAFieldIsLeftWithATextThatIsNone)
{
    const QString day = QLocale().language() == QLocale::German ? u"16.07.2026"_s : u"7/16/2026"_s;
    discount().Status = DiscountStatus::ToAll;
    discount().DateFrom = day;
    discount().DateTo = u"some day"_s; // as a file may hold it
    click("CategoryDiscountSBtn");
    for (const char* field : {"DateFromTxt", "DateToTxt"}) {
        in(field)->setFocus();
        QTest::keyClicks(in(field), u"x"_s);
        QTest::keyClick(in(field), Qt::Key_Tab);
    }
    EXPECT_EQ(textIn("DateFromTxt"), day);
    EXPECT_EQ(textIn("DateToTxt"), u"some day"_s);

    in<QLineEdit>("DateToTxt")->clear();
    in<QLineEdit>("DateFromTxt")->setText(u"soon"_s); // not left before the gathering
    window->ShowFrame(nullptr, PanelCode::GatherOnly);
    EXPECT_EQ(discount().DateFrom, day);
    in<QLineEdit>("DateFromTxt")->clear();
    window->ShowFrame(nullptr, PanelCode::GatherOnly);
    EXPECT_EQ(discount().DateFrom, QString());
}

TEST_F(CategoryPanels, TellTheFormOfADateInTheToolTip)
{
    discount().Status = DiscountStatus::ToAll;
    click("CategoryDiscountSBtn");
    clock.day = QDate(2031, 7, 3);
    QHelpEvent toolTip(QEvent::ToolTip, QPoint(2, 2), in("DateToTxt")->mapToGlobal(QPoint(2, 2)));
    QCoreApplication::sendEvent(in("DateToTxt"), &toolTip);
    EXPECT_TRUE(
        in("DateToTxt")->toolTip().contains(QLocale().language() == QLocale::German ? u"03.07.2031"_s : u"7/3/2031"_s))
        << in("DateToTxt")->toolTip().toStdString();
}

TEST_F(CategoryPanels, ClearADateInTheMonth)
{
    discount().Status = DiscountStatus::ToAll;
    discount().DateFrom = QLocale().language() == QLocale::German ? u"16.07.2026"_s : u"7/16/2026"_s;
    click("CategoryDiscountSBtn");
    clickField("DateFromTxt");
    QTest::mouseClick(calendar()->findChild<QPushButton*>(u"NoDateBtn"_s), Qt::LeftButton);
    EXPECT_FALSE(isMonthShown());
    EXPECT_EQ(textIn("DateFromTxt"), QString());
}

TEST_F(CategoryPanels, TakeAYearThatIsTypedIntoTheMonth)
{
    discount().Status = DiscountStatus::ToAll;
    click("CategoryDiscountSBtn");
    clickField("DateFromTxt");
    QTest::mouseClick(calendar()->findChild<QToolButton*>(u"qt_calendar_yearbutton"_s), Qt::LeftButton);
    auto* year = calendar()->findChild<QSpinBox*>(u"qt_calendar_yearedit"_s);
    ASSERT_TRUE(year->isVisible());
    year->selectAll();
    QTest::keyClicks(year, u"2031"_s);
    EXPECT_TRUE(isMonthShown());
    EXPECT_EQ(textIn("DateFromTxt"), QString());
    QTest::keyClick(year, Qt::Key_Return);
    EXPECT_FALSE(year->isVisible());
    EXPECT_EQ(calendar()->yearShown(), 2031);
    clickDay(3);
    EXPECT_EQ(textIn("DateFromTxt"), QLocale().language() == QLocale::German ? u"03.07.2031"_s : u"7/3/2031"_s);
}

TEST_F(CategoryPanels, OpenNoMonthForDatesThatAreNotUsed)
{
    click("CategoryDiscountSBtn");
    clickField("DateFromTxt");
    EXPECT_FALSE(isMonthShown());
    QTest::keyClicks(in("DateFromTxt"), u"1"_s);
    EXPECT_EQ(textIn("DateFromTxt"), QString());
}

} // namespace
