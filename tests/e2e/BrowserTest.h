// The fixture of the tests that drive the real browser: a temporary application folder, a session on it, and the
// preview with its navigation, wired as the window does it.
#pragma once

#include "e2e/BrowserDriver.h"
#include "model/ShopSession.h"
#include "pages/preview/PreviewNavigation.h"
#include "pages/preview/PreviewPage.h"
#include "shell/browser/PreviewBrowser.h"
#include "support/RecordingErrors.h"
#include "support/TestSupport.h"
#include "template_engine/Templates_Set.h"

#include <gtest/gtest.h>
#include <memory>

class BrowserTest : public testing::Test, protected BrowserDriver
{
public:
    ~BrowserTest() override;

protected:
    // Puts the sample shop with its templates and pictures into the folder and opens it.
    void openSampleShop();
    // Opens an empty shop "Corner Shop" with templates that show little more than main_part.
    void openEmptyShop();
    void writeTemplate(const QString& name, const QByteArray& text);

    // Shows a document and waits until it is there.
    void show(const QString& html);

    TemporaryShopFolder files;
    RecordingPrompts prompts;
    FixedClock clock{QDate(2026, 7, 15)};
    RecordingErrors errors;
    std::unique_ptr<ShopSession> session;
    std::unique_ptr<Templates_Set> templates;
    std::unique_ptr<PreviewBrowser> browser;
    std::unique_ptr<PreviewPage> preview;
    std::unique_ptr<PreviewNavigation> navigation;

private:
    void openPreview();
};
