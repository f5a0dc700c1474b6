#include "design/DesignOptions.h"

#include "support/TestSupport.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(DesignOptions, ThereAre93WithNamesOfTheirOwnAndEachStandsAtItsNumber)
{
    QSet<QString> names;
    int number = 0;
    for (const DesignOptionRow& row : designOptionTable()) {
        EXPECT_EQ(static_cast<int>(row.option), number++);
        EXPECT_EQ(row.name, QString::fromLatin1(row.element));
        EXPECT_EQ(designOptionByName(row.name), row.option);
        names.insert(row.name);
    }
    EXPECT_EQ(names.size(), 93);
}

TEST(DesignOptions, EachGroupHasItsCountAndItsPrefix)
{
    struct Row
    {
        DesignGroup group;
        std::size_t count;
        QString prefix;
    };
    const QList<Row> rows = {
        {DesignGroup::Footer, 3, u"Footer_"_s},
        {DesignGroup::Header, 6, u"Header_"_s},
        {DesignGroup::Main, 9, u"Main_"_s},
        {DesignGroup::Category, 18, u"Category_"_s},
        {DesignGroup::Menu, 9, u"Menu_"_s},
        {DesignGroup::Product, 14, u"ProductPage_"_s},
        {DesignGroup::Search, 15, u"SearchPage_"_s},
        {DesignGroup::Cart, 14, u"CartPage_"_s},
        {DesignGroup::BuyingForm, 4, u"BuyingForm_"_s},
        {DesignGroup::CustomPages, 1, u"CustomPages_"_s},
    };
    for (const Row& row : rows) {
        const auto options = designOptionsOf(row.group);
        EXPECT_EQ(options.size(), row.count) << row.prefix.toStdString();
        for (const DesignOptionRow& option : options) {
            EXPECT_TRUE(option.name.startsWith(row.prefix)) << option.name.toStdString();
        }
    }
}

TEST(DesignOptions, DefaultsAreNoWithTheKnownExceptions)
{
    const QSet<QString> empty = {u"Footer_CopyrightText"_s,       u"Main_PageHeader"_s,
                                 u"Menu_HeaderTopCategoryText"_s, u"Menu_Advanced"_s,
                                 u"ProductPage_PageHeader"_s,     u"SearchPage_PageHeader"_s,
                                 u"CartPage_PageHeader"_s,        u"BuyingForm_PageHeaderText"_s,
                                 u"CartPage_IncludeAddToCart"_s,  u"CartPage_IncludeDescription"_s,
                                 u"CartPage_IncludeImage"_s,      u"CartPage_IncludeName"_s,
                                 u"CartPage_IncludeNewPrice"_s,   u"CartPage_IncludeOldPrice"_s,
                                 u"CartPage_IncludePrice"_s,      u"CartPage_IncludeRelated"_s,
                                 u"CartPage_IncludeShipping"_s,   u"CartPage_IncludeTaxes"_s};
    const QSet<QString> zero = {u"Category_Limit_Desc"_s, u"SearchPage_Limit_Desc"_s, u"CartPage_Limit_Desc"_s};
    for (const DesignOptionRow& row : designOptionTable()) {
        const QString expected = empty.contains(row.name) ? QString() : zero.contains(row.name) ? u"0"_s : u"No"_s;
        EXPECT_EQ(row.defaultText, expected) << row.name.toStdString();
    }
}

TEST(DesignOptions, NamesAreFoundByExactCaseAndMisspelledOnesStayMisspelled)
{
    EXPECT_EQ(designOptionByName(u"Header_ShowSoppingCartButton"), DesignOption::Header_ShowSoppingCartButton);
    EXPECT_FALSE(designOptionByName(u"Header_ShowShoppingCartButton"));
    EXPECT_FALSE(designOptionByName(u"footer_showmenu"));
    EXPECT_FALSE(designOptionByName(u""));
}

TEST(DesignOptions, ALimitIsA16BitWholeNumberOrZero)
{
    const QList<std::pair<QString, QString>> rows = {
        {u"0"_s, u"0"_s},
        {u"25"_s, u"25"_s},
        {u"007"_s, u"7"_s},
        {u" 12 "_s, u"12"_s},
        {u"-3"_s, u"-3"_s},
        {u"32767"_s, u"32767"_s},
        {u"32768"_s, u"0"_s},
        {u"40000"_s, u"0"_s},
        {u"-32768"_s, u"-32768"_s},
        {u"-32769"_s, u"0"_s},
        {u"abc"_s, u"0"_s},
        {QString(), u"0"_s},
        {u" "_s, u"0"_s},
        {u"1e2"_s, u"100"_s},
        {localised(u"3.5"_s), u"4"_s},
        {localised(u"2.5"_s), u"2"_s},
        {localised(u"2.4"_s), u"2"_s},
        {localised(u"32767.5"_s), u"0"_s},
        {u"5 words"_s, u"0"_s},
    };
    for (const auto& [text, limit] : rows) {
        EXPECT_EQ(NormaliseLimit(text), limit) << text.toStdString();
    }
}

} // namespace
