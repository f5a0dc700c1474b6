// The keys of the window's commands: what each does, where it is shown, and when it does nothing.
#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"
#include "shell/WindowKeys.h"
#include "support/WindowTest.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class Keys : public WindowTest
{
protected:
    void SetUp() override
    {
        useSampleShop(); // for its templates
        useShop("<Version>1.2.0</Version><MaxProductId>9</MaxProductId><Name>Fern</Name><SelectedCountries/>"
                "<Category><Id>2</Id><Name>Tea</Name>"
                "<Product><Id>4</Id><Name>Sencha</Name><Related/></Product></Category>");
        start();
    }

    static void press(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QTest::keyClick(widget, key, modifiers);
    }
    bool isSaved(const char* name) const
    {
        return fileBytes(files.path(u"shop.xml"_s)).contains("<Name>" + QByteArray(name) + "</Name>");
    }
    CatalogueTree* tree() const { return window->parts().CategoriesAndProductsTree; }
};

TEST_F(Keys, OfTheModesLeadToThemByTheirNumbers)
{
    const std::pair<Qt::Key, qint16> modes[] = {{Qt::Key_2, MainForm::PreviewMode},
                                                {Qt::Key_3, MainForm::DesignMode},
                                                {Qt::Key_1, MainForm::CatalogueMode},
                                                {Qt::Key_3, MainForm::DesignMode}};
    for (const auto& [key, mode] : modes) {
        press(window.get(), key);
        EXPECT_EQ(window->WorkMode, mode);
    }
}

TEST_F(Keys, SaveWhatIsBeingTyped)
{
    auto* name = find<QLineEdit>("ShopNameTxt");
    name->setFocus();
    name->setText(u"Moss"_s);
    press(name, Qt::Key_S);
    EXPECT_TRUE(isSaved("Moss"));
    EXPECT_TRUE(name->hasFocus());
}

TEST_F(Keys, AreShownBesideTheEntriesOfTheMenusAndNowhereElse)
{
    const std::pair<const char*, const char*> entries[] = {{"mnuSaveShop", "Ctrl+S"},
                                                           {"mnuProductsCatalog", "Ctrl+1"},
                                                           {"mnuShopPreview", "Ctrl+2"},
                                                           {"mnuShopDesign", "Ctrl+3"},
                                                           {"mnuUpload", ""},
                                                           {"mnuImport", ""},
                                                           {"mnuBackUp", ""},
                                                           {"mnuRestore", ""}};
    for (const auto& [name, key] : entries) {
        const auto* entry = find<QAction>(name);
        EXPECT_EQ(entry->shortcut().toString(QKeySequence::PortableText), QLatin1String(key)) << name;
        EXPECT_FALSE(entry->text().contains(u'\t')) << name;
        EXPECT_TRUE(key[0] == '\0' || !entry->autoRepeat()) << name;
    }
    for (const ShortcartButton* button : window->parts().buttons) {
        EXPECT_EQ(button->findChild<QLabel*>(u"IconImg"_s)->toolTip(), button->ShortCartTitle());
    }
}

TEST_F(Keys, BelongToWhatTheyWorkOnAndNotToTheWindow)
{
    EXPECT_TRUE(window->actions().isEmpty());
    EXPECT_TRUE(tree()->actions().contains(find<QAction>(findCommand)));
    EXPECT_TRUE(find("MainFrame")->actions().contains(find<QAction>(guideCommand)));
    EXPECT_TRUE(find("ShopDesignFrame")->actions().contains(find<QAction>(guideCommand)));
    // The tree is not on the screen: its key does nothing.
    press(window.get(), Qt::Key_3);
    press(window.get(), Qt::Key_F);
    EXPECT_TRUE(find("FindLine")->isHidden());
}

TEST_F(Keys, DoNothingWhileTheirEntryIsOff)
{
    for (const char* name : {"mnuSaveShop", "mnuShopPreview", "mnuShopDesign"}) {
        find<QAction>(name)->setEnabled(false);
    }
    const QByteArray before = fileBytes(files.path(u"shop.xml"_s));
    find<QLineEdit>("ShopNameTxt")->setText(u"Moss"_s);
    for (const Qt::Key key : {Qt::Key_S, Qt::Key_2, Qt::Key_3}) {
        press(window.get(), key);
    }
    EXPECT_EQ(fileBytes(files.path(u"shop.xml"_s)), before);
    EXPECT_EQ(window->WorkMode, MainForm::CatalogueMode);
}

