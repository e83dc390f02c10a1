// The table of named colours. Each name stands for one object that lives as long as the process.
#include "Simulator/UIKit/NamedColors.hpp"

#include "Simulator/UIKit/UIColor.hpp"

#include <array>
#include <string_view>

namespace Simulator {

namespace {

struct NamedColor {
    const char* name;
    ColorComponents light;
    ColorComponents dark;
};

constexpr ColorComponents grey(double white, double alpha = 1)
{
    return {{white, alpha}, 2};
}

constexpr ColorComponents rgb(int red, int green, int blue, double alpha = 1)
{
    return {{red / 255.0, green / 255.0, blue / 255.0, alpha}, 4};
}

constexpr std::array namedColors = {
    NamedColor{"clearColor", grey(0, 0), grey(0, 0)},
    NamedColor{"blackColor", grey(0), grey(0)},
    NamedColor{"whiteColor", grey(1), grey(1)},
    NamedColor{"darkGrayColor", grey(1.0 / 3), grey(1.0 / 3)},
    NamedColor{"grayColor", grey(0.5), grey(0.5)},
    NamedColor{"lightGrayColor", grey(2.0 / 3), grey(2.0 / 3)},
    NamedColor{"redColor", rgb(255, 0, 0), rgb(255, 0, 0)},
    NamedColor{"greenColor", rgb(0, 255, 0), rgb(0, 255, 0)},
    NamedColor{"blueColor", rgb(0, 0, 255), rgb(0, 0, 255)},
    NamedColor{"cyanColor", rgb(0, 255, 255), rgb(0, 255, 255)},
    NamedColor{"yellowColor", rgb(255, 255, 0), rgb(255, 255, 0)},
    NamedColor{"magentaColor", rgb(255, 0, 255), rgb(255, 0, 255)},
    NamedColor{"orangeColor", {{1, 0.5, 0, 1}, 4}, {{1, 0.5, 0, 1}, 4}},
    NamedColor{"purpleColor", {{0.5, 0, 0.5, 1}, 4}, {{0.5, 0, 0.5, 1}, 4}},
    NamedColor{"brownColor", {{0.6, 0.4, 0.2, 1}, 4}, {{0.6, 0.4, 0.2, 1}, 4}},
    NamedColor{"systemRedColor", rgb(255, 59, 48), rgb(255, 69, 58)},
    NamedColor{"systemOrangeColor", rgb(255, 149, 0), rgb(255, 159, 10)},
    NamedColor{"systemYellowColor", rgb(255, 204, 0), rgb(255, 214, 10)},
    NamedColor{"systemGreenColor", rgb(52, 199, 89), rgb(48, 209, 88)},
    NamedColor{"systemTealColor", rgb(90, 200, 250), rgb(100, 210, 255)},
    NamedColor{"systemBlueColor", rgb(0, 122, 255), rgb(10, 132, 255)},
    NamedColor{"systemIndigoColor", rgb(88, 86, 214), rgb(94, 92, 230)},
    NamedColor{"systemPurpleColor", rgb(175, 82, 222), rgb(191, 90, 242)},
    NamedColor{"systemPinkColor", rgb(255, 45, 85), rgb(255, 55, 95)},
    NamedColor{"systemGrayColor", rgb(142, 142, 147), rgb(142, 142, 147)},
    NamedColor{"systemGray2Color", rgb(174, 174, 178), rgb(99, 99, 102)},
    NamedColor{"systemGray3Color", rgb(199, 199, 204), rgb(72, 72, 74)},
    NamedColor{"systemGray4Color", rgb(209, 209, 214), rgb(58, 58, 60)},
    NamedColor{"systemGray5Color", rgb(229, 229, 234), rgb(44, 44, 46)},
    NamedColor{"systemGray6Color", rgb(242, 242, 247), rgb(28, 28, 30)},
    NamedColor{"labelColor", rgb(0, 0, 0), rgb(255, 255, 255)},
    NamedColor{"secondaryLabelColor", rgb(60, 60, 67, 0.6), rgb(235, 235, 245, 0.6)},
    NamedColor{"tertiaryLabelColor", rgb(60, 60, 67, 0.3), rgb(235, 235, 245, 0.3)},
    NamedColor{"quaternaryLabelColor", rgb(60, 60, 67, 0.18), rgb(235, 235, 245, 0.16)},
    NamedColor{"placeholderTextColor", rgb(60, 60, 67, 0.3), rgb(235, 235, 245, 0.3)},
    NamedColor{"linkColor", rgb(0, 122, 255), rgb(9, 132, 255)},
    NamedColor{"separatorColor", rgb(60, 60, 67, 0.29), rgb(84, 84, 88, 0.6)},
    NamedColor{"systemFillColor", rgb(120, 120, 128, 0.2), rgb(120, 120, 128, 0.36)},
    NamedColor{"secondarySystemFillColor", rgb(120, 120, 128, 0.16), rgb(120, 120, 128, 0.32)},
    NamedColor{"tertiarySystemFillColor", rgb(118, 118, 128, 0.12), rgb(118, 118, 128, 0.24)},
    NamedColor{"systemBackgroundColor", rgb(255, 255, 255), rgb(0, 0, 0)},
    NamedColor{"secondarySystemBackgroundColor", rgb(242, 242, 247), rgb(28, 28, 30)},
    NamedColor{"tertiarySystemBackgroundColor", rgb(255, 255, 255), rgb(44, 44, 46)},
};

id answerNamedColor(id, SEL selector)
{
    return namedColor(sel_getName(selector)).autoreleased();
}

}

UI::Color namedColor(const char* selectorName)
{
    static constinit std::array<ObjC::Variable<UI::Color>, namedColors.size()> objects;
    for (std::size_t i = 0; i < namedColors.size(); ++i) {
        if (std::string_view(namedColors[i].name) != selectorName)
            continue;
        if (!objects[i])
            objects[i] = UIColor::withComponents(namedColors[i].light, namedColors[i].dark);
        return objects[i];
    }
    return {};
}

void registerNamedColors(Class colorClass)
{
    Class target = object_getClass(reinterpret_cast<id>(colorClass));
    for (const NamedColor& color : namedColors)
        class_addMethod(target, sel_registerName(color.name), reinterpret_cast<IMP>(&answerNamedColor), "@@:");
}

}
