// The order of a load, its log, and the rewriting of a file of another version.
#include "model/ShopFixture.h"

using namespace Qt::StringLiterals;

namespace {

using ShopFileLoad = ShopFixture;

TEST_F(ShopFileLoad, ALoadIsLoggedStepByStep)
{
    ASSERT_EQ(load(shopFile("")), 0);
    EXPECT_EQ(logLines(), (QStringList{
                              u"Start shop creating"_s,
                              u"Start shop design creating"_s,
                              u"Shop class Initialized"_s,
                              u"Start Shop.FromXML"_s,
                              u"ShopDiscount loaded from XML"_s,
                              u"SelectedCountries loaded from XML"_s,
                              u"ShopShipping loaded from XML"_s,
                              u"ShopShippingCosts loaded from XML"_s,
                              u"Taxes loaded from XML"_s,
                              u"root categories loaded from XML"_s,
                              u"Discount.SendDiscountToChilds loaded from XML"_s,
                              u"CSS loaded from XML"_s,
                              u"custom pages loaded from XML"_s,
                              u"-------ShopClass loaded from XML---"_s,
                          }));
}

TEST_F(ShopFileLoad, ADesignIsReadLastIntoANewObject)
{
    ASSERT_EQ(load(shopFile("<ShopDesign><Footer_ShowMenu>Yes</Footer_ShowMenu></ShopDesign>")), 0);
    EXPECT_TRUE(session.shop->ShopDesign->isOn(DesignOption::Footer_ShowMenu));
    const QStringList lines = logLines();
    const qsizetype pages = lines.indexOf(u"custom pages loaded from XML"_s);
    ASSERT_GE(pages, 0);
    EXPECT_EQ(lines.value(pages + 1), u"Start shop design creating"_s);
    EXPECT_EQ(lines.value(pages + 2), u"-------Start ShopDesignClass loading from XML---"_s);
    EXPECT_EQ(lines.last(), u"-------ShopClass loaded from XML---"_s);
}

TEST_F(ShopFileLoad, WithoutADesignElementTheShopKeepsTheEmptyOne)
{
    ASSERT_EQ(load(shopFile("")), 0);
    ASSERT_NE(session.shop->ShopDesign, nullptr);
    EXPECT_EQ(session.shop->ShopDesign->Option(DesignOption::Category_PageHeader), QString());
}

TEST_F(ShopFileLoad, ADesignAtAnyDepthCountsAndTheFirstInTheFileWins)
{
    const QByteArray yes = "<ShopDesign><Footer_ShowMenu>Yes</Footer_ShowMenu></ShopDesign>";
    const QByteArray no = "<ShopDesign><Footer_ShowMenu>No</Footer_ShowMenu></ShopDesign>";
    const QList<QByteArray> files = {
        yes + category("2", no),
        "<X>" + yes + "</X>" + no,
        category("2", yes) + no,
        category("2", "<Discount><X>" + yes + "</X></Discount>") + no,
        category("2", category("3", yes)) + no,
        category("2", product("3", "<Shipping>" + yes + "</Shipping>")) + no,
        category("2", "") + category("3", product("4", yes)) + category("5", no),
        category("2", product("3", "")) + yes,
    };
    for (const QByteArray& elements : files) {
        ASSERT_EQ(load(shopFile(elements)), 0);
        EXPECT_TRUE(session.shop->ShopDesign->isOn(DesignOption::Footer_ShowMenu)) << elements.toStdString();
    }
    // What one file has leaves no trace in the reading of the next.
    ASSERT_EQ(load(shopFile(category("2", product("3", "")))), 0);
    EXPECT_FALSE(session.shop->ShopDesign->isOn(DesignOption::Footer_ShowMenu));
}

TEST_F(ShopFileLoad, AFileOfThisVersionIsNotRewritten)
{
    const QByteArray file = shopFile("<Unknown>kept as long as nothing is saved</Unknown>");
    ASSERT_EQ(load(file), 0);
    EXPECT_EQ(fileBytes(session.folder.shopFile()), file);
    EXPECT_EQ(session.LoadedShopVersion, u"1.2.0"_s);
    EXPECT_EQ(session.shop->Version, u"1.2.0"_s);
}

TEST_F(ShopFileLoad, AFileOfAnyOtherVersionIsRewrittenAtOnce)
{
    for (const QByteArray& version : {QByteArray("1.1.0"), QByteArray("1.3.0"), QByteArray()}) {
        const QByteArray file = shopFile("<Unknown/>", version);
        ASSERT_EQ(load(file), 0);
        EXPECT_EQ(session.LoadedShopVersion, QString::fromUtf8(version));
        const QByteArray bytes = fileBytes(session.folder.shopFile());
        EXPECT_TRUE(bytes.startsWith("<Tarnwick><Shop><Version>1.2.0</Version>")) << version.toStdString();
        EXPECT_FALSE(bytes.contains("Unknown"));
        const QStringList lines = logLines();
        EXPECT_EQ(lines.value(lines.size() - 2), u"Version not mutched"_s);
    }
}

TEST_F(ShopFileLoad, AFileWithoutAVersionCountsAsAnOldOneAndIsRewritten)
{
    // A product without "Related" is read from old files only.
    ASSERT_EQ(load("<Tarnwick><Shop><SelectedCountries/><Category><Id>2</Id><Product><Id>3</Id></Product>"
                   "<Product><Id>4</Id><Related><A><RId>7</RId></A><RId>8</RId></Related></Product></Category></Shop>"
                   "</Tarnwick>"),
              0);
    EXPECT_EQ(session.LoadedShopVersion, QString());
    EXPECT_EQ(session.shop->Version, u"1.2.0"_s);
    EXPECT_EQ(firstProduct()->related, QStringList{QString()});
    EXPECT_EQ(rootCategory()->products.Item(2)->related, (QStringList{u"7"_s, u"8"_s, QString()}));
    const QByteArray bytes = fileBytes(session.folder.shopFile());
    EXPECT_TRUE(bytes.startsWith("<Tarnwick><Shop><Version>1.2.0</Version>"));
    EXPECT_TRUE(bytes.contains("<Related/></Product>"));
}

TEST_F(ShopFileLoad, TheRewritingGoesThroughTheSessionsSave)
{
    int saves = 0;
    session.callbacks.SaveShop = [&] { ++saves; };
    ASSERT_EQ(load(shopFile("", "1.0.0")), 0);
    EXPECT_EQ(saves, 1);
    ASSERT_EQ(load(shopFile("")), 0);
    EXPECT_EQ(saves, 1);
}

} // namespace
