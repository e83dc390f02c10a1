// The grid's colours, row by row, and the finger's way over them.
#include "Simulator/UIKit/ColorGrid.hpp"

#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/ControlDrawing.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UITouch.hpp"

#include <algorithm>

namespace Simulator {

namespace {

constexpr double gridRadius = 8;
constexpr double markWidth = 3;
/// The rows below the greys: full saturation up to here, full brightness from here on.
constexpr int brightestRow = 5;
/// Each cell reaches a little under its neighbours, so that no gap shows between pixels.
constexpr double overlap = 0.5;
constexpr double darkest = 0.3;
constexpr double palest = 0.2;

}

UI::Color UIColorGridView::colorAt(int row, int column)
{
    const double along = static_cast<double>(column);
    if (row == 0)
        return UI::Color::colorWithWhite(1 - along / (columns - 1), 1);
    const double hue = along / columns;
    if (row <= brightestRow) {
        const double brightness = darkest + (1 - darkest) * (row - 1) / (brightestRow - 1);
        return UI::Color::colorWithHue(hue, 1, brightness, 1);
    }
    const double saturation = 1 - (1 - palest) * (row - brightestRow) / (rows - 1 - brightestRow);
    return UI::Color::colorWithHue(hue, saturation, 1, 1);
}

UIColorGridView::Cell UIColorGridView::cellUnder(const NS::Object& touch) const
{
    const CGPoint point = standIn<UITouch>(touch.raw()).locationInView(self<UI::View>());
    const CGSize size = bounds().size;
    const auto index = [](double place, double length, int count) {
        return length > 0 ? static_cast<int>(std::clamp(place / length * count, 0.0, count - 1.0)) : 0;
    };
    return {index(point.y, size.height, rows), index(point.x, size.width, columns)};
}

void UIColorGridView::choose(Cell cell)
{
    if (m_selected == cell)
        return;
    m_selected = cell;
    selectedColor = colorAt(cell.row, cell.column);
    send(Events::valueChanged);
}

bool UIColorGridView::beginTracking(const NS::Object& touch, const NS::Object&)
{
    m_selected.reset();
    choose(cellUnder(touch));
    return true;
}

bool UIColorGridView::continueTracking(const NS::Object& touch, const NS::Object&)
{
    choose(cellUnder(touch));
    return true;
}

void UIColorGridView::decorate(Graphics::Layer& layer) const
{
    layer.cornerRadius = gridRadius;
    layer.clipsToBounds = true;
    const CGSize size = bounds().size;
    const double width = size.width / columns, height = size.height / rows;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            auto cell = makeBox({column * width, row * height, width + overlap, height + overlap},
                resolvedColor(colorAt(row, column)).value_or(Graphics::Color()));
            if (m_selected == Cell{row, column}) {
                cell.borderWidth = markWidth;
                cell.borderColor
                    = row == 0 && column < columns / 2 ? Graphics::Color{0, 0, 0, 1} : Graphics::Color{1, 1, 1, 1};
            }
            layer.children.push_back(std::move(cell));
        }
    }
}

/// The whole track is coloured; the thumb is a ring on it.
void UIColorSlider::decorate(Graphics::Layer& layer) const
{
    constexpr double trackHeight = 28;
    const Graphics::Rect area = toGraphics(bounds());
    auto rail = makeBox(
        {area.x, area.center().y - trackHeight / 2, area.width, trackHeight}, {0.5, 0.5, 0.5, 0.2}, trackHeight / 2);
    if (!trackColors.empty())
        rail.content = Graphics::Gradient{trackColors, {}, {0, 0.5}, {1, 0.5}};
    const Graphics::Rect knob = toGraphics(thumbRectForBounds(bounds(), trackRectForBounds(bounds()), value));
    auto ring = makeDisc(knob.center(), knob.width, {1, 1, 1, 0.15});
    ring.borderWidth = markWidth;
    ring.borderColor = {1, 1, 1, 1};
    ring.shadow = softShadow();
    layer.children.push_back(std::move(rail));
    layer.children.push_back(std::move(ring));
}

static const StandInClass uiColorGridView("UIColorGridView", "UIControl", [](Binder<UIColorGridView>& binder) {
    binder.readonly<"selectedColor", &UIColorGridView::selectedColor>()
        .def<"beginTrackingWithTouch:withEvent:", &UIColorGridView::beginTracking>()
        .def<"continueTrackingWithTouch:withEvent:", &UIColorGridView::continueTracking>()
        .add();
});

static const StandInClass uiColorSlider(
    "UIColorSlider", "UISlider", [](Binder<UIColorSlider>& binder) { binder.add(); });

}
