// What the last box tells of the panel that was open.
#include "support/WindowTest.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

class ErrorsInAPanel : public WindowTest
{
protected:
    void SetUp() override
    {
        useShop("<Version>1.2.0</Version><Name>Fern</Name><SelectedCountries/><MaxProductId>9</MaxProductId>"
                "<Category><Id>2</Id><Name>Tea</Name><Product><Id>3</Id><Name>Sencha</Name><Related/></Product>"
                "</Category>");
        start();
    }
    // What an error from any of the window's parts is told with.
    QStringList told()
    {
        RuntimeError error = RuntimeError(ErrorNumber::TypeMismatch).because(u"The cause."_s);
        window->errorHandler().fatalError(error);
        return errors.circumstances;
    }
};

TEST_F(ErrorsInAPanel, TellItsTitleAndItsObject)
{
    EXPECT_EQ(told(), (QStringList{u"The cause."_s, u"The panel \"Shop general properties\" of the shop was open."_s}));
    clickNode(u"ID2"_s);
    click("CategoryDiscountSBtn");
    EXPECT_EQ(told().last(), u"The panel \"Category discount properties\" of the category \"Tea\" was open."_s);
    clickNode(u"ID3"_s);
    EXPECT_EQ(told().last(), u"The panel \"Product general properties\" of the product \"Sencha\" was open."_s);
    trigger("mnuProductsCatalog");
    EXPECT_EQ(told().last(), u"The panel \"Shop general properties\" of the shop was open."_s);
}

TEST_F(ErrorsInAPanel, TellNoObjectOfADesignPanel)
{
    clickNode(u"ID2"_s);
    trigger("mnuShopDesign");
    EXPECT_EQ(told().last(), u"The panel \"Main Page Design\" was open."_s);
}

TEST_F(ErrorsInAPanel, TellNoPanelWhereNoneIsOpen)
{
    window->ShowFrame(nullptr, 0);
    EXPECT_EQ(told(), QStringList{u"The cause."_s});
}

TEST_F(ErrorsInAPanel, TellThatTheShopFileWasBeingWritten)
{
    window->session().shop->Discount()->DateFrom = u"soon"_s;
    window->ShowFrame(nullptr, 0);
    window->session().shop->Discount()->DateFrom = u"soon"_s;
    trigger("mnuSaveShop");
    EXPECT_EQ(errors.numbers, std::vector<int>{13});
    EXPECT_EQ(errors.circumstances,
              (QStringList{u"\"soon\" is no date."_s, u"The file \"shop.xml\" was being written."_s}));
}

TEST_F(ErrorsInAPanel, TellWhichObjectWasBeingSavedWhenAnotherOneIsAlreadyActive)
{
    clickNode(u"ID3"_s);
    click("ProductDiscountSBtn");
    window->ActiveObject = window->session().shop;
    EXPECT_EQ(told().last(), u"The panel \"Product discount properties\" of the product \"Sencha\" was open."_s);
}

} // namespace
