// The seven dates and times of a full refresh by ICU alone, with formatters that are made once.
#pragma once

#include <cstddef>
#include <memory>

namespace Benchmarks {

class CachedFormats {
public:
    CachedFormats();
    ~CachedFormats();
    CachedFormats(const CachedFormats&) = delete;
    CachedFormats& operator=(const CachedFormats&) = delete;

    /// Time, date, the date in four other calendars, and the time of an alarm; answers their length together.
    std::size_t formatAll() const;
    std::size_t formatTime() const;

private:
    struct Formatters;
    std::unique_ptr<Formatters> m_formatters;
};

}
