#include "model/shop_file/ShopTablesXml.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/XMLUtils.h"
#include "base/XmlReading.h"
#include "model/ShopClass.h"
#include "model/shop_file/CatalogueXml.h"
#include "model/shop_file/ShopReading.h"
#include "model/shop_file/TableRows.h"

#include <array>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

// The table of costs has a place for every frame and every type, whatever a file names; a hostile one asks for more
// than there can be memory for.
constexpr std::size_t mostCostPlaces = 1'000'000;
constexpr std::size_t mostShippingTypes = 1'000;

// In the names of a table, the row itself comes first; these are the places of the others.
template <std::size_t Count>
constexpr std::array<std::size_t, Count> otherColumns = [] {
    std::array<std::size_t, Count> columns{};
    std::iota(columns.begin(), columns.end(), std::size_t{1});
    return columns;
}();

std::shared_ptr<TextCollection> newTexts()
{
    return std::make_shared<TextCollection>();
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

int readShippingTypes(const pugi::xml_node& element, ShopClass& shop, ShopReading& reading)
{
    if (!element) {
        return 0;
    }
    constexpr std::array names = {"Type", "Name", "Description"};
    FlatElements elements(names);
    elements.gather(element);
    TableRows rows(elements, 0, 0, otherColumns<2>, reading);
    if (rows.count() > mostShippingTypes) {
        throw RuntimeError(ErrorNumber::OutOfMemory);
    }
    shop.ShippingTypeName = newTexts();
    shop.ShippingTypeDescription = newTexts();
    for (int number = 0; rows.next(); ++number) {
        shop.ShippingTypeName->Add(rows.text(0), numbered("ship_name"_L1, number));
        shop.ShippingTypeDescription->Add(rows.text(1), numbered("ship_desc"_L1, number));
    }
    return static_cast<int>(rows.count());
}

// The number of columns comes from the shipping types, not from the rows.
void readShippingCosts(const pugi::xml_node& element, int typeCount, ShopClass& shop, ShopReading& reading)
{
    if (!element) {
        return;
    }
    constexpr std::array names = {"CostsFrame", "From", "To"};
    FlatElements elements(names);
    elements.gather(element);
    TableRows rows(elements, 0, 0, otherColumns<2>, reading);
    if (rows.count() == 0) {
        return;
    }
    if (rows.count() * static_cast<std::size_t>(typeCount) > mostCostPlaces) {
        throw RuntimeError(ErrorNumber::OutOfMemory);
    }
    std::vector<FlatElements::Place> places;
    elements.findNumberedRows(0, 0, "Cost", 1, typeCount, places);
    TextCollection costs; // of one frame after the other; all share the keys
    for (int type = 0; type < typeCount; ++type) {
        costs.Add(QString(), numbered("cost"_L1, type));
    }
    std::vector<FlatElements::Place> known(static_cast<std::size_t>(typeCount), FlatElements::none);
    shop.ShippingCostFrameFrom = newTexts();
    shop.ShippingCostFrameTo = newTexts();
    shop.ShippingCosts = std::make_shared<KeyedCollection<TextCollection>>();
    auto place = places.cbegin();
    for (int frame = 0; rows.next(); ++frame) {
        shop.ShippingCostFrameFrom->Add(rows.text(0), numbered("from"_L1, frame));
        shop.ShippingCostFrameTo->Add(rows.text(1), numbered("to"_L1, frame));
        for (int type = 0; type < typeCount; ++type, ++place) {
            FlatElements::Place& former = known[static_cast<std::size_t>(type)];
            if (*place != former) { // else the frame above lies around this one and has the same cost
                former = *place;
                costs.Item(type + 1) = reading.text(elements, *place, QString());
            }
        }
        shop.ShippingCosts->Add(costs);
    }
}

void readTaxesAndCharges(const pugi::xml_node& taxes, const pugi::xml_node& charges, ShopClass& shop,
                         ShopReading& reading)
{
    constexpr std::array inTax = {"Type", "Name", "Percent", "Used"};
    FlatElements taxElements(inTax);
    taxElements.gather(taxes);
    for (TableRows rows(taxElements, 0, 0, otherColumns<3>, reading); rows.next();) {
        clsTax tax;
        tax.TaxName = rows.text(0);
        tax.setPercent(rows.text(1));
        tax.setIsCheckedString(rows.text(2, u"N"_s));
        shop.Taxes.Add(std::move(tax));
    }
    constexpr std::array inCharge = {"Type", "Destination", "Cost", "Used"};
    FlatElements chargeElements(inCharge);
    chargeElements.gather(charges);
    for (TableRows rows(chargeElements, 0, 0, otherColumns<3>, reading); rows.next();) {
        clsCharge charge;
        charge.Destination = rows.text(0);
        charge.Cost = rows.text(1);
        charge.setIsCheckedString(rows.text(2, u"N"_s));
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
void writeShippingCosts(pugi::xml_node element, const ShopClass& shop, Unwritable unwritable)
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
            const QString cost =
                written(unwritable, [&] { return costs.isEmpty() ? QString() : NormalizeDecimal(costs.Item(i)); });
            addNumberedElement(row, "Cost", i, cost);
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
