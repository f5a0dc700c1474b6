// What the window shows of where one is, and where its signs stand.
#include "editors/Panel.h"
#include "editors/ScrollColumn.h"
#include "look/Theme.h"
#include "look/Tones.h"
#include "shell/ShortcartButton.h"
#include "support/WindowTest.h"

#include <QFile>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>

#include <set>

using namespace Qt::StringLiterals;

namespace {

class Look : public WindowTest
{
protected:
    void SetUp() override
    {
        useSampleShop();
        start();
    }
    void TearDown() override { showScheme(Scheme::Light); }

    QStringList currentButtons() const
    {
        QStringList names;
        for (const ButtonRow& row : buttonTable()) {
            const ShortcartButton* button = window->parts().buttons.value(row.name);
            if (button->isCurrent()) {
                names << button->objectName();
            }
        }
        return names;
    }
};

TEST_F(Look, MarksTheButtonsOfTheModeAndOfThePanelOnScreen)
{
    const struct
    {
        const char* node; // clicked first, or none
        const char* press;
        QStringList marked;
    } rows[] = {
        {"ID_SHOP", nullptr, {u"ProductCatalogSBtn"_s, u"ShopGeneralSBtn"_s}},
        {nullptr, "ShopTaxesSBtn", {u"ProductCatalogSBtn"_s, u"ShopTaxesSBtn"_s}},
        {"ID20", "ProductPriceSbtn", {u"ProductCatalogSBtn"_s, u"ProductPriceSbtn"_s}},
        // A button that makes something new leads to a panel, but is never the current one.
        {"ID2", "NewProductSBtn", {u"ProductCatalogSBtn"_s, u"ProductGeneralSBtn"_s}},
        {nullptr, "ShopDesignSBtn", {u"ShopDesignSBtn"_s, u"MainPageDesignSBtn"_s}},
        {nullptr, "FooterDesignSBtn", {u"ShopDesignSBtn"_s, u"FooterDesignSBtn"_s}},
        {nullptr, "PreviewBrowserSBtn", {u"PreviewBrowserSBtn"_s, u"FooterDesignSBtn"_s}},
        {nullptr, "ProductCatalogSBtn", {u"ProductCatalogSBtn"_s, u"ShopGeneralSBtn"_s}},
    };
    for (const auto& row : rows) {
        if (row.node) {
            clickNode(QLatin1String(row.node));
        }
        if (row.press) {
            click(row.press);
        }
        EXPECT_EQ(currentButtons(), row.marked) << (row.press ? row.press : row.node);
    }
}

TEST_F(Look, MarksAModeThatAMenuLeadsToAsOneThatAButtonDoes)
{
    trigger("mnuShopDesign");
    EXPECT_EQ(currentButtons(), (QStringList{u"ShopDesignSBtn"_s, u"MainPageDesignSBtn"_s}));
}

TEST_F(Look, DrawsGroundAndLineBehindTheCurrentButtonInBothLooks)
{
    auto* button = find<ShortcartButton>("ShopGeneralSBtn");
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        showScheme(scheme);
        QCoreApplication::processEvents();
        const QImage shown = button->grab().toImage();
        EXPECT_EQ(shown.pixelColor(8, shown.height() / 2), toneIn(scheme, Tone::Soft));
        EXPECT_EQ(shown.pixelColor(shown.width() / 2, shown.height() - 1), toneIn(scheme, Tone::Accent));
    }
}

TEST_F(Look, PutsTheBarOfAClickOverTheBottomLineFromTheStart)
{
    const QWidget* line = find("frmCopyright");
    EXPECT_GT(line->y(), 0);
    EXPECT_TRUE(line->geometry().contains(find("PrBar")->geometry().center()));
    EXPECT_EQ(find("PrBar")->x(), 5);
}

TEST_F(Look, GivesTheFrameOfASaveAnEdgeThatIsSeenInBothLooks)
{
    auto* frame = find<QFrame>("SaveProgressFrame");
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        showScheme(scheme);
        QCoreApplication::processEvents();
        const QImage shown = frame->grab().toImage();
        EXPECT_EQ(shown.pixelColor(shown.width() / 2, 0), toneIn(scheme, Tone::Edge));
        EXPECT_EQ(shown.pixelColor(8, shown.height() / 2), toneIn(scheme, Tone::Chrome));
    }
}

