// Cells that should hold a number and do not: they are marked, and taken all the same.
#include "PanelTest.h"
#include "editors/LinkLabel.h"
#include "look/Theme.h"

using namespace Qt::StringLiterals;

namespace {

struct NumberColumn
{
    const char* panel;
    const char* node;
    const char* option; // chosen ahead of the look, or none
    const char* grid;
    int column;
    bool takesEither; // decimal separator, else only the user's
    bool takesEmpty;
};

// Every column of prices, percentages, costs and weights.
constexpr NumberColumn numberColumns[] = {
    {"ShopDiscountPnl", "ID_SHOP", "DependOpt", "DiscountGrd", 0, true, false},
    {"ShopDiscountPnl", "ID_SHOP", "DependOpt", "DiscountGrd", 1, true, false},
    {"ShopDiscountPnl", "ID_SHOP", "DependOpt", "DiscountGrd", 2, true, true},
    {"CategoryDiscountPnl", "ID2", "DependOpt", "DiscountGrd", 0, true, false},
    {"CategoryDiscountPnl", "ID2", "DependOpt", "DiscountGrd", 2, true, true},
    {"ShopTaxesPnl", "ID_SHOP", "optSelectTax", "TaxGrd", 1, true, true},
    {"ShippingChargesPnl", "ID_SHOP", "cmbSelectCharges", "gridCharges", 1, false, true},
    {"ProductsMultipricePnl", "ID4", nullptr, "MultipriceGrd", 1, false, true},
};

constexpr NumberColumn variants = numberColumns[std::size(numberColumns) - 1];

class CellMarks : public PanelTest
{
public:
    ~CellMarks() override { showScheme(Scheme::Light); }

protected:
    CustomGrid* open(const NumberColumn& row)
    {
        clickNode(QLatin1String(row.node));
        showPanel(row.panel);
        if (row.option) {
            press(row.option);
        }
        auto* grid = in<CustomGrid>(row.grid);
        press(grid->AddItemButtonLbl);
        return grid;
    }
    static int lastRow(const CustomGrid* grid) { return grid->BaseGrd->rowCount() - 1; }
    static QString reason(const CustomGrid* grid, int row, int column)
    {
        return grid->BaseGrd->item(row, column)->toolTip();
    }
    // The colour of the cell's left edge, halfway down, in the focus's ring or just inside it.
    static QColor edgeOf(const CustomGrid* grid, int row, int column, int inset)
    {
        const QRect cell = grid->BaseGrd->visualItemRect(grid->BaseGrd->item(row, column));
        const QImage picture = grid->BaseGrd->viewport()->grab().toImage();
        return picture.pixelColor(cell.left() + inset, cell.center().y());
    }
};

TEST_F(CellMarks, StandAtWhatIsNoNumber)
{
    const bool isComma = QLocale().decimalPoint() == u","_s;
    const QString users = isComma ? u"1,5"_s : u"1.5"_s;
    const QString other = isComma ? u"1.5"_s : u"1,5"_s;
    for (const NumberColumn& row : numberColumns) {
        SCOPED_TRACE(testing::Message() << row.panel << ", column " << row.column);
        CustomGrid* grid = open(row);
        const int last = lastRow(grid);
        EXPECT_EQ(reason(grid, last, row.column).isEmpty(), row.takesEmpty);
        const auto isTaken = [&](const QString& text) {
            typeIntoCell(grid, last, row.column, text);
            return reason(grid, last, row.column).isEmpty();
        };
        EXPECT_TRUE(isTaken(u"12"_s));
        EXPECT_TRUE(isTaken(users));
        EXPECT_EQ(isTaken(other), row.takesEither);
        EXPECT_FALSE(isTaken(u"12 euro"_s));
        EXPECT_FALSE(isTaken(u"-"_s));
        EXPECT_TRUE(isTaken(u"-3"_s));
        // What is written back would be another number.
        EXPECT_EQ(isTaken(isComma ? u"1.234"_s : u"1,234"_s), row.takesEither);
        EXPECT_FALSE(isTaken(isComma ? u"1.234,50"_s : u"1,234.50"_s));
    }
}

TEST_F(CellMarks, StandInEveryColumnOfTheShippingCosts)
{
    CustomGrid grid(*window, nullptr);
    grid.setContents({CellContent::Number});
    auto texts = std::make_shared<TextCollection>();
    texts->Add(u"light"_s);
    grid.Init({u"From (kg)"_s, u"To (kg)"_s, u"Post"_s}, {texts, texts, texts});
    for (int column = 0; column < 3; ++column) {
        EXPECT_FALSE(reason(&grid, 0, column).isEmpty()) << column;
    }
}

TEST_F(CellMarks, NeverStandAtNamesAndDescriptions)
{
    for (const NumberColumn& row : numberColumns) {
        if (row.column == 1 && QLatin1String(row.grid) != "DiscountGrd"_L1) {
            CustomGrid* grid = open(row);
            typeIntoCell(grid, lastRow(grid), 0, u"Isles"_s);
            EXPECT_EQ(reason(grid, lastRow(grid), 0), QString()) << row.panel;
        }
    }
}

TEST_F(CellMarks, LetTheTextThrough)
{
    CustomGrid* grid = open(variants);
    typeIntoCell(grid, 0, 1, u"on request"_s);
    submit();
    EXPECT_EQ(product("4")->Price()->MultiPriceCollection().Item(1)->Value, u"on request"_s);
    reset();
    EXPECT_FALSE(reason(in<CustomGrid>("MultipriceGrd"), 0, 1).isEmpty());
}

TEST_F(CellMarks, TellTheReasonInTheFormThatIsWanted)
{
    CustomGrid* grid = open(variants);
    typeIntoCell(grid, 0, 1, u"x"_s);
    EXPECT_EQ(reason(grid, 0, 1), u"This is not a number. Write it like %1."_s.arg(localised(u"12.50"_s)));
    EXPECT_EQ(grid->ForGridTxt->toolTip(), reason(grid, 0, 1));
    typeIntoCell(grid, 0, 1, u"8"_s);
    EXPECT_EQ(grid->ForGridTxt->toolTip(), QString());
}

TEST_F(CellMarks, ShowInLightAndDarkWhereverTheFocusIs)
{
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        showScheme(scheme);
        QCoreApplication::processEvents();
        CustomGrid* grid = open(variants);
        press(grid->AddItemButtonLbl);
        typeIntoCell(grid, 0, 1, u"x"_s);
        EXPECT_EQ(grid->ForGridTxt->grab().toImage().pixelColor(1, 9), toneIn(scheme, Tone::Error));
        QTest::keyClick(grid->ForGridTxt, Qt::Key_Return);
        ASSERT_TRUE(grid->BaseGrd->hasFocus());
        EXPECT_EQ(edgeOf(grid, 0, 1, 0), toneIn(scheme, Tone::Accent)) << "the focus does not show";
        EXPECT_EQ(edgeOf(grid, 0, 1, 3), toneIn(scheme, Tone::Error));
        grid->BaseGrd->setCurrentCell(1, 0);
        EXPECT_EQ(edgeOf(grid, 0, 1, 1), toneIn(scheme, Tone::Error));
        EXPECT_NE(edgeOf(grid, 1, 1, 1), toneIn(scheme, Tone::Error)) << "a cell that is empty";
        reset();
    }
}

} // namespace
