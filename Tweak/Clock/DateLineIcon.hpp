// Icons in the date line, as tall as one and a half times its text.
#pragma once

#include "Platform/UIKit/NSTextAttachment.hpp"

namespace LYR {

/// The image as a piece of the date line; nothing without an image.
NS::AttributedString dateLineIcon(const UI::Image& image);

}
