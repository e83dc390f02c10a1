// Fonts from data. The bytes are looked at once, when the font is made.
#include "Simulator/CoreGraphics/CGFont.hpp"

#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/Foundation/PhoneFileData.hpp"
#include "Simulator/Graphics/FontCatalogue.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

#include <algorithm>

namespace Simulator {

namespace {

struct KnownFont {
    std::weak_ptr<const FileContent> content;
    Graphics::FaceNames names;
};
constexpr std::size_t mostKnownFonts = 8;

std::vector<KnownFont>& knownFonts()
{
    static auto* fonts = new std::vector<KnownFont>;
    return *fonts;
}

std::optional<Graphics::FaceNames> namesOf(const NS::Data& data)
{
    const auto* file = standInOrNull<PhoneFileData>(data);
    const auto content = file ? file->content : nullptr;
    const auto known
        = std::ranges::find_if(knownFonts(), [&](const KnownFont& font) { return font.content.lock() == content; });
    if (content && known != knownFonts().end())
        return known->names;
    auto names = Graphics::FontCatalogue::namesOf({static_cast<const std::byte*>(data.bytes()), data.length()});
    if (content && names)
        rememberFontNames(content, *names);
    return names;
}

}

void rememberFontNames(const std::shared_ptr<const FileContent>& content, const Graphics::FaceNames& names)
{
    if (knownFonts().size() >= mostKnownFonts)
        knownFonts().erase(knownFonts().begin());
    knownFonts().push_back({content, names});
}

std::span<const std::byte> CGFontObject::bytes() const
{
    return {static_cast<const std::byte*>(data.bytes()), data.length()};
}

CGFontObject* fontObjectOf(CGFontRef font)
{
    return standInBehind<CGFontObject>(font);
}

static const StandInClass cgDataProvider(
    "CGDataProvider", "NSObject", [](Binder<CGDataProviderObject>& binder) { binder.add(); });

static const StandInClass cgFont("CGFont", "NSObject", [](Binder<CGFontObject>& binder) { binder.add(); });

}

using namespace Simulator;

extern "C" {

[[gnu::visibility("default")]] CGDataProviderRef CGDataProviderCreateWithCFData(id data)
{
    const auto bytes = ObjC::Object(data).as<NS::Data>();
    if (!bytes)
        return nullptr;
    ObjC::Object provider = newInstance("CGDataProvider");
    standIn<CGDataProviderObject>(provider.raw()).data = bytes;
    return ownedReference<CGDataProviderRef>(std::move(provider));
}

[[gnu::visibility("default")]] void CGDataProviderRelease(CGDataProviderRef provider)
{
    ObjC::release(reinterpret_cast<id>(provider));
}

[[gnu::visibility("default")]] CGFontRef CGFontCreateWithDataProvider(CGDataProviderRef provider)
{
    const auto* source = standInBehind<CGDataProviderObject>(provider);
    if (!source)
        return nullptr;
    auto names = namesOf(source->data);
    if (!names)
        return nullptr;
    ObjC::Object object = newInstance("CGFont");
    auto& font = standIn<CGFontObject>(object.raw());
    font.data = source->data;
    font.names = std::move(*names);
    return ownedReference<CGFontRef>(std::move(object));
}

[[gnu::visibility("default")]] void CGFontRelease(CGFontRef font)
{
    ObjC::release(reinterpret_cast<id>(font));
}

[[gnu::visibility("default")]] id CGFontCopyPostScriptName(CGFontRef font)
{
    const auto* object = fontObjectOf(font);
    return object ? NS::String::fromUTF8(object->names.postScriptName).leak() : nullptr;
}
}
