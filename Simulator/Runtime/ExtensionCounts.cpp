// Adds up what the extension asks for, and leaves out what the phone does for itself.
#include "Simulator/Runtime/ExtensionCounts.hpp"

#include "Simulator/Base/Phone.hpp"

#include <utility>

namespace Simulator {

/// In the order of the enumeration.
static constexpr const char* names[] = {"fontRegistrations", "fileOpens", "calendarStores", "calendarQueries",
    "weatherRequests", "alarmReads", "preferenceReads"};

ExtensionCounts& ExtensionCounts::shared()
{
    return Phone::part<ExtensionCounts>();
}

void ExtensionCounts::add(Count count, std::uint64_t amount)
{
    if (m_ownWork == 0)
        m_counts[static_cast<std::size_t>(count)] += amount;
}

ExtensionCounts::Json ExtensionCounts::take()
{
    static_assert(std::size(names) == countOfCounts, "every count has a name");
    Json taken = Json::object();
    for (std::size_t i = 0; i < countOfCounts; ++i)
        taken[names[i]] = std::exchange(m_counts[i], 0);
    return taken;
}

OwnWork::OwnWork()
{
    ++ExtensionCounts::shared().m_ownWork;
}

OwnWork::~OwnWork()
{
    --ExtensionCounts::shared().m_ownWork;
}

}
