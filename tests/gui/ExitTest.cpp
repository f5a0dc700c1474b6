// The exit: the saveQuestion, its three answers, and the cart.
#include "support/WindowTest.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

const QString boxTitle = u"Ambrel eCommerce Software"_s;
const QString saveQuestion = u"Do you want save changes?"_s;

class Exit : public WindowTest
{
protected:
    void SetUp() override
    {
        useShop("<Version>1.2.0</Version><Name>Fern</Name><SelectedCountries/>");
        start();
    }
};

TEST_F(Exit, WithYesSavesAndCloses)
{
    find<QLineEdit>("ShopNameTxt")->setText(u"Moss"_s);
    prompts.answerYesNoCancel(boxTitle, saveQuestion, PromptAnswer::Yes);
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(fileBytes(files.path(u"shop.xml"_s)).contains("<Name>Moss</Name>"));
    EXPECT_EQ(window->session().Cart, nullptr);
}

TEST_F(Exit, WithNoClosesAndSavesNothing)
{
    const QByteArray before = fileBytes(files.path(u"shop.xml"_s));
    window->session().shop->name = u"Moss"_s;
    prompts.answerYesNoCancel(boxTitle, saveQuestion, PromptAnswer::No);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(fileBytes(files.path(u"shop.xml"_s)), before);
    EXPECT_EQ(window->session().Cart, nullptr);
}

TEST_F(Exit, WithCancelKeepsTheWindowButNotTheCart)
{
    ASSERT_NE(window->session().Cart, nullptr);
    prompts.answerYesNoCancel(boxTitle, saveQuestion, PromptAnswer::Cancel);
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->session().Cart, nullptr);
}

TEST_F(Exit, AsksAgainRightAfterASave)
{
    trigger("mnuSaveShop");
    prompts.answerYesNoCancel(boxTitle, saveQuestion, PromptAnswer::No);
    EXPECT_TRUE(window->close());
}

TEST_F(Exit, AsksNothingWhenThereIsNothingToSave)
{
    window->ShopChanged = false;
    EXPECT_TRUE(window->close());
    EXPECT_EQ(window->session().Cart, nullptr);
}

} // namespace
