// Every text of every panel, dialog and menu can be read, in the light look and in the dark one: at 4.5 by WCAG 2.1,
// and at 3 while it is off.
#include "EveryScreen.h"
#include "PaintedTexts.h"
#include "editors/DateField.h"
#include "editors/Panel.h"
#include "look/Theme.h"
#include "look/WordLabel.h"
#include "shell/BottomLine.h"
#include "shell/DialogPrompts.h"
#include "shell/ShortcartButton.h"
#include "support/Hands.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

class Contrast : public EveryScreen, public testing::WithParamInterface<Scheme>
{
protected:
    void SetUp() override
    {
        EveryScreen::SetUp();
        showScheme(GetParam());
        window->resize(1300, 1000);
        QCoreApplication::processEvents();
    }
    void TearDown() override { showScheme(Scheme::Light); }

    void expectReadable(QWidget& shown, const QString& what)
    {
        QCoreApplication::processEvents();
        for (const PaintedText& text : paintedTexts(shown)) {
            if (text.place.endsWith(u"SampleLbl")) {
                continue; // it wears the shop's own colours
            }
            ++seen;
            EXPECT_GE(text.contrast, text.isOff ? 3 : 4.5)
                << '"' << text.text.toStdString() << "\" on " << text.place.toStdString() << " in "
                << what.toStdString() << ": " << text.ink.name().toStdString() << " on "
                << text.ground.name().toStdString();
        }
    }
    // The panel that is shown, with each of its tabs and with each of its options on; then all of it off.
    void expectPanelReadable(const QString& what)
    {
        Panel* panel = window->VisibleFrame;
        auto* tabs = panel->findChild<QTabWidget*>();
        for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
            if (tabs) {
                tabs->setCurrentIndex(tab);
            }
            expectReadable(*window, what);
            for (QRadioButton* option : panel->findChildren<QRadioButton*>()) {
                option->setChecked(true);
                expectReadable(*window, what);
            }
            panel->setEnabled(false);
            expectReadable(*window, what + u", off"_s);
            panel->setEnabled(true);
        }
        window->ResetActivePanel();
    }
    // Runs what opens a dialog, which may block it, and looks at the dialog while it is open.
    void expectDialogReadable(const std::function<void()>& open, const std::function<void(QDialog&)>& prepare = {})
    {
        bool isSeen = false;
        const auto look = [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            if (prepare) {
                prepare(*dialog);
            }
            expectReadable(*dialog, dialog->objectName() + u' ' + dialog->windowTitle());
            isSeen = true;
            dialog->reject();
        };
        QTimer::singleShot(0, window.get(), look);
        open();
        for (int turn = 0; turn < 20 && !isSeen; ++turn) {
            QCoreApplication::processEvents();
        }
        EXPECT_TRUE(isSeen);
    }
    void pressInPanel(const char* name)
    {
        Hands::press(window->VisibleFrame->findChild<QWidget*>(QLatin1String(name)));
    }

    int seen = 0;
};

INSTANTIATE_TEST_SUITE_P(Looks, Contrast, testing::Values(Scheme::Light, Scheme::Dark),
                         [](const auto& row) { return std::string(row.param == Scheme::Light ? "Light" : "Dark"); });

TEST_P(Contrast, IsEnoughInEveryPanelOfTheCatalogue)
{
    inEachPanelOfTheCatalogue([this] { expectPanelReadable(window->VisibleFrame->objectName()); });
    EXPECT_GT(seen, 500);
}

TEST_P(Contrast, IsEnoughInEveryPanelOfTheDesign)
{
    click("ShopDesignSBtn");
    for (const ShortcartButton* button : find("ShopDesignMenuFrame")->findChildren<ShortcartButton*>()) {
        click(button->objectName().toLatin1().constData());
        expectPanelReadable(button->objectName());
    }
    EXPECT_GT(seen, 500);
}

