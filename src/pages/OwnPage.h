// A page that the shop owner wrote himself.
#pragma once

#include "design/CustomPageClass.h"
#include "template_engine/Variables.h"

// Adds the page's one variable, its text as typed, behind those of all pages.
void addOwnPage(Variables& vars, const CustomPageClass& page);
