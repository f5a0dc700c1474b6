// The style editor, its dialog, and the buttons that open it.
#include "DesignTest.h"
#include "design/CSSClass.h"
#include "editors/design/ColourText.h"
#include "editors/design/FontAndColorEditorPanel.h"

#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

struct StyleCase
{
    const char* button;
    const char* style;
    const char* title;
};

constexpr StyleCase styles[] = {
    {"MenuDesignSBtn", "General_menu", "General Menu Properties"},
    {"MenuDesignSBtn", "menu_in_menu", "Menu Properties"},
    {"MenuDesignSBtn", "Left_menu_searchbox_testfield", "Menu Textfield Properties"},
    {"MenuDesignSBtn", "top_categories_in_left_menu", "Top Categories"},
    {"MenuDesignSBtn", "Menu_HeaderTopCategory", "Top Categories"},
    {"HeaderDesignSBtn", "general_header", "Header Properties"},
    {"HeaderDesignSBtn", "menuinheader", "Menu Properties"},
    {"HeaderDesignSBtn", "header_searchbox_testfield", "SearchBox Textfield Properties"},
    {"FooterDesignSBtn", "menuinfooter", "Menu Properties"},
    {"MainPageDesignSBtn", "main_page_general_properties", "General main page properties"},
    {"MainPageDesignSBtn", "Main_PageHeader", "Page Header Properties"},
    {"MainPageDesignSBtn", "Main_ShopDescription", "Shop Description Properties"},
    {"MainPageDesignSBtn", "First_level_categories_in_main_page", "Level 1 Categories Properties"},
    {"MainPageDesignSBtn", "Second_level_categories_in_main_page", "Level 2 Categories Properties"},
    {"MainPageDesignSBtn", "Menu_in_main_page", "Navigation Menu Properties"},
    {"MainPageDesignSBtn", "Main_page_searchbox_textfield", "Search Box Textfield Properties"},
    {"MainPageDesignSBtn", "Top_categories_in_main_page", "Top Categories Properties"},
    {"CategoryPageDesignSBtn", "categorypage_general_page", "General Page Properties"},
    {"CategoryPageDesignSBtn", "Category_PageHeader", "Category Header Properties"},
    {"CategoryPageDesignSBtn", "categorypage_breadcrumb", "Breadcrumb Properties"},
    {"CategoryPageDesignSBtn", "categorypage_category_name", "Category Name Properties"},
    {"CategoryPageDesignSBtn", "categorypage_description", "Category Description Properties"},
    {"CategoryPageDesignSBtn", "categorypage_name", "Product Name Properties"},
    {"CategoryPageDesignSBtn", "categorypage_product_description", "Product Description Properties"},
    {"CategoryPageDesignSBtn", "categorypage_product_image", "Product Image Properties"},
    {"CategoryPageDesignSBtn", "categorypage_price", "Category Price Properties"},
    {"CategoryPageDesignSBtn", "categorypage_old_price", "Category Old Price Properties"},
    {"CategoryPageDesignSBtn", "categorypage_new_price", "Category New Price Properties"},
    {"CategoryPageDesignSBtn", "categorypage_taxes", "Category Taxes Properties"},
    {"CategoryPageDesignSBtn", "categorypage_shipping", "Category Shipping Properties"},
    {"CategoryPageDesignSBtn", "categorypage_related", "Category Related Properties"},
    {"ProductPageDesignSBtn", "productpage_general_page", "General Page Properties"},
    {"ProductPageDesignSBtn", "ProductPage_PageHeader", "Page Header Properties"},
    {"ProductPageDesignSBtn", "productpage_breadcrumb", "Breadcrumb Properties"},
    {"ProductPageDesignSBtn", "productpage_name", "Product Name Properties"},
    {"ProductPageDesignSBtn", "productpage_description", "Product Description Properties"},
    {"ProductPageDesignSBtn", "productpage_price", "Product Price Properties"},
    {"ProductPageDesignSBtn", "productpage_old_price", "Product Old Price Properties"},
    {"ProductPageDesignSBtn", "productpage_new_price", "Product New Price Properties"},
    {"ProductPageDesignSBtn", "productpage_taxes", "Product Taxes Properties"},
    {"ProductPageDesignSBtn", "productpage_shipping", "Product Shipping Properties"},
    {"ProductPageDesignSBtn", "productpage_related", "Product Related Properties"},
    {"SearchPageDesignSBtn", "searchpage_general_page", "Search page properties"},
    {"SearchPageDesignSBtn", "SearchPage_PageHeader", "Page Header Properties"},
    {"SearchPageDesignSBtn", "searchpage_breadcrumb", "Breadcrumb Properties"},
    {"SearchPageDesignSBtn", "searchpage_product_image", "Product Image Properties"},
    {"SearchPageDesignSBtn", "searchpage_name", "Product Name Properties"},
    {"SearchPageDesignSBtn", "searchpage_description", "Product Description Properties"},
    {"SearchPageDesignSBtn", "searchpage_price", "Product Price Properties"},
    {"SearchPageDesignSBtn", "searchpage_old_price", "Product Old Price Properties"},
    {"SearchPageDesignSBtn", "searchpage_new_price", "Product New Price Properties"},
    {"SearchPageDesignSBtn", "searchpage_taxes", "Product Taxes Properties"},
    {"SearchPageDesignSBtn", "searchpage_shipping", "Product Shipping Properties"},
    {"SearchPageDesignSBtn", "searchpage_related", "Product Related Properties"},
    {"ShoppingCartPageDesignSBtn", "cartpage_general_page", "General Page Properties"},
    {"ShoppingCartPageDesignSBtn", "CartPage_PageHeader", "Page Header Properties"},
    {"ShoppingCartPageDesignSBtn", "cartpage_breadcrumb", "Breadcrumb Properties"},
    {"ShoppingCartPageDesignSBtn", "cartpage_product_image", "Product Image Properties"},
    {"ShoppingCartPageDesignSBtn", "cartpage_name", "Cart Page Name Properties"},
    {"ShoppingCartPageDesignSBtn", "cartpage_description", "Cart Page Description Properties"},
    {"ShoppingCartPageDesignSBtn", "cartpage_price", "Cart Page Price Properties"},
    {"ShoppingCartPageDesignSBtn", "cartpage_old_price", "Cart Page Old Price Properties"},
    {"ShoppingCartPageDesignSBtn", "cartpage_new_price", "Cart Page New Price Properties"},
    {"ShoppingCartPageDesignSBtn", "cartpage_taxes", "Cart Page Taxes Properties"},
    {"ShoppingCartPageDesignSBtn", "cartpage_shipping", "Cart Page Shipping Properties"},
    {"ShoppingCartPageDesignSBtn", "cartpage_related_products", "Cart Page Related Properties"},
    {"ShoppingCartPageDesignSBtn", "cartpage_quantity_textfield", "Quantity Textfield Properties"},
    {"BuyingFormDesignSBtn", "Buyingform_general_page", "General Page Properties"},
    {"BuyingFormDesignSBtn", "Buyingform_page_header", "Page Header Properties"},
    {"BuyingFormDesignSBtn", "Buyingform_bredcrumb", "Breadcrumb Properties"},
    {"BuyingFormDesignSBtn", "Buyingform_form_elements", "Form Elements Properties"},
    {"CustomPagesDesignSBtn", "general_custom_pages", "Custom Pages Properties"},
};

