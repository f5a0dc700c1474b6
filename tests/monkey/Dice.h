// The dice of one run: the same seed gives the same throws.
#pragma once

#include <cstdint>
#include <random>

class Dice
{
public:
    explicit Dice(std::uint32_t seed) : m_engine(seed) {}

    // 0 to count - 1. Not the library's distributions, which differ from one library to the next.
    int below(int count) { return static_cast<int>(m_engine() % static_cast<std::uint32_t>(count)); }
    bool chance(int percent) { return below(100) < percent; }

    template <class List>
    const auto& pick(const List& list)
    {
        return list[static_cast<typename List::size_type>(below(static_cast<int>(list.size())))];
    }

private:
    std::mt19937 m_engine;
};
