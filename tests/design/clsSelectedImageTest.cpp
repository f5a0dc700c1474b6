#include "design/clsSelectedImage.h"

#include "DesignFixture.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class SelectedImage : public DesignFixture
{
protected:
    clsSelectedImage image{services, u"HEADER_LOGO"_s};
};

TEST_F(SelectedImage, ANewSlotShowsNothing)
{
    EXPECT_EQ(image.SelectionType, ImageSelection::Nothing);
    EXPECT_EQ(image.TextValue, QString());
    EXPECT_EQ(image.imageFileName, QString());
    EXPECT_EQ(image.WidthBmp(), 0);
    EXPECT_EQ(image.HeightBmp(), 0);
}

TEST_F(SelectedImage, TheElementHasItsFiveChildrenInOrder)
{
    image.SelectionType = ImageSelection::Text;
    image.TextValue = u"Find"_s;
    EXPECT_EQ(written(image),
              "<X><HEADER_LOGO><SelectionType>Text</SelectionType><FileName></FileName><Text>Find</Text>"
              "<Width>0</Width><Height>0</Height></HEADER_LOGO></X>");
}

TEST_F(SelectedImage, EachTypeHasItsWord)
{
    const QList<std::pair<ImageSelection, QByteArray>> words = {
        {ImageSelection::Nothing, "Nothing"}, {ImageSelection::Text, "Text"}, {ImageSelection::Image, "Image"}};
    for (const auto& [type, word] : words) {
        image.SelectionType = type;
        EXPECT_TRUE(written(image).contains("<SelectionType>" + word + "</SelectionType>")) << word.toStdString();
        clsSelectedImage read(services, u"HEADER_LOGO"_s);
        read.SelectionType = type == ImageSelection::Nothing ? ImageSelection::Text : ImageSelection::Nothing;
        read.FromXML(element(written(image)));
        EXPECT_EQ(read.SelectionType, type);
    }
}

TEST_F(SelectedImage, AnImageOf120By40WritesItsSizeAndReadsItBackWithoutTouchingTheFile)
{
    writePicture(u"logo.png"_s, 120, 40);
    image.SelectionType = ImageSelection::Image;
    image.imageFileName = u"logo.png"_s;
    const QByteArray xml = written(image);
    EXPECT_TRUE(xml.contains("<Width>120</Width><Height>40</Height>"));
    ASSERT_TRUE(QFile::remove(temporary.path(u"pictures/logo.png"_s)));
    clsSelectedImage read(services, u"HEADER_LOGO"_s);
    read.FromXML(element(xml));
    EXPECT_EQ(read.WidthBmp(), 120);
    EXPECT_EQ(read.HeightBmp(), 40);
    EXPECT_EQ(written(read), xml);
}

TEST_F(SelectedImage, ATextSlotWithAFileNameKeepsTheNameAndWritesTheSize)
{
    writePicture(u"logo.png"_s, 120, 40);
    image.SelectionType = ImageSelection::Text;
    image.imageFileName = u"logo.png"_s;
    const QByteArray xml = written(image);
    EXPECT_TRUE(xml.contains("<FileName>logo.png</FileName>"));
    EXPECT_TRUE(xml.contains("<Width>120</Width><Height>40</Height>"));
    clsSelectedImage read(services, u"HEADER_LOGO"_s);
    read.FromXML(element(xml));
    EXPECT_EQ(read.imageFileName, u"logo.png"_s);
    // The size of a slot that is no image does not survive the reading, and is then taken from the file.
    EXPECT_EQ(read.cachedSize().width, 0);
    EXPECT_EQ(read.cachedSize().height, 0);
    EXPECT_EQ(read.WidthBmp(), 120);
    EXPECT_EQ(read.cachedSize().height, 0);
    EXPECT_EQ(read.HeightBmp(), 40);
}

