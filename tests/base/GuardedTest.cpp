#include "base/Guarded.h"

#include "Bell.h"
#include "support/TestSupport.h"

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

class RecordingHandler : public FatalErrorHandler
{
public:
    void fatalError(const RuntimeError& error) noexcept override
    {
        numbers.push_back(static_cast<int>(error.number()));
    }

    std::vector<int> numbers;
};

} // namespace

TEST(Guarded, TheResultOfTheWorkComesBack)
{
    RecordingHandler handler;
    EXPECT_EQ(guarded(handler, [] { return 5; }), 5);
    EXPECT_EQ(guarded(handler, [] { return u"text"_s; }), u"text"_s);
    EXPECT_TRUE(handler.numbers.empty());
}

TEST(Guarded, AnErrorGoesToTheHandlerAndADefaultValueComesBack)
{
    RecordingHandler handler;
    EXPECT_EQ(guarded(handler, []() -> int { throw RuntimeError(ErrorNumber::TypeMismatch); }), 0);
    guarded(handler, [] { throw RuntimeError(ErrorNumber::Overflow); });
    EXPECT_EQ(handler.numbers, (std::vector<int>{13, 6}));
}

TEST(Guarded, LackOfMemoryIsAnErrorLikeOthers)
{
    RecordingHandler handler;
    guarded(handler, [] { throw std::bad_alloc(); });
    EXPECT_EQ(handler.numbers, std::vector<int>{7});
}

TEST(ConnectGuarded, AnErrorInTheSlotGoesToTheHandlerAndTheNextSlotRuns)
{
    RecordingHandler handler;
    Bell bell;
    connectGuarded(handler, &bell, &Bell::rung, &bell, &Bell::raise);
    connectGuarded(handler, &bell, &Bell::rung, &bell, &Bell::count);
    Q_EMIT bell.rung(13);
    EXPECT_EQ(handler.numbers, std::vector<int>{13});
    EXPECT_EQ(bell.rings, 1);
}

TEST(ConnectGuarded, TheSlotTakesTheArgumentsOrLeavesThem)
{
    RecordingHandler handler;
    Bell bell;
    std::vector<int> taken;
    connectGuarded(handler, &bell, &Bell::rung, &bell, [&](int number) { taken.push_back(number); });
    connectGuarded(handler, &bell, &Bell::rung, &bell, [&] { taken.push_back(0); });
    Q_EMIT bell.rung(7);
    EXPECT_EQ(taken, (std::vector<int>{7, 0}));
}

TEST(ConnectGuarded, NothingRunsOnceTheReceiverIsGone)
{
    RecordingHandler handler;
    Bell bell;
    auto receiver = std::make_unique<Bell>();
    connectGuarded(handler, &bell, &Bell::rung, receiver.get(), &Bell::raise);
    receiver.reset();
    Q_EMIT bell.rung(13);
    EXPECT_TRUE(handler.numbers.empty());
}