class Styles : public DesignTest
{
protected:
    void SetUp() override { openDesign(); }

    QDialog* openStyle(const char* style)
    {
        pressIn(("btnCSS_" + QByteArray(style)).constData());
        return dialog("CSSManagementForm");
    }

    template <class T>
    static T* part(QDialog* form, const char* name)
    {
        T* widget = form->findChild<FontAndColorEditorPanel*>(u"FontAndColorEditorPanel1"_s)
                        ->findChild<T*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }

    const CSSClass& style(const char* name) const { return *shop().CSSs.Item(u"ID"_s + QLatin1String(name)); }

    // The styles of the shop as they would stand in the file.
    static QStringList textsOf(const CSSClass& style)
    {
        return {style.CSSName, style.ForeGroundColor, style.BackGroundColor, style.FontName,    style.FontSize,
                style.IsBold,  style.IsCursive,       style.IsUndcelined,    style.IsLineThrugh};
    }
};

TEST_F(Styles, OpenUnderTheirTitlesOnTheirValues)
{
    std::map<QString, qsizetype> buttons;
    for (const StyleCase& expected : styles) {
        SCOPED_TRACE(expected.style);
        if (window->VisibleFrame == nullptr ||
            window->VisibleFrame->property("case").toString() != QLatin1String(expected.button)) {
            openManager(expected.button);
            window->VisibleFrame->setProperty("case", QLatin1String(expected.button));
        }
        // A value that no other style has.
        const QString key = u"ID"_s + QLatin1String(expected.style);
        ASSERT_TRUE(shop().CSSs.hasKey(key));
        shop().CSSs.Item(key)->ForeGroundColor = u"#0%1"_s.arg(buttons.size() + 10000);
        QDialog* form = openStyle(expected.style);
        EXPECT_EQ(form->windowTitle(), QLatin1String(expected.title));
        EXPECT_EQ(part<QGroupBox>(form, "Frame1")->title(), QLatin1String(expected.title));
        EXPECT_EQ(part<QPushButton>(form, "ForeGroundColorBtn")->text(), style(expected.style).ForeGroundColor);
        press(form, "CancelBtn");
        ++buttons[QLatin1String(expected.button)];
    }
    for (const auto& [button, count] : buttons) {
        openManager(button.toLatin1().constData());
        qsizetype found = 0;
        for (const QPushButton* other : window->VisibleFrame->findChildren<QPushButton*>()) {
            found += other->objectName().startsWith(u"btnCSS_") ? 1 : 0;
        }
        EXPECT_EQ(found, count) << button.toStdString();
    }
}

