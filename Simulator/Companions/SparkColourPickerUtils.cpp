// The colour-picker library's reading of colour texts.
#include "Platform/Companions/SparkColourPickerUtils.hpp"

#include "Simulator/Companions/ColourText.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

#include <algorithm>
#include <array>
#include <charconv>

namespace Simulator {

namespace {

std::optional<double> componentOf(std::string_view digits)
{
    unsigned value = 0;
    const auto [end, error] = std::from_chars(digits.begin(), digits.end(), value, 16);
    if (error != std::errc() || end != digits.end())
        return std::nullopt;
    return digits.size() == 1 ? value / 15.0 : value / 255.0;
}

/// Decimal digits with at most one point and a sign: "1", "1.0", ".5", "-0.2".
std::optional<double> opacityOf(std::string_view text)
{
    if (text.find_first_not_of("0123456789.-") != std::string_view::npos)
        return std::nullopt;
    double value = 0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), value, std::chars_format::fixed);
    if (error != std::errc() || end != text.end())
        return std::nullopt;
    return std::clamp(value, 0.0, 1.0);
}

class SparkColourPickerUtils : public StandIn {
public:
    using Root = SparkColourPickerUtils;

    static UI::Color colourWithString(const NS::Object& text, const NS::Object& fallback)
    {
        for (const NS::Object& candidate : {text, fallback}) {
            if (const auto colour = colourOfText(candidate.as<NS::String>().utf8()))
                return UI::Color::colorWithRed(colour->red, colour->green, colour->blue, colour->opacity);
        }
        return UI::Color::whiteColor();
    }
};

}

std::optional<ColourComponents> colourOfText(std::string_view text)
{
    if (text.starts_with('#'))
        text.remove_prefix(1);
    const std::size_t colon = text.find(':');
    const std::string_view digits = text.substr(0, colon);
    if (digits.size() != 3 && digits.size() != 6)
        return std::nullopt;
    const std::size_t width = digits.size() / 3;
    const auto red = componentOf(digits.substr(0, width));
    const auto green = componentOf(digits.substr(width, width));
    const auto blue = componentOf(digits.substr(2 * width));
    const auto opacity = colon == std::string_view::npos ? 1.0 : opacityOf(text.substr(colon + 1));
    if (!red || !green || !blue || !opacity)
        return std::nullopt;
    return ColourComponents{*red, *green, *blue, *opacity};
}

static const StandInClass sparkColourPickerUtils(
    "SparkColourPickerUtils", "NSObject", [](Binder<SparkColourPickerUtils>& binder) {
        binder.classMethod<"colourWithString:withFallback:", &SparkColourPickerUtils::colourWithString>().add();
    });

}
