// One notification: a rounded pane with the app's icon and name, the time, a title and a text.
#pragma once

#include "Simulator/UIKit/UIView.hpp"

#include <string>

namespace Simulator {

struct Notification {
    std::string app;
    /// The white symbol on the app's icon, and the icon's colour.
    const char* symbol;
    CGFloat red, green, blue;
    std::string title;
    std::string text;
};

struct NCNotificationShortLookView : UIView {
    static constexpr double height = 78;

    void addParts() override;
    void layoutSubviews();
    void show(const Notification& notification);
    void describe(nlohmann::json& description) const override;

private:
    /// By a long press.
    bool m_isOpen = false;
    UI::View m_pane;
    UI::View m_icon;
    UI::View m_glyph;
    UI::View m_app;
    UI::View m_time;
    UI::View m_title;
    UI::View m_text;
};

}
