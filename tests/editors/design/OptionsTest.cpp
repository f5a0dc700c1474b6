// Every option of every manager: from its control into the shop file, back into the control, and into the page.
#include "DesignTest.h"

#include <QTest>

#include <map>

using namespace Qt::StringLiterals;
using enum DesignOption;

namespace {

struct ControlCase
{
    DesignOption option;
    const char* control;
};

// Which control edits which option. What is no text is a check box.
constexpr ControlCase menuControls[] = {
    {Menu_TopCategories, "chkTopCategories"},
    {Menu_SearchButton, "chkSearchButton"},
    {Menu_SearchTextfield, "chkSearchTextfield"},
    {Menu_ShowMenu, "chkShowMenu"},
    {Menu_ProductNames, "chkProductNames"},
    {Menu_CartButton, "chkCartButton"},
    {Menu_IncludeHeaderTopCategory, "chkIncludeHeaderTopCategory"},
    {Menu_HeaderTopCategoryText, "txtHeaderTopCategory"},
};
constexpr ControlCase headerControls[] = {
    {Header_ShowLogo, "chkShowLogo"},
    {Header_ShowMenu, "chkShowMenu"},
    {Header_IncludeSearchBoxTextField, "chkIncludeSearchBoxTextField"},
    {Header_IncludeSearchBoxButton, "chkIncludeSearchBoxButton"},
    {Header_ShowSoppingCartButton, "chkShowSoppingCartButton"},
};
constexpr ControlCase footerControls[] = {
    {Footer_CopyrightText, "CopyrightTxt"},
    {Footer_ShowMenu, "chkShowMenu"},
};
constexpr ControlCase mainControls[] = {
    {Main_IncludeTopCategories, "chkIncludeTopCategories"},
    {Main_SearchTextfield, "chkSearchTextfield"},
    {Main_SearchButton, "chkSearchButton"},
    {Main_IncludeNavigationMenu, "chkIncludeNavigationMenu"},
    {Main_IncludeTwoLevel, "chkIncludeTwoLevel"},
    {Main_IncludePageHeader, "chkIncludePageHeader"},
    {Main_PageHeader, "txtPageHeader"},
    {Main_IncludeShopDescription, "chkIncludeShopDescription"},
};
constexpr ControlCase categoryControls[] = {
    {Category_AddToCart, "chkIncludeAddToCart"},
    {Category_BreadCrumb, "chkIncludeBreadcrumb"},
    {Category_Description, "chkIncludeDescription"},
    {Category_Image, "chkIncludeImage"},
    {Category_NewPrice, "chkIncludeNewPrice"},
    {Category_Name, "chkIncludeName"},
    {Category_OldPrice, "chkIncludeOldPrice"},
    {Category_IncludePageHeader, "chkIncludePageHeader"},
    {Category_Price, "chkIncludePrice"},
    {Category_ProductImage, "chkIncludeProductImage"},
    {Category_ProductName, "chkIncludeProductName"},
    {Category_Related, "chkIncludeRelated"},
    {Category_ShoppingInfo, "chkIncludeShipping"},
    {Category_Taxes, "chkIncludeTaxes"},
    {Category_ProductDescription, "chkIncludeProductDescription"},
    {Category_PageHeader, "txtPageHeader"},
    {Category_Limit_Desc, "txtLimit"},
};
constexpr ControlCase productControls[] = {
    {ProductPage_IncludePageHeader, "chkIncludePageHeader"},
    {ProductPage_PageHeader, "txtPageHeader"},
    {ProductPage_IncludeBreadcrumb, "chkIncludeBreadcrumb"},
    {ProductPage_IncludeImage, "chkIncludeImage"},
    {ProductPage_IncludeAddToCart, "chkIncludeAddToCart"},
    {ProductPage_IncludeName, "chkIncludeName"},
    {ProductPage_IncludeDescription, "chkIncludeDescription"},
    {ProductPage_IncludePrice, "chkIncludePrice"},
    {ProductPage_IncludeOldPrice, "chkIncludeOldPrice"},
    {ProductPage_IncludeNewPrice, "chkIncludeNewPrice"},
    {ProductPage_IncludeTaxes, "chkIncludeTaxes"},
    {ProductPage_IncludeShipping, "chkIncludeShipping"},
    {ProductPage_IncludeRelated, "chkIncludeRelated"},
};
constexpr ControlCase searchControls[] = {
    {SearchPage_IncludePageHeader, "chkIncludePageHeader"},
    {SearchPage_PageHeader, "txtPageHeader"},
    {SearchPage_IncludeBreadcrumb, "chkIncludeBreadcrumb"},
    {SearchPage_IncludeImage, "chkIncludeImage"},
    {SearchPage_IncludeAddToCart, "chkIncludeAddToCart"},
    {SearchPage_IncludeName, "chkIncludeName"},
    {SearchPage_IncludeDescription, "chkIncludeDescription"},
    {SearchPage_IncludePrice, "chkIncludePrice"},
    {SearchPage_IncludeOldPrice, "chkIncludeOldPrice"},
    {SearchPage_IncludeNewPrice, "chkIncludeNewPrice"},
    {SearchPage_IncludeTaxes, "chkIncludeTaxes"},
    {SearchPage_IncludeShipping, "chkIncludeShipping"},
    {SearchPage_IncludeRelated, "chkIncludeRelated"},
    {SearchPage_Limit_Desc, "txtLimit"},
};
constexpr ControlCase cartControls[] = {
    {CartPage_IncludePageHeader, "chkIncludePageHeader"},
    {CartPage_PageHeader, "txtPageHeader"},
    {CartPage_IncludeAddToCart, "chkIncludeAddToCart"},
    {CartPage_IncludeDescription, "chkIncludeDescription"},
    {CartPage_IncludeImage, "chkIncludeImage"},
    {CartPage_IncludeName, "chkIncludeName"},
    {CartPage_IncludeNewPrice, "chkIncludeNewPrice"},
    {CartPage_IncludeOldPrice, "chkIncludeOldPrice"},
    {CartPage_IncludePrice, "chkIncludePrice"},
    {CartPage_IncludeRelated, "chkIncludeRelated"},
    {CartPage_IncludeShipping, "chkIncludeShipping"},
    {CartPage_IncludeTaxes, "chkIncludeTaxes"},
    {CartPage_Limit_Desc, "txtLimit"},
};
constexpr ControlCase buyingControls[] = {
    {BuyingForm_IncludeBreadCrumb, "chkIncludeBreadcrumb"},
    {BuyingForm_IncludePageHeader, "chkIncludePageHeader"},
    {BuyingForm_PageHeaderText, "txtPageHeader"},
};

struct OptionsCase
{
    const char* button;
    DesignGroup group;
    std::span<const ControlCase> controls;
    const char* page;
};
constexpr OptionsCase cases[] = {
    {"MenuDesignSBtn", DesignGroup::Menu, menuControls, "menu"},
    {"HeaderDesignSBtn", DesignGroup::Header, headerControls, "header"},
    {"FooterDesignSBtn", DesignGroup::Footer, footerControls, "footer"},
    {"MainPageDesignSBtn", DesignGroup::Main, mainControls, "main"},
    {"CategoryPageDesignSBtn", DesignGroup::Category, categoryControls, "category"},
    {"ProductPageDesignSBtn", DesignGroup::Product, productControls, "product"},
    {"SearchPageDesignSBtn", DesignGroup::Search, searchControls, "search"},
    {"ShoppingCartPageDesignSBtn", DesignGroup::Cart, cartControls, "cart"},
    {"BuyingFormDesignSBtn", DesignGroup::BuyingForm, buyingControls, "checkout"},
};

const QString& nameOf(DesignOption option)
{
    return designOptionTable()[static_cast<std::size_t>(option)].name;
}

bool isSwitch(const ControlCase& control)
{
    return qstrncmp(control.control, "chk", 3) == 0;
}
bool isLimit(const ControlCase& control)
{
    return qstrcmp(control.control, "txtLimit") == 0;
}

// The pages know the copyright line and the limits under names of their own.
QString variableOf(const ControlCase& control)
{
    if (control.option == Footer_CopyrightText) {
        return u"COPYRIGHT_TEXT"_s;
    }
    return isLimit(control) ? u"cut_count"_s : nameOf(control.option);
}

class Options : public DesignTest, public testing::WithParamInterface<OptionsCase>
{
protected:
    void SetUp() override
    {
        useSampleShop();
        useTellingTemplate();
        start();
        click("ShopDesignSBtn");
        openManager(GetParam().button);
    }

