// The system log: what the extension says is in the activity log, and on standard error if that is wanted.
#include "Platform/Foundation/NSLog.hpp"
#include "Simulator/Base/Phone.hpp"
#include "Simulator/Foundation/SystemLog.hpp"
#include "Simulator/Foundation/Texts.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"

#include <cstdarg>
#include <cstdio>
#include <string>

#include <dlfcn.h>
#include <link.h>

namespace Simulator {

namespace {

/// GNUstep reports its own troubles through the same function; they are none of the phone's.
bool isFoundationItself(void* caller)
{
    dl_find_object library;
    return _dl_find_object(caller, &library) == 0
        && std::string_view(library.dlfo_link_map->l_name).find("libgnustep-base") != std::string_view::npos;
}

std::string formatted(id format, va_list arguments)
{
    using InitWithFormat = id (*)(id, SEL, id, va_list);
    const SEL command = ObjC::selector<"initWithFormat:arguments:">();
    try {
        id string = NS::String::sendClass<id, "alloc">();
        const auto init = reinterpret_cast<InitWithFormat>(objc_msg_lookup(string, command));
        return textOf(NS::String::adopting(init(string, command, format, arguments)));
    } catch (...) {
        return "a message whose arguments do not fit its format";
    }
}

void logMessage(id format, va_list arguments, void* caller)
{
    if (!format)
        return;
    const bool own = isFoundationItself(caller);
    const std::string text = formatted(format, arguments);
    if (own || SystemLog::shared().isOnStandardError)
        std::fprintf(stderr, "%s: %s\n", own ? "foundation" : "phone", text.c_str());
    if (!own)
        ActivityLog::shared().record("nslog", {{"text", text}});
}

}

SystemLog& SystemLog::shared()
{
    return Phone::part<SystemLog>();
}

}

extern "C" void NSLog(id format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    Simulator::logMessage(format, arguments, __builtin_return_address(0));
    va_end(arguments);
}

extern "C" void NSLogv(id format, va_list arguments)
{
    Simulator::logMessage(format, arguments, __builtin_return_address(0));
}
