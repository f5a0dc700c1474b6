// The picture of a product or a category, and the dialog that picks one.
#include "PanelTest.h"
#include "base/RuntimeError.h"
#include "editors/LinkLabel.h"
#include "editors/design/pickers/BrowseImageControl.h"
#include "editors/design/pickers/PictureBox.h"
#include "editors/design/pickers/PicturePathSetting.h"
#include "editors/design/pickers/PicturesList.h"
#include "editors/design/pickers/frmSelectImage.h"
#include "editors/design/pickers/ucSelectImage.h"
#include "look/Theme.h"
#include "look/Tones.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class Pictures : public PanelTest
{
protected:
    void SetUp() override
    {
        PanelTest::SetUp();
        savePicture(u"pictures/Cup.png"_s, 40, 30);
        savePicture(u"pictures/pot.png"_s, 120, 80);
        writeFile(files.path(u"pictures/broken.png"_s), "no picture at all");
        clickNode(u"ID4"_s);
    }

    void savePicture(const QString& name, int width, int height)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        ASSERT_TRUE(image.save(files.path(name)));
    }
    // A PNG whose header tells of that many pixels a side; the rest of it is not there.
    void saveHugePicture(const QString& name, const QByteArray& side)
    {
        QByteArray header = QByteArrayLiteral("IHDR") + side + side + QByteArrayLiteral("\x08\x02\x00\x00\x00");
        // The check sum of the chunk.
        quint32 crc = 0xffffffffU;
        for (const char byte : header) {
            crc ^= static_cast<quint8>(byte);
            for (int bit = 0; bit < 8; ++bit) {
                crc = (crc >> 1) ^ ((crc & 1U) != 0 ? 0xedb88320U : 0U);
            }
        }
        crc = ~crc;
        QByteArray bytes = QByteArray::fromHex("89504e470d0a1a0a0000000d") + header;
        for (int shift = 24; shift >= 0; shift -= 8) {
            bytes.append(static_cast<char>((crc >> shift) & 0xffU));
        }
        bytes += QByteArray::fromHex("0000000049444154") + QByteArray::fromHex("35af061e") +
                 QByteArray::fromHex("0000000049454e44ae426082");
        writeFile(files.path(name), bytes);
    }

    clsSelectedImage& image() const { return *product("4")->selectedImage(); }
    PictureBox* box() const { return in<PictureBox>("ImagePB"); }

    // Presses BrowseBtnLbl and, in the dialog that opens, does the work. The dialog must be closed by it.
    template <class Work>
    void browse(Work&& work)
    {
        QTimer::singleShot(0, window.get(), [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->objectName(), u"frmSelectImage"_s);
            work(*dialog);
            if (dialog->isVisible()) {
                ADD_FAILURE() << "the dialog stays";
                dialog->reject();
            }
        });
        press("BrowseBtnLbl");
    }
    static QListWidget* list(const QWidget& dialog) { return dialog.findChild<QListWidget*>(u"lstImages"_s); }
    static void select(const QWidget& dialog, const QString& name)
    {
        const QList<QListWidgetItem*> items = list(dialog)->findItems(name, Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1) << name.toStdString();
        list(dialog)->scrollToItem(items.front());
        QTest::mouseClick(list(dialog)->viewport(), Qt::LeftButton, {},
                          list(dialog)->visualItemRect(items.front()).center());
    }
    static void pressIn(const QWidget& dialog, const char* button)
    {
        press(dialog.findChild<QAbstractButton*>(QLatin1String(button)));
    }
    static QStringList names(const QWidget& dialog)
    {
        QStringList all;
        for (int row = 0; row < list(dialog)->count(); ++row) {
            all << list(dialog)->item(row)->text();
        }
        return all;
    }
};

TEST_F(Pictures, AreChosenAtOnceWithTheirTrueSize)
{
    browse([&](const QDialog& dialog) {
        select(dialog, u"pot.png"_s);
        EXPECT_TRUE(dialog.findChild<PictureBox*>(u"imgPreview"_s)->hasPicture());
        pressIn(dialog, "OkBtn");
    });
    EXPECT_EQ(image().imageFileName, u"pot.png"_s); // ahead of any submit
    EXPECT_EQ(image().SelectionType, ImageSelection::Nothing);
    EXPECT_EQ(textIn("txtWidth"), u"120"_s);
    EXPECT_EQ(textIn("txtHeight"), u"80"_s);
    EXPECT_TRUE(box()->hasPicture());
    reset();
    EXPECT_EQ(image().imageFileName, u"pot.png"_s);
    submit();
    EXPECT_EQ(product("4")->Picture, u"pot.png"_s);
}

