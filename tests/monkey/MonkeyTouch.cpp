// How the monkey handles what it finds on a window: widgets by their kind, the tree, buttons, keys.
#include "CarefulOwner.h"
#include "Gestures.h"
#include "Monkey.h"
#include "Notes.h"
#include "OddTexts.h"
#include "editors/DateField.h"
#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollArea>
#include <QSplitter>
#include <QTabBar>
#include <QTableWidget>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostNodes = 300;

// Keys with a meaning of their own somewhere, and what goes with them.
struct Key
{
    int key;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    const char* text = "";
};
const std::array keys{
    Key{Qt::Key_Return, {}, "\r"},
    Key{Qt::Key_Enter, Qt::KeypadModifier, "\r"},
    Key{Qt::Key_Escape, {}, "\x1b"},
    Key{Qt::Key_Tab, {}, "\t"},
    Key{Qt::Key_Backtab, Qt::ShiftModifier},
    Key{Qt::Key_Space, {}, " "},
    Key{Qt::Key_Up},
    Key{Qt::Key_Down},
    Key{Qt::Key_Left},
    Key{Qt::Key_Right},
    Key{Qt::Key_Home},
    Key{Qt::Key_End},
    Key{Qt::Key_PageUp},
    Key{Qt::Key_PageDown},
    Key{Qt::Key_Delete, {}, "\x7f"},
    Key{Qt::Key_Backspace, {}, "\b"},
    Key{Qt::Key_F2},
    Key{Qt::Key_F4},
    Key{Qt::Key_Menu},
    Key{Qt::Key_Plus, {}, "+"},
    Key{Qt::Key_Minus, {}, "-"},
    Key{Qt::Key_Asterisk, {}, "*"},
    Key{Qt::Key_A, Qt::ControlModifier},
    Key{Qt::Key_Z, Qt::ControlModifier},
    Key{Qt::Key_X, Qt::ControlModifier},
    Key{Qt::Key_V, Qt::ControlModifier},
    Key{Qt::Key_Left, Qt::AltModifier},
    Key{Qt::Key_Down, Qt::AltModifier},
    Key{Qt::Key_5, {}, "5"},
};

// Leaves half a word or half a number.
bool changesText(const Key& key)
{
    constexpr std::array changing = {Qt::Key_Delete,   Qt::Key_Backspace, Qt::Key_Plus, Qt::Key_Minus,
                                     Qt::Key_Asterisk, Qt::Key_5,         Qt::Key_Space};
    return key.modifiers == Qt::ControlModifier ||
           std::any_of(changing.begin(), changing.end(), [&](Qt::Key other) { return key.key == other; });
}

bool canBeTouched(const QWidget& widget)
{
    return widget.isVisible() && widget.isEnabled() && widget.width() > 0 && widget.height() > 0;
}

// Most labels and frames do nothing.
bool isOfInterest(const QWidget& widget)
{
    return (widget.focusPolicy() != Qt::NoFocus && !qobject_cast<const ShortcartButton*>(&widget)) ||
           qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QSplitterHandle*>(&widget);
}

// Scrolls until the widget can be seen.
void bringIntoView(QWidget& widget)
{
    for (QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(above)) {
            area->ensureWidgetVisible(&widget);
        }
    }
}

QAbstractItemView* viewOf(QWidget& widget)
{
    if (auto* view = qobject_cast<QAbstractItemView*>(&widget)) {
        return view;
    }
    return qobject_cast<QAbstractItemView*>(widget.parentWidget());
}

} // namespace

QPoint Monkey::placeIn(const QWidget& widget)
{
    if (m_dice.chance(60)) {
        return widget.rect().center();
    }
    return {m_dice.below(widget.width()), m_dice.below(widget.height())};
}

// Near the widget, or far from it.
QPoint Monkey::anyPlace()
{
    return {m_dice.below(1200) - 200, m_dice.below(800) - 100};
}

Qt::MouseButton Monkey::anyButton()
{
    constexpr std::array others = {Qt::RightButton, Qt::MiddleButton, Qt::BackButton, Qt::ForwardButton};
    return m_dice.chance(88) ? Qt::LeftButton : m_dice.pick(others);
}

