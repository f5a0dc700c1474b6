// The choice between an image and a text for the slots of the pages, and the plain image slot.
#include "DesignTest.h"
#include "design/CSSClass.h"
#include "editors/LinkLabel.h"
#include "editors/design/FontAndColorEditorPanel.h"
#include "editors/design/pickers/BrowseButtonImageControl.h"
#include "editors/design/pickers/PictureBox.h"
#include "editors/design/ucSelectImageOrText.h"

#include <QDir>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct SlotCase
{
    const char* button;
    const char* control;
    ImageSlot slot;
    const char* tag;
};
constexpr SlotCase slotCases[] = {
    {"HeaderDesignSBtn", "lblLogo", ImageSlot::HeaderLogo, "HEADER_LOGO"},
    {"HeaderDesignSBtn", "lblSearchButton", ImageSlot::HeaderSearchButton, "HEADER_SEARCH_BUTTON"},
    {"HeaderDesignSBtn", "lblShoppingCartButton", ImageSlot::HeaderShoppingCartButton, "HEADER_SHOPPINGCART_BUTTON"},
    {"MenuDesignSBtn", "lblSearchButton", ImageSlot::MenuSearchButton, "MENU_SEARCH_BUTTON"},
    {"MenuDesignSBtn", "lblShoppingCartButton", ImageSlot::MenuShoppingCartButton, "MENU_SHOPPINGCART_BUTTON"},
    {"MainPageDesignSBtn", "lblSearchBoxButton", ImageSlot::MainSearchButton, "MAIN_SEARCH_BUTTON"},
    {"CategoryPageDesignSBtn", "lblCartButton", ImageSlot::CategoryCartButton, "CATEGORY_CART_BUTTON"},
    {"ProductPageDesignSBtn", "lblCartButton", ImageSlot::ProductCartButton, "PRODUCT_CART_BUTTON"},
    {"SearchPageDesignSBtn", "lblCartButton", ImageSlot::SearchPageShoppingCartButton,
     "SEARCHPAGE_SHOPPINGCART_BUTTON"},
    {"ShoppingCartPageDesignSBtn", "lblRecalculateButton", ImageSlot::CartRecalculateButton,
     "CARTPAGE_RECALCULATE_BUTTON"},
    {"ShoppingCartPageDesignSBtn", "lblCheckoutButton", ImageSlot::CartPage_Checkout_Button,
     "CARTPAGE_CHECKOUT_BUTTON"},
    {"BuyingFormDesignSBtn", "lblMakeOrder", ImageSlot::BuyingFormMakeOrderButton, "BUYINGFORM_MAKEORDER_BUTTON"},
};

class ImageSlots : public DesignTest
{
protected:
    void SetUp() override
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, files.path(u"settings"_s));
        useSampleShop();
        for (const auto& [name, size] : {std::pair("aa.png", QSize(120, 40)), std::pair("AA.PNG", QSize(5, 6))}) {
            QImage image(size, QImage::Format_RGB32);
            image.fill(Qt::red);
            ASSERT_TRUE(image.save(files.path(u"pictures/"_s + QLatin1String(name)), "PNG"));
        }
        start();
        click("ShopDesignSBtn");
    }

    clsSelectedImage& slot(ImageSlot slot) const { return *design().Image(slot); }
    QDialog* openSlot(const SlotCase& row)
    {
        openManager(row.button);
        pressIn(row.control);
        return dialog("frmSelectImageOrText");
    }
    static QListWidget* images(const QDialog* form) { return form->findChild<QListWidget*>(u"lstImages"_s); }
    static QCheckBox* chkText(const QDialog* form) { return form->findChild<QCheckBox*>(u"chkText"_s); }
    static QLineEdit* txtText(const QDialog* form) { return form->findChild<QLineEdit*>(u"txtText"_s); }
    static QString selected(const QDialog* form)
    {
        const QList<QListWidgetItem*> items = images(form)->selectedItems();
        return items.isEmpty() ? QString() : items.first()->text();
    }
    static void clickImage(const QDialog* form, const QString& name)
    {
        QListWidget* list = images(form);
        for (QListWidgetItem* item : list->findItems(name, Qt::MatchExactly | Qt::MatchCaseSensitive)) {
            list->scrollToItem(item);
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
        }
    }
    QString valueLabel(const SlotCase& row) const
    {
        return in<QLabel>((QByteArray(row.control) + "Value").constData())->text();
    }
    // The slot's element in the file that was saved, child by child.
    QStringList savedSlot(const SlotCase& row) const
    {
        QStringList texts;
        for (const pugi::xml_node child : file.document_element().child("Shop").child("ShopDesign").child(row.tag)) {
            texts << QString::fromUtf8(child.text().get());
        }
        return texts;
    }
};

