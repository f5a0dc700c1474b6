// Everything that the design panels decide about the pages of the shop: 93 options, twelve image slots and five page
// selections. There is one, ShopClass::ShopDesign; it is replaced when a shop file with a ShopDesign element is read.
#pragma once

#include "base/Unwritable.h"
#include "base/XmlNode.h"
#include "design/DesignOptions.h"
#include "design/DesignServices.h"
#include "design/ImageSlots.h"
#include "design/clsSelectedCustomPages.h"
#include "design/clsSelectedImage.h"

#include <QString>

#include <array>
#include <cstddef>
#include <memory>

// The page selections, in the order in which they are read.
enum class PageSelection {
    FooterCustomPageSelected,
    HeaderCustomPageSelected,
    MenuCustomPageSelected,
    CustomPageAsMainPage,
    MainPageMenuList,
};
inline constexpr std::size_t PageSelectionCount = 5;

// The name of its element in the shop file.
QString tagOf(PageSelection selection);

class ShopDesignClass
{
public:
    // All options are empty texts, all slots and selections are empty.
    explicit ShopDesignClass(const DesignServices& services);

    const QString& Option(DesignOption option) const { return m_options[static_cast<std::size_t>(option)]; }
    // The three limits pass through NormaliseLimit; every other text is stored as it stands.
    void setOption(DesignOption option, const QString& text);
    // True when the option is the word "Yes".
    bool isOn(DesignOption option) const;

    // The slots and selections are made once and keep their identity when a file is read.
    const std::shared_ptr<clsSelectedImage>& Image(ImageSlot slot) const
    {
        return m_images[static_cast<std::size_t>(slot)];
    }
    const std::shared_ptr<clsSelectedCustomPages>& Pages(PageSelection selection) const
    {
        return m_pages[static_cast<std::size_t>(selection)];
    }
    // Only these two slots can be replaced.
    void setCartPage_Checkout_Button(std::shared_ptr<clsSelectedImage> image);
    void setBuyingFormMakeOrderButton(std::shared_ptr<clsSelectedImage> image);

    // Three members that the shop file does not have.
    QString Header_LogoText;
    QString Header_LogoName;
    std::shared_ptr<clsSelectedImage> BuyingForm_RecalculateButton; // never filled

    // The node is the ShopDesign element; ToXML is given an empty one. Errors as for the slots and selections.
    void FromXML(const pugi::xml_node& node);
    void ToXML(pugi::xml_node node, Unwritable unwritable = Unwritable::Raises);

private:
    void readOptions(const pugi::xml_node& node);
    void writeOption(pugi::xml_node node, DesignOption option) const;

    const DesignServices* m_services;
    std::array<QString, DesignOptionCount> m_options;
    std::array<std::shared_ptr<clsSelectedImage>, ImageSlotCount> m_images;
    std::array<std::shared_ptr<clsSelectedCustomPages>, PageSelectionCount> m_pages;
};
