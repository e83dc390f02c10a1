// The phone's files through NSFileManager. What GNUstep does by path on its own is led to the root folder as well,
// since all of it asks for the file-system representation first.
#include "Platform/Foundation/NSFileManager.hpp"
#include "Platform/Foundation/NSData.hpp"
#include "Platform/Foundation/NSURL.hpp"
#include "Simulator/Foundation/FileAccess.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/Texts.hpp"

#include <cerrno>

namespace Simulator {

namespace {

IMP stockRepresentation = nullptr;
IMP stockString = nullptr;
IMP stockContents = nullptr;
IMP stockDirectoryContents = nullptr;
IMP stockExists = nullptr;

const char* representationWithPath(id self, SEL command, NS::String path)
{
    if (const auto phonePath = phonePathToRead(textOf(path)))
        return stringOf(PhoneFiles::shared().hostPath(*phonePath)).send<const char*, "UTF8String">();
    return ObjC::callImplementation<const char*>(stockRepresentation, self, command, path);
}

NS::String stringWithRepresentation(id self, SEL command, const char* path, unsigned long length)
{
    const std::string hostPath(path ? std::string_view(path, length) : std::string_view());
    const std::string phonePath = PhoneFiles::shared().phonePath(hostPath);
    if (phonePath != hostPath)
        return stringOf(phonePath);
    return ObjC::callImplementation<NS::String>(stockString, self, command, path, length);
}

bool fileExistsIsDirectory(id self, SEL command, NS::String path, unsigned char* isDirectory)
{
    const auto phonePath = phonePathToRead(textOf(path));
    if (!phonePath)
        return ObjC::callImplementation<bool>(stockExists, self, command, path, isDirectory);
    const auto presence = PhoneFiles::shared().presence(*phonePath);
    if (isDirectory)
        *isDirectory = presence == PhoneFiles::Presence::folder;
    return presence != PhoneFiles::Presence::none;
}

bool fileExists(NS::FileManager self, SEL, NS::String path)
{
    return path && self.send<bool, "fileExistsAtPath:isDirectory:">(path, static_cast<unsigned char*>(nullptr));
}

NS::Array contentsOfDirectory(id self, SEL command, NS::String path, id* error)
{
    const std::string name = textOf(path);
    const auto phonePath = phonePathToRead(name);
    if (!phonePath && !name.empty())
        return ObjC::callImplementation<NS::Array>(stockContents, self, command, path, error);
    const auto list = PhoneFiles::shared().list(phonePath.value_or(""));
    if (!list) {
        reportFileError(error, list.error, path, false);
        return nullptr;
    }
    const NS::MutableArray names = NS::MutableArray::make();
    for (const auto& entry : list.value)
        names.addObject(stringOf(entry));
    return names;
}

/// GNUstep's own contentsOfDirectoryAtPath:error: comes here for a folder of the host.
NS::Array directoryContents(NS::FileManager self, SEL command, NS::String path)
{
    if (phonePathToRead(textOf(path)))
        return self.contentsOfDirectoryAtPath(path);
    return ObjC::callImplementation<NS::Array>(stockDirectoryContents, self.raw(), command, path);
}

NS::Array contentsOfDirectoryUrl(NS::FileManager self, SEL, NS::URL url, ObjC::Object, unsigned long options, id* error)
{
    constexpr unsigned long skipsHiddenFiles = 4;
    const NS::String folder = pathOfFileUrl(url);
    const auto names = self.send<NS::Array, "contentsOfDirectoryAtPath:error:">(folder, error);
    if (!names)
        return nullptr;
    const NS::MutableArray urls = NS::MutableArray::make();
    for (unsigned long index = 0; index < names.count(); ++index) {
        const NS::String name = names.at<NS::String>(index);
        if (!(options & skipsHiddenFiles) || !name.utf8().starts_with('.'))
            urls.addObject(NS::URL::fileURLWithPath(folder.send<NS::String, "stringByAppendingPathComponent:">(name)));
    }
    return urls;
}

NS::Data contentsAtPath(id, SEL, NS::String path)
{
    return NS::Data::dataWithContentsOfFile(path);
}

bool createFile(id, SEL, NS::String path, NS::Data contents, ObjC::Object)
{
    return writeFile(path, {static_cast<const char*>(contents.bytes()), contents.length()}, WriteMode::atomic) == 0;
}

/// Answers whether it worked, and hands out the reason if not.
bool finished(int number, const NS::String& path, id* error)
{
    if (number)
        reportFileError(error, number, path, true);
    return number == 0;
}

bool removeItem(id, SEL, NS::String path, id* error)
{
    const auto phonePath = phonePathToWrite(textOf(path));
    return finished(phonePath ? PhoneFiles::shared().remove(*phonePath) : ENODEV, path, error);
}

bool createDirectory(id, SEL, NS::String path, bool withIntermediates, ObjC::Object, id* error)
{
    const auto phonePath = phonePathToWrite(textOf(path));
    return finished(phonePath ? PhoneFiles::shared().createFolder(*phonePath, withIntermediates) : ENODEV, path, error);
}

bool moveItem(id, SEL, NS::String from, NS::String to, id* error)
{
    PhoneFiles& files = PhoneFiles::shared();
    const auto source = phonePathToWrite(textOf(from));
    const auto target = phonePathToWrite(textOf(to));
    if (target && files.exists(*target))
        return finished(EEXIST, to, error);
    return finished(source && target ? files.rename(*source, *target) : ENODEV, from, error);
}

int copyTree(const std::string& from, const std::string& to)
{
    PhoneFiles& files = PhoneFiles::shared();
    if (!files.isFolder(from)) {
        const auto file = files.read(from);
        return file ? files.write(to, file.value, WriteMode::atomic) : file.error;
    }
    const auto names = files.list(from);
    int number = names ? files.createFolder(to, false) : names.error;
    for (std::size_t index = 0; number == 0 && index < names.value.size(); ++index)
        number = copyTree(from + "/" + names.value[index], to + "/" + names.value[index]);
    return number;
}

bool copyItem(id, SEL, NS::String from, NS::String to, id* error)
{
    const auto source = phonePathToWrite(textOf(from));
    const auto target = phonePathToWrite(textOf(to));
    if (!source || !target)
        return finished(ENODEV, from, error);
    const bool intoItself
        = (PhoneFiles::canonicalPath(*target) + "/").starts_with(PhoneFiles::canonicalPath(*source) + "/");
    if (intoItself || PhoneFiles::shared().exists(*target))
        return finished(intoItself ? EINVAL : EEXIST, to, error);
    return finished(copyTree(*source, *target), from, error);
}

IMP stockMethod(const char* selectorName)
{
    return class_getMethodImplementation(objc_getClass("NSFileManager"), sel_registerName(selectorName));
}

}

static const Mending nsFileManager("NSFileManager", [] {
    constexpr const char* manager = "NSFileManager";
    stockRepresentation = stockMethod("fileSystemRepresentationWithPath:");
    stockString = stockMethod("stringWithFileSystemRepresentation:length:");
    stockContents = stockMethod("contentsOfDirectoryAtPath:error:");
    stockDirectoryContents = stockMethod("directoryContentsAtPath:");
    stockExists = stockMethod("fileExistsAtPath:isDirectory:");
    replaceInFamily<representationWithPath>(manager, "fileSystemRepresentationWithPath:");
    replaceInFamily<stringWithRepresentation>(manager, "stringWithFileSystemRepresentation:length:");
    replaceInFamily<fileExistsIsDirectory>(manager, "fileExistsAtPath:isDirectory:");
    replaceInFamily<fileExists>(manager, "fileExistsAtPath:");
    replaceInFamily<contentsOfDirectory>(manager, "contentsOfDirectoryAtPath:error:");
    replaceInFamily<directoryContents>(manager, "directoryContentsAtPath:");
    replaceInFamily<contentsOfDirectoryUrl>(
        manager, "contentsOfDirectoryAtURL:includingPropertiesForKeys:options:error:");
    replaceInFamily<contentsAtPath>(manager, "contentsAtPath:");
    replaceInFamily<createFile>(manager, "createFileAtPath:contents:attributes:");
    replaceInFamily<removeItem>(manager, "removeItemAtPath:error:");
    replaceInFamily<createDirectory>(manager, "createDirectoryAtPath:withIntermediateDirectories:attributes:error:");
    replaceInFamily<moveItem>(manager, "moveItemAtPath:toPath:error:");
    replaceInFamily<copyItem>(manager, "copyItemAtPath:toPath:error:");
});

}
