// Views as the control protocol tells of them.
#pragma once

#include "Platform/UIKit/UIFont.hpp"
#include "Platform/UIKit/UIImage.hpp"
#include "Simulator/UIKit/UIView.hpp"

#include <nlohmann/json.hpp>

#include <string_view>

namespace Simulator {

/// The view as a protocol object; with its subviews under `children`, back to front, if asked for.
nlohmann::json describeView(UIView& view, bool withChildren);
/// The first view of that accessibility identifier, front ones last; null if there is none.
UIView* findView(UIView& root, std::string_view identifier);
/// Whether anything of the view can be seen: in a window, nothing on the way up hidden or transparent, within the
/// screen.
bool isOnScreen(const UIView& view);

/// The pieces that kinds of views describe themselves with.
nlohmann::json describeRect(CGRect rect);
nlohmann::json describeFont(const UI::Font& font);
/// `{"path", "size", "template"}`, or null for nil.
nlohmann::json describeImage(const UI::Image& image);
/// `"#RRGGBBAA"`, or null for nil.
nlohmann::json describeColor(const std::optional<Graphics::Color>& color);

}
