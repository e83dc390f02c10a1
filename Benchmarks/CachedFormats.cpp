// The formatters, made by ICU, and the lengths of what they write.
#include "Benchmarks/CachedFormats.hpp"

#include <unicode/smpdtfmt.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace Benchmarks {

namespace {

struct Format {
    const char16_t* pattern;
    const char* locale;
};

constexpr Format formats[] = {
    {u"hh.mm", "en_US@calendar=gregorian"},
    {u"EEE,MMM dd", "en_US@calendar=gregorian"},
    {u"EEE, dd MMM Y G", "en_US@calendar=hebrew"},
    {u"EEE, dd MMM Y G", "en_US@calendar=chinese"},
    {u"EEE, dd MMM Y G", "en_US@calendar=islamic-civil"},
    {u"EEE, dd MMM Y G", "en_US@calendar=buddhist"},
    {u"h:mm", "en_US"},
};

constexpr UDate evening = 1605476460000; // 2020-11-15T21:41:00

std::size_t lengthOf(const icu::SimpleDateFormat& formatter)
{
    icu::UnicodeString text;
    formatter.format(evening, text);
    return static_cast<std::size_t>(text.length());
}

}

struct CachedFormats::Formatters {
    std::vector<std::unique_ptr<icu::SimpleDateFormat>> all;
};

CachedFormats::CachedFormats()
    : m_formatters(std::make_unique<Formatters>())
{
    for (const Format& format : formats) {
        UErrorCode status = U_ZERO_ERROR;
        auto formatter = std::make_unique<icu::SimpleDateFormat>(
            icu::UnicodeString(format.pattern), icu::Locale(format.locale), status);
        if (U_FAILURE(status)) {
            std::fprintf(stderr, "ICU has no formatter for %s\n", format.locale);
            std::exit(1);
        }
        formatter->setTimeZone(*icu::TimeZone::getGMT());
        m_formatters->all.push_back(std::move(formatter));
    }
}

CachedFormats::~CachedFormats() = default;

std::size_t CachedFormats::formatAll() const
{
    std::size_t length = 0;
    for (const auto& formatter : m_formatters->all)
        length += lengthOf(*formatter);
    return length;
}

std::size_t CachedFormats::formatTime() const
{
    return lengthOf(*m_formatters->all.front());
}

}
