// The layout of the catalogue's panels: nothing is clipped, everything has a name, and the Tab key follows the eye.
#include "PanelTest.h"

#include <QApplication>
#include <QFontInfo>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

struct PanelStop
{
    const char* panel;
    const char* node;
    const char* option; // chosen ahead of the look, or none
};

constexpr PanelStop stops[] = {
    {"ShopGeneralPnl", "ID_SHOP", nullptr},
    {"ShopDiscountPnl", "ID_SHOP", "ApplyOpt"},
    {"ShopDiscountPnl", "ID_SHOP", "DependOpt"},
    {"ShopTaxesPnl", "ID_SHOP", "optSelectTax"},
    {"ShippingChargesPnl", "ID_SHOP", nullptr},
    {"ShopsShippingPnl", "ID_SHOP", nullptr},
    {"CategoryGeneralPnl", "ID2", nullptr},
    {"CategoryDiscountPnl", "ID2", "InheritOpt"},
    {"ProductGeneralPnl", "ID4", nullptr},
    {"ProductDiscountPnl", "ID4", "SpecificOpt"},
    {"ProductsMultipricePnl", "ID4", nullptr},
    {"ProductsRelatedPnl", "ID4", nullptr},
    {"ProductShippingCostsPnl", "ID4", "IndividualOpt"},
};

class Layout : public PanelTest
{
protected:
    // Shows each panel in turn and does the work on it.
    template <class Work>
    void forEachPanel(Work&& work)
    {
        shop().ShippingTypeName = std::make_shared<TextCollection>();
        shop().ShippingTypeDescription = std::make_shared<TextCollection>();
        for (const QString& name : {u"Post"_s, u"Courier"_s}) {
            shop().ShippingTypeName->Add(name);
            shop().ShippingTypeDescription->Add(name);
        }
        for (const PanelStop& stop : stops) {
            clickNode(QLatin1String(stop.node));
            showPanel(stop.panel);
            if (stop.option) {
                press(stop.option);
            }
            QCoreApplication::processEvents();
            SCOPED_TRACE(stop.panel);
            work(*window->VisibleFrame);
            window->ResetActivePanel();
        }
    }

    template <class Widget>
    static QList<Widget*> shown(const Panel& panel)
    {
        QList<Widget*> widgets = panel.findChildren<Widget*>();
        widgets.removeIf([](const Widget* widget) { return !widget->isVisible(); });
        return widgets;
    }
    static void expectNothingClipped(const Panel& panel, double scale)
    {
        EXPECT_FALSE(panel.findChild<QScrollArea*>()->horizontalScrollBar()->isVisible()) << scale;
        for (const QLabel* label : shown<QLabel>(panel)) {
            if (!label->wordWrap()) {
                EXPECT_GE(label->width(), label->sizeHint().width()) << scale << label->text().toStdString();
            }
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << scale << nameOf(label);
        }
        for (const QAbstractButton* button : shown<QAbstractButton>(panel)) {
            if (!button->text().isEmpty()) {
                EXPECT_GE(button->width(), button->sizeHint().width()) << scale << nameOf(button);
                EXPECT_GE(button->height(), button->sizeHint().height()) << scale << nameOf(button);
            }
        }
        for (const QLineEdit* field : shown<QLineEdit>(panel)) {
            if (field->objectName() != u"ForGridTxt"_s) {
                EXPECT_GE(field->height(), field->minimumSizeHint().height()) << scale << nameOf(field);
                EXPECT_GE(field->width(), field->fontMetrics().horizontalAdvance(u"12345"_s) + 8) << nameOf(field);
            }
        }
    }
    static std::string nameOf(const QWidget* widget)
    {
        return (QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName()).toStdString();
    }
};

TEST_F(Layout, ClipsNothingWithLettersOfAnySize)
{
    const QFont usual = QApplication::font();
    for (const double scale : {1.0, 1.5, 2.0}) {
        QFont font = usual;
        font.setPointSizeF(QFontInfo(usual).pointSizeF() * scale);
        QApplication::setFont(font);
        QFile::remove(files.folder().unsavedShopFile()); // else the start offers what the options have changed
        startAgain();
        window->resize(QSizeF(1190 * scale, 855 * scale).toSize());
        forEachPanel([&](const Panel& panel) { expectNothingClipped(panel, scale); });
    }
    QApplication::setFont(usual);
}

// What a screen of 1366x768 leaves at 150 %.
TEST_F(Layout, ClipsNothingOnASmallScreen)
{
    window->resize(911, 512);
    forEachPanel([&](const Panel& panel) { expectNothingClipped(panel, 1); });
}

