// What stands around the older notifications: the header above them, and the hint that there are no more.
#include "Simulator/SpringBoard/NotificationSection.hpp"

#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/LegibilityLabel.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

#include <algorithm>

namespace Simulator {

void NCNotificationListSectionHeaderView::initWithFrame(CGRect frame)
{
    UIView::initWithFrame(frame);
    const UI::Label label = makeLabel("Notification Center", 22, FontWeight::semibold, UI::Color::whiteColor());
    label.setAccessibilityIdentifier("stock.notificationHeader.title"_ns);
    title = label;
    addSubview(title);
}

void NCNotificationListSectionHeaderView::layoutSubviews()
{
    const CGSize size = bounds().size;
    title.setFrame(CGRectMake(8, 0, std::max(0.0, size.width - 16), size.height));
}

/// The label is made when it is first laid out.
void NCNotificationListSectionRevealHintView::configureTitle()
{
    if (ivar("_revealHintTitle"))
        return;
    const auto label = makeLegibilityLabel(17, FontWeight::regular, "stock.revealHint.title");
    label.setString("No Older Notifications"_ns);
    setIvar("_revealHintTitle", label);
    addSubview(label);
}

void NCNotificationListSectionRevealHintView::layoutSubviews()
{
    self().send<void, "_configureRevealHintTitleIfNecessary">();
    ivar<UI::View>("_revealHintTitle").setFrame(bounds());
}

static const StandInClass ncNotificationListSectionHeaderView(
    "NCNotificationListSectionHeaderView", "UIView", [](Binder<NCNotificationListSectionHeaderView>& binder) {
        binder.init<"initWithFrame:", &NCNotificationListSectionHeaderView::initWithFrame>()
            .def<"layoutSubviews", &NCNotificationListSectionHeaderView::layoutSubviews>()
            .add();
    });

static const StandInClass ncNotificationListSectionRevealHintView(
    "NCNotificationListSectionRevealHintView", "UIView", [](Binder<NCNotificationListSectionRevealHintView>& binder) {
        binder.def<"_configureRevealHintTitleIfNecessary", &NCNotificationListSectionRevealHintView::configureTitle>()
            .def<"layoutSubviews", &NCNotificationListSectionRevealHintView::layoutSubviews>()
            .ivar<"_revealHintTitle">()
            .add();
    });

}
