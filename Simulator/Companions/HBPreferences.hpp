// The preferences library: stored values of a domain bound to variables of the program.
// The functions are for those outside the shell: the settings pane, tests, scripts.
#pragma once

#include "Platform/Foundation/NSDictionary.hpp"
#include "Simulator/Runtime/StandIn.hpp"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Simulator {

class HBPreferences : public StandIn {
public:
    using Root = HBPreferences;

    /// There is one object for a domain, whoever asks.
    NS::Object initWithIdentifier(const NS::String& identifier);
    NS::String identifier() const;
    void registerBool(void* variable, bool fallback, const NS::String& key);
    void registerObject(void* variable, const NS::Object& fallback, const NS::String& key);
    /// The stored value, or the default that was registered for the key.
    NS::Object objectForKey(const NS::String& key) const;
    bool boolForKey(const NS::String& key) const;
    /// Nil takes the value away.
    void setObject(const NS::Object& value, const NS::String& key);
    void setBool(bool value, const NS::String& key);
    void removeObjectForKey(const NS::String& key);

    /// Takes over what is stored now and gives it to the bound variables.
    void mirror(const NS::Dictionary& stored);
    const std::string& domain() const { return m_domain; }

private:
    /// One of the two variables is set.
    struct Binding {
        bool* boolean = nullptr;
        id* object = nullptr;
        NS::String key;
        NS::Object fallback;
    };
    void bind(Binding binding);
    /// Reads every key that is registered, and gives what is stored to its variable.
    void readAll();
    void give(const Binding& binding) const;

    std::string m_domain;
    NS::Dictionary m_stored;
    std::vector<Binding> m_bindings;
    std::map<std::string, NS::Object> m_fallbacks;
};

/// What a variable that was bound to a setting holds now.
struct BoundValue {
    enum class Kind { boolean, object };
    Kind kind = Kind::object;
    bool boolean = false;
    NS::Object object;
};

/// What the domain's file holds now; what the preferences service holds in memory while the disk fails.
NS::Dictionary storedValues(const std::string& domain);
/// Stores as the settings pane does; every living preferences object of the domain mirrors it. Nil takes the value
/// away. Answers whether the value is one that preferences can hold.
bool storeValue(const std::string& domain, const std::string& key, const NS::Object& value);
/// The same for several values, written at once.
bool storeValues(const std::string& domain, const NS::Dictionary& values);
/// By the variable that was last registered for the key; nothing if none ever was.
std::optional<BoundValue> boundValue(const std::string& key);

}
