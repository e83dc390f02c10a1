#include "Simulator/Runtime/ActivityLog.hpp"

#include "Simulator/Base/Phone.hpp"

#include <utility>

namespace Simulator {

ActivityLog& ActivityLog::shared()
{
    return Phone::part<ActivityLog>();
}

void ActivityLog::record(const std::string& kind, Fields fields)
{
    Fields record = Fields::object();
    record["at"] = clock_();
    record["kind"] = kind;
    for (auto& [name, value] : fields.get_ref<Fields::object_t&>())
        record[name] = std::move(value);
    add(std::move(record));
}

void ActivityLog::add(Fields record)
{
    if (records_.size() == mostRecords) {
        records_.pop_front();
        ++dropped_;
    }
    records_.push_back(std::move(record));
}

ActivityLog::Fields ActivityLog::take()
{
    Fields taken = Fields::array();
    for (Fields& record : std::exchange(records_, {}))
        taken.push_back(std::move(record));
    dropped_ = 0;
    return taken;
}

ActivityLog::Fields ActivityLog::handOver()
{
    const std::size_t dropped = dropped_;
    return {{"records", take()}, {"dropped", dropped}};
}

void ActivityLog::restore(Fields handedOver)
{
    dropped_ = handedOver.at("dropped");
    for (Fields& record : handedOver.at("records"))
        add(std::move(record));
}

}
