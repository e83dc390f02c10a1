// Local times as texts without a zone: "2020-11-15T21:41:00".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Simulator {

/// Seconds since 2001-01-01 UTC of a local time; nothing if the text is none.
std::optional<double> momentOfLocalTime(const std::string& text, std::string_view timeZone);
std::string localTimeText(double moment, std::string_view timeZone);

}
