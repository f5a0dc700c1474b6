// The shop's element in the shop file. Its tables stand in ShopTablesXml.cpp.
#include "base/ProgramVersion.h"
#include "base/RuntimeError.h"
#include "base/XMLUtils.h"
#include "base/XmlFile.h"
#include "base/XmlReading.h"
#include "model/ObjectsCollection.h"
#include "model/ShopClass.h"
#include "model/shop_file/CatalogueXml.h"
#include "model/shop_file/DiscountXml.h"
#include "model/shop_file/ShopFile.h"
#include "model/shop_file/ShopReading.h"
#include "model/shop_file/ShopTablesXml.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// What is looked up in the element, in the order of the file. The design, which stands behind the whole catalogue, is
// looked up when that is read.
namespace inShop {
enum Element : std::size_t {
    Version,
    ShippingChargesAreSelected,
    TaxesAreSelected,
    Currency,
    MaxProductId,
    Name,
    Description,
    Discount,
    SelectedCountries,
    Shipping,
    ShippingCosts,
    Taxes,
    Charges,
    Count
};
constexpr std::array<const char*, Count> names = {"Version",
                                                  "ShippingChargesAreSelected",
                                                  "TaxesAreSelected",
                                                  "shop_currency",
                                                  "MaxProductId",
                                                  "Name",
                                                  "Description",
                                                  "ShopDiscount",
                                                  "SelectedCountries",
                                                  "ShopShipping",
                                                  "ShopShippingCosts",
                                                  "Taxes",
                                                  "Charges"};
} // namespace inShop

// The first element of the design at any depth. Categories are not walked over again when they have none.
pugi::xml_node designElement(const pugi::xml_node& shop, bool isInCategory)
{
    for (const pugi::xml_node& child : shop.children()) {
        if (isNamed(child, "ShopDesign")) {
            return child;
        }
        if (isInCategory || !isNamed(child, "Category")) {
            if (const pugi::xml_node found = firstDescendant(child, "ShopDesign")) {
                return found;
            }
        }
    }
    return {};
}

void readCategories(const pugi::xml_node& element, ShopClass& shop, ShopReading& reading)
{
    shop.categories.Clear();
    for (const pugi::xml_node& child : element.children()) {
        if (isNamed(child, "Category")) {
            auto category = std::make_shared<CategoryClass>(shop.services());
            category->ParentDiscount = shop.Discount();
            category->FromXML(child, shop, nullptr, reading);
            shop.categories.Add(category, nodeKey(category->id));
            shop.Discount()->AddChildDiscount(category->Discount(), category->id);
        }
    }
}

void readStylesAndPages(const pugi::xml_node& element, ShopClass& shop)
{
    LoadLog& log = shop.services().design.log;
    shop.CSSs.Clear();
    for (const pugi::xml_node& child : element.children()) {
        if (isNamed(child, "CSS")) {
            auto style = std::make_shared<CSSClass>();
            style->FromXML(child);
            shop.CSSs.Add(style, nodeKey(style->CSSName));
        }
    }
    log.WriteLoadLog(u"CSS loaded from XML"_s);
    shop.CustomPages.Clear();
    for (const pugi::xml_node& child : element.children()) {
        if (isNamed(child, "CustomPage")) {
            auto page = std::make_shared<CustomPageClass>();
            page->FromXML(child);
            shop.CustomPages.Add(page, page->pageName);
        }
    }
    log.WriteLoadLog(u"custom pages loaded from XML"_s);
}

// What stands ahead of the root categories.
void writeHead(const pugi::xml_node& element, const ShopClass& shop, Unwritable unwritable)
{
    if (!shop.SelectedCountries || !shop.ShopDesign) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    const auto container = [&element](const char* tag) { return AddChildElement(element, tag, u"HUERAGA"_s); };
    AddChildElement(element, "Version", shop.Version);
    AddChildElement(element, "ShippingChargesAreSelected", booleanToWord(shop.ShippingChargesAreSelected));
    AddChildElement(element, "TaxesAreSelected", booleanToWord(shop.TaxesAreSelected));
    AddChildElement(element, "shop_currency", shop.shop_currency);
    AddChildElement(element, "MaxProductId", shop.MaxProductId);
    AddChildElement(element, "Name", shop.name);
    AddChildElement(element, "Description", shop.Description);
    writeLevelDiscount(container("ShopDiscount"), *shop.Discount(), unwritable);
    writeCountries(container("SelectedCountries"), *shop.SelectedCountries);
    writeShippingTypes(container("ShopShipping"), shop);
    writeShippingCosts(container("ShopShippingCosts"), shop, unwritable);
    writeTaxes(container("Taxes"), shop.Taxes);
    writeCharges(container("Charges"), shop.Charges);
}