TEST_P(Contrast, IsEnoughInTheCalendarAndTheMenus)
{
    click("ShopDiscountSBtn");
    auto* from = window->VisibleFrame->findChild<DateField*>(u"DateFromTxt"_s);
    window->VisibleFrame->findChild<QRadioButton*>(u"ApplyOpt"_s)->setChecked(true);
    Hands::press(from);
    auto* month = window->VisibleFrame->findChild<QWidget*>(u"DateMV"_s);
    ASSERT_NE(month, nullptr);
    expectReadable(*month, u"the calendar"_s);
    month->hide();
    for (const char* name : {"mnuShop", "mnuTools", "mnuPopUp"}) {
        auto* menu = find<QMenu>(name);
        menu->popup(QPoint(20, 20));
        menu->actions().front()->setEnabled(false);
        expectReadable(*menu, QLatin1String(name));
        menu->setActiveAction(menu->actions().at(1));
        expectReadable(*menu, QLatin1String(name));
        menu->actions().front()->setEnabled(true);
        menu->hide();
    }
    EXPECT_GT(seen, 60);
}

TEST_P(Contrast, IsEnoughInEveryDialog)
{
    clickNode(u"ID2"_s);
    expectDialogReadable([&] { pressInPanel("BrowseBtnLbl"); });
    trigger("mnuShopDesign");
    click("HeaderDesignSBtn");
    expectDialogReadable([&] { pressInPanel("btnCSS_general_header"); });
    for (const bool isText : {false, true}) {
        expectDialogReadable([&] { pressInPanel("lblLogo"); },
                             [&](QDialog& dialog) {
                                 dialog.findChild<QCheckBox*>(u"chkText"_s)->setChecked(isText);
                                 dialog.findChild<QLineEdit*>(u"txtFilter"_s)->setText(isText ? u"none"_s : u"c"_s);
                             });
    }
    expectDialogReadable([&] { pressInPanel("lblSelectedCustomPageBttn"); });
    expectDialogReadable([&] { trigger("mnuUpload"); });
    EXPECT_GT(seen, 60);
}

TEST_P(Contrast, IsEnoughInTheBoxesOfTheToolkit)
{
    DialogPrompts real;
    real.setParentWindow(window.get());
    expectDialogReadable([&] { real.showMessage(u"Error"_s, u"The file cannot be read."_s, PromptIcon::Critical); });
    expectDialogReadable([&] { real.askYesNoCancel(u"Exit"_s, u"Do you want save changes?"_s); });
    expectDialogReadable([&] { real.askText(u"Backing up"_s, u"Enter file name"_s); });
    expectDialogReadable([&] { real.chooseFile(files.folder().picturesFolder(), u"All files (*)"_s); });
    expectDialogReadable([&] { real.chooseColour(0x885d48); });
    EXPECT_GT(seen, 40);
}

TEST_P(Contrast, IsEnoughInTheBottomLineAndTheLineThatFinds)
{
    const auto expectShownAndReadable = [this](const char* words) {
        expectReadable(*window, QLatin1String(words));
        const QList<PaintedText> texts = paintedTexts(*window);
        EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), [&](const PaintedText& text) {
            return text.text == QLatin1String(words);
        })) << words;
    };
    trigger("mnuSaveShop");
    expectShownAndReadable("Saved 14:03");
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    expectShownAndReadable("Name or code");
    Hands::pressKeys(window->focusWidget(), u"marzipan"_s);
    expectShownAndReadable("Nothing found");
    window->parts().frmCopyright->tellFailure(u"Line 17 of the import is not understood"_s);
    expectShownAndReadable("Line 17 of the import is not understood");
    trigger("mnuShopPreview");
    for (const char* button : {"PhoneWidthBtn", "FullWidthBtn"}) {
        Hands::press(find(button));
        expectShownAndReadable("820 px");
    }
}

// The test sees what it should see.
TEST(ContrastItself, IsMeasuredOnWhatATextStandsOn)
{
    EXPECT_NEAR(contrastBetween(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrastBetween(QColor(0x777777), Qt::white), 4.48, 0.01);

    QWidget box;
    box.resize(200, 60);
    WordLabel label(WordLabel::Kind::Heading, u"Readable?"_s, &box);
    QPalette colours = label.palette();
    colours.setColor(QPalette::Window, QColor(0x777777));
    colours.setColor(QPalette::WindowText, QColor(0xffffff));
    label.setPalette(colours);
    label.setAutoFillBackground(true);
    label.resize(200, 60);
    box.show();
    const QList<PaintedText> texts = paintedTexts(box);
    ASSERT_EQ(texts.size(), 1);
    EXPECT_EQ(texts.front().text, u"Readable?"_s);
    EXPECT_EQ(texts.front().ground, QColor(0x777777));
    EXPECT_FALSE(texts.front().isOff);
    label.setEnabled(false);
    EXPECT_TRUE(paintedTexts(box).front().isOff);
}

} // namespace
