// Finds out a timer by the text that the stock subtitle gets.
#include "Tweak/Clock/SubtitleHooks.hpp"

#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/ObjC/Hook.hpp"
#include "Product/Names.hpp"
#include "Tweak/Clock/ClockLabels.hpp"
#include "Tweak/Clock/DateLineIcon.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/State.hpp"
#include "Tweak/TemplateImage.hpp"

namespace LYR {

namespace {

/// By its name as long as systems take a path for one.
UI::Image timerPicture()
{
    auto path = LYR_PREFIX LYR_RESOURCES "SS16/timer.png"_ns;
    auto named = UI::Image::imageNamed(path);
    return named ? named : UI::Image::imageWithContentsOfFile(path);
}

NS::MutableAttributedString timerIcon()
{
    auto line = NS::MutableAttributedString::withString(""_ns);
    line.appendAttributedString(dateLineIcon(inkedImage(templateThroughPNG(timerPicture()), _timerLabel->textColor())));
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

/// Both signs are tried on the same line, so a text that has both stands in it twice, and the colon decides.
void readSubtitle(const NS::String& text)
{
    auto line = timerIcon();
    detectTimer(text, "."_ns, line);
    detectTimer(text, ":"_ns, line);
}

}

void SBFLockScreenDateSubtitleView_didMoveToWindow(SB::FLockScreenDateSubtitleView self, SEL cmd)
{
    self.label().removeFromSuperview();
    stock<SBFLockScreenDateSubtitleView_didMoveToWindow>(self, cmd);
}

void SBFLockScreenDateSubtitleDateView_didMoveToWindow(SB::FLockScreenDateSubtitleDateView self, SEL cmd)
{
    self.alternateDateLabel().removeFromSuperview();
    stock<SBFLockScreenDateSubtitleDateView_didMoveToWindow>(self, cmd);
}

void SBFLockScreenDateSubtitleView_setString(SB::FLockScreenDateSubtitleView self, SEL cmd, NS::String text)
{
    stock<SBFLockScreenDateSubtitleView_setString>(self, cmd, text);
    readSubtitle(text);
}

/// Since system 16 the subtitle is drawn elsewhere, and the timer's text comes this way.
void SBFLockScreenDateViewController_updateTimerWithText(
    SB::FLockScreenDateViewController self, SEL cmd, NS::String text)
{
    stock<SBFLockScreenDateViewController_updateTimerWithText>(self, cmd, text);
    readSubtitle(text);
}

}
