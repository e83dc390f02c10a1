// Base 64 as the protocol carries bytes: with padding, without line breaks.
#pragma once

#include <string>
#include <string_view>

namespace Simulator {

std::string toBase64(std::string_view bytes);
// What is no digit is passed over.
std::string fromBase64(const std::string& text);

}
