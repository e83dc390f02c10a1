// The colour-picker library's reading of colour texts.
#include "Platform/Companions/SparkColourPickerUtils.hpp"

#include "Simulator/Base/ColourText.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

namespace Simulator {

namespace {

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

static const StandInClass sparkColourPickerUtils("SparkColourPickerUtils", "NSObject",
    BroughtBy{"/usr/lib/libsparkcolourpicker.dylib"}, [](Binder<SparkColourPickerUtils>& binder) {
        binder.classMethod<"colourWithString:withFallback:", &SparkColourPickerUtils::colourWithString>().add();
    });

}
