// Files that cannot be read, and saves that cannot be made.
#include "model/ShopFixture.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

using ShopFileFailures = ShopFixture;

const QString title = u"Ambrel eCommerce Software"_s;
const QString noShop = u"Error in the configuration XML file. No 'Shop' node."_s;

TEST_F(ShopFileFailures, AFileWithoutAShopShowsTheOneBoxAndTheSessionGoesOn)
{
    for (const QByteArray& bytes : {QByteArray("<Tarnwick/>"), QByteArray("<Tarnwick><shop/></Tarnwick>"), QByteArray(),
                                    QByteArray("<Tarnwick><Shop></Tarnwick>"), QByteArray("no XML at all"),
                                    QByteArray("<Shop/><Shop/>"), QByteArray("<Tarnwick><Shop/></Tarnwick>text")}) {
        writeFile(session.folder.shopFile(), bytes);
        prompts.expectMessage(title, noShop, PromptIcon::None);
        EXPECT_FALSE(loadShop(session)) << bytes.toStdString();
        EXPECT_NE(session.shop, nullptr);
        EXPECT_EQ(session.shop->SelectedCountries, nullptr);
        EXPECT_FALSE(session.objects.isCreated());
        EXPECT_EQ(logLines().last(), u"Shop class Initialized"_s);
    }
}

TEST_F(ShopFileFailures, AMissingFileIsLikeOneWithoutAShop)
{
    prompts.expectMessage(title, noShop, PromptIcon::None);
    EXPECT_FALSE(loadShop(session));
    EXPECT_EQ(logLines(),
              (QStringList{u"Start shop creating"_s, u"Start shop design creating"_s, u"Shop class Initialized"_s}));
}

TEST_F(ShopFileFailures, AShopElementIsFoundAtAnyDepthAndAsTheRootToo)
{
    EXPECT_EQ(load("<Shop><Version>1.2.0</Version><Name>root</Name><SelectedCountries/></Shop>"), 0);
    EXPECT_EQ(session.shop->name, u"root"_s);
    EXPECT_EQ(load("<A><B><Shop><Version>1.2.0</Version><Name>deep</Name><SelectedCountries/></Shop></B></A>"), 0);
    EXPECT_EQ(session.shop->name, u"deep"_s);
}

TEST_F(ShopFileFailures, EveryFailureHasItsNumber)
{
    struct Row
    {
        QByteArray elements;
        int error;
    };
    const QByteArray twoRoots = category("2", "") + category("2", "");
    const QList<Row> rows = {
        {"<ShopDiscount/>", 94}, // the default of its status is no status word
        {"<ShopDiscount><Status>1</Status></ShopDiscount>", 94},
        {"<ShopDiscount><Status></Status></ShopDiscount>", 94},
        {category("2", "<Discount><Status>Some</Status></Discount>"), 94},
        {category("2", product("3", "<Discount><Status>no</Status></Discount>")), 94},
        {"<TaxesAreSelected>Yes</TaxesAreSelected>", 13},
        {"<ShippingChargesAreSelected></ShippingChargesAreSelected>", 13},
        {category("2", product("3", "<ForSale>true</ForSale>")), 13},
        {category("2", "<Width>wide</Width>"), 13},
        {category("2", "<Height>40000</Height>"), 6},
        {category("2", product("3", "<Width></Width>")), 13},
        {twoRoots, 457},
        {category("2", category("3", "") + category("3", "")), 457},
        {category("2", product("3", "") + product("3", "")), 457},
        {category("2", category("3", "") + product("3", "")), 457}, // one key in the category's discount
        {"<CSS><CSSName>a</CSSName></CSS><CSS><CSSName>A</CSSName></CSS>", 457},
        {"<CustomPage><PageName>a</PageName></CustomPage><CustomPage><PageName>A</PageName></CustomPage>", 457},
        {"<CSS/><CSS/>", 457},
        {category("2", "<Product><Id>3</Id></Product>"), 91},
        {"<ShopDesign><FOOTER_MENU_LIST><PAGES/></FOOTER_MENU_LIST></ShopDesign>", 91},
        {"<ShopDesign><HEADER_LOGO><SelectionType>Image</SelectionType><Width>x</Width></HEADER_LOGO></ShopDesign>",
         13},
        {"<ShopShipping><Type><Name>P</Name></Type><Type><Name>p</Name></Type></ShopShipping>" +
             category("2", product("3", "<Shipping/>")),
         457},
        {"<ShopShipping><Type><Name>P</Name></Type><Type><Name>p</Name></Type></ShopShipping>" +
             category("2", product("3", "")),
         0},
        {"<ShopDiscount><Status>ToAll</Status><DateFrom>soon</DateFrom></ShopDiscount>", 0},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(load(shopFile(row.elements)), row.error) << row.elements.toStdString();
    }
}

TEST_F(ShopFileFailures, MissingCountriesAreError91AndOneThatStandsTwiceError457)
{
    EXPECT_EQ(load("<Tarnwick><Shop><Version>1.2.0</Version></Shop></Tarnwick>"), 91);
    EXPECT_EQ(load("<Tarnwick><Shop><SelectedCountries><C>Mali</C><C>mali</C></SelectedCountries></Shop></Tarnwick>"),
              457);
}

