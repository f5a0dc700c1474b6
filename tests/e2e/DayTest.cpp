// A shop owner's day, from the start of the program to the restart after a restore: the real window, the real browser
// and a real server. What was done in the morning must be there in the evening. The day passes twice, once with the
// mouse and once by the keyboard alone.
#include "e2e/OwnersDay.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"
#include "shell/CatalogueTree.h"
#include "shell/browser/PreviewBrowser.h"
#include "support/KeyHands.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTest>
#include <QWebEngineView>

using namespace Qt::StringLiterals;

namespace {

constexpr int importedProducts = 200;

class Day : public OwnersDay
{
public:
    void importProducts();
    void editPricesAndDiscounts();
    void addCategoryWithPicture();
    void designPages();
    void writeCustomPage();
    void walkThePreview();
    void saveAndBackUp();
    void publish();
    void spoilAndRestore();
    void expectTheShopAsItWas();
};

void Day::importProducts()
{
    QByteArray lines;
    for (int product = 1; product <= importedProducts; ++product) {
        const QByteArray number = QByteArray::number(product);
        lines += "\"Candle " + number + "\",\"Beeswax, number " + number + "\",Light\\Candles\n";
    }
    writeFile(files.path(u"candles.txt"_s), lines);
    const int before = shop().GetProductCount();
    prompts.answerFile(files.path(u"candles.txt"_s));
    trigger("mnuImport");
    EXPECT_EQ(shop().GetProductCount(), before + importedProducts);
    ASSERT_FALSE(keyOf(u"Candle 200"_s).isEmpty());
}

void Day::editPricesAndDiscounts()
{
    clickNode(keyOf(u"Candle 7"_s));
    type("ProductPriceTxt", localised(u"12.50"_s));
    submit();
    click("ProductDiscountSBtn");
    press("NoDiscountOpt");
    submit();

    clickNode(keyOf(u"Candle 8"_s));
    type("ProductPriceTxt", u"40"_s);
    submit();
    click("ProductDiscountSBtn");
    press("SpecificOpt");
    type("SpecificTxt", u"25"_s);
    submit();
    const auto candle = window->session().objects.Product(keyOf(u"Candle 8"_s).mid(2));
    EXPECT_EQ(candle->Price()->NewPrice(candle->Price()->Value), u"30"_s);
}

void Day::addCategoryWithPicture()
{
    QDir().mkpath(files.path(u"photos"_s));
    QImage photo(120, 90, QImage::Format_RGB32);
    photo.fill(Qt::darkYellow);
    ASSERT_TRUE(photo.save(files.path(u"photos/lantern.png"_s)));

    clickNode(u"ID_SHOP"_s);
    click("ShopNewCategorySBtn");
    type("CategoryNameTxt", u"Lanterns"_s);
    prompts.answerFile(files.path(u"photos/lantern.png"_s));
    inNextDialog([this](const QDialog& dialog) {
        press(part(dialog, "AddBttn"));
        press(part(dialog, "OkBtn"));
    });
    press("BrowseBtnLbl");
    submit();
    const auto category = window->session().objects.Category(keyOf(u"Lanterns"_s).mid(2));
    EXPECT_EQ(category->selectedImage()->imageFileName, u"lantern.png"_s);
    EXPECT_TRUE(QFile::exists(files.path(u"pictures/lantern.png"_s)));
}

void Day::designPages()
{
    click("ShopDesignSBtn");
    type("txtPageHeader", u"Good evening"_s);
    submit();

    click("FooterDesignSBtn");
    auto* tabs = in<QTabWidget>("PagesTab");
    openTab(tabs, 1);
    prompts.answerYesNo(u"Ambrel eCommerce Software"_s, u"Are you sure you want to switch to advanced mode?"_s, true);
    tick(in<QCheckBox>("AdvancedCh"));
    append(in<QPlainTextEdit>("TemplateTxt"), u"<p id=\"by-hand\">Made by hand</p>"_s);
    press("SaveTemplteBtn");
    openTab(tabs, 0);
}

void Day::writeCustomPage()
{
    click("CustomPagesDesignSBtn");
    press("AddPageBtn");
    type("PageNameTextCtl", u"Größe der Lichter"_s);
    append(in<QPlainTextEdit>("PageContentTextCtl"), u"<p id=\"sizes\">From 3 to 30 hours, that is all.</p>"_s);
    submit();

    click("MenuDesignSBtn");
    press("lblSelectedCustomPageBttn");
    QDialog* dialog = nullptr;
    for (QDialog* shown : window->findChildren<QDialog*>(u"frmSelectedCustomPages"_s)) {
        dialog = shown->isVisible() ? shown : dialog;
    }
    ASSERT_NE(dialog, nullptr);
    auto* pages = dialog->findChild<QListWidget*>(u"lstSelectedPages"_s);
    const QList<QListWidgetItem*> rows = pages->findItems(u"Größe der Lichter"_s, Qt::MatchExactly);
    ASSERT_EQ(rows.size(), 1);
    if (byKeys()) {
        KeyHands::tabTo(pages);
        for (int row = 0; row < pages->count() && pages->currentItem() != rows.front(); ++row) {
            QTest::keyClick(pages, Qt::Key_Down);
        }
        ASSERT_EQ(pages->currentItem(), rows.front());
    } else {
        pages->setCurrentItem(rows.front());
    }
    if (rows.front()->checkState() != Qt::Checked) {
        QTest::keyClick(pages, Qt::Key_Space);
    }
    EXPECT_EQ(rows.front()->checkState(), Qt::Checked);
    press(part(*dialog, "OkBtn"));
    submit();
}

void Day::walkThePreview()
{
    click("PreviewBrowserSBtn");
    ASSERT_TRUE(waitUntil([this] { return visitor.shows(u"Good evening"_s); }));
    EXPECT_EQ(visitor.textOf(u"#by-hand"_s), u"Made by hand"_s);
    if (byKeys()) {
        KeyHands::tabTo(browser->view()->focusProxy());
    }
    visit(u"a[href='http://previewmode/ACTION=custompage.php&name=Größe der Lichter']"_s);
    EXPECT_EQ(visitor.textOf(u"#sizes"_s), u"From 3 to 30 hours, that is all."_s);

    fillIn(u"header input[name=what]"_s, u"candle"_s);
    visit(u"header form [type=submit]"_s);
    const QString product =
        u"main a[href='http://previewmode/ACTION=product.php&id=%1']"_s.arg(keyOf(u"Candle 7"_s).mid(2));
    visit(product);
    fillIn(u"form.buy input[name=quantity]"_s, u"2"_s);
    visit(u"form.buy [type=submit]"_s);
    ASSERT_EQ(window->session().Cart->Count(), 1);
    EXPECT_EQ(window->session().Cart->Item(1)->SelectedPrice(), localised(u"12.5"_s));
    const auto amountIn = [this](const QString& selector) {
        return visitor.textOf(selector).simplified().replace(u'\u00A0', u' ');
    };
    EXPECT_EQ(amountIn(u".cart-sum strong"_s), u"25 "_s + shop().shop_currency);
    visit(u".cart-sum a[href*=checkout]"_s);
    // The checkout's sum deliberately takes no quantities.
    EXPECT_EQ(amountIn(u".summary .total strong"_s), localised(u"12.5"_s) + u' ' + shop().shop_currency);
}

void Day::saveAndBackUp()
{
    click("SaveShopSBtn");
    const QByteArray saved = fileBytes(files.path(u"shop.xml"_s));
    EXPECT_TRUE(saved.contains("Candle 200"));
    EXPECT_TRUE(saved.contains("Größe der Lichter"));
    prompts.answerText(u"Backing up"_s, u"Enter file name"_s, u"evening"_s);
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    trigger("mnuBackUp");
    EXPECT_TRUE(QFile::exists(files.path(u"backups/evening.kvb"_s)));
}

void Day::publish()
{
    // The button asks whether to save, the menu does not.
    if (byKeys()) {
        click("SaveShopSBtn");
    } else {
        prompts.answerYesNo(u"Ambrel eCommerce Software"_s, u"Do you want save changes?"_s, true);
    }
    prompts.expectMessage(u"Uploading data"_s, u"Complete"_s);
    inNextDialog([this](const QDialog& dialog) {
        type(part(dialog, "txtURL"), server.address());
        type(part(dialog, "txtLogin"), u"anna"_s);
        type(part(dialog, "txtPassword"), u"s3cret"_s);
        press(part(dialog, "OkBtn")); // the dialog closes when all has gone up
    });
    byKeys() ? trigger("mnuUpload") : click("UploadShopSBtn");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    for (const char* file : {"shop.xml", "pictures/lantern.png", "pictures/logo.png", "templates/footer.html"}) {
        EXPECT_TRUE(fileBytes(server.path(QLatin1String(file))) == fileBytes(files.path(QLatin1String(file)))) << file;
    }
}

void Day::spoilAndRestore()
{
    click("ProductCatalogSBtn");
    clickNode(u"ID_SHOP"_s);
    type("ShopNameTxt", u"Spoilt"_s);
    trigger("mnuSaveShop");
    EXPECT_TRUE(fileBytes(files.path(u"shop.xml"_s)).contains("Spoilt"));
    QFile::remove(files.path(u"pictures/lantern.png"_s));

    prompts.answerFile(files.path(u"backups/evening.kvb"_s));
    prompts.expectMessage(u"Restoring"_s, u"Restore is completed.\r\nThe program will be restarted now."_s,
                          PromptIcon::Information);
    trigger("mnuRestore");
    EXPECT_EQ(restarts, 1);
    EXPECT_FALSE(window->isVisible());
}

void Day::expectTheShopAsItWas()
{
    window.reset();
    start();
    EXPECT_EQ(window->parts().CategoriesAndProductsTree->nodes().rootNode()->text, u"Brackenhus"_s);
    const auto candle = window->session().objects.Product(keyOf(u"Candle 8"_s).mid(2));
    EXPECT_EQ(candle->Price()->NewPrice(candle->Price()->Value), u"30"_s);
    clickNode(keyOf(u"Lanterns"_s));
    EXPECT_EQ(in<QLineEdit>("CategoryNameTxt")->text(), u"Lanterns"_s);
    EXPECT_TRUE(QFile::exists(files.path(u"pictures/lantern.png"_s)));
    click("PreviewBrowserSBtn");
    ASSERT_TRUE(waitUntil([this] { return visitor.shows(u"Good evening"_s); }));
    EXPECT_EQ(visitor.textOf(u"#by-hand"_s), u"Made by hand"_s);
    EXPECT_EQ(visitor.countOf(u"a[href='http://previewmode/ACTION=custompage.php&name=Größe der Lichter']"_s) > 0,
              true);
}

INSTANTIATE_TEST_SUITE_P(Hands, Day, testing::Values(Hand::Mouse, Hand::Keyboard), [](const auto& hand) {
    return hand.param == Hand::Mouse ? "WithTheMouse" : "WithTheKeyboardAlone";
});

TEST_P(Day, EndsWithTheShopThatItMade)
{
    start();
    using Hour = void (Day::*)();
    for (const Hour hour : {&Day::importProducts, &Day::editPricesAndDiscounts, &Day::addCategoryWithPicture,
                            &Day::designPages, &Day::writeCustomPage, &Day::walkThePreview, &Day::saveAndBackUp,
                            &Day::publish, &Day::spoilAndRestore, &Day::expectTheShopAsItWas}) {
        (this->*hour)();
        if (HasFailure()) {
            return; // each hour builds on those before
        }
    }
    EXPECT_EQ(mousePresses() == 0, byKeys());
}

} // namespace