TEST_F(Layout, GivesTheRoomOfALargeWindowToDescriptionsAndGrids)
{
    window->resize(1900, 1040);
    struct Row
    {
        const char* panel;
        const char* node;
        const char* grown;
        const char* above; // the field that stands right above it, or none
    };
    for (const Row& row : {Row{"CategoryGeneralPnl", "ID2", "CategoryDescriptionTxt", "CategoryNameTxt"},
                           Row{"ProductGeneralPnl", "ID4", "ProductDescriptionTxt", "ProductNameTxt"},
                           Row{"ShopGeneralPnl", "ID_SHOP", "lstCountries", "CountriesFilterTxt"},
                           Row{"ProductsMultipricePnl", "ID4", "MultipriceGrd", nullptr},
                           Row{"ShopTaxesPnl", "ID_SHOP", "TaxGrd", nullptr}}) {
        SCOPED_TRACE(row.panel);
        clickNode(QLatin1String(row.node));
        showPanel(row.panel);
        QCoreApplication::processEvents();
        const auto* grown = in(row.grown);
        EXPECT_GT(grown->height(), 250);
        EXPECT_GT(grown->width(), 1300);
        if (row.above) {
            const auto* above = in(row.above);
            const int end = above->mapTo(window.get(), QPoint(0, above->height())).y();
            EXPECT_LE(grown->mapTo(window.get(), QPoint()).y() - end, 16) << "the rows are spread out";
        }
    }
}

TEST_F(Layout, NamesEveryFieldAndGroup)
{
    forEachPanel([](const Panel& panel) {
        EXPECT_FALSE(panel.accessibleName().isEmpty());
        const QList<QGroupBox*> groups = shown<QGroupBox>(panel);
        EXPECT_FALSE(groups.isEmpty());
        for (const QGroupBox* group : groups) {
            EXPECT_FALSE(group->title().isEmpty());
        }
        for (const QWidget* widget : shown<QWidget>(panel)) {
            const bool isField =
                qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
                (qobject_cast<const QAbstractItemView*>(widget) && !qobject_cast<const QHeaderView*>(widget));
            if (isField) {
                EXPECT_FALSE(widget->accessibleName().isEmpty()) << nameOf(widget);
                EXPECT_FALSE(widget->objectName().isEmpty()) << nameOf(widget);
            }
        }
        for (const QLabel* label : shown<QLabel>(panel)) {
            if (label->buddy()) {
                EXPECT_TRUE(label->buddy()->isVisible()) << label->text().toStdString();
                EXPECT_EQ(label->text(), label->buddy()->accessibleName());
            }
        }
    });
}

TEST_F(Layout, ScrollsThePanelUnderTheWheelOverANumberField)
{
    window->resize(900, 420);
    for (const auto& [panel, node, field] : {std::tuple{"ProductGeneralPnl", "ID4", "ProductPriceTxt"},
                                             std::tuple{"ShopDiscountPnl", "ID_SHOP", "ApplyTxt"}}) {
        clickNode(QLatin1String(node));
        showPanel(panel);
        QCoreApplication::processEvents();
        auto* number = in<QLineEdit>(field);
        auto* scrolled = window->VisibleFrame->findChild<QScrollArea*>();
        scrolled->ensureWidgetVisible(number);
        const QString text = number->text();
        const int before = scrolled->verticalScrollBar()->value();
        ASSERT_GT(scrolled->verticalScrollBar()->maximum(), 0) << panel;
        const int way = before == 0 ? -120 : 120;
        QWheelEvent wheel(QPointF(5, 5), number->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, way), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&wheel); // only such go on to the widgets around
        qApp->notify(number, &wheel);              // sendEvent would take that back
        EXPECT_NE(scrolled->verticalScrollBar()->value(), before) << panel;
        EXPECT_EQ(number->text(), text);
    }
}

TEST_F(Layout, LetsTheTabKeyFollowTheEye)
{
    window->resize(1190, 1000);
    forEachPanel([&](const Panel& panel) {
        QPoint last(0, -1);
        int stopCount = 0;
        const QWidget* first = panel.findChild<QWidget*>(u"PanelFrame"_s);
        for (const QWidget* widget = first->nextInFocusChain(); widget != first; widget = widget->nextInFocusChain()) {
            if (!panel.isAncestorOf(widget) || !widget->isVisible() || !widget->isEnabled() ||
                !(widget->focusPolicy() & Qt::TabFocus)) {
                continue;
            }
            const QPoint place = widget->mapTo(&panel, widget->rect().topLeft());
            const bool isRightOfIt = place.x() > last.x();
            EXPECT_TRUE(place.y() > last.y() - 6 || isRightOfIt) << nameOf(widget) << " stands above the one before it";
            last = place;
            ++stopCount;
        }
        EXPECT_GE(stopCount, 2);
    });
}

} // namespace