void Monkey::touchAny(QWidget& root)
{
    QList<QWidget*> all = root.findChildren<QWidget*>();
    const bool takesAll = m_dice.chance(10);
    all.removeIf([&root, takesAll](const QWidget* widget) {
        return !canBeTouched(*widget) || widget->window() != root.window() || !(takesAll || isOfInterest(*widget));
    });
    if (!all.isEmpty()) {
        touch(*m_dice.pick(all));
    }
}

void Monkey::touch(QWidget& widget)
{
    bringIntoView(widget);
    if (widget.visibleRegion().isEmpty() || (m_isCareful && !mayPress(widget, m_window))) {
        return; // covered, or better left alone
    }
    const QPoint place = placeIn(widget);
    const int how = m_dice.below(100);
    if (m_isCareful && leavesEmptyRow(widget)) {
        addFilledRow(widget);
    } else if (how < 3) {
        note(u"context "_s + nameOf(widget));
        askForContextMenu(widget, place);
    } else if (how < 6) {
        note(u"wheel "_s + nameOf(widget));
        turnWheel(widget, place, m_dice.chance(50) ? 1 : -1);
    } else if (how < 9) {
        note(u"drag "_s + nameOf(widget));
        drag(widget, place, anyPlace(), anyButton());
    } else if (how < 12) {
        note(u"press and release elsewhere "_s + nameOf(widget));
        pressAndReleaseElsewhere(widget, place, anyPlace(), anyButton());
    } else if (qobject_cast<QLineEdit*>(&widget) || qobject_cast<QPlainTextEdit*>(&widget)) {
        touchText(widget);
    } else if (viewOf(widget) && !qobject_cast<QHeaderView*>(&widget) && how < 90) {
        touchItems(widget);
    } else if (auto* tabs = qobject_cast<QTabBar*>(&widget); tabs && tabs->count() > 0) {
        note(u"tab "_s + nameOf(widget));
        pressAt(widget, tabs->tabRect(m_dice.below(tabs->count())).center());
    } else if (how < 18) {
        note(u"press twice "_s + nameOf(widget));
        pressTwice(widget, place, anyButton());
    } else {
        const auto* button = qobject_cast<QAbstractButton*>(&widget);
        note(u"press "_s + nameOf(widget) + (button ? u" \"%1\""_s.arg(button->text()) : QString()));
        pressAt(widget, place, anyButton());
    }
}

QString Monkey::textFor(const QWidget& field)
{
    // The wild hands, too, mostly give a date for a date.
    const bool fits = m_isCareful || (qobject_cast<const DateField*>(&field) && m_dice.chance(80));
    return fits ? fittingText(m_dice, field) : oddText(m_dice);
}

void Monkey::touchText(QWidget& widget)
{
    const QString text = textFor(widget);
    note(u"type "_s + nameOf(widget) + u' ' + shortened(text));
    const QPointer<QWidget> kept(&widget);
    pressAt(widget, widget.rect().center());
    if (kept && QApplication::activePopupWidget() == nullptr && (m_isCareful || m_dice.chance(70))) {
        pressKey(widget, Qt::Key_A, Qt::ControlModifier, u"\x01"_s);
    }
    if (kept) {
        typeText(widget, text);
    }
    if (kept && m_dice.chance(20)) {
        pressKey(widget, Qt::Key_Return, {}, u"\r"_s);
    }
}

void Monkey::touchItems(QWidget& widget)
{
    QAbstractItemView& view = *viewOf(widget);
    const QAbstractItemModel* model = view.model();
    const int rows = model ? model->rowCount(view.rootIndex()) : 0;
    const int columns = model ? model->columnCount(view.rootIndex()) : 0;
    if (rows == 0 || columns == 0) {
        pressAt(*view.viewport(), placeIn(*view.viewport()));
        return;
    }
    const QModelIndex index = model->index(m_dice.below(rows), m_dice.below(columns), view.rootIndex());
    view.scrollTo(index);
    const QPoint place = view.visualRect(index).center();
    note(u"item %1, %2 of "_s.arg(index.row()).arg(index.column()) + nameOf(view));
    if (m_dice.chance(15)) {
        pressTwice(*view.viewport(), place);
    } else {
        pressAt(*view.viewport(), place);
    }
    if (QWidget* editor = QApplication::focusWidget();
        editor && m_dice.chance(50) && editor->window() == view.window()) {
        const QString text = textFor(*editor);
        note(u"  type "_s + shortened(text));
        typeText(*editor, text);
    }
}

