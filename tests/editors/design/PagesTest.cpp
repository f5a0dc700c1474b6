// The manager of the custom pages.
#include "CustomPagesTest.h"
#include "look/Tones.h"
#include "support/PageNameCases.h"

#include <QGroupBox>
#include <QImage>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

TEST_F(CustomPages, AreListedInOrderWithNoneOpen)
{
    EXPECT_EQ(listed(), (QStringList{u"About"_s, u"Delivery"_s, u"Care"_s}));
    EXPECT_EQ(list()->currentRow(), -1);
    EXPECT_FALSE(nameField()->isEnabled());
    EXPECT_FALSE(textField()->isEnabled());
}

TEST_F(CustomPages, ShowNameAndTextOfTheSelectedOne)
{
    select(1);
    EXPECT_EQ(nameField()->text(), u"Delivery"_s);
    EXPECT_EQ(textField()->toPlainText(), u"text of Delivery"_s);
    EXPECT_TRUE(nameField()->isEnabled());
    EXPECT_TRUE(textField()->isEnabled());
}

TEST_F(CustomPages, KeepWhatWasTypedWhenAnotherOneIsSelected)
{
    select(0);
    type(nameField(), u"About us"_s);
    type(textField(), u"<p>one\ntwo"_s);
    EXPECT_EQ(pages(), (QStringList{u"About"_s, u"Delivery"_s, u"Care"_s}));
    select(2);
    EXPECT_EQ(pages(), (QStringList{u"About us"_s, u"Delivery"_s, u"Care"_s}));
    EXPECT_EQ(listed(), pages());
    EXPECT_EQ(shop().CustomPages.Item(u"About us"_s)->ContentText, u"<p>one\ntwo"_s);
    EXPECT_EQ(nameField()->text(), u"Care"_s);
}

TEST_F(CustomPages, ReachTheShopFileWithTheirPicture)
{
    select(1);
    type(nameField(), u"Shipping and more"_s);
    type(textField(), u"<b>3 days</b>"_s);
    saveShop();
    QStringList names;
    for (const pugi::xml_node page : file.document_element().child("Shop").children("CustomPage")) {
        names << QString::fromUtf8(page.child("PageName").text().get());
        EXPECT_STREQ(page.child("ImageName").text().get(), "picture.png");
        EXPECT_STREQ(page.child("ImageAligment").text().get(), "Right");
    }
    EXPECT_EQ(names, (QStringList{u"About"_s, u"Shipping and more"_s, u"Care"_s}));
    EXPECT_EQ(shop().CustomPages.Item(2)->ContentText, u"<b>3 days</b>"_s);
    EXPECT_TRUE(pageAt(u"ACTION=custompage.php&name=Shipping%20and%20more"_s).contains(u"<b>3 days</b>"));
}

TEST_F(CustomPages, GoBackToTheirNameWhenTheNewOneIsEmptyOrTaken)
{
    for (const QString& name : {QString(), u"Care"_s, u"CARE"_s, u"Home page"_s, u"HOME PAGE"_s,
                                u"Shopping cart page"_s, u"SHOPPING CART PAGE"_s}) {
        SCOPED_TRACE(name.toStdString());
        select(1);
        type(nameField(), name);
        pressIn("imgButtonSubmit");
        EXPECT_EQ(nameField()->text(), u"Delivery"_s);
        EXPECT_EQ(pages(), (QStringList{u"About"_s, u"Delivery"_s, u"Care"_s}));
    }
    type(nameField(), u"DELIVERY"_s);
    pressIn("imgButtonSubmit");
    EXPECT_EQ(pages(), (QStringList{u"About"_s, u"DELIVERY"_s, u"Care"_s}));
}

TEST_F(CustomPages, GoBackToTheirNameWhenNoLinkCarriesTheNewOne)
{
    QString present = u"Delivery"_s;
    for (const PageNameCase& row : pageNameCases()) {
        if (row.name.contains(u'\t') || row.name.toUcs4().size() < row.name.size()) {
            continue; // not to be typed key by key
        }
        SCOPED_TRACE(row.name.toStdString());
        present = row.carried ? row.name : present;
        select(1);
        type(nameField(), row.name);
        select(0);
        EXPECT_EQ(pages(), (QStringList{u"About"_s, present, u"Care"_s}));
        EXPECT_EQ(listed(), pages());
    }
    // A name that came with the shop stays until another is typed.
    shop().CustomPages.Item(1)->pageName = u"Tea & cups"_s;
    pressIn("imgButtonReset");
    select(0);
    pressKeys(textField(), u"more"_s);
    pressIn("imgButtonSubmit");
    EXPECT_EQ(nameField()->text(), u"Tea & cups"_s);
}

TEST_F(CustomPages, AreRenamedAtTheirPlaceInTheFiveSelections)
{
    for (std::size_t i = 0; i < PageSelectionCount; ++i) {
        const auto& selection = design().Pages(static_cast<PageSelection>(i));
        selection->Clear();
        for (const char* name : {"About", "Delivery", "Care"}) {
            selection->Add(QLatin1String(name));
        }
    }
    const auto& withTheNewName = design().Pages(PageSelection::MainPageMenuList);
    withTheNewName->Clear();
    withTheNewName->Add(u"Delivery"_s);
    withTheNewName->Add(u"Home page"_s);
    withTheNewName->Add(u"Shipping"_s); // left by a page that was deleted
    select(1);
    type(nameField(), u"Shipping"_s);
    pressIn("imgButtonSubmit");
    for (std::size_t i = 0; i < PageSelectionCount; ++i) {
        const auto selection = static_cast<PageSelection>(i);
        EXPECT_EQ(namesOf(*design().Pages(selection)), selection == PageSelection::MainPageMenuList
                                                           ? (QStringList{u"Home page"_s, u"Shipping"_s})
                                                           : (QStringList{u"About"_s, u"Shipping"_s, u"Care"_s}))
            << i;
    }
    type(nameField(), u"SHIPPING"_s);
    pressIn("imgButtonSubmit");
    EXPECT_EQ(namesOf(*withTheNewName), (QStringList{u"Home page"_s, u"SHIPPING"_s}));
}

