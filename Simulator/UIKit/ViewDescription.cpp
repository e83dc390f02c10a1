// The view object of the control protocol, and looking for views.
#include "Simulator/UIKit/ViewDescription.hpp"

#include "Simulator/Base/ColourText.hpp"
#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/UIKit/AttributedRuns.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UIImage.hpp"
#include "Simulator/UIKit/UIScreen.hpp"
#include "Simulator/UIKit/UIWindow.hpp"

#include <algorithm>
#include <cmath>

namespace Simulator {

namespace {

using Json = nlohmann::json;

Json describeReference(const ObjC::Object& color)
{
    return describeColor(resolvedColor(reinterpret_cast<CGColorRef>(color.raw())));
}

Json describeLayer(const LayerProperties& layer)
{
    return {
        {"cornerRadius", layer.cornerRadius},
        {"borderWidth", layer.borderWidth},
        {"borderColor", describeReference(layer.borderColor)},
        {"shadowOpacity", layer.shadowOpacity},
        {"shadowColor", describeReference(layer.shadowColor)},
        {"shadowRadius", layer.shadowRadius},
        {"shadowOffset", {layer.shadowOffset.width, layer.shadowOffset.height}},
    };
}

Json describeTransform(const CGAffineTransform& transform)
{
    return {transform.a, transform.b, transform.c, transform.d, transform.tx, transform.ty};
}

}

Json describeRect(CGRect rect)
{
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

Json describeColor(const std::optional<Graphics::Color>& color)
{
    if (!color)
        return nullptr;
    return textOfColour({color->r, color->g, color->b, color->a});
}

Json describeFont(const UI::Font& font)
{
    if (!font)
        return nullptr;
    return {{"name", plainUtf8(font.fontName())}, {"size", font.pointSize()}};
}

Json describeImage(const UI::Image& image)
{
    const UIImage* picture = imageStandIn(image);
    if (!picture)
        return nullptr;
    const CGSize size = picture->size();
    return {{"path", picture->path.empty() ? Json() : Json(picture->path)}, {"size", {size.width, size.height}},
        {"template", picture->isTemplate()}};
}

bool isOnScreen(const UIView& view)
{
    if (!view.windowReference())
        return false;
    for (const UIView* shown = &view; shown; shown = shown->parent) {
        if (shown->isHidden() || shown->alpha() <= 0)
            return false;
    }
    const Graphics::Rect place = view.transformToRoot().apply(toGraphics(view.bounds()));
    const CGSize screen = screenSettings().size;
    return !place.isEmpty() && place.x < screen.width && place.y < screen.height && place.right() > 0
        && place.bottom() > 0;
}

Json describeView(UIView& view, bool withChildren)
{
    Json description = {
        {"class", view.className()},
        {"id", view.accessibilityIdentifier ? Json(plainUtf8(view.accessibilityIdentifier)) : Json()},
        {"frame", describeRect(view.frame())},
        {"bounds", describeRect(view.bounds())},
        {"hidden", view.isHidden()},
        {"alpha", view.alpha()},
        {"onScreen", isOnScreen(view)},
        {"transform", describeTransform(view.transform())},
        {"background", describeColor(resolvedColor(view.backgroundColor()))},
        {"tint", describeColor(resolvedColor(view.tintColor()))},
        {"layer", describeLayer(view.properties)},
    };
    view.describe(description);
    if (withChildren) {
        description["children"] = Json::array();
        for (const UI::View& child : view.children)
            description["children"].push_back(describeView(standIn<UIView>(child.raw()), true));
    }
    return description;
}

UIView* findView(UIView& root, std::string_view identifier)
{
    if (root.accessibilityIdentifier && plainUtf8(root.accessibilityIdentifier) == identifier)
        return &root;
    for (const UI::View& child : root.children) {
        if (UIView* found = findView(standIn<UIView>(child.raw()), identifier))
            return found;
    }
    return nullptr;
}

}