TEST_F(Pictures, StayAsTheyAreOnCancel)
{
    image().imageFileName = u"Cup.png"_s;
    image().setWidthBmp(20);
    reset();
    browse([&](const QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QListWidget*>(u"lstImages"_s)->currentItem()->text(), u"Cup.png"_s);
        select(dialog, u"pot.png"_s);
        pressIn(dialog, "CancelBtn");
    });
    EXPECT_EQ(image().imageFileName, u"Cup.png"_s);
    EXPECT_EQ(image().cachedSize().width, 20);
    EXPECT_EQ(textIn("txtWidth"), u"20"_s);
}

TEST_F(Pictures, AreSelectedOnAnExactNameOnly)
{
    image().imageFileName = u"cup.png"_s;
    reset();
    browse([&](const QDialog& dialog) {
        EXPECT_TRUE(list(dialog)->selectedItems().isEmpty());
        pressIn(dialog, "OkBtn"); // nothing is taken
    });
    EXPECT_EQ(image().imageFileName, u"cup.png"_s);
}

TEST_F(Pictures, ShowTheSizeOfTheFileWhereNoneIsKept)
{
    image().imageFileName = u"pot.png"_s;
    image().setHeightBmp(33);
    reset();
    EXPECT_EQ(textIn("txtWidth"), u"120"_s);
    EXPECT_EQ(textIn("txtHeight"), u"33"_s);
    EXPECT_EQ(image().cachedSize().width, 0); // showing keeps nothing
}

TEST_F(Pictures, TakeATypedSizeAtOnce)
{
    image().imageFileName = u"pot.png"_s;
    reset();
    type("txtWidth", u"60"_s);
    type("txtHeight", u"4x0"_s);
    EXPECT_EQ(image().cachedSize().width, 60);
    EXPECT_EQ(image().cachedSize().height, 40);
    type("txtHeight", QString());
    EXPECT_EQ(image().cachedSize().height, 0);
}

TEST_F(Pictures, AreTakenAwayWithTheirSize)
{
    image().imageFileName = u"pot.png"_s;
    image().setWidthBmp(60);
    reset();
    press("DeleteBtnLbl");
    EXPECT_EQ(image().imageFileName, QString());
    EXPECT_EQ(image().cachedSize().width, 0);
    EXPECT_EQ(textIn("txtWidth"), u"0"_s);
    EXPECT_EQ(textIn("txtHeight"), u"0"_s);
    EXPECT_FALSE(box()->hasPicture());
}

TEST_F(Pictures, OfACategoryWorkTheSame)
{
    clickNode(u"ID3"_s);
    browse([&](const QDialog& dialog) {
        select(dialog, u"Cup.png"_s);
        pressIn(dialog, "OkBtn");
    });
    EXPECT_EQ(category("3")->selectedImage()->imageFileName, u"Cup.png"_s);
    EXPECT_EQ(category("3")->selectedImage()->cachedSize().height, 30);
}

// Files that are no good ---------------------------------------------------------------------------------------------

TEST_F(Pictures, ThatAreGoneLeaveTheBoxEmptyAndTheKeptSize)
{
    image().imageFileName = u"gone.png"_s;
    image().setWidthBmp(70);
    reset();
    EXPECT_FALSE(box()->hasPicture());
    EXPECT_EQ(box()->message(), u"Invalid Picture"_s);
    EXPECT_EQ(textIn("txtWidth"), u"70"_s);
    EXPECT_EQ(textIn("txtHeight"), u"0"_s);
}

// Their size cannot be read, so that a shop with one of them could not be saved.
TEST_F(Pictures, ThatAreBrokenCannotBeChosen)
{
    savePicture(u"pictures/cut.png"_s, 60, 50);
    writeFile(files.path(u"pictures/cut.png"_s), fileBytes(files.path(u"pictures/cut.png"_s)).first(12));
    writeFile(files.path(u"pictures/empty.png"_s), {});
    image().imageFileName = u"Cup.png"_s;
    reset();
    for (const QString& name : {u"broken.png"_s, u"cut.png"_s, u"empty.png"_s}) {
        browse([&](const QDialog& dialog) {
            const auto* ok = dialog.findChild<QPushButton*>(u"OkBtn"_s);
            EXPECT_TRUE(ok->isEnabled());
            select(dialog, name);
            EXPECT_EQ(dialog.findChild<PictureBox*>(u"imgPreview"_s)->message(), u"Invalid picture"_s);
            EXPECT_FALSE(ok->isEnabled());
            QTest::mouseDClick(list(dialog)->viewport(), Qt::LeftButton, {},
                               list(dialog)->visualItemRect(list(dialog)->currentItem()).center());
            QTest::keyClick(list(dialog), Qt::Key_Return);
            EXPECT_TRUE(dialog.isVisible());
            select(dialog, u"pot.png"_s);
            EXPECT_TRUE(ok->isEnabled());
            select(dialog, name);
            pressIn(dialog, "CancelBtn");
        });
        EXPECT_EQ(image().imageFileName, u"Cup.png"_s);
        EXPECT_TRUE(box()->hasPicture());
    }
    submit();
    trigger("mnuSaveShop");
    EXPECT_TRUE(fileBytes(files.path(u"shop.xml"_s)).contains("Cup.png"));
    EXPECT_TRUE(errors.numbers.empty());
}

