// What the shop was when the unsaved shop was written last, as lines in a file beside the run's folder, for the process
// that opens the shop after the run. It does not go through the writer.
#pragma once

#include "base/OperatingSystem.h"

#include <QStringList>

#include <functional>
#include <memory>

class ShopClass;

// The shop, its categories and its products with their texts, in their order, and the names of its styles and pages. A
// text stands as a file can hold it.
QStringList outlineOf(const ShopClass& shop);

// The system's calls. whenKept runs whenever an unsaved shop has come into its place.
std::unique_ptr<FileCalls> fileCallsThatTell(const std::function<void()>& whenKept);