TEST_F(Styles, ShowTheirColoursOnTheirButtons)
{
    CSSClass& price = *shop().CSSs.Item(u"IDcategorypage_price"_s);
    price.ForeGroundColor = u"#ff0000"_s;
    price.BackGroundColor = u"#00ff00"_s;
    openManager("CategoryPageDesignSBtn");
    const auto swatch = [this] {
        return in<QPushButton>("btnCSS_categorypage_price")->icon().pixmap(22, 16).toImage();
    };
    EXPECT_EQ(swatch().pixelColor(2, 2), QColor(u"#00ff00"_s));
    bool hasText = false;
    for (int y = 0; y < swatch().height(); ++y) {
        for (int x = 0; x < swatch().width(); ++x) {
            hasText = hasText || swatch().pixelColor(x, y) == QColor(u"#ff0000"_s);
        }
    }
    EXPECT_TRUE(hasText);

    QDialog* form = openStyle("categorypage_price");
    prompts.answerColour(0xff0000); // blue: red is the low byte
    press(part<QPushButton>(form, "BackGroundColorBtn"));
    press(form, "OkBtn");
    EXPECT_EQ(swatch().pixelColor(2, 2), QColor(u"#0000ff"_s));
}

TEST_F(Styles, AreWrittenToTheStyleByTheOkButton)
{
    openManager("CategoryPageDesignSBtn");
    QDialog* form = openStyle("categorypage_price");
    prompts.answerColour(0x0000ff);
    press(part<QPushButton>(form, "ForeGroundColorBtn"));
    prompts.answerColour(0x302010);
    press(part<QPushButton>(form, "BackGroundColorBtn"));
    part<QComboBox>(form, "FontNameLst")->setCurrentText(u"Verdana"_s);
    part<QComboBox>(form, "FontSizeLst")->setCurrentText(u"48pt"_s);
    const QStringList before = textsOf(style("categorypage_price"));
    QStringList flags;
    for (const auto& [check, word] : {std::pair("Check1", before[5]), std::pair("Check2", before[6]),
                                      std::pair("Check3", before[7]), std::pair("Check4", before[8])}) {
        tick(part<QCheckBox>(form, check));
        flags << (word == u"Yes"_s ? u"No"_s : u"Yes"_s);
    }
    EXPECT_EQ(textsOf(style("categorypage_price")), before);
    press(form, "OkBtn");
    EXPECT_EQ(textsOf(style("categorypage_price")),
              (QStringList{u"categorypage_price"_s, u"#FF0000"_s, u"#102030"_s, u"Verdana"_s, u"48pt"_s}) + flags);
    saveShop();
    const pugi::xml_node written = savedStyle(u"categorypage_price"_s);
    EXPECT_STREQ(written.child("ForeGroundColor").text().get(), "#FF0000");
    EXPECT_STREQ(written.child("FontSize").text().get(), "48pt");
    EXPECT_TRUE(
        pageAt(u"MAINPAGE"_s).contains(u".categorypage_price{background-color : #102030;color : #FF0000;font : "_s));
}

TEST_F(Styles, StayAsTheyWereAfterCancel)
{
    openManager("HeaderDesignSBtn");
    const QStringList before = textsOf(style("general_header"));
    QDialog* form = openStyle("general_header");
    tick(part<QCheckBox>(form, "Check1"));
    prompts.answerColour(5);
    press(part<QPushButton>(form, "ForeGroundColorBtn"));
    press(form, "CancelBtn");
    EXPECT_EQ(textsOf(style("general_header")), before);
}

