// What the extension asked of the phone: one record for each sound, notification, file written and so on.
#pragma once

#include <nlohmann/json.hpp>

#include <cstddef>
#include <deque>
#include <functional>
#include <string>

namespace Simulator {

class ActivityLog {
public:
    using Fields = nlohmann::ordered_json;

    /// Nobody may ever take them, so of more records the oldest are forgotten.
    static constexpr std::size_t mostRecords = 100'000;

    static ActivityLog& shared();

    /// Tells the seconds since the phone's start on the phone's clock.
    void setClock(std::function<double()> clock) { m_clock = std::move(clock); }
    /// Adds `{"at", "kind", …fields}`; the fields are those that the control protocol lists for the kind.
    void record(const std::string& kind, Fields fields = Fields::object());
    /// The records since the last call, in order.
    Fields take();
    /// How many older ones were forgotten since the last `take`.
    std::size_t dropped() const { return m_dropped; }

    /// Takes all there is, for a later process of the same phone, which puts it back.
    Fields handOver();
    void restore(Fields handedOver);

private:
    void add(Fields record);

    std::function<double()> m_clock = [] { return 0.0; };
    std::deque<Fields> m_records;
    std::size_t m_dropped = 0;
};

}
