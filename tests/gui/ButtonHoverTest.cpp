// How the buttons light up under the mouse, over the whole table of their pictures.
#include "shell/ButtonPictures.h"
#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"
#include "support/WindowTest.h"

#include <QCoreApplication>
#include <QIcon>
#include <QLabel>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace {

struct ExpectedPicture
{
    const char* title;
    const char* outside;
    const char* inside;
};

const ExpectedPicture expectedPictures[] = {
    {"Remove", "154", "154"},
    {"Remove Category", "113", "113"},
    {"Add new product", "114", "114"},
    {"Add new category", "125", "125"},
    {"related Products", "105", "205"},
    {"Multiple Prices", "104", "204"},
    {"Save The Shop", "131", "231"},
    {"Upload The Shop", "132", "232"},
    {"Products Catalog", "133", "233"},
    {"The Shop Design and Layout", "134", "234"},
    {"The Shop Preview", "135", "235"},
    {"Shop General Properties", "151", "251"},
    {"Category General Properties", "151", "251"},
    {"Product General Properties", "151", "251"},
    {"Taxes", "152", "252"},
    {"Shop Discount Properties", "153", "253"},
    {"Category Discount Properties", "153", "253"},
    {"Product Discount Properties", "153", "253"},
    {"Shipping Charges", "123", "223"},
    {"Shipping Types", "shipping type.bmp", "shipping type_color.bmp"},
    {"Shipping Costs", "ship_costs.bmp", "ship_costs_color.bmp"},
    {"Product Shipping Costs", "ship_costs.bmp", "ship_costs_color.bmp"},
};

QImage pictureOf(const QString& file, QSize size)
{
    return QIcon(file).pixmap(size).toImage();
}

class ButtonHover : public WindowTest
{
protected:
    void SetUp() override
    {
        useShop("<Version>1.2.0</Version><Name>Fern</Name><SelectedCountries/>");
        start();
    }

    static QLabel* pictureLabel(const ShortcartButton* button) { return button->findChild<QLabel*>(u"IconImg"_s); }

    // Moves the mouse to a position of the button's picture.
    static void moveTo(const ShortcartButton* button, const QPoint& place) { moveOver(pictureLabel(button), place); }

