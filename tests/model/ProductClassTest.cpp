#include "model/ProductClass.h"

#include "ShopFixture.h"

using namespace Qt::StringLiterals;

namespace {

class Products : public ShopFixture
{
protected:
    std::shared_ptr<ProductClass> make() { return std::make_shared<ProductClass>(session.services); }
};

TEST_F(Products, ANewOneHasItsDefaults)
{
    const auto product = make();
    for (const QString& text : {product->id, product->name, product->Description, product->Code, product->Unit,
                                product->LINK, product->Picture, product->Price()->Value}) {
        EXPECT_EQ(text, QString());
    }
    EXPECT_EQ(product->shop, nullptr);
    EXPECT_EQ(product->category.lock(), nullptr);
    EXPECT_EQ(product->ShippingStatus, u"Weight"_s);
    EXPECT_EQ(product->Weight, u"0"_s);
    EXPECT_EQ(product->QuantityInCart, 0);
    EXPECT_TRUE(product->ForSale);
    EXPECT_EQ(product->related, QStringList{QString()});
    EXPECT_EQ(product->relatedCount(), 0);
    EXPECT_EQ(product->Price()->Discount()->Status, DiscountStatus::No);
    EXPECT_EQ(product->ShippingCosts()->Count(), 0);
    EXPECT_EQ(product->Taxes()->Count(), 0);
    EXPECT_EQ(product->selectedImage()->imageFileName, QString());
    EXPECT_EQ(product->selectedImage()->SelectionType, ImageSelection::Nothing);
}

TEST_F(Products, WhatIsMadeOnFirstUseStaysTheSame)
{
    const auto product = make();
    EXPECT_EQ(product->Price(), product->Price());
    EXPECT_EQ(product->selectedImage(), product->selectedImage());
    EXPECT_EQ(product->ShippingCosts(), product->ShippingCosts());
    EXPECT_EQ(product->Taxes(), product->Taxes());
}

TEST_F(Products, RelatedIdsEndWithOneSpareEntry)
{
    const auto product = make();
    product->setRelatedIds({u"7"_s, u"8"_s});
    EXPECT_EQ(product->related, (QStringList{u"7"_s, u"8"_s, QString()}));
    EXPECT_EQ(product->relatedCount(), 2);
    product->setRelatedIds({});
    EXPECT_EQ(product->related, QStringList{QString()});
}

// A product with something in every member.
std::shared_ptr<ProductClass> full(ProductClass& product, ShopClass& shop,
                                   const std::shared_ptr<CategoryClass>& category,
                                   const std::shared_ptr<ProductClass>& self)
{
    product.shop = &shop;
    product.category = category;
    product.id = u"7"_s;
    product.name = u"Tea"_s;
    product.Description = u"d"_s;
    product.Code = u"c"_s;
    product.Unit = u"u"_s;
    product.LINK = u"l"_s;
    product.Picture = u"p"_s;
    product.ShippingStatus = u"Individual"_s;
    product.Weight = u"3"_s;
    product.QuantityInCart = 4;
    product.ForSale = false;
    product.setRelatedIds({u"9"_s});
    product.Price()->Value = u"10"_s;
    product.ShippingCosts()->Add(u"5"_s, u"Post"_s);
    product.Taxes()->Add(u"Y"_s);
    product.selectedImage()->imageFileName = u"tea.png"_s;
    product.selectedImage()->SelectionType = ImageSelection::Image;
    product.selectedImage()->TextValue = u"t"_s;
    product.selectedImage()->setWidthBmp(11);
    product.selectedImage()->setHeightBmp(12);
    return self;
}

TEST_F(Products, ACloneHasEverythingButIdQuantityAndImageSize)
{
    ShopClass shop(session.services);
    const auto category = std::make_shared<CategoryClass>(session.services);
    auto product = make();
    full(*product, shop, category, product);
    const auto clone = product->CreateClone();
    EXPECT_EQ(clone->id, QString());
    EXPECT_EQ(clone->QuantityInCart, 0);
    EXPECT_EQ(clone->shop, &shop);
    EXPECT_EQ(clone->category.lock(), category);
    EXPECT_EQ(clone->name, u"Tea"_s);
    EXPECT_EQ(clone->Description, u"d"_s);
    EXPECT_EQ(clone->Code, u"c"_s);
    EXPECT_EQ(clone->Unit, u"u"_s);
    EXPECT_EQ(clone->LINK, u"l"_s);
    EXPECT_EQ(clone->Picture, u"p"_s);
    EXPECT_EQ(clone->ShippingStatus, u"Individual"_s);
    EXPECT_EQ(clone->Weight, u"3"_s);
    EXPECT_FALSE(clone->ForSale);
    EXPECT_EQ(clone->related, product->related);
    EXPECT_NE(clone->Price(), product->Price());
    EXPECT_EQ(clone->Price()->Value, u"10"_s);
    EXPECT_NE(clone->selectedImage(), product->selectedImage());
    EXPECT_EQ(clone->selectedImage()->imageFileName, u"tea.png"_s);
    EXPECT_EQ(clone->selectedImage()->SelectionType, ImageSelection::Image);
    EXPECT_EQ(clone->selectedImage()->TextValue, u"t"_s);
    EXPECT_EQ(clone->selectedImage()->cachedSize().width, 0);
    EXPECT_EQ(clone->selectedImage()->cachedSize().height, 0);
}

TEST_F(Products, ACloneSharesShippingCostsAndTaxesAndHasRelatedOfItsOwn)
{
    const auto product = make(); // the tables are shared even when nobody has asked for them yet
    const auto clone = product->CreateClone();
    EXPECT_EQ(clone->ShippingCosts(), product->ShippingCosts());
    EXPECT_EQ(clone->Taxes(), product->Taxes());
    clone->ShippingCosts()->Add(u"5"_s, u"Post"_s);
    EXPECT_EQ(product->ShippingCosts()->Item(u"Post"_s), u"5"_s);
    clone->ShippingCosts()->Item(u"Post"_s) = u"6"_s;
    EXPECT_EQ(product->ShippingCosts()->Item(1), u"6"_s);
    clone->setRelatedIds({u"1"_s});
    EXPECT_EQ(product->relatedCount(), 0);
}

TEST_F(Products, ThePreviewsCopyKeepsTheIdAndSharesImageAndTables)
{
    ShopClass shop(session.services);
    const auto category = std::make_shared<CategoryClass>(session.services);
    auto product = make();
    full(*product, shop, category, product);
    const auto copy = CopyProductForPreview(*product);
    EXPECT_EQ(copy->id, u"7"_s);
    EXPECT_EQ(copy->Code, u"c"_s);
    EXPECT_EQ(copy->Description, u"d"_s);
    EXPECT_EQ(copy->LINK, u"l"_s);
    EXPECT_EQ(copy->name, u"Tea"_s);
    EXPECT_EQ(copy->Picture, u"p"_s);
    EXPECT_EQ(copy->related, product->related);
    EXPECT_EQ(copy->ShippingStatus, u"Individual"_s);
    EXPECT_EQ(copy->shop, &shop);
    EXPECT_EQ(copy->Unit, u"u"_s);
    EXPECT_EQ(copy->Weight, u"3"_s);
    EXPECT_EQ(copy->ShippingCosts(), product->ShippingCosts());
    EXPECT_EQ(copy->Taxes(), product->Taxes());
    EXPECT_EQ(copy->selectedImage(), product->selectedImage());
    // Not copied: the category and ForSale.
    EXPECT_EQ(copy->category.lock(), nullptr);
    EXPECT_TRUE(copy->ForSale);
    EXPECT_EQ(copy->QuantityInCart, 0);
}

TEST_F(Products, ThePreviewsCopyHasAPriceOfItsOwn)
{
    const auto product = make();
    const auto copy = CopyProductForPreview(*product);
    copy->Price()->Selected = u"12"_s;
    EXPECT_EQ(product->Price()->Selected, QString());
    EXPECT_NE(copy->Price()->Discount(), product->Price()->Discount());
}

TEST_F(Products, TheDirectoryOfAPictureIsCutOffOnReading)
{
    const QList<std::pair<QByteArray, QString>> rows = {{"C:\\pics\\a.jpg", u"a.jpg"_s},
                                                        {"a.jpg", u"a.jpg"_s},
                                                        {"pics/a.jpg", u"pics/a.jpg"_s},
                                                        {"dir\\", QString()},
                                                        {"", QString()}};
    for (const auto& [picture, name] : rows) {
        ASSERT_EQ(load(shopFile(category("2", "<Picture>" + picture + "</Picture>" +
                                                  product("3", "<Picture>" + picture + "</Picture>")))),
                  0);
        EXPECT_EQ(firstProduct()->selectedImage()->imageFileName, name) << picture.toStdString();
        EXPECT_EQ(rootCategory()->selectedImage()->imageFileName, name) << picture.toStdString();
    }
}

TEST_F(Products, AnEmptyIdTakesTheNextOneAndAPresentOneMovesNothing)
{
    ASSERT_EQ(load(shopFile("<Category><Id>500</Id><Product><Id></Id><Related/></Product>"
                            "<Product><Id>900</Id><Related/></Product></Category>"
                            "<Category><Id/></Category>")),
              0);
    EXPECT_EQ(rootCategory(1)->id, u"500"_s);
    EXPECT_EQ(rootCategory(1)->products.Item(1)->id, u"101"_s);
    EXPECT_EQ(rootCategory(1)->products.Item(2)->id, u"900"_s);
    EXPECT_EQ(rootCategory(2)->id, u"102"_s);
    EXPECT_EQ(session.shop->MaxProductId, u"102"_s);
    EXPECT_EQ(rootCategory(1)->products.Item(u"ID101"_s)->id, u"101"_s);
}

} // namespace
