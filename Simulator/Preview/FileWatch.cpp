// Asks the kernel for the folder's news.
#include "Simulator/Preview/FileWatch.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/inotify.h>
#include <system_error>

namespace Simulator::Preview {

FileWatch::FileWatch(const std::string& folder, std::vector<std::string> names)
    : m_inotify(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    , m_names(std::move(names))
{
    constexpr auto events = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE;
    if (inotify_add_watch(m_inotify.number(), folder.c_str(), events) < 0)
        throw std::system_error(errno, std::generic_category(), "cannot watch the folder " + folder);
}

bool FileWatch::tookPlace() const
{
    bool found = false;
    alignas(inotify_event) std::array<char, 4096> bytes;
    for (;;) {
        const auto count = read(m_inotify.number(), bytes.data(), bytes.size());
        if (count <= 0)
            return found;
        for (const char* at = bytes.data(); at < bytes.data() + count;) {
            const auto* event = reinterpret_cast<const inotify_event*>(at);
            found = found || (event->len > 0 && std::count(m_names.begin(), m_names.end(), event->name) > 0);
            at += sizeof(inotify_event) + event->len;
        }
    }
}

}
