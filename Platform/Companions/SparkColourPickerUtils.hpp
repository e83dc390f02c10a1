// The colour-picker library's reading of colour texts.
#pragma once

#include "Platform/Foundation/NSString.hpp"
#include "Platform/UIKit/UIColor.hpp"

namespace Spark {

class ColourPickerUtils : public ObjC::PrivateClass_<ColourPickerUtils, NS::Object, "SparkColourPickerUtils"> {
public:
    using PrivateClass_::PrivateClass_;

    /// The colour of "#RRGGBB" or "#RRGGBB:opacity"; that of the fallback text if there is none.
    static UI::Color colourWithString(const NS::String& text, const NS::String& fallback)
    {
        return sendClass<UI::Color, "colourWithString:withFallback:">(text, fallback);
    }
};

}
