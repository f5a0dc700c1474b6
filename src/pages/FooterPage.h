// The footer, a piece of every shown page: the copyright line and a menu of custom pages.
#pragma once

#include "pages/PageContext.h"

// Adds the piece's variables behind those of all pages.
void addFooterPage(Variables& vars, const PageContext& context);