TEST_F(ImageSlots, AreOpenedByTheirButtonsOnTheirValuesAndReachTheShopFile)
{
    for (const SlotCase& row : slotCases) {
        SCOPED_TRACE(row.tag);
        clsSelectedImage& image = slot(row.slot);
        image.SelectionType = ImageSelection::Image;
        image.imageFileName = u"logo.png"_s;
        image.TextValue = u"text of "_s + QLatin1String(row.tag);
        QDialog* form = openSlot(row);
        EXPECT_EQ(form->windowModality(), Qt::WindowModal);
        EXPECT_EQ(selected(form), u"logo.png"_s);
        EXPECT_EQ(txtText(form)->text(), image.TextValue);
        EXPECT_FALSE(chkText(form)->isChecked());
        EXPECT_TRUE(images(form)->isEnabled());
        EXPECT_FALSE(txtText(form)->isEnabled());
        clickImage(form, u"aa.png"_s);
        press(form, "OkBtn");
        EXPECT_EQ(valueLabel(row), u"Image: aa.png"_s);
        saveShop();
        EXPECT_EQ(savedSlot(row), (QStringList{u"Image"_s, u"aa.png"_s, image.TextValue, u"120"_s, u"40"_s}));
    }
}

TEST_F(ImageSlots, ShowInTheNextPage)
{
    QDialog* form = openSlot(slotCases[0]);
    clickImage(form, u"aa.png"_s);
    press(form, "OkBtn");
    click("PreviewBrowserSBtn");
    EXPECT_TRUE(preview->documents.last().contains(u"pictures/aa.png\""_s));
    EXPECT_TRUE(preview->documents.last().contains(u"width=\"120\" height=\"40\""_s));
}

// The size of the picture cannot be read, so that a shop with it could not be saved. A text needs none.
TEST_F(ImageSlots, TakeAPictureByADoubleClick)
{
    QDialog* form = openSlot(slotCases[0]);
    clickImage(form, u"aa.png"_s);
    auto* list = form->findChild<QListWidget*>(u"lstImages"_s);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->currentItem()).center());
    EXPECT_FALSE(form->isVisible());
    saveShop();
    EXPECT_EQ(savedSlot(slotCases[0]).value(1), u"aa.png"_s);
}

