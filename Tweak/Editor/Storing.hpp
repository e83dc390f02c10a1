// How the editor writes what the user chooses: the settings, the colours, and the texts that stand for numbers and
// colours.
#pragma once

#include "Platform/Foundation/NSNumber.hpp"
#include "Platform/UIKit/UIColor.hpp"
#include "Platform/UIKit/UISlider.hpp"
#include "Tweak/Editor/Tab.hpp"
#include "Tweak/Settings.hpp"

namespace LYR {

/// The setting of each element for what a control edits; null where an element has none.
using EditedSetting = PerTab<ObjectSetting*>;

/// Stores a value under the setting's key.
void store(const NS::Object& value, const ObjectSetting& setting);
/// Says that settings have changed, which binds them anew.
void announceSettings();

/// Stores a colour's text as that of the element, also as what its settings page falls back to, and says so.
/// A file that does not exist stays so.
void storeColour(Tab tab, const NS::String& text);

/// "#FF0000" and what is said of the opacity: each component times 255, cut to a whole number. Black for no colour.
NS::String colourText(const UI::Color& colour, const NS::String& opacity);
/// With so many decimals, rounded to the nearest, half to even. For numbers up to a billion.
NS::String fixedText(double number, int decimals);

/// Stores the slider's value for the active element once the finger has left it; then `follow` and a refresh.
void storeWhenReleased(const EditedSetting& settings, const UI::Slider& slider, void (*follow)());

/// Runs `change` with the setting of each active element that has one.
template <class Change>
void forActive(const EditedSetting& settings, Change change)
{
    for (Tab tab : allTabs) {
        if (ObjectSetting* setting = settings[tab]; setting && isActive(tab))
            change(*setting);
    }
}

}
