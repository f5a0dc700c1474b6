// The hands and eyes of a visitor in the real browser. What a page shows is read by script, what a visitor does is done
// with real clicks and keys.
#pragma once

#include <QPoint>
#include <QString>
#include <QVariant>

class PreviewBrowser;

class BrowserDriver
{
public:
    // The browser that is driven, which must outlive the driving.
    void drive(PreviewBrowser* browser) { m_driven = browser; }

    // The result of a script in the shown document.
    QVariant script(const QString& javaScript);
    // Waits until the script is true, half a minute at most; a failed test when it stays false.
    void waitUntil(const QString& condition);
    // Marks the shown document, so that waitForNewPage knows it from the next one.
    void markPage();
    void waitForNewPage();
    // Lets events run.
    static void pause(int milliseconds);

    // A real click into the middle of the first element that the selector finds, and what the visitor waits for.
    void click(const QString& selector, Qt::MouseButton button = Qt::LeftButton);
    void clickToNewPage(const QString& selector);
    // Puts the cursor into a field, empties it and types.
    void type(const QString& selector, const QString& text);
    // The same without a mouse: Tab leads to the element, from wherever the focus is in the document.
    void tabTo(const QString& selector);
    // Sends the form of a field, or follows a link, by the Enter key.
    void pressEnter();
    void enterToNewPage();

    QString textOf(const QString& selector);
    int countOf(const QString& selector);
    bool shows(const QString& text);

private:
    QPoint middleOf(const QString& selector);

    PreviewBrowser* m_driven = nullptr;
};
