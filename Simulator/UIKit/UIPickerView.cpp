// Asks data source and delegate, and lays the rows in sight around the middle.
#include "Simulator/UIKit/UIPickerView.hpp"

#include "Platform/UIKit/UILabel.hpp"
#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/ControlDrawing.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>

namespace Simulator {

namespace {

constexpr double defaultHeight = 216;
constexpr double defaultWidth = 320;
constexpr double defaultRowHeight = 32;
constexpr double sideMargin = 9;
constexpr double titleSize = 21;
constexpr double indicatorRadius = 8;
/// How far around the wheel its rows are seen.
constexpr double farthestAngle = 1.4;
/// Rows beside the selected one are paler, the farther the more.
constexpr double opacityBeside = 0.45;

}

void UIPickerView::initWithFrame(CGRect frame)
{
    if (frame.size == CGSize())
        frame.size = sizeThatFits({});
    UIView::initWithFrame(frame);
    properties.masksToBounds = true;
}

CGSize UIPickerView::sizeThatFits(CGSize) const
{
    return {defaultWidth, defaultHeight};
}

void UIPickerView::setDelegate(const ObjC::Object& object)
{
    m_delegateReference = object.raw();
    forget();
}

void UIPickerView::setDataSource(const ObjC::Object& object)
{
    m_dataSourceReference = object.raw();
    forget();
}

/// What was loaded is of no use any more; it is asked for again when it is needed.
void UIPickerView::forget()
{
    for (const auto& wheel : m_wheels) {
        for (const auto& [row, view] : std::exchange(wheel->views, {}))
            view.removeFromSuperview();
    }
    m_isLoaded = false;
    needsLayout = true;
}

void UIPickerView::reloadAllComponents()
{
    forget();
    loadIfNeeded();
}

void UIPickerView::reloadComponent(long)
{
    reloadAllComponents();
}

std::unique_ptr<PickerWheel> UIPickerView::makeWheel(long component)
{
    return std::make_unique<PickerWheel>(
        PickerWheel::Turns{[this] { needsLayout = true; }, [this, component](long row) { chosen(row, component); }});
}

void UIPickerView::loadIfNeeded()
{
    if (m_isLoaded || !m_dataSourceReference)
        return;
    m_isLoaded = true;
    const auto picker = self();
    const ObjC::Object source = dataSource();
    const long count = std::clamp(source.send<long, "numberOfComponentsInPickerView:">(picker), 0L, 100L);
    while (m_wheels.size() > static_cast<std::size_t>(count))
        m_wheels.pop_back();
    for (long i = 0; i < count; ++i) {
        if (i == static_cast<long>(m_wheels.size()))
            m_wheels.push_back(makeWheel(i));
        m_wheels[i]->setRowCount(source.send<long, "pickerView:numberOfRowsInComponent:">(picker, i));
    }
    needsLayout = true;
}

PickerWheel* UIPickerView::wheelAt(long component)
{
    loadIfNeeded();
    return component >= 0 && component < static_cast<long>(m_wheels.size()) ? m_wheels[component].get() : nullptr;
}

long UIPickerView::numberOfComponents()
{
    loadIfNeeded();
    return static_cast<long>(m_wheels.size());
}

long UIPickerView::numberOfRows(long component)
{
    const PickerWheel* wheel = wheelAt(component);
    return wheel ? wheel->rowCount() : 0;
}

long UIPickerView::selectedRow(long component)
{
    const PickerWheel* wheel = wheelAt(component);
    return wheel ? wheel->selectedRow() : -1;
}

void UIPickerView::selectRow(long row, long component, bool animated)
{
    if (PickerWheel* wheel = wheelAt(component))
        wheel->select(row, animated);
}

double UIPickerView::heightOfRow(long component) const
{
    const ObjC::Object asked = delegate();
    if (!asked.respondsTo<"pickerView:rowHeightForComponent:">())
        return defaultRowHeight;
    const double height = asked.send<double, "pickerView:rowHeightForComponent:">(self(), component);
    return height >= 1 && std::isfinite(height) ? height : defaultRowHeight;
}

Graphics::Rect UIPickerView::frameOf(long component) const
{
    const Graphics::Rect area = toGraphics(bounds()).insetBy(sideMargin, 0);
    const double width = area.width / std::max<std::size_t>(m_wheels.size(), 1);
    return {area.x + component * width, area.y, width, area.height};
}

CGSize UIPickerView::rowSize(long component)
{
    return wheelAt(component) ? CGSize{std::max(0.0, frameOf(component).width), heightOfRow(component)} : CGSize();
}

/// A view that the delegate makes, or a label with the title that it gives.
UI::View UIPickerView::makeRow(long row, long component) const
{
    const ObjC::Object asked = delegate();
    if (asked.respondsTo<"pickerView:viewForRow:forComponent:reusingView:">())
        return asked
            .send<UI::View, "pickerView:viewForRow:forComponent:reusingView:">(self(), row, component, UI::View())
            .as<UI::View>();
    const auto label = UI::Label::make();
    label.setFont(UI::Font::systemFontOfSize(titleSize));
    if (asked.respondsTo<"pickerView:titleForRow:forComponent:">())
        label.setText(asked.send<NS::String, "pickerView:titleForRow:forComponent:">(self(), row, component));
    label.sizeToFit();
    return label;
}

UI::View UIPickerView::viewForRow(long row, long component)
{
    const PickerWheel* wheel = wheelAt(component);
    if (!wheel)
        return {};
    const auto found = wheel->views.find(row);
    return found == wheel->views.end() ? UI::View() : found->second;
}

/// The rows in sight stand around the wheel, seen from the front: nearer to its edge they are lower and paler.
void UIPickerView::placeRows(long component)
{
    PickerWheel& wheel = *m_wheels[component];
    const Graphics::Rect area = frameOf(component);
    const double rowHeight = heightOfRow(component);
    const double radius = area.height / 2 / std::sin(farthestAngle);
    const double reach = farthestAngle * radius / rowHeight;
    const long first = std::max(0L, static_cast<long>(std::ceil(wheel.offset() - reach)));
    const long last = std::min(wheel.rowCount() - 1, static_cast<long>(std::floor(wheel.offset() + reach)));
    std::erase_if(wheel.views, [&](const auto& entry) {
        const bool isOut = entry.first < first || entry.first > last;
        if (isOut)
            entry.second.removeFromSuperview();
        return isOut;
    });
    for (long row = first; row <= last; ++row) {
        UI::View& view = wheel.views[row];
        if (!view) {
            view = makeRow(row, component);
            if (view.bounds().size == CGSize())
                view.setFrame({{}, {area.width, rowHeight}});
            UIView::addSubview(view);
        }
        const double angle = (row - wheel.offset()) * rowHeight / radius;
        const double distance = std::min(1.0, std::abs(row - wheel.offset()));
        view.setTransform(CGAffineTransformMakeScale(1, std::max(std::cos(angle), 0.01)));
        view.setCenter({area.center().x, area.center().y + radius * std::sin(angle)});
        view.setAlpha((1 - distance * (1 - opacityBeside)) * std::cos(angle));
    }
}

void UIPickerView::layoutSubviews()
{
    loadIfNeeded();
    for (long i = 0; i < static_cast<long>(m_wheels.size()); ++i)
        placeRows(i);
}

void UIPickerView::decorate(Graphics::Layer& layer) const
{
    if (!showsSelectionIndicator)
        return;
    for (long i = 0; i < static_cast<long>(m_wheels.size()); ++i) {
        const Graphics::Rect area = frameOf(i);
        const double height = heightOfRow(i);
        layer.children.push_back(makeBox({area.x, area.center().y - height / 2, area.width, height},
            systemColor("tertiarySystemFillColor"), indicatorRadius));
    }
}

void UIPickerView::describe(nlohmann::json& description) const
{
    description["rows"] = m_wheels.empty() ? 0 : m_wheels[0]->rowCount();
    description["selected"] = m_wheels.empty() ? -1 : m_wheels[0]->selectedRow();
}

static const StandInClass uiPickerView("UIPickerView", "UIView", [](Binder<UIPickerView>& binder) {
    using Picker = UIPickerView;
    binder.init<"initWithFrame:", &Picker::initWithFrame>()
        .def<"sizeThatFits:", &Picker::sizeThatFits>()
        .def<"intrinsicContentSize", &Picker::intrinsicContentSize>()
        .def<"layoutSubviews", &Picker::layoutSubviews>()
        .def<"hitTest:withEvent:", &Picker::hitTest>()
        .def<"delegate", &Picker::delegate>()
        .def<"setDelegate:", &Picker::setDelegate>()
        .def<"dataSource", &Picker::dataSource>()
        .def<"setDataSource:", &Picker::setDataSource>()
        .def<"reloadAllComponents", &Picker::reloadAllComponents>()
        .def<"reloadComponent:", &Picker::reloadComponent>()
        .def<"numberOfComponents", &Picker::numberOfComponents>()
        .def<"numberOfRowsInComponent:", &Picker::numberOfRows>()
        .def<"rowSizeForComponent:", &Picker::rowSize>()
        .def<"viewForRow:forComponent:", &Picker::viewForRow>()
        .def<"selectedRowInComponent:", &Picker::selectedRow>()
        .def<"selectRow:inComponent:animated:", &Picker::selectRow>()
        .property<"showsSelectionIndicator", "setShowsSelectionIndicator:", &Picker::showsSelectionIndicator>()
        .def<"touchesBegan:withEvent:", &Picker::touchesBegan>()
        .def<"touchesMoved:withEvent:", &Picker::touchesMoved>()
        .def<"touchesEnded:withEvent:", &Picker::touchesEnded>()
        .def<"touchesCancelled:withEvent:", &Picker::touchesCancelled>()
        .add();
});

}
