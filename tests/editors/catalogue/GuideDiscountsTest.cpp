// The examples of docs/guide/discounts.md, clicked and typed into the real window as they are written there.
#include "PanelTest.h"

using namespace Qt::StringLiterals;

namespace {

class GuideDiscounts : public PanelTest
{
protected:
    // What is chosen on a discount panel: an option, a percentage for it, and the rows of its table.
    struct Choice
    {
        const char* option;
        const char* percent = "";
        QList<QStringList> rows = {};
    };

    void choose(const char* panelButton, const Choice& choice)
    {
        click(panelButton);
        press(choice.option);
        if (*choice.percent != '\0') {
            type(qstrcmp(choice.option, "SpecificOpt") == 0 ? "SpecificTxt" : "ApplyTxt",
                 QString::fromLatin1(choice.percent));
        }
        for (const QStringList& row : choice.rows) {
            addRow(window->VisibleFrame->findChild<CustomGrid*>(), row);
        }
        submit();
    }
    void forTheShop(const Choice& choice)
    {
        trigger("mnuProductsCatalog");
        choose("ShopDiscountSBtn", choice);
    }
    void forTheCategory(const Choice& choice)
    {
        clickNode(u"ID2"_s);
        choose("CategoryDiscountSBtn", choice);
    }
    void forTheProduct(const Choice& choice)
    {
        clickNode(u"ID4"_s);
        choose("ProductDiscountSBtn", choice);
    }
    // What the product costs with the discount when its price is that one.
    QString costs(const char* price)
    {
        clickNode(u"ID4"_s);
        type("ProductPriceTxt", localised(QString::fromLatin1(price)));
        submit();
        return product("4")->Price()->NewPrice(product("4")->Price()->Value);
    }

    const Choice inherit{"InheritOpt"};
};

TEST_F(GuideDiscounts, TenPercentOnEverything)
{
    forTheShop({"ApplyOpt", "10"});
    forTheCategory(inherit);
    forTheProduct(inherit);
    EXPECT_EQ(costs("20"), u"18"_s);
    EXPECT_EQ(costs("45"), localised(u"40.5"_s));
}

TEST_F(GuideDiscounts, ButNotOnOneCategory)
{
    forTheShop({"ApplyOpt", "10"});
    forTheCategory({"NoDiscountOpt"});
    forTheProduct(inherit);
    EXPECT_EQ(costs("20"), u"20"_s);
}

TEST_F(GuideDiscounts, ASaleInOneCategory)
{
    forTheShop({"ApplyOpt", "10"});
    forTheCategory({"ApplyOpt", "25"});
    forTheProduct(inherit);
    EXPECT_EQ(costs("60"), u"45"_s);
}

TEST_F(GuideDiscounts, TheDearerTheCheaper)
{
    forTheShop({"DependOpt", "", {{u"50"_s, u"100"_s, u"5"_s}, {u"100"_s, u"1000"_s, u"10"_s}}});
    forTheCategory(inherit);
    forTheProduct(inherit);
    EXPECT_EQ(costs("60"), u"57"_s);
    EXPECT_EQ(costs("200"), u"180"_s);
    EXPECT_EQ(costs("100"), u"100"_s); // both limits of a row are left out
}

TEST_F(GuideDiscounts, OneProductOfItsOwn)
{
    forTheShop({"ApplyOpt", "10"});
    forTheCategory({"NoDiscountOpt"});
    forTheProduct({"SpecificOpt", "15"});
    EXPECT_EQ(costs("20"), u"17"_s);
}

} // namespace
