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
    Fields record{{"at", clock_()}, {"kind", kind}};
    record.update(fields);
    records_.push_back(std::move(record));
}

ActivityLog::Fields ActivityLog::take()
{
    return std::exchange(records_, Fields::array());
}

}
