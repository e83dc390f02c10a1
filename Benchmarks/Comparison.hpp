// Measures a piece of work beside its floor: the same result from the bare libraries. Both take turns in one run, on
// the thread's own time, so that a busy machine slows both alike; the ratio of their medians is what counts.
#pragma once

#include <benchmark/benchmark.h>

#include <ctime>
#include <optional>
#include <vector>

namespace Benchmarks {

/// The time that the calls take the thread.
template <class Call>
inline double seconds(Call& call, int repetitions = 1)
{
    auto now = [] {
        std::timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    double start = now();
    for (int i = 0; i < repetitions; ++i)
        call();
    return now() - start;
}

class Comparison {
public:
    /// The aim is the ratio that the work should not exceed.
    explicit Comparison(benchmark::State& state, std::optional<double> aim = std::nullopt)
        : m_state(state)
        , m_aim(aim)
    {
    }

    /// Runs work and floor in turn, each so many times in a row, until the time is up. `tidyUp` runs in between and
    /// does not count.
    template <class Work, class Floor, class TidyUp = void (*)()>
    void run(
        Work work, Floor floor, int repetitions = 1, TidyUp tidyUp = [] {})
    {
        bool workFirst = true;
        for (auto unused : m_state) {
            (void)unused;
            double first = workFirst ? seconds(work, repetitions) : seconds(floor, repetitions);
            double second = workFirst ? seconds(floor, repetitions) : seconds(work, repetitions);
            m_state.SetIterationTime(workFirst ? first : second);
            add((workFirst ? first : second) / repetitions, (workFirst ? second : first) / repetitions);
            workFirst = !workFirst;
            tidyUp();
        }
        report();
    }

    /// Takes times that were measured elsewhere.
    void add(double work, double floor)
    {
        m_work.push_back(work);
        m_floor.push_back(floor);
    }
    void report();

private:
    benchmark::State& m_state;
    std::optional<double> m_aim;
    std::vector<double> m_work;
    std::vector<double> m_floor;
};

/// Says beside the time whether the work stays below an absolute limit.
class Limit {
public:
    Limit(benchmark::State& state, double seconds)
        : m_state(state)
        , m_limit(seconds)
    {
    }

    template <class Work>
    void run(Work work)
    {
        for (auto unused : m_state) {
            (void)unused;
            add(seconds(work));
            m_state.SetIterationTime(m_times.back());
        }
        report();
    }

    /// Takes a time that was measured elsewhere.
    void add(double time) { m_times.push_back(time); }
    void report();

private:
    benchmark::State& m_state;
    double m_limit;
    std::vector<double> m_times;
};

}
