// The custom pages: their manager, and the choice of pages for the menus and for the home page.
#include "DesignTest.h"
#include "design/CustomPageClass.h"
#include "editors/design/frmSelectedCustomPages.h"
#include "editors/design/ucSelectCustPage.h"

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList namesOf(const clsSelectedCustomPages& selection)
{
    QStringList names;
    for (const QString& name : selection.selectedPages()) {
        names << name;
    }
    return names;
}

class CustomPages : public DesignTest
{
protected:
    void SetUp() override
    {
        openDesign();
        shop().CustomPages.Clear();
        for (const char* name : {"About", "Delivery", "Care"}) {
            auto page = std::make_shared<CustomPageClass>();
            page->pageName = QLatin1String(name);
            page->ContentText = u"text of "_s + page->pageName;
            page->ImageName = u"picture.png"_s;
            page->ImageAligment = u"Right"_s;
            shop().CustomPages.Add(page, page->pageName);
        }
        openManager("CustomPagesDesignSBtn");
    }

    QListWidget* list() const { return in<QListWidget>("CustomPagesListCtl"); }
    QLineEdit* nameField() const { return in<QLineEdit>("PageNameTextCtl"); }
    QPlainTextEdit* textField() const { return in<QPlainTextEdit>("PageContentTextCtl"); }

