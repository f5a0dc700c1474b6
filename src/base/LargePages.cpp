#include "base/LargePages.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr std::uintptr_t largePage = std::uintptr_t{2} * 1024 * 1024;
constexpr qsizetype mostAtOnce = 1024 * largePage;

// How the heap's library itself would have it in the end; it stops adapting to the program once it is told anything.
constexpr int usualGrowth = 128 * 1024;
constexpr std::size_t moreThanIsLeft = std::size_t{2} * usualGrowth;
constexpr int usualMapping = 32 * 1024 * 1024;

} // namespace

void useLargePages(void* block, qsizetype size) noexcept
{
    const auto address = reinterpret_cast<std::uintptr_t>(block);
    const std::uintptr_t begin = (address + largePage - 1) / largePage * largePage;
    const std::uintptr_t end = (address + static_cast<std::uintptr_t>(size)) / largePage * largePage;
    if (begin < end) {
        ::madvise(static_cast<char*>(block) + (begin - address), end - begin, MADV_HUGEPAGE);
    }
}

LargePagesOnHeap::LargePagesOnHeap(qsizetype bytes) noexcept
{
    if (bytes < static_cast<qsizetype>(largePage) || bytes > mostAtOnce) {
        return;
    }
    ::mallopt(M_MMAP_THRESHOLD, usualMapping);
    ::mallopt(M_TRIM_THRESHOLD, 2 * usualMapping);
    ::mallopt(M_TOP_PAD, static_cast<int>(bytes));
    // The heap grows when what it has is used up.
    const void* const end = ::sbrk(0);
    std::array<void*, 64> blocks{};
    for (void*& block : blocks) {
        block = std::malloc(moreThanIsLeft);
        if (::sbrk(0) != end) {
            break;
        }
    }
    void* const newEnd = ::sbrk(0);
    if (newEnd != end) {
        useLargePages(static_cast<char*>(newEnd) - bytes, bytes);
    }
    for (void* block : blocks) {
        std::free(block);
    }
}

LargePagesOnHeap::~LargePagesOnHeap()
{
    ::mallopt(M_TOP_PAD, usualGrowth);
}
