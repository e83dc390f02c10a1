// Picture views.
#include "Simulator/UIKit/UIImageView.hpp"

#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UIImage.hpp"
#include "Simulator/UIKit/ViewDescription.hpp"

namespace Simulator {

namespace {

Graphics::ContentMode contentModeOf(long mode)
{
    switch (mode) {
    case 0:
        return Graphics::ContentMode::scaleToFill;
    case 1:
        return Graphics::ContentMode::aspectFit;
    case 2:
        return Graphics::ContentMode::aspectFill;
    default:
        return Graphics::ContentMode::center;
    }
}

}

void UIImageView::initWithFrame(CGRect frame)
{
    UIView::initWithFrame(frame);
    userInteractionEnabled = false;
}

void UIImageView::initWithImage(const UI::Image& picture)
{
    ObjC::sendMessage<id>(object(), ObjC::selector<"initWithFrame:">(), CGRect{{}, picture.size()});
    setImage(picture);
}

void UIImageView::setImage(const UI::Image& picture)
{
    image = imageStandIn(picture) ? picture : UI::Image();
}

CGSize UIImageView::intrinsicContentSize() const
{
    return image ? image.size() : CGSize{-1, -1};
}

Graphics::LayerContent UIImageView::layerContent() const
{
    const UIImage* picture = imageStandIn(image);
    if (!picture)
        return {};
    Graphics::ImageContent content{
        picture->image, contentModeOf(contentMode), picture->isSymbol() ? 1 : picture->scale, {}};
    if (picture->isTemplate())
        content.tint = resolvedColor(tintColor());
    return content;
}

void UIImageView::describe(nlohmann::json& description) const
{
    description["image"] = describeImage(image);
}

static const StandInClass uiImageView("UIImageView", "UIView", [](Binder<UIImageView>& binder) {
    binder.init<"initWithFrame:", &UIImageView::initWithFrame>()
        .init<"initWithImage:", &UIImageView::initWithImage>()
        .def<"sizeThatFits:", &UIImageView::sizeThatFits>()
        .def<"intrinsicContentSize", &UIImageView::intrinsicContentSize>()
        .readonly<"image", &UIImageView::image>()
        .def<"setImage:", &UIImageView::setImage>()
        .add();
});

}