    void select(int row) const
    {
        list()->scrollToItem(list()->item(row));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, list()->visualItemRect(list()->item(row)).center());
    }
    QStringList listed() const
    {
        QStringList names;
        for (int row = 0; row < list()->count(); ++row) {
            names << list()->item(row)->text();
        }
        return names;
    }
    QStringList pages() const
    {
        QStringList names;
        for (const auto& page : shop().CustomPages) {
            EXPECT_EQ(shop().CustomPages.Item(page->pageName), page);
            names << page->pageName;
        }
        return names;
    }
    const QString title = u"Ambrel eCommerce Software"_s;
};

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
    for (const QString& name : {QString(), u"Care"_s, u"CARE"_s, u"Home page"_s, u"Shopping cart page"_s}) {
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

TEST_F(CustomPages, LeaveTheSelectionsAloneWhenTheyAreRenamed)
{
    const auto& selection = design().Pages(PageSelection::FooterCustomPageSelected);
    selection->Clear();
    selection->Add(u"Delivery"_s);
    select(1);
    type(nameField(), u"Shipping"_s);
    pressIn("imgButtonSubmit");
    EXPECT_EQ(namesOf(*selection), QStringList{u"Delivery"_s});
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

// The choice of pages
// ---------------------------------------------------------------------------------------------------

struct ListCase
{
    const char* button;
    const char* control;
    PageSelection selection;
    const char* tag;
    bool several;
};
constexpr ListCase lists[] = {
    {"HeaderDesignSBtn", "lblSelectedCustomPageBttn", PageSelection::HeaderCustomPageSelected, "HEADER_MENU_LIST",
     true},
    {"FooterDesignSBtn", "lblSelectedCustomPageBttn", PageSelection::FooterCustomPageSelected, "FOOTER_MENU_LIST",
     true},
    {"MenuDesignSBtn", "lblSelectedCustomPageBttn", PageSelection::MenuCustomPageSelected, "LEFT_MENU_MENU_LIST", true},
    {"MainPageDesignSBtn", "lblMainPageMenuList", PageSelection::MainPageMenuList, "MAIN_PAGE_MENU_LIST", true},
    {"MainPageDesignSBtn", "lblShowCustomPageAsMain", PageSelection::CustomPageAsMainPage, "CUSTOM_PAGE_AS_MAIN_PAGE",
     false},
};

class PageLists : public CustomPages
{
protected:
    QDialog* openList(const ListCase& row)
    {
        openManager(row.button);
        pressIn(row.control);
        return dialog("frmSelectedCustomPages");
    }
    static QCheckBox* box(const QDialog* form, int index)
    {
        return form->findChild<QCheckBox*>(u"chkSelectPage%1"_s.arg(index));
    }
    static QListWidget* pagesIn(const QDialog* form) { return form->findChild<QListWidget*>(u"lstSelectedPages"_s); }
    static void clickPage(const QDialog* form, int row)
    {
        QListWidget* pages = pagesIn(form);
        QTest::mouseClick(pages->viewport(), Qt::LeftButton, {}, pages->visualItemRect(pages->item(row)).center());
    }
    // What is ticked, boxes first.
    static QStringList ticked(const QDialog* form)
    {
        QStringList names;
        for (const int index : {0, 1}) {
            if (box(form, index)->isChecked()) {
                names << box(form, index)->text();
            }
        }
        for (int row = 0; row < pagesIn(form)->count(); ++row) {
            if (pagesIn(form)->item(row)->checkState() == Qt::Checked) {
                names << pagesIn(form)->item(row)->text();
            }
        }
        return names;
    }
    void choose(const ListCase& row, const QStringList& names)
    {
        const auto& selection = design().Pages(row.selection);
        selection->Clear();
        for (const QString& name : names) {
            selection->Add(name);
        }
    }
    QStringList chosen(const ListCase& row) const { return namesOf(*design().Pages(row.selection)); }
};

TEST_F(PageLists, AreOpenedOnTheirSelectionAndReachTheShopFile)
{
    for (const ListCase& row : lists) {
        SCOPED_TRACE(row.tag);
        choose(row, {u"Delivery"_s});
        QDialog* form = openList(row);
        EXPECT_EQ(ticked(form), QStringList{u"Delivery"_s});
        EXPECT_EQ(form->windowModality(), Qt::WindowModal);
        EXPECT_EQ(form->findChild<QGroupBox*>(u"Frame1"_s)->title(), u"List of custom pages"_s);
        EXPECT_EQ(box(form, 0)->text(), u"Home page"_s);
        EXPECT_EQ(box(form, 1)->text(), u"Shopping cart page"_s);
        clickPage(form, 2);
        press(form, "OkBtn");
        const QStringList expected = row.several ? QStringList{u"Delivery"_s, u"Care"_s} : QStringList{u"Care"_s};
        EXPECT_EQ(chosen(row), expected);
        EXPECT_EQ(in<QLabel>((QByteArray(row.control) + "Value").constData())->text(), expected.join(u", "_s));
        saveShop();
        QStringList written;
        for (const pugi::xml_node page :
             file.document_element().child("Shop").child("ShopDesign").child(row.tag).children("PAGES")) {
            written << QString::fromUtf8(page.child("SelectedPage").text().get());
        }
        EXPECT_EQ(written, expected);
    }
}

TEST_F(PageLists, StandInTheMenusAsTheyWereChosen)
{
    QDialog* form = openList(lists[1]);
    for (const int index : {0, 1}) {
        if (box(form, index)->isChecked()) {
            tick(box(form, index));
        }
    }
    clickPage(form, 0);
    press(form, "OkBtn");
    EXPECT_EQ(chosen(lists[1]), QStringList{u"About"_s});
    click("PreviewBrowserSBtn");
    const QString page = preview->documents.last();
    const QString footer = page.mid(page.indexOf(u"<footer"));
    EXPECT_TRUE(footer.contains(u"name=About"));
    EXPECT_FALSE(footer.contains(u"name=Home"));
}

TEST_F(PageLists, ShowNoPagesButTheTwoBoxesInAShopWithoutCustomPages)
{
    shop().CustomPages.Clear();
    QDialog* form = openList(lists[0]);
    EXPECT_EQ(pagesIn(form)->count(), 0);
    EXPECT_TRUE(box(form, 0)->isVisible());
    EXPECT_TRUE(box(form, 1)->isVisible());
    press(form, "CancelBtn");
}

TEST_F(PageLists, KeepTheirOrderWhenTheyAreConfirmedUnchanged)
{
    choose(lists[0], {u"Home page"_s, u"About"_s});
    press(openList(lists[0]), "OkBtn");
    EXPECT_EQ(chosen(lists[0]), (QStringList{u"Home page"_s, u"About"_s}));
}

TEST_F(PageLists, PutTheHomePageFirstWhateverTheOrderWas)
{
    choose(lists[0], {u"Care"_s, u"About"_s, u"Home page"_s});
    press(openList(lists[0]), "OkBtn");
    EXPECT_EQ(chosen(lists[0]), (QStringList{u"Home page"_s, u"About"_s, u"Care"_s}));
}

TEST_F(PageLists, LoseANameThatIsNoPageOfTheShop)
{
    choose(lists[0], {u"Gone"_s, u"about"_s, u"Care"_s});
    QDialog* form = openList(lists[0]);
    EXPECT_EQ(ticked(form), QStringList{u"Care"_s});
    press(form, "OkBtn");
    EXPECT_EQ(chosen(lists[0]), QStringList{u"Care"_s});
}

TEST_F(PageLists, StayAsTheyWereAfterCancel)
{
    choose(lists[0], {u"Gone"_s, u"About"_s});
    QDialog* form = openList(lists[0]);
    clickPage(form, 1);
    press(form, "CancelBtn");
    EXPECT_EQ(chosen(lists[0]), (QStringList{u"Gone"_s, u"About"_s}));
}

TEST_F(PageLists, TakeOneChoiceForTheHomePageAcrossBoxesAndList)
{
    choose(lists[4], {u"About"_s});
    QDialog* form = openList(lists[4]);
    tick(box(form, 1));
    EXPECT_EQ(ticked(form), QStringList{u"Shopping cart page"_s});
    clickPage(form, 1);
    EXPECT_EQ(ticked(form), QStringList{u"Delivery"_s});
    clickPage(form, 2);
    EXPECT_EQ(ticked(form), QStringList{u"Care"_s});
    tick(box(form, 0));
    EXPECT_EQ(ticked(form), QStringList{u"Home page"_s});
    tick(box(form, 0));
    EXPECT_EQ(ticked(form), QStringList());
    press(form, "OkBtn");
    EXPECT_EQ(chosen(lists[4]), QStringList());
}

TEST_F(PageLists, AreBackAtSeveralChoicesAfterTheHomePageWasChosen)
{
    for (const char* button : {"OkBtn", "CancelBtn"}) {
        SCOPED_TRACE(button);
        press(openList(lists[4]), button);
        choose(lists[3], {});
        QDialog* form = openList(lists[3]);
        clickPage(form, 0);
        clickPage(form, 1);
        tick(box(form, 0));
        EXPECT_EQ(ticked(form).size(), 3);
        press(form, "CancelBtn");
    }
    QDialog* form = openList(lists[4]);
    QTest::keyClick(form, Qt::Key_Escape);
    form = openList(lists[3]);
    clickPage(form, 0);
    clickPage(form, 1);
    EXPECT_EQ(ticked(form).size(), 2);
    press(form, "CancelBtn");
}

TEST_F(PageLists, DecideWhatThePreviewOpensWith)
{
    const std::pair<int, QString> choices[] = {{1, u"text of Delivery"_s}, {0, u"text of About"_s}};
    for (const auto& [row, text] : choices) {
        QDialog* form = openList(lists[4]);
        clickPage(form, row);
        press(form, "OkBtn");
        trigger("mnuShopPreview");
        EXPECT_TRUE(preview->documents.last().contains(text));
        trigger("mnuShopDesign");
    }
}

TEST_F(PageLists, TickWithTheSpaceBar)
{
    choose(lists[0], {});
    QDialog* form = openList(lists[0]);
    QListWidget* pages = pagesIn(form);
    pages->setFocus();
    pages->setCurrentRow(1);
    QTest::keyClick(pages, Qt::Key_Space);
    EXPECT_EQ(ticked(form), QStringList{u"Delivery"_s});
    press(form, "CancelBtn");
}

} // namespace
