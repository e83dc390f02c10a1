// Finds out a timer by the text that the stock subtitle gets.
#include "Tweak/Clock/SubtitleHooks.hpp"

#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/ObjC/Hook.hpp"
#include "Product/Names.hpp"
#include "Tweak/Clock/ClockLabels.hpp"
#include "Tweak/Clock/DateLineIcon.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/TemplateImage.hpp"
#include "Tweak/State.hpp"

namespace LYR {

namespace {

void removeLabel(const SB::FLockScreenDateSubtitleView& view, const char* name)
{
    view.ivar<UI::View>(name).removeFromSuperview();
}

NS::MutableAttributedString timerIcon()
{
    auto line = NS::MutableAttributedString::withString(""_ns);
    line.appendAttributedString(dateLineIcon(templateThroughPNG(
        UI::Image::imageNamed(LYR_PREFIX LYR_RESOURCES "SS16/timer.png"_ns))));
    return line;
}

/// The timer's line takes the date's place if the text has the sign, and gives it back if not. A date that is switched
/// off stays away.
void detectTimer(const NS::String& text, const NS::String& sign, const NS::MutableAttributedString& line)
{
    isTimerRunning = text.containsString(sign);
    if (isTimerRunning) {
        line.appendAttributedString(NS::AttributedString::withString(text));
        _timerLabel->setAttributedText(line);
    }
    _timerLabel->setHidden(!isTimerRunning);
    _dateLabel->setHidden(isTimerRunning || !_enableDate);
    placeDateLabel();
}

}

void SBFLockScreenDateSubtitleView_didMoveToWindow(SB::FLockScreenDateSubtitleView self, SEL cmd)
{
    removeLabel(self, "_label");
    stock<SBFLockScreenDateSubtitleView_didMoveToWindow>(self, cmd);
}

void SBFLockScreenDateSubtitleDateView_didMoveToWindow(SB::FLockScreenDateSubtitleView self, SEL cmd)
{
    removeLabel(self, "_alternateDateLabel");
    stock<SBFLockScreenDateSubtitleDateView_didMoveToWindow>(self, cmd);
}

/// Both signs are tried on the same line, so a text that has both stands in it twice, and the colon decides.
void SBFLockScreenDateSubtitleView_setString(SB::FLockScreenDateSubtitleView self, SEL cmd, NS::String text)
{
    stock<SBFLockScreenDateSubtitleView_setString>(self, cmd, text);
    auto line = timerIcon();
    detectTimer(text, "."_ns, line);
    detectTimer(text, ":"_ns, line);
}

}
