// JSON as strictly as the phone reads it: a single value, no fragment unless allowed, no nesting without end.
#include "Platform/Foundation/NSData.hpp"
#include "Simulator/Foundation/Exceptions.hpp"
#include "Simulator/Foundation/FileAccess.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/Texts.hpp"

namespace Simulator {

namespace {

constexpr unsigned long allowFragments = 4;
constexpr int deepestJson = 512;

IMP stockObjectWithData = nullptr;

/// Whether the brackets outside of strings match, are not too deep, and nothing follows the outermost pair.
bool hasSoundBrackets(std::string_view text)
{
    std::string open;
    bool inString = false;
    bool closed = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char character = text[at];
        if (inString) {
            at += character == '\\';
            inString = character != '"';
            continue;
        }
        const bool space = std::string_view(" \t\r\n").find(character) != std::string_view::npos;
        if (closed && !space)
            return false;
        inString = character == '"';
        if (character == '[' || character == '{') {
            open += character == '[' ? ']' : '}';
            if (open.size() > deepestJson)
                return false;
        } else if (character == ']' || character == '}') {
            if (open.empty() || open.back() != character)
                return false;
            open.pop_back();
            closed = open.empty();
        }
    }
    return open.empty() && !inString;
}

/// GNUstep tells the encoding by itself; other than UTF-8 it is looked at as UTF-8 here, too.
std::string asUtf8(const NS::Data& data)
{
    std::string_view bytes(static_cast<const char*>(data.bytes()), data.length());
    if (bytes.starts_with("\xEF\xBB\xBF"))
        bytes.remove_prefix(3);
    std::string text;
    for (const char byte : bytes) {
        if (byte != '\0')
            text += byte;
    }
    return text;
}

ObjC::Object objectWithData(id self, SEL command, NS::Data data, unsigned long options, id* error)
{
    constexpr long corrupt = 3840;
    if (!data)
        raiseException(
            "NSInvalidArgumentException", "+[NSJSONSerialization JSONObjectWithData:options:error:]: nil data");
    const std::string text = data ? asUtf8(data) : std::string();
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    const bool isFragment = first != std::string::npos && text[first] != '[' && text[first] != '{';
    ObjC::Object result;
    if (first != std::string::npos && hasSoundBrackets(text) && (!isFragment || (options & allowFragments))) {
        try {
            result = ObjC::callImplementation<ObjC::Object>(stockObjectWithData, self, command, data, options, error);
        } catch (...) {
            result = nullptr; // GNUstep raises where the phone reports
        }
    }
    if (!result)
        reportFileErrorCode(error, corrupt, nullptr);
    return result;
}

}

static const Mending nsJSONSerialization("NSJSONSerialization", [] {
    const SEL selector = sel_registerName("JSONObjectWithData:options:error:");
    stockObjectWithData
        = method_getImplementation(class_getClassMethod(objc_getClass("NSJSONSerialization"), selector));
    replaceClassMethod<objectWithData>("NSJSONSerialization", "JSONObjectWithData:options:error:");
});

}