TEST_F(Look, DrawsALineWhereAPanelGoesOnBelow)
{
    click("ShopDesignSBtn");
    click("CategoryPageDesignSBtn");
    auto* column = window->VisibleFrame->findChild<ScrollColumn*>();
    ASSERT_NE(column, nullptr);
    const auto hasLine = [&](int height) {
        window->resize(1190, height);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        const QImage shown = column->grab().toImage();
        return shown.pixelColor(shown.width() / 2, shown.height() - 1) == tone(Tone::Line);
    };
    EXPECT_TRUE(hasLine(600));
    column->verticalScrollBar()->setValue(column->verticalScrollBar()->maximum());
    EXPECT_FALSE(hasLine(600));
    column->verticalScrollBar()->setValue(0);
    EXPECT_FALSE(hasLine(1400));
}

TEST_F(Look, GivesTheCalendarAnEdgeInBothLooks)
{
    click("ShopDiscountSBtn");
    window->VisibleFrame->findChild<QRadioButton*>(u"ApplyOpt"_s)->setChecked(true);
    QTest::mouseClick(window->VisibleFrame->findChild<QWidget*>(u"DateFromTxt"_s), Qt::LeftButton);
    auto* month = window->VisibleFrame->findChild<QWidget*>(u"DateMV"_s);
    ASSERT_TRUE(month->isVisible());
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        showScheme(scheme);
        QCoreApplication::processEvents();
        for (const double scale : {1.0, 1.5}) {
            QImage shown((QSizeF(month->size()) * scale).toSize(), QImage::Format_RGB32);
            shown.setDevicePixelRatio(scale);
            month->render(&shown);
            const QPoint middle = shown.rect().center();
            const QPoint last = shown.rect().bottomRight();
            for (int line = 0; line < qRound(scale); ++line) {
                for (const QPoint& place : {QPoint(line, middle.y()), QPoint(middle.x(), line),
                                            QPoint(last.x() - line, middle.y()), QPoint(middle.x(), last.y() - line)}) {
                    EXPECT_EQ(shown.pixelColor(place), toneIn(scheme, Tone::Edge)) << place.x() << ' ' << place.y();
                }
            }
        }
    }
    month->hide();
}

TEST(LookSheet, SaysTheColoursThatTheCodeHas)
{
    const QString sheet = QString::fromUtf8(fileBytes(QStringLiteral(TARNWICK_SOURCE_DIR "/docs/look.md")));
    static const QRegularExpression line(uR"re(^\| `([a-z-]+)` \| (#[0-9A-F]{6}) \|(?: (#[0-9A-F]{6}) \|)?)re"_s,
                                         QRegularExpression::MultilineOption);
    std::set<QString> told;
    auto lines = line.globalMatch(sheet);
    while (lines.hasNext()) {
        const QRegularExpressionMatch match = lines.next();
        told.insert(match.captured(1));
        bool isKnown = false;
        for (const ToneRow& row : toneTable()) {
            if (match.captured(1) == QLatin1String(row.name)) {
                isKnown = true;
                EXPECT_EQ(QColor(match.captured(2)), QColor::fromRgb(row.light)) << row.name;
                const QString dark = match.captured(3).isEmpty() ? match.captured(2) : match.captured(3);
                EXPECT_EQ(QColor(dark), QColor::fromRgb(row.dark)) << row.name;
            }
        }
        EXPECT_TRUE(isKnown) << match.captured(1).toStdString();
    }
    EXPECT_EQ(told.size(), toneTable().size());
}

TEST(LookSheet, HasItsColoursInTheOrderOfTheirNames)
{
    for (std::size_t place = 0; place < toneTable().size(); ++place) {
        EXPECT_EQ(static_cast<std::size_t>(toneTable()[place].tone), place) << toneTable()[place].name;
    }
}

} // namespace
