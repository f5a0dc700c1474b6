// The fixture of the tests that drive the real browser: a temporary application folder, a session on it, and the
// preview with its navigation, wired as the window does it. What a page shows is read by script, what a visitor does is
// done with real clicks and keys.
#pragma once

#include "base/Guarded.h"
#include "model/ShopSession.h"
#include "pages/PreviewNavigation.h"
#include "pages/PreviewPage.h"
#include "shell/browser/PreviewBrowser.h"
#include "support/TestSupport.h"
#include "template_engine/Templates_Set.h"

#include <QPoint>
#include <QVariant>

#include <gtest/gtest.h>
#include <memory>
#include <vector>

class RecordingErrors : public FatalErrorHandler
{
public:
    void fatalError(const RuntimeError& error) noexcept override
    {
        numbers.push_back(static_cast<int>(error.number()));
    }

    std::vector<int> numbers;
};

class BrowserTest : public testing::Test
{
protected:
    ~BrowserTest() override;

    // Puts the sample shop with its templates and pictures into the folder and opens it.
    void openSampleShop();
    // Opens an empty shop "Corner Shop" with templates that show little more than main_part.
    void openEmptyShop();
    void writeTemplate(const QString& name, const QByteArray& text);

    // The result of a script in the shown document.
    QVariant script(const QString& javaScript);
    // Waits until the script is true, half a minute at most; a failed test when it stays false.
    void waitUntil(const QString& condition);
    // Marks the shown document, so that waitForNewPage knows it from the next one.
    void markPage();
    void waitForNewPage();
    // Shows a document and waits until it is there.
    void show(const QString& html);
    // Lets events run.
    static void pause(int milliseconds);

    // A real click into the middle of the first element that the selector finds, and what the visitor waits for.
    void click(const QString& selector, Qt::MouseButton button = Qt::LeftButton);
    void clickToNewPage(const QString& selector);
    // Puts the cursor into a field, empties it and types.
    void type(const QString& selector, const QString& text);
    // Sends the form of a field by the Enter key.
    void pressEnter();

    QString textOf(const QString& selector);
    int countOf(const QString& selector);
    bool shows(const QString& text);

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
    QPoint middleOf(const QString& selector);
};
