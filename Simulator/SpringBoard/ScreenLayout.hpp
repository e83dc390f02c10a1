// Where the stock elements lie on screens of various sizes, in points.
#pragma once

#include "Platform/CoreGraphics/CGGeometry.hpp"

namespace Simulator {

struct ScreenLayout {
    /// Of the screen as it is turned now.
    static ScreenLayout current();

    CGSize size;
    bool isTablet = false;
    /// No home button: a bar to swipe up from, quick actions, a status bar around the camera.
    bool hasHomeIndicator = false;

    CGRect bounds() const { return {{0, 0}, size}; }
    CGRect statusBar() const;
    CGRect padlock() const;
    /// From below the status bar on; the stock clock stands in its lower part.
    CGRect dateView() const;
    /// From below the stock clock to the bottom.
    CGRect notificationList() const;
    CGRect quickActions() const;
    CGRect hint() const;
    CGRect homeIndicator() const;
};

}
