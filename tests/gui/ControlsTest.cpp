// Every panel and every dialog in turn: what a screen reader would say of each control, whether it is large enough to
// be hit, and what Enter and Esc do.
#include "editors/Panel.h"
#include "shell/ShortcartButton.h"
#include "support/WindowTest.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSettings>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Work = std::function<void(QWidget& shown)>;

// How to come to each dialog: in the catalogue or on a page of the design, and what to press there.
struct DialogCase
{
    const char* dialog;
    const char* modeButton;
    const char* panelButton; // none: the first panel of the mode
    const char* control;     // none: a menu entry opens it
};
constexpr DialogCase dialogs[] = {
    {"frmSelectImage", "ProductCatalogSBtn", nullptr, "BrowseBtnLbl"},
    {"frmSelectImageOrText", "ShopDesignSBtn", "HeaderDesignSBtn", "lblLogo"},
    {"frmSelectedCustomPages", "ShopDesignSBtn", "HeaderDesignSBtn", "lblSelectedCustomPageBttn"},
    {"CSSManagementForm", "ShopDesignSBtn", "HeaderDesignSBtn", "btnCSS_general_header"},
    {"frmUpload", "ProductCatalogSBtn", nullptr, nullptr},
};

constexpr int leastTarget = 24; // pixels

std::string nameOf(const QWidget& widget)
{
    return (QLatin1String(widget.metaObject()->className()) + u' ' + widget.objectName()).toStdString();
}

// Parts of Qt's own widgets, such as the corner of a table or what clears a field, belong to their widget.
bool isPart(const QWidget& widget)
{
    const QWidget* owner = widget.parentWidget();
    return widget.objectName().startsWith(u"qt_") || qobject_cast<const QHeaderView*>(&widget) ||
           qobject_cast<const QAbstractItemView*>(owner) || qobject_cast<const QComboBox*>(owner) ||
           qobject_cast<const QLineEdit*>(owner);
}

// What a person can press, write in or choose from.
bool isControl(const QWidget& widget)
{
    return widget.isVisible() && !isPart(widget) && !qobject_cast<const QScrollBar*>(&widget) &&
           (qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const ShortcartButton*>(&widget) ||
            (widget.focusPolicy() & Qt::TabFocus) != 0);
}

QList<QWidget*> controlsOf(const QWidget& shown)
{
    QList<QWidget*> controls = shown.findChildren<QWidget*>();
    controls.removeIf([](const QWidget* widget) { return !isControl(*widget); });
    return controls;
}

class EveryControl : public WindowTest
{
protected:
    void SetUp() override
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, files.path(u"settings"_s));
        useSampleShop();
        start();
    }

    // Shows each panel, those without a button too, and a design panel once with each of its tabs.
    void inEachPanel(const Work& work)
    {
        const std::pair<const char*, QString> nodes[] = {
            {"Shop", u"ID_SHOP"_s}, {"Shipping", u"ID_SHOP"_s}, {"Category", u"ID2"_s}, {"Product", u"ID20"_s}};
        int panels = 0;
        const auto show = [&](Panel* panel) {
            SCOPED_TRACE(panel->objectName().toStdString());
            window->ShowFrame(panel, PanelCode::Show);
            ++panels;
            auto* tabs = panel->findChild<QTabWidget*>();
            for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
                if (tabs) {
                    tabs->setCurrentIndex(tab);
                }
                QCoreApplication::processEvents();
                ASSERT_TRUE(panel->isVisible());
                work(*panel);
            }
        };
        for (Panel* panel : find("MainFrame")->findChildren<Panel*>()) {
            for (const auto& [prefix, key] : nodes) {
                if (panel->objectName().startsWith(QLatin1String(prefix))) {
                    clickNode(key);
                    show(panel);
                    break;
                }
            }
        }
        click("ShopDesignSBtn");
        for (Panel* panel : find("ShopDesignFrame")->findChildren<Panel*>()) {
            show(panel);
        }
        EXPECT_EQ(panels, window->findChildren<Panel*>().size());
    }

    // Opens the dialog, does the work in it and closes it where the work did not.
    void inDialog(const DialogCase& row, const Work& work)
    {
        click(row.modeButton);
        if (row.panelButton) {
            click(row.panelButton);
            window->VisibleFrame->findChild<QTabWidget*>()->setCurrentIndex(0);
        } else {
            clickNode(u"ID20"_s);
        }
        QCoreApplication::processEvents();
        bool isDone = false;
        QTimer::singleShot(0, window.get(), [&] { // a dialog may run a loop of its own
            const QPointer<QWidget> dialog = QApplication::activeModalWidget();
            ASSERT_TRUE(dialog);
            EXPECT_EQ(dialog->objectName(), QLatin1String(row.dialog));
            work(*dialog);
            if (dialog && dialog->isVisible()) {
                qobject_cast<QDialog*>(dialog)->reject();
            }
            isDone = true;
        });
        if (row.control) {
            auto* control = window->VisibleFrame->findChild<QAbstractButton*>(QLatin1String(row.control));
            ASSERT_NE(control, nullptr) << row.control;
            control->click();
        } else {
            trigger("mnuUpload");
        }
        QCoreApplication::processEvents();
        EXPECT_TRUE(isDone) << row.dialog;
    }

    void everywhere(const Work& work)
    {
        inEachPanel(work);
        for (const DialogCase& row : dialogs) {
            SCOPED_TRACE(row.dialog);
            inDialog(row, work);
        }
    }
};

