// What is remembered while one shop file is read. readShop makes one for each file; it ends with the reading.
#pragma once

#include "base/XmlReading.h"
#include "model/ProductTexts.h"
#include "model/shop_file/CategoryLookUp.h"
#include "model/shop_file/LevelDiscount.h"
#include "model/shop_file/ProductReading.h"
#include "model/shop_file/TextPool.h"

#include <QString>

#include <memory>

struct ShopReading
{
    // The version is where the reading leaves what the file bears: the session's LoadedShopVersion.
    ShopReading(QString& version, qsizetype fileSize) : fileVersion(version), texts(fileSize + overlappingTexts) {}

    QString& fileVersion;
    XmlTexts texts;
    TextPool pool;
    ProductReading products;
    CategoryLookUp categories;
    LevelDiscount levelDiscount;
    // What a product's own costs and taxes are where its element says nothing; made by the first product that needs it.
    std::shared_ptr<const TextCollection> shippingCosts;
    std::shared_ptr<const TextCollection> taxes;
    // How many categories the reading is inside of.
    int categoryLevel = 0;
    // Whether an element of the shop's design stands somewhere below a category. A file that is written here has it
    // behind all categories; the shop need not search them for it when nothing was seen.
    bool designSeenInCategory = false;

    // The text of an element that was gathered, the default where there is none. Short ones are shared.
    QString text(const FlatElements& elements, FlatElements::Place place, const QString& defaultText)
    {
        if (place == FlatElements::none) {
            return defaultText;
        }
        const char* raw = elements.rawText(place);
        return raw != nullptr ? pool.text(raw) : elements.text(place, texts);
    }

private:
    // What texts that lie in each other may take beyond the file's size; nobody writes such texts.
    static constexpr qsizetype overlappingTexts = 8'000'000;
};
