// Base64, as the control protocol carries bytes.
#pragma once

#include <string>
#include <string_view>

namespace Support {

std::string toBase64(std::string_view bytes);
std::string fromBase64(std::string_view text);

}
