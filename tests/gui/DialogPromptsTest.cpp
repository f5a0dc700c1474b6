// The real boxes and dialogs, answered by hand.
#include "shell/DialogPrompts.h"

#include "support/Hands.h"
#include "support/TestSupport.h"

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <functional>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class DialogPromptsTest : public testing::Test
{
protected:
    DialogPromptsTest()
    {
        prompts.setParentWindow(&window);
        window.show();
        m_patience.setSingleShot(true);
        QObject::connect(&m_patience, &QTimer::timeout, [] {
            ADD_FAILURE() << "the dialog was not answered";
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                dialog->reject();
            }
        });
    }

    // Does this once the next dialog is open, which must be of that class and belong to the window.
    template <class Dialog>
    void whenOpen(std::function<void(Dialog&)> act)
    {
        auto* hand = new QTimer(&window);
        QObject::connect(hand, &QTimer::timeout, hand, [this, hand, act] {
            QWidget* modal = QApplication::activeModalWidget();
            if (!modal || !modal->isVisible()) {
                return;
            }
            hand->stop();
            hand->deleteLater();
            auto* dialog = qobject_cast<Dialog*>(modal);
            ASSERT_NE(dialog, nullptr) << modal->metaObject()->className();
            EXPECT_EQ(dialog->parentWidget(), &window);
            act(*dialog);
        });
        hand->start(5);
        m_patience.start(5000);
    }

    QWidget window;
    DialogPrompts prompts;

private:
    QTimer m_patience;
};

struct IconRow
{
    PromptIcon icon;
    QMessageBox::Icon shown;
};

class DialogPromptsIcons : public DialogPromptsTest, public testing::WithParamInterface<IconRow>
{
};

TEST_P(DialogPromptsIcons, AMessageShowsItsTitleTextAndIconAndOneButton)
{
    bool seen = false;
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        seen = true;
        EXPECT_EQ(box.windowTitle(), u"Restoring"_s);
        EXPECT_EQ(box.text(), u"Restore is completed."_s);
        EXPECT_EQ(box.icon(), GetParam().shown);
        EXPECT_EQ(box.buttons().size(), 1);
        Hands::press(box.button(QMessageBox::Ok));
    });
    prompts.showMessage(u"Restoring"_s, u"Restore is completed."_s, GetParam().icon);
    EXPECT_TRUE(seen);
}

INSTANTIATE_TEST_SUITE_P(All, DialogPromptsIcons,
                         testing::Values(IconRow{PromptIcon::None, QMessageBox::NoIcon},
                                         IconRow{PromptIcon::Information, QMessageBox::Information},
                                         IconRow{PromptIcon::Warning, QMessageBox::Warning},
                                         IconRow{PromptIcon::Critical, QMessageBox::Critical}));

TEST_F(DialogPromptsTest, ABoxHasRoomForItsTitleHoweverShortItsText)
{
    const auto isWide = [](QDialog& box) {
        EXPECT_GE(box.width(), 320);
        box.reject();
    };
    whenOpen<QMessageBox>(isWide);
    prompts.showMessage(u"Backing up"_s, u"Completed"_s, PromptIcon::None);
    whenOpen<QMessageBox>(isWide);
    prompts.askYesNoCancel(u"Ambrel eCommerce Software"_s, u"Do you want save changes?"_s);
    whenOpen<QInputDialog>(isWide);
    prompts.askText(u"Backing up"_s, u"Enter file name"_s);
}

TEST_F(DialogPromptsTest, ABoxBelongsToTheDialogThatIsOpen)
{
    whenOpen<QInputDialog>([this](QInputDialog& dialog) {
        bool seen = false;
        QTimer::singleShot(50, &dialog, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->parentWidget(), &dialog);
            seen = true;
            box->accept();
        });
        prompts.showMessage(u"Backing up"_s, u"Completed"_s, PromptIcon::None);
        EXPECT_TRUE(seen);
        dialog.reject();
    });
    prompts.askText(u"Backing up"_s, u"Enter file name"_s);
}

TEST_F(DialogPromptsTest, AMessageReadsNoMarkup)
{
    whenOpen<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        const QList<QLabel*> labels = box.findChildren<QLabel*>();
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
            return label->text() == u"<b>File</b> not found"_s && label->textFormat() == Qt::PlainText;
        }));
        box.accept();
    });
    prompts.showMessage(u"Error"_s, u"<b>File</b> not found"_s, PromptIcon::Critical);
}

using YesNoQuestion = bool (DialogPrompts::*)(const QString&, const QString&);

