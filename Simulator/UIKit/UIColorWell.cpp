// The well's look and its sheet.
#include "Simulator/UIKit/UIColorWell.hpp"

#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/AttributedRuns.hpp"
#include "Simulator/UIKit/ColorSheet.hpp"
#include "Simulator/UIKit/ControlDrawing.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UIWindow.hpp"
#include "Simulator/UIKit/ViewDescription.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Simulator {

namespace {

constexpr CGSize wellSize = {28, 28};
/// Of the rainbow ring and of the gap inside it, for each point of the well's size.
constexpr double ringWidth = 0.11;
constexpr double gapWidth = 0.06;
constexpr int ringSteps = 96;

}

UIColorWell::~UIColorWell()
{
    closeSheet();
}

CGSize UIColorWell::sizeThatFits(CGSize) const
{
    return wellSize;
}

void UIColorWell::setSelectedColor(const UI::Color& color)
{
    selectedColor = standInOrNull<UIColor>(color) ? color : UI::Color();
}

void UIColorWell::choose(const UI::Color& color)
{
    const auto kept = self<UI::ColorWell>();
    kept.setSelectedColor(color);
    send(Events::valueChanged);
}

void UIColorWell::endTracking(const NS::Object&, const NS::Object&)
{
    if (touchInside)
        openSheet();
}

void UIColorWell::openSheet()
{
    const UIWindow* window = windowReference();
    if (!window || m_sheet.superview())
        return;
    m_sheet = makeColorSheet(*this);
    m_sheet.setFrame(window->bounds());
    window->self<UI::View>().addSubview(m_sheet);
}

void UIColorWell::closeSheet()
{
    const UI::View closing = std::exchange(m_sheet, {});
    if (auto* open = standInOrNull<UIColorSheetView>(closing))
        open->dismiss();
}

/// A sheet without its well would choose for nobody.
void UIColorWell::didMoveToWindow()
{
    if (!windowReference())
        closeSheet();
}

void UIColorWell::decorate(Graphics::Layer& layer) const
{
    UIControl::decorate(layer);
    const Graphics::Rect area = toGraphics(bounds());
    const double size = std::min(area.width, area.height), width = size * ringWidth;
    const double radius = (size - width) / 2;
    const Graphics::Point middle = area.center();
    for (int i = 0; i < ringSteps; ++i) {
        const double share = static_cast<double>(i) / ringSteps, angle = 2 * std::numbers::pi * share;
        layer.children.push_back(makeDisc({middle.x + radius * std::sin(angle), middle.y - radius * std::cos(angle)},
            width, resolvedColor(UI::Color::colorWithHue(share, 0.85, 1, 1)).value_or(Graphics::Color())));
    }
    if (const auto color = resolvedColor(selectedColor))
        layer.children.push_back(makeDisc(middle, size * (1 - 2 * (ringWidth + gapWidth)), *color));
}

void UIColorWell::describe(nlohmann::json& description) const
{
    description["title"] = title ? nlohmann::json(plainUtf8(title)) : nlohmann::json();
    description["selected"] = describeColor(resolvedColor(selectedColor));
}

static const StandInClass uiColorWell("UIColorWell", "UIControl", [](Binder<UIColorWell>& binder) {
    using Well = UIColorWell;
    binder.def<"sizeThatFits:", &Well::sizeThatFits>()
        .def<"intrinsicContentSize", &Well::intrinsicContentSize>()
        .def<"didMoveToWindow", &Well::didMoveToWindow>()
        .def<"endTrackingWithTouch:withEvent:", &Well::endTracking>()
        .property<"title", "setTitle:", &Well::title>()
        .readonly<"selectedColor", &Well::selectedColor>()
        .def<"setSelectedColor:", &Well::setSelectedColor>()
        .property<"supportsAlpha", "setSupportsAlpha:", &Well::supportsAlpha>()
        .add();
});

}
