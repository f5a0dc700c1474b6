// Which element of a shop file a reader takes when there are several of its name, and what the text of one is.
#include "model/ShopFixture.h"

using namespace Qt::StringLiterals;

namespace {

using ShopFileLookUp = ShopFixture;

TEST_F(ShopFileLookUp, ACategoryWithoutANameTakesItsSubCategorys)
{
    ASSERT_EQ(load(shopFile("<Category><Id>2</Id><Category><Id>3</Id><Name>Sub</Name></Category></Category>")), 0);
    EXPECT_EQ(rootCategory()->name, u"Sub"_s);
}

TEST_F(ShopFileLookUp, AShopTakesWhatItLacksFromWhateverComesFirstBelowIt)
{
    writeFile(
        session.folder.shopFile(),
        "<Tarnwick><Shop><Version>1.2.0</Version><SelectedCountries/><X><Taxes><Type><Name>VAT</Name></Type></Taxes>"
        "</X><Category><Id>2</Id><Name>C</Name><Description>CD</Description></Category></Shop></Tarnwick>");
    loadShop(session);
    EXPECT_EQ(session.shop->name, u"VAT"_s);
    EXPECT_EQ(session.shop->Description, u"CD"_s);
    EXPECT_EQ(session.shop->Taxes.Item(1).TaxName, u"VAT"_s);
}

TEST_F(ShopFileLookUp, ANestedElementAheadOfADirectOneWins)
{
    ASSERT_EQ(load(shopFile("<Category><Id>2</Id><X><Name>nested</Name><Discount><Status>ToAll</Status></Discount></X>"
                            "<Name>direct</Name><Discount><Status>No</Status></Discount></Category>")),
              0);
    EXPECT_EQ(rootCategory()->name, u"nested"_s);
    EXPECT_EQ(rootCategory()->Discount()->Status, DiscountStatus::ToAll);
}

TEST_F(ShopFileLookUp, AProductsNamesAreNotTakenFromBehindIt)
{
    ASSERT_EQ(load(shopFile(category("2", "<Product><Id>3</Id><Related/></Product>"
                                          "<Product><Id>4</Id><Name>four</Name><Related/></Product>"))),
              0);
    EXPECT_EQ(firstProduct()->name, u"UNDEFINED_PRODUCT_NAME"_s);
}

TEST_F(ShopFileLookUp, AllMultiplePricesBelowAProductCount)
{
    ASSERT_EQ(load(shopFile(category(
                  "2", product("3", "<X><MultiplePrice><MPrice>1</MPrice></MultiplePrice></X><MultiplePrice><MPrice>2"
                                    "</MPrice><MultiplePrice><MPrice>3</MPrice></MultiplePrice></MultiplePrice>")))),
              0);
    const auto& prices = firstProduct()->Price()->MultiPriceCollection();
    ASSERT_EQ(prices.Count(), 3);
    EXPECT_EQ(prices.Item(1)->Value, u"1"_s);
    EXPECT_EQ(prices.Item(2)->Value, u"2"_s);
    EXPECT_EQ(prices.Item(3)->Value, u"3"_s);
}

TEST_F(ShopFileLookUp, CategoriesProductsStylesAndPagesAreFoundAmongDirectChildrenOnly)
{
    ASSERT_EQ(load(shopFile("<X>" + category("2", "") + "<CSS/><CustomPage/></X>" +
                            category("3", "<X>" + category("4", "") + product("5", "") + "</X>"))),
              0);
    ASSERT_EQ(session.shop->categories.Count(), 1);
    EXPECT_EQ(rootCategory()->id, u"3"_s);
    EXPECT_EQ(rootCategory()->categories.Count(), 0);
    EXPECT_EQ(rootCategory()->products.Count(), 0);
    EXPECT_EQ(session.shop->CSSs.Count(), 0);
    EXPECT_EQ(session.shop->CustomPages.Count(), 0);
}

TEST_F(ShopFileLookUp, NamesAreMatchedByExactCase)
{
    ASSERT_EQ(load(shopFile("<category><Id>2</Id></category><Category><ID>7</ID><name>n</name></Category>")), 0);
    ASSERT_EQ(session.shop->categories.Count(), 1);
    EXPECT_EQ(rootCategory()->id, u"101"_s);
    EXPECT_EQ(rootCategory()->name, u"UNDEFINED_PRODUCT_NAME"_s);
}

TEST_F(ShopFileLookUp, AnIndentedFileReadsLikeARawOneAndALeafOfBlanksIsKept)
{
    writeFile(session.folder.shopFile(), R"(<?xml version="1.0"?>
<!-- a shop -->
<Tarnwick>
  <Shop>
    <Version>1.2.0</Version>
    <Name>  </Name>
    <SelectedCountries>
      <Country1>Mali</Country1>
      <Country2>Chad</Country2>
    </SelectedCountries>
    <Category>
      <Id>2</Id>
      <Product>
        <Id>3</Id>
        <Related>
          <ID>
            <RId>7</RId>
          </ID>
        </Related>
      </Product>
    </Category>
    <ShopDesign>
      <FOOTER_MENU_LIST>
        <PAGES>
          <SelectedPage>About</SelectedPage>
        </PAGES>
      </FOOTER_MENU_LIST>
    </ShopDesign>
  </Shop>
</Tarnwick>
)");
    loadShop(session);
    EXPECT_EQ(session.shop->name, u"  "_s);
    EXPECT_EQ(session.shop->SelectedCountries->Count(), 2);
    EXPECT_EQ(firstProduct()->related, (QStringList{u"7"_s, QString()}));
    EXPECT_EQ(session.shop->ShopDesign->Pages(PageSelection::FooterCustomPageSelected)->selectedPages().Item(1),
              u"About"_s);
}

TEST_F(ShopFileLookUp, TheTextOfAnElementIsAllTextBelowIt)
{
    ASSERT_EQ(load(shopFile(category("2", "<Description>a<b>c</b><![CDATA[<d>]]>\te</Description>"))), 0);
    EXPECT_EQ(rootCategory()->Description, u"ac<d>\te"_s);
}

// The related products of a file
// ---------------------------------------------------------------------------------------

QByteArray relatedFile(const QByteArray& version, const QByteArray& related)
{
    return "<Tarnwick><Shop><Version>" + version +
           "</Version><SelectedCountries/><Category><Id>2</Id><Product><Id>3</Id>" + related +
           "</Product></Category></Shop></Tarnwick>";
}

TEST_F(ShopFileLookUp, RelatedIdsOfBothKindsOfFiles)
{
    struct Row
    {
        QByteArray version;
        QByteArray related;
        QStringList ids;
    };
    const QByteArray plain = "<Related><ID><RId>7</RId></ID></Related>";
    const QByteArray two = "<Related><ID><RId>7</RId></ID><ID><RId>8</RId></ID></Related>";
    const QByteArray odd = "<Related><A><B>7</B><RId>8</RId></A><ID/><ID>9</ID></Related>";
    const QList<Row> rows = {
        {"1.2.0", plain, {u"7"_s}},
        {"1.1.0", plain, {u"7"_s}},
        {"", plain, {u"7"_s}},
        {"1.10.0", plain, {u"7"_s}},
        {"1.2.0", two, {u"7"_s, u"8"_s}},
        {"1.1.0", two, {u"7"_s, u"8"_s}},
        {"1.2.0", "<Related/>", {}},
        {"1.1.0", "<Related/>", {}},
        {"1.1.0", "", {}},
        // The newer kind takes the first child of each child, the older one all that is named so.
        {"1.2.0", odd, {u"7"_s, QString(), u"9"_s}},
        {"2.0.0", odd, {u"7"_s, QString(), u"9"_s}},
        {"1.1.9", odd, {u"8"_s}},
        {"1.10.0", odd, {u"8"_s}},
    };
    session.callbacks.SaveShop = [] {};
    for (const Row& row : rows) {
        ASSERT_EQ(load(relatedFile(row.version, row.related)), 0) << row.version.toStdString();
        QStringList expected = row.ids;
        expected.append(QString());
        EXPECT_EQ(firstProduct()->related, expected) << row.version.toStdString() << row.related.toStdString();
    }
}

TEST_F(ShopFileLookUp, ANewerFileMustHaveRelatedInEveryProduct)
{
    EXPECT_EQ(load(relatedFile("1.2.0", "")), 91);
}

} // namespace
