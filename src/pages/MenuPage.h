// The side menu, a piece of every shown page: the root categories, a search box, custom pages, and what is in the cart.
#pragma once

#include "pages/PageContext.h"

// Adds the piece's variables behind those of all pages. Error 5 for a cart line whose product is gone, 91 without a
// cart, others as for AddImageVariables.
void addMenuPage(Variables& vars, const PageContext& context);