// It was chosen before. Another program took its content away afterwards.
TEST_F(Pictures, ThatBrokeLaterStayChosen)
{
    image().imageFileName = u"broken.png"_s;
    image().setWidthBmp(70);
    image().setHeightBmp(50);
    reset();
    EXPECT_EQ(box()->message(), u"Invalid Picture"_s);
    browse([&](const QDialog& dialog) {
        EXPECT_EQ(list(dialog)->currentItem()->text(), u"broken.png"_s);
        EXPECT_FALSE(dialog.findChild<QPushButton*>(u"OkBtn"_s)->isEnabled());
        pressIn(dialog, "CancelBtn");
    });
    EXPECT_EQ(image().imageFileName, u"broken.png"_s);
    EXPECT_EQ(image().cachedSize().width, 70);
    submit();
    trigger("mnuSaveShop");
    EXPECT_TRUE(fileBytes(files.path(u"shop.xml"_s)).contains("broken.png"));
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(Pictures, ThatAreHugeHaveTheirSizeButAreNotDecoded)
{
    saveHugePicture(u"pictures/huge.png"_s, QByteArray::fromHex("00007530")); // 30,000
    browse([&](const QDialog& dialog) {
        select(dialog, u"huge.png"_s);
        pressIn(dialog, "OkBtn");
    });
    EXPECT_EQ(textIn("txtWidth"), u"30000"_s);
    EXPECT_EQ(image().cachedSize().height, 30000);
    EXPECT_TRUE(box()->message().contains(u"30000"_s));

    saveHugePicture(u"pictures/giant.png"_s, QByteArray::fromHex("00009c40")); // 40,000: no slot can hold that
    browse([&](const QDialog& dialog) {
        select(dialog, u"giant.png"_s);
        EXPECT_EQ(dialog.findChild<PictureBox*>(u"imgPreview"_s)->message(), u"Invalid picture"_s);
        EXPECT_FALSE(dialog.findChild<QPushButton*>(u"OkBtn"_s)->isEnabled());
        pressIn(dialog, "CancelBtn");
    });
    EXPECT_EQ(image().imageFileName, u"huge.png"_s);
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(Pictures, OutsideThePicturesFolderAreNotShown)
{
    savePicture(u"outside.png"_s, 10, 10);
    BrowseImageControl control(*window, nullptr);
    control.setImageFileName(u"../outside.png"_s);
    EXPECT_FALSE(control.findChild<PictureBox*>(u"ImagePB"_s)->hasPicture());
    control.setImageFileName(u"pot.png"_s);
    EXPECT_TRUE(control.findChild<PictureBox*>(u"ImagePB"_s)->hasPicture());
}

TEST_F(Pictures, AreTakenFromAnAbsolutePathWhenTheNameHasAColon)
{
    savePicture(u"a:b.png"_s, 10, 20);
    BrowseImageControl control(*window, nullptr);
    control.setImageFileName(files.path(u"a:b.png"_s));
    EXPECT_EQ(control.findChild<PictureBox*>(u"ImagePB"_s)->pictureSize().height, 20);
    control.setTitleText(u"Front"_s);
    EXPECT_EQ(control.titleText(), u"Front"_s);
    EXPECT_EQ(control.Background(), QColor(Qt::white));
}

// Adding a picture ---------------------------------------------------------------------------------------------------

TEST_F(Pictures, AreAddedFromElsewhereAndTheFolderIsRemembered)
{
    QDir().mkpath(files.path(u"photos"_s));
    savePicture(u"photos/new.png"_s, 9, 8);
    prompts.answerFile(files.path(u"photos/new.png"_s));
    browse([&](const QDialog& dialog) {
        pressIn(dialog, "AddBttn");
        EXPECT_TRUE(names(dialog).contains(u"new.png"_s));
        EXPECT_EQ(list(dialog)->currentItem()->text(), u"new.png"_s);
        pressIn(dialog, "OkBtn");
    });
    EXPECT_EQ(image().imageFileName, u"new.png"_s);
    EXPECT_EQ(fileBytes(files.path(u"pictures/new.png"_s)), fileBytes(files.path(u"photos/new.png"_s)));
    EXPECT_EQ(PicturePathSetting().folder(), files.path(u"photos"_s));

    startAgain();
    clickNode(u"ID4"_s);
    prompts.answerFile(QString());
    browse([&](const QDialog& dialog) {
        const QStringList before = names(dialog);
        pressIn(dialog, "AddBttn"); // cancelled
        EXPECT_EQ(names(dialog), before);
        pressIn(dialog, "CancelBtn");
    });
    ASSERT_GE(prompts.fileQuestions.size(), 2);
    EXPECT_EQ(prompts.fileQuestions[prompts.fileQuestions.size() - 2], files.path(u"photos"_s));
    EXPECT_TRUE(prompts.fileQuestions.back().contains(u"*.bmp *.png *jpg *gif"_s));
}

TEST_F(Pictures, ForgetTheFolderWhenTheChoiceIsTakenBack)
{
    PicturePathSetting().setFolder(files.path(u"photos"_s));
    prompts.answerFile(QString());
    browse([&](const QDialog& dialog) {
        pressIn(dialog, "AddBttn");
        pressIn(dialog, "CancelBtn");
    });
    EXPECT_EQ(PicturePathSetting().folder(), QString());
}

TEST_F(Pictures, OfTheSameNameAreOverwrittenOnYesOnly)
{
    QDir().mkpath(files.path(u"photos"_s));
    savePicture(u"photos/pot.png"_s, 5, 4);
    const QByteArray old = fileBytes(files.path(u"pictures/pot.png"_s));
    for (const bool answer : {false, true}) {
        prompts.answerFile(files.path(u"photos/pot.png"_s));
        prompts.answerYesNo(u"Tarnwick"_s, u"Overwrite this file?"_s, answer);
        browse([&](const QDialog& dialog) {
            select(dialog, answer ? u"pot.png"_s : u"Cup.png"_s);
            const QStringList before = names(dialog);
            pressIn(dialog, "AddBttn");
            EXPECT_EQ(names(dialog), before);
            EXPECT_EQ(list(dialog)->currentItem()->text(), answer ? u"pot.png"_s : u"Cup.png"_s);
            if (answer) {
                EXPECT_EQ(dialog.findChild<PictureBox*>(u"imgPreview"_s)->pictureSize().width, 5);
            }
            pressIn(dialog, "CancelBtn");
        });
        EXPECT_EQ(fileBytes(files.path(u"pictures/pot.png"_s)) == old, !answer);
    }
}

TEST_F(Pictures, OfTheFolderItselfCanBeAddedOntoThemselves)
{
    const QByteArray old = fileBytes(files.path(u"pictures/pot.png"_s));
    prompts.answerFile(files.path(u"pictures/pot.png"_s));
    prompts.answerYesNo(u"Tarnwick"_s, u"Overwrite this file?"_s, true);
    browse([&](const QDialog& dialog) {
        pressIn(dialog, "AddBttn");
        pressIn(dialog, "OkBtn");
    });
    EXPECT_EQ(fileBytes(files.path(u"pictures/pot.png"_s)), old);
    EXPECT_EQ(image().imageFileName, u"pot.png"_s);
}

TEST_F(Pictures, CannotBePickedByAControlWithoutItsForm)
{
    prompts.expectMessage(u"Ambrel eCommerce Software"_s, u"You didn't type parent form for user control 'ucImages'"_s,
                          PromptIcon::Critical);
    ucSelectImage control(*window, nullptr);
    control.SetActiveObject(product("4")->selectedImage());
    EXPECT_EQ(control.selectedImage(), nullptr);
}

TEST_F(Pictures, StandOnWhiteInADarkWindowTooButAnEmptyBoxDoesNot)
{
    PictureBox plain(u"Invalid Picture"_s);
    plain.resize(144, 144);
    plain.show();
    const auto ground = [&plain] { return plain.grab().toImage().pixelColor(8, 8); };
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        showScheme(scheme);
        EXPECT_EQ(ground(), tone(Tone::Field));
        plain.showFile(files.path(u"pictures/Cup.png"_s));
        EXPECT_EQ(ground(), QColor(Qt::white));
        plain.showFile(files.path(u"pictures/broken.png"_s));
        EXPECT_EQ(ground(), tone(Tone::Field));
    }
    showScheme(Scheme::Light);
}

} // namespace
