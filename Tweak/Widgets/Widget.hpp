// A widget of the strip: the views that it is made of, and the ways to show it.
#pragma once

#include "Platform/UIKit/UIImageView.hpp"
#include "Platform/UIKit/UILabel.hpp"
#include "Tweak/Placement.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/State.hpp"
#include "Tweak/Widgets/Items.hpp"

#include <span>

namespace LYR {

/// A picture, or a label with the size and alignment of its text.
struct StripView {
    id* variable;
    const char* name;
    UI::ViewContentMode contentMode;
    CGFloat fontSize = 0;
    UI::TextAlignment alignment{};

    bool isLabel() const { return fontSize > 0; }
};

template <ObjC::FixedString name>
constexpr StripView pictureOf(ObjC::NamedVariable<UI::ImageView, name>& variable,
    UI::ViewContentMode contentMode = UI::ViewContentMode::scaleAspectFit)
{
    return {variable.address(), variable.name, contentMode};
}

template <ObjC::FixedString name>
constexpr StripView labelOf(
    ObjC::NamedVariable<UI::Label, name>& variable, CGFloat fontSize, UI::TextAlignment alignment)
{
    return {variable.address(), variable.name, {}, fontSize, alignment};
}

/// One way to show a widget.
struct Presentation {
    /// How much of the strip it takes.
    int cells;
    /// The views that it shows, and where they lie in the slot.
    std::span<const Place> places;
    /// Gives them their contents, where these differ among the presentations.
    void (*fill)(Items& items) = nullptr;
};

struct Widget {
    /// Back to front.
    std::span<const StripView> views;
    /// The setting that chooses, and the code of the first presentation.
    const ObjectSetting* option;
    int firstCode;
    std::span<const Presentation* const> presentations;

    /// Null for a code that names none: the widget stays as it is.
    const Presentation* chosen() const;
    /// Shows the views of that presentation and hides those of the others.
    void show(const Presentation& presentation) const;
    /// Hides all views, or shows them.
    void setHidden(bool hidden) const;
};

/// Weather, in one cell or in two.
[[gnu::visibility("hidden")]] extern const Widget weatherWidget;
void fillWeather(const WeatherItems& weather);

/// Sun, alarm or event: all of them look alike.
[[gnu::visibility("hidden")]] extern const Widget agendaWidget;
/// The icon stands in the middle of its slot, or beside what shares the line with it.
void placeAgenda(const Slot& slot);

/// The battery: a glyph or a bar that follows the charge in steps.
[[gnu::visibility("hidden")]] extern const Widget batteryWidget;
LYR_EXTERN_VIEW(UI::ImageView, _BG);
/// The bolts have a picture of their own until the first refresh.
void prepareBattery();
/// Reads the device's battery, and gives the widget's views their pictures, texts and colours.
void fillBattery();
/// Makes the bar's filled part as long as the charge.
void placeBatteryIndicator();

}
