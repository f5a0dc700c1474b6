// The elements of discounts in the shop file: those of the shop and of a category, which act on the levels below, and
// those of a product's price.
#pragma once

#include <QString>

#include <pugixml.hpp>

class clsDiscount;

// Status, dates, ApplyToAll and the bands. Error 94 when Status, or the default in its place, is no status word.
void readLevelDiscount(const pugi::xml_node& element, clsDiscount& discount, const QString& defaultStatus);
// Error 13 when a date is no date, 94 when the status has no word.
void writeLevelDiscount(pugi::xml_node element, clsDiscount& discount);

// Status, dates and Specific; they are read with the product. Errors as above.
void writePriceDiscount(pugi::xml_node element, const clsDiscount& discount);
