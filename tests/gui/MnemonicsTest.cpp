// A letter with Alt leads to one thing only: no two mnemonics that are on the screen together are the same, in every
// panel with the menu bar above it, in every dialog and in every menu.
#include "EveryScreen.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace {

class Mnemonics : public EveryScreen
{
protected:
    // The texts of a widget whose letters act.
    static QStringList textsOf(const QWidget& widget)
    {
        QStringList texts;
        if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
            texts << button->text();
        } else if (const auto* label = qobject_cast<const QLabel*>(&widget); label && label->buddy()) {
            texts << label->text();
        } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
            texts << group->title();
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab) {
                texts << tabs->tabText(tab);
            }
        } else if (qobject_cast<const QMenuBar*>(&widget) || qobject_cast<const QMenu*>(&widget)) {
            for (const QAction* action : widget.actions()) {
                texts << action->text();
            }
        }
        return texts;
    }
    void expectDifferent(const QStringList& texts)
    {
        QMap<QKeySequence, QString> taken;
        for (const QString& text : texts) {
            const QKeySequence key = QKeySequence::mnemonic(text);
            if (key.isEmpty()) {
                continue;
            }
            EXPECT_FALSE(taken.contains(key)) << key.toString().toStdString() << " is \"" << text.toStdString()
                                              << "\" and \"" << taken.value(key).toStdString() << '"';
            taken.insert(key, text);
            ++letters;
        }
    }
    void expectDifferentIn(const QWidget& shown)
    {
        QStringList texts;
        for (const QWidget* widget : shown.findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->window() == &shown) {
                texts << textsOf(*widget);
            }
        }
        expectDifferent(texts);
    }
    int letters = 0; // that were seen
};

TEST_F(Mnemonics, AreDifferentInEveryPanelOfTheCatalogue)
{
    inEachPanelOfTheCatalogue([this] { expectDifferentIn(*window); });
    EXPECT_GE(letters, 20); // two menus with each panel
}

TEST_F(Mnemonics, AreDifferentInEveryPanelOfTheDesign)
{
    inEachTabOfTheDesign([this] { expectDifferentIn(*window); });
    EXPECT_GE(letters, 60);
}

TEST_F(Mnemonics, AreDifferentInEveryDialog)
{
    inEachDialog([this](const QDialog& dialog) { expectDifferentIn(dialog); });
    EXPECT_GE(letters, 10);
}

TEST_F(Mnemonics, AreDifferentInEveryMenu)
{
    for (const char* name : {"mnuShop", "mnuTools", "mnuPopUp"}) {
        SCOPED_TRACE(name);
        expectDifferent(textsOf(*find<QMenu>(name)));
    }
    EXPECT_GE(letters, 5);
}

} // namespace
