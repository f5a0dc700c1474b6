// What is remembered while one shop file is read. loadShop makes one for each file; it ends with the reading.
#pragma once

#include "model/shop_file/ProductReading.h"

#include <QString>

struct ShopReading
{
    // The version that the file bears; the session's LoadedShopVersion, which outlives the reading.
    QString& fileVersion;
    ProductReading products;
    // Whether an element of the shop's design stands somewhere below a category. A file that is written here has it
    // behind all categories; the shop need not search them for it when nothing was seen.
    bool designSeenInCategory = false;
};
