// What the window needs of the embedded browser: a widget to place, and the two operations and the hook that the
// preview works with. The program hands it the real browser; a test hands it a widget that keeps the text.
#pragma once

#include <functional>

class PreviewNavigation;
class PreviewSurface;
class QWidget;

struct PreviewParts
{
    QWidget* widget = nullptr; // goes with the window
    PreviewSurface* surface = nullptr;
    // Called once, with the object that judges navigations and acts on them.
    std::function<void(PreviewNavigation*)> setNavigation;
    // Lays the page out as wide as that, in pixels of the window, in the middle of the widget; 0 for its whole width.
    std::function<void(int)> setPageWidth = [](int /*width*/) {};
};

using PreviewFactory = std::function<PreviewParts(QWidget* parent)>;
