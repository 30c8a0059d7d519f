#pragma once

#include <functional>
#include <vector>

namespace bench {

using Action = std::function<void()>;

/// Medians of an operation of ours and of the bare one it is held against, in milliseconds.
struct Times {
    double ours;
    double bare;
};

double median(std::vector<double> values);

/// How long an action takes, in milliseconds.
double milliseconds(const Action &action);

/// Runs both in turns, changing which goes first, so that whatever else the machine does hits both; the first
/// two turns warm up and do not count.
/// @param before runs before each of ours, and is not timed
Times alternate(
    const Action &ours, const Action &bare, int turns, const Action &before = [] {});

} // namespace bench
