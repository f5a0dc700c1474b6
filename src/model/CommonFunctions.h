// The rooms in which the routines that the catalogue's classes share stand, under one name: numbers (NormalizeDecimal),
// dates (DateTextToLocal and its kin), prices (CalculateNewPrice), discounts (StatusFromWord, StatusToWord), products
// (CopyProductForPreview) and the cart (ConfirmEmptyCart). Sources include the room that they need.
#pragma once

#include "base/Dates.h"
#include "base/Numbers.h"
#include "model/ProductClass.h"
#include "model/clsCart.h"
#include "model/clsDiscount.h"
#include "model/clsPrice.h"
