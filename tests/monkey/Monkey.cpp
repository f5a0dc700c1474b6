#include "Monkey.h"

#include "CarefulOwner.h"
#include "Gestures.h"
#include "Notes.h"
#include "OddTexts.h"
#include "Watchdog.h"
#include "publish/dialog/frmUpload.h"
#include "shell/CatalogueTree.h"
#include "shell/WindowKeys.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QTest>
#include <QTimerEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int deepest = 6; // turns inside of turns

} // namespace

Monkey::Monkey(MainForm& window, RecordingPreview& preview, Dice& dice, PlayedBy player, int& stepsLeft,
               const QString& server)
    : m_window(window),
      m_preview(preview),
      m_dice(dice),
      m_isCareful(player == PlayedBy::CarefulOwner),
      m_stepsLeft(stepsLeft),
      m_server(server),
      m_check(window)
{
}

QString Monkey::play()
{
    startTimer(1);
    m_loop.exec();
    Watchdog::calmDown();
    return m_disagreement;
}

// A new timer for each turn: one that waits would not come again until then.
void Monkey::timerEvent(QTimerEvent* event)
{
    killTimer(event->timerId());
    turn();
}

void Monkey::turn()
{
    const QScopedValueRollback deeper(m_depth, m_depth + 1);
    // While a command waits for an answer, or lets events run, it is half done.
    if (m_depth == 1 && m_disagreement.isEmpty()) {
        m_disagreement = m_check.disagreement();
    }
    const bool isOver = !m_disagreement.isEmpty() || m_stepsLeft <= 0 || !m_window.isVisible();
    if (isOver && m_depth == 1 && !QApplication::activeModalWidget() && !QApplication::activePopupWidget()) {
        m_loop.quit();
        return;
    }
    // The next turn is called from here, or from wherever this one waits.
    startTimer(1);
    if (isOver || m_depth > deepest) {
        windUp();
        return;
    }
    const bool isAsked = QApplication::activeModalWidget() || QApplication::activePopupWidget();
    const bool isAtWork = m_depth > 1 && !isAsked; // the window only lets events run
    if (waitsForUpload() || (isAtWork && m_disturbances == 0)) {
        return;
    }
    // How often work lets events run must not depend on the dice, so it is decided beforehand.
    m_disturbances = isAtWork ? m_disturbances - 1 : std::max(0, m_dice.below(12) - 8);
    Watchdog::feed();
    --m_stepsLeft;
    act();
}

// How long an upload takes must not depend on the dice, so most of them are left alone.
bool Monkey::waitsForUpload() const
{
    const auto* upload = qobject_cast<frmUpload*>(QApplication::activeModalWidget());
    return upload && upload->isTransferring() && !m_isRestless;
}

// Leaves what waits for an answer.
void Monkey::windUp()
{
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
    } else if (QWidget* dialog = QApplication::activeModalWidget()) {
        dialog->close();
    }
}

void Monkey::act()
{
    if (QWidget* popup = QApplication::activePopupWidget()) {
        actInPopup(*popup);
    } else if (QWidget* dialog = QApplication::activeModalWidget()) {
        actInDialog(*dialog);
    } else {
        actInWindow();
    }
}

void Monkey::actInWindow()
{
    const int what = m_dice.below(100);
    if (what < 45) {
        touchAny(m_window);
    } else if (what < 62) {
        touchButton();
    } else if (what < 74) {
        touchTree();
    } else if (what < 82) {
        chooseEntry();
    } else if (what < 90) {
        m_window.WorkMode == MainForm::PreviewMode ? followLink() : touchAny(m_window);
    } else if (what < 93) {
        pressAnyKey(m_window);
    } else if (what < 95) {
        pressCommandKey();
    } else if (what < 97) {
        note(u"walk"_s);
        walk(m_window);
    } else {
        changeWindow();
    }
}