    // The page's template becomes one that tells the values of its options, wherever the page defines them.
    void useTellingTemplate()
    {
        QByteArray text;
        for (const ControlCase& control : GetParam().controls) {
            const QByteArray name = variableOf(control).toLatin1();
            text += "[" + name + "=<!--:" + name + ":-->]";
        }
        writeFile(files.path(u"templates/%1.html"_s.arg(QLatin1String(GetParam().page))),
                  text + "<!--:cycle:categories:-->" + text + "<!--:end:categories:--><!--:cycle:products:-->" + text +
                      "<!--:end:products:-->");
    }

    QString shownIn(const ControlCase& control) const
    {
        if (isSwitch(control)) {
            return in<QCheckBox>(control.control)->isChecked() ? u"Yes"_s : u"No"_s;
        }
        return in<QLineEdit>(control.control)->text();
    }

    QString otherValue(const ControlCase& control) const
    {
        if (isSwitch(control)) {
            return design().isOn(control.option) ? u"No"_s : u"Yes"_s;
        }
        return isLimit(control) ? u"7"_s : u"A text <of> its own, %1"_s.arg(nameOf(control.option));
    }

    // Flips every check box and types every text; the values by option.
    std::map<DesignOption, QString> changeAll() const
    {
        std::map<DesignOption, QString> values;
        for (const ControlCase& control : GetParam().controls) {
            values[control.option] = otherValue(control);
            if (isSwitch(control)) {
                tick(in<QCheckBox>(control.control));
            } else {
                type(in<QLineEdit>(control.control), values[control.option]);
            }
        }
        return values;
    }

