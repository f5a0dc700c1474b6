#include "model/shop_file/ShopTablesXml.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/XMLUtils.h"
#include "base/XmlReading.h"
#include "model/ShopClass.h"
#include "model/shop_file/CatalogueXml.h"

using namespace Qt::StringLiterals;

namespace {

// The table of costs has a place for every frame and every type, whatever a file names; a hostile one asks for more
// than there can be memory for.
constexpr qint64 mostCostPlaces = 10'000'000;
constexpr int mostShippingTypes = 1'000;

std::shared_ptr<TextCollection> newTexts()
{
    return std::make_shared<TextCollection>();
}

QString textBelow(const pugi::xml_node& row, const char* name)
{
    return GetNodeText(row, name, QString());
}

QString numbered(QLatin1StringView prefix, int number)
{
    return prefix + QString::number(number);
}

int countOf(const std::shared_ptr<TextCollection>& texts)
{
    return texts ? texts->Count() : 0;
}

} // namespace

std::shared_ptr<TextCollection> countriesFrom(const pugi::xml_node& element)
{
    if (!element) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    auto countries = newTexts();
    for (const QString& country : childTexts(element)) {
        countries->Add(country, country);
    }
    return countries;
}

void readShippingTypes(const pugi::xml_node& element, ShopClass& shop)
{
    if (!element) {
        return;
    }
    const std::vector<pugi::xml_node> rows = allDescendants(element, "Type");
    if (rows.size() > mostShippingTypes) {
        throw RuntimeError(ErrorNumber::OutOfMemory);
    }
    shop.ShippingTypeName = newTexts();
    shop.ShippingTypeDescription = newTexts();
    for (const pugi::xml_node& row : rows) {
        const int number = shop.ShippingTypeName->Count();
        shop.ShippingTypeName->Add(textBelow(row, "Name"), numbered("ship_name"_L1, number));
        shop.ShippingTypeDescription->Add(textBelow(row, "Description"), numbered("ship_desc"_L1, number));
    }
}

// The number of columns comes from the shipping types, not from the rows.
void readShippingCosts(const pugi::xml_node& element, int typeCount, ShopClass& shop)
{
    const std::vector<pugi::xml_node> rows = allDescendants(element, "CostsFrame");
    if (rows.empty()) {
        return;
    }
    if (static_cast<qint64>(rows.size()) * typeCount > mostCostPlaces) {
        throw RuntimeError(ErrorNumber::OutOfMemory);
    }
    shop.ShippingCostFrameFrom = newTexts();
    shop.ShippingCostFrameTo = newTexts();
    shop.ShippingCosts = std::make_shared<KeyedCollection<TextCollection>>();
    for (const pugi::xml_node& row : rows) {
        const int frame = shop.ShippingCosts->Count();
        shop.ShippingCostFrameFrom->Add(textBelow(row, "From"), numbered("from"_L1, frame));
        shop.ShippingCostFrameTo->Add(textBelow(row, "To"), numbered("to"_L1, frame));
        TextCollection costs;
        for (const pugi::xml_node& cost : findNumberedDescendants(row, "Cost", 1, typeCount)) {
            costs.Add(textOr(cost, QString()), numbered("cost"_L1, costs.Count()));
        }
        shop.ShippingCosts->Add(std::move(costs));
    }
}

void readTaxesAndCharges(const pugi::xml_node& taxes, const pugi::xml_node& charges, ShopClass& shop)
{
    for (const pugi::xml_node& row : allDescendants(taxes, "Type")) {
        clsTax tax;
        tax.TaxName = textBelow(row, "Name");
        tax.setPercent(textBelow(row, "Percent"));
        tax.setIsCheckedString(GetNodeText(row, "Used", u"N"_s));
        shop.Taxes.Add(std::move(tax));
    }
    for (const pugi::xml_node& row : allDescendants(charges, "Type")) {
        clsCharge charge;
        charge.Destination = textBelow(row, "Destination");
        charge.Cost = textBelow(row, "Cost");
        charge.setIsCheckedString(GetNodeText(row, "Used", u"N"_s));
        shop.Charges.Add(std::move(charge));
    }
}

void writeCountries(pugi::xml_node element, const TextCollection& countries)
{
    int number = 0;
    for (const QString& country : countries) {
        addNumberedElement(element, "Country", ++number, country);
    }
}

void writeShippingTypes(pugi::xml_node element, const ShopClass& shop)
{
    if (countOf(shop.ShippingTypeName) > 0 && !shop.ShippingTypeDescription) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    for (int i = 1; i <= countOf(shop.ShippingTypeName); ++i) {
        const pugi::xml_node row = AddChildElement(element, "Type", u"HUERAGA"_s);
        AddChildElement(row, "Name", shop.ShippingTypeName->Item(i));
        AddChildElement(row, "Description", shop.ShippingTypeDescription->Item(i));
    }
}

// The number of columns comes from the first frame, and a frame without any cost gets empty ones.
void writeShippingCosts(pugi::xml_node element, const ShopClass& shop)
{
    if (countOf(shop.ShippingCostFrameFrom) > 0 && (!shop.ShippingCostFrameTo || !shop.ShippingCosts)) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    for (int frame = 1; frame <= countOf(shop.ShippingCostFrameFrom); ++frame) {
        const pugi::xml_node row = AddChildElement(element, "CostsFrame", u"HUERAGA"_s);
        AddChildElement(row, "From", NormalizeDecimal(shop.ShippingCostFrameFrom->Item(frame)));
        AddChildElement(row, "To", NormalizeDecimal(shop.ShippingCostFrameTo->Item(frame)));
        const TextCollection& costs = shop.ShippingCosts->Item(frame);
        for (int i = 1; i <= shop.ShippingCosts->Item(1).Count(); ++i) {
            addNumberedElement(row, "Cost", i, costs.isEmpty() ? QString() : NormalizeDecimal(costs.Item(i)));
        }
    }
}

void writeTaxes(pugi::xml_node element, const KeyedCollection<clsTax>& taxes)
{
    for (const clsTax& tax : taxes) {
        const pugi::xml_node row = AddChildElement(element, "Type", u"HUERAGA"_s);
        AddChildElement(row, "Name", tax.TaxName);
        AddChildElement(row, "Percent", tax.Percent());
        AddChildElement(row, "Used", tax.IsCheckedString());
    }
}

void writeCharges(pugi::xml_node element, const KeyedCollection<clsCharge>& charges)
{
    for (const clsCharge& charge : charges) {
        const pugi::xml_node row = AddChildElement(element, "Type", u"HUERAGA"_s);
        AddChildElement(row, "Destination", charge.Destination);
        AddChildElement(row, "Cost", NormalizeDecimal(charge.Cost));
        AddChildElement(row, "Used", charge.IsCheckedString());
    }
}
