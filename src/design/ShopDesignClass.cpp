#include "design/ShopDesignClass.h"

#include "base/XMLUtils.h"
#include "base/XmlReading.h"

#include <algorithm>
#include <variant>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QLatin1StringView, PageSelectionCount> pageTags = {
    "FOOTER_MENU_LIST"_L1,         "HEADER_MENU_LIST"_L1,    "LEFT_MENU_MENU_LIST"_L1,
    "CUSTOM_PAGE_AS_MAIN_PAGE"_L1, "MAIN_PAGE_MENU_LIST"_L1,
};

// The groups that are read and written one behind the other, with what the log says when one is read.
struct GroupStep
{
    DesignGroup group;
    QLatin1StringView logLine;
};

constexpr std::array groupSteps = {
    GroupStep{DesignGroup::Footer, "Footer loaded from XML"_L1},
    GroupStep{DesignGroup::Header, "Header loaded from XML"_L1},
    GroupStep{DesignGroup::Main, "Main loaded from XML"_L1},
    GroupStep{DesignGroup::Category, "CATEGORY loaded from XML"_L1},
    GroupStep{DesignGroup::Menu, "MENU loaded from XML"_L1},
    GroupStep{DesignGroup::Product, "PRODUCT loaded from XML"_L1},
    GroupStep{DesignGroup::Search, "SEARCH loaded from XML"_L1},
    GroupStep{DesignGroup::Cart, "CART PAGE loaded from XML"_L1},
    GroupStep{DesignGroup::BuyingForm, "BUYING FORM loaded from XML"_L1},
};

// What stands behind the groups in the file: the header's options a second time with two slots among them, and then the
// selections and slots in an order that is not the one they are read in. Both are part of the format. A slot that no
// step names follows at the end.
using WritingStep = std::variant<DesignOption, ImageSlot, PageSelection>;
constexpr std::array<WritingStep, 16> writingSteps = {
    DesignOption::Header_ShowLogo,
    ImageSlot::HeaderLogo,
    ImageSlot::HeaderSearchButton,
    DesignOption::Header_ShowMenu,
    DesignOption::Header_IncludeSearchBoxTextField,
    DesignOption::Header_IncludeSearchBoxButton,
    DesignOption::Header_ShowSoppingCartButton,
    DesignOption::Header_Advanced,
    DesignOption::CustomPages_Advanced,
    PageSelection::FooterCustomPageSelected,
    PageSelection::HeaderCustomPageSelected,
    PageSelection::MenuCustomPageSelected,
    ImageSlot::HeaderShoppingCartButton,
    PageSelection::CustomPageAsMainPage,
    PageSelection::MainPageMenuList,
    ImageSlot::MainSearchButton,
};

bool isWritingStep(ImageSlot slot)
{
    return std::find(writingSteps.begin(), writingSteps.end(), WritingStep(slot)) != writingSteps.end();
}

bool isLimit(DesignOption option)
{
    return option == DesignOption::Category_Limit_Desc || option == DesignOption::SearchPage_Limit_Desc ||
           option == DesignOption::CartPage_Limit_Desc;
}

} // namespace

QString tagOf(PageSelection selection)
{
    return pageTags[static_cast<std::size_t>(selection)];
}

ShopDesignClass::ShopDesignClass(const DesignServices& services) : m_services(&services)
{
    services.log.WriteLoadLog(u"Start shop design creating"_s);
    for (std::size_t i = 0; i < ImageSlotCount; ++i) {
        m_images[i] = std::make_shared<clsSelectedImage>(services, tagOf(static_cast<ImageSlot>(i)));
    }
    for (std::size_t i = 0; i < PageSelectionCount; ++i) {
        m_pages[i] = std::make_shared<clsSelectedCustomPages>(services, pageTags[i]);
    }
}

void ShopDesignClass::setOption(DesignOption option, const QString& text)
{
    m_options[static_cast<std::size_t>(option)] = isLimit(option) ? NormaliseLimit(text) : text;
}

bool ShopDesignClass::isOn(DesignOption option) const
{
    return isYes(Option(option));
}

void ShopDesignClass::setCartPage_Checkout_Button(std::shared_ptr<clsSelectedImage> image)
{
    m_images[static_cast<std::size_t>(ImageSlot::CartPage_Checkout_Button)] = std::move(image);
}

void ShopDesignClass::setBuyingFormMakeOrderButton(std::shared_ptr<clsSelectedImage> image)
{
    m_images[static_cast<std::size_t>(ImageSlot::BuyingFormMakeOrderButton)] = std::move(image);
}

void ShopDesignClass::readOptions(const pugi::xml_node& node)
{
    // Every option is looked up once, though the file has the header's twice: only the first of a name counts.
    std::array<const char*, DesignOptionCount> names{};
    std::array<pugi::xml_node, DesignOptionCount> found;
    const std::span<const DesignOptionRow> table = designOptionTable();
    for (std::size_t i = 0; i < DesignOptionCount; ++i) {
        names[i] = table[i].element;
    }
    findFirstDescendants(node, names, found);
    for (std::size_t i = 0; i < DesignOptionCount; ++i) {
        setOption(table[i].option, textOr(found[i], table[i].defaultText));
    }
}

void ShopDesignClass::FromXML(const pugi::xml_node& node)
{
    LoadLog& log = m_services->log;
    log.WriteLoadLog(u"-------Start ShopDesignClass loading from XML---"_s);
    readOptions(node);
    for (const GroupStep& step : groupSteps) {
        log.WriteLoadLog(step.logLine);
    }
    for (const std::shared_ptr<clsSelectedCustomPages>& pages : m_pages) {
        pages->FromXML(node);
    }
    for (const std::shared_ptr<clsSelectedImage>& image : m_images) {
        image->FromXML(node);
    }
    log.WriteLoadLog(u"-----ShopDesignClass loaded from XML------"_s);
}

void ShopDesignClass::ToXML(pugi::xml_node node, Unwritable unwritable)
{
    for (const GroupStep& step : groupSteps) {
        for (const DesignOptionRow& row : designOptionsOf(step.group)) {
            writeOption(node, row.option);
        }
    }
    for (const WritingStep& step : writingSteps) {
        if (const auto* option = std::get_if<DesignOption>(&step)) {
            writeOption(node, *option);
        } else if (const auto* slot = std::get_if<ImageSlot>(&step)) {
            Image(*slot)->ToXML(node, unwritable);
        } else {
            Pages(std::get<PageSelection>(step))->ToXML(node);
        }
    }
    for (const ImageSlotRow& row : imageSlotTable()) {
        if (!isWritingStep(row.slot)) {
            Image(row.slot)->ToXML(node, unwritable);
        }
    }
}

void ShopDesignClass::writeOption(pugi::xml_node node, DesignOption option) const
{
    AddChildElement(node, designOptionTable()[static_cast<std::size_t>(option)].element, Option(option));
}
