#include "design/ImageSize.h"

#include "DesignFixture.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

using ImageSizes = DesignFixture;

TEST_F(ImageSizes, ThePictureOfAFileIsMeasured)
{
    writePicture(u"logo.png"_s, 120, 40);
    const ImageSize size = readImageSize(folder, u"logo.png"_s);
    EXPECT_EQ(size.width, 120);
    EXPECT_EQ(size.height, 40);
}

TEST_F(ImageSizes, TheHeaderIsEnough)
{
    // A PNG that is cut off where its picture data begins has none at all.
    writePicture(u"whole.png"_s, 33, 44);
    const QByteArray bytes = fileBytes(temporary.path(u"pictures/whole.png"_s));
    writeFile(temporary.path(u"pictures/cut.png"_s), bytes.first(bytes.indexOf("IDAT") + 8));
    EXPECT_EQ(readImageSize(folder, u"cut.png"_s).width, 33);
    EXPECT_EQ(readImageSize(folder, u"cut.png"_s).height, 44);
}

TEST_F(ImageSizes, APictureIsKnownByItsContentWhateverItsNameEndsIn)
{
    writePicture(u"wrong.gif"_s, 5, 6);
    EXPECT_EQ(readImageSize(folder, u"wrong.gif"_s).width, 5);
}

TEST_F(ImageSizes, AFileThatIsNotThereIsError53)
{
    EXPECT_EQ(errorOf([&] { readImageSize(folder, u"gone.png"_s); }), 53);
}

TEST_F(ImageSizes, ANameThatLeadsOutOfTheFolderIsLikeAFileThatIsNotThere)
{
    writePicture(u"in.png"_s, 5, 6);
    ASSERT_TRUE(QFile::copy(temporary.path(u"pictures/in.png"_s), temporary.path(u"out.png"_s)));
    EXPECT_EQ(errorOf([&] { readImageSize(folder, u"../out.png"_s); }), 53);
    EXPECT_EQ(errorOf([&] { readImageSize(folder, temporary.path(u"out.png"_s)); }), 53);
    EXPECT_EQ(errorOf([&] { readImageSize(folder, u".."_s); }), 53);
}

TEST_F(ImageSizes, AFileThatIsNoPictureIsError5)
{
    writeFile(temporary.path(u"pictures/text.png"_s), "no picture");
    EXPECT_EQ(errorOf([&] { readImageSize(folder, u"text.png"_s); }), 5);
}

TEST(ImageSizeNarrowing, WhatDoesNotFitIn16BitsIsError6)
{
    EXPECT_EQ(narrowedImageSize(32767, 1).width, 32767);
    EXPECT_EQ(narrowedImageSize(1, 32767).height, 32767);
    EXPECT_EQ(errorOf([] { narrowedImageSize(32768, 1); }), 6);
    EXPECT_EQ(errorOf([] { narrowedImageSize(1, 32768); }), 6);
}

TEST_F(ImageSizes, APictureWiderThan32767PixelsIsError6)
{
    writePicture(u"wide.png"_s, 32768, 1);
    EXPECT_EQ(errorOf([&] { readImageSize(folder, u"wide.png"_s); }), 6);
}

} // namespace
