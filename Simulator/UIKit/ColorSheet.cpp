// The sheet's parts, and how grid and sliders keep each other current.
#include "Simulator/UIKit/ColorSheet.hpp"

#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/NamedColors.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UIColorWell.hpp"

namespace Simulator {

namespace {

constexpr double cornerRadius = 14;
constexpr double margin = 16;
constexpr double titleHeight = 54;
constexpr double cellHeight = 24;
constexpr double captionHeight = 26;
constexpr double sliderHeight = 34;
constexpr double bottomMargin = 40;
constexpr double closeSize = 30;
constexpr double greatestWidth = 420;

template <class T>
T makeOfClass(const char* className)
{
    const id allocated
        = ObjC::sendMessage<id>(reinterpret_cast<id>(objc_getClass(className)), ObjC::selector<"alloc">());
    return T::adopting(ObjC::sendMessage<id>(allocated, ObjC::selector<"init">()));
}

Graphics::Color drawn(double hue, double saturation, double brightness, double alpha)
{
    return resolvedColor(UI::Color::colorWithHue(hue, saturation, brightness, alpha)).value_or(Graphics::Color());
}

void showTrack(const UI::Slider& slider, double value, std::vector<Graphics::Color> colors)
{
    slider.setValue(static_cast<float>(value));
    standIn<UIColorSlider>(slider.raw()).trackColors = std::move(colors);
}

}

UI::View makeColorSheet(UIColorWell& well)
{
    const auto sheet = makeOfClass<UI::View>("UIColorSheetView");
    standIn<UIColorSheetView>(sheet.raw()).build(well);
    return sheet;
}

void UIColorSheetView::build(UIColorWell& well)
{
    m_colorWell = &well;
    const auto view = self<UI::View>();
    view.setAccessibilityIdentifier("system.colourSheet"_ns);
    m_pane = UI::View::make();
    m_pane.setBackgroundColor(namedColor("secondarySystemBackgroundColor"));
    m_pane.layer().setCornerRadius(cornerRadius);
    view.addSubview(m_pane);
    m_titleLabel = UI::Label::make();
    m_titleLabel.setFont(UI::Font::boldSystemFontOfSize(17));
    m_titleLabel.setTextAlignment(UI::TextAlignment::center);
    m_titleLabel.setText(well.title ? well.title : "Colors"_ns);
    m_pane.addSubview(m_titleLabel);
    m_closeButton = UI::Button::buttonWithType(UI::ButtonType::system);
    m_closeButton.setImage(UI::Image::systemImageNamed("xmark.circle.fill"_ns));
    m_closeButton.setTintColor(UI::Color::systemGrayColor());
    m_closeButton.setAccessibilityIdentifier("system.colourSheet.close"_ns);
    m_closeButton.addTarget(view, ObjC::selector<"dismiss">(), UI::ControlEvents::touchUpInside);
    m_pane.addSubview(m_closeButton);
    m_grid = makeOfClass<UI::Control>("UIColorGridView");
    m_grid.setAccessibilityIdentifier("system.colourSheet.grid"_ns);
    m_grid.addTarget(view, ObjC::selector<"gridChanged:">(), UI::ControlEvents::valueChanged);
    m_pane.addSubview(m_grid);
    m_hueSlider = addSlider("system.colourSheet.hue"_ns, "HUE"_ns);
    m_brightnessSlider = addSlider("system.colourSheet.brightness"_ns, "BRIGHTNESS"_ns);
    if (well.supportsAlpha)
        m_opacitySlider = addSlider("system.colourSheet.opacity"_ns, "OPACITY"_ns);
    // Without a slider for it every colour that is chosen is opaque.
    well.selectedColor.getHue(&m_hue, &m_saturation, &m_brightness, well.supportsAlpha ? &m_opacity : nullptr);
    showColor();
}

UI::Slider UIColorSheetView::addSlider(const NS::String& identifier, const NS::String& caption)
{
    const auto label = UI::Label::make();
    label.setFont(UI::Font::boldSystemFontOfSize(13));
    label.setTextColor(namedColor("secondaryLabelColor"));
    label.setText(caption);
    m_captions.push_back(label);
    const auto slider = makeOfClass<UI::Slider>("UIColorSlider");
    slider.setAccessibilityIdentifier(identifier);
    slider.addTarget(self(), ObjC::selector<"sliderChanged:">(), UI::ControlEvents::valueChanged);
    m_pane.addSubview(label);
    m_pane.addSubview(slider);
    return slider;
}

void UIColorSheetView::layoutSubviews()
{
    const CGSize window = bounds().size;
    const double width = std::min(window.width, greatestWidth), inner = width - 2 * margin;
    const double gridHeight = cellHeight * UIColorGridView::rows;
    const double height
        = titleHeight + gridHeight + m_captions.size() * (captionHeight + sliderHeight) + margin + bottomMargin;
    // The lower corners lie beyond the screen's edge.
    m_pane.setFrame(CGRectMake((window.width - width) / 2, window.height - height, width, height + cornerRadius));
    m_titleLabel.setFrame(CGRectMake(margin + closeSize, 0, inner - 2 * closeSize, titleHeight));
    m_closeButton.setFrame(CGRectMake(width - margin - closeSize, (titleHeight - closeSize) / 2, closeSize, closeSize));
    m_grid.setFrame(CGRectMake(margin, titleHeight, inner, gridHeight));
    double y = titleHeight + gridHeight + margin / 2;
    const UI::Slider sliders[] = {m_hueSlider, m_brightnessSlider, m_opacitySlider};
    for (std::size_t i = 0; i < m_captions.size(); ++i) {
        m_captions[i].setFrame(CGRectMake(margin, y, inner, captionHeight));
        sliders[i].setFrame(CGRectMake(margin, y + captionHeight, inner, sliderHeight));
        y += captionHeight + sliderHeight;
    }
}

void UIColorSheetView::showColor()
{
    std::vector<Graphics::Color> hues;
    for (int i = 0; i <= 12; ++i)
        hues.push_back(drawn(i / 12.0, 0.9, 1, 1));
    showTrack(m_hueSlider, m_hue, std::move(hues));
    showTrack(m_brightnessSlider, m_brightness, {drawn(m_hue, m_saturation, 0, 1), drawn(m_hue, m_saturation, 1, 1)});
    if (m_opacitySlider)
        showTrack(m_opacitySlider, m_opacity,
            {drawn(m_hue, m_saturation, m_brightness, 0), drawn(m_hue, m_saturation, m_brightness, 1)});
}

void UIColorSheetView::tell()
{
    showColor();
    if (m_colorWell)
        m_colorWell->choose(UI::Color::colorWithHue(m_hue, m_saturation, m_brightness, m_opacity));
}

void UIColorSheetView::gridChanged(const UI::Control& changed)
{
    changed.send<UI::Color, "selectedColor">().getHue(&m_hue, &m_saturation, &m_brightness, nullptr);
    tell();
}

void UIColorSheetView::sliderChanged(const UI::Slider& slider)
{
    const CGFloat value = slider.value();
    if (slider == m_brightnessSlider)
        m_brightness = value;
    else if (slider == m_opacitySlider)
        m_opacity = value;
    else {
        m_hue = value;
        // A grey has every hue: without saturation nothing would change.
        m_saturation = m_saturation > 0 ? m_saturation : 1;
    }
    tell();
}

void UIColorSheetView::touchesEnded(const NS::Object&, const NS::Object&)
{
    dismiss();
}

void UIColorSheetView::dismiss()
{
    m_colorWell = nullptr;
    self<UI::View>().removeFromSuperview();
}

static const StandInClass uiColorSheetView("UIColorSheetView", "UIView", [](Binder<UIColorSheetView>& binder) {
    using Sheet = UIColorSheetView;
    binder.def<"layoutSubviews", &Sheet::layoutSubviews>()
        .def<"touchesEnded:withEvent:", &Sheet::touchesEnded>()
        .def<"gridChanged:", &Sheet::gridChanged>()
        .def<"sliderChanged:", &Sheet::sliderChanged>()
        .def<"dismiss", &Sheet::dismiss>()
        .add();
});

}
