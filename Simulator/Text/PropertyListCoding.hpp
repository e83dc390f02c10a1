// Small encodings that several property-list formats share: UTF-16, base 64, calendar dates.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Simulator {

/// UTF-8 of UTF-16 bytes; a leading byte-order mark decides over `bigEndian`.
std::string utf8OfUtf16Bytes(std::string_view bytes, bool bigEndian);

/// White space between the characters is skipped; the padding may be missing.
std::optional<std::string> decodeBase64(std::string_view);

/// "2020-11-15T21:41:07Z"
std::optional<double> decodeDate(std::string_view);
std::string encodeDate(double secondsSince2001);

}