TEST_F(ShopFileFailures, AnEmptyIdNeedsACounterThatIsANumber)
{
    EXPECT_EQ(
        load("<Tarnwick><Shop><MaxProductId>many</MaxProductId><SelectedCountries/><Category><Id/></Category></Shop>"
             "</Tarnwick>"),
        13);
    EXPECT_EQ(
        load("<Tarnwick><Shop><MaxProductId>2147483647</MaxProductId><SelectedCountries/><Category><Id/></Category>"
             "</Shop></Tarnwick>"),
        6);
}

TEST_F(ShopFileFailures, TheFirstErrorEndsTheReadingAndNothingReadBeforeIsUndone)
{
    EXPECT_EQ(load(shopFile("<shop_currency>EUR</shop_currency>" + category("2", "") + category("2", ""))), 457);
    EXPECT_EQ(session.shop->shop_currency, u"EUR"_s);
    EXPECT_EQ(session.shop->categories.Count(), 1);
    EXPECT_EQ(logLines().last(), u"Taxes loaded from XML"_s);
}

TEST_F(ShopFileFailures, ATableOfCostsThatNoMemoryHoldsIsError7)
{
    EXPECT_EQ(load(shopFile("<ShopShipping>" + QByteArray("<Type/>").repeated(1001) + "</ShopShipping>")), 7);
    EXPECT_EQ(
        load(shopFile("<ShopShipping>" + QByteArray("<Type/>").repeated(1000) + "</ShopShipping><ShopShippingCosts>" +
                      QByteArray("<CostsFrame/>").repeated(10001) + "</ShopShippingCosts>")),
        7);
}

TEST_F(ShopFileFailures, ReadingTellsWhichFileItIs)
{
    writeFile(session.folder.shopFile(), "<Tarnwick><Shop/></Tarnwick>");
    EXPECT_EQ(circumstancesOf([this] { loadShop(session); }), QStringList{u"The file \"shop.xml\" was being read."_s});
}

// ---- Saving ----

TEST_F(ShopFileFailures, SavingAShopWhoseLoadFailedIsError91AndTheFileStays)
{
    const QByteArray file = "<Tarnwick/>";
    writeFile(session.folder.shopFile(), file);
    prompts.expectMessage(title, noShop, PromptIcon::None);
    loadShop(session);
    EXPECT_EQ(errorOf([this] { writeShopFile(session); }), 91);
    EXPECT_EQ(fileBytes(session.folder.shopFile()), file);
}

TEST_F(ShopFileFailures, SavingWithoutAShopIsError91)
{
    EXPECT_EQ(errorOf([this] { writeShopFile(session); }), 91);
    EXPECT_FALSE(QFile::exists(session.folder.shopFile()));
}

TEST_F(ShopFileFailures, APictureThatIsGoneLeavesTheOldFileWhole)
{
    const QByteArray file = shopFile(category("2", product("3", "<Picture>gone.png</Picture>")));
    ASSERT_EQ(load(file), 0);
    session.shop->name = u"changed"_s;
    EXPECT_EQ(errorOf([this] { writeShopFile(session); }), 53);
    EXPECT_EQ(fileBytes(session.folder.shopFile()), file);
}

TEST_F(ShopFileFailures, ADateThatIsNoDateStopsASaveAndLeavesTheOldFileWhole)
{
    const QByteArray file = shopFile("");
    ASSERT_EQ(load(file), 0);
    session.shop->Discount()->DateFrom = u"soon"_s;
    EXPECT_EQ(errorOf([this] { writeShopFile(session); }), 13);
    EXPECT_EQ(fileBytes(session.folder.shopFile()), file);
}

// Allows files of that many bytes for the length of a test.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int) = SIG_DFL;
};

TEST_F(ShopFileFailures, NoRoomLeavesTheOldFileWhole)
{
    const QByteArray file = shopFile("");
    ASSERT_EQ(load(file), 0);
    session.shop->Description = u"long "_s.repeated(100'000);
    int error = 0;
    {
        const FileSizeLimit limit(64UL * 1024);
        error = errorOf([this] { writeShopFile(session); });
    }
    EXPECT_TRUE(error == 61 || error == 57) << error;
    EXPECT_EQ(fileBytes(session.folder.shopFile()), file);
    EXPECT_EQ(QDir(session.folder.path()).entryList({u"shop*"_s}, QDir::Files), QStringList{u"shop.xml"_s});
    // With room again the same shop is saved.
    writeShopFile(session);
    EXPECT_GT(fileBytes(session.folder.shopFile()).size(), 500'000);
}

TEST_F(ShopFileFailures, AFolderThatIsGoneIsARunTimeError)
{
    ASSERT_EQ(load(shopFile("")), 0);
    QFile::remove(session.folder.shopFile());
    ASSERT_TRUE(QDir().mkpath(session.folder.shopFile() + u"/in the way"_s));
    EXPECT_NE(errorOf([this] { writeShopFile(session); }), 0);
}

} // namespace
