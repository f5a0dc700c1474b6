// What every part of the tour does: clicks on the real window, opens panels and dialogs, and keeps a picture of what
// stands there, numbered in the order of the walk. The tour owns the one.
#pragma once

#include "TourPrompts.h"
#include "editors/Panel.h"
#include "shell/MainForm.h"

#include <QDir>
#include <QString>

#include <functional>

class PreviewBrowser;
class QDialog;
class QMenu;
class ShortcartButton;

class Walk
{
public:
    // Pictures go into the folder. Window and prompts must outlive it.
    Walk(MainForm& window, TourPrompts& prompts, const QDir& output);

    MainForm& window;
    TourPrompts& prompts;

    // The pictures that follow bear this word ahead of their names.
    void beginPart(const QString& part) { m_part = part; }

    ShortcartButton* button(const char* name) const;
    void click(const char* button) const;
    // Goes to a mode by its main button. The tour ends when the window does not follow.
    void enter(MainForm::Mode mode) const;
    // The mouse comes to the middle of the button's picture, without a click.
    void hover(const char* button) const;
    // The mouse goes on to a place without buttons.
    void leaveButtons() const;

    TreeNode* rootNode() const;
    // The first node below this one that the test takes, or none; in the order of the tree.
    static TreeNode* findNode(TreeNode* below, const std::function<bool(const TreeNode&)>& takes);
    // Clicks the node, which is brought into sight first. The tour ends when there is none.
    void clickNode(TreeNode* node) const;

    // A part of the panel that is shown. The tour ends when the panel has none of that name: it is out of date then.
    template <class Widget>
    Widget* in(const char* name) const
    {
        return partOf<Widget>(window.VisibleFrame, name);
    }
    template <class Widget>
    static Widget* partOf(const QObject* whole, const char* name)
    {
        auto* part = whole->findChild<Widget*>(QLatin1String(name));
        if (!part) {
            qFatal("%s has no %s", qUtf8Printable(whole->objectName()), name);
        }
        return part;
    }

    // Keeps the window with all menus and dialogs that stand over it.
    void keep(const QString& name);
    void keepPicture(const QPixmap& picture, const QString& name);
    // Keeps the window with the menu open at that place of the screen.
    void keepMenu(QMenu* menu, const QPoint& place, const QString& name);
    // Runs the work that opens a dialog, keeps it under that name and dismisses it. The dialog may block the work.
    // prepare is told the dialog ahead of the picture.
    void keepDialog(const QString& name, const std::function<void()>& open,
                    const std::function<void(QDialog& dialog)>& prepare = {});

    PreviewBrowser& browser() const;

    static void pause(int milliseconds);
    // Does the work from the event loop, when that has run for so long.
    void later(int milliseconds, const std::function<void()>& work) const;

    // The main buttons act on the receipt of the focus, which only the active window's have. A dialog that closes does
    // not hand the activity back where no window manager runs.
    void activateWindow() const;

private:
    QPixmap picture() const;

    QDir m_output;
    QString m_part;
    int m_number = 0;
};
