// The date view's labels and subtitles: how they are made, set and laid out.
#include "Simulator/SpringBoard/DateView.hpp"

#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/LegibilityLabel.hpp"
#include "Simulator/SpringBoard/StockDateText.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

#include <nlohmann/json.hpp>

namespace Simulator {

namespace {

constexpr double timeTop = 64;
constexpr double timeFontSize = 80;
constexpr double timeHeight = 96;
constexpr double subtitleFontSize = 22;
constexpr double subtitleHeight = 28;
constexpr double alternateFontSize = 15;
constexpr double alternateHeight = 20;
constexpr double dialSize = 20;

}

void SBFLockScreenDateSubtitleView::initWithFrame(CGRect frame)
{
    UIView::initWithFrame(frame);
    const UI::View label = makeLegibilityLabel(subtitleFontSize, FontWeight::regular, "stock.subtitle.label");
    setIvar("_label", label);
    addSubview(label);
}

void SBFLockScreenDateSubtitleView::describe(nlohmann::json& description) const
{
    description["text"] = string().utf8();
}

void SBFLockScreenDateSubtitleView::layoutSubviews()
{
    const CGRect line = CGRectMake(0, 0, bounds().size.width, subtitleHeight);
    ivar<UI::View>("_label").setFrame(line);
}

NS::String SBFLockScreenDateSubtitleView::string() const
{
    return ivar<SB::UILegibilityLabel>("_label").string();
}

void SBFLockScreenDateSubtitleView::setString(const NS::String& string)
{
    ivar<SB::UILegibilityLabel>("_label").setString(string);
}

void SBFLockScreenDateSubtitleDateView::initWithFrame(CGRect frame)
{
    SBFLockScreenDateSubtitleView::initWithFrame(frame);
    const UI::View label = makeLegibilityLabel(alternateFontSize, FontWeight::regular, "stock.subtitle.alternate");
    setIvar("_alternateDateLabel", label);
    addSubview(label);
}

void SBFLockScreenDateSubtitleDateView::layoutSubviews()
{
    SBFLockScreenDateSubtitleView::layoutSubviews();
    ivar<UI::View>("_alternateDateLabel").setFrame(CGRectMake(0, subtitleHeight, bounds().size.width, alternateHeight));
}

void SBFLockScreenDateSubtitleDateView::didMoveToWindow()
{
    sendSuper<void, "didMoveToWindow">(object(), objc_getClass("SBFLockScreenDateSubtitleView"));
}

void SBLockScreenTimerDialView::initWithFrame(CGRect frame)
{
    UIView::initWithFrame(frame);
    const auto ring = layer();
    ring.setCornerRadius(dialSize / 2);
    ring.setBorderWidth(2);
    ring.setBorderColor(whiteWithAlpha(0.9).CGColor());
}

void SBFLockScreenDateView::initWithFrame(CGRect frame)
{
    UIView::initWithFrame(frame);
    const UI::View time = makeLegibilityLabel(timeFontSize, FontWeight::thin, "stock.time");
    setIvar("_timeLabel", time);
    addSubview(time);
    subtitleView = makeView("SBFLockScreenDateSubtitleDateView", {}, "stock.subtitle");
    setIvar("_dateSubtitleView", subtitleView);
    addSubview(subtitleView);
}

void SBFLockScreenDateView::layoutSubviews()
{
    const double width = bounds().size.width;
    ivar<UI::View>("_timeLabel").setFrame(CGRectMake(0, timeTop, width, timeHeight));
    subtitleView.setFrame(CGRectMake(0, timeTop + timeHeight, width, subtitleHeight));
    timerDial.setFrame(CGRectMake(width / 2 - 60, (subtitleHeight - dialSize) / 2, dialSize, dialSize));
}

void SBFLockScreenDateView::setDate(const NS::Date& moment)
{
    date = moment;
    self().send<void, "_updateLabels">();
}

void SBFLockScreenDateView::updateLabels()
{
    ivar<SB::UILegibilityLabel>("_timeLabel").setString(stockTimeText(date));
    const NS::String subtitle = m_customSubtitle ? NS::String::fromUTF8(*m_customSubtitle) : stockDateText(date);
    if (!subtitleView.send<NS::String, "string">().isEqualToString(subtitle))
        subtitleView.send<void, "setString:">(subtitle);
}

void SBFLockScreenDateView::setCustomSubtitle(std::optional<std::string> text)
{
    m_customSubtitle = std::move(text);
    const NS::String subtitle = m_customSubtitle ? NS::String::fromUTF8(*m_customSubtitle) : stockDateText(date);
    subtitleView.send<void, "setString:">(subtitle);
}

void SBFLockScreenDateView::setTimerDialShown(bool shown)
{
    if (shown == static_cast<bool>(timerDial))
        return;
    if (!shown) {
        timerDial.removeFromSuperview();
        timerDial = {};
        return;
    }
    timerDial = makeView("SBLockScreenTimerDialView", {}, "stock.timerDial");
    subtitleView.addSubview(timerDial);
    setNeedsLayout();
}

static const StandInClass sbfLockScreenDateSubtitleView(
    "SBFLockScreenDateSubtitleView", "UIView", [](Binder<SBFLockScreenDateSubtitleView>& binder) {
        binder.init<"initWithFrame:", &SBFLockScreenDateSubtitleView::initWithFrame>()
            .def<"layoutSubviews", &SBFLockScreenDateSubtitleView::layoutSubviews>()
            .def<"didMoveToWindow", &SBFLockScreenDateSubtitleView::didMoveToWindow>()
            .def<"string", &SBFLockScreenDateSubtitleView::string>()
            .def<"setString:", &SBFLockScreenDateSubtitleView::setString>()
            .ivar<"_label">()
            .add();
    });

static const StandInClass sbfLockScreenDateSubtitleDateView("SBFLockScreenDateSubtitleDateView",
    "SBFLockScreenDateSubtitleView", [](Binder<SBFLockScreenDateSubtitleDateView>& binder) {
        binder.init<"initWithFrame:", &SBFLockScreenDateSubtitleDateView::initWithFrame>()
            .def<"layoutSubviews", &SBFLockScreenDateSubtitleDateView::layoutSubviews>()
            .def<"didMoveToWindow", &SBFLockScreenDateSubtitleDateView::didMoveToWindow>()
            .ivar<"_alternateDateLabel">()
            .add();
    });

static const StandInClass sbLockScreenTimerDialView(
    "SBLockScreenTimerDialView", "UIView", [](Binder<SBLockScreenTimerDialView>& binder) {
        binder.init<"initWithFrame:", &SBLockScreenTimerDialView::initWithFrame>()
            .def<"didMoveToWindow", &SBLockScreenTimerDialView::didMoveToWindow>()
            .add();
    });

static const StandInClass sbfLockScreenDateView(
    "SBFLockScreenDateView", "UIView", [](Binder<SBFLockScreenDateView>& binder) {
        binder.init<"initWithFrame:", &SBFLockScreenDateView::initWithFrame>()
            .def<"layoutSubviews", &SBFLockScreenDateView::layoutSubviews>()
            .readonly<"date", &SBFLockScreenDateView::date>()
            .def<"setDate:", &SBFLockScreenDateView::setDate>()
            .def<"_updateLabels", &SBFLockScreenDateView::updateLabels>()
            .readonly<"dateSubtitleView", &SBFLockScreenDateView::subtitleView>()
            .ivar<"_timeLabel">()
            .ivar<"_dateSubtitleView">()
            .add();
    });

}
