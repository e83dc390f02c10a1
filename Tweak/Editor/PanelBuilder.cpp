#include "Tweak/Editor/PanelBuilder.hpp"

#include "Platform/Foundation/InstallPrefix.hpp"
#include "Tweak/Editor/BatterySaverButtons.hpp"
#include "Tweak/Editor/EditState.hpp"
#include "Tweak/Editor/EditorViews.hpp"
#include "Tweak/Editor/OptionSegments.hpp"
#include "Tweak/Editor/Overlay.hpp"
#include "Tweak/Views.hpp"

namespace LYR {

namespace {

using UI::ControlEvents;

constexpr CGFloat panelRadius = 18;
constexpr CGFloat buttonTitleSize = 16;
constexpr CGFloat buttonRadius = 12;
constexpr CGFloat wellRadius = 19;
constexpr CGFloat stripRadius = 12;
/// Enough for the widest panel.
constexpr int checkerboardSquares = 96;

NS::String text(const char* characters)
{
    return NS::String::fromUTF8(characters);
}

struct ButtonRow {
    ObjC::Variable<UI::Button>* variable;
    const char* name;
    const char* title;
    const char* symbol;
    SEL (*action)();
    CGFloat radius;
    ObjC::Variable<UI::View>* parent;
};

template <ObjC::FixedString name>
SEL action()
{
    return ObjC::selector<name>();
}

// The buttons above the panel are put onto the cover sheet when the editor opens.
constexpr ButtonRow buttons[] = {
    {&_done, "_done", "Done", nullptr, action<"doneButton:">, buttonRadius, nullptr},
    {&_timeButton, "_timeButton", "Time", nullptr, action<"timePressButton:">, buttonRadius, nullptr},
    {&_dateButton, "_dateButton", "Date", nullptr, action<"datePressButton:">, buttonRadius, nullptr},
    {&_widgetButton, "_widgetButton", "Widget", nullptr, action<"widgetPressButton:">, buttonRadius, nullptr},
    {&_stepperButton, "_stepperButton", "Apply", nullptr, action<"stepperUpdate:">, 8, &_optionView},
    {&_colorWheel1, "_colorWheel1", nullptr, nullptr, action<"wellButton1:">, wellRadius, &_optionView},
    {&_colorWheel2, "_colorWheel2", nullptr, nullptr, action<"wellButton2:">, wellRadius, &_optionView},
    {&_colorWheel3, "_colorWheel3", nullptr, nullptr, action<"wellButton3:">, wellRadius, &_optionView},
    {&_colorWheel4, "_colorWheel4", nullptr, nullptr, action<"wellButton4:">, wellRadius, &_optionView},
    {&_colorWheel5, "_colorWheel5", nullptr, nullptr, action<"wellButton5:">, wellRadius, &_optionView},
    {&_showWell, "_showWell", nullptr, "eyedropper", action<"showWellButton:">, wellRadius, &_optionView},
    {&_alertOpen, "_alertOpen", nullptr, "info.circle", action<"showAlert:">, 0, &_optionView},
    {&_alertClose, "_alertClose", nullptr, "xmark.circle.fill", action<"closeAlert:">, 0, &_alertView},
    {&_openFolder, "_openFolder", "Open Filza", nullptr, action<"openFolderButton:">, buttonRadius, &_alertView},
};

void buildButton(const ButtonRow& row, const CS::CoverSheetViewController& controller)
{
    auto button = UI::Button::buttonWithType(UI::ButtonType::system);
    if (row.title)
        button.setTitle(text(row.title));
    if (row.symbol)
        button.setImage(UI::Image::systemImageNamed(text(row.symbol)));
    button.titleLabel().setFont(UI::Font::systemFontOfSize(buttonTitleSize));
    button.layer().setCornerRadius(row.radius);
    button.addTarget(controller, row.action(), ControlEvents::touchUpInside);
    if (row.parent)
        (*row.parent)->addSubview(button);
    keepView(*row.variable, button, text(row.name));
}

struct LabelRow {
    ObjC::Variable<UI::Label>* variable;
    const char* name;
    const char* text;
    CGFloat fontSize;
    UI::TextAlignment alignment;
    long lines;
    ObjC::Variable<UI::View>* parent;
};

using UI::TextAlignment;
constexpr LabelRow labels[] = {
    {&_stepperLabel, "_stepperLabel", "", 14, TextAlignment::left, 1, &_optionView},
    {&_stepperLabel2, "_stepperLabel2", "", 11, TextAlignment::left, 1, &_optionView},
    {&_alignLabel, "_alignLabel", "Alignment", 15, TextAlignment::left, 1, &_optionView},
    {&_sliderLabelX, "_sliderLabelX", "0", 15, TextAlignment::right, 1, &_optionView},
    {&_sliderLabelY, "_sliderLabelY", "0", 15, TextAlignment::right, 1, &_optionView},
    {&_alertLabel, "_alertLabel", "Custom fonts are put in " LYR_PREFIX "/Library/Application Support/LYRFont", 14,
        TextAlignment::left, 3, &_alertView},
    {&_alertLabel2, "_alertLabel2", "Adding a new font may need a respring.", 14, TextAlignment::left, 2, &_alertView},
    {&_alertLabel3, "_alertLabel3", "Open Filza button only works on CoverSheet or Notifications Center", 14,
        TextAlignment::left, 3, &_alertView},
};

void buildLabel(const LabelRow& row)
{
    auto label = UI::Label::make();
    label.setText(text(row.text));
    label.setFont(UI::Font::systemFontOfSize(row.fontSize));
    label.setTextColor(UI::Color::labelColor());
    label.setTextAlignment(row.alignment);
    label.setNumberOfLines(row.lines);
    label.setAdjustsFontSizeToFitWidth(true);
    (*row.parent)->addSubview(label);
    keepView(*row.variable, label, text(row.name));
}

struct SliderRow {
    ObjC::Variable<UI::Slider>* variable;
    const char* name;
    float minimum;
    float maximum;
    float value;
    const char* symbol;
    SEL (*action)();
};

constexpr SliderRow sliders[] = {
    {&_sliderX, "_sliderX", -100, 100, 0, "arrow.left.and.right", action<"sliderValueChangedX:">},
    {&_sliderY, "_sliderY", -200, 200, 0, "arrow.up.and.down", action<"sliderValueChangedY:">},
    {&_sliderAlpha, "_sliderAlpha", 0, 1, 0.8f, nullptr, action<"sliderValueChangedAlpha:">},
};

void buildSlider(const SliderRow& row, const CS::CoverSheetViewController& controller)
{
    auto slider = UI::Slider::make();
    slider.setMinimumValue(row.minimum);
    slider.setMaximumValue(row.maximum);
    slider.setValue(row.value);
    if (row.symbol) {
        auto symbol = UI::Image::systemImageNamed(text(row.symbol));
        slider.setMinimumValueImage(symbol);
        slider.setMaximumValueImage(symbol);
        slider.setTintColor(UI::Color::systemGrayColor());
    }
    slider.addTarget(controller, row.action(), ControlEvents::valueChanged);
    _optionView->addSubview(slider);
    keepView(*row.variable, slider, text(row.name));
}

void buildPanel()
{
    auto panel = UI::View::make();
    panel.layer().setCornerRadius(panelRadius);
    keepView(_optionView, panel, "_optionView"_ns);
}

/// Font, colour and position; the date has one more, and the widgets another first one.
void buildMainSegments(const CS::CoverSheetViewController& controller)
{
    auto control = UI::SegmentedControl::withItems(NS::Array::of("Font"_ns, "Color"_ns, "Position"_ns));
    control.setSelectedSegmentIndex(0);
    letSegmentsFit(control);
    control.addTarget(controller, action<"SegmentChangeViewValueChanged:">(), ControlEvents::valueChanged);
    _optionView->addSubview(control);
    keepView(_segmentedControl, control, "_segmentedControl"_ns);
    _initialSegmentCount = control.numberOfSegments();
}

void buildPicker(ObjC::Variable<UI::PickerView>& variable, const NS::String& name,
    const CS::CoverSheetViewController& controller)
{
    auto picker = UI::PickerView::make();
    keepView(variable, picker, name);
    picker.setDelegate(controller);
    picker.setDataSource(controller);
    picker.setShowsSelectionIndicator(true);
    _optionView->addSubview(picker);
}

void buildStepper(const CS::CoverSheetViewController& controller)
{
    auto stepper = UI::Stepper::make();
    stepper.setMinimumValue(1);
    stepper.setMaximumValue(150);
    stepper.setStepValue(1);
    stepper.addTarget(controller, action<"valueChange:">(), ControlEvents::valueChanged);
    _optionView->addSubview(stepper);
    keepView(_stepperView, stepper, "_stepperView"_ns);
}

void buildRoundedView(ObjC::Variable<UI::View>& variable, const NS::String& name, const UI::View& parent, CGFloat radius)
{
    auto view = UI::View::make();
    view.layer().setCornerRadius(radius);
    view.setClipsToBounds(true);
    parent.addSubview(view);
    keepView(variable, view, name);
}

/// A strip that runs from nothing to the current colour, on the pattern that stands for nothing.
void buildOpacityStrip()
{
    buildRoundedView(_alphaCheckBoard, "_alphaCheckBoard"_ns, _optionView, stripRadius);
    _alphaCheckBoard->setBackgroundColor(UI::Color::whiteColor());
    for (int i = 0; i < checkerboardSquares; ++i) {
        auto square = UI::View::make();
        square.setBackgroundColor(UI::Color::colorWithWhite(0.75, 1));
        _alphaCheckBoard->addSubview(square);
    }
    buildRoundedView(_alphaView, "_alphaView"_ns, _optionView, stripRadius);
    auto gradient = CA::GradientLayer::layer();
    gradient.setStartPoint({0, 0.5});
    gradient.setEndPoint({1, 0.5});
    gradient.setColorsOf(UI::Color::clearColor(), UI::Color::whiteColor());
    _alphaView->layer().addSublayer(gradient);
    _gradient = gradient;
}

void buildSlotNumber(ObjC::Variable<UI::ImageView>& variable, const NS::String& name, const NS::String& symbol)
{
    auto view = UI::ImageView::make();
    view.setImage(UI::Image::systemImageNamed(symbol));
    view.setContentMode(UI::ViewContentMode::scaleAspectFit);
    view.setTintColor(UI::Color::labelColor());
    _optionView->addSubview(view);
    keepView(variable, view, name);
}

void finishButtons()
{
    // The thumb moves over the strip itself.
    _sliderAlpha->setMinimumTrackTintColor(UI::Color::clearColor());
    _sliderAlpha->setMaximumTrackTintColor(UI::Color::clearColor());
    _stepperButton->setBackgroundColor(UI::Color::systemFillColor());
    _openFolder->setBackgroundColor(UI::Color::systemFillColor());
    for (const auto* well : {&_colorWheel1, &_colorWheel2, &_colorWheel3, &_colorWheel4, &_colorWheel5, &_showWell}) {
        auto layer = (*well)->layer();
        layer.setBorderColor(UI::Color::systemBlueColor().CGColor());
        // A white one on a white panel must be seen.
        layer.setShadowOpacity(0.3f);
        layer.setShadowRadius(2);
        layer.setShadowOffset({0, 1});
        (*well)->setBackgroundColor(UI::Color::whiteColor());
    }
    _showWell->setTintColor(UI::Color::systemGrayColor());
}

}

void buildEditor(const CS::CoverSheetViewController& controller)
{
    buildPanel();
    buildMainSegments(controller);
    buildPicker(_pickerView1, "_pickerView1"_ns, controller);
    buildPicker(_pickerView2, "_pickerView2"_ns, controller);
    buildStepper(controller);
    buildOpacityStrip();
    for (const SliderRow& row : sliders)
        buildSlider(row, controller);
    buildOptionSegments(controller);
    buildSlotNumber(_widget1, "_widget1"_ns, "1.circle"_ns);
    buildSlotNumber(_widget2, "_widget2"_ns, "2.circle"_ns);
    buildSlotNumber(_widget3, "_widget3"_ns, "3.circle"_ns);
    // The notice covers what stands on the panel, but for what it consists of itself.
    auto notice = UI::View::make();
    notice.layer().setCornerRadius(panelRadius);
    notice.setHidden(true);
    keepView(_alertView, notice, "_alertView"_ns);
    for (const LabelRow& row : labels)
        buildLabel(row);
    for (const ButtonRow& row : buttons)
        buildButton(row, controller);
    _optionView->addSubview(notice);
    finishButtons();
    hideOverlay();
    parkOverlay();
    buildBatterySaverButtons(controller);
}

}
