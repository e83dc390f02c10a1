// Keeps the newest records and counts the dropped ones.
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
    record["at"] = m_clock();
    record["kind"] = kind;
    for (auto& [name, value] : fields.get_ref<Fields::object_t&>())
        record[name] = std::move(value);
    add(std::move(record));
}

void ActivityLog::add(Fields record)
{
    if (m_records.size() == mostRecords) {
        m_records.pop_front();
        ++m_dropped;
    }
    m_records.push_back(std::move(record));
}

ActivityLog::Fields ActivityLog::take()
{
    Fields taken = Fields::array();
    for (Fields& record : std::exchange(m_records, {}))
        taken.push_back(std::move(record));
    m_dropped = 0;
    return taken;
}

ActivityLog::Fields ActivityLog::handOver()
{
    const std::size_t dropped = m_dropped;
    return {{"records", take()}, {"dropped", dropped}};
}

void ActivityLog::restore(Fields handedOver)
{
    m_dropped = handedOver.at("dropped");
    for (Fields& record : handedOver.at("records"))
        add(std::move(record));
}

}
