// What a piece of work has cost.
#pragma once

#include <chrono>
#include <cstdio>
#include <sys/resource.h>

/// Runs from its making. Processor time is that of all threads of this process and of the children that it
/// has waited for, in the program and in the kernel. One thread.
class Clock {
public:
    double seconds() const
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
    }
    double processorSeconds() const { return processorTime() - m_processorStart; }

private:
    static double processorTime()
    {
        double sum = 0;
        for (const auto who : { RUSAGE_SELF, RUSAGE_CHILDREN }) {
            rusage usage{};
            ::getrusage(who, &usage);
            for (const timeval &time : { usage.ru_utime, usage.ru_stime })
                sum += static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
        }
        return sum;
    }

    const std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    const double m_processorStart = processorTime();
};

/// The line of standard output that bench.py reads: seconds, processor seconds and, where the work has one,
/// its result.
inline void printCost(double seconds, double processorSeconds, unsigned long long result = 0)
{
    std::printf("%.4f %.4f %llu\n", seconds, processorSeconds, result);
}
