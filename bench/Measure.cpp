#include "Measure.h"

#include <algorithm>
#include <chrono>

namespace bench {

namespace {

constexpr int kWarmUp = 2;

} // namespace

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double milliseconds(const Action &action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

Times alternate(const Action &ours, const Action &bare, int turns, const Action &before) {
    std::vector<double> oursTimes;
    std::vector<double> bareTimes;
    for (int turn = -kWarmUp; turn < turns; ++turn) {
        const bool oursFirst = turn % 2 == 0;
        double bareTime = oursFirst ? 0 : milliseconds(bare);
        before();
        const double oursTime = milliseconds(ours);
        if (oursFirst) {
            bareTime = milliseconds(bare);
        }
        if (turn >= 0) {
            oursTimes.push_back(oursTime);
            bareTimes.push_back(bareTime);
        }
    }
    return {median(std::move(oursTimes)), median(std::move(bareTimes))};
}

} // namespace bench
