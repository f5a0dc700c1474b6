// What a fuzz target is: one function that is given bytes and must neither crash nor break a promise. libFuzzer calls
// it with bytes of its own making, tests/corpus with the seeds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// Ends the program when a promise is broken, which libFuzzer takes for a finding.
inline void promise(bool kept, const char* what)
{
    if (!kept) {
        std::fprintf(stderr, "broken promise: %s\n", what);
        std::abort();
    }
}
