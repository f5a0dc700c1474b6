// The page of one category: its sub-categories, its products with their prices, and the path that leads to it.
#pragma once

#include "pages/PageContext.h"

// Adds the page's variables behind those of all pages. Error 438 for a category whose picture's name has a ":" in it, 5
// for a related product that is gone, others as for prices and images.
void addCategoryPage(Variables& vars, const PageContext& context, CategoryClass& category);
