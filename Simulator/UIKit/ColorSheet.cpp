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
    colorWell = &well;
    const auto view = self<UI::View>();
    view.setAccessibilityIdentifier("system.colourSheet"_ns);
    pane = UI::View::make();
    pane.setBackgroundColor(namedColor("secondarySystemBackgroundColor"));
    pane.layer().setCornerRadius(cornerRadius);
    view.addSubview(pane);
    titleLabel = UI::Label::make();
    titleLabel.setFont(UI::Font::boldSystemFontOfSize(17));
    titleLabel.setTextAlignment(UI::TextAlignment::center);
    titleLabel.setText(well.title ? well.title : "Colors"_ns);
    pane.addSubview(titleLabel);
    closeButton = UI::Button::buttonWithType(UI::ButtonType::system);
    closeButton.setImage(UI::Image::systemImageNamed("xmark.circle.fill"_ns));
    closeButton.setTintColor(UI::Color::systemGrayColor());
    closeButton.setAccessibilityIdentifier("system.colourSheet.close"_ns);
    closeButton.addTarget(view, ObjC::selector<"dismiss">(), UI::ControlEvents::touchUpInside);
    pane.addSubview(closeButton);
    grid = makeOfClass<UI::Control>("UIColorGridView");
    grid.setAccessibilityIdentifier("system.colourSheet.grid"_ns);
    grid.addTarget(view, ObjC::selector<"gridChanged:">(), UI::ControlEvents::valueChanged);
    pane.addSubview(grid);
    hueSlider = addSlider("system.colourSheet.hue"_ns, "HUE"_ns);
    brightnessSlider = addSlider("system.colourSheet.brightness"_ns, "BRIGHTNESS"_ns);
    if (well.supportsAlpha)
        opacitySlider = addSlider("system.colourSheet.opacity"_ns, "OPACITY"_ns);
    // Without a slider for it every colour that is chosen is opaque.
    well.selectedColor.getHue(&hue, &saturation, &brightness, well.supportsAlpha ? &opacity : nullptr);
    showColor();
}

UI::Slider UIColorSheetView::addSlider(const NS::String& identifier, const NS::String& caption)
{
    const auto label = UI::Label::make();
    label.setFont(UI::Font::boldSystemFontOfSize(13));
    label.setTextColor(namedColor("secondaryLabelColor"));
    label.setText(caption);
    captions.push_back(label);
    const auto slider = makeOfClass<UI::Slider>("UIColorSlider");
    slider.setAccessibilityIdentifier(identifier);
    slider.addTarget(self(), ObjC::selector<"sliderChanged:">(), UI::ControlEvents::valueChanged);
    pane.addSubview(label);
    pane.addSubview(slider);
    return slider;
}

void UIColorSheetView::layoutSubviews()
{
    const CGSize window = bounds().size;
    const double width = std::min(window.width, greatestWidth), inner = width - 2 * margin;
    const double gridHeight = cellHeight * UIColorGridView::rows;
    const double height
        = titleHeight + gridHeight + captions.size() * (captionHeight + sliderHeight) + margin + bottomMargin;
    // The lower corners lie beyond the screen's edge.
    pane.setFrame(CGRectMake((window.width - width) / 2, window.height - height, width, height + cornerRadius));
    titleLabel.setFrame(CGRectMake(margin + closeSize, 0, inner - 2 * closeSize, titleHeight));
    closeButton.setFrame(CGRectMake(width - margin - closeSize, (titleHeight - closeSize) / 2, closeSize, closeSize));
    grid.setFrame(CGRectMake(margin, titleHeight, inner, gridHeight));
    double y = titleHeight + gridHeight + margin / 2;
    const UI::Slider sliders[] = {hueSlider, brightnessSlider, opacitySlider};
    for (std::size_t i = 0; i < captions.size(); ++i) {
        captions[i].setFrame(CGRectMake(margin, y, inner, captionHeight));
        sliders[i].setFrame(CGRectMake(margin, y + captionHeight, inner, sliderHeight));
        y += captionHeight + sliderHeight;
    }
}

void UIColorSheetView::showColor()
{
    std::vector<Graphics::Color> hues;
    for (int i = 0; i <= 12; ++i)
        hues.push_back(drawn(i / 12.0, 0.9, 1, 1));
    showTrack(hueSlider, hue, std::move(hues));
    showTrack(brightnessSlider, brightness, {drawn(hue, saturation, 0, 1), drawn(hue, saturation, 1, 1)});
    if (opacitySlider)
        showTrack(
            opacitySlider, opacity, {drawn(hue, saturation, brightness, 0), drawn(hue, saturation, brightness, 1)});
}

void UIColorSheetView::tell()
{
    showColor();
    if (colorWell)
        colorWell->choose(UI::Color::colorWithHue(hue, saturation, brightness, opacity));
}

void UIColorSheetView::gridChanged(const UI::Control& changed)
{
    changed.send<UI::Color, "selectedColor">().getHue(&hue, &saturation, &brightness, nullptr);
    tell();
}

void UIColorSheetView::sliderChanged(const UI::Slider& slider)
{
    const CGFloat value = slider.value();
    if (slider == brightnessSlider)
        brightness = value;
    else if (slider == opacitySlider)
        opacity = value;
    else {
        hue = value;
        // A grey has every hue: without saturation nothing would change.
        saturation = saturation > 0 ? saturation : 1;
    }
    tell();
}

void UIColorSheetView::touchesEnded(const NS::Object&, const NS::Object&)
{
    dismiss();
}

void UIColorSheetView::dismiss()
{
    colorWell = nullptr;
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
