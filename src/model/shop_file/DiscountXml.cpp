#include "model/shop_file/DiscountXml.h"

#include "base/Dates.h"
#include "base/XMLUtils.h"
#include "base/XmlReading.h"
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
    const QString text = textOr(found, QString());
    if (!text.isEmpty()) {
        date = DateTextToLocal(text);
    }
}

void writeStatusAndDates(pugi::xml_node element, const clsDiscount& discount)
{
    AddChildElement(element, "Status", StatusToWord(discount.Status));
    AddChildElement(element, "DateFrom", localToDateText(discount.DateFrom));
    AddChildElement(element, "DateTo", localToDateText(discount.DateTo));
}

} // namespace

void readLevelDiscount(const pugi::xml_node& element, clsDiscount& discount, const QString& defaultStatus)
{
    std::array<pugi::xml_node, DiscountElementCount> found;
    findFirstDescendants(element, levelNames, found);
    discount.Status = StatusFromWord(textOr(found[Status], defaultStatus));
    readDate(found[DateFrom], discount.DateFrom);
    readDate(found[DateTo], discount.DateTo);
    discount.setApplyToWhole(textOr(found[Percentage], u"0"_s));
    for (const pugi::xml_node& row : allDescendants(element, "PriceFrame")) {
        std::array<pugi::xml_node, BandElementCount> band;
        findFirstDescendants(row, bandNames, band);
        discount.DependedDiscounts()->Add(textOr(band[From], QString()), textOr(band[To], QString()),
                                          textOr(band[Percent], QString()));
    }
}

void writeLevelDiscount(pugi::xml_node element, clsDiscount& discount)
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

void writePriceDiscount(pugi::xml_node element, const clsDiscount& discount)
{
    writeStatusAndDates(element, discount);
    AddChildElement(element, "Specific", discount.Specific());
}