    static void moveOver(QWidget* widget, const QPoint& place)
    {
        QMouseEvent move(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(widget, &move);
    }

    static QImage shown(const ShortcartButton* button) { return pictureLabel(button)->pixmap().toImage(); }

    static QImage builtIn(const ShortcartButton* button, const char* name)
    {
        const QPixmap pixmap = pictureLabel(button)->pixmap();
        return pictureOf(u":/icons/%1.svg"_s.arg(QLatin1String(name)), pixmap.size() / pixmap.devicePixelRatio());
    }

    // A button with this title, made as the program makes its own.
    std::unique_ptr<ShortcartButton> makeButton(const char* title)
    {
        const ButtonRow row{
            ButtonName::ShopTaxesSBtn, ButtonFrame::ShopToolbar, title, std::nullopt, PanelCode::Show, "114"};
        auto button = std::make_unique<ShortcartButton>(row, files.folder(), window->session().log, nullptr);
        button->resize(120, 100);
        button->show();
        QCoreApplication::processEvents();
        return button;
    }
};

TEST_F(ButtonHover, TakesBothPicturesFromTheTableByTheTitle)
{
    QImage picture(48, 48, QImage::Format_RGB32);
    int shade = 0;
    for (const char* file :
         {"shipping type.bmp", "shipping type_color.bmp", "ship_costs.bmp", "ship_costs_color.bmp"}) {
        picture.fill(QColor(shade += 50, 100, 100));
        ASSERT_TRUE(picture.save(files.path(u"pictures/%1"_s.arg(QLatin1String(file)))));
    }
    ASSERT_EQ(buttonPictureTable().size(), std::size(expectedPictures));
    for (const ExpectedPicture& expected : expectedPictures) {
        SCOPED_TRACE(expected.title);
        const auto button = makeButton(expected.title);
        const auto expectedImage = [&](const char* name) {
            return QByteArray(name).endsWith(".bmp")
                       ? pictureOf(files.path(u"pictures/%1"_s.arg(QLatin1String(name))), QSize(48, 48))
                       : builtIn(button.get(), name);
        };
        moveTo(button.get(), QPoint(60, 24));
        EXPECT_EQ(shown(button.get()), expectedImage(expected.inside));
        moveTo(button.get(), QPoint(60, 5));
        EXPECT_EQ(shown(button.get()), expectedImage(expected.outside));
    }
}

TEST_F(ButtonHover, HasDifferentPicturesForInsideAndOutside)
{
    constexpr QSize size(48, 48);
    for (const ExpectedPicture& expected : expectedPictures) {
        if (QByteArray(expected.outside).endsWith(".bmp")) {
            continue; // the shop's own files
        }
        const QImage outside = pictureOf(u":/icons/%1.svg"_s.arg(QLatin1String(expected.outside)), size);
        const QImage inside = pictureOf(u":/icons/%1.svg"_s.arg(QLatin1String(expected.inside)), size);
        EXPECT_EQ(outside.size(), size) << expected.title;
        EXPECT_EQ(outside == inside, qstrcmp(expected.outside, expected.inside) == 0) << expected.title;
    }
}

TEST_F(ButtonHover, ShowsTheOutsidePictureNearTheEdges)
{
    const auto button = makeButton("Taxes");
    const std::pair<QPoint, bool> places[] = {
        {{10, 10}, true}, {{9, 24}, false}, {{60, 9}, false}, {{107, 24}, true}, {{108, 24}, false}, {{60, 40}, true},
    };
    for (const auto& [place, inside] : places) {
        moveTo(button.get(), QPoint(60, 24));
        moveTo(button.get(), place);
        EXPECT_EQ(shown(button.get()), builtIn(button.get(), inside ? "252" : "152")) << place.x() << ',' << place.y();
    }
}

TEST_F(ButtonHover, DrawsNoPictureAnewThatIsShownAlready)
{
    const auto button = makeButton("Taxes");
    const auto drawn = [&] { return pictureLabel(button.get())->pixmap().cacheKey(); };
    for (const QPoint& place : {QPoint(60, 24), QPoint(60, 5)}) { // inside and outside
        moveTo(button.get(), place);
        const qint64 before = drawn();
        moveTo(button.get(), place + QPoint(1, 0));
        EXPECT_EQ(drawn(), before);
        moveTo(button.get(), QPoint(60, 24));
    }
    button->OnMouseMove(0, 0);
    const qint64 dark = drawn();
    button->OnMouseMove(0, 0);
    EXPECT_EQ(drawn(), dark);
}

TEST_F(ButtonHover, KeepsThePictureOfATitleThatIsNotInTheTableAndShowsTheHand)
{
    const auto button = makeButton("Remove product");
    const QImage before = shown(button.get());
    moveTo(button.get(), QPoint(60, 24));
    EXPECT_EQ(shown(button.get()), before);
    EXPECT_EQ(pictureLabel(button.get())->cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(ButtonHover, EndsForEightButtonsWhenTheMouseMovesOverTheWindow)
{
    const QStringList darkening = {u"ShopTaxesSBtn"_s,      u"ShopDiscountSBtn"_s,    u"ShopGeneralSBtn"_s,
                                   u"PreviewBrowserSBtn"_s, u"ShopDesignSBtn"_s,      u"ProductCatalogSBtn"_s,
                                   u"SaveShopSBtn"_s,       u"CategoryDiscountSBtn"_s};
    for (QWidget* surface :
         {find("ToolbarFrame"), find("ShopToolbar"), window->parts().CategoriesAndProductsTree->viewport(),
          find("ToolbarFrame")->parentWidget()}) {
        SCOPED_TRACE(surface->objectName().toStdString());
        // Buttons of hidden toolbars would have no size.
        find("CategoryToolbar")->show();
        find("ProductToolbar")->show();
        QCoreApplication::processEvents();
        for (auto* button : window->findChildren<ShortcartButton*>()) {
            const ButtonPictureRow* pictures = buttonPicturesOf(button->ShortCartTitle());
            if (!pictures) {
                continue;
            }
            moveTo(button, QPoint(button->width() / 2, 24));
            ASSERT_EQ(shown(button), builtIn(button, pictures->inside)) << button->objectName().toStdString();
        }
        moveOver(surface, QPoint(surface->width() - 3, surface->height() - 3));
        for (auto* button : window->findChildren<ShortcartButton*>()) {
            if (const ButtonPictureRow* pictures = buttonPicturesOf(button->ShortCartTitle())) {
                const bool dark = darkening.contains(button->objectName());
                EXPECT_EQ(shown(button), builtIn(button, dark ? pictures->outside : pictures->inside))
                    << button->objectName().toStdString();
            }
        }
    }
}

TEST_F(ButtonHover, EndsOnAnyReportOfTheParentWhateverThePosition)
{
    const auto button = makeButton("Taxes");
    for (const QPoint place : {QPoint(500, 500), QPoint(-1, -1), QPoint(60, 24)}) {
        moveTo(button.get(), QPoint(60, 25));
        moveTo(button.get(), QPoint(60, 24));
        ASSERT_EQ(shown(button.get()), builtIn(button.get(), "252"));
        button->OnMouseMove(place.x(), place.y());
        EXPECT_EQ(shown(button.get()), builtIn(button.get(), "152"));
    }
}

} // namespace
