// From the keys of a grid's rows to those of the model.
#pragma once

#include "model/ProductClass.h"

#include <memory>

// The same texts under the prefix and the row's number from 0: "from0", "from1", ...
std::shared_ptr<TextCollection> rekeyed(const TextCollection& texts, const char* prefix);