TEST_F(EveryControl, HasANameForAScreenReader)
{
    int count = 0;
    everywhere([&count](QWidget& shown) {
        EXPECT_FALSE((shown.accessibleName() + shown.windowTitle()).isEmpty()) << nameOf(shown);
        for (QWidget* control : controlsOf(shown)) {
            if (qobject_cast<QTabWidget*>(control) || qobject_cast<QTabBar*>(control)) {
                continue; // each tab has a name of its own
            }
            QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(control);
            EXPECT_FALSE(!spoken || spoken->text(QAccessible::Name).isEmpty()) << nameOf(*control);
            ++count;
        }
    });
    EXPECT_GT(count, 400);
}

TEST_F(EveryControl, HasANameOnTheWindowItselfToo)
{
    for (QWidget* control : controlsOf(*window)) {
        if (!qobject_cast<QTabWidget*>(control) && !qobject_cast<QTabBar*>(control)) {
            QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(control);
            EXPECT_FALSE(!spoken || spoken->text(QAccessible::Name).isEmpty()) << nameOf(*control);
        }
    }
}

TEST_F(EveryControl, IsLargeEnoughToBeHit)
{
    everywhere([](QWidget& shown) {
        for (QWidget* control : controlsOf(shown)) {
            EXPECT_GE(control->width(), leastTarget) << nameOf(*control);
            EXPECT_GE(control->height(), leastTarget) << nameOf(*control);
            if (const auto* view = qobject_cast<QAbstractItemView*>(control);
                view && view->model() && view->model()->rowCount() > 0) {
                EXPECT_GE(view->visualRect(view->model()->index(0, 0)).height(), leastTarget) << nameOf(*control);
            }
            if (const auto* bar = qobject_cast<QTabBar*>(control)) {
                for (int tab = 0; tab < bar->count(); ++tab) {
                    EXPECT_GE(bar->tabRect(tab).height(), leastTarget) << nameOf(*control);
                }
            }
        }
    });
}

TEST_F(EveryControl, HasItsLabelBesideItOnTheSameHeightInEveryDialog)
{
    int labels = 0;
    for (const DialogCase& row : dialogs) {
        inDialog(row, [&](QWidget& shown) {
            for (const QLabel* label : shown.findChildren<QLabel*>()) {
                const QWidget* field = label->buddy();
                if (!field || !label->isVisible()) {
                    continue;
                }
                const auto placeOf = [&shown](const QWidget& widget) {
                    return QRect(widget.mapTo(&shown, QPoint()), widget.size());
                };
                const QRect words = placeOf(*label);
                const QRect place = placeOf(*field);
                if (words.bottom() > place.top() && place.height() < 2 * words.height()) { // beside, not above
                    EXPECT_NEAR(words.center().y(), place.center().y(), 1) << label->text().toStdString();
                    ++labels;
                }
            }
        });
    }
    EXPECT_GE(labels, 5);
}

// The upload's dialog, whose Enter starts a transfer, has tests of its own.
TEST_F(EveryControl, TakesEnterForTheDefaultButtonAndEscForCancelInEveryDialog)
{
    for (const DialogCase& row : dialogs) {
        if (QLatin1String(row.dialog) == "frmUpload"_L1) {
            continue;
        }
        for (const auto& [key, expected] :
             {std::pair(Qt::Key_Return, QDialog::Accepted), std::pair(Qt::Key_Escape, QDialog::Rejected)}) {
            qsizetype count = 1;
            for (qsizetype i = 0; i < count; ++i) {
                inDialog(row, [&, key = key, expected = expected](QWidget& shown) {
                    int result = -1;
                    QObject::connect(qobject_cast<QDialog*>(&shown), &QDialog::finished, &shown,
                                     [&result](int code) { result = code; });
                    if (auto* list = shown.findChild<QAbstractItemView*>(u"lstImages"_s)) {
                        list->setCurrentIndex(list->model()->index(0, 0)); // without a picture there is nothing to take
                    }
                    QList<QWidget*> controls = controlsOf(shown);
                    controls.removeIf([](const QWidget* control) { return !control->isEnabled(); });
                    count = controls.size();
                    QWidget* control = controls.at(i);
                    const std::string name = nameOf(*control);
                    control->setFocus();
                    QTest::keyClick(control, key);
                    EXPECT_EQ(result, expected) << row.dialog << ", " << name << ", key " << key;
                });
            }
            EXPECT_GT(count, 3) << row.dialog;
        }
    }
}

} // namespace
