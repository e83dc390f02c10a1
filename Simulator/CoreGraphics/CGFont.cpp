// Fonts from data. The bytes are looked at once, when the font is made.
#include "Simulator/CoreGraphics/CGFont.hpp"

#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/Graphics/FontCatalogue.hpp"

namespace Simulator {

std::span<const std::byte> CGFontObject::bytes() const
{
    return {static_cast<const std::byte*>(data.bytes()), data.length()};
}

CGFontObject* fontObjectOf(CGFontRef font)
{
    return standInBehind<CGFontObject>(font);
}

void registerCGFont()
{
    Binder<CGDataProviderObject>("CGDataProvider", "NSObject").add();
    Binder<CGFontObject>("CGFont", "NSObject").add();
}

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
    const std::span bytes(static_cast<const std::byte*>(source->data.bytes()), source->data.length());
    auto names = Graphics::FontCatalogue::namesOf(bytes);
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
