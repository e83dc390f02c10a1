// The views of the sheet, and how its wells are placed.
#include "Tweak/Editor/ColourSheet.hpp"

#include "Platform/UIKit/UIScreen.hpp"
#include "Tweak/Editor/Areas.hpp"
#include "Tweak/State.hpp"
#include "Tweak/Widgets/Widget.hpp"

namespace LYR {

namespace {

constexpr CGFloat panelRadius = 18;
constexpr CGFloat swatchRadius = 15;
constexpr CGFloat firstRow = 24;
constexpr CGFloat rowDistance = 70;
constexpr CGFloat wellSide = 44;
constexpr CGFloat wellX = 20;
constexpr CGFloat swatchX = 84;
constexpr CGFloat captionX = 150;
constexpr CGFloat doneRadius = 20;

constexpr const char* panelVariable = "_colorWellView";

struct Row {
    const char* title;
    const char* wellVariable;
    const char* swatchVariable;
    SEL (*changed)();
    SEL (*touched)();
    UI::Color (*colour)();
};

template <ObjC::FixedString name>
SEL action()
{
    return ObjC::selector<name>();
}

/// Time, date, widgets. The widgets' colour is that of their battery.
const Row rows[tabCount] = {
    {"Time Color", "_colorWell", "_wellViewTime", action<"colorChanged:">, action<"colorTouch:">,
        [] { return _timeLabel->textColor(); }},
    {"Date Color", "_colorWell2", "_wellViewDate", action<"colorChanged2:">, action<"colorTouch2:">,
        [] { return _dateLabel->textColor(); }},
    {"Widget Color", "_colorWell3", "_wellViewWidget", action<"colorChanged3:">, action<"colorTouch3:">,
        [] { return _BG->tintColor(); }},
};

/// The accessor of a property, whose variable has its name with a stroke before it.
template <ObjC::FixedString variable>
ObjC::Object accessor(id self, SEL)
{
    return ObjC::ownedVariable<ObjC::Object>(self, variable.text);
}

NS::String text(const char* characters)
{
    return NS::String::fromUTF8(characters);
}

/// Black letters on white, or the reverse.
struct Colours {
    UI::Color ground;
    UI::Color letters;
};

Colours styleColours()
{
    auto style = UI::Screen::mainScreen().traitCollection().userInterfaceStyle();
    if (style == UI::UserInterfaceStyle::dark)
        return {UI::Color::blackColor(), UI::Color::whiteColor()};
    return {UI::Color::whiteColor(), UI::Color::blackColor()};
}

void buildPanel(const ColourSheet& sheet, const Colours& colours)
{
    auto panel = UI::View::make();
    panel.setAccessibilityIdentifier("colorWellView"_ns);
    panel.setBackgroundColor(colours.ground.colorWithAlphaComponent(0.85));
    panel.layer().setCornerRadius(panelRadius);
    // In the place of the editor's own panel, or what of it the screen shows.
    CGRect frame = _optionView->frame();
    frame.origin.x += panelOutsideScreen();
    frame.size.width -= 2 * panelOutsideScreen();
    panel.setFrame(frame);
    sheet.view().addSubview(panel);
    ObjC::setOwnedVariable(sheet.raw(), panelVariable, panel);
}

void buildWell(const ColourSheet& sheet, const Row& row, const UI::View& panel, CGFloat y)
{
    auto well = UI::ColorWell::make();
    // Older systems have none.
    if (!well)
        return;
    well.setAccessibilityIdentifier(text(row.wellVariable + 1));
    well.setTitle(text(row.title));
    // A stored colour is opaque.
    if (well.respondsTo<"setSupportsAlpha:">())
        well.setSupportsAlpha(false);
    well.setSelectedColor(row.colour());
    well.addTarget(sheet, row.changed(), UI::ControlEvents::valueChanged);
    well.addTarget(sheet, row.touched(), UI::ControlEvents::touchUpInside);
    well.setFrame(CGRectMake(wellX, y, wellSide, wellSide));
    panel.addSubview(well);
    ObjC::setOwnedVariable(sheet.raw(), row.wellVariable, well);
}

void buildSwatch(const ColourSheet& sheet, const Row& row, const UI::View& panel, CGFloat y)
{
    auto swatch = UI::View::make();
    swatch.setAccessibilityIdentifier(text(row.swatchVariable + 1));
    swatch.setBackgroundColor(row.colour());
    swatch.layer().setCornerRadius(swatchRadius);
    swatch.layer().setBorderWidth(1);
    swatch.layer().setBorderColor(UI::Color::systemGrayColor().CGColor());
    swatch.setFrame(CGRectMake(swatchX, y + wellSide / 2 - swatchRadius, 3 * swatchRadius, 2 * swatchRadius));
    panel.addSubview(swatch);
    ObjC::setOwnedVariable(sheet.raw(), row.swatchVariable, swatch);
}

void buildCaption(const Row& row, const UI::View& panel, const Colours& colours, CGFloat y)
{
    auto caption = UI::Label::make();
    caption.setText(text(row.title));
    caption.setFont(UI::Font::boldSystemFontOfSize(20));
    caption.setTextColor(colours.letters);
    caption.setAdjustsFontSizeToFitWidth(true);
    caption.setFrame(CGRectMake(captionX, y, panel.bounds().size.width - captionX - wellX, wellSide));
    panel.addSubview(caption);
}

void buildDone(const ColourSheet& sheet, const Colours& colours)
{
    auto done = UI::Button::buttonWithType(UI::ButtonType::system);
    done.setAccessibilityIdentifier("colorWellDone"_ns);
    done.setTitle("Done"_ns);
    done.titleLabel().setFont(UI::Font::boldSystemFontOfSize(17));
    done.setTintColor(colours.letters);
    done.setBackgroundColor(colours.ground.colorWithAlphaComponent(0.85));
    done.layer().setCornerRadius(doneRadius);
    done.addTarget(sheet, action<"closeMyCSCoverSheetViewController">(), UI::ControlEvents::touchUpInside);
    CGRect frame = _done->frame();
    frame.origin.x -= panelOutsideScreen();
    done.setFrame(frame);
    sheet.view().addSubview(done);
}

}

void addColourSheetProperties(ObjC::ClassBuilder& builder)
{
    builder.ivar<id>(panelVariable).method<"colorWellView", &accessor<"_colorWellView">>();
    for (const Row& row : rows)
        builder.ivar<id>(row.wellVariable).ivar<id>(row.swatchVariable);
    builder.method<"colorWell", &accessor<"_colorWell">>()
        .method<"colorWell2", &accessor<"_colorWell2">>()
        .method<"colorWell3", &accessor<"_colorWell3">>()
        .method<"wellViewTime", &accessor<"_wellViewTime">>()
        .method<"wellViewDate", &accessor<"_wellViewDate">>()
        .method<"wellViewWidget", &accessor<"_wellViewWidget">>();
}

void buildColourSheet(const ColourSheet& sheet)
{
    auto colours = styleColours();
    buildPanel(sheet, colours);
    auto panel = ObjC::ownedVariable<UI::View>(sheet.raw(), panelVariable);
    CGFloat y = firstRow;
    for (const Row& row : rows) {
        buildWell(sheet, row, panel, y);
        buildSwatch(sheet, row, panel, y);
        buildCaption(row, panel, colours, y);
        y += rowDistance;
    }
    buildDone(sheet, colours);
}

void showOnSheet(const ColourSheet& sheet, Tab tab, const UI::Color& colour)
{
    const Row& row = rows[static_cast<std::size_t>(tab)];
    ObjC::ownedVariable<UI::View>(sheet.raw(), row.swatchVariable).setBackgroundColor(colour);
    ObjC::ownedVariable<UI::View>(sheet.raw(), panelVariable).setAlpha(1);
}

void releaseColourSheetViews(id sheet)
{
    ObjC::setOwnedVariable(sheet, panelVariable, {});
    for (const Row& row : rows) {
        ObjC::setOwnedVariable(sheet, row.wellVariable, {});
        ObjC::setOwnedVariable(sheet, row.swatchVariable, {});
    }
}

}
