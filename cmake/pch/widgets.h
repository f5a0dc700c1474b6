// Precompiled for the folders that have windows, on top of what every source has.
#pragma once

#include "core.h"

#include <QtWidgets/QtWidgets>
