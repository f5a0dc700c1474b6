// What the ten page managers show, as data: the options with their captions, the styles, the image slots, the page
// lists and the template of each page. PageManager makes its controls from one table. The tables of the category, the
// product, the search and the cart page stand in ProductTables.cpp, the other six in ManagerTables.cpp; an option that
// is added to a page gets a row there. All texts live as long as the program.
#pragma once

#include "design/DesignOptions.h"
#include "design/PageTable.h"
#include "design/ShopDesignClass.h"

#include <QString>

#include <optional>
#include <span>

// A check box: on when the option is "Yes".
struct SwitchRow
{
    DesignOption option;
    const char* control; // the check box's name
    const char* caption; // what the visitor will see
};

enum class Holds { Text, Number };

// A line of text, or a number.
struct TextRow
{
    DesignOption option;
    const char* control;
    const char* caption;
    Holds holds = Holds::Text;
};

// Check boxes, and texts below them, that stand together.
struct OptionGroup
{
    const char* caption;
    std::span<const SwitchRow> switches;
    std::span<const TextRow> texts;
};

// A button that opens a style.
struct StyleRow
{
    const char* style; // the name in CSSs
    const char* title; // of the dialog
    const char* caption;
};

// A button that opens the choice between an image and a text.
struct SlotRow
{
    std::optional<ImageSlot> slot; // none: a slot that is never filled
    const char* control;
    const char* caption;
};

enum class PageChoice { One, Several };

// A button that opens the choice of pages.
struct ListRow
{
    PageSelection list;
    const char* control;
    const char* caption;
    PageChoice choice;
};

// The question of all managers but the header's. Its spelling is deliberate.
inline constexpr const char* SwitchBackQuestion = "If you swich back from Advanced Mode all your changes made in the "
                                                  "template will be changed back to defaults. Do you want to continue?";

struct ManagerTable
{
    const char* heading;
    ShopPage page; // one with an advanced option
    const char* advancedControl = "AdvancedCh";
    const char* switchBackQuestion = SwitchBackQuestion; // asked when the advanced mode is switched off
    bool savesTemplate = false;                          // with every save, not only by the button
    std::span<const OptionGroup> groups = {};
    std::span<const SlotRow> imageSlots = {};
    std::span<const ListRow> lists = {};
    std::span<const StyleRow> styles = {};
};

// The table of a page's manager. ErrorNumber::InvalidArgument for a page without one.
const ManagerTable& managerTable(ShopPage page);
// The same for the pages that show products, whose tables stand in a file of their own.
const ManagerTable& productManagerTable(ShopPage page);

// A caption or title of a table.
QString captionText(const char* text);