struct YesNoRow
{
    const char* name;
    YesNoQuestion ask;
    QMessageBox::StandardButton defaultButton;
};

class DialogPromptsYesNo : public DialogPromptsTest, public testing::WithParamInterface<YesNoRow>
{
protected:
    // What the question answers when this is done to its box.
    bool answerTo(const std::function<void(QMessageBox&)>& act)
    {
        whenOpen<QMessageBox>([act](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), u"Warning"_s);
            EXPECT_EQ(box.text(), u"Are you sure?"_s);
            EXPECT_EQ(box.icon(), QMessageBox::Question);
            EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
            act(box);
        });
        return std::invoke(GetParam().ask, prompts, u"Warning"_s, u"Are you sure?"_s);
    }
};

TEST_P(DialogPromptsYesNo, IsAnsweredByItsTwoButtons)
{
    EXPECT_TRUE(answerTo([](QMessageBox& box) { Hands::press(box.button(QMessageBox::Yes)); }));
    EXPECT_FALSE(answerTo([](QMessageBox& box) { Hands::press(box.button(QMessageBox::No)); }));
}

TEST_P(DialogPromptsYesNo, EnterTakesTheDefaultButton)
{
    EXPECT_EQ(answerTo([](QMessageBox& box) {
                  EXPECT_EQ(box.standardButton(box.defaultButton()), GetParam().defaultButton);
                  QTest::keyClick(&box, Qt::Key_Return);
              }),
              GetParam().defaultButton == QMessageBox::Yes);
}

TEST_P(DialogPromptsYesNo, EscapeMeansNo)
{
    EXPECT_FALSE(answerTo([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }));
}

TEST_P(DialogPromptsYesNo, ClosingTheBoxMeansNo)
{
    EXPECT_FALSE(answerTo([](QMessageBox& box) { box.close(); }));
}