TEST_F(ImageSlots, TakeNoPictureThatIsBroken)
{
    writeFile(files.path(u"pictures/broken.png"_s), "no picture at all");
    QDialog* form = openSlot(slotCases[0]);
    auto* ok = form->findChild<QPushButton*>(u"OkBtn"_s);
    EXPECT_TRUE(ok->isEnabled());
    clickImage(form, u"broken.png"_s);
    EXPECT_EQ(form->findChild<PictureBox*>(u"imgPreview"_s)->message(), u"Invalid picture"_s);
    EXPECT_FALSE(ok->isEnabled());
    tick(chkText(form));
    EXPECT_TRUE(ok->isEnabled());
    tick(chkText(form));
    EXPECT_FALSE(ok->isEnabled());
    clickImage(form, u"aa.png"_s);
    EXPECT_TRUE(ok->isEnabled());
    clickImage(form, u"broken.png"_s);
    press(form, "CancelBtn");
    saveShop();
    EXPECT_EQ(savedSlot(slotCases[0]).value(1), u"logo.png"_s);
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(ImageSlots, TakeATextAndKeepTheirFile)
{
    QDialog* form = openSlot(slotCases[0]);
    tick(chkText(form));
    EXPECT_FALSE(images(form)->isEnabled());
    EXPECT_FALSE(form->findChild<QLineEdit*>(u"txtFilter"_s)->isEnabled());
    EXPECT_TRUE(txtText(form)->isEnabled());
    type(txtText(form), u"My shop"_s);
    press(form, "OkBtn");
    EXPECT_EQ(valueLabel(slotCases[0]), u"Text: My shop"_s);
    saveShop();
    EXPECT_EQ(savedSlot(slotCases[0]).mid(0, 3), (QStringList{u"Text"_s, u"logo.png"_s, u"My shop"_s}));
    // It is shown as a text the next time, with the file's entry still selected.
    form = openSlot(slotCases[0]);
    EXPECT_TRUE(chkText(form)->isChecked());
    EXPECT_EQ(selected(form), u"logo.png"_s);
    EXPECT_EQ(txtText(form)->text(), u"My shop"_s);
    press(form, "CancelBtn");
}

TEST_F(ImageSlots, TakeNoTextThatWasTypedWhenAnImageIsChosen)
{
    const QString before = slot(ImageSlot::HeaderLogo).TextValue;
    QDialog* form = openSlot(slotCases[0]);
    tick(chkText(form));
    type(txtText(form), u"My shop"_s);
    tick(chkText(form));
    press(form, "OkBtn");
    EXPECT_EQ(slot(ImageSlot::HeaderLogo).TextValue, before);
    EXPECT_EQ(slot(ImageSlot::HeaderLogo).SelectionType, ImageSelection::Image);
}

TEST_F(ImageSlots, StayAsTheyWereAfterCancel)
{
    QDialog* form = openSlot(slotCases[0]);
    clickImage(form, u"aa.png"_s);
    press(form, "CancelBtn");
    form = openSlot(slotCases[0]);
    tick(chkText(form));
    press(form, "CancelBtn");
    EXPECT_EQ(slot(ImageSlot::HeaderLogo).imageFileName, u"logo.png"_s);
    EXPECT_EQ(slot(ImageSlot::HeaderLogo).SelectionType, ImageSelection::Image);
}

TEST_F(ImageSlots, SelectTheirFileOnAnExactMatchOnly)
{
    const std::pair<QString, QString> names[] = {
        {u"aa.png"_s, u"aa.png"_s}, {u"AA.PNG"_s, u"AA.PNG"_s}, {u"Aa.png"_s, QString()}, {u"LOGO.png"_s, QString()}};
    for (const auto& [name, expected] : names) {
        slot(ImageSlot::HeaderLogo).imageFileName = name;
        QDialog* form = openSlot(slotCases[0]);
        EXPECT_EQ(selected(form), expected);
        press(form, "CancelBtn");
    }
}

TEST_F(ImageSlots, LeaveTheTextWhenAPictureIsAdded)
{
    slot(ImageSlot::HeaderLogo).SelectionType = ImageSelection::Text;
    const QString source = files.path(u"elsewhere.png"_s);
    ASSERT_TRUE(QFile::copy(files.path(u"pictures/aa.png"_s), source));
    QDialog* form = openSlot(slotCases[0]);
    EXPECT_TRUE(chkText(form)->isChecked());
    prompts.answerFile(source);
    press(form, "AddBttn");
    EXPECT_FALSE(chkText(form)->isChecked());
    EXPECT_EQ(selected(form), u"elsewhere.png"_s);
    EXPECT_TRUE(QFile::exists(files.path(u"pictures/elsewhere.png"_s)));
    press(form, "OkBtn");
    EXPECT_EQ(slot(ImageSlot::HeaderLogo).imageFileName, u"elsewhere.png"_s);
    EXPECT_EQ(slot(ImageSlot::HeaderLogo).SelectionType, ImageSelection::Image);
}

TEST_F(ImageSlots, ShowThePictureThatIsSelected)
{
    QDialog* form = openSlot(slotCases[0]);
    clickImage(form, u"aa.png"_s);
    const auto* shown = form->findChild<PictureBox*>(u"imgPreview"_s);
    EXPECT_EQ(shown->pictureSize().width, 120);
    clickImage(form, u"AA.PNG"_s);
    EXPECT_EQ(shown->pictureSize().width, 5);
    press(form, "CancelBtn");
}

TEST_F(ImageSlots, OpenTheStyleOfTheirText)
{
    EXPECT_FALSE(shop().CSSs.hasKey(u"IDHEADER_LOGO"_s));
    QDialog* form = openSlot(slotCases[0]);
    press(form, "btnCSS_Text");
    auto* style = form->findChild<QDialog*>(u"CSSManagementForm"_s);
    ASSERT_NE(style, nullptr);
    EXPECT_EQ(style->windowTitle(), u"Header text style"_s);
    EXPECT_EQ(style->findChild<QGroupBox*>(u"Frame1"_s)->title(), u"Header text style"_s);
    tick(style->findChild<QCheckBox*>(u"Check1"_s));
    press(style, "OkBtn");
    press(form, "CancelBtn");
    EXPECT_EQ(shop().CSSs.Item(u"IDHEADER_LOGO"_s)->IsBold, u"Yes"_s);
}

TEST_F(ImageSlots, ThatAreNeverFilledCanBeOpenedAndChangeNothing)
{
    openManager("BuyingFormDesignSBtn");
    saveShop();
    const QByteArray before = fileBytes(files.path(u"shop.xml"_s));
    pressIn("imgRecalculateButton");
    EXPECT_EQ(in<QLabel>("imgRecalculateButtonValue")->text(),
              u"Not used by this page. The form shows the one of the shopping cart page"_s);
    QDialog* form = dialog("frmSelectImageOrText");
    EXPECT_EQ(selected(form), QString());
    EXPECT_FALSE(form->findChild<QPushButton*>(u"btnCSS_Text"_s)->isEnabled());
    clickImage(form, u"aa.png"_s);
    press(form, "OkBtn");
    EXPECT_EQ(design().BuyingForm_RecalculateButton, nullptr);
    saveShop();
    EXPECT_EQ(fileBytes(files.path(u"shop.xml"_s)), before);
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(ImageSlots, NeedTheirDialogToBeNamedFirst)
{
    ucSelectImageOrText control(*window, nullptr);
    prompts.expectMessage(u"Ambrel eCommerce Software"_s, u"You didn't type parent form for user control 'ucImages'"_s,
                          PromptIcon::Critical);
    control.SetActiveObject(design().Image(ImageSlot::HeaderLogo));
    EXPECT_EQ(control.findChild<QLineEdit*>(u"txtText"_s)->text(), QString());
    EXPECT_TRUE(control.findChild<QListWidget*>(u"lstImages"_s)->selectedItems().isEmpty());
    QDialog form;
    control.SetParent(&form);
    control.SetActiveObject(design().Image(ImageSlot::HeaderLogo));
    EXPECT_EQ(control.findChild<QListWidget*>(u"lstImages"_s)->selectedItems().size(), 1);
}

TEST_F(ImageSlots, OfThePlainKindTakeAFileFromAnywhere)
{
    BrowseButtonImageControl control(*window, nullptr);
    control.show();
    const auto* picture = control.findChild<PictureBox*>(u"ImagePB"_s);
    const auto link = [&](const char* name) { return control.findChild<LinkLabel*>(QLatin1String(name)); };
    control.setImageFileName(u"aa.png"_s);
    EXPECT_EQ(picture->pictureSize().width, 120);

    const QString elsewhere = files.path(u"pictures/AA.PNG"_s);
    prompts.answerFile(elsewhere);
    press(link("BrowseBtnLbl"));
    EXPECT_EQ(prompts.fileQuestions.last(), u"Pictures (*.bmp;*.png;*jpg;*gif) (*.bmp *.png *jpg *gif)"_s);
    EXPECT_EQ(control.imageFileName(), elsewhere);
    EXPECT_EQ(picture->pictureSize().width, 5);

    prompts.answerFile(QString());
    press(link("BrowseBtnLbl"));
    EXPECT_EQ(control.imageFileName(), elsewhere);

    press(link("DeleteBtnLbl"));
    EXPECT_EQ(control.imageFileName(), QString());
    EXPECT_FALSE(picture->hasPicture());

    // A picture that cannot be shown is left out, without a message.
    control.setImageFileName(u"missing.png"_s);
    EXPECT_FALSE(picture->hasPicture());
}

} // namespace
