// Bindings of HBPreferences: the domain's file is the truth, each object keeps what it last read of it.
#include "Simulator/Companions/HBPreferences.hpp"

#include "Platform/Foundation/CFNotificationCenter.hpp"
#include "Platform/Foundation/NSNumber.hpp"
#include "Simulator/Base/Phone.hpp"
#include "Simulator/Companions/PropertyListValues.hpp"
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/ExtensionCounts.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

#include <algorithm>

namespace Simulator {

namespace {

struct BoundVariable {
    bool* boolean;
    id* object;
};

/// The preferences service of a phone.
struct Service {
    /// The one object of each domain.
    std::map<std::string, NS::Object> objects;
    std::map<std::string, BoundVariable> lastBound;
    /// What could not be written yet, by domain: the disk failed, the service has it in memory.
    std::map<std::string, NS::Dictionary> unwritten;
};

Service& service()
{
    return Phone::part<Service>();
}

std::string fileOfDomain(const std::string& domain)
{
    return "/var/mobile/Library/Preferences/" + domain + ".plist";
}

bool writeDomain(const std::string& domain, const std::string& bytes)
{
    PhoneFiles& files = PhoneFiles::shared();
    const std::string path = fileOfDomain(domain);
    return !files.fault(path, FileOperation::write) && !files.fault(path, FileOperation::rename)
        && files.put(path, bytes) == 0;
}

std::string text(const NS::String& string)
{
    return std::string(string.utf8());
}

/// A variable owns what it is given.
void assign(id* variable, const NS::Object& value)
{
    id previous = *variable;
    if (previous == value.raw())
        return;
    *variable = ObjC::retain(value.raw());
    ObjC::release(previous);
}

/// The library has no other way to hear of a store by a process that does not use it.
void takeOverStored(CFNotificationCenterRef, void* domain, id, const void*, id)
{
    const NS::Object preferences = service().objects[*static_cast<const std::string*>(domain)];
    standIn<HBPreferences>(preferences.raw()).mirror(storedValues(*static_cast<const std::string*>(domain)));
}

const char* kindOf(const nlohmann::ordered_json& value)
{
    return value.is_string() ? "string" : value.is_boolean() ? "bool" : value.is_number() ? "number" : "other";
}

bool replaceStored(const std::string& domain, const NS::Dictionary& values)
{
    const std::string bytes = xmlOfDictionary(values);
    if (bytes.empty())
        return false;
    if (writeDomain(domain, bytes))
        service().unwritten.erase(domain);
    else
        service().unwritten[domain] = values;
    const auto present = service().objects.find(domain);
    if (present != service().objects.end())
        standIn<HBPreferences>(present->second.raw()).mirror(values);
    return true;
}

}

NS::Object HBPreferences::initWithIdentifier(const NS::String& identifier)
{
    if (!identifier.is<NS::String>())
        return {};
    NS::Object& known = service().objects[text(identifier)];
    if (!known) {
        m_domain = text(identifier);
        m_stored = storedValues(m_domain);
        known = self<NS::Object>();
        CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), &m_domain, takeOverStored,
            NS::String::fromUTF8(m_domain + "/ReloadPrefs").raw(), nullptr,
            CFNotificationSuspensionBehavior::coalesce);
    }
    return known;
}

NS::String HBPreferences::identifier() const
{
    return NS::String::fromUTF8(m_domain);
}

void HBPreferences::registerBool(void* variable, bool fallback, const NS::String& key)
{
    bind({static_cast<bool*>(variable), nullptr, key, NS::Number::numberWithBool(fallback)});
}

void HBPreferences::registerObject(void* variable, const NS::Object& fallback, const NS::String& key)
{
    bind({nullptr, static_cast<id*>(variable), key, fallback});
}

void HBPreferences::bind(Binding binding)
{
    if (!binding.key || (!binding.boolean && !binding.object))
        return;
    const std::string key = text(binding.key);
    m_fallbacks[key] = binding.fallback;
    service().lastBound[key] = {binding.boolean, binding.object};
    std::erase_if(m_bindings, [&binding](const Binding& other) { return other.key.isEqualToString(binding.key); });
    m_bindings.push_back(std::move(binding));
    readAll();
}

