// The fillers, one for each page and piece: each adds its variables behind those that every page has. RenderPage calls
// them by its table. Where a filler reads prices or images it raises what those raise; the rest stands with each.
#pragma once

#include "pages/PageContext.h"
#include "pages/PageObject.h"
#include "template_engine/Variables.h"

// A page about one object raises ErrorNumber::ObjectNotSet without it and ErrorNumber::TypeMismatch with one of another
// type. The others do not look at the object. The pages that show the cart raise ErrorNumber::ObjectNotSet without one.

// The shop's front page: description, search box, a menu of custom pages, and the root categories with a summary of
// their discounts. ErrorNumber::InvalidUseOfNull for a category whose discount has no status.
void addMainPage(Variables& vars, const PageContext& context, const PageObject& shop);

// The side menu, a piece of every shown page: the root categories, a search box, custom pages, and what is in the cart.
// ErrorNumber::InvalidArgument for a cart line whose product is gone.
void addMenuPage(Variables& vars, const PageContext& context, const PageObject& object);

// The page of one category: its sub-categories, its products with their prices, and the path that leads to it.
// ErrorNumber::NoSuchMember for a category whose picture's name contains a ":", InvalidArgument for a related product
// that is gone.
void addCategoryPage(Variables& vars, const PageContext& context, const PageObject& category);

// The page of one product, in full. ErrorNumber::ObjectNotSet for a product without a category, InvalidArgument for a
// related product that is gone.
void addProductPage(Variables& vars, const PageContext& context, const PageObject& product);

// A page that the shop owner wrote: its text as typed.
void addCustomPage(Variables& vars, const PageContext& context, const PageObject& page);

// The footer, a piece of every shown page: the copyright line and a menu of custom pages.
void addFooterPage(Variables& vars, const PageContext& context, const PageObject& object);

// The header, a piece of every shown page: logo, search box, cart button and a menu of custom pages.
void addHeaderPage(Variables& vars, const PageContext& context, const PageObject& object);

// What a search found. ErrorNumber::InvalidArgument for a related product that is gone.
void addSearchPage(Variables& vars, const PageContext& context, const PageObject& results);

// The preview's cart: its lines with prices and taxes, and what they cost together. ErrorNumber::TypeMismatch when a
// price or a quantity is no number of the user's locale, InvalidArgument for a line whose product is gone, NoSuchMember
// for a line whose product is taxed.
void addCartPage(Variables& vars, const PageContext& context, const PageObject& object);

// The buying form: what the order costs, the taxes and shipping charges to choose from, and the countries. It is a
// piece of every shown page, too. Errors as for clsCart::TotalCost.
void addCheckoutPage(Variables& vars, const PageContext& context, const PageObject& object);