// What stands behind them.
void writeTail(const pugi::xml_node& element, const ShopClass& shop, Unwritable unwritable)
{
    const auto container = [&element](const char* tag) { return AddChildElement(element, tag, u"HUERAGA"_s); };
    for (const std::shared_ptr<CSSClass>& style : shop.CSSs) {
        style->ToXML(container("CSS"));
    }
    for (const std::shared_ptr<CustomPageClass>& page : shop.CustomPages) {
        page->ToXML(container("CustomPage"));
    }
    shop.ShopDesign->ToXML(container("ShopDesign"), unwritable);
}

} // namespace

void ShopClass::FromXML(const pugi::xml_node& element, ShopReading& reading)
{
    LoadLog& log = m_services->design.log;
    log.WriteLoadLog(u"Start Shop.FromXML"_s);
    Version = programVersion();
    std::array<pugi::xml_node, inShop::Count> found;
    findFirstDescendants(element, inShop::names, found);
    const auto textOf = [&](inShop::Element which, const QString& defaultText = QString()) {
        return reading.texts.textOr(found[which], defaultText);
    };
    reading.fileVersion = textOf(inShop::Version);
    shop_currency = textOf(inShop::Currency);
    ShippingChargesAreSelected = booleanFromWord(textOf(inShop::ShippingChargesAreSelected, u"False"_s));
    TaxesAreSelected = booleanFromWord(textOf(inShop::TaxesAreSelected, u"False"_s));
    MaxProductId = textOf(inShop::MaxProductId, u"1"_s);
    name = textOf(inShop::Name, u"UNDEFINED_SHOP_NAME"_s);
    Description = textOf(inShop::Description);
    if (found[inShop::Discount]) {
        // A discount without a status is an error: "1" is no status word.
        reading.levelDiscount.read(found[inShop::Discount], *m_discount, u"1"_s, reading);
    }
    log.WriteLoadLog(u"ShopDiscount loaded from XML"_s);
    SelectedCountries = countriesFrom(found[inShop::SelectedCountries]);
    log.WriteLoadLog(u"SelectedCountries loaded from XML"_s);
    const int typeCount = readShippingTypes(found[inShop::Shipping], *this, reading);
    log.WriteLoadLog(u"ShopShipping loaded from XML"_s);
    readShippingCosts(found[inShop::ShippingCosts], typeCount, *this, reading);
    log.WriteLoadLog(u"ShopShippingCosts loaded from XML"_s);
    readTaxesAndCharges(found[inShop::Taxes], found[inShop::Charges], *this, reading);
    log.WriteLoadLog(u"Taxes loaded from XML"_s);
    readCategories(element, *this, reading);
    log.WriteLoadLog(u"root categories loaded from XML"_s);
    m_discount->SendDiscountToChilds(m_discount->DateFrom, m_discount->DateTo);
    log.WriteLoadLog(u"Discount.SendDiscountToChilds loaded from XML"_s);
    readStylesAndPages(element, *this);
    if (const pugi::xml_node design = designElement(element, reading.designSeenInCategory)) {
        ShopDesign = std::make_shared<ShopDesignClass>(m_services->design);
        ShopDesign->FromXML(design);
    }
    if (reading.fileVersion != Version) {
        log.WriteLoadLog(u"Version not mutched"_s);
        m_services->callbacks.SaveShop();
    }
    log.WriteLoadLog(u"-------ShopClass loaded from XML---"_s);
}

void ShopClass::ToXML(pugi::xml_node element, Unwritable unwritable)
{
    writeHead(element, *this, unwritable);
    for (const std::shared_ptr<CategoryClass>& category : categories) {
        category->ToXML(AddChildElement(element, "Category", u"HUERAGA"_s), unwritable);
    }
    writeTail(element, *this, unwritable);
}

QByteArray shopFileBytes(ShopClass& shop, Unwritable unwritable)
{
    QByteArray bytes = "<Tarnwick><Shop>";
    const auto append = [&bytes](const auto& fill) {
        pugi::xml_document part;
        fill(part);
        bytes += xmlToBytes(part);
    };
    append([&](pugi::xml_document& part) { writeHead(part, shop, unwritable); });
    for (const std::shared_ptr<CategoryClass>& category : shop.categories) {
        append([&](pugi::xml_document& part) {
            category->ToXML(AddChildElement(part, "Category", u"HUERAGA"_s), unwritable);
        });
    }
    append([&](pugi::xml_document& part) { writeTail(part, shop, unwritable); });
    return bytes + "</Shop></Tarnwick>";
}
