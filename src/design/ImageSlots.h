// The image slots of the design: places on the shop's pages that show an image or a text as the owner chooses. The one
// list that the shop file, the pages and publishing go by.
#pragma once

#include <QLatin1StringView>
#include <QString>

#include <cstddef>
#include <span>

// SLOT(slot, tag, sending). The rows stand in the order of reading. The tag names the slot's element in the shop file
// and begins its variables on the pages. The last column is the place at which its picture goes up, counted from 1.
// clang-format off
#define TARNWICK_IMAGE_SLOTS(SLOT)                                            \
    SLOT(HeaderLogo,                   "HEADER_LOGO",                     1)  \
    SLOT(HeaderSearchButton,           "HEADER_SEARCH_BUTTON",            2)  \
    SLOT(HeaderShoppingCartButton,     "HEADER_SHOPPINGCART_BUTTON",      3)  \
    SLOT(MenuSearchButton,             "MENU_SEARCH_BUTTON",              8)  \
    SLOT(MenuShoppingCartButton,       "MENU_SHOPPINGCART_BUTTON",        7)  \
    SLOT(MainSearchButton,             "MAIN_SEARCH_BUTTON",              9)  \
    SLOT(SearchPageShoppingCartButton, "SEARCHPAGE_SHOPPINGCART_BUTTON",  6)  \
    SLOT(ProductCartButton,            "PRODUCT_CART_BUTTON",             5)  \
    SLOT(CategoryCartButton,           "CATEGORY_CART_BUTTON",            4)  \
    SLOT(CartRecalculateButton,        "CARTPAGE_RECALCULATE_BUTTON",    11)  \
    SLOT(CartPage_Checkout_Button,     "CARTPAGE_CHECKOUT_BUTTON",       10)  \
    SLOT(BuyingFormMakeOrderButton,    "BUYINGFORM_MAKEORDER_BUTTON",    12)
// clang-format on

#define TARNWICK_SLOT_ENUMERATOR(slot, tag, sending) slot,
enum class ImageSlot { TARNWICK_IMAGE_SLOTS(TARNWICK_SLOT_ENUMERATOR) };
#undef TARNWICK_SLOT_ENUMERATOR

struct ImageSlotRow
{
    ImageSlot slot;
    QLatin1StringView tag;
    int sending;
};

// NOLINTNEXTLINE(bugprone-macro-parentheses): a term of a sum
#define TARNWICK_SLOT_COUNT(slot, tag, sending) +1
inline constexpr std::size_t ImageSlotCount = 0 TARNWICK_IMAGE_SLOTS(TARNWICK_SLOT_COUNT);
#undef TARNWICK_SLOT_COUNT

// All slots, in the order of reading; a row's position is the number of its slot.
std::span<const ImageSlotRow> imageSlotTable();
QString tagOf(ImageSlot slot);
