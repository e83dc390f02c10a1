// The picture that a weather library shows for its conditions.
#pragma once

#include "Simulator/Control/Envelope.hpp"

#include <filesystem>

namespace Simulator::App {

/// The name of the glyph for a library's text, "Partly Cloudy"; empty where the text says nothing that there is one
/// for.
std::string glyphFor(const std::string& conditions, bool isNight);

/// Whether it is night at a local time, "2020-11-15T21:41:00", by the record's sunset and sunrise. Where it does not
/// say both, it is day.
bool isNight(const Control::Json& weather, const std::string& time);

/// The weather, as `device.set` takes it, with the glyph of its conditions as its image. A glyph that it has already
/// may be of other conditions or another time; an image from elsewhere stays.
Control::Json withGlyph(Control::Json weather, const std::string& time, const std::filesystem::path& glyphs);

}
