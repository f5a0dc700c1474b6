// The page of the preview's cart: its lines with prices and taxes, and what they cost together.
#pragma once

#include "pages/PageContext.h"

// Adds the page's variables behind those of all pages. Error 13 when a price or a quantity is no number of the user's
// locale, 5 for a line whose product is gone, 438 for a line whose product has a tax, 91 without a cart; others as for
// prices and images.
void addCartPage(Variables& vars, const PageContext& context);
