// How often the extension asked the phone for what costs time or power.
#pragma once

#include <nlohmann/json.hpp>

#include <array>
#include <cstddef>
#include <cstdint>

namespace Simulator {

/// Each has its name in the table of names.
enum class Count {
    fontRegistrations,
    fileOpens,
    calendarStores,
    calendarQueries,
    weatherRequests,
    alarmReads,
    preferenceReads
};

class ExtensionCounts {
public:
    using Json = nlohmann::json;

    static ExtensionCounts& shared();

    void add(Count, std::uint64_t amount = 1);
    /// All counts since the last call, by name.
    Json take();

private:
    friend class OwnWork;
    static constexpr std::size_t countOfCounts = static_cast<std::size_t>(Count::preferenceReads) + 1;

    std::array<std::uint64_t, countOfCounts> m_counts{};
    int m_ownWork = 0;
};

/// While one of these stands, the shell or one of its libraries works on its own account, and nothing is counted.
class OwnWork {
public:
    OwnWork();
    ~OwnWork();
    OwnWork(const OwnWork&) = delete;
    OwnWork& operator=(const OwnWork&) = delete;
};

}
