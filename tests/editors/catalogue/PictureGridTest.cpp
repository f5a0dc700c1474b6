// The pictures of the shop as they are looked at: thumbnails, the filter, keys, and files that are dropped.
#include "editors/design/pickers/PictureGrid.h"

#include "PanelTest.h"
#include "editors/design/pickers/BrowseButtonImageControl.h"
#include "editors/design/pickers/PictureBox.h"
#include "editors/design/pickers/PicturePathSetting.h"
#include "editors/design/pickers/Thumbnail.h"
#include "editors/design/pickers/frmSelectImage.h"
#include "look/Tones.h"
#include "support/Hands.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

QByteArray pictureBytes(const QSize& size, const char* format, QImage::Format depth = QImage::Format_RGB32)
{
    QImage image(size, depth);
    image.fill(depth == QImage::Format_Mono ? 0 : 0xffcc2211U);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return bytes;
}

class PictureGridTest : public PanelTest
{
protected:
    void SetUp() override
    {
        PanelTest::SetUp();
        clickNode(u"ID4"_s);
    }

    void savePicture(const QString& name, const QSize& size = {20, 10}, const char* format = "PNG") const
    {
        writeFile(files.path(name), pictureBytes(size, format));
    }
    // picture000.png and so on.
    void savePictures(int count) const
    {
        const QByteArray bytes = pictureBytes({20, 10}, "PNG");
        for (int i = 0; i < count; ++i) {
            writeFile(files.path(u"pictures/picture%1.png"_s.arg(i, 3, 10, QChar(u'0'))), bytes);
        }
    }

    clsSelectedImage& image() const { return *product("4")->selectedImage(); }

