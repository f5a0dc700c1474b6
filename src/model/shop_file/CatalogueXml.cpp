#include "model/shop_file/CatalogueXml.h"

#include "base/Numbers.h"
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
#include <cstring>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// What is looked up in a category, in the order of the file.
namespace inCategory {
enum Element : std::size_t { Id, Name, Description, Picture, Width, Height, Discount, Count };
constexpr std::array<const char*, Count> names = {"Id",    "Name",   "Description", "Picture",
                                                  "Width", "Height", "Discount"};
} // namespace inCategory

bool isNamed(const pugi::xml_node& node, const char* name)
{
    return std::strcmp(node.name(), name) == 0;
}

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
    checkCategoryLevel(parent.get());
    shop = &owner;
    parentCategory = parent;
    std::array<pugi::xml_node, inCategory::Count> found;
    findFirstDescendants(element, inCategory::names, found);
    id = textOr(found[inCategory::Id], QString());
    if (id.isEmpty()) {
        id = owner.getNextProductId();
    }
    // A category without a name gets the name of a product without one: this is meant.
    name = textOr(found[inCategory::Name], u"UNDEFINED_PRODUCT_NAME"_s);
    Description = textOr(found[inCategory::Description], QString());
    readNodeImage(*this, textOr(found[inCategory::Picture], QString()), textOr(found[inCategory::Width], u"0"_s),
                  textOr(found[inCategory::Height], u"0"_s));
    if (found[inCategory::Discount]) {
        readLevelDiscount(found[inCategory::Discount], *Discount(), u"No"_s);
    }
    readChildren(element, shared_from_this(), owner, reading);
}

void CategoryClass::ToXML(pugi::xml_node element)
{
    AddChildElement(element, "Id", id);
    AddChildElement(element, "Name", name);
    AddChildElement(element, "Description", Description);
    writeNodeImage(element, *this);
    writeLevelDiscount(AddChildElement(element, "Discount", u"HUERAGA"_s), *Discount());
    for (const std::shared_ptr<CategoryClass>& category : categories) {
        category->ToXML(AddChildElement(element, "Category", u"HUERAGA"_s));
    }
    for (const std::shared_ptr<ProductClass>& product : products) {
        product->ToXML(AddChildElement(element, "Product", u"HUERAGA"_s));
    }
}
