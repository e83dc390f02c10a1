// Case mapping and sorting of text as the phone does them: full Unicode mappings, root rules unless a locale is given.
#pragma once

#include <string>
#include <string_view>

namespace Simulator {

/// "straße" becomes "STRASSE".
std::u16string uppercase(std::u16string_view, std::string_view locale = {});
std::u16string lowercase(std::u16string_view, std::string_view locale = {});
/// A letter after anything that is no letter begins a word: "SUN,NOV 15" becomes "Sun,Nov 15", "21st" becomes "21St".
/// Apostrophes, points between letters and combining marks do not begin one: "don't" becomes "Don't".
std::u16string capitalized(std::u16string_view, std::string_view locale = {});

/// Negative, zero or positive, in the locale's alphabetical order. Accents count; case only if asked for.
int compareText(std::u16string_view, std::u16string_view, std::string_view locale, bool caseSensitive);

}
