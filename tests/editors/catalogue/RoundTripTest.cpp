// Every field of a shop, a category and a product, through the window into the shop file, and back into the panels.
#include "PanelTest.h"

#include <QCheckBox>
#include <QImage>
#include <QListView>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTimer>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

class RoundTrip : public PanelTest
{
protected:
    void SetUp() override
    {
        PanelTest::SetUp();
        QImage image(64, 48, QImage::Format_RGB32);
        image.fill(Qt::darkRed);
        ASSERT_TRUE(image.save(files.path(u"pictures/tin.png"_s)));
    }

    void choosePicture()
    {
        QTimer::singleShot(0, window.get(), [] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            auto* list = dialog->findChild<QListWidget*>(u"lstImages"_s);
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
            press(dialog->findChild<QAbstractButton*>(u"OkBtn"_s));
        });
        press("BrowseBtnLbl");
    }
    QString date(int day, int month, int year) const
    {
        return QLocale().language() == QLocale::German
                   ? u"%1.%2.%3"_s.arg(day, 2, 10, QChar(u'0')).arg(month, 2, 10, QChar(u'0')).arg(year)
                   : u"%1/%2/%3"_s.arg(month).arg(day).arg(year);
    }
    void typeDates(const QString& from, const QString& to)
    {
        for (const auto& [field, text] : {std::pair("DateFromTxt", from), std::pair("DateToTxt", to)}) {
            in<QLineEdit>(field)->setFocus();
            QTest::keyClicks(in(field), text);
        }
    }

    void editShop()
    {
        type("ShopNameTxt", u"Fern & Moss"_s);
        type("txtCurrency", u"EUR"_s);
        in("ShopDescriptionTxt")->setFocus();
        QTest::keyClicks(in("ShopDescriptionTxt"), u"Tea <and> more"_s);
        press("lblCheckAll");
        submit();

        click("ShopDiscountSBtn");
        press("DependOpt");
        addRow(in<CustomGrid>("DiscountGrd"), {u"1"_s, u"50"_s, u"2,5"_s});
        typeDates(date(1, 2, 2026), date(31, 12, 2027));
        submit();
        press("ApplyOpt");
        type("ApplyTxt", u"3.5"_s);
        submit();

        click("ShopTaxesSBtn");
        press("optSelectTax");
        addRow(in<CustomGrid>("TaxGrd"), {u"Eco"_s, u"1,5"_s});
        clickCell(in<CustomGrid>("TaxGrd"), 2, 2);
        submit();

        click("ShippingChargesSBtn");
        press("cmbSelectCharges");
        addRow(in<CustomGrid>("gridCharges"), {u"Moon"_s, u"99"_s});
        submit();

        showPanel("ShopsShippingPnl");
        addRow(in<CustomGrid>("ShippingGrd"), {u"Post"_s, u"By letter"_s});
    }

    void editCategory()
    {
        clickNode(u"ID2"_s);
        type("CategoryNameTxt", u"Fine tea"_s);
        in("CategoryDescriptionTxt")->setFocus();
        QTest::keyClicks(in("CategoryDescriptionTxt"), u"Leaves"_s);
        choosePicture();
        type("txtHeight", u"24"_s);
        submit();

        click("CategoryDiscountSBtn");
        press("DependOpt");
        addRow(in<CustomGrid>("DiscountGrd"), {u"5"_s, u"15"_s, u"4.5"_s});
        typeDates(date(3, 4, 2026), date(5, 6, 2028));
        submit();
    }

    void editProduct()
    {
        clickNode(u"ID4"_s);
        type("ProductNameTxt", u"Sencha extra"_s);
        in("ProductDescriptionTxt")->setFocus();
        QTest::keyClicks(in("ProductDescriptionTxt"), u"First flush"_s);
        type("ProductCodeTxt", u"S-1"_s);
        type("ProductPriceTxt", localised(u"12.5"_s));
        type("ProductUnitTxt", u"100 g"_s);
        type("ProductLinkTxt", u"tea.example"_s);
        choosePicture();
        press("chkForSale");
        submit();

        click("ProductDiscountSBtn");
        press("SpecificOpt");
        type("SpecificTxt", u"6,5"_s);
        typeDates(date(7, 8, 2026), date(9, 10, 2029));
        submit();

        click("ProductPriceSbtn");
        addRow(in<CustomGrid>("MultipriceGrd"), {u"Tin"_s, u"14"_s});
        submit();

        click("ProductRelatedSBtn");
        auto* tree = in<QTreeView>("AllProductsTree");
        tree->expandAll();
        tree->setCurrentIndex(tree->indexBelow(tree->indexBelow(tree->indexBelow(tree->model()->index(0, 0)))));
        press("ToRelatedLbl");
        submit();

        showPanel("ProductShippingCostsPnl");
        press("ByWeightOpt");
        type("WeightTxt", localised(u"0.25"_s));
        press("IndividualOpt");
        type("ShippingTypeCostTxt", u"2"_s);
    }
};

