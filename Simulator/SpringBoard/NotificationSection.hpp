// What stands around the older notifications: the header above them, and the hint that there are no more.
#pragma once

#include "Simulator/UIKit/UIView.hpp"

namespace Simulator {

struct NCNotificationListSectionHeaderView : UIView {
    static constexpr double height = 40;

    void initWithFrame(CGRect frame);
    void layoutSubviews();

    UI::View title;
};

struct NCNotificationListSectionRevealHintView : UIView {
    static constexpr double height = 40;

    void configureTitle();
    void layoutSubviews();
};

}