void Monkey::actInDialog(QWidget& dialog)
{
    auto* upload = qobject_cast<frmUpload*>(&dialog);
    if (upload && !upload->isTransferring() && m_dice.chance(30)) {
        const QString address = m_dice.chance(70) ? m_server : u"http://127.0.0.1:1/"_s;
        m_isRestless = m_dice.chance(20);
        note(u"upload to "_s + address);
        dialog.findChild<QLineEdit*>(u"txtURL"_s)->setText(address);
        pressAt(*dialog.findChild<QWidget*>(u"OkBtn"_s), QPoint(5, 5));
    } else if (m_dice.chance(7)) {
        note(u"close "_s + nameOf(dialog));
        pressClose(dialog);
    } else if (m_dice.chance(10)) {
        pressAnyKey(dialog);
    } else {
        touchAny(dialog);
    }
}

void Monkey::actInPopup(QWidget& popup)
{
    const auto* menu = qobject_cast<QMenu*>(&popup);
    if (menu && !menu->actions().isEmpty() && m_dice.chance(60)) {
        QAction* action = m_dice.pick(menu->actions());
        if (m_isCareful && !mayChoose(action->objectName(), m_window)) {
            return;
        }
        note(u"entry "_s + action->text());
        pressAt(popup, menu->actionGeometry(action).center());
    } else if (m_dice.chance(30)) {
        note(u"close "_s + nameOf(popup));
        popup.close();
    } else if (m_dice.chance(50)) {
        pressAnyKey(popup);
    } else {
        touchAny(popup);
    }
}

// Window -------------------------------------------------------------------------------------------------------------

void Monkey::chooseEntry()
{
    QList<QAction*> entries;
    for (const char* menu : {"mnuShop", "mnuTools"}) {
        entries << m_window.findChild<QMenu*>(QLatin1String(menu))->actions();
    }
    entries.removeIf([](const QAction* entry) { return entry->isSeparator(); });
    QAction* action = m_dice.pick(entries);
    note(u"menu "_s + action->objectName());
    action->trigger();
}

// A key of the window's commands, or the one of the tree's menu. What Ctrl+F opens is used at once.
void Monkey::pressCommandKey()
{
    QWidget* tree = m_window.parts().CategoriesAndProductsTree;
    if (m_dice.chance(20)) {
        note(u"menu key"_s);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(tree, &event);
        return;
    }
    const WindowKey& command =
        windowKeys()[static_cast<std::size_t>(m_dice.below(static_cast<int>(windowKeys().size())))];
    const QKeyCombination key = QKeySequence(QLatin1String(command.keys))[0];
    note(u"key "_s + QLatin1String(command.keys));
    QWidget* focus = m_window.focusWidget();
    QTest::keyPress(focus && focus->isVisible() ? focus : &m_window, key.key(), key.keyboardModifiers());
    QPointer<QLineEdit> line = m_window.findChild<QLineEdit*>(u"CatalogueFindTxt"_s);
    if (command.action == findCommand && line->isVisible()) {
        typeText(*line, QString(QChar(u'a' + m_dice.below(26))));
        for (int hits = m_dice.below(4); hits > 0 && line && line->isVisible(); --hits) {
            pressKey(*line, Qt::Key_Return, m_dice.chance(20) ? Qt::ShiftModifier : Qt::NoModifier);
        }
    }
}

void Monkey::followLink()
{
    static const QRegularExpression link(u"http://previewmode/[^\"'<>]*"_s);
    QStringList links;
    if (!m_preview.documents.isEmpty()) {
        m_preview.documents = {m_preview.documents.last()};
        for (auto found = link.globalMatch(m_preview.documents.last()); found.hasNext() && links.size() < 500;) {
            links << found.next().captured().replace(u"&amp;"_s, u"&"_s).replace(u' ', u"%20"_s);
        }
    }
    const bool isOdd = links.isEmpty() || m_dice.chance(8);
    if (isOdd && m_isCareful) {
        return;
    }
    const QString url = isOdd ? oddAddress(m_dice) : m_dice.pick(links);
    note((isOdd ? u"go to "_s : u"follow "_s) + url.left(200));
    if (PreviewNavigation::judge(url).hasAction) {
        guarded(m_window.errorHandler(), [&] { m_preview.navigation->act(url); });
    }
}

void Monkey::changeWindow()
{
    if (m_dice.chance(20)) {
        note(u"close the window"_s);
        m_window.close();
    } else {
        m_window.resize(50 + m_dice.below(1400), 50 + m_dice.below(1000));
        note(u"resize to %1, %2"_s.arg(m_window.width()).arg(m_window.height()));
    }
}
