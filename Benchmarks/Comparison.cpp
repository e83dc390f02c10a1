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
    double work = median(work_);
    double floor = median(floor_);
    double ratio = floor > 0 ? work / floor : 0;
    state_.counters["median_us"] = work * 1e6;
    state_.counters["floor_us"] = floor * 1e6;
    state_.counters["ratio"] = ratio;
    std::string remark = fixed(ratio, 3) + " of the floor";
    if (aim_) {
        state_.counters["aim"] = *aim_;
        remark += ", aim " + fixed(*aim_, 2) + " " + verdict(ratio, *aim_);
    }
    state_.SetLabel(remark);
}

void Limit::report()
{
    double work = median(times_);
    state_.counters["median_us"] = work * 1e6;
    state_.counters["limit_us"] = limit_ * 1e6;
    state_.SetLabel(fixed(work * 1e6, 2) + " us, limit " + fixed(limit_ * 1e6, 2) + " us " + verdict(work, limit_));
}

}
