// Precompiled for the tests that open windows.
#pragma once

#include "test.h"
#include "widgets.h"