TEST_F(RoundTrip, OfEveryFieldThroughTheShopFile)
{
    editShop();
    editCategory();
    editProduct();
    window->ShowFrame(nullptr, PanelCode::Show);
    trigger("mnuSaveShop");
    ASSERT_TRUE(errors.numbers.empty());

    const QString file = QString::fromUtf8(fileBytes(files.path(u"shop.xml"_s)));
    const auto number = [](const char* text) { return localised(QLatin1String(text)); };
    const QStringList expected = {
        u"<ShippingChargesAreSelected>True</ShippingChargesAreSelected><TaxesAreSelected>True</TaxesAreSelected>"
        "<shop_currency>EUR</shop_currency>"_s,
        u"<Name>Fern &amp; Moss</Name><Description>Tea &lt;and&gt; "
        u"more</Description><ShopDiscount><Status>ToAll</Status>"
        "<DateFrom>01.02.2026</DateFrom><DateTo>31.12.2027</DateTo><ApplyToAll>%1</ApplyToAll>"_s.arg(number("3.5")),
        u"<PriceFrame><From>1</From><To>50</To><Percent>%1</Percent></PriceFrame>"_s.arg(number("2.5")),
        u"<Country1>Norway</Country1><Country2>Iceland</Country2><Country3>Malta</Country3>"_s,
        u"<Type><Name>Post</Name><Description>By letter</Description></Type>"_s,
        u"<Type><Name>Eco</Name><Percent>%1</Percent><Used>Y</Used></Type>"_s.arg(number("1.5")),
        u"<Type><Destination>Moon</Destination><Cost>99</Cost><Used>N</Used></Type>"_s,
        u"<Name>Fine tea</Name><Description>Leaves</Description><Picture>tin.png</Picture><Width>64</Width>"
        "<Height>24</Height><Discount><Status>Depend</Status><DateFrom>03.04.2026</DateFrom>"
        "<DateTo>05.06.2028</DateTo>"_s,
        u"<PriceFrame><From>5</From><To>15</To><Percent>%1</Percent></PriceFrame>"_s.arg(number("4.5")),
        u"<Name>Sencha extra</Name><Description>First flush</Description><Code>S-1</Code><Price>%1</Price>"
        "<ForSale>False</ForSale><Unit>100 g</Unit><Link>http://tea.example</Link><Picture>tin.png</Picture>"
        "<Width>64</Width><Height>48</Height><Discount><Status>Specific</Status><DateFrom>07.08.2026</DateFrom>"
        "<DateTo>09.10.2029</DateTo><Specific>%2</Specific></Discount><Shipping>"
        "<ShippingStatus>Individual</ShippingStatus><Weight>%3</Weight><ShippingCost1>2</ShippingCost1></Shipping>"
        "<MultiplePrice><PriceDescription>Tin</PriceDescription><MPrice>14</MPrice></MultiplePrice>"
        "<Related><ID><RId>5</RId></ID></Related>"_s.arg(number("12.5"), number("6.5"), number("0.25")),
    };
    for (const QString& part : expected) {
        EXPECT_TRUE(file.contains(part)) << part.toStdString() << "\nis not in\n" << file.left(4000).toStdString();
    }

    startAgain();
    EXPECT_EQ(textIn("ShopNameTxt"), u"Fern & Moss"_s);
    EXPECT_EQ(textIn("txtCurrency"), u"EUR"_s);
    EXPECT_EQ(in<QPlainTextEdit>("ShopDescriptionTxt")->toPlainText(), u"Tea <and> more"_s);
    EXPECT_EQ(in<QListWidget>("lstCountries")->item(2)->checkState(), Qt::Checked);
    click("ShopDiscountSBtn");
    EXPECT_TRUE(in<QRadioButton>("ApplyOpt")->isChecked());
    EXPECT_EQ(textIn("ApplyTxt"), number("3.5"));
    EXPECT_EQ(textIn("DateFromTxt"), date(1, 2, 2026));
    EXPECT_EQ(textIn("DateToTxt"), date(31, 12, 2027));
    EXPECT_EQ(rowOf(in<CustomGrid>("DiscountGrd"), 0), (QStringList{u"1"_s, u"50"_s, number("2.5")}));
    click("ShopTaxesSBtn");
    EXPECT_TRUE(in<QRadioButton>("optSelectTax")->isChecked());
    EXPECT_EQ(cell(in<CustomGrid>("TaxGrd"), 2, 1), number("1.5"));
    click("ShippingChargesSBtn");
    EXPECT_TRUE(in<QRadioButton>("cmbSelectCharges")->isChecked());
    EXPECT_EQ(cell(in<CustomGrid>("gridCharges"), 2, 0), u"Moon"_s);
    showPanel("ShopsShippingPnl");
    EXPECT_EQ(rowOf(in<CustomGrid>("ShippingGrd"), 0), (QStringList{u"Post"_s, u"By letter"_s}));

    clickNode(u"ID2"_s);
    EXPECT_EQ(textIn("CategoryNameTxt"), u"Fine tea"_s);
    EXPECT_EQ(in<QPlainTextEdit>("CategoryDescriptionTxt")->toPlainText(), u"Leaves"_s);
    EXPECT_EQ(textIn("txtWidth"), u"64"_s);
    EXPECT_EQ(textIn("txtHeight"), u"24"_s);
    click("CategoryDiscountSBtn");
    EXPECT_TRUE(in<QRadioButton>("DependOpt")->isChecked());
    EXPECT_EQ(rowOf(in<CustomGrid>("DiscountGrd"), 0), (QStringList{u"5"_s, u"15"_s, number("4.5")}));

    clickNode(u"ID4"_s);
    EXPECT_EQ(textIn("ProductNameTxt"), u"Sencha extra"_s);
    EXPECT_EQ(textIn("ProductCodeTxt"), u"S-1"_s);
    EXPECT_EQ(textIn("ProductPriceTxt"), number("12.5"));
    EXPECT_EQ(textIn("ProductUnitTxt"), u"100 g"_s);
    EXPECT_EQ(textIn("ProductLinkTxt"), u"http://tea.example"_s);
    EXPECT_EQ(textIn("txtHeight"), u"48"_s);
    EXPECT_FALSE(in<QCheckBox>("chkForSale")->isChecked());
    click("ProductDiscountSBtn");
    EXPECT_TRUE(in<QRadioButton>("SpecificOpt")->isChecked());
    EXPECT_EQ(textIn("SpecificTxt"), number("6.5"));
    EXPECT_EQ(textIn("DateToTxt"), date(9, 10, 2029));
    click("ProductPriceSbtn");
    EXPECT_EQ(rowOf(in<CustomGrid>("MultipriceGrd"), 0), (QStringList{u"Tin"_s, u"14"_s}));
    click("ProductRelatedSBtn");
    EXPECT_EQ(in<QListView>("RelatedProductsLst")->model()->index(0, 0).data().toString(), u"Mint"_s);
    showPanel("ProductShippingCostsPnl");
    EXPECT_TRUE(in<QRadioButton>("IndividualOpt")->isChecked());
    EXPECT_EQ(textIn("WeightTxt"), number("0.25"));
    EXPECT_EQ(textIn("ShippingTypeCostTxt"), u"2"_s);
}

