#include "model/shop_file/DiscountXml.h"

#include "base/Dates.h"
#include "base/XMLUtils.h"
#include "model/clsDiscount.h"

using namespace Qt::StringLiterals;

namespace {

void writeStatusAndDates(pugi::xml_node element, const clsDiscount& discount, Unwritable unwritable)
{
    AddChildElement(element, "Status", StatusToWord(discount.Status));
    AddChildElement(element, "DateFrom", written(unwritable, [&] { return localToDateText(discount.DateFrom); }));
    AddChildElement(element, "DateTo", written(unwritable, [&] { return localToDateText(discount.DateTo); }));
}

} // namespace

void writeLevelDiscount(pugi::xml_node element, clsDiscount& discount, Unwritable unwritable)
{
    writeStatusAndDates(element, discount, unwritable);
    AddChildElement(element, "ApplyToAll", discount.ApplyToWhole());
    for (const clsDependedDiscount& band : *discount.DependedDiscounts()) {
        const pugi::xml_node row = AddChildElement(element, "PriceFrame", u"HUERAGA"_s);
        AddChildElement(row, "From", band.PriceFrom());
        AddChildElement(row, "To", band.PriceTo());
        AddChildElement(row, "Percent", band.Value());
    }
}

void writePriceDiscount(pugi::xml_node element, const clsDiscount& discount, Unwritable unwritable)
{
    writeStatusAndDates(element, discount, unwritable);
    AddChildElement(element, "Specific", discount.Specific());
}