    void openDialog()
    {
        dialog = std::make_unique<frmSelectImage>(*window, product("4")->selectedImage(), window.get());
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }
    template <class T>
    T* part(const char* name) const
    {
        T* widget = dialog->findChild<T*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    PictureGrid* grid() const { return part<PictureGrid>("lstImages"); }
    QLineEdit* filter() const { return part<QLineEdit>("txtFilter"); }

    // Lets events run until no more thumbnails come.
    void settle() const
    {
        constexpr int enough = 5; // a busy machine may leave out a turn
        for (int quietTurns = 0; quietTurns < enough;) {
            const int made = grid()->thumbnailsMade();
            QTest::qWait(30);
            quietTurns = made == grid()->thumbnailsMade() ? quietTurns + 1 : 0;
        }
    }
    QStringList namesInView() const
    {
        QStringList names;
        for (int row = 0; row < grid()->count(); ++row) {
            if (!grid()->isRowHidden(row) &&
                grid()->visualItemRect(grid()->item(row)).intersects(grid()->viewport()->rect())) {
                names << grid()->item(row)->text();
            }
        }
        return names;
    }
    QString chosen() const
    {
        return grid()->selectedItems().value(0) ? grid()->selectedItems().front()->text() : u""_s;
    }
    void choose(const QString& name) const
    {
        grid()->setCurrentItem(grid()->findItems(name, Qt::MatchExactly | Qt::MatchCaseSensitive).value(0));
    }
    // The colour in the middle of the thumbnail of that entry.
    QColor colourOf(const QString& name) const
    {
        const QListWidgetItem* item = grid()->findItems(name, Qt::MatchExactly).value(0);
        const QRect cell = grid()->visualItemRect(item);
        const QImage shown = grid()->viewport()->grab().toImage();
        return shown.pixelColor(cell.center().x(), cell.top() + 46);
    }
    QString drop(QWidget* target, const QStringList& names) const
    {
        QStringList paths;
        for (const QString& name : names) {
            paths << files.path(name);
        }
        return Hands::drop(target, paths) ? u"taken"_s : u"refused"_s;
    }

    std::unique_ptr<frmSelectImage> dialog;
};

// Thumbnails ----------------------------------------------------------------------------------------------------------

TEST_F(PictureGridTest, MakesTheThumbnailsThatAreInViewAndNoOthers)
{
    savePictures(300);
    openDialog();
    settle();
    const QStringList first = namesInView();
    EXPECT_GT(first.size(), 4);
    EXPECT_LT(first.size(), 60);
    EXPECT_EQ(grid()->thumbnailsMade(), first.size());

    grid()->verticalScrollBar()->setValue(grid()->verticalScrollBar()->maximum());
    settle();
    const QStringList last = namesInView();
    EXPECT_TRUE(last.contains(u"picture299.png"_s));
    EXPECT_EQ(grid()->thumbnailsMade(), first.size() + last.size());

    // Back where they were made nothing is made again.
    grid()->verticalScrollBar()->setValue(0);
    settle();
    EXPECT_EQ(grid()->thumbnailsMade(), first.size() + last.size());
}

TEST_F(PictureGridTest, MakesOneThumbnailAtMostInATurnOfTheEventLoop)
{
    savePictures(100);
    openDialog();
    const auto inView = namesInView().size();
    for (int made = grid()->thumbnailsMade(), turns = 0; made < inView && turns < 2000; ++turns) {
        QCoreApplication::processEvents();
        EXPECT_LE(grid()->thumbnailsMade(), made + 1);
        made = grid()->thumbnailsMade();
    }
    EXPECT_EQ(grid()->thumbnailsMade(), inView);
}

TEST_F(PictureGridTest, MakesNoThumbnailThatWasScrolledAwayBeforeItsTurn)
{
    savePictures(300);
    openDialog();
    settle();
    const int before = grid()->thumbnailsMade();
    QScrollBar* bar = grid()->verticalScrollBar();
    bar->setValue(bar->maximum() / 2);
    grid()->viewport()->repaint(); // everything in view there is asked for
    bar->setValue(bar->maximum());
    settle();
    EXPECT_EQ(grid()->thumbnailsMade(), before + namesInView().size());
}

TEST_F(PictureGridTest, ShowsThePicturesThemselvesUnderTheirBareNames)
{
    savePicture(u"pictures/red.png"_s, {300, 200});
    writeFile(files.path(u"pictures/broken.png"_s), "no picture at all");
    openDialog();
    settle();
    EXPECT_EQ(colourOf(u"red.png"_s), QColor(0xcc2211));
    EXPECT_EQ(grid()->item(0)->text(), u"broken.png"_s);
    EXPECT_EQ(grid()->item(1)->text(), u"red.png"_s);
    EXPECT_NE(colourOf(u"broken.png"_s), QColor(0xcc2211));
}

TEST_F(PictureGridTest, ReadsNoThumbnailThatWouldTakeLong)
{
    const struct
    {
        const char* format;
        QSize size;
        bool isShown;
    } rows[] = {
        {"PNG", {2000, 2000}, true},  {"PNG", {2001, 2000}, false}, {"BMP", {2000, 2000}, true},
        {"BMP", {2000, 2001}, false}, {"JPG", {2500, 2000}, true}, // scaled while it is decoded
        {"PNG", {1, 100'000}, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.format);
        const QString path = files.path(u"pictures/large"_s);
        const bool isJpeg = qstrcmp(row.format, "JPG") == 0;
        writeFile(path, pictureBytes(row.size, row.format, isJpeg ? QImage::Format_Grayscale8 : QImage::Format_Mono));
        const Thumbnail thumbnail = readThumbnail(path, {100, 76}, 1.5);
        EXPECT_EQ(thumbnail.size, row.size);
        EXPECT_EQ(!thumbnail.picture.isNull(), row.isShown);
        if (row.isShown) {
            EXPECT_LE(thumbnail.picture.width(), 150);
            EXPECT_LE(thumbnail.picture.height(), 114);
        }
    }
    EXPECT_TRUE(readThumbnail(files.path(u"pictures/none"_s), {100, 76}, 1).size.isEmpty());
}

TEST_F(PictureGridTest, DoesNotBlowUpASmallPicture)
{
    savePicture(u"pictures/small.png"_s, {20, 10});
    EXPECT_EQ(readThumbnail(files.path(u"pictures/small.png"_s), {100, 76}, 1).picture.size(), QSize(20, 10));
}

TEST_F(PictureGridTest, TellsTheSizeOfTheChosenOneInPixelsAndBytes)
{
    savePicture(u"pictures/cup.png"_s, {120, 40});
    writeFile(files.path(u"pictures/broken.png"_s), QByteArray(2048, 'x'));
    openDialog();
    const auto* words = part<QLabel>("lblSize");
    EXPECT_EQ(words->text(), QString());
    choose(u"cup.png"_s);
    const QString bytes = u"%1 bytes"_s.arg(fileBytes(files.path(u"pictures/cup.png"_s)).size());
    EXPECT_TRUE(words->text().startsWith(u"120 × 40 pixels, "_s)) << words->text().toStdString();
    EXPECT_EQ(words->text().section(u", "_s, 1).section(u' ', 0, 0), bytes.section(u' ', 0, 0));
    EXPECT_EQ(part<QLabel>("lblName")->text(), u"cup.png"_s);
    choose(u"broken.png"_s);
    EXPECT_TRUE(words->text().startsWith(localised(u"2.0"_s))) << words->text().toStdString();
}

// The filter ----------------------------------------------------------------------------------------------------------

TEST_F(PictureGridTest, FiltersByNameWithoutChangingTheEntriesOrTheChoice)
{
    for (const char* name : {"Apple.png", "grape.png", "pear.png", "pineAPPLE.png"}) {
        savePicture(u"pictures/"_s + QLatin1String(name));
    }
    image().imageFileName = u"pear.png"_s;
    openDialog();
    Hands::type(filter(), u"apple"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(namesInView(), (QStringList{u"Apple.png"_s, u"pineAPPLE.png"_s}));
    EXPECT_EQ(grid()->count(), 4);
    EXPECT_EQ(chosen(), u"pear.png"_s);
    filter()->clear();
    QCoreApplication::processEvents();
    EXPECT_EQ(namesInView().size(), 4);
}

TEST_F(PictureGridTest, MovesAmongTheFilteredOnesByKeys)
{
    for (const char* name : {"a1.png", "b1.png", "b2.png", "c1.png", "c2.png"}) {
        savePicture(u"pictures/"_s + QLatin1String(name));
    }
    image().imageFileName = u"a1.png"_s;
    openDialog();
    Hands::type(filter(), u"2"_s);
    QCoreApplication::processEvents();
    const struct
    {
        Qt::Key key;
        QString chosen;
    } rows[] = {
        {Qt::Key_Down, u"b2.png"_s},  {Qt::Key_End, u"c2.png"_s}, {Qt::Key_Home, u"b2.png"_s},
        {Qt::Key_Right, u"c2.png"_s}, {Qt::Key_B, u"b2.png"_s},   {Qt::Key_A, u"b2.png"_s},
    };
    for (const auto& row : rows) {
        QTest::keyClick(grid(), row.key);
        EXPECT_EQ(chosen(), row.chosen);
    }
}

TEST_F(PictureGridTest, DropsTheFilterWhenAPictureIsAdded)
{
    savePictures(3);
    savePicture(u"new.png"_s);
    openDialog();
    Hands::type(filter(), u"picture002"_s);
    prompts.answerFile(files.path(u"new.png"_s));
    Hands::press(part<QPushButton>("AddBttn"));
    EXPECT_EQ(filter()->text(), QString());
    EXPECT_EQ(namesInView().size(), 4);
    EXPECT_EQ(chosen(), u"new.png"_s);
}

// Adding --------------------------------------------------------------------------------------------------------------

TEST_F(PictureGridTest, TakesAnAddedPictureWithEnter)
{
    savePictures(3);
    savePicture(u"new.png"_s, {7, 5});
    openDialog();
    auto* add = part<QPushButton>("AddBttn");
    add->setFocus();
    prompts.answerFile(files.path(u"new.png"_s));
    QTest::keyClick(add, Qt::Key_Space);
    EXPECT_EQ(dialog->focusWidget(), grid());
    QTest::keyClick(grid(), Qt::Key_Return); // asks for no file again
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(image().imageFileName, u"new.png"_s);
    EXPECT_EQ(image().cachedSize().width, 7);
}

TEST_F(PictureGridTest, LooksForAFileAmongTheOwnersPicturesUntilOneWasChosen)
{
    openDialog();
    prompts.answerFile(QString());
    Hands::press(part<QPushButton>("AddBttn"));
    EXPECT_EQ(prompts.fileQuestions.value(0), QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
    PicturePathSetting().setFolder(files.path(u"photos"_s));
    prompts.answerFile(QString());
    Hands::press(part<QPushButton>("AddBttn"));
    EXPECT_EQ(prompts.fileQuestions.value(2), files.path(u"photos"_s));
}

TEST_F(PictureGridTest, ShowsAFileThatWasReplacedAnew)
{
    savePicture(u"pictures/cup.png"_s, {100, 76});
    QImage green(100, 76, QImage::Format_RGB32);
    green.fill(QColor(0x118822));
    ASSERT_TRUE(green.save(files.path(u"cup.png"_s)));
    openDialog();
    settle();
    prompts.answerYesNo(u"Tarnwick"_s, u"Overwrite this file?"_s, true);
    EXPECT_EQ(drop(grid()->viewport(), {u"cup.png"_s}), u"taken"_s);
    settle();
    EXPECT_EQ(colourOf(u"cup.png"_s), QColor(0x118822));
}

// Drops ---------------------------------------------------------------------------------------------------------------

TEST_F(PictureGridTest, AddsTheFilesThatAreDroppedOntoIt)
{
    PicturePathSetting().setFolder(u"/somewhere"_s);
    savePictures(2);
    savePicture(u"one.png"_s);
    savePicture(u"two.jpg"_s, {8, 6}, "JPG");
    savePicture(u"picture000.png"_s, {50, 40});
    writeFile(files.path(u"notes.txt"_s), "no picture");
    openDialog();
    prompts.answerYesNo(u"Tarnwick"_s, u"Overwrite this file?"_s, false);
    EXPECT_EQ(drop(grid()->viewport(), {u"one.png"_s, u"notes.txt"_s, u"two.jpg"_s, u"picture000.png"_s}), u"taken"_s);
    EXPECT_EQ(namesInView(), (QStringList{u"picture000.png"_s, u"picture001.png"_s, u"one.png"_s, u"two.jpg"_s}));
    EXPECT_EQ(chosen(), u"two.jpg"_s);
    EXPECT_EQ(fileBytes(files.path(u"pictures/one.png"_s)), fileBytes(files.path(u"one.png"_s)));
    EXPECT_NE(fileBytes(files.path(u"pictures/picture000.png"_s)), fileBytes(files.path(u"picture000.png"_s)));
    EXPECT_FALSE(QFile::exists(files.path(u"pictures/notes.txt"_s)));
    EXPECT_TRUE(QFile::exists(files.path(u"one.png"_s))); // copied, not moved
    EXPECT_EQ(PicturePathSetting().folder(), u"/somewhere"_s);
    EXPECT_EQ(image().imageFileName, QString()); // until OK
}

TEST_F(PictureGridTest, AddsTheFilesThatAreDroppedOntoThePreviewBesideIt)
{
    savePicture(u"one.png"_s);
    openDialog();
    EXPECT_EQ(drop(part<PictureBox>("imgPreview"), {u"one.png"_s}), u"taken"_s);
    EXPECT_EQ(chosen(), u"one.png"_s);
}

TEST_F(PictureGridTest, RefusesWhatIsNoFileOfAPicture)
{
    writeFile(files.path(u"notes.txt"_s), "no picture");
    QDir().mkpath(files.path(u"folder.png"_s));
    openDialog();
    EXPECT_EQ(drop(grid()->viewport(), {u"notes.txt"_s, u"folder.png"_s, u"gone.png"_s}), u"refused"_s);
    EXPECT_EQ(grid()->count(), 0);
}

TEST_F(PictureGridTest, GivesAPictureFieldTheLastOfTheFilesThatAreDroppedOntoIt)
{
    PicturePathSetting().setFolder(u"/somewhere"_s);
    savePicture(u"one.png"_s, {30, 20});
    savePicture(u"two.png"_s, {8, 6});
    savePicture(u"three.png"_s, {9, 9});
    savePicture(u"pictures/three.png"_s, {1, 1});
    window->resize(1300, 1000); // the field is in view
    QCoreApplication::processEvents();
    auto* box = in<PictureBox>("ImagePB");
    prompts.answerYesNo(u"Tarnwick"_s, u"Overwrite this file?"_s, false);
    EXPECT_EQ(drop(box, {u"one.png"_s, u"two.png"_s, u"three.png"_s}), u"taken"_s);
    EXPECT_EQ(image().imageFileName, u"two.png"_s);
    EXPECT_EQ(image().cachedSize().width, 8);
    EXPECT_EQ(image().SelectionType, ImageSelection::Nothing);
    EXPECT_EQ(textIn("txtHeight"), u"6"_s);
    EXPECT_EQ(box->pictureSize().width, 8);
    EXPECT_TRUE(QFile::exists(files.path(u"pictures/one.png"_s)));
    EXPECT_EQ(fileBytes(files.path(u"pictures/three.png"_s)), pictureBytes({1, 1}, "PNG"));
    EXPECT_EQ(PicturePathSetting().folder(), u"/somewhere"_s);
    submit();
    EXPECT_EQ(product("4")->Picture, u"two.png"_s);
}

// A folder stands where the second file would go, and the third can be seen but not read.
TEST_F(PictureGridTest, GivesAPictureANameThatTheShopCanShow)
{
    savePicture(u"Shot 12:30:45.png"_s, {30, 20});
    savePicture(u"a\\b.png"_s, {40, 20});
    EXPECT_EQ(drop(in<PictureBox>("ImagePB"), {u"Shot 12:30:45.png"_s}), u"taken"_s);
    EXPECT_EQ(image().imageFileName, u"Shot 12-30-45.png"_s);
    EXPECT_TRUE(QFile::exists(files.path(u"pictures/Shot 12-30-45.png"_s)));
    EXPECT_EQ(drop(in<PictureBox>("ImagePB"), {u"a\\b.png"_s}), u"taken"_s);
    EXPECT_EQ(image().imageFileName, u"a-b.png"_s);
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(PictureGridTest, SaysWhichOfTheDroppedFilesCannotBeAddedAndAddsTheOthers)
{
    for (const char* name : {"one.png", "two.png", "four.png"}) {
        savePicture(QLatin1String(name), {30, 20});
    }
    ASSERT_TRUE(QFile::link(u"/proc/self/mem"_s, files.path(u"three.png"_s)));
    QDir().mkpath(files.path(u"pictures/two.png"_s));
    const auto expectRefusals = [this] {
        prompts.answerYesNo(u"Tarnwick"_s, u"Overwrite this file?"_s, true);
        prompts.expectMessage(
            u"Ambrel eCommerce Software"_s,
            u"%1 could not be added to the pictures of the shop. Path or file cannot be accessed: %2"_s.arg(
                files.path(u"two.png"_s), files.path(u"pictures/two.png"_s)),
            PromptIcon::Warning);
        prompts.expectMessage(
            u"Ambrel eCommerce Software"_s,
            u"%1 could not be added to the pictures of the shop. Device error while reading or writing: %1"_s.arg(
                files.path(u"three.png"_s)),
            PromptIcon::Warning);
    };
    const QStringList dropped{u"one.png"_s, u"two.png"_s, u"three.png"_s, u"four.png"_s, u"two.png"_s, u"three.png"_s};
    window->resize(1300, 1000); // the field is in view
    QCoreApplication::processEvents();
    expectRefusals();
    expectRefusals();
    EXPECT_EQ(drop(in<PictureBox>("ImagePB"), dropped), u"taken"_s);
    EXPECT_EQ(image().imageFileName, u"four.png"_s);
    EXPECT_FALSE(QFile::exists(files.path(u"pictures/three.png"_s)));

    QFile::remove(files.path(u"pictures/one.png"_s));
    QFile::remove(files.path(u"pictures/four.png"_s));
    openDialog();
    expectRefusals();
    expectRefusals();
    EXPECT_EQ(drop(grid()->viewport(), dropped), u"taken"_s);
    EXPECT_EQ(namesInView(), (QStringList{u"one.png"_s, u"four.png"_s}));
    EXPECT_EQ(chosen(), u"four.png"_s);
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(PictureGridTest, GivesAPictureFieldNoDroppedFileThatIsNoPicture)
{
    savePicture(u"one.png"_s, {30, 20});
    writeFile(files.path(u"broken.png"_s), "no picture at all");
    window->resize(1300, 1000); // the field is in view
    QCoreApplication::processEvents();
    const auto expectRefusal = [this] {
        prompts.expectMessage(u"Ambrel eCommerce Software"_s, u"Invalid picture: broken.png"_s, PromptIcon::Warning);
    };
    expectRefusal();
    EXPECT_EQ(drop(in<PictureBox>("ImagePB"), {u"broken.png"_s}), u"taken"_s);
    EXPECT_EQ(image().imageFileName, QString());
    QFile::remove(files.path(u"pictures/broken.png"_s));

    expectRefusal();
    EXPECT_EQ(drop(in<PictureBox>("ImagePB"), {u"one.png"_s, u"broken.png"_s}), u"taken"_s);
    EXPECT_EQ(image().imageFileName, u"one.png"_s);
    EXPECT_EQ(textIn("txtWidth"), u"30"_s);
    submit();
    trigger("mnuSaveShop");
    EXPECT_TRUE(fileBytes(files.path(u"shop.xml"_s)).contains("one.png"));
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(PictureGridTest, GivesThePlainSlotADroppedFile)
{
    savePicture(u"one.png"_s);
    BrowseButtonImageControl control(*window, nullptr);
    control.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&control));
    EXPECT_EQ(drop(control.findChild<PictureBox*>(u"ImagePB"_s), {u"one.png"_s}), u"taken"_s);
    EXPECT_EQ(control.imageFileName(), u"one.png"_s);
}

} // namespace
