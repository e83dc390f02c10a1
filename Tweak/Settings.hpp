// Every setting of the user, each bound to a process-wide variable of its name.
#pragma once

#include "Platform/Companions/HBPreferences.hpp"
#include "Platform/Foundation/NSDictionary.hpp"
#include "Platform/UIKit/UIColor.hpp"
#include "Product/Settings.hpp"
#include "Tweak/Variables.hpp"

namespace LYR {

/// A setting stored as text or as a number. Anything else that the store may hold counts as the default.
class ObjectSetting {
public:
    constexpr ObjectSetting(const char* key, const char* fallback)
        : m_key(key)
        , m_fallback(fallback)
    {
    }

    NS::String key() const { return NS::String::fromUTF8(m_key); }

    /// The whole number; 0 for text that is none.
    int intValue() const { return usableValue().send<int, "intValue">(); }
    /// The number, finite; 0 for text that is none.
    double doubleValue() const;
    NS::String stringValue() const;

    /// Shows a value at once that is being stored.
    void assign(const NS::Object& value) { m_value = value; }
    constexpr id* address() { return m_value.address(); }
    NS::String fallback() const { return NS::String::fromUTF8(m_fallback); }

private:
    NS::Object usableValue() const;

    ObjC::Variable<NS::Object> m_value;
    const char* m_key;
    const char* m_fallback;
};

#define LYR_DECLARE_FLAG(variable, ...) extern constinit bool variable;
#define LYR_DECLARE_OBJECT(variable, ...) extern constinit ObjectSetting variable;
LYR_SETTINGS(LYR_DECLARE_FLAG, LYR_DECLARE_OBJECT)
#undef LYR_DECLARE_FLAG
#undef LYR_DECLARE_OBJECT

/// The store that the variables are bound to; replaced on every load.
extern constinit ObjC::Variable<HB::Preferences> _preferences;
/// The colour file as it was last read.
extern constinit ObjC::Variable<NS::Dictionary> _preferencesDictionary;

/// Binds every setting anew.
void loadPrefs();
/// Reads all of them again where the store could not be read before.
void readPrefs();
/// Reads the colour file into `_preferencesDictionary`; empty if there is none.
void loadColours();
/// A colour of the colour file as it was last read; white if it has none under that key. The colour library reads the
/// text, and where the phone has no such library we do.
UI::Color storedColour(const char* key);

}
