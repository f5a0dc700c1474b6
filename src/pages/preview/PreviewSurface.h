// What the preview shows its pages on. The embedded browser is one; a test's surface keeps the text. The window owns
// it.
#pragma once

#include <QString>

class PreviewSurface
{
public:
    virtual ~PreviewSurface() = default;

    // Shows a whole HTML document in the place of the one that is there. False when there is no document yet that could
    // be replaced.
    virtual bool replaceDocument(const QString& text) = 0;
    // Shows an empty document.
    virtual void goBlank() = 0;
};
