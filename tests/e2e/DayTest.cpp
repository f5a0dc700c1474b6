// A shop owner's day, from the start of the program to the restart after a restore: the real window, the real browser
// and a real server. What was done in the morning must be there in the evening.
#include "base/Numbers.h"
#include "e2e/BrowserDriver.h"
#include "editors/Panel.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"
#include "publish/dialog/PhpServer.h"
#include "shell/BrowserPreview.h"
#include "shell/CatalogueTree.h"
#include "shell/browser/PreviewBrowser.h"
#include "support/Hands.h"
#include "support/WindowTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int importedProducts = 200;
constexpr int patience = 60000; // milliseconds

class Day : public WindowTest
{
public:
    ~Day() override
    {
        EXPECT_TRUE(errors.numbers.empty()) << "run-time error " << errors.numbers.front();
        window.reset(); // the browser goes ahead of the server and of the errors
    }

protected:
    void SetUp() override
    {
        useSampleShop();
        ASSERT_TRUE(server.start()) << server.why().toStdString();
    }

    PreviewParts makePreview(QWidget* parent) override
    {
        PreviewParts parts = browserPreview(files.folder(), errors)(parent);
        visitor.drive(qobject_cast<PreviewBrowser*>(parts.widget));
        return parts;
    }

    // The main buttons act on the receipt of the focus, which only the active window's have. There is no window manager
    // here that makes the window active again when a dialog has closed.
    void click(const char* button)
    {
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        WindowTest::click(button);
    }
    ShopClass& shop() const { return *window->session().shop; }

    // The panel on the right.
    template <class T = QWidget>
    T* in(const char* name) const
    {
        T* widget = window->VisibleFrame->findChild<T*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    void type(const char* field, const QString& text) const { Hands::type(in(field), text); }
    void press(const char* button) const { Hands::press(in(button)); }
    void submit() const { press("imgButtonSubmit"); }
    // What a modal dialog is used for: runs when the dialog is there. The dialog must be closed by it.
    void inNextDialog(const std::function<void(QDialog& dialog)>& work)
    {
        auto* timer = new QTimer(window.get());
        connectTimer(timer, work);
        timer->start(20);
    }
    static QWidget* part(const QWidget& dialog, const char* name)
    {
        auto* widget = dialog.findChild<QWidget*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    static bool waitUntil(const std::function<bool()>& condition)
    {
        QElapsedTimer time;
        time.start();
        while (!condition() && time.elapsed() < patience) {
            BrowserDriver::pause(10);
        }
        return condition();
    }
    QString keyOf(const QString& name) const
    {
        for (const CatalogueObject& object : window->session().objects.items()) {
            if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object);
                category && (*category)->name == name) {
                return u"ID"_s + (*category)->id;
            }
            if (const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object);
                product && (*product)->name == name) {
                return u"ID"_s + (*product)->id;
            }
        }
        ADD_FAILURE() << "not in the catalogue: " << name.toStdString();
        return {};
    }

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

protected:
    PhpServer server;
    BrowserDriver visitor;

private:
    static void connectTimer(QTimer* timer, const std::function<void(QDialog& dialog)>& work)
    {
        QObject::connect(timer, &QTimer::timeout, timer, [timer, work] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog) {
                timer->stop();
                timer->deleteLater();
                work(*dialog);
            }
        });
    }
};

void Day::importProducts()
{
    QByteArray lines;
    for (int product = 1; product <= importedProducts; ++product) {
        const QByteArray number = QByteArray::number(product);
        lines += "\"Candle " + number + "\",\"Beeswax, number " + number + "\",Light\\Candles\n";
    }
    WriteFile(files.path(u"candles.txt"_s), lines);
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
    inNextDialog([](const QDialog& dialog) {
        Hands::press(part(dialog, "AddBttn"));
        Hands::press(part(dialog, "OkBtn"));
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
    tabs->setCurrentIndex(1);
    prompts.answerYesNo(u"Ambrel eCommerce Software"_s, u"Are you sure you want to switch to advanced mode?"_s, true);
    Hands::tick(in<QCheckBox>("AdvancedCh"));
    auto* text = in<QPlainTextEdit>("TemplateTxt");
    text->moveCursor(QTextCursor::End);
    Hands::pressKeys(text, u"<p id=\"by-hand\">Made by hand</p>"_s);
    press("SaveTemplteBtn");
    tabs->setCurrentIndex(0);
}

void Day::writeCustomPage()
{
    click("CustomPagesDesignSBtn");
    press("AddPageBtn");
    type("PageNameTextCtl", u"Größe der Lichter"_s);
    Hands::pressKeys(in("PageContentTextCtl"), u"<p id=\"sizes\">From 3 to 30 hours, that is all.</p>"_s);
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
    pages->setCurrentItem(rows.front());
    if (rows.front()->checkState() != Qt::Checked) {
        QTest::keyClick(pages, Qt::Key_Space);
    }
    EXPECT_EQ(rows.front()->checkState(), Qt::Checked);
    Hands::press(part(*dialog, "OkBtn"));
    submit();
}

void Day::walkThePreview()
{
    click("PreviewBrowserSBtn");
    ASSERT_TRUE(waitUntil([this] { return visitor.shows(u"Good evening"_s); }));
    EXPECT_EQ(visitor.textOf(u"#by-hand"_s), u"Made by hand"_s);
    visitor.clickToNewPage(u"a[href='http://previewmode/ACTION=custompage.php&name=Größe der Lichter']"_s);
    EXPECT_EQ(visitor.textOf(u"#sizes"_s), u"From 3 to 30 hours, that is all."_s);

    visitor.type(u"header input[name=what]"_s, u"candle"_s);
    visitor.clickToNewPage(u"header form [type=submit]"_s);
    const QString product =
        u"main a[href='http://previewmode/ACTION=product.php&id=%1']"_s.arg(keyOf(u"Candle 7"_s).mid(2));
    visitor.clickToNewPage(product);
    visitor.type(u"form.buy input[name=quantity]"_s, u"2"_s);
    visitor.clickToNewPage(u"form.buy [type=submit]"_s);
    ASSERT_EQ(window->session().Cart->Count(), 1);
    EXPECT_EQ(window->session().Cart->Item(1)->SelectedPrice(), localised(u"12.5"_s));
    const auto amountIn = [this](const QString& selector) {
        return visitor.textOf(selector).simplified().replace(u'\u00A0', u' ');
    };
    EXPECT_EQ(amountIn(u".cart-sum strong"_s), u"25 "_s + shop().shop_currency);
    visitor.clickToNewPage(u".cart-sum a[href*=checkout]"_s);
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
    prompts.answerYesNo(u"Ambrel eCommerce Software"_s, u"Do you want save changes?"_s, true);
    prompts.expectMessage(u"Uploading data"_s, u"Complete"_s);
    inNextDialog([this](const QDialog& dialog) {
        Hands::type(part(dialog, "txtURL"), server.address());
        Hands::type(part(dialog, "txtLogin"), u"anna"_s);
        Hands::type(part(dialog, "txtPassword"), u"s3cret"_s);
        Hands::press(part(dialog, "OkBtn")); // the dialog closes when all has gone up
    });
    click("UploadShopSBtn");
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

TEST_F(Day, EndsWithTheShopThatItMade)
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
}

} // namespace
