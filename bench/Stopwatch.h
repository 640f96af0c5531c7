// Times a piece of work over several rounds and prints it beside its reference and the aim.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <vector>

namespace bench {

using Clock = std::chrono::steady_clock;

inline double milliseconds(Clock::duration taken) {
    return std::chrono::duration<double, std::milli>(taken).count();
}

/// Milliseconds of each round, on the wall and of this process's processor time.
class Rounds
{
public:
    template <typename Work>
    void run(Work&& work) {
        const auto processor = std::clock();
        const auto start = Clock::now();
        work();
        add(Clock::now() - start, std::clock() - processor);
    }
    void add(Clock::duration wall, std::clock_t processor = 0) {
        wall_.push_back(milliseconds(wall));
        processor_.push_back(1000.0 * double(processor) / CLOCKS_PER_SEC);
    }

    double best() const { return *std::ranges::min_element(wall_); }
    double median() const { return at(wall_, 0.5); }
    double percentile(double part) const { return at(wall_, part); }
    double processor(double part = 0.5) const { return at(processor_, part); }
    std::size_t count() const { return wall_.size(); }

private:
    static double at(std::vector<double> values, double part) {
        const auto place = values.begin() + std::ptrdiff_t(part * double(values.size() - 1) + 0.5);
        std::ranges::nth_element(values, place);
        return *place;
    }

    std::vector<double> wall_, processor_;
};

inline void printHead() {
    std::printf("%-44s %9s %9s %9s %9s %9s %6s\n", "ms", "ours", "median", "cpu", "reference",
                "median", "ratio");
}

/// Best rounds are compared, since other programs of the machine only ever add; the medians stand
/// beside them.
inline void print(const char* what, const Rounds& ours, const Rounds& reference, double aim) {
    std::printf("%-44s %9.3f %9.3f %9.3f %9.3f %9.3f %6.2f (aim %.2f)\n", what, ours.best(),
                ours.median(), ours.processor(), reference.best(), reference.median(),
                ours.best() / reference.best(), aim);
}

inline void print(const char* what, const Rounds& ours) {
    std::printf("%-44s %9.3f %9.3f %9.3f\n", what, ours.best(), ours.median(), ours.processor());
}

} // namespace bench
