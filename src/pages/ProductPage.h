// The page of one product, in full.
#pragma once

#include "pages/PageContext.h"

// Adds the page's variables behind those of all pages. Error 91 for a product without category, 5 for a related product
// that is gone, others as for prices and images.
void addProductPage(Variables& vars, const PageContext& context, ProductClass& product);
