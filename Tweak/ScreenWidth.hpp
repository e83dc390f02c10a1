// The screen-width rule: a phone's widths come from the screen's width, a tablet's from its height, and a screen
// from 500 to 501 points wide, inclusive, keeps whatever frames it has.
#pragma once

#include "Platform/UIKit/UIScreen.hpp"

#include <optional>

namespace LYR {

struct ScreenLayout {
    /// The length from which widths are taken, in points.
    CGFloat width;
    /// Of the whole date view.
    CGFloat scale;
};

inline std::optional<ScreenLayout> screenLayout()
{
    CGSize screen = UI::Screen::mainScreen().bounds().size;
    if (screen.width < 500)
        return ScreenLayout{screen.width, 1.0};
    if (screen.width > 501)
        return ScreenLayout{screen.height, 0.8};
    return std::nullopt;
}

}
