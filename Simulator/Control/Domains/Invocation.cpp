// The call itself is libffi's, since its shape is known at run time only.
#include "Simulator/Control/Domains/Invocation.hpp"

#include "Platform/Foundation/NSString.hpp"
#include "Simulator/Control/Domains/PhoneContext.hpp"
#include "Simulator/Control/Domains/RuntimeValues.hpp"

#include <ffi.h>

#include <cstring>
#include <deque>
#include <map>
#include <memory>

namespace Simulator::Control {

namespace {

/// A type of a method as libffi knows it, and the bytes of one value of it.
struct Slot {
    char code = 'v';
    ffi_type* type = &ffi_type_void;
    std::size_t fields = 0; // of a structure, all of them doubles
    alignas(16) unsigned char bytes[64]{};
    std::string text; // what a C string points to
    NS::Object object; // kept alive during the call
};

template <class T>
void store(Slot& slot, T value)
{
    std::memcpy(slot.bytes, &value, sizeof value);
}

template <class T>
T load(const Slot& slot)
{
    T value;
    std::memcpy(&value, slot.bytes, sizeof value);
    return value;
}

/// How the plain numbers of a type encoding are passed, read from JSON and written to it.
struct NumberKind {
    ffi_type* type;
    void (*read)(Slot&, const Json&);
    Json (*write)(const Slot&);
};

template <class T>
NumberKind numberKind(ffi_type* type)
{
    return {type, [](Slot& slot, const Json& json) { store<T>(slot, json.get<T>()); },
        [](const Slot& slot) { return Json(load<T>(slot)); }};
}

const NumberKind* numberKindOf(char code)
{
    static const std::map<char, NumberKind> kinds = {
        {'c', numberKind<signed char>(&ffi_type_sint8)},
        {'C', numberKind<unsigned char>(&ffi_type_uint8)},
        {'s', numberKind<short>(&ffi_type_sint16)},
        {'S', numberKind<unsigned short>(&ffi_type_uint16)},
        {'i', numberKind<int>(&ffi_type_sint32)},
        {'I', numberKind<unsigned>(&ffi_type_uint32)},
        {'l', numberKind<long>(&ffi_type_sint64)},
        {'L', numberKind<unsigned long>(&ffi_type_uint64)},
        {'q', numberKind<long>(&ffi_type_sint64)},
        {'Q', numberKind<unsigned long>(&ffi_type_uint64)},
        {'f', numberKind<float>(&ffi_type_float)},
        {'d', numberKind<double>(&ffi_type_double)},
    };
    auto found = kinds.find(code);
    return found == kinds.end() ? nullptr : &found->second;
}

/// A structure of doubles, the only kind that UIKit's geometry has. Its members are kept for good, few as they are.
ffi_type* structureOfDoubles(std::size_t fields)
{
    struct Structure {
        std::vector<ffi_type*> members;
        ffi_type type{};
    };
    static std::map<std::size_t, std::unique_ptr<Structure>> structures;
    auto& structure = structures[fields];
    if (!structure) {
        structure = std::make_unique<Structure>();
        structure->members.assign(fields, &ffi_type_double);
        structure->members.push_back(nullptr);
        structure->type.type = FFI_TYPE_STRUCT;
        structure->type.elements = structure->members.data();
    }
    return &structure->type;
}

std::size_t doublesIn(const char* encoding, const char* end)
{
    std::size_t count = 0;
    bool inName = false;
    for (; encoding < end; ++encoding) {
        if (*encoding == '{')
            inName = true;
        else if (*encoding == '=')
            inName = false;
        else if (!inName && *encoding == 'd')
            ++count;
    }
    return count;
}

/// Reads the type at the front of an encoding and moves past it and its offset.
Slot nextSlot(const char*& encoding)
{
    const char* start = objc_skip_type_qualifiers(encoding);
    encoding = objc_skip_argspec(encoding);
    Slot slot;
    slot.code = *start;
    if (slot.code == '{') {
        slot.fields = doublesIn(start, encoding);
        slot.type = structureOfDoubles(slot.fields);
    } else if (auto* kind = numberKindOf(slot.code))
        slot.type = kind->type;
    else if (slot.code == 'B')
        slot.type = &ffi_type_uint8;
    else if (slot.code != 'v')
        slot.type = &ffi_type_pointer;
    // A block, of which nothing but none can be written down.
    if (slot.code == '@' && *encoding == '?') {
        slot.code = '?';
        encoding += 1 + std::strspn(encoding + 1, "0123456789");
    }
    return slot;
}

[[noreturn]] void refuse(std::size_t index, const std::string& takes, const Json& given)
{
    throw ProtocolError(
        ErrorCode::badParameters, "args[" + std::to_string(index) + "] takes " + takes + ", not " + quote(given));
}

void fillStructure(Slot& slot, std::size_t index, const Json& json)
{
    const std::string takes = "a list of " + std::to_string(slot.fields) + " numbers";
    if (!json.is_array() || json.size() != slot.fields)
        refuse(index, takes, json);
    for (std::size_t i = 0; i < slot.fields; ++i) {
        if (!json[i].is_number())
            refuse(index, takes, json);
        double number = json[i];
        std::memcpy(slot.bytes + i * sizeof number, &number, sizeof number);
    }
}

void fill(Slot& slot, std::size_t index, const Json& json, const ObjectReader& readObject)
{
    if (slot.code == '{')
        return fillStructure(slot, index, json);
    if (auto* kind = numberKindOf(slot.code)) {
        if (!json.is_number() && !json.is_boolean())
            refuse(index, "a number", json);
        return kind->read(slot, json);
    }
    switch (slot.code) {
    case 'B':
        if (!json.is_boolean())
            refuse(index, "true or false", json);
        return store<unsigned char>(slot, json.get<bool>());
    case '@':
    case '#':
        slot.object = readObject(json);
        return store(slot, slot.object.raw());
    case ':':
    case '*':
        if (!json.is_string())
            refuse(index, "a text", json);
        slot.text = json;
        return slot.code == ':' ? store(slot, sel_registerName(slot.text.c_str())) : store(slot, slot.text.c_str());
    default:
        if (!json.is_null())
            refuse(index, "null, the only pointer that can be written down", json);
    }
}

Json jsonOf(const Slot& slot)
{
    if (slot.code == '{') {
        Json json = Json::array();
        for (std::size_t i = 0; i < slot.fields; ++i) {
            double number;
            std::memcpy(&number, slot.bytes + i * sizeof number, sizeof number);
            json.push_back(number);
        }
        return json;
    }
    // libffi widens whole results that are smaller than a register.
    if (auto* kind = numberKindOf(slot.code))
        return kind->write(slot);
    switch (slot.code) {
    case 'B':
        return slot.bytes[0] != 0;
    case '@':
        return jsonOfObject(NS::Object(load<id>(slot)));
    case '#':
        return load<Class>(slot) ? Json(class_getName(load<Class>(slot))) : Json();
    case ':':
        return load<SEL>(slot) ? Json(sel_getName(load<SEL>(slot))) : Json();
    case '*':
        return load<const char*>(slot) ? Json(load<const char*>(slot)) : Json();
    default:
        return nullptr;
    }
}

::Method methodOf(id target, SEL selector, bool ofSuperclass)
{
    Class type = object_getClass(target);
    return class_getInstanceMethod(ofSuperclass ? class_getSuperclass(type) : type, selector);
}

Json call(IMP implementation, Slot& result, std::deque<Slot>& slots)
{
    std::vector<ffi_type*> types;
    std::vector<void*> values;
    for (Slot& slot : slots) {
        types.push_back(slot.type);
        values.push_back(slot.bytes);
    }
    ffi_cif interface;
    if (ffi_prep_cif(&interface, FFI_DEFAULT_ABI, static_cast<unsigned>(types.size()), result.type, types.data())
        != FFI_OK)
        throw ProtocolError(ErrorCode::internal, "this method cannot be called by hand");
    ffi_call(&interface, reinterpret_cast<void (*)()>(implementation), result.bytes, values.data());
    return jsonOf(result);
}

}

Json invoke(id target, const std::string& selectorName, const Json& arguments, bool ofSuperclass,
    const ObjectReader& readObject)
{
    SEL selector = sel_registerName(selectorName.c_str());
    ::Method method = methodOf(target, selector, ofSuperclass);
    if (!method)
        throwNotFound(std::string(class_getName(object_getClass(target))) + " has no method " + quote(selectorName));
    const char* encoding = method_getTypeEncoding(method);
    Slot result = nextSlot(encoding);
    std::deque<Slot> slots;
    while (*encoding)
        slots.push_back(nextSlot(encoding));
    if (arguments.size() + 2 != slots.size())
        throw ProtocolError(ErrorCode::badParameters,
            "args takes " + std::to_string(slots.size() - 2) + " values for " + quote(selectorName));
    store(slots[0], target);
    store(slots[1], selector);
    for (std::size_t i = 0; i < arguments.size(); ++i)
        fill(slots[i + 2], i, arguments[i], readObject);
    return call(method_getImplementation(method), result, slots);
}

}
