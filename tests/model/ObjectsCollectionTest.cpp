#include "model/ObjectsCollection.h"

#include "ShopFixture.h"

using namespace Qt::StringLiterals;

namespace {

using Objects = ShopFixture;

TEST_F(Objects, BeforeItIsMadeEveryUseIsError91)
{
    ObjectsCollection& objects = session.objects;
    EXPECT_FALSE(objects.isCreated());
    EXPECT_EQ(errorOf([&] { objects.Item(u"ID2"_s); }), 91);
    EXPECT_EQ(errorOf([&] { objects.hasKey(u"ID2"_s); }), 91);
    EXPECT_EQ(errorOf([&] { objects.Product(u"2"_s); }), 91);
    EXPECT_EQ(errorOf([&] { objects.Remove(u"ID2"_s); }), 91);
    EXPECT_EQ(errorOf([&] { objects.Add(CatalogueObject(), u"ID2"_s); }), 91);
    EXPECT_EQ(errorOf([&] { objects.items(); }), 91);
    objects.create();
    EXPECT_EQ(objects.items().Count(), 0);
}

TEST_F(Objects, NodesStandInTheOrderOfTheTree)
{
    ASSERT_EQ(load(shopFile(category("2", product("5", "") + category("3", product("4", ""))) + category("6", ""))), 0);
    session.registerShop();
    QStringList order;
    for (const CatalogueObject& object : session.objects.items()) {
        if (const auto* shop = std::get_if<std::shared_ptr<ShopClass>>(&object)) {
            order.append((*shop)->name);
        } else if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object)) {
            order.append((*category)->name);
        } else {
            order.append(std::get<std::shared_ptr<ProductClass>>(object)->name);
        }
    }
    EXPECT_EQ(order, (QStringList{u"S"_s, u"C2"_s, u"C3"_s, u"P4"_s, u"P5"_s, u"C6"_s}));
}

TEST_F(Objects, NodesAreFoundByIdAndKind)
{
    ASSERT_EQ(load(shopFile(category("2", product("5", "")))), 0);
    session.registerShop();
    EXPECT_EQ(session.objects.Category(u"2"_s), rootCategory());
    EXPECT_EQ(session.objects.Product(u"5"_s), firstProduct());
    EXPECT_EQ(errorOf([&] { session.objects.Product(u"2"_s); }), 13);
    EXPECT_EQ(errorOf([&] { session.objects.Category(u"5"_s); }), 13);
    EXPECT_EQ(errorOf([&] { session.objects.Category(u"_SHOP"_s); }), 13);
    EXPECT_EQ(errorOf([&] { session.objects.Product(u"99"_s); }), 5);
    EXPECT_EQ(nodeKey(u"2"_s), u"ID2"_s);
    EXPECT_EQ(shopNodeKey(), u"ID_SHOP"_s);
}

TEST_F(Objects, AnIdInTwoParentsIsError457WhenTheTreeIsBuilt)
{
    ASSERT_EQ(load(shopFile(category("2", product("5", "")) + category("3", product("5", "")))), 0);
    EXPECT_EQ(errorOf([&] { session.registerShop(); }), 457);
}

TEST_F(Objects, BuildingTheTreeAgainMakesTheCollectionNew)
{
    ASSERT_EQ(load(shopFile(category("2", ""))), 0);
    session.registerShop();
    session.registerShop();
    EXPECT_EQ(session.objects.items().Count(), 2);
}

} // namespace
