// What the control protocol tells of a label.
#include "Simulator/CoreGraphics/Fonts.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/UIKit/AttributedRuns.hpp"
#include "Simulator/UIKit/NSTextAttachment.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UIFont.hpp"
#include "Simulator/UIKit/UIImage.hpp"
#include "Simulator/UIKit/UILabel.hpp"
#include "Simulator/UIKit/UIScreen.hpp"
#include "Simulator/UIKit/ViewDescription.hpp"

namespace Simulator {

namespace {

nlohmann::json describeRun(const AttributedRun& run)
{
    const auto* attachment = standInOrNull<NSTextAttachment>(run.attribute(attachmentAttribute));
    if (!attachment)
        return {{"text", run.string}};
    const UIImage* picture = imageStandIn(attachment->image);
    nlohmann::json path;
    if (picture && !picture->path.empty())
        path = picture->path;
    return {{"image", path}, {"template", picture && picture->isTemplate()},
        {"bounds", describeRect(attachment->effectiveBounds())}};
}

/// Natural text starts at the left.
long describeAlignment(long alignment)
{
    return alignment == static_cast<long>(UI::TextAlignment::natural) ? 0 : alignment;
}

}

void UILabel::describe(nlohmann::json& description) const
{
    const NS::String characters = text();
    description["text"] = characters ? nlohmann::json(plainUtf8(characters)) : nlohmann::json();
    description["runs"] = nlohmann::json::array();
    for (const AttributedRun& run : runsOf(attributedText()))
        description["runs"].push_back(describeRun(run));
    description["font"] = describeFont(font());
    description["textColor"] = describeColor(resolvedColor(textColor()));
    description["alignment"] = describeAlignment(textAlignment);
    description["lines"] = numberOfLines;
    const CGSize size = bounds().size;
    description["truncated"]
        = !Graphics::fits(fontCatalogue(), graphicsText(), {size.width, size.height}, screenSettings().scale);
}

}
