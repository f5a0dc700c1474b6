// A shop as texts, to compare one with another.
#pragma once

#include "model/ShopClass.h"

#include <QStringList>

// Every member of the shop that its file holds, one per line. It does not use the writer.
QStringList described(ShopClass& shop);
