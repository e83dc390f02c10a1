// The platter's pane and texts.
#include "Simulator/SpringBoard/NotificationPlatter.hpp"

#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"
#include "Simulator/UIKit/UIGestureRecognizer.hpp"

#include <algorithm>

#include <nlohmann/json.hpp>

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

void NCNotificationShortLookView::addParts()
{
    m_pane = makePane(BlurStyle::systemMaterial, cornerRadius);
    addSubview(m_pane);
    const auto press = UI::LongPressGestureRecognizer::make();
    standIn<UIGestureRecognizer>(press.raw()).stockAction
        = [this](UI::GestureRecognizerState state) { m_isOpen |= state == UI::GestureRecognizerState::began; };
    self<UI::View>().addGestureRecognizer(press);
}

void NCNotificationShortLookView::describe(nlohmann::json& description) const
{
    if (m_isOpen)
        description["isOpen"] = true;
}

void NCNotificationShortLookView::show(const Notification& notification)
{
    const UI::Color ink = labelColour();
    m_icon = makePlate(
        {}, UI::Color::colorWithRed(notification.red, notification.green, notification.blue, 1), iconRadius);
    m_glyph = makeSymbol(notification.symbol, {}, UI::Color::whiteColor());
    m_app = faded(makeLabel(notification.app, headerFontSize, FontWeight::regular, ink));
    const UI::Label now = faded(makeLabel("now", headerFontSize, FontWeight::regular, ink));
    now.setTextAlignment(UI::TextAlignment::right);
    m_time = now;
    m_title = makeLabel(notification.title, 15, FontWeight::semibold, ink);
    m_text = makeLabel(notification.text, 15, FontWeight::regular, ink);
    for (const UI::View& part : {m_icon, m_glyph, m_app, m_time, m_title, m_text})
        contentOfPane(m_pane).addSubview(part);
    setNeedsLayout();
}

void NCNotificationShortLookView::layoutSubviews()
{
    const double width = bounds().size.width;
    const double textWidth = std::max(0.0, width - 2 * margin);
    m_pane.setFrame(bounds());
    m_icon.setFrame(CGRectMake(margin, 9, iconSize, iconSize));
    m_glyph.setFrame(centred({glyphSize, glyphSize}, m_icon.frame()));
    m_app.setFrame(CGRectMake(margin + iconSize + 7, 9, std::max(0.0, textWidth - iconSize - 7 - timeWidth), iconSize));
    m_time.setFrame(CGRectMake(width - margin - timeWidth, 9, timeWidth, iconSize));
    m_title.setFrame(CGRectMake(margin, 33, textWidth, 19));
    m_text.setFrame(CGRectMake(margin, 51, textWidth, 19));
}

static const StandInClass plTitledPlatterView(
    "PLTitledPlatterView", "UIView", [](Binder<UIView>& binder) { binder.add(); });

static const StandInClass ncNotificationShortLookView(
    "NCNotificationShortLookView", "PLTitledPlatterView", [](Binder<NCNotificationShortLookView>& binder) {
        binder.def<"layoutSubviews", &NCNotificationShortLookView::layoutSubviews>().add();
    });

}