TEST_F(RoundTrip, OfPanelsThatWereOnlyLookedAtChangesNothing)
{
    useSampleShop();
    startAgain();
    trigger("mnuSaveShop");
    const QByteArray before = fileBytes(files.path(u"shop.xml"_s));
    for (const char* button : {"ShopGeneralSBtn", "ShopDiscountSBtn", "ShopTaxesSBtn", "ShippingChargesSBtn"}) {
        click(button);
        submit();
    }
    showPanel("ShopsShippingPnl");
    window->ShowFrame(nullptr, PanelCode::Show);
    QStringList categories;
    QStringList products;
    for (const CatalogueObject& object : window->session().objects.items()) {
        if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object)) {
            categories << nodeKey((*category)->id);
        } else if (const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object)) {
            products << nodeKey((*product)->id);
        }
    }
    ASSERT_GT(products.size(), 3);
    for (const QString& key : {categories.first(), categories.last()}) {
        clickNode(key);
        click("CategoryDiscountSBtn");
    }
    for (const QString& key : {products.first(), products.at(products.size() / 2), products.last()}) {
        clickNode(key);
        click("ProductDiscountSBtn");
        click("ProductPriceSbtn");
        click("ProductRelatedSBtn");
        showPanel("ProductShippingCostsPnl");
    }
    window->ShowFrame(nullptr, PanelCode::Show);
    trigger("mnuSaveShop");
    EXPECT_TRUE(errors.numbers.empty());
    EXPECT_EQ(fileBytes(files.path(u"shop.xml"_s)), before);
}

} // namespace
