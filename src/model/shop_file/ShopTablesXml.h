// The tables of the shop in its file: countries, shipping types, weight frames with their costs, taxes and charges. An
// element that is not in the file is given as an empty node.
#pragma once

#include "base/KeyedCollection.h"
#include "model/ProductClass.h"
#include "model/clsCharge.h"
#include "model/clsTax.h"

#include <memory>
#include <pugixml.hpp>

class ShopClass;

// The countries of the element. Error 91 without the element, 457 when one stands twice.
std::shared_ptr<TextCollection> countriesFrom(const pugi::xml_node& element);
// Without their elements, or without rows in the case of the costs, the shop's tables stay as they are. Error 7 for
// more rows than there can be memory for.
void readShippingTypes(const pugi::xml_node& element, ShopClass& shop);
void readShippingCosts(const pugi::xml_node& element, int typeCount, ShopClass& shop);
void readTaxesAndCharges(const pugi::xml_node& taxes, const pugi::xml_node& charges, ShopClass& shop);

// Error 91 when one of tables that belong together is absent, 9 when one is shorter.
void writeCountries(pugi::xml_node element, const TextCollection& countries);
void writeShippingTypes(pugi::xml_node element, const ShopClass& shop);
void writeShippingCosts(pugi::xml_node element, const ShopClass& shop);
void writeTaxes(pugi::xml_node element, const KeyedCollection<clsTax>& taxes);
void writeCharges(pugi::xml_node element, const KeyedCollection<clsCharge>& charges);
