// Files as bytes, from and to the phone's file system.
#include "Platform/Foundation/NSData.hpp"
#include "Simulator/Foundation/FileAccess.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/PhoneFileData.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

namespace Simulator {

namespace {

constexpr unsigned long writeAtomically = 1;

id alloc(Class self)
{
    return ObjC::sendMessage<id>(reinterpret_cast<id>(self), ObjC::selector<"alloc">());
}

/// An object with the file's bytes, or nil and the reason. Those of mutable data are its own.
id initWithFile(id self, const NS::String& path, id* error)
{
    static const Class mutableData = objc_getClass("NSMutableData");
    static const Class fileData = objc_getClass("PhoneFileData");
    const ObjC::Object allocated = ObjC::Object::adopting(self);
    auto file = loadFile(path);
    if (!file) {
        reportFileError(error, file.error, path, false);
        return nullptr;
    }
    if (allocated.isKindOf(mutableData))
        return ObjC::sendMessage<id>(ObjC::retain(self), ObjC::selector<"initWithBytes:length:">(),
            static_cast<const void*>(file.value->bytes().data()), static_cast<unsigned long>(file.value->size()));
    const id data = alloc(fileData);
    standIn<PhoneFileData>(data).content = std::move(file.value);
    return data;
}

id initWithContentsOfFile(id self, SEL, NS::String path)
{
    return initWithFile(self, path, nullptr);
}

id initWithContentsOfFileOptions(id self, SEL, NS::String path, unsigned long, id* error)
{
    return initWithFile(self, path, error);
}

/// The phone is offline: only files have contents.
id initWithContentsOfUrl(id self, SEL, ObjC::Object url)
{
    return initWithFile(self, pathOfFileUrl(url), nullptr);
}

id initWithContentsOfUrlOptions(id self, SEL, ObjC::Object url, unsigned long, id* error)
{
    return initWithFile(self, pathOfFileUrl(url), error);
}

NS::Data dataWithContentsOfFile(Class self, SEL, NS::String path)
{
    return NS::Data::adopting(initWithFile(alloc(self), path, nullptr));
}

NS::Data dataWithContentsOfFileOptions(Class self, SEL, NS::String path, unsigned long, id* error)
{
    return NS::Data::adopting(initWithFile(alloc(self), path, error));
}

NS::Data dataWithContentsOfUrl(Class self, SEL, ObjC::Object url)
{
    return NS::Data::adopting(initWithFile(alloc(self), pathOfFileUrl(url), nullptr));
}

NS::Data dataWithContentsOfUrlOptions(Class self, SEL, ObjC::Object url, unsigned long, id* error)
{
    return NS::Data::adopting(initWithFile(alloc(self), pathOfFileUrl(url), error));
}

bool write(const NS::Data& data, const NS::String& path, bool atomically, id* error)
{
    const int number = writeFile(path, {static_cast<const char*>(data.bytes()), data.length()},
        atomically ? WriteMode::atomic : WriteMode::direct);
    if (number)
        reportFileError(error, number, path, true);
    return number == 0;
}

bool writeToFile(NS::Data self, SEL, NS::String path, bool atomically)
{
    return write(self, path, atomically, nullptr);
}

bool writeToFileOptions(NS::Data self, SEL, NS::String path, unsigned long options, id* error)
{
    return write(self, path, options & writeAtomically, error);
}

bool writeToUrl(NS::Data self, SEL, ObjC::Object url, bool atomically)
{
    return write(self, pathOfFileUrl(url), atomically, nullptr);
}

bool writeToUrlOptions(NS::Data self, SEL, ObjC::Object url, unsigned long options, id* error)
{
    return write(self, pathOfFileUrl(url), options & writeAtomically, error);
}

}

static const StandInClass phoneFileData("PhoneFileData", "NSData", [](Binder<PhoneFileData>& binder) {
    binder.def<"bytes", &PhoneFileData::bytes>()
        .def<"length", &PhoneFileData::length>()
        .def<"copyWithZone:", &PhoneFileData::copyWithZone>()
        .add();
    replaceInFamily<initWithContentsOfFile>("NSData", "initWithContentsOfFile:");
    replaceInFamily<initWithContentsOfFileOptions>("NSData", "initWithContentsOfFile:options:error:");
    replaceInFamily<initWithContentsOfUrl>("NSData", "initWithContentsOfURL:");
    replaceInFamily<initWithContentsOfUrlOptions>("NSData", "initWithContentsOfURL:options:error:");
    replaceInFamily<writeToFile>("NSData", "writeToFile:atomically:");
    replaceInFamily<writeToFileOptions>("NSData", "writeToFile:options:error:");
    replaceInFamily<writeToUrl>("NSData", "writeToURL:atomically:");
    replaceInFamily<writeToUrlOptions>("NSData", "writeToURL:options:error:");
    for (const char* className : {"NSData", "NSMutableData"}) {
        replaceClassMethod<dataWithContentsOfFile>(className, "dataWithContentsOfFile:");
        replaceClassMethod<dataWithContentsOfFileOptions>(className, "dataWithContentsOfFile:options:error:");
        replaceClassMethod<dataWithContentsOfUrl>(className, "dataWithContentsOfURL:");
        replaceClassMethod<dataWithContentsOfUrlOptions>(className, "dataWithContentsOfURL:options:error:");
    }
});

}
