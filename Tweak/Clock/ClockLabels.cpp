// Creation, placement and visibility of the clock's labels.
#include "Tweak/Clock/ClockLabels.hpp"

#include "Tweak/ScreenWidth.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/State.hpp"

namespace LYR {

namespace {

constexpr CGFloat inset = 7;
constexpr CGFloat margins = 30;
constexpr CGFloat timeHeight = 180;
constexpr CGFloat dateHeight = 40;
/// Far enough above the screen that nothing shows.
constexpr CGFloat outOfSight = 3000;

CGRect timeFrame(const ScreenLayout& layout)
{
    return CGRectMake(_XtimeLabel.doubleValue() + inset, _YtimeLabel.doubleValue(), layout.width - margins, timeHeight);
}

CGRect dateFrame(const ScreenLayout& layout)
{
    return CGRectMake(_XdateLabel.doubleValue() + inset, _YdateLabel.doubleValue(), layout.width - margins, dateHeight);
}

UI::View borderView(const UI::View& parent)
{
    auto border = UI::View::make();
    parent.addSubview(border);
    border.setBackgroundColor(UI::Color::clearColor());
    border.setHidden(true);
    return border;
}

}

void createClockLabels(const SB::FLockScreenDateViewController& controller)
{
    auto view = controller.view();
    auto time = UI::Label::make();
    time.setNumberOfLines(2);
    time.setAdjustsFontSizeToFitWidth(true);
    view.addSubview(time);
    keepView(_timeLabel, time);

    auto date = UI::Label::make();
    date.setNumberOfLines(1);
    date.setAdjustsFontSizeToFitWidth(false);
    date.setLineBreakMode(UI::LineBreakMode::truncatingTail);
    date.setTextColor(UI::Color::whiteColor());
    view.addSubview(date);
    keepView(_dateLabel, date);

    auto timer = UI::Label::make();
    timer.setNumberOfLines(1);
    timer.setAdjustsFontSizeToFitWidth(true);
    timer.setTextColor(UI::Color::whiteColor());
    timer.setHidden(true);
    view.addSubview(timer);
    keepView(_timerLabel, timer);

    keepView(_dateBorderView, borderView(view));
    keepView(_timeBorderView, borderView(view));
    _timeBorderView->layer().setCornerRadius(15);
}

bool holdsClock(const SB::FLockScreenDateView& view)
{
    return _timeLabel && _timeLabel->superview() == view;
}

/// Since system 16 a controller of its own draws it, and the label is a leftover.
void setStockTimeHidden(const SB::FLockScreenDateView& view, bool hidden)
{
    view.ivar<SB::UILegibilityLabel, "_timeLabel">().setHidden(hidden);
    view.prominentDisplayViewController().view().setHidden(hidden);
}

void giveBackStockClock()
{
    for (const UI::View& view : {UI::View(_timeLabel), UI::View(_dateLabel), UI::View(_timerLabel),
             _timeBorderView.get(), _dateBorderView.get()})
        view.setHidden(true);
    auto view = dateView->dateView();
    setStockTimeHidden(view, false);
    auto subtitle = view.subtitleView();
    for (const auto& label : {subtitle.label(), subtitle.alternateDateLabel()}) {
        if (label)
            subtitle.addSubview(label);
    }
    view.setNeedsLayout();
}

void placeClockLabels(const SB::FLockScreenDateViewController& controller)
{
    auto layout = screenLayout();
    if (!layout)
        return;
    _timeLabel->setFrame(timeFrame(*layout));
    _dateLabel->setFrame(dateFrame(*layout));
    _timerLabel->setFrame(dateFrame(*layout));
    controller.view().setTransform(CGAffineTransformMakeScale(layout->scale, layout->scale));
}

void placeDateLabel()
{
    auto layout = screenLayout();
    if (!layout)
        return;
    CGRect frame = dateFrame(*layout);
    if (isTimerRunning)
        frame.origin.y -= outOfSight;
    _dateLabel->setFrame(frame);
}

void settleTimerAndDate()
{
    if (!isTimerRunning)
        _timerLabel->setText("Timer Off"_ns);
    placeDateLabel();
}

void applyClockVisibility()
{
    _timeLabel->setHidden(!_enableTime);
    _dateLabel->setHidden(!_enableDate);
}

}
