#include "Tweak/Editor/Wells.hpp"

#include "Platform/UIKit/UIImage.hpp"
#include "Tweak/Editor/ColourStore.hpp"
#include "Tweak/Editor/ColourText.hpp"
#include "Tweak/Editor/EditorViews.hpp"
#include "Tweak/Editor/Feedback.hpp"
#include "Tweak/Views.hpp"
#include "Tweak/Widgets/StripColours.hpp"
#include "WKSPalette/WKSColorUtils.hpp"

namespace LYR {

namespace {

constexpr CGFloat chosenBorder = 3;

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
    return WKSColorUtils::averageColors(
        UI::Image::imageWithContentsOfFile("/var/mobile/Library/SpringBoard/LockBackgroundThumbnail.jpg"_ns), 1.0);
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

bool offersColour(const UI::View& well)
{
    return static_cast<bool>(well.backgroundColor());
}

void showCurrentColour(Tab tab)
{
    if (isColourChosen)
        return;
    show(tab == Tab::time ? _timeLabel->textColor() : tab == Tab::date ? _dateLabel->textColor() : stripIconColour());
}

void showChosenColour(const UI::Color& colour)
{
    isColourChosen = true;
    show(colour);
}

void pressWell(int index)
{
    const Well& well = wells[index];
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

void CSCoverSheetViewController_showWellButton(CS::CoverSheetViewController self, SEL, ObjC::Object)
{
    _colorPickerPress = true;
    self.send<void, "pickerShow">();
}

}