/// The library does so at each registration, not for the new key alone.
void HBPreferences::readAll()
{
    ExtensionCounts::shared().add(Count::preferenceReads, m_bindings.size());
    mirror(storedValues(m_domain));
}

/// A flag takes what can be read as true or false; an object variable takes whatever is stored.
void HBPreferences::give(const Binding& binding) const
{
    const auto stored = m_stored.objectForKey<NS::Object>(binding.key);
    if (binding.object)
        assign(binding.object, stored ? stored : binding.fallback);
    else
        *binding.boolean = (stored.respondsTo<"boolValue">() ? stored : binding.fallback).send<bool, "boolValue">();
}

void HBPreferences::mirror(const NS::Dictionary& stored)
{
    m_stored = stored;
    for (const Binding& binding : m_bindings)
        give(binding);
}

NS::Object HBPreferences::objectForKey(const NS::String& key) const
{
    if (!key)
        return {};
    if (const auto stored = m_stored.objectForKey<NS::Object>(key))
        return stored;
    const auto fallback = m_fallbacks.find(text(key));
    return fallback == m_fallbacks.end() ? NS::Object() : fallback->second;
}

bool HBPreferences::boolForKey(const NS::String& key) const
{
    const NS::Object value = objectForKey(key);
    return value.respondsTo<"boolValue">() && value.send<bool, "boolValue">();
}

void HBPreferences::setObject(const NS::Object& value, const NS::String& key)
{
    if (!key || !storeValue(m_domain, text(key), value))
        return;
    const auto json = jsonOfValue(value);
    ActivityLog::shared().record("setting", {{"key", text(key)}, {"value", json}, {"type", kindOf(json)}});
}

void HBPreferences::setBool(bool value, const NS::String& key)
{
    setObject(NS::Number::numberWithBool(value), key);
}

void HBPreferences::removeObjectForKey(const NS::String& key)
{
    setObject({}, key);
}

NS::Dictionary storedValues(const std::string& domain)
{
    const auto kept = service().unwritten.find(domain);
    return kept == service().unwritten.end() ? dictionaryInFile(fileOfDomain(domain)) : kept->second;
}

bool storeValue(const std::string& domain, const std::string& key, const NS::Object& value)
{
    const NS::MutableDictionary values = storedValues(domain).mutableCopy();
    const NS::String name = NS::String::fromUTF8(key);
    if (!name)
        return false;
    if (value)
        values.setObject(value, name);
    else
        values.send<void, "removeObjectForKey:">(name);
    return replaceStored(domain, values);
}

bool storeValues(const std::string& domain, const NS::Dictionary& values)
{
    const NS::MutableDictionary all = storedValues(domain).mutableCopy();
    all.send<void, "addEntriesFromDictionary:">(values);
    return replaceStored(domain, all);
}

std::optional<BoundValue> boundValue(const std::string& key)
{
    const auto found = service().lastBound.find(key);
    if (found == service().lastBound.end())
        return std::nullopt;
    if (found->second.boolean)
        return BoundValue{BoundValue::Kind::boolean, *found->second.boolean, {}};
    return BoundValue{BoundValue::Kind::object, false, NS::Object(*found->second.object)};
}

static const StandInClass hbPreferences("HBPreferences", "NSObject",
    BroughtBy{"/Library/Frameworks/Cephei.framework/Cephei"}, [](Binder<HBPreferences>& binder) {
        binder.init<"initWithIdentifier:", &HBPreferences::initWithIdentifier>()
            .def<"identifier", &HBPreferences::identifier>()
            .def<"registerBool:default:forKey:", &HBPreferences::registerBool>()
            .def<"registerObject:default:forKey:", &HBPreferences::registerObject>()
            .def<"objectForKey:", &HBPreferences::objectForKey>()
            .def<"boolForKey:", &HBPreferences::boolForKey>()
            .def<"setObject:forKey:", &HBPreferences::setObject>()
            .def<"setBool:forKey:", &HBPreferences::setBool>()
            .def<"removeObjectForKey:", &HBPreferences::removeObjectForKey>()
            .add();
    });

}
