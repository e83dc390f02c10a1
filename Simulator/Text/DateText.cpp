// A bounded cache of ICU's date formatters and what is asked of them.
#include "Simulator/Text/DateText.hpp"

#include "Simulator/Text/IcuNames.hpp"
#include "Simulator/Text/StyleCache.hpp"

#include <unicode/dtfmtsym.h>
#include <unicode/dtptngen.h>
#include <unicode/smpdtfmt.h>

#include <algorithm>
#include <memory>

namespace Simulator {

namespace {

constexpr std::size_t longestCachedPattern = 256;

/// Null where ICU refuses the pattern.
using Formatter = std::unique_ptr<icu::SimpleDateFormat>;

StyleCache<Formatter>& formatters()
{
    static auto* all = new StyleCache<Formatter>;
    return *all;
}

Formatter makeFormatter(const StyleKey& style)
{
    UErrorCode status = U_ZERO_ERROR;
    auto formatter = std::make_unique<icu::SimpleDateFormat>(
        icuText(style.pattern), icuLocale(style.locale, style.calendar), status);
    if (U_FAILURE(status))
        return nullptr;
    formatter->adoptTimeZone(icuTimeZone(style.timeZone).release());
    return formatter;
}

/// Calls the function with the style's formatter, unless there can be none.
template <typename Function>
void withFormatter(const DateStyle& style, Function&& function)
{
    const StyleKey key{style.pattern, style.locale, style.calendar, style.timeZone};
    if (style.pattern.empty())
        return;
    if (style.pattern.size() > longestCachedPattern) {
        if (const auto formatter = makeFormatter(key))
            function(*formatter);
    } else if (const auto& formatter = formatters().find(key, makeFormatter)) {
        function(*formatter);
    }
}

}

std::u16string formatDate(double seconds, const DateStyle& style)
{
    std::u16string text;
    if (!isDate(seconds))
        return text;
    withFormatter(style, [&](icu::SimpleDateFormat& formatter) {
        UErrorCode status = U_ZERO_ERROR;
        icu::UnicodeString result;
        formatter.format(icuDate(seconds), result, nullptr, status);
        if (U_SUCCESS(status))
            text = plainText(result);
    });
    return text;
}

std::optional<double> parseDate(std::u16string_view text, const DateStyle& style)
{
    std::optional<double> seconds;
    withFormatter(style, [&](icu::SimpleDateFormat& formatter) {
        icu::ParsePosition position(0);
        const icu::UnicodeString source = icuText(text);
        formatter.setLenient(false);
        const UDate date = formatter.parse(source, position);
        if (position.getErrorIndex() < 0 && position.getIndex() == source.length())
            seconds = secondsOfIcuDate(date);
    });
    return seconds;
}

namespace {

/// Later tables than the phone's have a narrow space before "a".
std::u16string withPlainSpaces(const icu::UnicodeString& pattern)
{
    std::u16string text = plainText(pattern);
    std::ranges::replace(text, u'\u202F', u' ');
    return text;
}

}

std::u16string patternForStyles(int dateStyle, int timeStyle, std::string_view locale, std::string_view calendar)
{
    // Indexed by the phone's style numbers.
    constexpr icu::DateFormat::EStyle styles[] = {icu::DateFormat::kNone, icu::DateFormat::kShort,
        icu::DateFormat::kMedium, icu::DateFormat::kLong, icu::DateFormat::kFull};
    const auto styleOf
        = [&](int number) { return number >= 0 && number <= 4 ? styles[number] : icu::DateFormat::kNone; };
    if (styleOf(dateStyle) == icu::DateFormat::kNone && styleOf(timeStyle) == icu::DateFormat::kNone)
        return {};
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createDateTimeInstance(styleOf(dateStyle), styleOf(timeStyle), icuLocale(locale, calendar)));
    icu::UnicodeString pattern;
    if (const auto* simple = dynamic_cast<const icu::SimpleDateFormat*>(format.get()))
        simple->toPattern(pattern);
    return withPlainSpaces(pattern);
}

static std::u16string makePattern(const StyleKey& style)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(icuLocale(style.locale, {}), status));
    if (U_FAILURE(status))
        return {};
    const icu::UnicodeString pattern = generator->getBestPattern(icuText(style.pattern), status);
    return U_SUCCESS(status) ? withPlainSpaces(pattern) : std::u16string();
}

std::u16string patternForSkeleton(std::u16string_view skeleton, std::string_view locale)
{
    // The generator behind a pattern reads all the patterns of its locale.
    static auto* patterns = new StyleCache<std::u16string>;
    const StyleKey key{skeleton, locale, {}, {}};
    return skeleton.size() > longestCachedPattern ? makePattern(key) : patterns->find(key, makePattern);
}

std::vector<std::u16string> dateSymbols(
    DateSymbols symbols, SymbolWidth width, bool standalone, std::string_view locale, std::string_view calendar)
{
    using Icu = icu::DateFormatSymbols;
    constexpr Icu::DtWidthType widths[] = {Icu::WIDE, Icu::ABBREVIATED, Icu::NARROW};
    const auto context = standalone ? Icu::STANDALONE : Icu::FORMAT;
    const auto icuWidth = widths[static_cast<int>(width)];
    UErrorCode status = U_ZERO_ERROR;
    const Icu all(icuLocale(locale, calendar), calendar.empty() ? nullptr : icuCalendarName(calendar).c_str(), status);
    int count = 0;
    const icu::UnicodeString* names = nullptr;
    switch (symbols) {
    case DateSymbols::months:
        names = all.getMonths(count, context, icuWidth);
        break;
    case DateSymbols::weekdays:
        names = all.getWeekdays(count, context, icuWidth);
        break;
    case DateSymbols::halvesOfDay:
        names = all.getAmPmStrings(count);
        break;
    case DateSymbols::eras:
        names = width == SymbolWidth::wide ? all.getEraNames(count) : all.getEras(count);
        break;
    }
    std::vector<std::u16string> result;
    // ICU counts weekdays from 1 and leaves the first place empty.
    for (int index = symbols == DateSymbols::weekdays; index < count; ++index)
        result.push_back(plainText(names[index]));
    return result;
}

std::size_t cachedDateFormatters()
{
    return formatters().size();
}

void forgetDateFormatters()
{
    formatters().clear();
}

}
