#include "model/DiscountXml.h"

#include "base/XMLUtils.h"
#include "base/XmlReading.h"
#include "model/CommonFunctions.h"
#include "model/clsDiscount.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

enum DiscountElement : std::size_t { Status, DateFrom, DateTo, Percentage, DiscountElementCount };
constexpr std::array<const char*, DiscountElementCount> levelNames = {"Status", "DateFrom", "DateTo", "ApplyToAll"};

enum BandElement : std::size_t { From, To, Percent, BandElementCount };
constexpr std::array<const char*, BandElementCount> bandNames = {"From", "To", "Percent"};

// The date of a file as local text; what is no date counts as none.
void readDate(const pugi::xml_node& found, QString& date)
{
    const QString text = TextOr(found, QString());
    if (!text.isEmpty()) {
        date = DateTextToLocal(text);
    }
}

void writeStatusAndDates(pugi::xml_node element, const clsDiscount& discount)
{
    AddChildElement(element, "Status", StatusToWord(discount.Status));
    AddChildElement(element, "DateFrom", LocalToDateText(discount.DateFrom));
    AddChildElement(element, "DateTo", LocalToDateText(discount.DateTo));
}

} // namespace

void ReadLevelDiscount(const pugi::xml_node& element, clsDiscount& discount, const QString& defaultStatus)
{
    std::array<pugi::xml_node, DiscountElementCount> found;
    FindFirstDescendants(element, levelNames, found);
    discount.Status = StatusFromWord(TextOr(found[Status], defaultStatus));
    readDate(found[DateFrom], discount.DateFrom);
    readDate(found[DateTo], discount.DateTo);
    discount.setApplyToWhole(TextOr(found[Percentage], u"0"_s));
    for (const pugi::xml_node& row : AllDescendants(element, "PriceFrame")) {
        std::array<pugi::xml_node, BandElementCount> band;
        FindFirstDescendants(row, bandNames, band);
        discount.DependedDiscounts()->Add(TextOr(band[From], QString()), TextOr(band[To], QString()),
                                          TextOr(band[Percent], QString()));
    }
}

void WriteLevelDiscount(pugi::xml_node element, clsDiscount& discount)
{
    writeStatusAndDates(element, discount);
    AddChildElement(element, "ApplyToAll", discount.ApplyToWhole());
    for (const clsDependedDiscount& band : *discount.DependedDiscounts()) {
        const pugi::xml_node row = AddChildElement(element, "PriceFrame", u"HUERAGA"_s);
        AddChildElement(row, "From", band.PriceFrom());
        AddChildElement(row, "To", band.PriceTo());
        AddChildElement(row, "Percent", band.Value());
    }
}

void WritePriceDiscount(pugi::xml_node element, const clsDiscount& discount)
{
    writeStatusAndDates(element, discount);
    AddChildElement(element, "Specific", discount.Specific());
}
