// The choice of custom pages for the menus and for the home page.
#include "CustomPagesTest.h"
#include "editors/design/pickers/frmSelectedCustomPages.h"
#include "editors/design/pickers/ucSelectCustPage.h"

#include <QGroupBox>
#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

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

TEST_F(PageLists, ShowTheFirstNameAloneWhereOneChoiceIsAllowed)
{
    for (const QStringList& names : {QStringList{u"About"_s, u"Care"_s}, QStringList{u"Care"_s, u"Home page"_s},
                                     QStringList{u"Shopping cart page"_s, u"About"_s}}) {
        choose(lists[4], names);
        QDialog* form = openList(lists[4]);
        EXPECT_EQ(ticked(form), names.mid(0, 1));
        press(form, "OkBtn");
        EXPECT_EQ(chosen(lists[4]), names.mid(0, 1));
    }
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