TEST_F(Keys, DoNothingWhileADialogIsUp)
{
    const QByteArray before = fileBytes(files.path(u"shop.xml"_s));
    find<QLineEdit>("ShopNameTxt")->setText(u"Moss"_s);
    bool wasUp = false;
    QTimer::singleShot(0, window.get(), [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        wasUp = true;
        for (const Qt::Key key : {Qt::Key_S, Qt::Key_2, Qt::Key_3, Qt::Key_F}) {
            press(dialog, key);
            press(window.get(), key);
        }
        press(dialog, Qt::Key_F1, Qt::NoModifier);
        dialog->reject();
    });
    trigger("mnuUpload");
    EXPECT_TRUE(wasUp);
    EXPECT_EQ(fileBytes(files.path(u"shop.xml"_s)), before);
    EXPECT_EQ(window->WorkMode, MainForm::CatalogueMode);
    EXPECT_TRUE(find("FindLine")->isHidden());
}

TEST_F(Keys, OpenThePopUpOfTheTreeAtTheCurrentRow)
{
    clickNode(u"ID2"_s);
    const QRect row = tree()->visualRect(tree()->currentIndex());
    auto* menu = find<QMenu>("mnuPopUp");
    const auto expectPopUp = [&] {
        EXPECT_TRUE(menu->isVisible());
        EXPECT_TRUE(row.contains(tree()->viewport()->mapFromGlobal(menu->pos())));
        EXPECT_TRUE(find<QAction>("mnuAddProduct")->isVisible());
        menu->hide();
    };
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(tree(), &menuKey);
    expectPopUp();
    press(tree(), Qt::Key_F10, Qt::ShiftModifier);
    expectPopUp();
    // The mouse's own comes with the release of its button, not with this event.
    QContextMenuEvent mouse(QContextMenuEvent::Mouse, row.center(), tree()->viewport()->mapToGlobal(row.center()));
    QApplication::sendEvent(tree()->viewport(), &mouse);
    EXPECT_FALSE(menu->isVisible());
}

TEST_F(Keys, TakeEachCommandOfThePopUp)
{
    const auto take = [this](const char* node, const char* entry) {
        clickNode(QLatin1String(node));
        tree()->setFocus();
        press(tree(), Qt::Key_F10, Qt::ShiftModifier);
        auto* menu = find<QMenu>("mnuPopUp");
        ASSERT_TRUE(menu->isVisible());
        for (int key = 0; key < 10 && menu->activeAction() != find<QAction>(entry); ++key) {
            press(menu, Qt::Key_Down, Qt::NoModifier);
        }
        press(menu, Qt::Key_Return, Qt::NoModifier);
    };
    take("ID_SHOP", "mnuAddCategory");
    EXPECT_EQ(window->SelectedNode->text, u"New Category"_s);
    take("ID2", "mnuAddProduct");
    EXPECT_EQ(window->SelectedNode->text, u"New Product"_s);
    take("ID4", "mnuDuplicateProduct");
    EXPECT_EQ(window->SelectedNode->text, u"Sencha copy"_s);
    prompts.answerYesNo(u"Warning"_s, u"Are you sure you want to remove this product"_s, true);
    take("ID4", "mnuRemoveProduct");
    EXPECT_EQ(tree()->nodes().nodeWithKey(u"ID4"_s), nullptr);
    prompts.answerYesNo(u"Warning"_s, u"Are you sure you want to remove this category"_s, true);
    take("ID2", "mnuRemoveCategory");
    EXPECT_EQ(tree()->nodes().nodeWithKey(u"ID2"_s), nullptr);
}

TEST(KeysOfTheGuide, AreAllThatTheWindowHas)
{
    const QString page = QString::fromUtf8(fileBytes(QStringLiteral(TARNWICK_SOURCE_DIR "/docs/guide/keys.md")));
    for (const WindowKey& key : windowKeys()) {
        EXPECT_TRUE(page.contains(u"| "_s + QLatin1String(key.keys) + u" |"_s)) << key.keys;
    }
}

} // namespace
