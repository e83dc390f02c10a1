// Which setting a control of the panel writes, by the element that is edited.
#pragma once

#include "Tweak/Editor/EditState.hpp"
#include "Tweak/Settings.hpp"

namespace LYR {

enum class Property { x, y, opacity, fontSize };

/// Null key and variable where the element has no such property.
struct EditedSetting {
    const char* key;
    ObjectSetting* variable;

    explicit operator bool() const { return key != nullptr; }
    NS::String name() const { return NS::String::fromUTF8(key); }
};

EditedSetting editedSetting(Property property, Tab tab);

/// Stores a value under its key.
void store(const NS::Object& value, const EditedSetting& setting);
/// Says that settings have changed, which binds them anew.
void announceSettings();

}
