// Random shops are written and read back: the same model, and then the same bytes.
#include "DescribedShop.h"
#include "RandomShop.h"
#include "model/ShopFixture.h"

using namespace Qt::StringLiterals;

namespace {

using ShopFileRoundTrip = ShopFixture;

TEST_F(ShopFileRoundTrip, RandomShopsComeBackAsTheyWere)
{
    qsizetype values = 0;
    for (unsigned seed = 1; seed <= 150; ++seed) {
        session.shop = std::make_shared<ShopClass>(session.services);
        RandomShop(seed).fill(session);
        const QStringList before = described(*session.shop);
        const QByteArray bytes = saved();
        ASSERT_TRUE("<Tarnwick>" + written(*session.shop, "Shop") + "</Tarnwick>" == bytes) << "seed " << seed;
        ASSERT_TRUE(loadShop(session)) << "seed " << seed;
        const QStringList after = described(*session.shop);
        values += after.size();
        ASSERT_EQ(after.size(), before.size()) << "seed " << seed;
        for (qsizetype i = 0; i < before.size(); ++i) {
            ASSERT_EQ(after[i], before[i]) << "seed " << seed;
        }
        ASSERT_TRUE(saved() == bytes) << "seed " << seed;
    }
    EXPECT_GT(values, 50'000); // the shops are not empty ones
}

} // namespace
