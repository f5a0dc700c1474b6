#include "ShopFixture.h"

using namespace Qt::StringLiterals;

namespace {

class CatalogueImports : public ShopFixture
{
protected:
    CatalogueImports()
    {
        load(shopFile(category("2", "")));
        session.registerShop();
    }

    int import(QStringList fields)
    {
        return errorOf([&] { session.shop->ImportCategory(fields); });
    }
};

TEST_F(CatalogueImports, AProductLandsInARootCategoryMadeForIt)
{
    EXPECT_EQ(import({u"a"_s, u"b"_s, u"c"_s}), 0);
    const auto category = rootCategory(2);
    EXPECT_EQ(category->name, u"c"_s);
    EXPECT_EQ(category->id, u"101"_s);
    EXPECT_EQ(category->shop, nullptr);
    EXPECT_EQ(category->Discount()->Status, DiscountStatus::No);
    EXPECT_EQ(session.shop->Discount()->Childs().Item(u"101"_s), category->Discount());
    const auto product = category->products.Item(u"ID102"_s);
    EXPECT_EQ(product->name, u"a"_s);
    EXPECT_EQ(product->Description, u"b"_s);
    EXPECT_EQ(product->shop, nullptr);
    EXPECT_EQ(product->category.lock(), category);
    EXPECT_EQ(product->ShippingStatus, u"Weight"_s);
    EXPECT_FALSE(category->Discount()->Childs().hasKey(u"102"_s));
    EXPECT_EQ(session.objects.Category(u"101"_s), category);
    EXPECT_EQ(session.objects.Product(u"102"_s), product);
}

TEST_F(CatalogueImports, APathIsFoundOrMadeLevelByLevel)
{
    EXPECT_EQ(import({u"a"_s, u"b"_s, u"C2\\y\\z"_s}), 0);
    EXPECT_EQ(import({u"a2"_s, u"b"_s, u"C2\\y"_s}), 0);
    EXPECT_EQ(session.shop->categories.Count(), 1);
    const auto y = rootCategory()->categories.Item(1);
    EXPECT_EQ(y->name, u"y"_s);
    EXPECT_EQ(y->parentCategory.lock(), rootCategory());
    EXPECT_EQ(rootCategory()->Discount()->Childs().Item(y->id), y->Discount());
    EXPECT_EQ(y->products.Item(1)->name, u"a2"_s);
    EXPECT_EQ(y->categories.Item(1)->name, u"z"_s);
    EXPECT_EQ(y->categories.Item(1)->products.Item(1)->name, u"a"_s);
}

// The counter of a shop file may lie behind its ids.
TEST_F(CatalogueImports, ALineWhoseIdIsTakenLeavesNothingOfItself)
{
    for (const QString& path : {u"C2"_s, u"New"_s}) { // the id is to be a product's, or a category's
        ASSERT_EQ(load(shopFile(category("2", "") + category("5", product("102", "")))), 0);
        session.registerShop();
        session.shop->MaxProductId = u"101"_s;
        const QByteArray before = shopFileBytes(*session.shop);
        EXPECT_EQ(import({u"a"_s, u"b"_s, path}), 457);
        session.shop->MaxProductId = u"101"_s;
        EXPECT_EQ(shopFileBytes(*session.shop), before);
        EXPECT_EQ(session.shop->Discount()->Childs().Count(), 2);
    }
}

TEST_F(CatalogueImports, NamesAreMatchedExactly)
{
    EXPECT_EQ(import({u"a"_s, u"b"_s, u"c2"_s}), 0);
    EXPECT_EQ(session.shop->categories.Count(), 2);
}

TEST_F(CatalogueImports, TwoEqualLinesMakeTwoProducts)
{
    EXPECT_EQ(import({u"a"_s, u"b"_s, u"C2"_s}), 0);
    EXPECT_EQ(import({u"a"_s, u"b"_s, u"C2"_s}), 0);
    EXPECT_EQ(rootCategory()->products.Count(), 2);
    EXPECT_NE(rootCategory()->products.Item(1)->id, rootCategory()->products.Item(2)->id);
}

TEST_F(CatalogueImports, ABackslashAtTheEndMakesASubCategoryWithAnEmptyName)
{
    EXPECT_EQ(import({u"a"_s, u"b"_s, u"C2\\"_s}), 0);
    EXPECT_EQ(rootCategory()->categories.Item(1)->name, QString());
    EXPECT_EQ(rootCategory()->categories.Item(1)->products.Item(1)->name, u"a"_s);
}

TEST_F(CatalogueImports, FewerThanThreeFieldsIsError9)
{
    EXPECT_EQ(import({QString()}), 9);
    EXPECT_EQ(import({u"a"_s, u"b"_s}), 9);
    EXPECT_EQ(import({u"a"_s, u"b"_s, u"C2"_s, u"more"_s}), 0);
}

TEST_F(CatalogueImports, APathDeeperThanAShopCanLoadIsError28)
{
    EXPECT_EQ(import({u"a"_s, u"b"_s, u"x\\"_s.repeated(499) + u"x"_s}), 0);
    EXPECT_EQ(import({u"a"_s, u"b"_s, u"x\\"_s.repeated(500) + u"x"_s}), 28);
    EXPECT_EQ(load(saved()), 0);
}

TEST_F(CatalogueImports, TheTreeIsToldOfEveryNewNode)
{
    QStringList told;
    session.callbacks.AddCategoryToTheTree = [&](const std::shared_ptr<CategoryClass>& parent,
                                                 const std::shared_ptr<CategoryClass>& category) {
        told.append((parent ? parent->name : u"root"_s) + u">"_s + category->name);
    };
    session.callbacks.AddProductToTheTree = [&](const std::shared_ptr<CategoryClass>& category,
                                                const std::shared_ptr<ProductClass>& product) {
        told.append(category->name + u">"_s + product->name);
    };
    EXPECT_EQ(import({u"a"_s, u"b"_s, u"x\\y"_s}), 0);
    EXPECT_EQ(told, (QStringList{u"root>x"_s, u"x>y"_s, u"y>a"_s}));
    EXPECT_EQ(session.objects.Product(u"103"_s)->name, u"a"_s); // registered, whoever shows it
}

} // namespace
