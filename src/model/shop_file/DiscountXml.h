// The elements of discounts in the shop file: those of the shop and of a category, which act on the levels below, and
// those of a product's price. How the first kind is read stands in LevelDiscount.h, the second in ProductXml.cpp.
#pragma once

#include "base/Unwritable.h"
#include "base/XmlNode.h"

class clsDiscount;

// Status, dates, ApplyToAll and the bands. ErrorNumber::TypeMismatch when a date is no date,
// ErrorNumber::InvalidUseOfNull when the status has no word.
void writeLevelDiscount(pugi::xml_node element, clsDiscount& discount, Unwritable unwritable);

// Status, dates and Specific. Errors as above.
void writePriceDiscount(pugi::xml_node element, const clsDiscount& discount, Unwritable unwritable);
