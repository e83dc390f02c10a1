// By GNUstep's NSException, which says the reason when nobody catches it.
#include "Simulator/Foundation/Exceptions.hpp"

#include "Platform/Foundation/NSDictionary.hpp"

#include <cstdlib>

namespace Simulator {

void raiseException(const char* name, const std::string& reason)
{
    const ObjC::Object exception(ObjC::sendMessage<id>(reinterpret_cast<id>(objc_getClass("NSException")),
        ObjC::selector<"exceptionWithName:reason:userInfo:">(), NS::String::fromUTF8(name),
        NS::String::fromUTF8(reason), NS::Dictionary()));
    exception.send<void, "raise">();
    std::abort();
}

}
