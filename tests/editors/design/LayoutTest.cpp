// The layout of the managers: nothing is cut off at any size, and the tab key follows the order of reading.
#include "DesignTest.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QImage>
#include <QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class DesignLayout : public DesignTest, public testing::WithParamInterface<ManagerCase>
{
protected:
    void SetUp() override
    {
        openDesign();
        openManager(GetParam().button);
    }

    // The names of the panel's visible controls in the order of the tab key.
    QStringList tabOrder() const
    {
        QStringList names;
        QWidget* panel = window->VisibleFrame;
        QWidget* widget = panel;
        do {
            widget = widget->nextInFocusChain();
            if (panel->isAncestorOf(widget) && widget->isVisible() && widget->isEnabled() && !widget->focusProxy() &&
                (widget->focusPolicy() & Qt::TabFocus) != 0) {
                names << widget->objectName();
            }
        } while (widget != panel);
        return names;
    }
};

INSTANTIATE_TEST_SUITE_P(Managers, DesignLayout, testing::ValuesIn(managers),
                         [](const auto& row) { return std::string(row.param.page); });

TEST_P(DesignLayout, CutsNothingOffAtAnySizeOfTheWindow)
{
    for (const QSize& size : {QSize(1400, 900), QSize(1190, 855), QSize(800, 600), QSize(640, 480)}) {
        window->resize(size);
        for (const Tab tab : {PageTab, TemplateTab}) {
            showTab(tab);
            QCoreApplication::processEvents();
            QCoreApplication::processEvents();
            for (const QWidget* widget : window->VisibleFrame->findChildren<QWidget*>()) {
                const auto* label = qobject_cast<const QLabel*>(widget);
                if (!widget->isVisible() || (!label && !qobject_cast<const QAbstractButton*>(widget) &&
                                             !qobject_cast<const QLineEdit*>(widget))) {
                    continue;
                }
                const std::string name = widget->objectName().toStdString();
                const QSize least = widget->minimumSizeHint();
                EXPECT_GE(widget->width(), least.width()) << name << " at " << size.width();
                const bool wraps = label && label->wordWrap();
                EXPECT_GE(widget->height(), wraps ? label->heightForWidth(label->width()) : least.height())
                    << name << " at " << size.width();
            }
        }
    }
}

class FirstShowing : public DesignTest, public testing::WithParamInterface<ManagerCase>
{
};

INSTANTIATE_TEST_SUITE_P(Managers, FirstShowing, testing::ValuesIn(managers),
                         [](const auto& row) { return std::string(row.param.page); });

TEST_P(FirstShowing, HasEverythingInItsPlaceBeforeAnyEventRuns)
{
    openDesign();
    window->resize(900, 560); // the styles wrap, and the panel scrolls
    QCoreApplication::processEvents();
    click(GetParam().button);
    const QImage first = window->VisibleFrame->grab().toImage();
    for (int turn = 0; turn < 5; ++turn) {
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(first, window->VisibleFrame->grab().toImage());
}

TEST_P(DesignLayout, EndsGroupsColumnsAndButtonsInOneLine)
{
    for (const int width : {1190, 1191, 1192}) { // with and without a remainder for three columns
        window->resize(width, 1300);             // nothing scrolls
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        const QWidget* panel = window->VisibleFrame;
        const auto endOf = [panel](const QWidget* widget) {
            return widget->mapTo(panel, QPoint(widget->width(), 0)).x();
        };
        const int end = endOf(in("imgButtonReset"));
        int lastStyle = 0;
        int styles = 0;
        for (const QAbstractButton* button : panel->findChildren<QAbstractButton*>()) {
            if (button->objectName().startsWith(u"btnCSS_"_s)) {
                EXPECT_EQ(endOf(button->parentWidget()), end);
                lastStyle = std::max(lastStyle, endOf(button));
                ++styles;
            }
        }
        if (styles >= 3) {
            EXPECT_EQ(lastStyle, end) << width;
        }
    }
}

TEST_P(DesignLayout, LeadsTheTabKeyFromTopToBottom)
{
    if (qstrcmp(GetParam().page, "custompage") == 0) {
        const QStringList order = tabOrder();
        const qsizetype first = order.indexOf(u"CustomPagesListCtl"_s);
        EXPECT_EQ(order.mid(first, 4), (QStringList{u"CustomPagesListCtl"_s, u"AddPageBtn"_s, u"DeletePageBtn"_s,
                                                    u"btnCSS_general_custom_pages"_s}));
        return;
    }
    window->resize(1400, 1300); // nothing scrolls
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QPoint last(-1, -1);
    for (const QString& name : tabOrder()) {
        const QWidget* widget = in(name.toLatin1().constData());
        const QPoint place = widget->mapTo(window->VisibleFrame, QPoint(0, widget->height() / 2));
        EXPECT_TRUE(place.y() > last.y() + 8 || (place.y() > last.y() - 8 && place.x() > last.x()))
            << tabOrder().join(u' ').toStdString();
        last = place;
    }
    EXPECT_EQ(tabOrder().last(), u"imgButtonReset"_s);
}

} // namespace
