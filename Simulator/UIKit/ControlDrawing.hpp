// The shapes that controls are drawn from.
#pragma once

#include "Platform/UIKit/UIFont.hpp"
#include "Platform/UIKit/UIImage.hpp"
#include "Simulator/Graphics/Layer.hpp"

namespace Simulator {

/// A named colour of the system as it is drawn now.
Graphics::Color systemColor(const char* selectorName);

Graphics::Layer makeBox(const Graphics::Rect& frame, const Graphics::Color& color, double cornerRadius = 0);
Graphics::Layer makeDisc(Graphics::Point center, double diameter, const Graphics::Color& color);
/// The soft shadow under what seems to lie above the rest.
Graphics::Shadow softShadow(double radius = 3, double height = 2);
/// A picture in the middle of the frame in its own size, or smaller if it would not fit; a template in that colour.
Graphics::Layer makePicture(const Graphics::Rect& frame, const UI::Image& image, const Graphics::Color& tint);
/// One line of text in the middle of the frame.
Graphics::Layer makeText(
    const Graphics::Rect& frame, const std::string& text, const UI::Font& font, const Graphics::Color& color);
/// As wide and high as such a line is.
Graphics::Size measureText(const std::string& text, const UI::Font& font);
/// Whether such a line has room.
bool textFits(const std::string& text, const UI::Font& font, const Graphics::Rect& frame);

}
