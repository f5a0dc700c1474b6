// The bytes of a saved shop: which elements, in which order, with which texts.
#include "model/ShopFixture.h"

using namespace Qt::StringLiterals;

namespace {

using ShopFileWriting = ShopFixture;

// A shop with every element, as the writer has it. Numbers are whole, so that it is the same in every locale.
QByteArray wholeShop(const QByteArray& design)
{
    return "<Tarnwick><Shop><Version>1.2.0</Version>"
           "<ShippingChargesAreSelected>True</ShippingChargesAreSelected><TaxesAreSelected>False</TaxesAreSelected>"
           "<shop_currency>EUR</shop_currency><MaxProductId>50</MaxProductId><Name>Shop</Name>"
           "<Description>About it</Description>"
           "<ShopDiscount><Status>Depend</Status><DateFrom>01.02.2023</DateFrom><DateTo></DateTo>"
           "<ApplyToAll>10</ApplyToAll><PriceFrame><From>1</From><To>2</To><Percent>3</Percent></PriceFrame>"
           "<PriceFrame><From>4</From><To>5</To><Percent>6</Percent></PriceFrame></ShopDiscount>"
           "<SelectedCountries><Country1>Mali</Country1><Country2>Chad</Country2></SelectedCountries>"
           "<ShopShipping><Type><Name>Post</Name><Description>slow</Description></Type>"
           "<Type><Name>Bike</Name><Description></Description></Type></ShopShipping>"
           "<ShopShippingCosts><CostsFrame><From>0</From><To>5</To><Cost1>1</Cost1><Cost2>2</Cost2></CostsFrame>"
           "<CostsFrame><From>5</From><To>9</To><Cost1></Cost1><Cost2>4</Cost2></CostsFrame></ShopShippingCosts>"
           "<Taxes><Type><Name>VAT</Name><Percent>19</Percent><Used>Y</Used></Type>"
           "<Type><Name>None</Name><Percent>0</Percent><Used>N</Used></Type></Taxes>"
           "<Charges><Type><Destination>Mali</Destination><Cost>12</Cost><Used>N</Used></Type></Charges>"
           "<Category><Id>2</Id><Name>Tea</Name><Description>Leaves</Description><Picture>tea.png</Picture>"
           "<Width>12</Width><Height>34</Height>"
           "<Discount><Status>ToAll</Status><DateFrom></DateFrom><DateTo>31.12.2099</DateTo><ApplyToAll>5</ApplyToAll>"
           "<PriceFrame><From>7</From><To>8</To><Percent>9</Percent></PriceFrame></Discount>"
           "<Category><Id>3</Id><Name>Green</Name><Description></Description><Picture></Picture><Width>0</Width>"
           "<Height>0</Height><Discount><Status>Inherit</Status><DateFrom></DateFrom><DateTo></DateTo>"
           "<ApplyToAll>0</ApplyToAll></Discount></Category>"
           "<Product><Id>4</Id><Name>Sencha</Name><Description>d</Description><Code>c</Code><Price>7</Price>"
           "<ForSale>False</ForSale><Unit>tin</Unit><Link>http://x/</Link><Picture>s.png</Picture><Width>5</Width>"
           "<Height>6</Height><Discount><Status>Specific</Status><DateFrom>01.02.2023</DateFrom><DateTo></DateTo>"
           "<Specific>15</Specific></Discount><Shipping><ShippingStatus>Individual</ShippingStatus><Weight>2</Weight>"
           "<ShippingCost1>3</ShippingCost1><ShippingCost2></ShippingCost2></Shipping>"
           "<MultiplePrice><PriceDescription>small</PriceDescription><MPrice>5</MPrice></MultiplePrice>"
           "<MultiplePrice><PriceDescription>large</PriceDescription><MPrice>9</MPrice></MultiplePrice>"
           "<Related><ID><RId>4</RId></ID><ID><RId>77</RId></ID></Related></Product>"
           "<Product><Id>5</Id><Name></Name><Description></Description><Code></Code><Price></Price>"
           "<ForSale>True</ForSale><Unit></Unit><Link></Link><Picture></Picture><Width>0</Width><Height>0</Height>"
           "<Discount><Status>No</Status><DateFrom></DateFrom><DateTo></DateTo><Specific>0</Specific></Discount>"
           "<Shipping><ShippingStatus>No</ShippingStatus><Weight>0</Weight><ShippingCost1></ShippingCost1>"
           "<ShippingCost2></ShippingCost2></Shipping><Related/></Product></Category>"
           "<CSS><CSSName>copyright</CSSName><ForeGroundColor>#111111</ForeGroundColor>"
           "<BackGroundColor>#222222</BackGroundColor><FontName>Georgia</FontName><FontSize>9pt</FontSize>"
           "<IsBold>Yes</IsBold><IsCursive>No</IsCursive><IsUnderlined>No</IsUnderlined>"
           "<IsLineThrugh>No</IsLineThrugh></CSS>"
           "<CustomPage><PageName>About</PageName><ImageName></ImageName><ImageAligment>Left</ImageAligment>"
           "<ContentText>&lt;p&gt;Hi&lt;/p&gt;</ContentText></CustomPage>" +
           design + "</Shop></Tarnwick>";
}

QByteArray designOf(ShopSession& session)
{
    ShopDesignClass design(session.designServices);
    for (const DesignOptionRow& row : designOptionTable()) {
        design.setOption(row.option, row.defaultText);
    }
    pugi::xml_document document;
    design.ToXML(document.append_child("ShopDesign"));
    return xmlToBytes(document);
}

TEST_F(ShopFileWriting, AWholeShopIsWrittenAsItWasRead)
{
    const QByteArray file = wholeShop(designOf(session));
    ASSERT_EQ(load(file), 0);
    EXPECT_EQ(saved(), file);
}

TEST_F(ShopFileWriting, SubCategoriesStandAheadOfProductsWhateverTheOrderOfTheFile)
{
    ASSERT_EQ(load(shopFile("<CSS><CSSName>s</CSSName></CSS>" + category("2", product("4", "") + category("3", "")))),
              0);
    const QByteArray bytes = saved();
    EXPECT_LT(bytes.indexOf("<Id>3</Id>"), bytes.indexOf("<Id>4</Id>"));
    EXPECT_LT(bytes.indexOf("<Category>"), bytes.indexOf("<CSS>"));
}

TEST_F(ShopFileWriting, ThereIsNoDeclarationAndNoAddedWhiteSpace)
{
    ASSERT_EQ(load(shopFile("")), 0);
    const QByteArray bytes = saved();
    EXPECT_TRUE(bytes.startsWith("<Tarnwick><Shop><Version>"));
    EXPECT_TRUE(bytes.endsWith("</ShopDesign></Shop></Tarnwick>"));
    EXPECT_FALSE(bytes.contains('\n'));
}

TEST_F(ShopFileWriting, ShippingListsAreAlwaysThereAndTheirRowsOnlyWithTheirTables)
{
    ASSERT_EQ(load(shopFile("")), 0);
    EXPECT_TRUE(saved().contains("<ShopShipping/><ShopShippingCosts/><Taxes/><Charges/>"));
    ASSERT_EQ(load(shopFile("<ShopShipping><Type><Name>Post</Name></Type></ShopShipping>")), 0);
    EXPECT_TRUE(
        saved().contains("<ShopShipping><Type><Name>Post</Name><Description></Description></Type></ShopShipping>"
                         "<ShopShippingCosts/>"));
}

TEST_F(ShopFileWriting, ColumnsAreCountedFromTheFirstFrame)
{
    ASSERT_EQ(load(shopFile("")), 0);
    ShopClass& shop = *session.shop;
    shop.ShippingCostFrameFrom = std::make_shared<TextCollection>();
    shop.ShippingCostFrameTo = std::make_shared<TextCollection>();
    shop.ShippingCosts = std::make_shared<KeyedCollection<TextCollection>>();
    for (int frame = 0; frame < 3; ++frame) {
        shop.ShippingCostFrameFrom->Add(QString::number(frame));
        shop.ShippingCostFrameTo->Add(QString::number(frame + 1));
        shop.ShippingCosts->Add(TextCollection());
    }
    shop.ShippingCosts->Item(1).Add(u"1"_s);
    shop.ShippingCosts->Item(1).Add(u"2"_s);
    shop.ShippingCosts->Item(3).Add(u"3"_s);
    shop.ShippingCosts->Item(3).Add(u"4"_s);
    shop.ShippingCosts->Item(3).Add(u"5"_s);
    EXPECT_TRUE(saved().contains(
        "<ShopShippingCosts><CostsFrame><From>0</From><To>1</To><Cost1>1</Cost1><Cost2>2</Cost2></CostsFrame>"
        "<CostsFrame><From>1</From><To>2</To><Cost1></Cost1><Cost2></Cost2></CostsFrame>"
        "<CostsFrame><From>2</From><To>3</To><Cost1>3</Cost1><Cost2>4</Cost2></CostsFrame></ShopShippingCosts>"));
    // A frame with some costs, but fewer than the first, has none to give.
    shop.ShippingCosts->Item(3).Remove(3);
    shop.ShippingCosts->Item(3).Remove(2);
    EXPECT_EQ(errorOf([&] { saved(); }), 9);
}

TEST_F(ShopFileWriting, AProductWithoutShippingTypesHasStatusAndWeightOnly)
{
    ASSERT_EQ(load(shopFile(category("2", product("3", "")))), 0);
    EXPECT_TRUE(saved().contains("<Shipping><ShippingStatus>Weight</ShippingStatus><Weight>0</Weight></Shipping>"));
    ASSERT_EQ(load(shopFile("<ShopShipping/>" + category("2", product("3", "<Shipping/>")))), 0);
    EXPECT_TRUE(saved().contains("<Shipping><ShippingStatus>No</ShippingStatus><Weight>0</Weight></Shipping>"));
}

TEST_F(ShopFileWriting, ACostOfATypeThatAProductLacksIsWrittenEmptyAndReadBackEmpty)
{
    ASSERT_EQ(
        load(shopFile("<ShopShipping><Type><Name>Post</Name></Type><Type><Name>Bike</Name></Type></ShopShipping>" +
                      category("2", product("3", "")))),
        0);
    EXPECT_FALSE(firstProduct()->ShippingCosts()->hasKey(u"Post"_s));
    firstProduct()->ShippingCosts()->Add(u"4"_s, u"Bike"_s);
    const QByteArray bytes = saved();
    EXPECT_TRUE(bytes.contains("<ShippingCost1></ShippingCost1><ShippingCost2>4</ShippingCost2>"));
    ASSERT_EQ(load(bytes), 0);
    ASSERT_TRUE(firstProduct()->ShippingCosts()->hasKey(u"Post"_s));
    EXPECT_EQ(firstProduct()->ShippingCosts()->Item(u"Post"_s), QString());
}

TEST_F(ShopFileWriting, NumbersAreWrittenWithTheUsersSeparator)
{
    ASSERT_EQ(
        load(shopFile("<ShopDiscount><Status>No</Status><ApplyToAll>1.5</ApplyToAll><PriceFrame><From>1,5</From>"
                      "<To>2.5</To><Percent>3,5</Percent></PriceFrame></ShopDiscount>"
                      "<ShopShipping><Type><Name>Post</Name></Type></ShopShipping><ShopShippingCosts><CostsFrame>"
                      "<From>0.5</From><To>1,5</To><Cost1>2.5</Cost1></CostsFrame></ShopShippingCosts>"
                      "<Taxes><Type><Percent>7.5</Percent></Type></Taxes>"
                      "<Charges><Type><Cost>8,5</Cost></Type></Charges>" +
                      category("2", product("3", "<Price>9.5</Price><Discount><Specific>4,5</Specific></Discount>"
                                                 "<Shipping><Weight>5.5</Weight><ShippingCost1>6,5</ShippingCost1>"
                                                 "</Shipping><MultiplePrice><MPrice>7.25</MPrice></MultiplePrice>")))),
        0);
    const QByteArray bytes = saved();
    for (const char* element : {"<ApplyToAll>1.5<", "<From>1.5<", "<To>2.5<", "<Percent>3.5<", "<From>0.5<", "<To>1.5<",
                                "<Cost1>2.5<", "<Percent>7.5<", "<Cost>8.5<", "<Price>9.5<", "<Specific>4.5<",
                                "<Weight>5.5<", "<ShippingCost1>6.5<", "<MPrice>7.25<"}) {
        EXPECT_TRUE(bytes.contains(localised(QString::fromLatin1(element)).toUtf8())) << element;
    }
}

TEST_F(ShopFileWriting, WithACommaLocaleAPriceIsWrittenAsItStandsAndAVariantComesBackCutAtTheComma)
{
    if (localised(u"."_s) != u","_s) {
        // The same rule where the point is the separator: nothing is cut.
        ASSERT_EQ(load(shopFile(category("2", product("3", "<MultiplePrice><MPrice>12.50</MPrice></MultiplePrice>")))),
                  0);
        ASSERT_EQ(load(saved()), 0);
        EXPECT_EQ(firstProduct()->Price()->GetMultiPrice(1)->Value, u"12.5"_s);
        return;
    }
    ASSERT_EQ(load(shopFile(category("2", product("3", "<Price>12,50</Price>")))), 0);
    firstProduct()->Price()->AddMultiPrice()->Value = u"12,50"_s;
    const QByteArray bytes = saved();
    EXPECT_TRUE(bytes.contains("<Price>12,50</Price>"));
    EXPECT_TRUE(bytes.contains("<MPrice>12,50</MPrice>"));
    ASSERT_EQ(load(bytes), 0);
    EXPECT_EQ(firstProduct()->Price()->Value, u"12,50"_s);
    EXPECT_EQ(firstProduct()->Price()->GetMultiPrice(1)->Value, u"12"_s);
}

TEST_F(ShopFileWriting, ProductsOfTheSessionAreWrittenWithTheShippingTypesOfTheOpenShop)
{
    ASSERT_EQ(load(shopFile("<ShopShipping><Type><Name>Post</Name></Type></ShopShipping>" + category("2", ""))), 0);
    session.registerShop();
    QStringList fields{u"a"_s, u"b"_s, u"C2"_s};
    session.shop->ImportCategory(fields);
    ASSERT_EQ(firstProduct()->shop, nullptr);
    EXPECT_TRUE(
        saved().contains("<ShippingStatus>Weight</ShippingStatus><Weight>0</Weight><ShippingCost1></ShippingCost1>"));
}

TEST_F(ShopFileWriting, ThePictureOfANodeIsMeasuredWhenItsSizeIsNotKnown)
{
    ASSERT_EQ(load(shopFile(
                  category("2", "<Picture>gone.png</Picture><Width>3</Width><Height>4</Height>" + product("5", "")))),
              0);
    EXPECT_TRUE(saved().contains("<Picture>gone.png</Picture><Width>3</Width><Height>4</Height>"));
    rootCategory()->selectedImage()->setHeightBmp(0);
    EXPECT_EQ(errorOf([&] { saved(); }), 53);
}

TEST_F(ShopFileWriting, TextsKeepBlanksLineEndsAndEveryLetter)
{
    ASSERT_EQ(load(shopFile(category("2", ""))), 0);
    for (const QString& text :
         {u"  two  "_s, u"\t"_s, u"a\r\nb\rc\nd"_s, u"<b>&amp;\"'"_s, u"]]>"_s, u"\u00E4\u20AC\U0001F375"_s, u" "_s}) {
        rootCategory()->name = text;
        const QByteArray bytes = saved();
        ASSERT_EQ(load(bytes), 0);
        EXPECT_EQ(rootCategory()->name, text);
    }
}

} // namespace
