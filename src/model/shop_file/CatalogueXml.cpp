#include "model/shop_file/CatalogueXml.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/XMLUtils.h"
#include "base/XmlReading.h"
#include "model/CategoryClass.h"
#include "model/ObjectsCollection.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"
#include "model/shop_file/DiscountXml.h"
#include "model/shop_file/NodeImageXml.h"
#include "model/shop_file/ShopReading.h"

#include <array>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// Sub-categories are read before products, whatever the order of the file.
void readChildren(const pugi::xml_node& element, const std::shared_ptr<CategoryClass>& category, ShopClass& owner,
                  ShopReading& reading)
{
    std::vector<pugi::xml_node> productElements;
    for (const pugi::xml_node& child : element.children()) {
        if (isNamed(child, "Category")) {
            auto below = std::make_shared<CategoryClass>(category->services());
            below->FromXML(child, owner, category, reading);
            category->Discount()->AddChildDiscount(below->Discount(), below->id);
            category->categories.Add(below, nodeKey(below->id));
        } else if (isNamed(child, "Product")) {
            productElements.push_back(child);
        } else if (isNamed(child, "ShopDesign") || firstDescendant(child, "ShopDesign")) {
            reading.designSeenInCategory = true;
        }
    }
    category->products.Clear();
    category->products.reserve(static_cast<int>(productElements.size()));
    for (const pugi::xml_node& child : productElements) {
        auto product = std::make_shared<ProductClass>(category->services());
        product->FromXML(child, owner, category, reading);
        category->Discount()->AddChildDiscount(product->Price()->Discount(), product->id);
        category->products.Add(product, nodeKey(product->id));
    }
}

} // namespace

bool booleanFromWord(const QString& word)
{
    if (word == "True"_L1) {
        return true;
    }
    return word != "False"_L1 && numberFromText(word) != 0;
}

QString booleanToWord(bool value)
{
    return value ? u"True"_s : u"False"_s;
}

QString StripDirectory(const QString& fileName)
{
    const qsizetype separator = fileName.lastIndexOf(u'\\');
    return separator < 0 ? fileName : fileName.sliced(separator + 1);
}

pugi::xml_node addNumberedElement(pugi::xml_node parent, const char* prefix, int number, const QString& text)
{
    std::array<char, 40> name{};
    std::snprintf(name.data(), name.size(), "%s%d", prefix, number);
    return AddChildElement(parent, name.data(), text);
}

void CategoryClass::FromXML(const pugi::xml_node& element, ShopClass& owner,
                            const std::shared_ptr<CategoryClass>& parent, ShopReading& reading)
{
    if (++reading.categoryLevel > MaximumCategoryLevel) {
        throw RuntimeError(ErrorNumber::OutOfStackSpace);
    }
    shop = &owner;
    parentCategory = parent;
    const CategoryLookUp::Found found = reading.categories.find(element, reading.categoryLevel);
    const auto textOf = [&](inCategory::Element wanted, const QString& defaultText = QString()) {
        return reading.categories.text(wanted, found, defaultText, reading.texts);
    };
    id = textOf(inCategory::Id);
    if (id.isEmpty()) {
        id = owner.getNextProductId();
    }
    name = textOf(inCategory::Name, u"UNDEFINED_PRODUCT_NAME"_s); // deliberately the same as for a product
    Description = textOf(inCategory::Description);
    readNodeImage(*this, textOf(inCategory::Picture), textOf(inCategory::Width, u"0"_s),
                  textOf(inCategory::Height, u"0"_s));
    if (found[inCategory::Discount]) {
        reading.levelDiscount.read(found[inCategory::Discount], *Discount(), u"No"_s, reading);
    }
    readChildren(element, shared_from_this(), owner, reading);
    --reading.categoryLevel;
}

void CategoryClass::ToXML(pugi::xml_node element, Unwritable unwritable)
{
    AddChildElement(element, "Id", id);
    AddChildElement(element, "Name", name);
    AddChildElement(element, "Description", Description);
    writeNodeImage(element, *this, unwritable);
    writeLevelDiscount(AddChildElement(element, "Discount", u"HUERAGA"_s), *Discount(), unwritable);
    for (const std::shared_ptr<CategoryClass>& category : categories) {
        category->ToXML(AddChildElement(element, "Category", u"HUERAGA"_s), unwritable);
    }
    for (const std::shared_ptr<ProductClass>& product : products) {
        product->ToXML(AddChildElement(element, "Product", u"HUERAGA"_s), unwritable);
    }
}
