#include "design/ShopDesignClass.h"

#include "DesignFixture.h"

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

class ShopDesigns : public DesignFixture
{
protected:
    // The names of the children of the element in order.
    static QStringList childNames(const pugi::xml_node& node)
    {
        QStringList names;
        for (const pugi::xml_node& child : node.children()) {
            names.append(QString::fromUtf8(child.name()));
        }
        return names;
    }

    ShopDesignClass design{services};
};

TEST_F(ShopDesigns, MakingOneIsLogged)
{
    EXPECT_EQ(logLines(), QStringList{u"\"Start shop design creating\""_s});
}

TEST_F(ShopDesigns, ANewOneHasEmptyOptionsAndEmptySlots)
{
    for (const DesignOptionRow& row : designOptionTable()) {
        EXPECT_EQ(design.Option(row.option), QString()) << row.element;
        EXPECT_FALSE(design.isOn(row.option));
    }
    for (std::size_t i = 0; i < ImageSlotCount; ++i) {
        EXPECT_EQ(design.Image(static_cast<ImageSlot>(i))->SelectionType, ImageSelection::Nothing);
    }
    for (std::size_t i = 0; i < PageSelectionCount; ++i) {
        EXPECT_TRUE(design.Pages(static_cast<PageSelection>(i))->selectedPages().isEmpty());
    }
    EXPECT_EQ(design.BuyingForm_RecalculateButton, nullptr);
}

TEST_F(ShopDesigns, EverySlotAndSelectionHasItsTag)
{
    const QList<std::pair<ImageSlot, QString>> images = {
        {ImageSlot::HeaderLogo, u"HEADER_LOGO"_s},
        {ImageSlot::HeaderSearchButton, u"HEADER_SEARCH_BUTTON"_s},
        {ImageSlot::HeaderShoppingCartButton, u"HEADER_SHOPPINGCART_BUTTON"_s},
        {ImageSlot::MenuSearchButton, u"MENU_SEARCH_BUTTON"_s},
        {ImageSlot::MenuShoppingCartButton, u"MENU_SHOPPINGCART_BUTTON"_s},
        {ImageSlot::MainSearchButton, u"MAIN_SEARCH_BUTTON"_s},
        {ImageSlot::SearchPageShoppingCartButton, u"SEARCHPAGE_SHOPPINGCART_BUTTON"_s},
        {ImageSlot::ProductCartButton, u"PRODUCT_CART_BUTTON"_s},
        {ImageSlot::CategoryCartButton, u"CATEGORY_CART_BUTTON"_s},
        {ImageSlot::CartRecalculateButton, u"CARTPAGE_RECALCULATE_BUTTON"_s},
        {ImageSlot::CartPage_Checkout_Button, u"CARTPAGE_CHECKOUT_BUTTON"_s},
        {ImageSlot::BuyingFormMakeOrderButton, u"BUYINGFORM_MAKEORDER_BUTTON"_s},
    };
    ASSERT_EQ(images.size(), static_cast<qsizetype>(ImageSlotCount));
    for (const auto& [slot, tag] : images) {
        EXPECT_EQ(tagOf(slot), tag);
        EXPECT_EQ(design.Image(slot)->Tag, tag);
    }
    const QList<std::pair<PageSelection, QString>> pages = {
        {PageSelection::FooterCustomPageSelected, u"FOOTER_MENU_LIST"_s},
        {PageSelection::HeaderCustomPageSelected, u"HEADER_MENU_LIST"_s},
        {PageSelection::MenuCustomPageSelected, u"LEFT_MENU_MENU_LIST"_s},
        {PageSelection::CustomPageAsMainPage, u"CUSTOM_PAGE_AS_MAIN_PAGE"_s},
        {PageSelection::MainPageMenuList, u"MAIN_PAGE_MENU_LIST"_s},
    };
    ASSERT_EQ(pages.size(), static_cast<qsizetype>(PageSelectionCount));
    for (const auto& [selection, tag] : pages) {
        EXPECT_EQ(tagOf(selection), tag);
        EXPECT_EQ(design.Pages(selection)->Tag, tag);
    }
}

TEST_F(ShopDesigns, AnElementWithoutChildrenGivesTheDefaultOfEveryOption)
{
    for (const DesignOptionRow& row : designOptionTable()) {
        design.setOption(row.option, u"12"_s);
    }
    design.FromXML(element("<ShopDesign/>"));
    for (const DesignOptionRow& row : designOptionTable()) {
        EXPECT_EQ(design.Option(row.option), row.defaultText) << row.element;
    }
    EXPECT_EQ(design.Option(DesignOption::Category_PageHeader), u"No"_s);
}

