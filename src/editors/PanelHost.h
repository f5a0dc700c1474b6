// What a panel may ask of the window that it stands in. The main window implements it; a test of one panel can do so
// too.
#pragma once

#include "base/Guarded.h"

#include <QString>

class ShopSession;
class Templates_Set;

class PanelHost
{
public:
    virtual ~PanelHost() = default;

    virtual ShopSession& session() = 0;
    virtual Templates_Set& CurrentTemplatesSet() = 0;
    virtual FatalErrorHandler& errorHandler() = 0;

    // What the submit picture of a panel does: the short bar, then SaveActiveObject of the visible panel.
    virtual void ApplyActivePanel() = 0;
    // What the reset picture does: SetActiveObject of the visible panel, which drops what was typed.
    virtual void ResetActivePanel() = 0;
    // Changes the text of the tree's node with that key, so that a name shows there while it is typed. A key that the
    // tree does not have is ignored.
    virtual void setNodeText(const QString& key, const QString& text) = 0;
};
