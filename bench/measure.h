#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace torvik::bench {

/// Milliseconds that `work` takes once.
template <typename Work>
double Milliseconds(Work&& work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - begin;
    return taken.count();
}

inline double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Prints the line of one figure. False when the figure is more than `limit` times its baseline.
inline bool Report(const char* name, const char* unit, double figure, double baseline, double limit)
{
    const double ratio = figure / baseline;
    const bool isOk = ratio <= limit;
    std::printf("%s: %.3f %s, baseline %.3f %s, ratio %.2f, limit %.2f, %s\n", name, figure, unit, baseline,
                unit, ratio, limit, isOk ? "ok" : "over");
    return isOk;
}

/// The same for figures and baselines that were measured in turns: each figure counts against its neighbour,
/// so that a moment in which the machine is busy with something else counts for both.
inline bool ReportPairs(const char* name, const char* unit, const std::vector<double>& figures,
                        const std::vector<double>& baselines, double limit)
{
    std::vector<double> ratios;
    for (std::size_t index = 0; index < figures.size(); ++index)
        ratios.push_back(figures[index] / baselines[index]);
    const double baseline = Median(baselines);
    return Report(name, unit, Median(ratios) * baseline, baseline, limit);
}

} // namespace torvik::bench