TEST_F(SelectedImage, AnUnknownWordLeavesTheType)
{
    for (const char* word : {"text", "IMAGE", "0", "2", ""}) {
        image.SelectionType = ImageSelection::Text;
        image.FromXML(element(QByteArray("<D><HEADER_LOGO><SelectionType>") + word +
                              "</SelectionType><Width>7</Width><Text>t</Text></HEADER_LOGO></D>"));
        EXPECT_EQ(image.SelectionType, ImageSelection::Text) << word;
        EXPECT_EQ(image.TextValue, u"t"_s);
        EXPECT_EQ(image.cachedSize().width, 0);
    }
}

TEST_F(SelectedImage, AnUnknownWordBringsNoSizeToAnImageSlot)
{
    image.SelectionType = ImageSelection::Image;
    image.FromXML(element("<D><HEADER_LOGO><SelectionType>image</SelectionType><Width>7</Width></HEADER_LOGO></D>"));
    EXPECT_EQ(image.SelectionType, ImageSelection::Image);
    EXPECT_EQ(image.cachedSize().width, 0);
}

TEST_F(SelectedImage, AMissingWordLeavesTheTypeAndMissingTextsAreEmpty)
{
    image.SelectionType = ImageSelection::Image;
    image.TextValue = u"old"_s;
    image.imageFileName = u"old.png"_s;
    image.setWidthBmp(5);
    image.FromXML(element("<D><HEADER_LOGO/></D>"));
    EXPECT_EQ(image.SelectionType, ImageSelection::Image);
    EXPECT_EQ(image.TextValue, QString());
    EXPECT_EQ(image.imageFileName, QString());
    EXPECT_EQ(image.cachedSize().width, 0);
}

TEST_F(SelectedImage, WithoutItsElementNothingChanges)
{
    image.SelectionType = ImageSelection::Text;
    image.TextValue = u"old"_s;
    image.setWidthBmp(5);
    image.FromXML(element("<D><OTHER><SelectionType>Image</SelectionType></OTHER></D>"));
    EXPECT_EQ(image.SelectionType, ImageSelection::Text);
    EXPECT_EQ(image.TextValue, u"old"_s);
    EXPECT_EQ(image.cachedSize().width, 5);
}

TEST_F(SelectedImage, TheFirstElementAtAnyDepthCounts)
{
    image.FromXML(element("<D><A><B><HEADER_LOGO><Text>first</Text></HEADER_LOGO></B></A>"
                          "<HEADER_LOGO><Text>second</Text></HEADER_LOGO></D>"));
    EXPECT_EQ(image.TextValue, u"first"_s);
}

TEST_F(SelectedImage, ASizeOfAnImageSlotThatIsNoNumberIsError13AndOneThatIsTooLargeError6)
{
    const auto read = [&](const QByteArray& width) {
        return errorOf([&] {
            image.FromXML(element("<D><HEADER_LOGO><SelectionType>Image</SelectionType><Width>" + width +
                                  "</Width></HEADER_LOGO></D>"));
        });
    };
    EXPECT_EQ(read("wide"), 13);
    EXPECT_EQ(read(""), 13);
    EXPECT_EQ(read("32768"), 6);
    EXPECT_EQ(read("32767"), 0);
    EXPECT_EQ(image.WidthBmp(), 32767);
    EXPECT_EQ(image.HeightBmp(), 0);
}

TEST_F(SelectedImage, AnEmptyTagShowsABoxAndLeavesTheSlot)
{
    clsSelectedImage untagged(services);
    untagged.TextValue = u"old"_s;
    prompts.expectMessage(u"Ambrel eCommerce Software"_s, u"You didn't type tag for one of the image selection type"_s,
                          PromptIcon::Critical);
    untagged.FromXML(element("<D><Text>new</Text></D>"));
    EXPECT_EQ(untagged.TextValue, u"old"_s);
}

TEST_F(SelectedImage, AFileThatIsGoneStopsGettersAndWriting)
{
    image.imageFileName = u"gone.png"_s;
    EXPECT_EQ(errorOf([&] { image.WidthBmp(); }), 53);
    EXPECT_EQ(errorOf([&] { image.HeightBmp(); }), 53);
    EXPECT_EQ(errorOf([&] { written(image); }), 53);
    // One known size protects its getter, both protect the writing.
    image.setWidthBmp(3);
    EXPECT_EQ(image.WidthBmp(), 3);
    EXPECT_EQ(errorOf([&] { written(image); }), 53);
    image.setHeightBmp(4);
    EXPECT_EQ(errorOf([&] { written(image); }), 0);
}

