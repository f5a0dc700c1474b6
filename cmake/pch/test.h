// Precompiled for the tests without windows.
#pragma once

#include "core.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
