#pragma once

#include <limits>
#include <random>
#include <string>
#include <vector>

/// Sample data in which a loop that handles many samples at once would show its mistakes.
template <class Sample>
struct SamplePattern
{
    std::string name;
    std::vector<Sample> samples;
};

/// Patterns of `count` samples each: one value, two values, the whole range of the type, a narrow
/// range at its lower and at its upper end.
template <class Sample>
std::vector<SamplePattern<Sample>> samplePatterns(size_t count)
{
    constexpr Sample largest = std::numeric_limits<Sample>::max();
    std::mt19937 random(uint(count) + 1);
    const auto filled = [&](auto value) {
        std::vector<Sample> samples(count);
        for (size_t i = 0; i < count; ++i) {
            samples[i] = Sample(value(i));
        }
        return samples;
    };
    return {
        { "uniform", filled([](size_t) { return 77; }) },
        { "largest value", filled([=](size_t) { return largest; }) },
        { "two values", filled([](size_t i) { return i % 3 == 0 ? 200 : 10; }) },
        { "whole range", filled([&](size_t) { return Sample(random()); }) },
        { "at the lower end", filled([&](size_t) { return random() % 50; }) },
        { "at the upper end", filled([&](size_t) { return largest - random() % 50; }) },
    };
}