TEST_F(Styles, KeepTheirColourWhenTheColourDialogIsCancelled)
{
    openManager("HeaderDesignSBtn");
    const QStringList before = textsOf(style("general_header"));
    QDialog* form = openStyle("general_header");
    prompts.answerColour(std::nullopt);
    press(part<QPushButton>(form, "ForeGroundColorBtn"));
    press(form, "OkBtn");
    EXPECT_EQ(textsOf(style("general_header")), before);
}

TEST_F(Styles, AreMadeWhenTheyAreFirstOpenedAndStayAfterCancel)
{
    shop().CSSs.Remove(u"IDmenuinfooter"_s);
    openManager("FooterDesignSBtn");
    EXPECT_FALSE(shop().CSSs.hasKey(u"IDmenuinfooter"_s));
    QDialog* form = openStyle("menuinfooter");
    EXPECT_EQ(part<QPushButton>(form, "ForeGroundColorBtn")->text(), u"0"_s);
    EXPECT_EQ(part<QPushButton>(form, "BackGroundColorBtn")->text(), u"255"_s);
    press(form, "CancelBtn");
    EXPECT_EQ(textsOf(style("menuinfooter")),
              (QStringList{u"menuinfooter"_s, u"0"_s, u"255"_s, {}, {}, {}, {}, {}, {}}));
    saveShop();
    EXPECT_STREQ(savedStyle(u"menuinfooter"_s).child("BackGroundColor").text().get(), "255");
}

TEST_F(Styles, KeepTheColourNumbersOfANewStyleWhenTheyAreConfirmedUnseen)
{
    shop().CSSs.Remove(u"IDmenuinfooter"_s);
    openManager("FooterDesignSBtn");
    press(openStyle("menuinfooter"), "OkBtn");
    EXPECT_EQ(textsOf(style("menuinfooter")),
              (QStringList{u"menuinfooter"_s, u"0"_s, u"255"_s, {}, {}, u"No"_s, u"No"_s, u"No"_s, u"No"_s}));
}

TEST_F(Styles, OfferFontsAndSizes)
{
    openManager("HeaderDesignSBtn");
    QDialog* form = openStyle("menuinheader");
    const auto entries = [form](const char* list) {
        QStringList texts;
        for (int i = 0; i < part<QComboBox>(form, list)->count(); ++i) {
            texts << part<QComboBox>(form, list)->itemText(i);
        }
        return texts.join(u'|');
    };
    EXPECT_EQ(entries("FontNameLst"), u"Arial|Helvetica|Sans-serif|Times New Roman|Verdana"_s);
    EXPECT_EQ(entries("FontSizeLst"),
              u"7pt|8pt|9pt|10pt|11pt|12pt|14pt|16pt|18pt|20pt|22pt|24pt|26pt|28pt|30pt|36pt|42pt|48pt"_s);
    press(form, "CancelBtn");
}

TEST_F(Styles, KeepAFontAndASizeThatTheListsDoNotHold)
{
    shop().CSSs.Item(u"IDgeneral_header"_s)->FontName = u"Georgia, serif"_s;
    shop().CSSs.Item(u"IDgeneral_header"_s)->FontSize = u"1.4em"_s;
    openManager("HeaderDesignSBtn");
    QDialog* form = openStyle("general_header");
    EXPECT_EQ(part<QComboBox>(form, "FontNameLst")->currentText(), u"Georgia, serif"_s);
    press(form, "OkBtn");
    EXPECT_EQ(style("general_header").FontName, u"Georgia, serif"_s);
    EXPECT_EQ(style("general_header").FontSize, u"1.4em"_s);
    // It joined the list for that showing only.
    form = openStyle("menuinheader");
    EXPECT_EQ(part<QComboBox>(form, "FontNameLst")->findText(u"Georgia, serif"_s), -1);
    EXPECT_EQ(part<QComboBox>(form, "FontNameLst")->count(), 5);
    EXPECT_EQ(part<QComboBox>(form, "FontSizeLst")->count(), 18);
    press(form, "CancelBtn");
}

TEST_F(Styles, OpenTheirDialogWithoutBlockingTheProgram)
{
    openManager("HeaderDesignSBtn");
    QDialog* form = openStyle("general_header");
    EXPECT_EQ(form->windowModality(), Qt::WindowModal);
    EXPECT_EQ(form->parentWidget()->window(), window.get());
    press(form, "CancelBtn");
}

