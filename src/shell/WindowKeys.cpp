#include "shell/WindowKeys.h"

#include <QAction>

namespace {

// The modes in the order of their numbers.
constexpr WindowKey keys[] = {
    {"mnuSaveShop", "Ctrl+S"},   {"mnuProductsCatalog", "Ctrl+1"}, {"mnuShopPreview", "Ctrl+2"},
    {"mnuShopDesign", "Ctrl+3"}, {findCommand, "Ctrl+F"},          {guideCommand, "F1"},
};

} // namespace

std::span<const WindowKey> windowKeys()
{
    return keys;
}

void giveKey(QAction& action)
{
    for (const WindowKey& key : keys) {
        if (action.objectName() == QLatin1String(key.action)) {
            action.setShortcut(QKeySequence(QLatin1String(key.keys)));
            action.setAutoRepeat(false);
        }
    }
}
