// The stock clock: time label, and the subtitle below it with the date or what stands in its place.
#pragma once

#include "Platform/Foundation/NSDate.hpp"
#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"
#include "Platform/UIKit/UILabel.hpp"
#include "Simulator/UIKit/UIView.hpp"

#include <optional>
#include <string>

namespace Simulator {

/// Its label is in the instance variable `_label`.
struct SBFLockScreenDateSubtitleView : UIView {
    void addParts() override;
    void describe(nlohmann::json& description) const override;
    void layoutSubviews();
    NS::String string() const;
    void setString(const NS::String& string);
};

/// Has room for the date in another calendar, in `_alternateDateLabel`.
struct SBFLockScreenDateSubtitleDateView : SBFLockScreenDateSubtitleView {
    void addParts() override;
    void layoutSubviews();
};

/// The dial beside a running timer's text.
struct SBLockScreenTimerDialView : UIView {
    void initWithFrame(CGRect frame);
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
    /// Fades the two labels, not the view.
    void setContentAlpha(double alpha, bool subtitleVisible);
    void setTimeAlpha(double time, double subtitle);
    double contentAlpha() const { return m_timeAlpha; }

    UI::View subtitleView;
    UI::View timerDial;
    NS::Date date;

private:
    void addProminentDisplay();

    std::optional<std::string> m_customSubtitle;
    double m_timeAlpha = 1;
    /// What draws the time since system 16; nil before.
    UI::Label m_prominentTime;
};

}