INSTANTIATE_TEST_SUITE_P(Both, DialogPromptsYesNo,
                         testing::Values(YesNoRow{"DefaultYes", &DialogPrompts::askYesNo, QMessageBox::Yes},
                                         YesNoRow{"DefaultNo", &DialogPrompts::askYesNoWithDefaultNo, QMessageBox::No}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(DialogPromptsTest, AQuestionOfThreeIsAnsweredByItsButtonsAndByEscape)
{
    const auto answerTo = [this](const std::function<void(QMessageBox&)>& act) {
        whenOpen<QMessageBox>([act](QMessageBox& box) {
            EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
            EXPECT_EQ(box.icon(), QMessageBox::Question);
            act(box);
        });
        return prompts.askYesNoCancel(u"Exit"_s, u"Do you want save changes?"_s);
    };
    const auto press = [](QMessageBox::StandardButton button) {
        return [button](QMessageBox& box) { Hands::press(box.button(button)); };
    };
    EXPECT_EQ(answerTo(press(QMessageBox::Yes)), PromptAnswer::Yes);
    EXPECT_EQ(answerTo(press(QMessageBox::No)), PromptAnswer::No);
    EXPECT_EQ(answerTo(press(QMessageBox::Cancel)), PromptAnswer::Cancel);
    EXPECT_EQ(answerTo([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }), PromptAnswer::Cancel);
    EXPECT_EQ(answerTo([](QMessageBox& box) { box.close(); }), PromptAnswer::Cancel);
}

TEST_F(DialogPromptsTest, AnInputBoxGivesWhatWasTyped)
{
    whenOpen<QInputDialog>([](QInputDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Backing up"_s);
        EXPECT_EQ(dialog.labelText(), u"Enter file name"_s);
        EXPECT_EQ(dialog.textValue(), QString());
        auto* field = dialog.findChild<QLineEdit*>();
        ASSERT_NE(field, nullptr);
        Hands::type(field, u"Ünder 7"_s);
        QTest::keyClick(field, Qt::Key_Return);
    });
    EXPECT_EQ(prompts.askText(u"Backing up"_s, u"Enter file name"_s), std::optional(u"Ünder 7"_s));
}

TEST_F(DialogPromptsTest, AnInputBoxTellsAnEmptyAnswerFromCancel)
{
    whenOpen<QInputDialog>([](QInputDialog& dialog) { dialog.accept(); });
    EXPECT_EQ(prompts.askText(u"Backing up"_s, u"Enter file name"_s), std::optional(QString()));
    whenOpen<QInputDialog>([](QInputDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(prompts.askText(u"Backing up"_s, u"Enter file name"_s), std::nullopt);
}

class DialogPromptsFile : public DialogPromptsTest
{
protected:
    DialogPromptsFile() { writeFile(files.path(u"list.txt"_s), "Tea"); }

    static void open(QFileDialog& dialog, const QString& name)
    {
        auto* field = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
        ASSERT_NE(field, nullptr);
        Hands::type(field, name);
        const auto* buttons = dialog.findChild<QDialogButtonBox*>();
        ASSERT_NE(buttons, nullptr);
        Hands::press(buttons->button(QDialogButtonBox::Open));
    }

    QString chosen(const std::function<void(QFileDialog&)>& act)
    {
        whenOpen<QFileDialog>(act);
        return prompts.chooseFile(files.folder().path(), u"Text files (*.txt);;All files (*)"_s);
    }

    TemporaryShopFolder files;
};

TEST_F(DialogPromptsFile, StartsInItsFolderAndGivesThePathOfTheFile)
{
    EXPECT_EQ(chosen([this](QFileDialog& dialog) {
                  EXPECT_EQ(dialog.directory().path(), files.folder().path());
                  EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
                  EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
                  EXPECT_EQ(dialog.nameFilters(), (QStringList{u"Text files (*.txt)"_s, u"All files (*)"_s}));
                  open(dialog, u"list.txt"_s);
              }),
              files.path(u"list.txt"_s));
}

TEST_F(DialogPromptsFile, SaysThePatternsOnce)
{
    const struct
    {
        QString filter;
        QString shown;
    } rows[] = {
        {u"Pictures (*.bmp;*.png;*jpg;*gif) (*.bmp *.png *jpg *gif)"_s, u"Pictures (*.bmp;*.png;*jpg;*gif)"_s},
        {u"Packed shops (*.kvb *.KVB);;All files (*)"_s, u"Packed shops (*.kvb *.KVB)"_s},
    };
    for (const auto& row : rows) {
        whenOpen<QFileDialog>([&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.findChild<QComboBox*>(u"fileTypeCombo"_s)->currentText(), row.shown);
            dialog.reject();
        });
        prompts.chooseFile(files.folder().path(), row.filter);
    }
}

TEST_F(DialogPromptsFile, ShowsPlacesSizesAndDatesWhole)
{
    chosen([](QFileDialog& dialog) {
        const auto* shown = dialog.findChild<QTreeView*>(u"treeView"_s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return shown->model()->rowCount(shown->rootIndex()) > 0; }));
        QCoreApplication::processEvents();
        for (int column = 1; column < shown->header()->count(); ++column) {
            EXPECT_GE(shown->columnWidth(column),
                      static_cast<const QAbstractItemView*>(shown)->sizeHintForColumn(column))
                << column;
        }
        EXPECT_GE(shown->columnWidth(0), 200);
        const auto* places = dialog.findChild<QListView*>(u"sidebar"_s);
        EXPECT_GE(places->viewport()->width(), places->sizeHintForIndex(places->model()->index(0, 0)).width());
        dialog.reject();
    });
}

TEST_F(DialogPromptsFile, StartsAtHomeWhenItsFolderIsGone)
{
    whenOpen<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().path(), QDir::homePath());
        dialog.reject();
    });
    prompts.chooseFile(files.path(u"gone"_s), u"All files (*)"_s);
}

TEST_F(DialogPromptsFile, GivesNothingOnCancel)
{
    EXPECT_EQ(chosen([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }), QString());
}

TEST_F(DialogPromptsFile, TakesNoFileThatIsNotThere)
{
    EXPECT_EQ(chosen([](QFileDialog& dialog) {
                  open(dialog, u"gone.txt"_s);
                  EXPECT_TRUE(dialog.isVisible());
                  dialog.reject();
              }),
              QString());
}

TEST_F(DialogPromptsTest, AColourDialogStartsWithTheColourAndGivesTheChosenOne)
{
    // Red is the low byte.
    whenOpen<QColorDialog>([](QColorDialog& dialog) {
        EXPECT_EQ(dialog.currentColor(), QColor(0x48, 0x5d, 0x88));
        dialog.setCurrentColor(QColor(0x01, 0x02, 0x03));
        dialog.accept();
    });
    EXPECT_EQ(prompts.chooseColour(0x885d48), std::optional(0x030201));
}

TEST_F(DialogPromptsTest, AColourDialogGivesNothingOnCancel)
{
    whenOpen<QColorDialog>([](QColorDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(prompts.chooseColour(0), std::nullopt);
}

} // namespace
