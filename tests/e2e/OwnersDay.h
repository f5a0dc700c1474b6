// The shop owner of the long day, who works with the mouse or with the keyboard alone: the window with the real
// browser, a real server, and the owner's hands.
#pragma once

#include "e2e/BrowserDriver.h"
#include "publish/dialog/PhpServer.h"
#include "support/WindowTest.h"

#include <functional>

class PreviewBrowser;
class QCheckBox;
class QDialog;
class QPlainTextEdit;
class QTabWidget;

enum class Hand { Mouse, Keyboard };

class OwnersDay : public WindowTest, public testing::WithParamInterface<Hand>
{
public:
    ~OwnersDay() override;

protected:
    void SetUp() override;
    PreviewParts makePreview(QWidget* parent) override;

    bool byKeys() const { return GetParam() == Hand::Keyboard; }
    // Presses of the mouse that any window has had.
    int mousePresses() const { return m_mousePresses; }

    // A main button has a key; the others are reached by Tab, the entries by the menus' letters, the nodes by the line
    // that finds.
    void click(const char* button);
    void trigger(const char* entry);
    void clickNode(const QString& key);

    // In a panel or a dialog.
    void press(QWidget* button) const;
    void type(QWidget* field, const QString& text) const;
    void tick(QCheckBox* box) const;
    void openTab(QTabWidget* tabs, int index) const;
    // Types behind what the text has.
    void append(QPlainTextEdit* text, const QString& more) const;

    // The panel on the right.
    template <class T = QWidget>
    T* in(const char* name) const
    {
        T* widget = panel().findChild<T*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    void type(const char* field, const QString& text) const { type(in(field), text); }
    void press(const char* button) const { press(in(button)); }
    void submit() const { press("imgButtonSubmit"); }

    // In the preview: follows a link, or presses a button, to another page; fills in a field.
    void visit(const QString& selector);
    void fillIn(const QString& selector, const QString& text);

    // What a modal dialog is used for: runs when the dialog is there, and must close it.
    void inNextDialog(const std::function<void(QDialog& dialog)>& work);
    static QWidget* part(const QWidget& dialog, const char* name);
    static bool waitUntil(const std::function<bool()>& condition);

    ShopClass& shop() const;
    // The node key of the category or product of that name.
    QString keyOf(const QString& name) const;

    PhpServer server;
    BrowserDriver visitor;
    PreviewBrowser* browser = nullptr;

private:
    class MouseWatch;

    QWidget& panel() const;
    void activate() const;
    void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) const;

    int m_mousePresses = 0;
    std::unique_ptr<QObject> m_watch;
};