TEST_F(ShopDesigns, ReadingIsLoggedStepByStep)
{
    design.FromXML(element("<ShopDesign/>"));
    EXPECT_EQ(logLines(), (QStringList{
                              u"\"Start shop design creating\""_s,
                              u"\"-------Start ShopDesignClass loading from XML---\""_s,
                              u"\"Footer loaded from XML\""_s,
                              u"\"Header loaded from XML\""_s,
                              u"\"Main loaded from XML\""_s,
                              u"\"CATEGORY loaded from XML\""_s,
                              u"\"MENU loaded from XML\""_s,
                              u"\"PRODUCT loaded from XML\""_s,
                              u"\"SEARCH loaded from XML\""_s,
                              u"\"CART PAGE loaded from XML\""_s,
                              u"\"BUYING FORM loaded from XML\""_s,
                              u"\"-----ShopDesignClass loaded from XML------\""_s,
                          }));
}

TEST_F(ShopDesigns, TheElementHasItsChildrenInTheOrderOfTheFormat)
{
    QStringList expected;
    for (const DesignOptionRow& row : designOptionTable()) {
        if (row.group != DesignGroup::CustomPages) {
            expected.append(row.name);
        }
    }
    expected += {u"Header_ShowLogo"_s,
                 u"HEADER_LOGO"_s,
                 u"HEADER_SEARCH_BUTTON"_s,
                 u"Header_ShowMenu"_s,
                 u"Header_IncludeSearchBoxTextField"_s,
                 u"Header_IncludeSearchBoxButton"_s,
                 u"Header_ShowSoppingCartButton"_s,
                 u"Header_Advanced"_s,
                 u"CustomPages_Advanced"_s,
                 u"FOOTER_MENU_LIST"_s,
                 u"HEADER_MENU_LIST"_s,
                 u"LEFT_MENU_MENU_LIST"_s,
                 u"HEADER_SHOPPINGCART_BUTTON"_s,
                 u"CUSTOM_PAGE_AS_MAIN_PAGE"_s,
                 u"MAIN_PAGE_MENU_LIST"_s,
                 u"MAIN_SEARCH_BUTTON"_s,
                 u"MENU_SEARCH_BUTTON"_s,
                 u"MENU_SHOPPINGCART_BUTTON"_s,
                 u"SEARCHPAGE_SHOPPINGCART_BUTTON"_s,
                 u"PRODUCT_CART_BUTTON"_s,
                 u"CATEGORY_CART_BUTTON"_s,
                 u"CARTPAGE_RECALCULATE_BUTTON"_s,
                 u"CARTPAGE_CHECKOUT_BUTTON"_s,
                 u"BUYINGFORM_MAKEORDER_BUTTON"_s};
    EXPECT_EQ(childNames(element(written(design, "ShopDesign"))), expected);
}

TEST_F(ShopDesigns, EveryOptionIsWrittenAndReadBackAndTheHeadersStandTwiceWithOneValue)
{
    for (const DesignOptionRow& row : designOptionTable()) {
        design.setOption(row.option, row.name.endsWith(u"_Limit_Desc"_s) ? QString::number(static_cast<int>(row.option))
                                                                         : u"value of "_s + row.name);
    }
    const QByteArray xml = written(design, "ShopDesign");
    for (const DesignOptionRow& row : designOptionTable()) {
        const QByteArray whole = '<' + row.name.toUtf8() + '>' + design.Option(row.option).toUtf8() + "</";
        EXPECT_EQ(xml.count(whole), row.group == DesignGroup::Header ? 2 : 1) << row.element;
    }
    ShopDesignClass read(services);
    read.FromXML(element(xml));
    for (const DesignOptionRow& row : designOptionTable()) {
        EXPECT_EQ(read.Option(row.option), design.Option(row.option)) << row.element;
    }
    EXPECT_EQ(written(read, "ShopDesign"), xml);
}

TEST_F(ShopDesigns, OnlyTheFirstElementOfANameCountsAtAnyDepth)
{
    design.FromXML(element("<ShopDesign><A><Header_ShowLogo>Yes</Header_ShowLogo></A>"
                           "<Header_ShowLogo>No</Header_ShowLogo></ShopDesign>"));
    EXPECT_TRUE(design.isOn(DesignOption::Header_ShowLogo));
}

