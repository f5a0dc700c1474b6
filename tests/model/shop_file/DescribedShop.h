// A shop as texts, to compare one with another.
#pragma once

#include "model/ShopClass.h"

#include <QStringList>

// Every member of the shop that its file holds, one a line. It does not go through the writer.
QStringList described(ShopClass& shop);
