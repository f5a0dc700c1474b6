#include "model/ShopSession.h"

#include "ShopFixture.h"

using namespace Qt::StringLiterals;

namespace {

using Sessions = ShopFixture;

TEST_F(Sessions, ANewOneHasNothingYet)
{
    EXPECT_EQ(session.shop, nullptr);
    EXPECT_EQ(session.Cart, nullptr);
    EXPECT_FALSE(session.objects.isCreated());
    EXPECT_TRUE(session.CountriesCollection.isEmpty());
    EXPECT_EQ(session.LoadedShopVersion, QString());
    EXPECT_EQ(errorOf([this] { currentShop(session.services); }), 91);
}

TEST_F(Sessions, TheServicesAreThoseOfTheSession)
{
    ASSERT_EQ(load(shopFile("")), 0);
    EXPECT_EQ(&currentShop(session.services), session.shop.get());
    EXPECT_EQ(&session.services.objects, &session.objects);
    EXPECT_EQ(&session.services.design.log, &session.log);
    EXPECT_EQ(&session.services.clock, &clock);
}

TEST_F(Sessions, ItsOwnSaveWritesTheFile)
{
    ASSERT_EQ(load(shopFile("")), 0);
    session.shop->name = u"changed"_s;
    session.callbacks.SaveShop();
    EXPECT_TRUE(fileBytes(session.folder.shopFile()).contains("<Name>changed</Name>"));
}

TEST_F(Sessions, TwoSessionsDoNotKnowOfEachOther)
{
    TemporaryShopFolder otherFolder;
    ShopSession other(otherFolder.folder(), prompts, clock);
    writeFile(other.folder.shopFile(), shopFile("", "1.2.0"));
    ASSERT_EQ(load(shopFile(category("2", ""))), 0);
    loadShop(other);
    EXPECT_EQ(other.shop->categories.Count(), 0);
    EXPECT_EQ(session.shop->categories.Count(), 1);
}

} // namespace
