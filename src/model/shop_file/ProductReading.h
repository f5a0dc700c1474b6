// What the reading of one product after another keeps between them: the walk over a product's elements. A part of
// ShopReading.
#pragma once

#include "base/XmlReading.h"

#include <array>
#include <cstddef>
#include <vector>

// Every element that is looked up in a product, in the order of the file.
namespace inProduct {
enum Element : std::size_t {
    Id,
    Name,
    Description,
    Code,
    Price,
    ForSale,
    Unit,
    Link,
    Picture,
    Width,
    Height,
    Discount,
    Status,
    DateFrom,
    DateTo,
    Specific,
    Shipping,
    ShippingStatus,
    Weight,
    MultiplePrice,
    PriceDescription,
    MPrice,
    Related,
    ProductTaxes,
    ShopDesign, // no part of a product: see ShopReading
    Count
};
inline constexpr std::array<const char*, Count> names = {
    "Id",     "Name",     "Description",  "Code",           "Price",    "ForSale",       "Unit",
    "Link",   "Picture",  "Width",        "Height",         "Discount", "Status",        "DateFrom",
    "DateTo", "Specific", "Shipping",     "ShippingStatus", "Weight",   "MultiplePrice", "PriceDescription",
    "MPrice", "Related",  "ProductTaxes", "ShopDesign"};
} // namespace inProduct

struct ProductReading
{
    FlatElements elements{inProduct::names};
    std::vector<FlatElements::Numbered> numbered;
};
