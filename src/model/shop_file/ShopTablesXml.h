// The tables of the shop in its file: countries, shipping types, weight frames with their costs, taxes and charges. An
// element that is not in the file is given as an empty node.
#pragma once

#include "base/KeyedCollection.h"
#include "base/Unwritable.h"
#include "model/ProductClass.h"
#include "model/clsCharge.h"
#include "model/clsTax.h"

#include <memory>
#include <pugixml.hpp>

class ShopClass;
struct ShopReading;

// The countries of the element. ErrorNumber::ObjectNotSet without the element, ErrorNumber::DuplicateKey when one
// stands twice.
std::shared_ptr<TextCollection> countriesFrom(const pugi::xml_node& element);
// Without their elements, or without rows in the case of the costs, the shop's tables stay as they are.
// ErrorNumber::OutOfMemory for more than 1,000 shipping types, and for a table of more than a million costs. The first
// returns how many types there are.
int readShippingTypes(const pugi::xml_node& element, ShopClass& shop, ShopReading& reading);
void readShippingCosts(const pugi::xml_node& element, int typeCount, ShopClass& shop, ShopReading& reading);
void readTaxesAndCharges(const pugi::xml_node& taxes, const pugi::xml_node& charges, ShopClass& shop,
                         ShopReading& reading);

// ErrorNumber::ObjectNotSet when one of tables that belong together is absent, ErrorNumber::SubscriptOutOfRange when
// one is shorter.
void writeCountries(pugi::xml_node element, const TextCollection& countries);
void writeShippingTypes(pugi::xml_node element, const ShopClass& shop);
void writeShippingCosts(pugi::xml_node element, const ShopClass& shop, Unwritable unwritable);
void writeTaxes(pugi::xml_node element, const KeyedCollection<clsTax>& taxes);
void writeCharges(pugi::xml_node element, const KeyedCollection<clsCharge>& charges);
