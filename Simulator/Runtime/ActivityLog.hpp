// What the extension asked of the phone: one record for each sound, notification, file written and so on.
#pragma once

#include <nlohmann/json.hpp>

#include <functional>
#include <string>
#include <vector>

namespace Simulator {

class ActivityLog {
public:
    using Fields = nlohmann::ordered_json;

    static ActivityLog& shared();

    /// Tells the seconds since the phone's start on the phone's clock.
    void setClock(std::function<double()> clock) { clock_ = std::move(clock); }
    /// Adds `{"at", "kind", …fields}`; the fields are those that the control protocol lists for the kind.
    void record(const std::string& kind, Fields fields = Fields::object());
    /// Puts back a record that was taken in an earlier process of the same phone.
    void restore(Fields record) { records_.push_back(std::move(record)); }
    /// The records since the last call, in order.
    Fields take();

private:
    std::function<double()> clock_ = [] { return 0.0; };
    Fields records_ = Fields::array();
};

}
