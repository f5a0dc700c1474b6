// The page of what a search found. Its product rows resemble those of the category page, with differences that are
// meant: they have no currency of their own, and their image bears the category page's word.
#pragma once

#include "pages/PageContext.h"
#include "pages/PageObject.h"

// Adds the page's variables behind those of all pages. Error 5 for a related product that is gone, others as for prices
// and images.
void addSearchPage(Variables& vars, const PageContext& context, const SearchResults& results);