    // All pages that show the shop's parts, in one text: every category, a product, a search, the cart with a product
    // in it, and the form.
    QString allPages()
    {
        QString text = pageAt(u"MAINPAGE"_s);
        QString product;
        for (const CatalogueObject& object : window->session().objects.items()) {
            if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object)) {
                text += pageAt(u"ACTION=category.php&id="_s + (*category)->id);
            } else if (const auto* found = std::get_if<std::shared_ptr<ProductClass>>(&object)) {
                product = (*found)->id;
            }
        }
        text += pageAt(u"ACTION=product.php&id="_s + product);
        text += pageAt(u"?ACTION=search.php&where=0&what=a"_s);
        text += pageAt(u"?addtoshopcart=&product_id=%1&price=1&quantity=1"_s.arg(product));
        return text + pageAt(u"?ACTION=checkout.php"_s);
    }
};

INSTANTIATE_TEST_SUITE_P(Managers, Options, testing::ValuesIn(cases),
                         [](const auto& row) { return std::string(row.param.page); });

TEST_P(Options, OfThePageAllHaveAControlAndStandInIt)
{
    std::size_t options = 0;
    for (const DesignOptionRow& row : designOptionsOf(GetParam().group)) {
        options += row.name.endsWith(u"_Advanced") ? 0 : 1;
    }
    EXPECT_EQ(GetParam().controls.size(), options);
    for (const ControlCase& control : GetParam().controls) {
        EXPECT_EQ(shownIn(control), design().Option(control.option)) << control.control;
    }
}

TEST_P(Options, ReachTheShopFileTheNextPageAndThePanelAgain)
{
    const std::map<DesignOption, QString> values = changeAll();
    saveShop();
    const QString pages = allPages();
    for (const ControlCase& control : GetParam().controls) {
        const QString& value = values.at(control.option);
        EXPECT_EQ(saved(nameOf(control.option)), value);
        EXPECT_TRUE(pages.contains(u"[%1=%2]"_s.arg(variableOf(control), value))) << control.control;
    }
    openManager(qstrcmp(GetParam().button, "HeaderDesignSBtn") == 0 ? "MenuDesignSBtn" : "HeaderDesignSBtn");
    openManager(GetParam().button);
    for (const ControlCase& control : GetParam().controls) {
        EXPECT_EQ(shownIn(control), values.at(control.option)) << control.control;
    }
}

TEST_P(Options, ComeBackWithReset)
{
    changeAll();
    pressIn("imgButtonReset");
    for (const ControlCase& control : GetParam().controls) {
        EXPECT_EQ(shownIn(control), design().Option(control.option)) << control.control;
    }
}

TEST_P(Options, ReachTheShopWithSubmitAndWhenThePanelIsLeft)
{
    const std::map<DesignOption, QString> first = changeAll();
    pressIn("imgButtonSubmit");
    for (const auto& [option, value] : first) {
        EXPECT_EQ(design().Option(option), value);
    }
    const std::map<DesignOption, QString> second = changeAll();
    click("ProductCatalogSBtn");
    for (const auto& [option, value] : second) {
        EXPECT_EQ(design().Option(option), value);
    }
}

TEST_P(Options, HaveCaptionsOfTheirOwn)
{
    QStringList captions;
    for (const ControlCase& control : GetParam().controls) {
        if (isSwitch(control)) {
            captions << in<QCheckBox>(control.control)->text();
        }
    }
    EXPECT_EQ(captions.removeDuplicates(), 0);
    EXPECT_FALSE(captions.contains(QString()));
}

class Limits : public DesignTest
{
};

TEST_F(Limits, OfDescriptionsBecomeWholeNumbersWhenTheyAreStored)
{
    openDesign();
    const std::pair<const char*, DesignOption> limits[] = {
        {"CategoryPageDesignSBtn", Category_Limit_Desc},
        {"SearchPageDesignSBtn", SearchPage_Limit_Desc},
        {"ShoppingCartPageDesignSBtn", CartPage_Limit_Desc},
    };
    const std::pair<QString, QString> texts[] = {{u"abc"_s, u"0"_s}, {u"40000"_s, u"0"_s}, {u"007"_s, u"7"_s}};
    for (const auto& [button, option] : limits) {
        openManager(button);
        for (const auto& [typed, stored] : texts) {
            type(in<QLineEdit>("txtLimit"), typed);
            pressIn("imgButtonSubmit");
            EXPECT_EQ(design().Option(option), stored) << button << ' ' << typed.toStdString();
        }
    }
}

TEST_F(Limits, OfTextsAreNone)
{
    openDesign();
    openManager("MainPageDesignSBtn");
    in<QLineEdit>("txtPageHeader")->setText(QString(40'000, u'x'));
    pressIn("imgButtonSubmit");
    EXPECT_EQ(design().Option(DesignOption::Main_PageHeader).size(), 40'000);
}

} // namespace
