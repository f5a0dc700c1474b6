// The shop's front page: description, search box, a menu of custom pages, and the root categories with a summary of
// their discounts.
#pragma once

#include "pages/PageContext.h"

// Adds the page's variables behind those of all pages. Errors 94 for a category whose discount has no status, others as
// for AddImageVariables.
void addMainPage(Variables& vars, const PageContext& context, const ShopClass& shop);
