// Choices that come out the same on every machine: the sample data is generated anew on each seat
// and in each test, and people talk about "the order of that customer".
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace velcro::demo {

class Random
{
public:
    explicit Random(std::uint64_t seed)
        : engine_(seed) {}

    /// 0 to bound - 1. Not a standard distribution: those differ from library to library.
    int below(int bound) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(bound)); }
    int between(int low, int high) { return low + below(high - low + 1); }
    bool percent(int chance) { return below(100) < chance; }

    template <typename Container>
    const auto& pick(const Container& from) {
        return from[static_cast<std::size_t>(below(static_cast<int>(from.size())))];
    }

private:
    std::mt19937_64 engine_;
};

} // namespace velcro::demo