TEST_F(SelectedImage, WritingReadsBothSizesWhenOneIsNotKnown)
{
    writePicture(u"logo.png"_s, 120, 40);
    image.imageFileName = u"logo.png"_s;
    image.setWidthBmp(7);
    EXPECT_TRUE(written(image).contains("<Width>120</Width><Height>40</Height>"));
}

TEST_F(SelectedImage, WritingThatMayNotFailTakesWhatIsKnownOfAFileThatIsGone)
{
    const auto writtenAllTheSame = [this] {
        pugi::xml_document document;
        image.ToXML(document.append_child("X"), Unwritable::IsLeftEmpty);
        return xmlToBytes(document);
    };
    image.imageFileName = u"logo.png"_s;
    image.setWidthBmp(7);
    EXPECT_TRUE(writtenAllTheSame().contains("<Width>7</Width><Height>0</Height>"));
    EXPECT_EQ(image.writtenSize(Unwritable::IsLeftEmpty).width, 7);
    writePicture(u"logo.png"_s, 120, 40);
    EXPECT_TRUE(writtenAllTheSame().contains("<Width>120</Width><Height>40</Height>"));
    EXPECT_EQ(image.writtenSize(Unwritable::IsLeftEmpty).height, 40);
    // The slot is only looked at.
    EXPECT_EQ(image.cachedSize().width, 7);
    EXPECT_EQ(image.cachedSize().height, 0);
}

TEST_F(SelectedImage, AGetterReadsOnlyTheSizeAskedFor)
{
    writePicture(u"logo.png"_s, 120, 40);
    image.imageFileName = u"logo.png"_s;
    image.setWidthBmp(7);
    EXPECT_EQ(image.HeightBmp(), 40);
    EXPECT_EQ(image.WidthBmp(), 7);
}

TEST_F(SelectedImage, WithoutAFileNameTheSizeStaysUnknown)
{
    EXPECT_EQ(image.WidthBmp(), 0);
    image.setWidthBmp(9);
    EXPECT_TRUE(written(image).contains("<Width>9</Width><Height>0</Height>"));
}

TEST_F(SelectedImage, TheBoxesShowWhatIsKnownAndOtherwiseTheShownPicture)
{
    image.setWidthBmp(7);
    const ImageSizeTexts texts = image.GetBitmapSize({120, 40});
    EXPECT_EQ(texts.width, u"7"_s);
    EXPECT_EQ(texts.height, u"40"_s);
    EXPECT_EQ(image.cachedSize().height, 0);
}

TEST_F(SelectedImage, TheOriginalSizeReplacesWhatIsKnown)
{
    image.setWidthBmp(7);
    const ImageSizeTexts texts = image.GetBitmapSizeOriginal({120, 40});
    EXPECT_EQ(texts.width, u"120"_s);
    EXPECT_EQ(texts.height, u"40"_s);
    EXPECT_EQ(image.WidthBmp(), 120);
    EXPECT_EQ(image.HeightBmp(), 40);
}

TEST_F(SelectedImage, TheSizeOfAPickedFileIsTakenOverAndAnUnreadableOneLeavesIt)
{
    writePicture(u"logo.png"_s, 120, 40);
    image.setWidthBmp(7);
    image.setHeightBmp(8);
    image.GetBitmapSizeVirtual(QString());
    EXPECT_EQ(image.WidthBmp(), 7);
    image.GetBitmapSizeVirtual(u"gone.png"_s);
    EXPECT_EQ(image.WidthBmp(), 7);
    EXPECT_EQ(image.HeightBmp(), 8);
    image.GetBitmapSizeVirtual(u"logo.png"_s);
    EXPECT_EQ(image.WidthBmp(), 120);
    EXPECT_EQ(image.HeightBmp(), 40);
}

} // namespace
