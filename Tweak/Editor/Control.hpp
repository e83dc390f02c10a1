// A control of the editor as a row of a table: what it is, where it lies, what it does.
#pragma once

#include "Platform/AudioToolbox/AudioServices.hpp"
#include "Platform/ObjC/Hook.hpp"
#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"
#include "Platform/UIKit/UIButton.hpp"
#include "Platform/UIKit/UIPickerView.hpp"
#include "Platform/UIKit/UISlider.hpp"
#include "Platform/UIKit/UIStepper.hpp"
#include "Tweak/Editor/Action.hpp"
#include "Tweak/Editor/Tab.hpp"
#include "Tweak/Placement.hpp"
#include "Tweak/Variables.hpp"

#include <span>

namespace LYR {

/// What a wheel shows, and what follows when a row comes to rest.
struct Wheel {
    long (*rowCount)();
    UI::Label (*row)(long row);
    void (*choose)(long row);
};

/// The variable that keeps a view, and its name.
struct ViewSlot {
    id* variable;
    const char* name;

    template <class T, ObjC::FixedString variableName>
    constexpr ViewSlot(ObjC::NamedVariable<T, variableName>& named)
        : variable(named.address())
        , name(named.name)
    {
    }
    UI::View view() const { return UI::View(*variable); }
};

struct Control {
    ViewSlot slot;
    UI::View (*make)();
    Placing placing;
    /// What it asks of the cover sheet: a button when it is tapped, any other control when its value changes.
    Action action{};
    /// Shows what is stored for the element.
    void (*fill)(Tab tab) = nullptr;
    /// Whether it shows where its area does; always, if nothing is said.
    bool (*isShown)(const UI::View& view, Tab tab) = nullptr;
    const Wheel* wheel = nullptr;
};

/// Makes the controls in their order in the parent, if there is one yet, and lets the cover sheet answer to them.
void build(std::span<const Control> controls, const UI::View& parent, const CS::CoverSheetViewController& owner);
/// Gives each of them its frame, with the slot's top at `top`.
void place(std::span<const Control> controls, const Slot& slot, CGFloat top = 0);
/// Lets another cover sheet answer to them in place of the one that does.
void redirect(std::span<const Control> controls, const CS::CoverSheetViewController& from,
    const CS::CoverSheetViewController& to);
void setHidden(std::span<const Control> controls, bool hidden);

/// Every change of a control is heard.
inline void playClick()
{
    AudioServicesPlaySystemSound(1104);
}

/// So is the editor, or a part of it, when it opens, closes or is applied.
inline void playTap()
{
    AudioServicesPlaySystemSound(1519);
}

/// The kinds of controls. What is empty or null is left out.
UI::Button makeButton(const char* title, const char* symbol, CGFloat radius);
UI::Label makeLabel(const char* text, CGFloat fontSize, UI::TextAlignment alignment, long lines);
UI::Slider makeSlider(double minimum, double maximum, double value, const char* symbol);
UI::View makePicture(const char* symbol);
UI::View makeWheel();
/// What a wheel shows of a row, without its text.
UI::Label makeWheelRow();

/// What makes a control, as a value of its row.
using Make = UI::View (*)();
template <ObjC::FixedString title, int radius>
constexpr Make textButton = []() -> UI::View { return makeButton(title.text, nullptr, radius); };
template <ObjC::FixedString symbol, int radius = 0>
constexpr Make symbolButton = []() -> UI::View { return makeButton(nullptr, symbol.text, radius); };
template <ObjC::FixedString text, int fontSize, UI::TextAlignment alignment = UI::TextAlignment::left, long lines = 1>
constexpr Make label = []() -> UI::View { return makeLabel(text.text, fontSize, alignment, lines); };
template <int minimum, int maximum, int value, ObjC::FixedString symbol>
constexpr Make slider = []() -> UI::View { return makeSlider(minimum, maximum, value, symbol.text); };
template <ObjC::FixedString symbol>
constexpr Make picture = [] { return makePicture(symbol.text); };

}
