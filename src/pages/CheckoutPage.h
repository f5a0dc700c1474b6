// The buying form: what the order costs, the taxes and shipping charges to choose from, and the countries. It is a
// piece of every shown page, too.
#pragma once

#include "pages/PageContext.h"

// Adds the page's variables behind those of all pages. Errors as for clsCart::TotalCost and AddImageVariables, 91
// without a cart.
void addCheckoutPage(Variables& vars, const PageContext& context);
