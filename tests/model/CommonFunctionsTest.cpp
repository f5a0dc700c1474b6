#include "model/CommonFunctions.h"

#include "base/UserPrompts.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// What each routine does is tested in its room.
TEST(CommonFunctions, TheOneHeaderLeadsToEveryRoom)
{
    EXPECT_EQ(NormalizeDecimal(u"5"_s), u"5"_s);
    EXPECT_EQ(localToDateText(DateTextToLocal(u"03.02.2004"_s)), u"03.02.2004"_s);
    EXPECT_TRUE(dateIsBetween(QDate(2024, 5, 15), QString(), QString()));
    EXPECT_EQ(CalculateNewPrice(u"100"_s, u"10"_s), u"90"_s);
    EXPECT_EQ(StatusToWord(StatusFromWord(u"Depend"_s)), u"Depend"_s);
    std::shared_ptr<ProductClass> (*const copy)(ProductClass&) = CopyProductForPreview;
    EXPECT_NE(copy, nullptr);
    RecordingPrompts prompts;
    EXPECT_EQ(errorOf([&] { ConfirmEmptyCart(nullptr, prompts); }), 91);
}

} // namespace
