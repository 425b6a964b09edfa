#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <vector>

// The milliseconds that a call takes.
template <typename Work>
double Milliseconds(Work work) {
    LARGE_INTEGER frequency;
    LARGE_INTEGER start;
    LARGE_INTEGER end;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    work();
    QueryPerformanceCounter(&end);
    return 1000.0 * static_cast<double>(end.QuadPart - start.QuadPart) /
           static_cast<double>(frequency.QuadPart);
}

inline double Median(std::vector<double> samples) {
    const auto middle = samples.begin() + static_cast<ptrdiff_t>(samples.size() / 2);
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}

struct Comparison {
    double floor;
    double ours;
};

// Floor and ours in turns, so that what else the machine does meets both; medians of many rounds.
template <typename Floor, typename Ours>
Comparison Compare(int rounds, Floor floor, Ours ours) {
    std::vector<double> floors;
    std::vector<double> own;
    floor();
    ours();
    for (int round = 0; round < rounds; ++round) {
        floors.push_back(Milliseconds(floor));
        own.push_back(Milliseconds(ours));
    }
    return {Median(floors), Median(own)};
}

inline void PrintHeading() {
    std::printf("%-44s %10s %10s %7s %7s\n", "what", "floor ms", "ours ms", "ratio", "target");
}

inline void PrintRow(const char* what, Comparison measured, double target) {
    const double ratio = measured.ours / measured.floor;
    std::printf("%-44s %10.3f %10.3f %7.2f %7.2f%s\n", what, measured.floor, measured.ours, ratio,
                target, ratio > target ? "  MISSED" : "");
}
