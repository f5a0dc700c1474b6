#include "model/CategoryClass.h"

#include "ShopFixture.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace {

using Categories = ShopFixture;

TEST_F(Categories, ANewOneHasItsDefaults)
{
    CategoryClass category(session.services);
    EXPECT_EQ(category.shop, nullptr);
    EXPECT_EQ(category.parentCategory.lock(), nullptr);
    EXPECT_EQ(category.id, u"1"_s);
    EXPECT_EQ(category.name, QString());
    EXPECT_EQ(category.Description, QString());
    EXPECT_EQ(category.Discount()->Status, DiscountStatus::No);
    EXPECT_EQ(category.ParentDiscount.lock(), nullptr);
    EXPECT_EQ(category.categories.Count(), 0);
    EXPECT_EQ(category.products.Count(), 0);
    EXPECT_EQ(category.selectedImage(), category.selectedImage());
    EXPECT_EQ(category.Level(), 1);
}

TEST_F(Categories, ProductsAreCountedThroughTheWholeSubTree)
{
    ASSERT_EQ(load(shopFile(category("2", category("3", product("4", "") + product("5", "") + product("6", "")) +
                                              product("7", "") + product("8", "")) +
                            category("9", ""))),
              0);
    EXPECT_EQ(rootCategory(1)->GetProductCount(), 5);
    EXPECT_EQ(rootCategory(2)->GetProductCount(), 0);
    EXPECT_EQ(session.shop->GetProductCount(), 5);
}

TEST_F(Categories, MoreProductsThanA16BitCountCanSayIsError6)
{
    CategoryClass top(session.services);
    const auto one = std::make_shared<CategoryClass>(session.services);
    const auto two = std::make_shared<CategoryClass>(session.services);
    top.categories.Add(one, u"ID1"_s);
    top.categories.Add(two, u"ID2"_s);
    const auto product = std::make_shared<ProductClass>(session.services);
    for (int i = 0; i < 20000; ++i) {
        one->products.Add(product);
    }
    EXPECT_EQ(top.GetProductCount(), 20000);
    for (int i = 0; i < 12767; ++i) {
        two->products.Add(product);
    }
    EXPECT_EQ(top.GetProductCount(), 32767);
    two->products.Add(product);
    EXPECT_EQ(errorOf([&] { top.GetProductCount(); }), 6);
    // The shop's count is a wider number.
    ShopClass shop(session.services);
    shop.categories.Add(one, u"ID1"_s);
    shop.categories.Add(two, u"ID2"_s);
    EXPECT_EQ(shop.GetProductCount(), 32768);
}

TEST_F(Categories, RemovingWhatIsBelowEmptiesObjectsCollectionAndNothingElse)
{
    ASSERT_EQ(load(shopFile(category("2", category("3", product("4", "")) + product("5", "")) +
                            category("6", product("7", "")))),
              0);
    session.registerShop();
    rootCategory()->RemoveChilds();
    for (const QString& gone : {u"ID3"_s, u"ID4"_s, u"ID5"_s}) {
        EXPECT_FALSE(session.objects.hasKey(gone)) << gone.toStdString();
    }
    for (const QString& there : {u"ID_SHOP"_s, u"ID2"_s, u"ID6"_s, u"ID7"_s}) {
        EXPECT_TRUE(session.objects.hasKey(there)) << there.toStdString();
    }
    EXPECT_EQ(rootCategory()->categories.Count(), 1);
    EXPECT_EQ(rootCategory()->products.Count(), 1);
    EXPECT_EQ(errorOf([&] { rootCategory()->RemoveChilds(); }), 5);
}

TEST_F(Categories, RemovingThirtyThousandProductsIsNoMatterOfSeconds)
{
    ASSERT_EQ(load(shopFile(category("2", ""))), 0);
    session.registerShop();
    for (int i = 0; i < 30000; ++i) {
        QStringList fields{u"a"_s, u"b"_s, u"C2"_s};
        session.shop->ImportCategory(fields);
    }
    QElapsedTimer timer;
    timer.start();
    rootCategory()->RemoveChilds();
    // Generous, so that it holds on a busy machine with sanitizers; one after the other they would take much longer.
    EXPECT_LT(timer.elapsed(), 2000);
    EXPECT_EQ(session.objects.items().Count(), 2);
}

TEST_F(Categories, ReadingSetsOwnerParentAndDiscounts)
{
    ASSERT_EQ(load(shopFile(category("2", category("3", product("4", ""))))), 0);
    const auto top = rootCategory();
    const auto sub = top->categories.Item(u"ID3"_s);
    const auto product = sub->products.Item(u"ID4"_s);
    EXPECT_EQ(top->shop, session.shop.get());
    EXPECT_EQ(sub->shop, session.shop.get());
    EXPECT_EQ(product->shop, session.shop.get());
    EXPECT_EQ(top->parentCategory.lock(), nullptr);
    EXPECT_EQ(sub->parentCategory.lock(), top);
    EXPECT_EQ(product->category.lock(), sub);
    EXPECT_EQ(sub->Level(), 2);
    EXPECT_EQ(top->ParentDiscount.lock(), session.shop->Discount());
    EXPECT_EQ(session.shop->Discount()->Childs().Item(u"2"_s), top->Discount());
    EXPECT_EQ(top->Discount()->Childs().Item(u"3"_s), sub->Discount());
    EXPECT_EQ(sub->Discount()->Childs().Item(u"4"_s), product->Price()->Discount());
    EXPECT_EQ(product->Price()->Discount()->ParentDiscount(), sub->Discount());
}

// A file of categories, each inside the one before.
QByteArray nested(int levels)
{
    QByteArray xml;
    for (int i = 0; i < levels; ++i) {
        xml += "<Category><Id>" + QByteArray::number(i + 2) +
               "</Id><Name/><Description/><Picture/><Width>0</Width><Height>0</Height><Discount/>";
    }
    return xml + QByteArray("</Category>").repeated(levels);
}

TEST_F(Categories, FiveHundredLevelsLoadAndSave)
{
    ASSERT_EQ(load(shopFile(nested(500))), 0);
    session.registerShop();
    EXPECT_EQ(session.objects.Category(u"501"_s)->Level(), 500);
    const QByteArray bytes = saved();
    EXPECT_EQ(load(bytes), 0);
}

TEST_F(Categories, OneLevelMoreIsError28)
{
    EXPECT_EQ(load(shopFile(nested(501))), 28);
}

} // namespace
