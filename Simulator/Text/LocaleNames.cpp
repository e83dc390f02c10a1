// Any spelling of a locale, put into the phone's by ICU.
#include "Simulator/Text/LocaleNames.hpp"

#include <unicode/locid.h>

#include <algorithm>

namespace Simulator {

namespace {

/// Its keywords too, "@calendar=buddhist".
std::string nameOf(const icu::Locale& locale, char beforeRegion)
{
    std::string name = locale.getLanguage();
    const auto add = [&name](char separator, std::string_view part) {
        if (!part.empty())
            (name += separator) += part;
    };
    add('-', locale.getScript());
    add(beforeRegion, locale.getCountry());
    add(beforeRegion, locale.getVariant());
    const std::string_view whole = locale.getName();
    return name += whole.substr(std::min(whole.find('@'), whole.size()));
}

}

std::string localeName(std::string_view name)
{
    const icu::Locale locale(std::string(name).c_str());
    return locale.isBogus() ? std::string() : nameOf(locale, '_');
}

std::string languageName(std::string_view name)
{
    const icu::Locale locale(std::string(name).c_str());
    return locale.isBogus() ? std::string() : nameOf(locale, '-');
}

}
