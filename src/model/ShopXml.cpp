// The shop's element in the shop file. Its tables stand in ShopTablesXml.cpp.
#include "base/ProgramVersion.h"
#include "base/RuntimeError.h"
#include "base/XMLUtils.h"
#include "base/XmlFile.h"
#include "base/XmlReading.h"
#include "model/CatalogueXml.h"
#include "model/CommonFunctions.h"
#include "model/DiscountXml.h"
#include "model/ObjectsCollection.h"
#include "model/ProductReading.h"
#include "model/ShopClass.h"
#include "model/ShopTablesXml.h"

#include <algorithm>
#include <array>
#include <cstring>

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

bool isNamed(const pugi::xml_node& node, const char* name)
{
    return std::strcmp(node.name(), name) == 0;
}

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

} // namespace

void ShopClass::FromXML(const pugi::xml_node& element)
{
    LoadLog& log = m_services->design.log;
    log.WriteLoadLog(u"Start Shop.FromXML"_s);
    Version = programVersion();
    std::array<pugi::xml_node, inShop::Count> found;
    findFirstDescendants(element, inShop::names, found);
    QString& fileVersion = m_services->LoadedShopVersion;
    fileVersion = textOr(found[inShop::Version], QString());
    shop_currency = textOr(found[inShop::Currency], QString());
    ShippingChargesAreSelected = booleanFromWord(textOr(found[inShop::ShippingChargesAreSelected], u"False"_s));
    TaxesAreSelected = booleanFromWord(textOr(found[inShop::TaxesAreSelected], u"False"_s));
    MaxProductId = textOr(found[inShop::MaxProductId], u"1"_s);
    name = textOr(found[inShop::Name], u"UNDEFINED_SHOP_NAME"_s);
    Description = textOr(found[inShop::Description], QString());
    if (found[inShop::Discount]) {
        readLevelDiscount(found[inShop::Discount], *m_discount, u"1"_s); // "1" is no status word: this is meant
    }
    log.WriteLoadLog(u"ShopDiscount loaded from XML"_s);
    SelectedCountries = countriesFrom(found[inShop::SelectedCountries]);
    log.WriteLoadLog(u"SelectedCountries loaded from XML"_s);
    readShippingTypes(found[inShop::Shipping], *this);
    log.WriteLoadLog(u"ShopShipping loaded from XML"_s);
    const auto typeCount = static_cast<int>(allDescendants(found[inShop::Shipping], "Type").size());
    readShippingCosts(found[inShop::ShippingCosts], typeCount, *this);
    log.WriteLoadLog(u"ShopShippingCosts loaded from XML"_s);
    readTaxesAndCharges(found[inShop::Taxes], found[inShop::Charges], *this);
    log.WriteLoadLog(u"Taxes loaded from XML"_s);
    readCategories(element);
    log.WriteLoadLog(u"root categories loaded from XML"_s);
    m_discount->SendDiscountToChilds(m_discount->DateFrom, m_discount->DateTo);
    log.WriteLoadLog(u"Discount.SendDiscountToChilds loaded from XML"_s);
    readStylesAndPages(element);
    if (const pugi::xml_node design = designElement(element, m_services->reading.designSeenInCategory)) {
        ShopDesign = std::make_shared<ShopDesignClass>(m_services->design);
        ShopDesign->FromXML(design);
    }
    if (fileVersion != Version) {
        log.WriteLoadLog(u"Version not mutched"_s);
        m_services->callbacks.SaveShop();
    }
    log.WriteLoadLog(u"-------ShopClass loaded from XML---"_s);
}

void ShopClass::readCategories(const pugi::xml_node& element)
{
    categories.Clear();
    m_services->reading.designSeenInCategory = false;
    for (const pugi::xml_node& child : element.children()) {
        if (isNamed(child, "Category")) {
            auto category = std::make_shared<CategoryClass>(*m_services);
            category->ParentDiscount = m_discount;
            category->FromXML(child, *this, nullptr);
            categories.Add(category, nodeKey(category->id));
            m_discount->AddChildDiscount(category->Discount(), category->id);
        }
    }
}

void ShopClass::readStylesAndPages(const pugi::xml_node& element)
{
    LoadLog& log = m_services->design.log;
    CSSs.Clear();
    for (const pugi::xml_node& child : element.children()) {
        if (isNamed(child, "CSS")) {
            auto style = std::make_shared<CSSClass>();
            style->FromXML(child);
            CSSs.Add(style, nodeKey(style->CSSName));
        }
    }
    log.WriteLoadLog(u"CSS loaded from XML"_s);
    CustomPages.Clear();
    for (const pugi::xml_node& child : element.children()) {
        if (isNamed(child, "CustomPage")) {
            auto page = std::make_shared<CustomPageClass>();
            page->FromXML(child);
            CustomPages.Add(page, page->pageName);
        }
    }
    log.WriteLoadLog(u"custom pages loaded from XML"_s);
}

void ShopClass::ToXML(pugi::xml_node element)
{
    writeHead(element);
    for (const std::shared_ptr<CategoryClass>& category : categories) {
        category->ToXML(AddChildElement(element, "Category", u"HUERAGA"_s));
    }
    writeTail(element);
}

QByteArray ShopClass::fileBytes()
{
    QByteArray bytes = "<Tarnwick><Shop>";
    const auto append = [&bytes](const auto& fill) {
        pugi::xml_document part;
        fill(part);
        bytes += xmlToBytes(part);
    };
    append([this](pugi::xml_document& part) { writeHead(part); });
    for (const std::shared_ptr<CategoryClass>& category : categories) {
        append([&category](pugi::xml_document& part) {
            category->ToXML(AddChildElement(part, "Category", u"HUERAGA"_s));
        });
    }
    append([this](pugi::xml_document& part) { writeTail(part); });
    return bytes + "</Shop></Tarnwick>";
}

// What stands ahead of the root categories.
void ShopClass::writeHead(const pugi::xml_node& element) const
{
    if (!SelectedCountries || !ShopDesign) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    const auto container = [&element](const char* tag) { return AddChildElement(element, tag, u"HUERAGA"_s); };
    AddChildElement(element, "Version", Version);
    AddChildElement(element, "ShippingChargesAreSelected", booleanToWord(ShippingChargesAreSelected));
    AddChildElement(element, "TaxesAreSelected", booleanToWord(TaxesAreSelected));
    AddChildElement(element, "shop_currency", shop_currency);
    AddChildElement(element, "MaxProductId", MaxProductId);
    AddChildElement(element, "Name", name);
    AddChildElement(element, "Description", Description);
    writeLevelDiscount(container("ShopDiscount"), *m_discount);
    writeCountries(container("SelectedCountries"), *SelectedCountries);
    writeShippingTypes(container("ShopShipping"), *this);
    writeShippingCosts(container("ShopShippingCosts"), *this);
    writeTaxes(container("Taxes"), Taxes);
    writeCharges(container("Charges"), Charges);
}

// What stands behind them.
void ShopClass::writeTail(const pugi::xml_node& element) const
{
    const auto container = [&element](const char* tag) { return AddChildElement(element, tag, u"HUERAGA"_s); };
    for (const std::shared_ptr<CSSClass>& style : CSSs) {
        style->ToXML(container("CSS"));
    }
    for (const std::shared_ptr<CustomPageClass>& page : CustomPages) {
        page->ToXML(container("CustomPage"));
    }
    ShopDesign->ToXML(container("ShopDesign"));
}
