#include "shell/BrowserPreview.h"

#include "shell/browser/PreviewBrowser.h"

PreviewFactory browserPreview(const ApplicationFolder& folder, FatalErrorHandler& errors)
{
    return [folder, &errors](QWidget* parent) {
        auto* browser = new PreviewBrowser(folder, errors, parent);
        return PreviewParts{browser, browser,
                            [browser](PreviewNavigation* navigation) { browser->setNavigation(navigation); },
                            [browser](int width) { browser->setPageWidth(width); }};
    };
}