void Monkey::addFilledRow(QWidget& link)
{
    note(u"add a row "_s + nameOf(link));
    pressAt(link, link.rect().center());
    const auto& table = *link.parentWidget()->findChild<QTableWidget*>(u"BaseGrd"_s);
    const int row = table.rowCount() - 1;
    for (int column = 0; column < table.columnCount() - 1; ++column) { // the last one removes the row
        const QModelIndex cell = table.model()->index(row, column);
        pressAt(*table.viewport(), table.visualRect(cell).center());
        if (auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget())) {
            const QString text = textFor(*box);
            note(u"  type "_s + shortened(text));
            typeText(*box, text);
        }
    }
}

void Monkey::touchTree()
{
    CatalogueTree& tree = *m_window.parts().CategoriesAndProductsTree;
    QList<QModelIndex> all{QModelIndex()}; // each node behind its parent
    for (qsizetype at = 0; at < all.size() && all.size() < mostNodes; ++at) {
        const QModelIndex parent = all[at];
        for (int row = 0; row < tree.model()->rowCount(parent); ++row) {
            all << tree.model()->index(row, 0, parent);
        }
    }
    all.removeFirst();
    if (all.isEmpty() || !tree.isVisible()) {
        return;
    }
    const QModelIndex index = m_dice.pick(all);
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent()) {
        tree.expand(above);
    }
    tree.scrollTo(index);
    const QPoint place = tree.visualRect(index).center();
    note(u"node "_s + shortened(index.data().toString()));
    const QPoint elsewhere(m_dice.below(2 * tree.viewport()->width()), m_dice.below(tree.viewport()->height()));
    if (m_dice.chance(15)) {
        pressAt(*tree.viewport(), place, Qt::RightButton);
    } else if (m_dice.chance(10)) {
        pressTwice(*tree.viewport(), place, anyButton());
    } else if (m_dice.chance(10)) {
        note(u"  and drag"_s);
        drag(*tree.viewport(), place, elsewhere, anyButton());
    } else if (m_dice.chance(10)) {
        note(u"  and release elsewhere"_s);
        pressAndReleaseElsewhere(*tree.viewport(), place, elsewhere, anyButton());
    } else {
        pressAt(*tree.viewport(), place, anyButton());
    }
}

void Monkey::touchButton()
{
    QList<QWidget*> pictures;
    for (const ShortcartButton* button : m_window.findChildren<ShortcartButton*>()) {
        if (button->isVisible()) {
            pictures << button->findChild<QWidget*>(u"IconImg"_s);
        }
    }
    if (!pictures.isEmpty()) {
        touch(*m_dice.pick(pictures));
    }
}

// From field to field, and then one key.
void Monkey::walk(QWidget& root)
{
    const bool isForward = m_dice.chance(80);
    for (int step = m_dice.below(15); step >= 0; --step) {
        QWidget* focus = QApplication::focusWidget();
        if (!focus || focus->window() != root.window() || !focus->isVisible()) {
            break;
        }
        pressKey(*focus, isForward ? Qt::Key_Tab : Qt::Key_Backtab, isForward ? Qt::NoModifier : Qt::ShiftModifier,
                 isForward ? u"\t"_s : QString());
    }
    pressAnyKey(root);
}

void Monkey::pressAnyKey(QWidget& root)
{
    const Key& key = m_dice.pick(keys);
    if (m_isCareful && changesText(key)) {
        return;
    }
    QWidget* focus = QApplication::focusWidget();
    QWidget& target = focus && focus->window() == root.window() && focus->isVisible() ? *focus : root;
    note(u"key %1 "_s.arg(QKeySequence(QKeyCombination(key.modifiers, static_cast<Qt::Key>(key.key))).toString()) +
         nameOf(target));
    pressKey(target, key.key, key.modifiers, QString::fromLatin1(key.text));
}
