// Dictionaries and arrays in property-list files. They are written as XML; what cannot be read is nil, without a word.
#include "Platform/Foundation/NSData.hpp"
#include "Platform/Foundation/NSDictionary.hpp"
#include "Simulator/Foundation/FileAccess.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/PropertyListObjects.hpp"
#include "Simulator/Foundation/Texts.hpp"

namespace Simulator {

namespace {

constexpr unsigned long oldStyleFormat = 1;
constexpr unsigned long xmlFormat = 100;
constexpr unsigned long binaryFormat = 200;

/// What the two kinds of container call their methods.
struct DictionaryFile {
    using Container = NS::Dictionary;
    using Content = PropertyListDictionary;
    static id init(id self, const ObjC::Object& content)
    {
        return ObjC::sendMessage<id>(self, ObjC::selector<"initWithDictionary:">(), content);
    }
};
struct ArrayFile {
    using Container = NS::Array;
    using Content = PropertyListArray;
    static id init(id self, const ObjC::Object& content)
    {
        return ObjC::sendMessage<id>(self, ObjC::selector<"initWithArray:">(), content);
    }
};

template <class Kind>
id initWithFile(id self, const NS::String& path)
{
    const auto file = readFile(path);
    const auto list = file ? readPropertyList(file.value) : std::nullopt;
    if (!list || !std::holds_alternative<typename Kind::Content>(list->value)) {
        ObjC::release(self);
        return nullptr;
    }
    return Kind::init(self, objectOf(*list));
}

template <class Kind>
id initWithContentsOfFile(id self, SEL, NS::String path)
{
    return initWithFile<Kind>(self, path);
}

template <class Kind>
id initWithContentsOfUrl(id self, SEL, ObjC::Object url)
{
    return initWithFile<Kind>(self, pathOfFileUrl(url));
}

template <class Kind>
ObjC::Object withContentsOfFile(Class self, SEL, NS::String path)
{
    id allocated = ObjC::sendMessage<id>(reinterpret_cast<id>(self), ObjC::selector<"alloc">());
    return ObjC::Object::adopting(initWithFile<Kind>(allocated, path));
}

template <class Kind>
ObjC::Object withContentsOfUrl(Class self, SEL command, ObjC::Object url)
{
    return withContentsOfFile<Kind>(self, command, pathOfFileUrl(url));
}

bool writeContainer(const ObjC::Object& container, const NS::String& path, bool atomically)
{
    const auto list = propertyListOf(container);
    return list
        && writeFile(path, writeXmlPropertyList(*list), atomically ? WriteMode::atomic : WriteMode::direct) == 0;
}

bool writeToFile(ObjC::Object self, SEL, NS::String path, bool atomically)
{
    return writeContainer(self, path, atomically);
}

bool writeToUrl(ObjC::Object self, SEL, ObjC::Object url, bool atomically)
{
    return writeContainer(self, pathOfFileUrl(url), atomically);
}

unsigned long formatOf(std::string_view bytes)
{
    if (bytes.starts_with("bplist"))
        return binaryFormat;
    return readXmlPropertyList(bytes) ? xmlFormat : oldStyleFormat;
}

ObjC::Object propertyListWithData(Class, SEL, NS::Data data, unsigned long options, unsigned long* format, id* error)
{
    constexpr long corrupt = 3840;
    const std::string_view bytes(static_cast<const char*>(data.bytes()), data.length());
    const auto list = readPropertyList(bytes);
    if (!list) {
        reportFileErrorCode(error, corrupt, nullptr);
        return nullptr;
    }
    if (format)
        *format = formatOf(bytes);
    return objectOf(*list, options != 0);
}

ObjC::Object propertyListFromData(
    Class self, SEL command, NS::Data data, unsigned long options, unsigned long* format, id* description)
{
    const ObjC::Object list = propertyListWithData(self, command, data, options, format, nullptr);
    if (!list && description)
        *description = stringOf("The data is no property list.").autoreleased();
    return list;
}

NS::Data dataWithPropertyList(Class, SEL, ObjC::Object object, unsigned long format, unsigned long, id* error)
{
    constexpr long unwritable = 3851;
    const auto list = propertyListOf(object);
    if (!list || (format != xmlFormat && format != binaryFormat)) {
        reportFileErrorCode(error, unwritable, nullptr);
        return nullptr;
    }
    const std::string bytes = format == xmlFormat ? writeXmlPropertyList(*list) : writeBinaryPropertyList(*list);
    return NS::Data::dataWithBytes(bytes.data(), bytes.size());
}

NS::Data dataFromPropertyList(Class self, SEL command, ObjC::Object object, unsigned long format, id* description)
{
    const NS::Data data = dataWithPropertyList(self, command, object, format, 0, nullptr);
    if (!data && description)
        *description = stringOf("The object has no place in a property list of this format.").autoreleased();
    return data;
}

bool isValidForFormat(Class, SEL, ObjC::Object object, unsigned long)
{
    return propertyListOf(object).has_value();
}

template <class Kind>
void registerContainer(const char* className, const char* mutableName, const char* withFile, const char* withUrl)
{
    replaceInFamily<initWithContentsOfFile<Kind>>(className, "initWithContentsOfFile:");
    replaceInFamily<initWithContentsOfUrl<Kind>>(className, "initWithContentsOfURL:");
    replaceInFamily<writeToFile>(className, "writeToFile:atomically:");
    replaceInFamily<writeToUrl>(className, "writeToURL:atomically:");
    for (const char* name : {className, mutableName}) {
        replaceClassMethod<withContentsOfFile<Kind>>(name, withFile);
        replaceClassMethod<withContentsOfUrl<Kind>>(name, withUrl);
    }
}

}

static const Mending nsPropertyList("NSPropertyList", [] {
    registerContainer<DictionaryFile>(
        "NSDictionary", "NSMutableDictionary", "dictionaryWithContentsOfFile:", "dictionaryWithContentsOfURL:");
    registerContainer<ArrayFile>("NSArray", "NSMutableArray", "arrayWithContentsOfFile:", "arrayWithContentsOfURL:");
    constexpr const char* serialization = "NSPropertyListSerialization";
    replaceClassMethod<propertyListWithData>(serialization, "propertyListWithData:options:format:error:");
    replaceClassMethod<propertyListFromData>(
        serialization, "propertyListFromData:mutabilityOption:format:errorDescription:");
    replaceClassMethod<dataWithPropertyList>(serialization, "dataWithPropertyList:format:options:error:");
    replaceClassMethod<dataFromPropertyList>(serialization, "dataFromPropertyList:format:errorDescription:");
    replaceClassMethod<isValidForFormat>(serialization, "propertyList:isValidForFormat:");
});

}
