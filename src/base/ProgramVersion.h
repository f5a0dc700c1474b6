// The version of the running program: one constant, taken from the build.
#pragma once

#include <QString>

// Major, minor and revision joined by ".": "1.2.0".
QString programVersion();
