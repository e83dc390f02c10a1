// Segments: inserted, removed, drawn and chosen by a finger.
#include "Simulator/UIKit/UISegmentedControl.hpp"

#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Foundation/Exceptions.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/AttributedRuns.hpp"
#include "Simulator/UIKit/ControlDrawing.hpp"
#include "Simulator/UIKit/NSTextAttachment.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UIFont.hpp"
#include "Simulator/UIKit/UIImage.hpp"
#include "Simulator/UIKit/UITouch.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <numeric>

namespace Simulator {

namespace {

constexpr double height = 32;
constexpr double cornerRadius = 8.5;
constexpr double inset = 2;
constexpr double margin = 10;
constexpr double titleSize = 13;
constexpr double pressedOpacity = 0.3;
constexpr auto noSegment = UI::SegmentedControl::noSegment;
constexpr auto normalState = static_cast<unsigned long>(UI::ControlState::normal);
constexpr auto selectedState = static_cast<unsigned long>(UI::ControlState::selected);

}

void UISegmentedControl::initWithItems(const NS::Array& items)
{
    for (unsigned long i = 0; i < items.count(); ++i) {
        const auto item = items.at<NS::Object>(i);
        const auto title = item.as<NS::String>();
        if (title || imageStandIn(item))
            insert({title, title ? UI::Image() : UI::Image(item.raw())}, m_segments.size());
    }
    ObjC::sendMessage<id>(object(), ObjC::selector<"initWithFrame:">(), CGRect{{}, sizeThatFits({})});
}

void UISegmentedControl::insert(Segment segment, unsigned long index)
{
    const auto place = static_cast<long>(std::min<std::size_t>(index, m_segments.size()));
    m_segments.insert(m_segments.begin() + place, std::move(segment));
    if (selectedSegmentIndex >= place)
        ++selectedSegmentIndex;
}

void UISegmentedControl::insertSegmentWithTitle(const NS::String& title, unsigned long index, bool)
{
    insert({title.as<NS::String>(), {}}, index);
}

void UISegmentedControl::insertSegmentWithImage(const UI::Image& image, unsigned long index, bool)
{
    insert({{}, imageStandIn(image) ? image : UI::Image()}, index);
}

/// An index beyond the end takes the last one.
void UISegmentedControl::removeSegment(unsigned long index, bool)
{
    if (m_segments.empty())
        return;
    const auto place = static_cast<long>(std::min<std::size_t>(index, m_segments.size() - 1));
    m_segments.erase(m_segments.begin() + place);
    if (selectedSegmentIndex == place)
        selectedSegmentIndex = noSegment;
    else if (selectedSegmentIndex > place)
        --selectedSegmentIndex;
}

void UISegmentedControl::removeAllSegments()
{
    m_segments.clear();
    selectedSegmentIndex = noSegment;
}

NS::String UISegmentedControl::titleForSegment(unsigned long index) const
{
    return index < m_segments.size() ? m_segments[index].title : NS::String();
}

void UISegmentedControl::setTitleForSegment(const NS::String& title, unsigned long index)
{
    if (index < m_segments.size())
        m_segments[index] = {title.as<NS::String>(), {}};
}

UI::Image UISegmentedControl::imageForSegment(unsigned long index) const
{
    return index < m_segments.size() ? m_segments[index].image : UI::Image();
}

void UISegmentedControl::setImageForSegment(const UI::Image& image, unsigned long index)
{
    if (index < m_segments.size())
        m_segments[index] = {{}, imageStandIn(image) ? image : UI::Image()};
}

void UISegmentedControl::setSelectedSegmentIndex(long index)
{
    if (index < noSegment || index >= static_cast<long>(m_segments.size()))
        raiseException("NSRangeException",
            "-[UISegmentedControl setSelectedSegmentIndex:]: there is no segment " + std::to_string(index));
    selectedSegmentIndex = index;
}

NS::Dictionary UISegmentedControl::titleTextAttributes(unsigned long state) const
{
    const auto found = m_attributes.find(state);
    return found == m_attributes.end() ? NS::Dictionary() : found->second;
}

void UISegmentedControl::setTitleTextAttributes(const NS::Dictionary& wanted, unsigned long state)
{
    m_attributes[state] = wanted.as<NS::Dictionary>();
}

UI::Font UISegmentedControl::fontOf(bool isSelected) const
{
    for (unsigned long state : {isSelected ? selectedState : normalState, normalState}) {
        const auto font = titleTextAttributes(state).objectForKey<UI::Font>(NS::String::fromUTF8(fontAttribute));
        if (font)
            return font;
    }
    return isSelected ? UI::Font::boldSystemFontOfSize(titleSize) : UI::Font::systemFontOfSize(titleSize);
}

/// What the segments ask for: each for itself, or all for as much as the widest.
std::vector<double> UISegmentedControl::naturalWidths() const
{
    std::vector<double> widths;
    for (const Segment& segment : m_segments) {
        const double width
            = segment.image ? segment.image.size().width : measureText(plainUtf8(segment.title), fontOf(true)).width;
        widths.push_back(width + 2 * margin);
    }
    if (!apportionsSegmentWidthsByContent && !widths.empty())
        std::fill(widths.begin(), widths.end(), *std::max_element(widths.begin(), widths.end()));
    return widths;
}

CGSize UISegmentedControl::sizeThatFits(CGSize) const
{
    const std::vector<double> widths = naturalWidths();
    return {std::accumulate(widths.begin(), widths.end(), 0.0), height};
}

/// The segments share the whole width in proportion to what they ask for.
Graphics::Rect UISegmentedControl::frameOf(std::size_t index) const
{
    const Graphics::Rect area = toGraphics(bounds());
    const std::vector<double> widths = naturalWidths();
    const double scale = area.width / std::accumulate(widths.begin(), widths.end(), 0.0);
    const double before = std::accumulate(widths.begin(), widths.begin() + index, 0.0);
    return {area.x + before * scale, area.y, widths[index] * scale, area.height};
}

long UISegmentedControl::indexUnder(const NS::Object& touch) const
{
    const CGPoint point = standIn<UITouch>(touch.raw()).locationInView(self<UI::View>());
    const CGRect area = bounds();
    if (m_segments.empty() || !(area.size.width > 0))
        return noSegment;
    for (std::size_t i = 0; i + 1 < m_segments.size(); ++i) {
        const Graphics::Rect frame = frameOf(i);
        if (point.x < frame.x + frame.width)
            return static_cast<long>(i);
    }
    return static_cast<long>(m_segments.size()) - 1;
}

bool UISegmentedControl::beginTracking(const NS::Object& touch, const NS::Object&)
{
    m_pressedIndex = indexUnder(touch);
    return true;
}

bool UISegmentedControl::continueTracking(const NS::Object& touch, const NS::Object&)
{
    m_pressedIndex = touchInside ? indexUnder(touch) : noSegment;
    return true;
}

/// The choice is made where the finger is lifted; the same one again is no change.
void UISegmentedControl::endTracking(const NS::Object& touch, const NS::Object&)
{
    m_pressedIndex = noSegment;
    const long index = indexUnder(touch);
    if (!touchInside || index == selectedSegmentIndex || index == noSegment)
        return;
    selectedSegmentIndex = index;
    send(Events::valueChanged);
}

void UISegmentedControl::cancelTracking(const NS::Object&)
{
    m_pressedIndex = noSegment;
}

Graphics::Layer UISegmentedControl::contentOf(std::size_t index) const
{
    const Segment& segment = m_segments[index];
    const bool isSelected = static_cast<long>(index) == selectedSegmentIndex;
    const Graphics::Rect area = frameOf(index).insetBy(inset, inset);
    Graphics::Color ink = systemColor("labelColor");
    for (unsigned long state : {normalState, isSelected ? selectedState : normalState}) {
        const auto color = titleTextAttributes(state).objectForKey<UI::Color>(NS::String::fromUTF8(colorAttribute));
        ink = resolvedColor(color).value_or(ink);
    }
    Graphics::Layer layer = segment.image ? makePicture(area, segment.image, ink)
                                          : makeText(area, plainUtf8(segment.title), fontOf(isSelected), ink);
    if (static_cast<long>(index) == m_pressedIndex && !isSelected)
        layer.opacity = pressedOpacity;
    return layer;
}

bool UISegmentedControl::isTruncated(std::size_t index) const
{
    const bool isSelected = static_cast<long>(index) == selectedSegmentIndex;
    return !textFits(plainUtf8(m_segments[index].title), fontOf(isSelected), frameOf(index).insetBy(inset, inset));
}

/// Between two segments of which neither is the selected one.
bool UISegmentedControl::hasDividerAfter(std::size_t index) const
{
    const auto before = static_cast<long>(index);
    return index + 1 < m_segments.size() && before != selectedSegmentIndex && before + 1 != selectedSegmentIndex;
}

void UISegmentedControl::decorate(Graphics::Layer& layer) const
{
    UIControl::decorate(layer);
    layer.children.push_back(makeBox(toGraphics(bounds()), systemColor("tertiarySystemFillColor"), cornerRadius));
    if (selectedSegmentIndex != noSegment) {
        const bool isDark = DeviceState::shared().style == InterfaceStyle::dark;
        const Graphics::Color pill = isDark ? systemColor("systemGray2Color") : Graphics::Color{1, 1, 1, 1};
        const Graphics::Rect area = frameOf(selectedSegmentIndex).insetBy(inset, inset);
        Graphics::Layer box = makeBox(area, resolvedColor(selectedSegmentTint).value_or(pill), cornerRadius - inset);
        box.shadow = softShadow(4, 3);
        layer.children.push_back(std::move(box));
    }
    for (std::size_t i = 0; i < m_segments.size(); ++i) {
        layer.children.push_back(contentOf(i));
        const Graphics::Rect area = frameOf(i);
        if (hasDividerAfter(i))
            layer.children.push_back(makeBox(
                {area.right() - 0.5, area.y + area.height / 4, 1, area.height / 2}, systemColor("separatorColor")));
    }
}

void UISegmentedControl::describe(nlohmann::json& description) const
{
    description["segments"] = nlohmann::json::array();
    bool truncated = false;
    for (std::size_t i = 0; i < m_segments.size(); ++i) {
        const UIImage* picture = imageStandIn(m_segments[i].image);
        description["segments"].push_back(picture ? picture->path : plainUtf8(m_segments[i].title));
        truncated = truncated || isTruncated(i);
    }
    description["truncated"] = truncated;
    description["selected"] = selectedSegmentIndex;
}

static const StandInClass uiSegmentedControl("UISegmentedControl", "UIControl", [](Binder<UISegmentedControl>& binder) {
    using Control = UISegmentedControl;
    binder.init<"initWithItems:", &Control::initWithItems>()
        .def<"sizeThatFits:", &Control::sizeThatFits>()
        .def<"intrinsicContentSize", &Control::intrinsicContentSize>()
        .def<"numberOfSegments", &Control::numberOfSegments>()
        .def<"insertSegmentWithTitle:atIndex:animated:", &Control::insertSegmentWithTitle>()
        .def<"insertSegmentWithImage:atIndex:animated:", &Control::insertSegmentWithImage>()
        .def<"removeSegmentAtIndex:animated:", &Control::removeSegment>()
        .def<"removeAllSegments", &Control::removeAllSegments>()
        .def<"titleForSegmentAtIndex:", &Control::titleForSegment>()
        .def<"setTitle:forSegmentAtIndex:", &Control::setTitleForSegment>()
        .def<"imageForSegmentAtIndex:", &Control::imageForSegment>()
        .def<"setImage:forSegmentAtIndex:", &Control::setImageForSegment>()
        .readonly<"selectedSegmentIndex", &Control::selectedSegmentIndex>()
        .def<"setSelectedSegmentIndex:", &Control::setSelectedSegmentIndex>()
        .property<"selectedSegmentTintColor", "setSelectedSegmentTintColor:", &Control::selectedSegmentTint>()
        .property<"apportionsSegmentWidthsByContent",
            "setApportionsSegmentWidthsByContent:", &Control::apportionsSegmentWidthsByContent>()
        .def<"titleTextAttributesForState:", &Control::titleTextAttributes>()
        .def<"setTitleTextAttributes:forState:", &Control::setTitleTextAttributes>()
        .def<"beginTrackingWithTouch:withEvent:", &Control::beginTracking>()
        .def<"continueTrackingWithTouch:withEvent:", &Control::continueTracking>()
        .def<"endTrackingWithTouch:withEvent:", &Control::endTracking>()
        .def<"cancelTrackingWithEvent:", &Control::cancelTracking>()
        .add();
});

}