TEST_F(ShopDesigns, ASwitchIsOnOnlyWithTheExactWord)
{
    design.setOption(DesignOption::Main_SearchButton, u"yes"_s);
    EXPECT_FALSE(design.isOn(DesignOption::Main_SearchButton));
    design.setOption(DesignOption::Main_SearchButton, u"Yes"_s);
    EXPECT_TRUE(design.isOn(DesignOption::Main_SearchButton));
}

TEST_F(ShopDesigns, TheThreeLimitsAreNormalisedWhenSetAndWhenReadAndNothingElseIs)
{
    for (const DesignOption limit :
         {DesignOption::Category_Limit_Desc, DesignOption::SearchPage_Limit_Desc, DesignOption::CartPage_Limit_Desc}) {
        design.setOption(limit, u"007"_s);
        EXPECT_EQ(design.Option(limit), u"7"_s);
    }
    design.setOption(DesignOption::Main_PageHeader, u"007"_s);
    EXPECT_EQ(design.Option(DesignOption::Main_PageHeader), u"007"_s);
    design.FromXML(element("<ShopDesign><Category_Limit_Desc>abc</Category_Limit_Desc>"
                           "<SearchPage_Limit_Desc>40000</SearchPage_Limit_Desc>"
                           "<CartPage_Limit_Desc>12</CartPage_Limit_Desc></ShopDesign>"));
    EXPECT_EQ(design.Option(DesignOption::Category_Limit_Desc), u"0"_s);
    EXPECT_EQ(design.Option(DesignOption::SearchPage_Limit_Desc), u"0"_s);
    EXPECT_EQ(design.Option(DesignOption::CartPage_Limit_Desc), u"12"_s);
}

TEST_F(ShopDesigns, TheThreeMembersOutsideTheFileDoNotReachIt)
{
    const QByteArray before = written(design, "ShopDesign");
    design.Header_LogoText = u"text"_s;
    design.Header_LogoName = u"name"_s;
    design.BuyingForm_RecalculateButton = std::make_shared<clsSelectedImage>(services, u"TAG"_s);
    EXPECT_EQ(written(design, "ShopDesign"), before);
}

TEST_F(ShopDesigns, SlotsAndSelectionsKeepTheirIdentityAndGetNewContent)
{
    QByteArray xml;
    std::vector<std::shared_ptr<clsSelectedImage>> images;
    for (std::size_t i = 0; i < ImageSlotCount; ++i) {
        images.push_back(design.Image(static_cast<ImageSlot>(i)));
        const QByteArray tag = images.back()->Tag.toUtf8();
        xml += '<' + tag + "><Text>new " + tag + "</Text></" + tag + '>';
    }
    std::vector<std::shared_ptr<clsSelectedCustomPages>> selections;
    for (std::size_t i = 0; i < PageSelectionCount; ++i) {
        selections.push_back(design.Pages(static_cast<PageSelection>(i)));
        selections.back()->Add(u"old"_s);
        const QByteArray tag = selections.back()->Tag.toUtf8();
        xml += '<' + tag + "><P><S>new " + tag + "</S></P></" + tag + '>';
    }
    design.FromXML(element("<ShopDesign>" + xml + "</ShopDesign>"));
    for (std::size_t i = 0; i < ImageSlotCount; ++i) {
        EXPECT_EQ(design.Image(static_cast<ImageSlot>(i)), images[i]);
        EXPECT_EQ(images[i]->TextValue, u"new "_s + images[i]->Tag);
    }
    for (std::size_t i = 0; i < PageSelectionCount; ++i) {
        EXPECT_EQ(design.Pages(static_cast<PageSelection>(i)), selections[i]);
        ASSERT_EQ(selections[i]->selectedPages().Count(), 1);
        EXPECT_EQ(selections[i]->selectedPages().Item(1), u"new "_s + selections[i]->Tag);
    }
}

