// The date view's labels and subtitles: how they are made, set and laid out.
#include "Simulator/SpringBoard/DateView.hpp"

#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/LegibilityLabel.hpp"
#include "Simulator/SpringBoard/StockDateText.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"
#include "Simulator/UIKit/UIViewController.hpp"

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

void SBFLockScreenDateSubtitleView::addParts()
{
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

void SBFLockScreenDateSubtitleDateView::addParts()
{
    SBFLockScreenDateSubtitleView::addParts();
    const UI::View label = makeLegibilityLabel(alternateFontSize, FontWeight::regular, "stock.subtitle.alternate");
    setIvar("_alternateDateLabel", label);
    addSubview(label);
}

void SBFLockScreenDateSubtitleDateView::layoutSubviews()
{
    SBFLockScreenDateSubtitleView::layoutSubviews();
    ivar<UI::View>("_alternateDateLabel").setFrame(CGRectMake(0, subtitleHeight, bounds().size.width, alternateHeight));
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
    if (class_getInstanceVariable(object_getClass(object()), "_prominentDisplayViewController"))
        addProminentDisplay();
}

/// The older label is left over, and shows nothing.
void SBFLockScreenDateView::addProminentDisplay()
{
    const auto controller = makeController("CSProminentDisplayViewController");
    setIvar("_prominentDisplayViewController", controller);
    m_prominentTime = makeLabel("", timeFontSize, FontWeight::medium, UI::Color::whiteColor());
    m_prominentTime.setTextAlignment(UI::TextAlignment::center);
    m_prominentTime.setAccessibilityIdentifier("stock.prominentTime"_ns);
    controller.view().addSubview(m_prominentTime);
    addSubview(controller.view());
    ivar<UI::View>("_timeLabel").setHidden(true);
}

void SBFLockScreenDateView::layoutSubviews()
{
    const double width = bounds().size.width;
    ivar<UI::View>("_timeLabel").setFrame(CGRectMake(0, timeTop, width, timeHeight));
    m_prominentTime.superview().setFrame(bounds());
    m_prominentTime.setFrame(CGRectMake(0, timeTop, width, timeHeight));
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
    m_prominentTime.setText(stockTimeText(date));
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

void SBFLockScreenDateView::setContentAlpha(double alpha, bool subtitleVisible)
{
    setTimeAlpha(alpha, subtitleVisible ? alpha : 0);
}

void SBFLockScreenDateView::setTimeAlpha(double time, double subtitle)
{
    m_timeAlpha = time;
    ivar<UI::View>("_timeLabel").setAlpha(time);
    m_prominentTime.setAlpha(time);
    subtitleView.setAlpha(subtitle);
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
        binder.def<"layoutSubviews", &SBFLockScreenDateSubtitleView::layoutSubviews>()
            .def<"string", &SBFLockScreenDateSubtitleView::string>()
            .def<"setString:", &SBFLockScreenDateSubtitleView::setString>()
            .ivar<"_label">()
            .add();
    });

static const StandInClass sbfLockScreenDateSubtitleDateView("SBFLockScreenDateSubtitleDateView",
    "SBFLockScreenDateSubtitleView", [](Binder<SBFLockScreenDateSubtitleDateView>& binder) {
        binder.def<"layoutSubviews", &SBFLockScreenDateSubtitleDateView::layoutSubviews>()
            .ivar<"_alternateDateLabel">()
            .add();
    });

static const StandInClass sbLockScreenTimerDialView(
    "SBLockScreenTimerDialView", "UIView", [](Binder<SBLockScreenTimerDialView>& binder) {
        binder.init<"initWithFrame:", &SBLockScreenTimerDialView::initWithFrame>().add();
    });

static const StandInClass csProminentDisplayViewController(
    "CSProminentDisplayViewController", "UIViewController", [](Binder<UIViewController>& binder) {
        binder.def<"_canShowWhileLocked", &UIViewController::isWelcomeWhileLocked>().add();
    });

static const StandInClass sbfLockScreenDateView(
    "SBFLockScreenDateView", "UIView", [](Binder<SBFLockScreenDateView>& binder) {
        binder.init<"initWithFrame:", &SBFLockScreenDateView::initWithFrame>()
            .def<"layoutSubviews", &SBFLockScreenDateView::layoutSubviews>()
            .readonly<"date", &SBFLockScreenDateView::date>()
            .def<"setDate:", &SBFLockScreenDateView::setDate>()
            .def<"_updateLabels", &SBFLockScreenDateView::updateLabels>()
            .def<"contentAlpha", &SBFLockScreenDateView::contentAlpha>()
            .def<"setContentAlpha:withSubtitleVisible:", &SBFLockScreenDateView::setContentAlpha>()
            .def<"setTimeAlpha:subtitleAlpha:", &SBFLockScreenDateView::setTimeAlpha>()
            .ivar<"_timeLabel">()
            .ivar<"_dateSubtitleView">()
            .ivar<"_prominentDisplayViewController">()
            .add();
    });

}
