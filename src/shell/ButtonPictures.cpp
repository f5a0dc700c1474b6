#include "shell/ButtonPictures.h"

#include <algorithm>
#include <array>

namespace {

// The four plain actions have one picture for both, so they do not light up: this is meant.
constexpr std::array<ButtonPictureRow, 22> pictures = {{
    {"Remove", "154", "154", false},
    {"Remove Category", "113", "113", false},
    {"Add new product", "114", "114", false},
    {"Add new category", "125", "125", false},
    {"related Products", "105", "205", false},
    {"Multiple Prices", "104", "204", false},
    {"Save The Shop", "131", "231", false},
    {"Upload The Shop", "132", "232", false},
    {"Products Catalog", "133", "233", false},
    {"The Shop Design and Layout", "134", "234", false},
    {"The Shop Preview", "135", "235", false},
    {"Shop General Properties", "151", "251", false},
    {"Category General Properties", "151", "251", false},
    {"Product General Properties", "151", "251", false},
    {"Taxes", "152", "252", false},
    {"Shop Discount Properties", "153", "253", false},
    {"Category Discount Properties", "153", "253", false},
    {"Product Discount Properties", "153", "253", false},
    {"Shipping Charges", "123", "223", false},
    {"Shipping Types", "shipping type.bmp", "shipping type_color.bmp", true},
    {"Shipping Costs", "ship_costs.bmp", "ship_costs_color.bmp", true},
    {"Product Shipping Costs", "ship_costs.bmp", "ship_costs_color.bmp", true},
}};

} // namespace

std::span<const ButtonPictureRow> buttonPictureTable()
{
    return pictures;
}

const ButtonPictureRow* buttonPicturesOf(const QString& title)
{
    const auto* row = std::find_if(pictures.begin(), pictures.end(), [&](const ButtonPictureRow& picture) {
        return title.compare(QLatin1String(picture.title), Qt::CaseInsensitive) == 0;
    });
    return row == pictures.end() ? nullptr : row;
}
