// Where Foundation's paths lead: to the phone's files, or to what GNUstep itself reads on the host.
#pragma once

#include "Platform/Foundation/NSArray.hpp"
#include "Platform/Foundation/NSString.hpp"
#include "Simulator/Files/PhoneFiles.hpp"

#include <optional>
#include <string>

namespace Simulator {

/// The phone's path that a path of the shell means when it is read: one in the phone's folders, or anywhere else if
/// there is such a file on the phone. Nothing for a file of the host.
std::optional<std::string> phonePathToRead(const std::string& path);

/// Likewise when it is written: the shell never writes outside of the phone.
std::optional<std::string> phonePathToWrite(const std::string& path);

/// The bytes of a file of the phone or, failing that, of the host.
FileResult<std::string> readFile(const NS::String& path);
/// Likewise, without a copy for each reader.
FileResult<PhoneFiles::Content> loadFile(const NS::String& path);
int writeFile(const NS::String& path, std::string_view bytes, WriteMode mode);

/// The path of a file URL; nil for any other.
NS::String pathOfFileUrl(const ObjC::Object& url);

/// Hands out what an errno means as the phone's error object, unless the caller does not want to know.
void reportFileErrorCode(id* error, long code, const NS::String& path);
void reportFileError(id* error, int number, const NS::String& path, bool writing);

}
