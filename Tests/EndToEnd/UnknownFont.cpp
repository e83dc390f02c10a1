// Another extension, which puts a font onto the phone's lists that the phone does not have.
#include "Platform/UIKit/UIFont.hpp"

namespace {

using FontNames = id (*)(id, SEL, id);
FontNames stockNames;

id fontNamesForFamilyName(id self, SEL command, id family)
{
    NS::Array names(stockNames(self, command, family));
    if (!NS::String(family).isEqualToString("Lato"_ns))
        return names.raw();
    auto more = names.mutableCopy();
    more.addObject("NoSuchFont"_ns);
    return more.autoreleased();
}

[[gnu::constructor]] void install()
{
    Class fonts = object_getClass(reinterpret_cast<id>(UI::Font::type()));
    Method method = class_getInstanceMethod(fonts, ObjC::selector<"fontNamesForFamilyName:">());
    stockNames
        = reinterpret_cast<FontNames>(method_setImplementation(method, reinterpret_cast<IMP>(&fontNamesForFamilyName)));
}

}
