// The fixture of the tests that drive the real window: a temporary application folder, prompts that answer in order, a
// day that the test sets, and a preview that keeps the text it is given.
#pragma once

#include "pages/preview/PreviewSurface.h"
#include "shell/MainForm.h"
#include "shell/StartUp.h"
#include "support/RecordingErrors.h"
#include "support/TestSupport.h"

#include <QLabel>
#include <QStringList>
#include <QWidget>

#include <gtest/gtest.h>
#include <memory>
#include <optional>

// A preview without a browser.
class RecordingPreview : public QWidget, public PreviewSurface
{
public:
    using QWidget::QWidget;

    bool replaceDocument(const QString& text) override;
    void goBlank() override;

    QStringList documents; // all that were shown
    int blanks = 0;
    PreviewNavigation* navigation = nullptr;
};

// Lets a window that was just made be painted, and what waits for that happen.
void letBePainted(MainForm& window);

class WindowTest : public testing::Test
{
protected:
    // Puts the sample shop, its templates, countries and pictures into the folder.
    void useSampleShop();
    // Puts a shop file with this text between <Shop> and </Shop> into the folder, with one country and no templates.
    void useShop(const QByteArray& inside);

    // Starts the program and shows the window. Boxes that it may show have to be announced to the prompts before.
    void start();
    // The window's preview: one that keeps the text, unless a fixture makes another.
    virtual PreviewParts makePreview(QWidget* parent);

    // The widget of that name.
    template <class T = QWidget>
    T* find(const char* name) const
    {
        T* widget = window->findChild<T*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    bool isShown(const char* name) const { return find<QWidget>(name)->isVisible(); }

    // Clicks a button's picture with the left mouse button.
    void click(const char* button);
    void trigger(const char* action);
    // Clicks the node of that key.
    void clickNode(const QString& key);

    // The lines of load.log without their quotes.
    QStringList logLines() const;

    TemporaryShopFolder files;
    RecordingPrompts prompts;
    FixedClock clock{QDate(2026, 7, 15)};
    RecordingErrors errors;
    int restarts = 0; // how often the program was started again, after a restore
    RecordingPreview* preview = nullptr;
    std::unique_ptr<MainForm> window;
};
