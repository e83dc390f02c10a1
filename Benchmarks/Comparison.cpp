// The medians, as counters (for JSON) and as a remark beside the result.
#include "Benchmarks/Comparison.hpp"

#include <algorithm>
#include <cstdio>
#include <string>

namespace Benchmarks {

namespace {

double median(std::vector<double>& values)
{
    if (values.empty())
        return 0;
    auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

std::string fixed(double value, int decimals)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

std::string verdict(double value, double aim)
{
    return value <= aim ? "met" : "MISSED";
}

}

void Comparison::report()
{
    double work = median(m_work);
    double floor = median(m_floor);
    double ratio = floor > 0 ? work / floor : 0;
    m_state.counters["median_us"] = work * 1e6;
    m_state.counters["floor_us"] = floor * 1e6;
    m_state.counters["ratio"] = ratio;
    std::string remark = fixed(ratio, 3) + " of the floor";
    if (m_aim) {
        m_state.counters["aim"] = *m_aim;
        remark += ", aim " + fixed(*m_aim, 2) + " " + verdict(ratio, *m_aim);
    }
    m_state.SetLabel(remark);
}

void Limit::report()
{
    double work = median(m_times);
    m_state.counters["median_us"] = work * 1e6;
    m_state.counters["limit_us"] = m_limit * 1e6;
    m_state.SetLabel(fixed(work * 1e6, 2) + " us, limit " + fixed(m_limit * 1e6, 2) + " us " + verdict(work, m_limit));
}

}