TEST_F(Styles, OfTheCopyrightLineAreEditedOnTheFootersPanel)
{
    openManager("FooterDesignSBtn");
    auto* editor = in<FontAndColorEditorPanel>("CopyrightPropPnl");
    const CSSClass before = style("copyright");
    EXPECT_EQ(editor->ObjectFontSize(), before.FontSize);
    tick(editor->findChild<QCheckBox*>(u"Check2"_s));
    EXPECT_EQ(style("copyright").IsCursive, before.IsCursive);
    pressIn("imgButtonSubmit");
    EXPECT_EQ(style("copyright").IsCursive, before.IsCursive == u"Yes"_s ? u"No"_s : u"Yes"_s);
    EXPECT_EQ(style("copyright").ForeGroundColor, before.ForeGroundColor);
}

TEST_F(Styles, OfTheCopyrightLineAreMadeWhenTheShopHasNone)
{
    shop().CSSs.Remove(u"IDcopyright"_s);
    openManager("FooterDesignSBtn");
    EXPECT_EQ(style("copyright").BackGroundColor, u"255"_s);
    saveShop();
    EXPECT_STREQ(savedStyle(u"copyright"_s).child("ForeGroundColor").text().get(), "0");
    EXPECT_STREQ(savedStyle(u"copyright"_s).child("IsBold").text().get(), "No");
}

TEST_F(Styles, CanBeSetByTheNamesOfTheStoredProperties)
{
    FontAndColorEditorPanel editor(*window, nullptr);
    EXPECT_EQ(editor.property("ObjectFontName").toString(), u"Arial"_s);
    EXPECT_EQ(editor.property("ObjectFontSize").toString(), u"10pt"_s);
    const std::pair<const char*, QVariant> values[] = {
        {"ObjectTitle", u"Edge"_s},          {"ObjectForeGroundColor", u"#123456"_s},
        {"ObjectBackGroundColor", u"255"_s}, {"ObjectFontName", u"Helvetica"_s},
        {"ObjectFontSize", u"9pt"_s},        {"ObjectFontBold", true},
        {"ObjectFontCursiv", true},          {"ObjectFontUnderline", true},
        {"ObjectFontLineTrough", true},
    };
    for (const auto& [name, value] : values) {
        EXPECT_TRUE(editor.setProperty(name, value)) << name;
        EXPECT_EQ(editor.property(name), value) << name;
    }
    CSSClass style;
    editor.SaveActiveObject(style);
    EXPECT_EQ(
        textsOf(style),
        (QStringList{{}, u"#123456"_s, u"255"_s, u"Helvetica"_s, u"9pt"_s, u"Yes"_s, u"Yes"_s, u"Yes"_s, u"Yes"_s}));
}

TEST_F(Styles, ShowASwitchAsOnOnlyForTheExactWord)
{
    shop().CSSs.Item(u"IDgeneral_header"_s)->IsBold = u"yes"_s;
    openManager("HeaderDesignSBtn");
    QDialog* form = openStyle("general_header");
    EXPECT_FALSE(part<QCheckBox>(form, "Check1")->isChecked());
    press(form, "CancelBtn");
}

TEST_F(Styles, LeaveTheWheelOverAClosedListToThePanelAroundIt)
{
    openManager("FooterDesignSBtn");
    auto* list = in<QComboBox>("FontNameLst");
    ASSERT_GT(list->count(), 1);
    list->setCurrentIndex(0);
    QWheelEvent wheel(QPointF(5, 5), list->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    static_cast<QObject*>(list)->event(&wheel);
    EXPECT_EQ(list->currentIndex(), 0);
    EXPECT_FALSE(wheel.isAccepted()); // what is not accepted goes on to the widget around it
}

TEST(Swatches, HaveFourEqualEdgesAtAnyScale)
{
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        const QImage swatch = styleSwatch(Qt::white, Qt::white, scale).toImage();
        const int last = qRound(SwatchIconSize.height() * scale) - 1;
        const int middle = last / 2;
        const auto edge = [&](const QPoint& from, const QPoint& inward) {
            int width = 0;
            while (width < middle && swatch.pixelColor(from + width * inward) != QColor(Qt::white)) {
                ++width;
            }
            return width;
        };
        const int expected = qRound(scale);
        EXPECT_EQ(edge({0, middle}, {1, 0}), expected) << "left at " << scale;
        EXPECT_EQ(edge({middle, 0}, {0, 1}), expected) << "top at " << scale;
        EXPECT_EQ(edge({last, middle}, {-1, 0}), expected) << "right at " << scale;
        EXPECT_EQ(edge({middle, last}, {0, -1}), expected) << "bottom at " << scale;
    }
}

} // namespace
