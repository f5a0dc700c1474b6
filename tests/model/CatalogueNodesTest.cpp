#include "model/CatalogueNodes.h"

#include "ShopFixture.h"

using namespace Qt::StringLiterals;

namespace {

class CatalogueNodes : public ShopFixture
{
protected:
    CatalogueNodes()
    {
        load(shopFile(category("2", category("3", product("4", "")) + product("5", ""))));
        session.registerShop();
    }

    ShopClass& shop() { return *session.shop; }
};

TEST_F(CatalogueNodes, ANewRootCategoryHasNoParent)
{
    const auto category = newCategory(shop(), nullptr);
    EXPECT_EQ(category->name, u"New Category"_s);
    EXPECT_EQ(category->id, u"101"_s);
    EXPECT_EQ(category->shop, session.shop.get());
    EXPECT_EQ(category->parentCategory.lock(), nullptr);
    EXPECT_EQ(category->ParentDiscount.lock(), nullptr);
    EXPECT_EQ(shop().categories.Item(u"ID101"_s), category);
    EXPECT_EQ(shop().Discount()->Childs().Item(u"101"_s), category->Discount());
}

TEST_F(CatalogueNodes, ANewSubCategoryInheritsFromItsParentsDiscount)
{
    const auto parent = rootCategory();
    const auto category = newCategory(shop(), parent);
    EXPECT_EQ(category->parentCategory.lock(), parent);
    EXPECT_EQ(category->ParentDiscount.lock(), parent->Discount());
    EXPECT_EQ(parent->categories.Item(u"ID101"_s), category);
    EXPECT_EQ(parent->Discount()->Childs().Item(u"101"_s), category->Discount());
}

TEST_F(CatalogueNodes, ANewCategoryBelowTheDeepestLevelIsError28AndChangesNothing)
{
    auto deepest = rootCategory();
    while (deepest->Level() < MaximumCategoryLevel) {
        deepest = newCategory(shop(), deepest);
    }
    const QString highest = shop().MaxProductId;
    EXPECT_EQ(errorOf([&] { newCategory(shop(), deepest); }), 28);
    EXPECT_EQ(shop().MaxProductId, highest);
    EXPECT_EQ(deepest->categories.Count(), 0);
}

TEST_F(CatalogueNodes, ANewProductGetsTheCategorysOwnBandsAndIsNotInItsDiscount)
{
    const auto category = rootCategory();
    const auto product = newProduct(shop(), category);
    EXPECT_EQ(product->name, u"New Product"_s);
    EXPECT_EQ(product->id, u"101"_s);
    EXPECT_EQ(product->shop, session.shop.get());
    EXPECT_EQ(product->category.lock(), category);
    EXPECT_EQ(product->ShippingStatus, u"Weight"_s);
    EXPECT_EQ(product->Price()->Discount()->ParentDependDiscounts, category->Discount()->DependedDiscounts());
    EXPECT_EQ(category->products.Item(u"ID101"_s), product);
    EXPECT_FALSE(category->Discount()->Childs().hasKey(u"101"_s));
}

TEST_F(CatalogueNodes, CategoriesAndProductsShareOneCounter)
{
    EXPECT_EQ(newCategory(shop(), nullptr)->id, u"101"_s);
    EXPECT_EQ(newProduct(shop(), rootCategory())->id, u"102"_s);
    EXPECT_EQ(newCategory(shop(), rootCategory())->id, u"103"_s);
}

TEST_F(CatalogueNodes, ADuplicateBearsTheNameWithCopyBehindItAndStandsInTheSameCategory)
{
    const auto source = firstProduct();
    source->setRelatedIds({u"4"_s});
    const auto copy = duplicateProduct(shop(), *source);
    EXPECT_EQ(copy->name, u"P5 copy"_s);
    EXPECT_EQ(copy->id, u"101"_s);
    EXPECT_EQ(copy->shop, source->shop);
    EXPECT_EQ(copy->category.lock(), rootCategory());
    EXPECT_EQ(copy->related, source->related);
    EXPECT_EQ(rootCategory()->products.Item(u"ID101"_s), copy);
    EXPECT_FALSE(rootCategory()->Discount()->Childs().hasKey(u"101"_s));
    EXPECT_EQ(duplicateProduct(shop(), *copy)->name, u"P5 copy copy"_s);
}

TEST_F(CatalogueNodes, ARemovedProductStaysInObjectsCollection)
{
    const auto product = firstProduct();
    removeProduct(*product);
    EXPECT_EQ(rootCategory()->products.Count(), 0);
    EXPECT_EQ(session.objects.Product(u"5"_s), product);
}

TEST_F(CatalogueNodes, ARemovedCategoryLeavesParentDiscountAndObjectsCollection)
{
    const auto parent = rootCategory();
    const auto category = parent->categories.Item(1);
    removeCategory(shop(), category);
    EXPECT_EQ(parent->categories.Count(), 0);
    EXPECT_FALSE(parent->Discount()->Childs().hasKey(u"3"_s));
    EXPECT_FALSE(session.objects.hasKey(u"ID3"_s));
    EXPECT_FALSE(session.objects.hasKey(u"ID4"_s));
    removeCategory(shop(), parent);
    EXPECT_EQ(shop().categories.Count(), 0);
    EXPECT_EQ(shop().Discount()->Childs().Count(), 0);
    EXPECT_EQ(session.objects.items().Count(), 1);
}

TEST_F(CatalogueNodes, AProductRemovedBeforeItsCategoryStillFindsIt)
{
    const auto product = firstProduct();
    removeProduct(*product);
    removeCategory(shop(), rootCategory());
    ASSERT_NE(product->category.lock(), nullptr);
    EXPECT_EQ(product->category.lock()->name, u"C2"_s);
}

TEST_F(CatalogueNodes, WhatIsNewIsFoundUnderItsKey)
{
    const auto category = newCategory(shop(), rootCategory());
    EXPECT_EQ(session.objects.Category(u"101"_s), category);
    const auto product = newProduct(shop(), category);
    EXPECT_EQ(session.objects.Product(u"102"_s), product);
    const auto copy = duplicateProduct(shop(), *product);
    EXPECT_EQ(session.objects.Product(u"103"_s), copy);
}

TEST_F(CatalogueNodes, IdsAreNeverUsedAgain)
{
    const auto category = newCategory(shop(), nullptr);
    removeCategory(shop(), category);
    EXPECT_EQ(newCategory(shop(), nullptr)->id, u"102"_s);
}

} // namespace
