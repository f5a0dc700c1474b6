#include "Walk.h"

#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"
#include "shell/browser/PreviewBrowser.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QTest>
#include <QTextStream>
#include <QTimer>

using namespace Qt::StringLiterals;

Walk::Walk(MainForm& mainForm, TourPrompts& tourPrompts, const QDir& output)
    : window(mainForm), prompts(tourPrompts), m_output(output)
{
}

ShortcartButton* Walk::button(const char* name) const
{
    return partOf<ShortcartButton>(&window, name);
}

void Walk::click(const char* name) const
{
    QTest::mouseClick(button(name)->findChild<QLabel*>(u"IconImg"_s), Qt::LeftButton);
}

void Walk::hover(const char* name) const
{
    ShortcartButton* target = button(name);
    const QPoint middle = target->findChild<QLabel*>(u"IconImg"_s)->geometry().center();
    QMouseEvent move(QEvent::MouseMove, middle, target->mapToGlobal(middle), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(target, &move);
    target->setAttribute(Qt::WA_UnderMouse); // the mouse itself stands elsewhere
    target->update();
}

void Walk::leaveButtons() const
{
    for (ShortcartButton* each : window.findChildren<ShortcartButton*>()) {
        each->setAttribute(Qt::WA_UnderMouse, false);
        each->update();
    }
    QMouseEvent move(QEvent::MouseMove, QPoint(), window.mapToGlobal(QPoint()), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&window, &move);
}

void Walk::enter(MainForm::Mode mode) const
{
    activateWindow();
    switch (mode) {
    case MainForm::CatalogueMode:
        click("ProductCatalogSBtn");
        break;
    case MainForm::PreviewMode:
        click("PreviewBrowserSBtn");
        break;
    case MainForm::DesignMode:
        click("ShopDesignSBtn");
        break;
    }
    if (window.WorkMode != mode) {
        qFatal("the window does not come to mode %d", mode);
    }
}

void Walk::activateWindow() const
{
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) {
        qFatal("the window does not become the active one");
    }
}

TreeNode* Walk::rootNode() const
{
    return window.parts().CategoriesAndProductsTree->nodes().rootNode();
}

TreeNode* Walk::findNode(TreeNode* below, const std::function<bool(const TreeNode&)>& takes)
{
    for (const auto& child : below->children) {
        if (takes(*child)) {
            return child.get();
        }
        if (TreeNode* found = findNode(child.get(), takes)) {
            return found;
        }
    }
    return nullptr;
}

void Walk::clickNode(TreeNode* node) const
{
    if (!node) {
        qFatal("the tree has no such node");
    }
    CatalogueTree* tree = window.parts().CategoriesAndProductsTree;
    for (TreeNode* above = node->parent; above; above = above->parent) {
        tree->expandNode(above);
    }
    const QModelIndex index = tree->nodes().indexOf(node);
    tree->scrollTo(index);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(index).center());
}

PreviewBrowser& Walk::browser() const
{
    return *qobject_cast<PreviewBrowser*>(window.parts().PreviewBrowser);
}

void Walk::keep(const QString& name)
{
    // Until nothing moves any more: layouts are settled then, and thumbnails are made.
    constexpr int mostRounds = 25;
    QPixmap shown = picture();
    for (int round = 0; round < mostRounds; ++round) {
        pause(40);
        const QPixmap next = picture();
        if (next.toImage() == shown.toImage()) {
            break;
        }
        shown = next;
    }
    keepPicture(shown, name);
}

void Walk::keepPicture(const QPixmap& picture, const QString& name)
{
    const QString file = u"%1_%2_%3.png"_s.arg(++m_number, 2, 10, QChar(u'0')).arg(m_part, name);
    picture.save(m_output.filePath(file));
    QTextStream(stdout) << file << Qt::endl;
}

QPixmap Walk::picture() const
{
    QPixmap whole = window.grab();
    QPainter painter(&whole);
    // Dialogs first: a calendar may stand over one.
    for (const bool popUps : {false, true}) {
        for (QWidget* above : QApplication::topLevelWidgets()) {
            if (above == &window || !above->isVisible() || (above->windowType() == Qt::Popup) != popUps) {
                continue;
            }
            const QPoint place = above->pos() - window.pos();
            painter.drawPixmap(place, above->grab());
            if (!popUps) { // those have an edge of their own; a dialog has that of the desktop
                painter.setPen(window.palette().color(QPalette::Disabled, QPalette::WindowText));
                painter.drawRect(QRect(place, above->size()).adjusted(-1, -1, 0, 0));
            }
        }
    }
    return whole;
}

void Walk::keepMenu(QMenu* menu, const QPoint& place, const QString& name)
{
    menu->popup(place);
    keep(name);
    menu->hide();
}

void Walk::keepDialog(const QString& name, const std::function<void()>& open,
                      const std::function<void(QDialog& dialog)>& prepare)
{
    QEventLoop dismissed;
    later(0, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog) {
            qFatal("no dialog has opened for %s", qUtf8Printable(name));
        }
        // Nobody places windows here: over the middle of the main window.
        dialog->move(window.geometry().center() - dialog->rect().center());
        if (prepare) {
            prepare(*dialog);
        }
        keep(name);
        dialog->reject();
        dismissed.quit();
    });
    open();
    if (QApplication::activeModalWidget()) {
        dismissed.exec();
    }
    activateWindow();
}

void Walk::later(int milliseconds, const std::function<void()>& work) const
{
    auto* timer = new QTimer(&window);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, &window, [timer, work] {
        timer->deleteLater();
        work();
    });
    timer->start(milliseconds);
}

void Walk::pause(int milliseconds)
{
    QEventLoop loop;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(milliseconds);
    loop.exec();
}
