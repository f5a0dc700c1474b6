// The page that the preview shows: composes the document from the pieces and the frame, writes it to the surface, and
// remembers what it showed. The window owns the one.
#pragma once

#include "pages/PageContext.h"
#include "pages/PageObject.h"
#include "pages/preview/PreviewSurface.h"

#include <QString>

class PreviewPage
{
public:
    // All three must outlive it.
    PreviewPage(ShopSession& session, Templates_Set& templates, PreviewSurface& surface);

    // Composes and shows a page. Errors as for RenderPage; the surface is then left as it was.
    // ErrorNumber::ObjectNotSet when the frame's template is not there.
    void ShowPreviewPage(const QString& pageName, const PageObject& pageObject);

    // What was shown, or was to be shown, last.
    const QString& lastPageName() const { return m_lastPageName; }
    const PageObject& lastPageObject() const { return m_lastPageObject; }

    const PageContext& context() const { return m_context; }

private:
    PageContext m_context;
    PreviewSurface& m_surface;
    QString m_lastPageName;
    PageObject m_lastPageObject;
};