TEST_F(CustomPages, AreNotOpenedByTheTabKey)
{
    list()->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(list()->selectedItems().isEmpty());
    EXPECT_FALSE(nameField()->isEnabled());
}

TEST_F(CustomPages, TakeANameOfAnyLength)
{
    select(0);
    nameField()->setText(QString(40'000, u'x'));
    EXPECT_EQ(nameField()->text().size(), 40'000);
}

TEST_F(CustomPages, AreNotRewrittenWhenNothingWasTyped)
{
    shop().CustomPages.Item(1)->ContentText = u"a\r\nb\u00a0c"_s;
    select(0);
    pressIn("imgButtonSubmit");
    EXPECT_EQ(shop().CustomPages.Item(1)->ContentText, u"a\r\nb\u00a0c"_s);
    textField()->moveCursor(QTextCursor::End);
    QTest::keyClicks(textField(), u"d"_s);
    pressIn("imgButtonSubmit");
    EXPECT_EQ(shop().CustomPages.Item(1)->ContentText, u"a\nb\u00a0cd"_s);
}

TEST_F(CustomPages, EndALineByShiftAndEnterToo)
{
    shop().CustomPages.Item(1)->ContentText = u"one"_s;
    select(0);
    textField()->moveCursor(QTextCursor::End);
    QTest::keyClick(textField(), Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(textField(), u"two"_s);
    pressIn("imgButtonSubmit");
    EXPECT_EQ(shop().CustomPages.Item(1)->ContentText, u"one\ntwo"_s);
}

TEST_F(CustomPages, AreAddedUnderTheFirstFreeNameAndOpened)
{
    for (const char* name : {"New Page", "New Page 1", "New Page 2"}) {
        pressIn("AddPageBtn");
        EXPECT_EQ(nameField()->text(), QLatin1String(name));
        EXPECT_EQ(list()->currentItem()->text(), QLatin1String(name));
        EXPECT_TRUE(textField()->isEnabled());
    }
    EXPECT_EQ(pages().mid(3), (QStringList{u"New Page"_s, u"New Page 1"_s, u"New Page 2"_s}));
    prompts.answerYesNo(title, u"Do you really want to delete the page?"_s, true);
    select(4);
    pressIn("DeletePageBtn");
    pressIn("AddPageBtn");
    EXPECT_EQ(nameField()->text(), u"New Page 1"_s);
}

TEST_F(CustomPages, KeepWhatWasTypedWhenOneIsAdded)
{
    select(0);
    type(textField(), u"typed"_s);
    pressIn("AddPageBtn");
    EXPECT_EQ(shop().CustomPages.Item(1)->ContentText, u"typed"_s);
    EXPECT_EQ(textField()->toPlainText(), QString());
}

TEST_F(CustomPages, AreDeletedAfterAYes)
{
    select(1);
    prompts.answerYesNo(title, u"Do you really want to delete the page?"_s, false);
    pressIn("DeletePageBtn");
    EXPECT_EQ(pages().size(), 3);
    EXPECT_EQ(nameField()->text(), u"Delivery"_s);

    type(nameField(), u"Changed"_s);
    prompts.answerYesNo(title, u"Do you really want to delete the page?"_s, true);
    pressIn("DeletePageBtn");
    EXPECT_EQ(pages(), (QStringList{u"About"_s, u"Care"_s}));
    EXPECT_EQ(listed(), pages());
    EXPECT_EQ(nameField()->text(), QString());
    EXPECT_EQ(textField()->toPlainText(), QString());
    EXPECT_FALSE(nameField()->isEnabled());
    EXPECT_FALSE(textField()->isEnabled());
    pressIn("imgButtonSubmit");
    EXPECT_EQ(pages(), (QStringList{u"About"_s, u"Care"_s}));
}

TEST_F(CustomPages, CannotBeDeletedWhenNoneIsSelected)
{
    prompts.expectMessage(title, u"Please select Page to delete"_s);
    pressIn("DeletePageBtn");
    EXPECT_EQ(pages().size(), 3);
}

TEST_F(CustomPages, ComeBackWithResetAndStayOpen)
{
    select(1);
    type(nameField(), u"Other"_s);
    type(textField(), u"other"_s);
    pressIn("imgButtonReset");
    EXPECT_EQ(nameField()->text(), u"Delivery"_s);
    EXPECT_EQ(textField()->toPlainText(), u"text of Delivery"_s);
    EXPECT_EQ(pages(), (QStringList{u"About"_s, u"Delivery"_s, u"Care"_s}));
}

TEST_F(CustomPages, StandApartFromTheirStyleByALine)
{
    QWidget* style = in("btnCSS_general_custom_pages");
    while (!qobject_cast<QGroupBox*>(style)) {
        style = style->parentWidget();
        ASSERT_NE(style, nullptr);
    }
    EXPECT_EQ(style->grab().toImage().pixelColor(20, 0), tone(Tone::Line));
}

} // namespace
