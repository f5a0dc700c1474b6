// What a shop deliberately loses when it is written and read again. Everything else survives: see
// ShopFileRoundTripTest.cpp.
#include "base/Dates.h"
#include "base/Numbers.h"
#include "model/ShopFixture.h"

#include <QFile>
#include <QImage>

using namespace Qt::StringLiterals;

namespace {

class ShopFileLoss : public ShopFixture
{
protected:
    ShopFileLoss()
    {
        load(shopFile("<Taxes><Type><Name>VAT</Name></Type></Taxes><ShopDesign/>" +
                      category("2", product("3", "<ProductTaxes><Tax0>Y</Tax0></ProductTaxes><Unknown>u</Unknown>"))));
    }

    void saveAndLoad()
    {
        writeShopFile(session);
        loadShop(session);
    }
    QByteArray file() { return fileBytes(session.folder.shopFile()); }
};

TEST_F(ShopFileLoss, APriceOfAVariantComesBackAsTheScannedNumber)
{
    const QList<std::pair<QString, QString>> rows = {
        {u"12"_s, u"12"_s}, {u"007"_s, u"7"_s}, {QString(), u"0"_s}, {u"from 5"_s, u"0"_s}, {u"5 each"_s, u"5"_s}};
    for (const auto& [stored, read] : rows) {
        firstProduct()->Price()->clearMultiPrices();
        firstProduct()->Price()->AddMultiPrice()->Value = stored;
        saveAndLoad();
        EXPECT_EQ(firstProduct()->Price()->GetMultiPrice(1)->Value, read) << stored.toStdString();
    }
    firstProduct()->Price()->GetMultiPrice(1)->Value = localised(u"12.50"_s);
    saveAndLoad();
    EXPECT_EQ(firstProduct()->Price()->GetMultiPrice(1)->Value, decimalSeparator() == u"."_s ? u"12.5"_s : u"12"_s);
}

TEST_F(ShopFileLoss, A29FebruaryComesBackAsThe28th)
{
    session.shop->Discount()->DateFrom = localDateText({2024, 2, 29});
    saveAndLoad();
    EXPECT_TRUE(file().contains("<DateFrom>29.02.2024</DateFrom>"));
    EXPECT_EQ(session.shop->Discount()->DateFrom, localDateText({2024, 2, 28}));
    saveAndLoad();
    EXPECT_EQ(session.shop->Discount()->DateFrom, localDateText({2024, 2, 28}));
}

TEST_F(ShopFileLoss, TheSizeOfASlotThatIsNoImageIsForgotten)
{
    for (const ImageSelection type : {ImageSelection::Nothing, ImageSelection::Text, ImageSelection::Image}) {
        clsSelectedImage& slot = *session.shop->ShopDesign->Image(ImageSlot::HeaderLogo);
        slot.SelectionType = type;
        slot.imageFileName = u"gone.png"_s;
        slot.setWidthBmp(12);
        slot.setHeightBmp(34);
        saveAndLoad();
        const ImageSize size = session.shop->ShopDesign->Image(ImageSlot::HeaderLogo)->cachedSize();
        EXPECT_EQ(size.width, type == ImageSelection::Image ? 12 : 0);
        EXPECT_EQ(size.height, type == ImageSelection::Image ? 34 : 0);
    }
}

TEST_F(ShopFileLoss, AnImageOfANodeKeepsItsNameAndSizeOnly)
{
    clsSelectedImage& image = *firstProduct()->selectedImage();
    image.imageFileName = u"a.png"_s;
    image.setWidthBmp(1);
    image.setHeightBmp(2);
    image.SelectionType = ImageSelection::Image;
    image.TextValue = u"text"_s;
    image.Tag = u"tag"_s;
    saveAndLoad();
    const clsSelectedImage& read = *firstProduct()->selectedImage();
    EXPECT_EQ(read.imageFileName, u"a.png"_s);
    EXPECT_EQ(read.cachedSize().height, 2);
    EXPECT_EQ(read.SelectionType, ImageSelection::Nothing);
    EXPECT_EQ(read.TextValue, QString());
    EXPECT_EQ(read.Tag, QString());
}

TEST_F(ShopFileLoss, TheDirectoryOfAPictureIsCutOff)
{
    firstProduct()->selectedImage()->imageFileName = u"C:\\pics\\a.png"_s;
    firstProduct()->selectedImage()->setWidthBmp(1);
    firstProduct()->selectedImage()->setHeightBmp(1);
    saveAndLoad();
    EXPECT_EQ(firstProduct()->selectedImage()->imageFileName, u"a.png"_s);
}

TEST_F(ShopFileLoss, MembersThatALevelsElementsDoNotHold)
{
    const auto shopDiscount = session.shop->Discount();
    shopDiscount->setSpecific(u"11"_s);
    shopDiscount->Inherit = u"12"_s;
    rootCategory()->Discount()->setSpecific(u"13"_s);
    const auto priceDiscount = firstProduct()->Price()->Discount();
    priceDiscount->setApplyToWhole(u"14"_s);
    priceDiscount->DependedDiscounts()->Add(u"1"_s, u"2"_s, u"3"_s);
    priceDiscount->ParentStatus = 5;
    saveAndLoad();
    EXPECT_EQ(session.shop->Discount()->Specific(), QString());
    EXPECT_EQ(session.shop->Discount()->Inherit, QString());
    EXPECT_EQ(rootCategory()->Discount()->Specific(), QString());
    EXPECT_EQ(firstProduct()->Price()->Discount()->ApplyToWhole(), QString());
    EXPECT_EQ(firstProduct()->Price()->Discount()->DependedDiscounts()->Count(), 0);
    EXPECT_EQ(firstProduct()->Price()->Discount()->ParentStatus, 0);
}

TEST_F(ShopFileLoss, MembersOutsideTheFile)
{
    firstProduct()->Picture = u"p.png"_s;
    firstProduct()->QuantityInCart = 3;
    firstProduct()->Price()->Selected = u"4"_s;
    firstProduct()->Price()->PriceType = 5;
    session.shop->ShopDesign->Header_LogoText = u"text"_s;
    session.shop->ShopDesign->Header_LogoName = u"name"_s;
    session.shop->ShopDesign->Pages(PageSelection::MainPageMenuList)->Clicked = u"page"_s;
    saveAndLoad();
    EXPECT_EQ(firstProduct()->Picture, QString());
    EXPECT_EQ(firstProduct()->QuantityInCart, 0);
    EXPECT_EQ(firstProduct()->Price()->Selected, QString());
    EXPECT_EQ(firstProduct()->Price()->PriceType, 0);
    EXPECT_EQ(session.shop->ShopDesign->Header_LogoText, QString());
    EXPECT_EQ(session.shop->ShopDesign->Header_LogoName, QString());
    EXPECT_EQ(session.shop->ShopDesign->Pages(PageSelection::MainPageMenuList)->Clicked, QString());
}

TEST_F(ShopFileLoss, TheTaxChoicesOfAProduct)
{
    ASSERT_EQ(firstProduct()->Taxes()->Item(1), u"Y"_s);
    saveAndLoad();
    EXPECT_FALSE(file().contains("ProductTaxes"));
    EXPECT_EQ(firstProduct()->Taxes()->Count(), 0);
}

TEST_F(ShopFileLoss, ElementsThatNobodyKnows)
{
    ASSERT_TRUE(file().contains("Unknown"));
    saveAndLoad();
    EXPECT_FALSE(file().contains("Unknown"));
}

TEST_F(ShopFileLoss, TheMarkerWordComesBackAsTheEmptyText)
{
    session.shop->name = u"HUERAGA"_s;
    session.shop->Description = u"HUERAGA "_s;
    rootCategory()->name = u"hueraga"_s;
    saveAndLoad();
    EXPECT_EQ(session.shop->name, QString());
    EXPECT_EQ(session.shop->Description, u"HUERAGA "_s);
    EXPECT_EQ(rootCategory()->name, u"hueraga"_s);
}

TEST_F(ShopFileLoss, NumbersComeBackWithTheUsersSeparator)
{
    firstProduct()->Price()->Value = u"1,5"_s;
    firstProduct()->Weight = u"2.5"_s;
    saveAndLoad();
    EXPECT_EQ(firstProduct()->Price()->Value, localised(u"1.5"_s));
    EXPECT_EQ(firstProduct()->Weight, localised(u"2.5"_s));
}

TEST_F(ShopFileLoss, CharactersThatXmlCannotHoldAreLeftOut)
{
    session.shop->name =
        u"a"_s + QChar(1) + u"b"_s + QChar(0) + u"c"_s + QChar(0xFFFF) + u"d"_s + QChar(0xD800) + u"e"_s;
    saveAndLoad();
    EXPECT_EQ(session.shop->name, u"abcde"_s);
}

TEST_F(ShopFileLoss, AbsentShippingTypesComeBackAsNone)
{
    ASSERT_EQ(session.shop->ShippingTypeName, nullptr);
    saveAndLoad();
    ASSERT_NE(session.shop->ShippingTypeName, nullptr);
    EXPECT_EQ(session.shop->ShippingTypeName->Count(), 0);
    EXPECT_EQ(session.shop->ShippingCostFrameFrom, nullptr);
}

TEST_F(ShopFileLoss, CostsOfTypesThatTheShopHasNotAreForgotten)
{
    firstProduct()->ShippingCosts()->Add(u"4"_s, u"Pigeon"_s);
    saveAndLoad();
    EXPECT_EQ(firstProduct()->ShippingCosts()->Count(), 0);
}

TEST_F(ShopFileLoss, TheDatesOfADiscountThatAreNoDatesInTheFileAreForgotten)
{
    ASSERT_EQ(load(shopFile("<ShopDiscount><Status>No</Status><DateFrom>2024-05-01</DateFrom></ShopDiscount>")), 0);
    saveAndLoad();
    EXPECT_TRUE(file().contains("<DateFrom></DateFrom>"));
}

TEST_F(ShopFileLoss, OptionsOfADesignThatNeverSawAFileComeBackTheSameButForTheLimits)
{
    ASSERT_EQ(load(shopFile("")), 0);
    ASSERT_EQ(session.shop->ShopDesign->Option(DesignOption::Category_Limit_Desc), QString());
    saveAndLoad();
    EXPECT_EQ(session.shop->ShopDesign->Option(DesignOption::Category_Limit_Desc), u"0"_s);
    EXPECT_EQ(session.shop->ShopDesign->Option(DesignOption::Category_PageHeader), QString());
}

} // namespace
