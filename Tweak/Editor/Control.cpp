// Makes, places, shows and hides what the rows describe.
#include "Tweak/Editor/Control.hpp"

namespace LYR {

static UI::ControlEvents eventOf(const UI::View& control)
{
    return control.is<UI::Button>() ? UI::ControlEvents::touchUpInside : UI::ControlEvents::valueChanged;
}

void build(std::span<const Control> controls, const UI::View& parent, const CS::CoverSheetViewController& owner)
{
    for (const Control& row : controls) {
        auto view = row.make();
        if (row.action)
            view.as<UI::Control>().addTarget(owner, row.action.selector(), eventOf(view));
        if (auto wheel = view.as<UI::PickerView>()) {
            wheel.setDelegate(owner);
            wheel.setDataSource(owner);
        }
        parent.addSubview(view);
        view.setAccessibilityIdentifier(NS::String::fromUTF8(row.slot.name));
        *row.slot.variable = view.leak();
    }
}

void place(std::span<const Control> controls, const Slot& slot, CGFloat top)
{
    for (const Control& row : controls) {
        CGRect frame = frameOf(row.placing, slot);
        frame.origin.y += top;
        row.slot.view().setFrame(frame);
    }
}

void redirect(std::span<const Control> controls, const CS::CoverSheetViewController& from,
    const CS::CoverSheetViewController& to)
{
    for (const Control& row : controls) {
        auto view = row.slot.view();
        if (row.action) {
            auto control = view.as<UI::Control>();
            control.removeTarget(from, row.action.selector(), eventOf(view));
            control.addTarget(to, row.action.selector(), eventOf(view));
        }
        if (auto wheel = view.as<UI::PickerView>()) {
            wheel.setDelegate(to);
            wheel.setDataSource(to);
        }
    }
}

void setHidden(std::span<const Control> controls, bool hidden)
{
    for (const Control& row : controls)
        row.slot.view().setHidden(hidden);
}

UI::Button makeButton(const char* title, const char* symbol, CGFloat radius)
{
    constexpr CGFloat titleSize = 16;
    auto button = UI::Button::buttonWithType(UI::ButtonType::system);
    if (title)
        button.setTitle(NS::String::fromUTF8(title));
    if (symbol)
        button.setImage(UI::Image::systemImageNamed(NS::String::fromUTF8(symbol)));
    button.titleLabel().setFont(UI::Font::systemFontOfSize(titleSize));
    button.layer().setCornerRadius(radius);
    return button;
}

UI::Label makeLabel(const char* text, CGFloat fontSize, UI::TextAlignment alignment, long lines)
{
    auto label = UI::Label::make();
    label.setText(NS::String::fromUTF8(text));
    label.setFont(UI::Font::systemFontOfSize(fontSize));
    label.setTextColor(UI::Color::labelColor());
    label.setTextAlignment(alignment);
    label.setNumberOfLines(lines);
    label.setAdjustsFontSizeToFitWidth(true);
    return label;
}

UI::Slider makeSlider(double minimum, double maximum, double value, const char* symbol)
{
    auto slider = UI::Slider::make();
    slider.setMinimumValue(static_cast<float>(minimum));
    slider.setMaximumValue(static_cast<float>(maximum));
    slider.setValue(static_cast<float>(value));
    if (!symbol)
        return slider;
    auto image = UI::Image::systemImageNamed(NS::String::fromUTF8(symbol));
    slider.setMinimumValueImage(image);
    slider.setMaximumValueImage(image);
    slider.setTintColor(UI::Color::systemGrayColor());
    return slider;
}

UI::View makePicture(const char* symbol)
{
    auto view = UI::ImageView::make();
    view.setImage(UI::Image::systemImageNamed(NS::String::fromUTF8(symbol)));
    view.setContentMode(UI::ViewContentMode::scaleAspectFit);
    view.setTintColor(UI::Color::labelColor());
    return view;
}

UI::View makeWheel()
{
    auto wheel = UI::PickerView::make();
    wheel.setShowsSelectionIndicator(true);
    return wheel;
}

UI::Label makeWheelRow()
{
    auto label = UI::Label::make();
    label.setBackgroundColor(UI::Color::clearColor());
    label.setTextColor(UI::Color::labelColor());
    label.setTextAlignment(UI::TextAlignment::center);
    return label;
}

}
