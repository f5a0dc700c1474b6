// The header, a piece of every shown page: logo, search box, cart button and a menu of custom pages.
#pragma once

#include "pages/PageContext.h"

// Adds the piece's variables behind those of all pages. Errors as for AddImageVariables.
void addHeaderPage(Variables& vars, const PageContext& context);
