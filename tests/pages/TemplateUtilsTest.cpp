#include "pages/TemplateUtils.h"

#include "design/CSSClass.h"
#include "pages/PagesTest.h"

using namespace Qt::StringLiterals;

namespace {

using TemplateUtils = PagesTest;

CSSClass plainStyle()
{
    CSSClass style;
    style.CSSName = u"N"_s;
    style.ForeGroundColor = u"#000000"_s;
    style.BackGroundColor = u"#FFFFFF"_s;
    style.FontName = u"Arial"_s;
    style.FontSize = u"10pt"_s;
    return style;
}

TEST_F(TemplateUtils, AStyleBecomesOneRule)
{
    const QString colours = u".N{background-color : #FFFFFF;color : #000000;font : "_s;
    const struct
    {
        const char* bold;
        const char* cursive;
        const char* underlined;
        const char* struck;
        QString rest;
    } rows[] = {
        {"No", "No", "No", "No", u" 10pt  Arial;}"_s},
        {"", "", "", "", u" 10pt  Arial;}"_s},
        {"yes", "YES", "true", "Y", u" 10pt  Arial;}"_s},
        {"Yes", "No", "No", "No", u" bold  10pt  Arial;}"_s},
        {"No", "Yes", "No", "No", u" italic  10pt  Arial;}"_s},
        {"No", "No", "Yes", "No", u" 10pt  Arial;text-decoration :  underline ; }"_s},
        {"No", "No", "No", "Yes", u" 10pt  Arial;text-decoration :  line-through ; }"_s},
        {"Yes", "Yes", "Yes", "Yes", u" bold  italic  10pt  Arial;text-decoration :  underline  line-through ; }"_s},
    };
    for (const auto& row : rows) {
        CSSClass style = plainStyle();
        style.IsBold = QString::fromLatin1(row.bold);
        style.IsCursive = QString::fromLatin1(row.cursive);
        style.IsUndcelined = QString::fromLatin1(row.underlined);
        style.IsLineThrugh = QString::fromLatin1(row.struck);
        EXPECT_EQ(GetCssText(style), colours + row.rest);
    }
}

TEST_F(TemplateUtils, NothingInAStyleIsEscapedOrChecked)
{
    CSSClass style;
    style.CSSName = u"two words %1 %2"_s;
    style.FontName = u"%3}"_s;
    EXPECT_EQ(GetCssText(style), u".two words %1 %2{background-color : 255;color : 0;font :    %3};}"_s);
}

TEST_F(TemplateUtils, APictureNameIsAPathUnderThePicturesUnlessItHasAColon)
{
    const QString pictures = session.folder.picturesFolder();
    const struct
    {
        QString name;
        QString path;
    } rows[] = {
        {u"tea.png"_s, pictures + u"tea.png"_s},
        {QString(), pictures},
        {u"a b, +ü.png"_s, pictures + u"a b, +ü.png"_s},
        {u"a%20#2?\".png"_s, pictures + u"a%2520%232%3F%22.png"_s},
        {u"http://elsewhere/tea.png"_s, u"http://elsewhere/tea.png"_s},
        {u"C:\\pics\\tea.png"_s, u"C:\\pics\\tea.png"_s},
        {u":"_s, u":"_s},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(FullPicturePath(session.folder, row.name), row.path);
    }
    EXPECT_TRUE(pictures.startsWith(u'/'));
}

TEST_F(TemplateUtils, APictureOfACategoryHasAPathOrNoneOrFails)
{
    CategoryClass category(session.services);
    EXPECT_EQ(SelectedPicturePath(session.folder, category), QString());
    category.selectedImage()->imageFileName = u"tea.png"_s;
    EXPECT_EQ(SelectedPicturePath(session.folder, category), session.folder.picturesFolder() + u"tea.png"_s);
    category.selectedImage()->imageFileName = u"tea #2.png"_s;
    EXPECT_EQ(SelectedPicturePath(session.folder, category), session.folder.picturesFolder() + u"tea %232.png"_s);
    category.selectedImage()->imageFileName = u"C:tea.png"_s;
    EXPECT_EQ(errorOf([&] { SelectedPicturePath(session.folder, category); }), 438);
}

TEST_F(TemplateUtils, EverySelectionButAnImageIsGivenOutAsText)
{
    const struct
    {
        ImageSelection selection;
        QString type;
    } rows[] = {
        {ImageSelection::Nothing, u"TEXT"_s},
        {ImageSelection::Text, u"TEXT"_s},
        {ImageSelection::Image, u"IMAGE"_s},
    };
    for (const auto& row : rows) {
        clsSelectedImage image(session.designServices);
        image.SelectionType = row.selection;
        image.TextValue = u"words"_s;
        Variables vars = context.newVariables();
        AddImageVariables(vars, context, image, ImageKeys(u"KEY"));
        EXPECT_EQ(textOf(vars.Item(u"KEY_TYPE")), row.type);
        EXPECT_EQ(textOf(vars.Item(u"KEY_TEXT")), u"words"_s);
    }
}

TEST_F(TemplateUtils, ASizeThatIsNotKnownIsReadFromTheFile)
{
    clsSelectedImage image(session.designServices);
    image.imageFileName = u"dot.pbm"_s;
    writeFile(session.folder.picturesFolder() + image.imageFileName, "P1\n3 2\n0 0 0\n0 0 0\n");
    Variables vars = context.newVariables();
    AddImageVariables(vars, context, image, ImageKeys(u"KEY"));
    EXPECT_EQ(textOf(vars.Item(u"KEY_WIDTH")), u"3"_s);
    EXPECT_EQ(textOf(vars.Item(u"KEY_HEIGHT")), u"2"_s);

    clsSelectedImage gone(session.designServices);
    gone.imageFileName = u"gone.png"_s;
    EXPECT_EQ(errorOf([&] { AddImageVariables(vars, context, gone, ImageKeys(u"GONE")); }), 53);
}

TEST_F(TemplateUtils, AVariableThatIsAddedTwiceFails)
{
    clsSelectedImage image(session.designServices);
    Variables vars = context.newVariables();
    vars.Add(u"key_text", u"x"_s);
    EXPECT_EQ(errorOf([&] { AddImageVariables(vars, context, image, ImageKeys(u"KEY")); }), 457);
}

} // namespace
