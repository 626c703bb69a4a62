#pragma once

#include <QtGlobal>

#include <random>

/// Random numbers that are the same on every platform: the engine's sequence is fixed by the
/// language, while the distributions of the standard library are not, hence these few lines.
class NoiseSource
{
public:
    explicit NoiseSource(quint32 seed)
        : m_engine(seed)
    {
    }

    /// 0 <= value < 1.
    double uniform() { return double(m_engine()) / 4294967296.0; }

    /// Mean 0, standard deviation 1, never beyond +-3.47: the sum of four 16-bit numbers.
    double gaussian()
    {
        constexpr double mean = 2.0 * 65535.0;
        constexpr double deviation = 37837.227; // 65536 * sqrt(4 / 12)
        const quint32 first = quint32(m_engine());
        const quint32 second = quint32(m_engine());
        const quint32 sum = (first >> 16) + (first & 65535u) + (second >> 16) + (second & 65535u);
        return (double(sum) - mean) / deviation;
    }

private:
    std::mt19937 m_engine;
};
