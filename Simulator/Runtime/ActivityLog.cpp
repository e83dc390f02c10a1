#include "Simulator/Runtime/ActivityLog.hpp"

#include <utility>

namespace Simulator {

ActivityLog& ActivityLog::shared()
{
    static ActivityLog log;
    return log;
}

void ActivityLog::record(const std::string& kind, Fields fields)
{
    Fields record = Fields::object();
    record["at"] = clock_();
    record["kind"] = kind;
    for (auto& [name, value] : fields.get_ref<Fields::object_t&>())
        record[name] = std::move(value);
    records_.push_back(std::move(record));
}

ActivityLog::Fields ActivityLog::take()
{
    return std::exchange(records_, Fields::array());
}

}
