// The thirty buttons, the two toolbars' panels and the frames that hold them, as tables. The window is built from these
// rows; whoever adds a button adds a row.
#pragma once

#include <QLatin1String>
#include <QString>

#include <array>
#include <span>

// Where a button stands.
enum class ButtonFrame { ToolbarFrame, ShopToolbar, CategoryToolbar, ProductToolbar, ShopDesignMenuFrame };

// What a button asks of the panel change that it starts.
namespace PanelCode {
enum Value : qint16 {
    Show = 0,
    NewCategory = 1,
    NewProduct = 2,
    RemoveProduct = 3,
    RemoveCategory = 4,
    DuplicateProduct = 5,
    GatherOnly = 10,
};
}

struct ButtonRow
{
    const char* name;
    ButtonFrame frame;
    const char* title; // looked up and logged, so never translated
    const char* panel; // nullptr: none
    PanelCode::Value code;
    const char* icon; // file under :/icons at rest
};

// All buttons, in the order in which they stand.
std::span<const ButtonRow> buttonTable();

// Where a panel stands.
enum class PanelFrame { MainFrame, ShopDesignFrame };

struct PanelRow
{
    const char* name;
    PanelFrame frame;
};

// All panels of the window, those without a button included.
std::span<const PanelRow> panelTable();
