// Large pages for a work that takes much memory at once, such as reading a large shop. The system hands memory out page
// by page, and doing that with small pages costs more than what is then done with the memory. All of this is a wish:
// where the system or its heap cannot fulfil it, nothing happens.
#pragma once

#include <QtGlobal>

// Wishes large pages for a block that was just taken and not yet written.
void useLargePages(void* block, qsizetype size) noexcept;

// Makes the heap grow by so many bytes at once, in large pages, for the small blocks that are taken from it while this
// lives. What is not taken is not in use either.
class LargePagesOnHeap
{
public:
    explicit LargePagesOnHeap(qsizetype bytes) noexcept;
    LargePagesOnHeap(const LargePagesOnHeap&) = delete;
    LargePagesOnHeap& operator=(const LargePagesOnHeap&) = delete;
    ~LargePagesOnHeap();
};
