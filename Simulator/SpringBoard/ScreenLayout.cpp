// The places, by the size of the screen and whether it has a home button.
#include "Simulator/SpringBoard/ScreenLayout.hpp"

#include "Simulator/SpringBoard/StockParts.hpp"
#include "Simulator/UIKit/UIScreen.hpp"

#include <algorithm>

namespace Simulator {

namespace {

constexpr double leastTabletSide = 600;
constexpr double leastTallAspect = 2;
constexpr double dateMargin = 8;
constexpr double dateTop = 28;
constexpr double dateHeight = 196;
constexpr double listWidthOnTablets = 640;
constexpr double quickActionsHeight = 110;

}

ScreenLayout ScreenLayout::current()
{
    const CGSize size = screenSettings().size;
    const double shortSide = std::min(size.width, size.height);
    const double longSide = std::max(size.width, size.height);
    const bool isTablet = shortSide >= leastTabletSide;
    return {size, isTablet, !isTablet && longSide / shortSide > leastTallAspect};
}

CGRect ScreenLayout::statusBar() const
{
    return CGRectMake(0, 0, size.width, hasHomeIndicator ? 44 : 20);
}

CGRect ScreenLayout::padlock() const
{
    return hasHomeIndicator ? centred({13, 16}, CGRectMake(0, 10, size.width, 20)) : centred({10, 12}, statusBar());
}

/// In the middle, as wide as an upright phone, also where the screen lies on its side.
CGRect ScreenLayout::dateView() const
{
    const double width = (size.width <= 501 ? size.width : size.height) - 2 * dateMargin;
    return CGRectMake((size.width - width) / 2, dateTop, width, dateHeight);
}

CGRect ScreenLayout::notificationList() const
{
    const CGRect date = dateView();
    const double top = date.origin.y + date.size.height + 8;
    const double width = std::min(size.width - 16, isTablet ? listWidthOnTablets : size.width);
    return CGRectMake((size.width - width) / 2, top, width, std::max(0.0, size.height - top));
}

CGRect ScreenLayout::quickActions() const
{
    return CGRectMake(0, size.height - quickActionsHeight, size.width, quickActionsHeight);
}

CGRect ScreenLayout::hint() const
{
    return CGRectMake(0, size.height - (hasHomeIndicator ? 52 : 36), size.width, 24);
}

CGRect ScreenLayout::homeIndicator() const
{
    const double width = std::min(size.width, size.height) * 0.36;
    return CGRectMake((size.width - width) / 2, size.height - 13, width, 5);
}

}
