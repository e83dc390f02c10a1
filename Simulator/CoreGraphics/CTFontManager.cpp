// Font registration: every attempt is recorded, and a failure says why as the phone's text system does.
#include "Platform/CoreText/CTFontManager.hpp"
#include "Platform/Foundation/NSURL.hpp"
#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/CoreGraphics/CGFont.hpp"
#include "Simulator/CoreGraphics/Fonts.hpp"
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Graphics/Font.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/ExtensionCounts.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

#include <array>
#include <span>

namespace Simulator {

namespace {

struct CTFontObject : StandIn {
    using Root = CTFontObject;
    Graphics::FaceNames names;
    double size = 12;
};

using Graphics::RegistrationError;

struct ErrorText {
    RegistrationError error;
    long code;
    const char* reason;
};

constexpr std::array errorTexts = {
    ErrorText{RegistrationError::fileNotFound, 101, "The file does not exist"},
    ErrorText{RegistrationError::invalid, 104, "The data is not valid font data"},
    ErrorText{RegistrationError::alreadyRegistered, 105, "The font is already registered"},
    ErrorText{RegistrationError::notRegistered, 201, "The font is not registered"},
    ErrorText{RegistrationError::unsupportedScope, 307, "The specified scope is not supported"},
};

/// True for success; otherwise the error goes to the caller, if it wants to know.
bool concluded(const Graphics::RegistrationResult& result, const std::string& subject, id* error)
{
    if (result || !error)
        return static_cast<bool>(result);
    for (const ErrorText& text : errorTexts) {
        if (text.error != result.error)
            continue;
        const std::string domain = "com.apple.CoreText.CTFontManagerErrorDomain";
        deliverError(error,
            makeError(NS::String::fromUTF8(domain), text.code,
                "The operation couldn’t be completed. (" + domain + " error " + std::to_string(text.code) + " - "
                    + text.reason + ": '" + subject + "')"));
    }
    return false;
}

/// No scope is none to register with, say the headers of the text system.
bool isUsable(CTFontManagerScope scope)
{
    return scope != CTFontManagerScope::none;
}

Graphics::RegistrationResult unsupportedScope()
{
    return {RegistrationError::unsupportedScope, {}};
}

/// Every attempt counts, since each is work for the text system.
void recordRegistration(const char* key, const std::string& subject, const Graphics::RegistrationResult& result)
{
    ExtensionCounts::shared().add(Count::fontRegistrations);
    ActivityLog::shared().record("registerFont", {{key, subject}, {"ok", static_cast<bool>(result)}});
}

std::string pathOf(id url)
{
    const ObjC::Object object(url);
    if (!object.respondsTo<"path">())
        return {};
    return std::string(object.send<ObjC::Object, "path">().as<NS::String>().utf8());
}

/// Where the file lies on the host; empty if the phone cannot read it.
std::filesystem::path hostFile(const std::string& path)
{
    const PhoneFiles& files = PhoneFiles::shared();
    if (path.empty() || files.fault(path, FileOperation::read))
        return {};
    return files.isPhonePath(path) ? files.hostPath(path) : path;
}

Graphics::RegistrationResult registerFile(const std::string& path)
{
    const auto file = hostFile(path);
    const auto content = file.empty() ? nullptr : PhoneFiles::shared().load(path).value;
    if (!content)
        return fontCatalogue().registerFile(file);
    const Graphics::FontParts parts{
        content->size(), [&](std::size_t offset, std::span<std::byte> part) { return content->copy(offset, part); }};
    auto result = fontCatalogue().registerFile(file, parts);
    for (const std::string& name : result.postScriptNames) {
        const auto font = fontCatalogue().find(name);
        if (font->faceIndex() == 0)
            rememberFontNames(content, {name, font->familyName()});
    }
    return result;
}

}

static const StandInClass ctFont("CTFont", "NSObject", [](Binder<CTFontObject>& binder) { binder.add(); });

}

using namespace Simulator;

extern "C" {

[[gnu::visibility("default")]] bool CTFontManagerRegisterFontsForURL(id url, CTFontManagerScope scope, id* error)
{
    const std::string path = pathOf(url);
    const auto result = isUsable(scope) ? registerFile(path) : unsupportedScope();
    recordRegistration("path", path, result);
    return concluded(result, path, error);
}

[[gnu::visibility("default")]] bool CTFontManagerUnregisterFontsForURL(id url, CTFontManagerScope scope, id* error)
{
    const std::string path = pathOf(url);
    if (!isUsable(scope))
        return concluded(unsupportedScope(), path, error);
    return concluded(fontCatalogue().unregisterFile(hostFile(path)), path, error);
}

[[gnu::visibility("default")]] bool CTFontManagerRegisterGraphicsFont(CGFontRef font, id* error)
{
    const auto* object = fontObjectOf(font);
    const std::string name = object ? object->names.postScriptName : std::string();
    Graphics::RegistrationResult result{RegistrationError::invalid, {}};
    if (object && fontCatalogue().find(name))
        result.error = RegistrationError::alreadyRegistered;
    else if (object)
        result = fontCatalogue().registerData(object->bytes());
    recordRegistration("name", name, result);
    return concluded(result, name, error);
}

[[gnu::visibility("default")]] bool CTFontManagerUnregisterGraphicsFont(CGFontRef font, id* error)
{
    const auto* object = fontObjectOf(font);
    const std::string name = object ? object->names.postScriptName : std::string();
    return concluded(fontCatalogue().unregisterFont(name), name, error);
}

[[gnu::visibility("default")]] CTFontRef CTFontCreateWithGraphicsFont(
    CGFontRef font, CGFloat size, const CGAffineTransform*, const void*)
{
    const auto* source = fontObjectOf(font);
    if (!source)
        return nullptr;
    ObjC::Object object = newInstance("CTFont");
    auto& sized = standIn<CTFontObject>(object.raw());
    sized.names = source->names;
    sized.size = size > 0 ? size : 12;
    return ownedReference<CTFontRef>(std::move(object));
}

[[gnu::visibility("default")]] id CTFontCopyFamilyName(CTFontRef font)
{
    const auto* object = standInBehind<CTFontObject>(font);
    return object ? NS::String::fromUTF8(object->names.familyName).leak() : nullptr;
}
}
