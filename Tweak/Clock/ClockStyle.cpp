// How the clock's labels look, step by step as each full refresh applies it.
#include "Tweak/Clock/ClockLabels.hpp"

#include "Platform/UIKit/UIImage.hpp"
#include "Product/Choices.hpp"
#include "Product/Names.hpp"
#include "Tweak/Fonts.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/State.hpp"
#include "Tweak/StockMotion.hpp"
#include "Tweak/TextShadow.hpp"
#include "WKSPalette/WKSColorUtils.hpp"

namespace LYR {

/// Colours taken from the wallpaper at each full refresh; nil without a wallpaper.
LYR_VARIABLE(ObjC::Variable<UI::Color>, _bgWallColor);
LYR_VARIABLE(ObjC::Variable<UI::Color>, _primaryWallColor);
LYR_VARIABLE(ObjC::Variable<UI::Color>, _secondaryWallColor);

void fadeClockLabels()
{
    _timeLabel->setAlpha(_alphaTime.doubleValue() * stockMotion.timeAlpha);
    _dateLabel->setAlpha(_alphaDate.doubleValue() * stockMotion.dateAlpha);
    _timerLabel->setAlpha(stockMotion.dateAlpha);
}

namespace {

/// The outlines are a little wider than the labels. The one of the date gets no vertical margin, unlike the other.
void placeBorderViews()
{
    _timeBorderView->setFrame(CGRectMake(
        _XtimeLabel.doubleValue() + 2.5, _YtimeLabel.doubleValue() + 40, _timeLabel->bounds().size.width + 10, 100));
    _dateBorderView->setFrame(CGRectMake(
        _XdateLabel.doubleValue() + 2.5, _YdateLabel.doubleValue(), _dateLabel->bounds().size.width + 10, 40));
}

/// The system's font where there is none of that name.
UI::Font fontNamed(const NS::String& name, const ObjectSetting& size)
{
    auto font = name ? UI::Font::fontWithName(name, size.intValue()) : UI::Font();
    return font ? font : UI::Font::systemFontOfSize(size.intValue());
}

/// A font that the user picked from the list of all installed ones; nil before one is.
NS::String pickedFont(const NS::String& key)
{
    return _preferences->objectForKey(key).as<NS::String>();
}

/// What the labels were written in last.
constinit ObjC::Variable<UI::Font> standingTimeFont, standingDateFont;

/// The font that the user picked. Before one is picked the font that stands stays; after a start that is a built-in
/// one.
UI::Font pickedOrStanding(
    const NS::String& key, const UI::Font& standing, const NS::String& builtIn, const ObjectSetting& size)
{
    if (auto picked = pickedFont(key))
        return fontNamed(picked, size);
    return standing ? standing.fontWithSize(size.intValue()) : fontNamed(builtIn, size);
}

void applyTimeFont()
{
    const ObjC::Variable<NS::String>* const builtIn[] = {&_font1, &_font2, &_font3, &_font4};
    int choice = _customFont.intValue();
    if (choice >= 1 && choice <= 4)
        _timeLabel->setFont(fontNamed(builtIn[choice - 1]->get(), _sizeTimeLabel));
    else if (choice == 5)
        _timeLabel->setFont(pickedOrStanding(
            NS::String::fromUTF8(Product::pickedTimeFontKey), standingTimeFont, _font1, _sizeTimeLabel));
    standingTimeFont = _timeLabel->font();
}

void applyDateFont()
{
    standingDateFont = _useCustomFont2
        ? pickedOrStanding(NS::String::fromUTF8(Product::pickedDateFontKey), standingDateFont, _font5, _sizeDateLabel)
        : fontNamed(_font5, _sizeDateLabel);
    _dateLabel->setFont(standingDateFont);
    _timerLabel->setFont(standingDateFont);
}

/// 1, 2, 3 are left, centre, right.
void applyAlignment(const ObjectSetting& setting, std::initializer_list<const UI::Label*> labels)
{
    int alignment = setting.intValue();
    if (alignment < 1 || alignment > static_cast<int>(std::size(Product::alignments)))
        return;
    for (const UI::Label* label : labels)
        label->setTextAlignment(static_cast<UI::TextAlignment>(alignment - 1));
}

void takeWallpaperColours()
{
    auto palette = WKSColorUtils::averageColors(UI::Image::imageWithContentsOfFile(LYR_WALLPAPER ""_ns), 1.0);
    _bgWallColor = WKSColorUtils::colorWithMinimumSaturation(palette.background(), -0.1);
    _primaryWallColor = WKSColorUtils::colorWithMinimumSaturation(palette.primary(), 0.1);
    _secondaryWallColor = WKSColorUtils::colorWithMinimumSaturation(palette.detail(), 0.35);
}

/// Colours the label from the source that the code names; a code that names none leaves it as it is. A wallpaper
/// without a picture has no colours to give.
void applyColour(const UI::Label& label, const ObjectSetting& source, const UI::Color& stored)
{
    const UI::Color* const ofWallpaper[]
        = {&_bgWallColor.reference(), &_primaryWallColor.reference(), &_secondaryWallColor.reference()};
    const int choice = source.intValue();
    if (choice >= 1 && choice <= 3)
        label.setTextColor(*ofWallpaper[choice - 1] ? *ofWallpaper[choice - 1] : stored);
    else if (choice == 4)
        label.setTextColor(stored);
}

void applyColours()
{
    loadColours();
    auto time = storedColour(Product::timeColourKey);
    auto date = storedColour(Product::dateColourKey);
    _dateLabel->setTextColor(date);
    takeWallpaperColours();
    applyColour(_timeLabel.reference(), _colorTime, time);
    applyColour(_dateLabel.reference(), _colorDate, date);
}

}

void styleClockLabels(const SB::FLockScreenDateViewController& controller)
{
    loadBuiltInFonts();
    fadeClockLabels();
    placeBorderViews();
    placeClockLabels(controller);
    applyTimeFont();
    applyDateFont();
    applyAlignment(_alignTime, {&_timeLabel.reference()});
    applyAlignment(_alignDate, {&_dateLabel.reference(), &_timerLabel.reference()});
    applyColours();
    applyTextShadow(_timeLabel.reference(), largeTextShadow);
    applyTextShadow(_dateLabel.reference(), smallTextShadow);
}

}
