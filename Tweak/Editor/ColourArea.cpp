// The colour of an element: wells of the wallpaper's colours, the colour that was chosen last, and the opacity.
#include "Platform/QuartzCore/CAGradientLayer.hpp"
#include "Platform/UIKit/UIImage.hpp"
#include "Product/Names.hpp"
#include "Tweak/Editor/Areas.hpp"
#include "Tweak/Editor/Storing.hpp"
#include "Tweak/State.hpp"
#include "Tweak/Widgets/StripColours.hpp"
#include "WKSPalette/WKSColorUtils.hpp"

namespace LYR {

LYR_VIEW(UI::View, _alphaCheckBoard);
LYR_VIEW(UI::View, _alphaView);
LYR_VIEW(UI::Slider, _sliderAlpha);
LYR_VIEW(UI::Button, _colorWheel1);
LYR_VIEW(UI::Button, _colorWheel2);
LYR_VIEW(UI::Button, _colorWheel3);
LYR_VIEW(UI::Button, _colorWheel4);
LYR_VIEW(UI::Button, _colorWheel5);
LYR_VIEW(UI::Button, _showWell);
LYR_VARIABLE(ObjC::Variable<CA::GradientLayer>, _gradient);

namespace {

constexpr CGFloat wellRadius = 19;
constexpr CGFloat chosenBorder = 3;
constexpr CGFloat stripRadius = 12;
constexpr CGFloat squareSide = 12;
/// Enough for the widest panel.
constexpr int squareCount = 96;

constexpr EditedSetting opacities{{&_alphaTime, &_alphaDate, nullptr}};

/// Since the editor opened. What was chosen is offered to every element, so that a colour can be carried from one to
/// another.
constinit bool isColourChosen = false;

/// A colour of the palette and its least saturation; no colour of the palette for the well of the last choice.
struct Well {
    ObjC::Variable<UI::Button>* button;
    UI::Color (WKSPalette::*colour)() const;
    double saturation;
};

constexpr Well wells[] = {
    {&_colorWheel1, &WKSPalette::background, 1.0},
    {&_colorWheel2, &WKSPalette::background, 0.5},
    {&_colorWheel3, &WKSPalette::primary, 1.0},
    {&_colorWheel4, &WKSPalette::primary, 0.2},
    {&_colorWheel5, nullptr, 0},
};

WKSPalette wallpaperPalette()
{
    return WKSColorUtils::averageColors(UI::Image::imageWithContentsOfFile(LYR_WALLPAPER ""_ns), 1.0);
}

UI::Color colourOf(const Well& well, const WKSPalette& palette)
{
    return WKSColorUtils::colorWithMinimumSaturation((palette.*well.colour)(), well.saturation);
}

void markChosen(const Well& chosen)
{
    for (const Well& well : wells)
        (*well.button)->layer().setBorderWidth(&well == &chosen ? chosenBorder : 0);
}

void show(const UI::Color& colour)
{
    _showWell->setBackgroundColor(colour);
    _colorWheel5->setBackgroundColor(colour);
    _gradient->setColorsOf(UI::Color::clearColor(), colour ? colour : UI::Color::clearColor());
}

/// Until a colour is chosen, the last well, the preview and the strip of opacities show the element's own.
void showCurrentColour(Tab tab)
{
    if (isColourChosen)
        return;
    show(tab == Tab::time ? _timeLabel->textColor() : tab == Tab::date ? _dateLabel->textColor() : stripIconColour());
}

/// Makes the well's colour that of the edited element. A well that has none to offer changes nothing.
void pressWell(const Well& well)
{
    playClick();
    auto colour = well.colour ? colourOf(well, wallpaperPalette()) : _showWell->backgroundColor();
    // The wallpaper may have gone since the editor opened.
    if (!colour)
        return;
    (*well.button)->setBackgroundColor(colour);
    showChosenColour(colour);
    for (Tab tab : allTabs) {
        if (!isActive(tab))
            continue;
        markChosen(well);
        storeColour(tab, colourText(colour, ":1.00"_ns));
    }
    dateView->updateTime();
}

/// Opens the colour sheet.
void openSheet(CS::CoverSheetViewController self, SEL, ObjC::Object)
{
    _colorPickerPress = true;
    self.send<void, "pickerShow">();
}

/// Without a wallpaper the first four wells have none to offer.
bool offersColour(const UI::View& well, Tab)
{
    return static_cast<bool>(well.backgroundColor());
}

UI::Button makeWell(const char* symbol)
{
    auto well = makeButton(nullptr, symbol, wellRadius);
    auto layer = well.layer();
    layer.setBorderColor(UI::Color::systemBlueColor().CGColor());
    // A white one on a white panel must be seen.
    layer.setShadowOpacity(0.3f);
    layer.setShadowRadius(2);
    layer.setShadowOffset({0, 1});
    well.setBackgroundColor(UI::Color::whiteColor());
    return well;
}

UI::View well()
{
    return makeWell(nullptr);
}

UI::View previewWell()
{
    auto well = makeWell("eyedropper");
    well.setTintColor(UI::Color::systemGrayColor());
    return well;
}

UI::View roundedView()
{
    auto view = UI::View::make();
    view.layer().setCornerRadius(stripRadius);
    view.setClipsToBounds(true);
    return view;
}

/// The pattern that stands for nothing.
UI::View checkerboard()
{
    auto board = roundedView();
    board.setBackgroundColor(UI::Color::whiteColor());
    for (int i = 0; i < squareCount; ++i) {
        auto square = UI::View::make();
        square.setBackgroundColor(UI::Color::colorWithWhite(0.75, 1));
        board.addSubview(square);
    }
    return board;
}

/// A strip that runs from nothing to the current colour.
UI::View opacityStrip()
{
    auto strip = roundedView();
    auto gradient = CA::GradientLayer::layer();
    gradient.setStartPoint({0, 0.5});
    gradient.setEndPoint({1, 0.5});
    gradient.setColorsOf(UI::Color::clearColor(), UI::Color::whiteColor());
    strip.layer().addSublayer(gradient);
    _gradient = gradient;
    return strip;
}

/// Its thumb moves over the strip itself.
UI::View opacitySlider()
{
    auto slider = makeSlider(0, 1, 0.8, nullptr);
    slider.setMinimumTrackTintColor(UI::Color::clearColor());
    slider.setMaximumTrackTintColor(UI::Color::clearColor());
    return slider;
}

void slideOpacity(UI::Slider slider)
{
    playClick();
    storeWhenReleased(opacities, slider, nullptr);
}

void showOpacity(Tab tab)
{
    if (const ObjectSetting* opacity = opacities[tab])
        _sliderAlpha->setValue(static_cast<float>(opacity->doubleValue()));
}

/// The strip of widgets has none.
bool hasOpacity(const UI::View&, Tab tab)
{
    return opacities[tab] != nullptr;
}

/// The wells stand in the middle of sixths of the width.
constexpr Placing sixth(int index)
{
    return aboutShare((index + 0.5) / 6, 38, 82, 38);
}

template <int index>
void pressWellAt()
{
    pressWell(wells[index]);
}

template <ObjC::FixedString selectorName, int index>
constexpr Action wellAction = action<selectorName, pressWellAt<index>>(ActionGroup::wells);

constexpr Control controls[] = {
    {.slot = _alphaCheckBoard, .make = checkerboard, .placing = throughout(16, 16, 162, 24), .isShown = hasOpacity},
    {.slot = _alphaView, .make = opacityStrip, .placing = throughout(16, 16, 162, 24), .isShown = hasOpacity},
    {.slot = _sliderAlpha, .make = opacitySlider, .placing = throughout(14, 14, 158, 32),
        .action = action<"sliderValueChangedAlpha:", slideOpacity>(ActionGroup::sliders), .fill = showOpacity,
        .isShown = hasOpacity},
    {.slot = _colorWheel1, .make = well, .placing = sixth(0), .action = wellAction<"wellButton1:", 0>,
        .isShown = offersColour},
    {.slot = _colorWheel2, .make = well, .placing = sixth(1), .action = wellAction<"wellButton2:", 1>,
        .isShown = offersColour},
    {.slot = _colorWheel3, .make = well, .placing = sixth(2), .action = wellAction<"wellButton3:", 2>,
        .isShown = offersColour},
    {.slot = _colorWheel4, .make = well, .placing = sixth(3), .action = wellAction<"wellButton4:", 3>,
        .isShown = offersColour},
    {.slot = _colorWheel5, .make = well, .placing = sixth(4), .action = wellAction<"wellButton5:", 4>},
    {.slot = _showWell, .make = previewWell, .placing = sixth(5),
        .action = action<"showWellButton:", openSheet>(ActionGroup::wells), .fill = showCurrentColour},
};

}

constinit const Area colourArea{controls};

/// Every other square of two rows, as transparency is shown.
void layOpacityStrip()
{
    auto squares = _alphaCheckBoard->subviews();
    for (unsigned long i = 0; i < squares.count(); ++i)
        squares.at<UI::View>(i).setFrame(CGRectMake(i * squareSide, i % 2 * squareSide, squareSide, squareSide));
    _gradient->setFrame(_alphaView->bounds());
}

void prepareWells()
{
    isColourChosen = false;
    auto palette = wallpaperPalette();
    for (const Well& well : wells) {
        if (well.colour)
            (*well.button)->setBackgroundColor(colourOf(well, palette));
        (*well.button)->layer().setBorderWidth(0);
    }
}

void showChosenColour(const UI::Color& colour)
{
    isColourChosen = true;
    show(colour);
}

}
