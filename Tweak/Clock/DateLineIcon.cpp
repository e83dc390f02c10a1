// Reads an icon by its name and sizes it for the line.
#include "Tweak/Clock/DateLineIcon.hpp"

#include "Tweak/Settings.hpp"
#include "Tweak/State.hpp"

#include <cmath>

namespace LYR {

NS::AttributedString dateLineIcon(const UI::Image& image)
{
    if (!image)
        return NS::AttributedString::withString(""_ns);
    CGFloat side = 1.5 * _sizeDateLabel.intValue();
    // The halving is done in single precision, and whole points keep the icon's edges sharp.
    CGFloat y = std::trunc(static_cast<float>(_dateLabel->font().capHeight() - side) / 2.0f);
    auto attachment = NS::TextAttachment::make();
    attachment.setBounds(CGRectMake(0, y, side, side));
    attachment.setImage(image);
    return NS::AttributedString::attributedStringWithAttachment(attachment);
}

}
