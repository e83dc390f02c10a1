// Base 64 with its padding and without white space.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Simulator {

std::string toBase64(std::string_view bytes);
/// Nothing if the text is no base 64.
std::optional<std::string> fromBase64(std::string_view text);

}
