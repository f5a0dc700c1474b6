#include "base/Guarded.h"

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