// The first broken one ends the reading, so that the number of the error tells which of two is read first.
TEST_F(ShopDesigns, SelectionsAndSlotsAreReadInAnOrderThatIsNotTheOneOfWriting)
{
    const QList<QByteArray> selections = {"FOOTER_MENU_LIST", "HEADER_MENU_LIST", "LEFT_MENU_MENU_LIST",
                                          "CUSTOM_PAGE_AS_MAIN_PAGE", "MAIN_PAGE_MENU_LIST"};
    const QList<QByteArray> slotTags = {"HEADER_LOGO",
                                        "HEADER_SEARCH_BUTTON",
                                        "HEADER_SHOPPINGCART_BUTTON",
                                        "MENU_SEARCH_BUTTON",
                                        "MENU_SHOPPINGCART_BUTTON",
                                        "MAIN_SEARCH_BUTTON",
                                        "SEARCHPAGE_SHOPPINGCART_BUTTON",
                                        "PRODUCT_CART_BUTTON",
                                        "CATEGORY_CART_BUTTON",
                                        "CARTPAGE_RECALCULATE_BUTTON",
                                        "CARTPAGE_CHECKOUT_BUTTON",
                                        "BUYINGFORM_MAKEORDER_BUTTON"};
    const auto rowWithoutName = [](const QByteArray& tag) { return '<' + tag + "><P/></" + tag + '>'; };
    const auto nameTwice = [](const QByteArray& tag) {
        return '<' + tag + "><P><S>a</S></P><P><S>a</S></P></" + tag + '>';
    };
    const auto withWidth = [](const QByteArray& tag, const QByteArray& width) {
        return '<' + tag + "><SelectionType>Image</SelectionType><Width>" + width + "</Width></" + tag + '>';
    };
    const auto firstError = [&](const QByteArray& one, const QByteArray& other) {
        const int error = errorOf([&] { design.FromXML(element("<ShopDesign>" + one + other + "</ShopDesign>")); });
        EXPECT_EQ(errorOf([&] { design.FromXML(element("<ShopDesign>" + other + one + "</ShopDesign>")); }), error);
        return error;
    };
    for (qsizetype i = 1; i < selections.size(); ++i) {
        const QByteArray& first = selections[i - 1];
        const QByteArray& second = selections[i];
        EXPECT_EQ(firstError(rowWithoutName(first), nameTwice(second)), 91) << second.toStdString();
        EXPECT_EQ(firstError(nameTwice(first), rowWithoutName(second)), 457) << second.toStdString();
    }
    for (qsizetype i = 1; i < slotTags.size(); ++i) {
        const QByteArray& first = slotTags[i - 1];
        const QByteArray& second = slotTags[i];
        EXPECT_EQ(firstError(withWidth(first, "wide"), withWidth(second, "40000")), 13) << second.toStdString();
        EXPECT_EQ(firstError(withWidth(first, "40000"), withWidth(second, "wide")), 6) << second.toStdString();
    }
    EXPECT_EQ(firstError(rowWithoutName(selections.last()), withWidth(slotTags.first(), "wide")), 91);
}

TEST_F(ShopDesigns, EverySlotAndSelectionIsWrittenAndReadBack)
{
    for (std::size_t i = 0; i < ImageSlotCount; ++i) {
        clsSelectedImage& image = *design.Image(static_cast<ImageSlot>(i));
        image.SelectionType = ImageSelection::Text;
        image.TextValue = image.Tag + u" text"_s;
    }
    for (std::size_t i = 0; i < PageSelectionCount; ++i) {
        clsSelectedCustomPages& pages = *design.Pages(static_cast<PageSelection>(i));
        pages.Add(pages.Tag + u" page"_s);
    }
    const QByteArray xml = written(design, "ShopDesign");
    ShopDesignClass read(services);
    read.FromXML(element(xml));
    for (std::size_t i = 0; i < ImageSlotCount; ++i) {
        const auto slot = static_cast<ImageSlot>(i);
        EXPECT_EQ(read.Image(slot)->TextValue, tagOf(slot) + u" text"_s);
    }
    for (std::size_t i = 0; i < PageSelectionCount; ++i) {
        const auto selection = static_cast<PageSelection>(i);
        EXPECT_EQ(read.Pages(selection)->selectedPages().Item(1), tagOf(selection) + u" page"_s);
    }
}

TEST_F(ShopDesigns, TwoSlotsCanBeReplaced)
{
    const auto checkout = std::make_shared<clsSelectedImage>(services, u"CARTPAGE_CHECKOUT_BUTTON"_s);
    const auto order = std::make_shared<clsSelectedImage>(services, u"BUYINGFORM_MAKEORDER_BUTTON"_s);
    design.setCartPage_Checkout_Button(checkout);
    design.setBuyingFormMakeOrderButton(order);
    EXPECT_EQ(design.Image(ImageSlot::CartPage_Checkout_Button), checkout);
    EXPECT_EQ(design.Image(ImageSlot::BuyingFormMakeOrderButton), order);
}

TEST_F(ShopDesigns, AnOptionThatIsTheMarkerWordIsWrittenWithoutText)
{
    design.setOption(DesignOption::Main_PageHeader, u"HUERAGA"_s);
    ShopDesignClass read(services);
    read.FromXML(element(written(design, "ShopDesign")));
    EXPECT_EQ(read.Option(DesignOption::Main_PageHeader), QString());
}

} // namespace
