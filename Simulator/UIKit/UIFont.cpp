// Font objects: a face of the catalogue and a size.
#include "Simulator/UIKit/UIFont.hpp"

#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/CoreGraphics/Fonts.hpp"
#include "Simulator/Foundation/Exceptions.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

#include <array>
#include <cmath>

namespace Simulator {

namespace {

/// What the system takes for a size that is none.
constexpr double fallbackSize = 12;

struct WeightStep {
    double platformWeight;
    Graphics::FontWeight weight;
};

constexpr std::array weightSteps = {
    WeightStep{-0.8, Graphics::FontWeight::ultraLight},
    WeightStep{-0.6, Graphics::FontWeight::thin},
    WeightStep{-0.4, Graphics::FontWeight::light},
    WeightStep{0, Graphics::FontWeight::regular},
    WeightStep{0.23, Graphics::FontWeight::medium},
    WeightStep{0.3, Graphics::FontWeight::semibold},
    WeightStep{0.4, Graphics::FontWeight::bold},
    WeightStep{0.56, Graphics::FontWeight::heavy},
    WeightStep{0.62, Graphics::FontWeight::black},
};

Graphics::FontWeight nearestWeight(double platformWeight)
{
    Graphics::FontWeight nearest = Graphics::FontWeight::regular;
    double distance = HUGE_VAL;
    for (const WeightStep& step : weightSteps) {
        const double difference = std::abs(step.platformWeight - platformWeight);
        if (difference < distance) {
            distance = difference;
            nearest = step.weight;
        }
    }
    return nearest;
}

NS::Array textsOf(const std::vector<std::string>& texts)
{
    auto array = NS::MutableArray::make();
    for (const std::string& text : texts)
        array.addObject(NS::String::fromUTF8(text));
    return array;
}

}

UI::Font makeFont(const std::shared_ptr<const Graphics::Font>& font, double size)
{
    const ObjC::Object object = newInstance("UIFont");
    auto& standing = standIn<UIFont>(object.raw());
    standing.font = font;
    standing.pointSize = size > 0 && std::isfinite(size) ? size : fallbackSize;
    return UI::Font(object.raw());
}

UI::Font UIFont::withName(const NS::String& name, double size)
{
    if (!name)
        raiseException("NSInvalidArgumentException", "+[UIFont fontWithName:size:]: nil argument");
    const auto font = fontCatalogue().find(name.utf8());
    return font ? makeFont(font, size) : UI::Font();
}

UI::Font UIFont::systemFont(double size)
{
    return makeFont(fontCatalogue().systemFont(), size);
}

UI::Font UIFont::systemFontOfWeight(double size, double weight)
{
    return makeFont(fontCatalogue().systemFont(nearestWeight(weight)), size);
}

UI::Font UIFont::boldSystemFont(double size)
{
    // The interface's bold is a semibold.
    return makeFont(fontCatalogue().systemFont(Graphics::FontWeight::semibold), size);
}

NS::Array UIFont::familyNames()
{
    return textsOf(fontCatalogue().familyNames());
}

NS::Array UIFont::fontNamesForFamily(const NS::String& family)
{
    return textsOf(
        family.is<NS::String>() ? fontCatalogue().fontNamesForFamily(family.utf8()) : std::vector<std::string>());
}

NS::String UIFont::fontName() const
{
    return font ? NS::String::fromUTF8(font->postScriptName()) : NS::String();
}

NS::String UIFont::familyName() const
{
    return font ? NS::String::fromUTF8(font->familyName()) : NS::String();
}

double UIFont::capHeight() const
{
    return font ? font->capHeight(pointSize) : 0;
}

double UIFont::ascender() const
{
    return font ? font->ascender(pointSize) : 0;
}

double UIFont::descender() const
{
    return font ? font->descender(pointSize) : 0;
}

double UIFont::leading() const
{
    return font ? font->leading(pointSize) : 0;
}

double UIFont::lineHeight() const
{
    return font ? font->lineHeight(pointSize) : 0;
}

UI::Font UIFont::withSize(double newSize) const
{
    return makeFont(font, newSize);
}

bool UIFont::isEqual(const ObjC::Object& other) const
{
    const auto* standing = standInOrNull<UIFont>(other);
    return standing && standing->font == font && standing->pointSize == pointSize;
}

unsigned long UIFont::hash() const
{
    return (font ? font->identity() : 0) * 31 + std::hash<double>()(pointSize);
}

static const StandInClass uiFont("UIFont", "NSObject", [](Binder<UIFont>& binder) {
    binder.classMethod<"fontWithName:size:", &UIFont::withName>()
        .classMethod<"systemFontOfSize:", &UIFont::systemFont>()
        .classMethod<"systemFontOfSize:weight:", &UIFont::systemFontOfWeight>()
        .classMethod<"boldSystemFontOfSize:", &UIFont::boldSystemFont>()
        .classMethod<"familyNames", &UIFont::familyNames>()
        .classMethod<"fontNamesForFamilyName:", &UIFont::fontNamesForFamily>()
        .def<"fontName", &UIFont::fontName>()
        .def<"familyName", &UIFont::familyName>()
        .readonly<"pointSize", &UIFont::pointSize>()
        .def<"capHeight", &UIFont::capHeight>()
        .def<"ascender", &UIFont::ascender>()
        .def<"descender", &UIFont::descender>()
        .def<"leading", &UIFont::leading>()
        .def<"lineHeight", &UIFont::lineHeight>()
        .def<"fontWithSize:", &UIFont::withSize>()
        .def<"isEqual:", &UIFont::isEqual>()
        .def<"hash", &UIFont::hash>()
        .def<"copyWithZone:", &UIFont::sameForCopy>()
        .add();
});

}
