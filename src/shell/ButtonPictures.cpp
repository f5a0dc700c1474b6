#include "shell/ButtonPictures.h"

#include <algorithm>
#include <array>

namespace {

// The four plain actions deliberately have one picture for both, so they do not light up.
constexpr std::array<ButtonPictureRow, 22> pictures = {{
    {"Remove", "154", "154"},
    {"Remove Category", "113", "113"},
    {"Add new product", "114", "114"},
    {"Add new category", "125", "125"},
    {"related Products", "105", "205"},
    {"Multiple Prices", "104", "204"},
    {"Save The Shop", "131", "231"},
    {"Upload The Shop", "132", "232"},
    {"Products Catalog", "133", "233"},
    {"The Shop Design and Layout", "134", "234"},
    {"The Shop Preview", "135", "235"},
    {"Shop General Properties", "151", "251"},
    {"Category General Properties", "151", "251"},
    {"Product General Properties", "151", "251"},
    {"Taxes", "152", "252"},
    {"Shop Discount Properties", "153", "253"},
    {"Category Discount Properties", "153", "253"},
    {"Product Discount Properties", "153", "253"},
    {"Shipping Charges", "123", "223"},
    {"Shipping Types", "shipping type.bmp", "shipping type_color.bmp", PictureSource::PicturesFolder},
    {"Shipping Costs", "ship_costs.bmp", "ship_costs_color.bmp", PictureSource::PicturesFolder},
    {"Product Shipping Costs", "ship_costs.bmp", "ship_costs_color.bmp", PictureSource::PicturesFolder},
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
