// The stock clock: time label, and the subtitle below it with the date or what stands in its place.
#pragma once

#include "Platform/Foundation/NSDate.hpp"
#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"
#include "Simulator/UIKit/UIView.hpp"

#include <optional>
#include <string>

namespace Simulator {

/// Its label is in the instance variable `_label`.
struct SBFLockScreenDateSubtitleView : UIView {
    void initWithFrame(CGRect frame);
    void describe(nlohmann::json& description) const override;
    void layoutSubviews();
    void didMoveToWindow() { }
    NS::String string() const;
    void setString(const NS::String& string);
};

/// Has room for the date in another calendar, in `_alternateDateLabel`.
struct SBFLockScreenDateSubtitleDateView : SBFLockScreenDateSubtitleView {
    void initWithFrame(CGRect frame);
    void layoutSubviews();
    void didMoveToWindow();
};

/// The dial beside a running timer's text.
struct SBLockScreenTimerDialView : UIView {
    void initWithFrame(CGRect frame);
    void didMoveToWindow() { }
};

struct SBFLockScreenDateView : UIView {
    void initWithFrame(CGRect frame);
    void layoutSubviews();
    void setDate(const NS::Date& moment);
    /// Writes time and date into the stock labels.
    void updateLabels();
    /// What stands in the place of the date; the date again for nothing.
    void setCustomSubtitle(std::optional<std::string> text);
    void setTimerDialShown(bool shown);

    UI::View subtitleView;
    UI::View timerDial;
    NS::Date date;

private:
    std::optional<std::string> m_customSubtitle;
};

}
