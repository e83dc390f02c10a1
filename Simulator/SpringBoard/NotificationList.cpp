// The list's rows, header and hint, and the inset that makes room for the clock.
#include "Simulator/SpringBoard/NotificationList.hpp"

#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/NotificationPlatter.hpp"
#include "Simulator/SpringBoard/NotificationSection.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

#include <algorithm>

namespace Simulator {

namespace {

constexpr double spacing = 8;

const Notification notifications[] = {
    {"MESSAGES", "message.fill", 0.2, 0.78, 0.35, "Anna", "Are we still on for dinner tomorrow?"},
    {"CALENDAR", "calendar", 1, 0.27, 0.23, "Dentist", "Tomorrow at 9:30 AM"},
};

}

void NCNotificationListView::layoutSubviews()
{
    const double width = std::max(0.0, bounds().size.width - contentInset.left - contentInset.right);
    double y = contentInset.top - contentOffset.y;
    for (const auto& [view, height] : rows) {
        view.setFrame(CGRectMake(contentInset.left, y, width, height));
        y += height + spacing;
    }
}

void NCNotificationStructuredListViewController::viewDidLoad()
{
    m_list = makeView("NCNotificationListView", {}, "stock.notificationList");
    self<UI::ViewController>().view().addSubview(m_list);
    auto& rows = standIn<NCNotificationListView>(m_list.raw()).rows;
    for (const Notification& notification : notifications) {
        const UI::View platter = makeView("NCNotificationShortLookView", {}, "stock.notification");
        standIn<NCNotificationShortLookView>(platter.raw()).show(notification);
        rows.push_back({platter, NCNotificationShortLookView::height});
    }
    m_header = makeView("NCNotificationListSectionHeaderView", {}, "stock.notificationHeader");
    m_hint = makeView("NCNotificationListSectionRevealHintView", {}, "stock.revealHint");
    rows.push_back({m_header, NCNotificationListSectionHeaderView::height});
    rows.push_back({m_hint, NCNotificationListSectionRevealHintView::height});
    for (const auto& row : rows)
        m_list.addSubview(row.view);
    setHistoryRevealed(false);
}

void NCNotificationStructuredListViewController::placeParts()
{
    m_list.setFrame(self<UI::ViewController>().view().bounds());
}

void NCNotificationStructuredListViewController::setHistoryRevealed(bool revealed)
{
    m_header.setAlpha(revealed);
    m_hint.setAlpha(revealed);
}

void CSCombinedListViewController::viewDidLoad()
{
    const auto controller = self<UI::ViewController>();
    structuredList = makeController("NCNotificationStructuredListViewController");
    controller.addChildViewController(structuredList);
    controller.view().addSubview(structuredList.view());
}

void CSCombinedListViewController::viewWillAppear(bool)
{
    self<UI::ViewController>().view().setNeedsLayout();
}

void CSCombinedListViewController::placeParts()
{
    structuredList.view().setFrame(self<UI::ViewController>().view().bounds());
    const auto insets = self().send<UIEdgeInsets, "_listViewDefaultContentInsets">();
    structuredList.send<UI::View, "scrollView">().send<void, "setContentInset:">(insets);
}

static const StandInClass ncNotificationListView(
    "NCNotificationListView", "UIScrollView", [](Binder<NCNotificationListView>& binder) {
        binder.def<"layoutSubviews", &NCNotificationListView::layoutSubviews>().add();
    });

static const StandInClass ncNotificationStructuredListViewController("NCNotificationStructuredListViewController",
    "UIViewController", [](Binder<NCNotificationStructuredListViewController>& binder) {
        binder.def<"viewDidLoad", &NCNotificationStructuredListViewController::viewDidLoad>()
            .def<"scrollView", &NCNotificationStructuredListViewController::scrollView>()
            .def<"_canShowWhileLocked", &NCNotificationStructuredListViewController::isWelcomeWhileLocked>()
            .add();
    });

static const StandInClass csCombinedListViewController(
    "CSCombinedListViewController", "CSCoverSheetViewControllerBase", [](Binder<CSCombinedListViewController>& binder) {
        binder.def<"viewDidLoad", &CSCombinedListViewController::viewDidLoad>()
            .def<"viewWillAppear:", &CSCombinedListViewController::viewWillAppear>()
            .def<"_listViewDefaultContentInsets", &CSCombinedListViewController::listViewDefaultContentInsets>()
            .add();
    });

}
