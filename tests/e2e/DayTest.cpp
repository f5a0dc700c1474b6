// A shop owner's day, from the start of the program to the restart after a restore: the real window, the real browser
// and a real server. What was done in the morning must be there in the evening. The day passes twice, once with the
// mouse and once by the keyboard alone.
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
#include "support/KeyHands.h"
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
#include <QWebEngineView>

using namespace Qt::StringLiterals;

namespace {

constexpr int importedProducts = 200;
constexpr int patience = 60000; // milliseconds

enum class Hand { Mouse, Keyboard };

class Day : public WindowTest, public testing::WithParamInterface<Hand>
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
        previewWidget = qobject_cast<PreviewBrowser*>(parts.widget);
        visitor.drive(previewWidget);
        return parts;
    }

    bool byKeys() const { return GetParam() == Hand::Keyboard; }

    // The main buttons act on the receipt of the focus, which only the active window's have. There is no window manager
    // here that makes the window active again when a dialog has closed.
    void activate() const
    {
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    // A main button has a key; the others are reached by Tab.
    void click(const char* button)
    {
        activate();
        static const QHash<QLatin1String, Qt::Key> keys = {{"SaveShopSBtn"_L1, Qt::Key_S},
                                                           {"ProductCatalogSBtn"_L1, Qt::Key_1},
                                                           {"PreviewBrowserSBtn"_L1, Qt::Key_2},
                                                           {"ShopDesignSBtn"_L1, Qt::Key_3}};
        if (!byKeys()) {
            WindowTest::click(button);
        } else if (keys.contains(QLatin1String(button))) {
            QWidget* focus = window->focusWidget();
            QTest::keyClick(focus ? focus : window.get(), keys[QLatin1String(button)], Qt::ControlModifier);
        } else {
            KeyHands::press(find(button));
        }
    }
    void trigger(const char* entry)
    {
        if (byKeys()) {
            activate();
            KeyHands::takeEntry(*window, find<QAction>(entry));
        } else {
            WindowTest::trigger(entry);
        }
    }
    // The line that finds leads to the node.
    void clickNode(const QString& key)
    {
        if (!byKeys()) {
            WindowTest::clickNode(key);
            return;
        }
        CatalogueTree* tree = window->parts().CategoriesAndProductsTree;
        if (key == u"ID_SHOP"_s) {
            KeyHands::tabTo(tree);
            QTest::keyClick(tree, Qt::Key_Home);
        } else {
            activate();
            QWidget* focus = window->focusWidget();
            QTest::keyClick(focus ? focus : window.get(), Qt::Key_F, Qt::ControlModifier);
            auto* line = find<QLineEdit>("CatalogueFindTxt");
            ASSERT_EQ(window->focusWidget(), line);
            Hands::pressKeys(line, tree->nodes().nodeWithKey(key)->text);
            for (int hit = 0; hit < 20 && window->SelectedNode->key != key; ++hit) {
                QTest::keyClick(line, Qt::Key_Return);
            }
            QTest::keyClick(line, Qt::Key_Escape);
        }
        ASSERT_EQ(window->SelectedNode->key, key);
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
    void type(QWidget* field, const QString& text) const
    {
        byKeys() ? KeyHands::type(field, text) : Hands::type(field, text);
    }
    void type(const char* field, const QString& text) const { type(in(field), text); }
    void press(QWidget* button) const { byKeys() ? KeyHands::press(button) : Hands::press(button); }
    void press(const char* button) const { press(in(button)); }
    void tick(QCheckBox* box) const { byKeys() ? KeyHands::press(box) : Hands::tick(box); }
    void submit() const { press("imgButtonSubmit"); }
    void openTab(QTabWidget* tabs, int index) const
    {
        byKeys() ? KeyHands::openTab(tabs, index) : tabs->setCurrentIndex(index);
    }
    // Types behind what the text has.
    void append(QPlainTextEdit* text, const QString& more) const
    {
        if (byKeys()) {
            KeyHands::tabTo(text);
            QTest::keyClick(text, Qt::Key_End, Qt::ControlModifier);
        } else {
            text->moveCursor(QTextCursor::End);
        }
        Hands::pressKeys(text, more);
    }
    // Follows a link of the preview, or presses a button, to another page.
    void visit(const QString& selector)
    {
        if (byKeys()) {
            visitor.tabTo(selector);
            visitor.enterToNewPage();
        } else {
            visitor.clickToNewPage(selector);
        }
    }
    void fillIn(const QString& selector, const QString& text)
    {
        if (byKeys()) {
            visitor.tabTo(selector);
            QWidget* page = previewWidget->view()->focusProxy();
            QTest::keyClick(page, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(page, text);
            visitor.waitUntil(u"document.activeElement.value == '%1'"_s.arg(text));
        } else {
            visitor.type(selector, text);
        }
    }
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
    PreviewBrowser* previewWidget = nullptr;

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
        KeyHands::tabTo(previewWidget->view()->focusProxy());
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
}

} // namespace
