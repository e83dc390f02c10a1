#include "Simulator/SpringBoard/NotificationPlatter.hpp"

#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

#include <algorithm>

namespace Simulator {

namespace {

constexpr double cornerRadius = 16;
constexpr double margin = 14;
constexpr double iconSize = 20;
constexpr double iconRadius = 4.5;
constexpr double glyphSize = 13;
constexpr double headerFontSize = 12;
constexpr double timeWidth = 60;

UI::Label faded(UI::Label label)
{
    label.setAlpha(0.6);
    return label;
}

}

void NCNotificationShortLookView::initWithFrame(CGRect frame)
{
    UIView::initWithFrame(frame);
    pane = makePane(BlurStyle::systemMaterial, cornerRadius);
    addSubview(pane);
}

void NCNotificationShortLookView::show(const Notification& notification)
{
    const UI::Color ink = labelColour();
    icon = makePlate(
        {}, UI::Color::colorWithRed(notification.red, notification.green, notification.blue, 1), iconRadius);
    glyph = makeSymbol(notification.symbol, {}, UI::Color::whiteColor());
    app = faded(makeLabel(notification.app, headerFontSize, FontWeight::regular, ink));
    const UI::Label now = faded(makeLabel("now", headerFontSize, FontWeight::regular, ink));
    now.setTextAlignment(UI::TextAlignment::right);
    time = now;
    title = makeLabel(notification.title, 15, FontWeight::semibold, ink);
    text = makeLabel(notification.text, 15, FontWeight::regular, ink);
    for (const UI::View& part : {icon, glyph, app, time, title, text})
        contentOfPane(pane).addSubview(part);
    setNeedsLayout();
}

void NCNotificationShortLookView::layoutSubviews()
{
    const double width = bounds().size.width;
    const double textWidth = std::max(0.0, width - 2 * margin);
    pane.setFrame(bounds());
    icon.setFrame(CGRectMake(margin, 9, iconSize, iconSize));
    glyph.setFrame(centred({glyphSize, glyphSize}, icon.frame()));
    app.setFrame(CGRectMake(margin + iconSize + 7, 9, std::max(0.0, textWidth - iconSize - 7 - timeWidth), iconSize));
    time.setFrame(CGRectMake(width - margin - timeWidth, 9, timeWidth, iconSize));
    title.setFrame(CGRectMake(margin, 33, textWidth, 19));
    text.setFrame(CGRectMake(margin, 51, textWidth, 19));
}

static const StandInClass ncNotificationShortLookView(
    "NCNotificationShortLookView", "UIView", [](Binder<NCNotificationShortLookView>& binder) {
        binder.init<"initWithFrame:", &NCNotificationShortLookView::initWithFrame>()
            .def<"layoutSubviews", &NCNotificationShortLookView::layoutSubviews>()
            .add();
    });

}
