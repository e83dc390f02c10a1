// Files are told apart by what the file system says of them.
#include "Simulator/Files/RecentContents.hpp"

#include <algorithm>
#include <ctime>

namespace Simulator {

namespace {

constexpr std::size_t mostEntries = 8;
constexpr off_t largestFile = 1 << 20;
/// File systems count time in steps of some milliseconds.
constexpr double settlingSeconds = 0.1;

double secondsOf(const timespec& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

bool isSame(const timespec& one, const timespec& other)
{
    return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

/// Nobody can set the time of a change back, unlike that of the content.
bool isSame(const struct stat& one, const struct stat& other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino && one.st_size == other.st_size
        && isSame(one.st_mtim, other.st_mtim) && isSame(one.st_ctim, other.st_ctim);
}

bool hasSettled(const struct stat& status)
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return secondsOf(now) - secondsOf(status.st_ctim) > settlingSeconds;
}

}

RecentContents::Content RecentContents::find(const struct stat& status)
{
    const auto found
        = std::ranges::find_if(m_entries, [&](const Entry& entry) { return isSame(entry.status, status); });
    if (found == m_entries.end())
        return nullptr;
    std::rotate(found, found + 1, m_entries.end());
    return m_entries.back().content;
}

bool RecentContents::suits(const struct stat& status)
{
    return status.st_size <= largestFile && hasSettled(status);
}

void RecentContents::add(const struct stat& status, const Content& content)
{
    if (m_entries.size() >= mostEntries) {
        if (m_entries.front().content.use_count() > 1)
            m_entries.front().content->bytes();
        m_entries.erase(m_entries.begin());
    }
    m_entries.push_back({status, content});
}

void RecentContents::readAll() const
{
    for (const Entry& entry : m_entries)
        entry.content->bytes();
}

}
