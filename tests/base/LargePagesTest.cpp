// A wish for large pages may be fulfilled or not; what is done with the memory is the same.
#include "base/LargePages.h"

#include "support/TestSupport.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace {

constexpr qsizetype megabyte = qsizetype{1024} * 1024;

// Some memory in small blocks, written and read again.
bool worksWithSmallBlocks()
{
    std::vector<std::vector<char>> blocks(20'000);
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        blocks[i].assign(500, static_cast<char>(i));
    }
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        if (std::count(blocks[i].begin(), blocks[i].end(), static_cast<char>(i)) != 500) {
            return false;
        }
    }
    return true;
}

TEST(LargePages, ChangeNothingOfABlock)
{
    std::vector<char> block(static_cast<std::size_t>(9 * megabyte), 'x');
    useLargePages(block.data(), static_cast<qsizetype>(block.size()));
    useLargePages(block.data(), 1);
    useLargePages(block.data(), 0);
    EXPECT_EQ(std::count(block.begin(), block.end(), 'x'), 9 * megabyte);
}

TEST(LargePages, ServeTheHeapOfAWorkOfAnySize)
{
    for (const qsizetype bytes : {qsizetype{-1}, qsizetype{0}, qsizetype{1}, 2 * megabyte, 20 * megabyte,
                                  std::numeric_limits<qsizetype>::max()}) {
        const LargePagesOnHeap heap(bytes);
        EXPECT_TRUE(worksWithSmallBlocks()) << bytes;
    }
    EXPECT_TRUE(worksWithSmallBlocks());
}

TEST(LargePages, OfAWorkInsideOfAnotherAreNoHarm)
{
    const LargePagesOnHeap outer(8 * megabyte);
    {
        const LargePagesOnHeap inner(16 * megabyte);
        EXPECT_TRUE(worksWithSmallBlocks());
    }
    EXPECT_TRUE(worksWithSmallBlocks());
}

} // namespace
