// The class `WKSPalette`: four strong references.
#include "WKSPalette/WKSPalette.hpp"

#include "Platform/ObjC/Method.hpp"

namespace LYR {

namespace {

constexpr const char* entryVariables[] = {"_background", "_primary", "_secondary", "_detail"};
enum Entry { background, primary, secondary, detail };

template <Entry entry>
UI::Color getEntry(id self, SEL)
{
    return ObjC::ownedVariable<UI::Color>(self, entryVariables[entry]);
}

template <Entry entry>
void setEntry(id self, SEL, ObjC::Object color)
{
    ObjC::setOwnedVariable(self, entryVariables[entry], color.as<UI::Color>());
}

void dealloc(id self, SEL command)
{
    for (const char* name : entryVariables)
        ObjC::setOwnedVariable(self, name, nullptr);
    ObjC::callImplementation<void>(ObjC::inheritedImplementation<NS::Object>(command), self, command);
}

}

void registerPaletteClass()
{
    auto builder = ObjC::ClassBuilder::of<WKSPalette>(NS::Object::type());
    for (const char* name : entryVariables)
        builder.ivar<id>(name);
    builder.method<"background", &getEntry<background>>()
        .method<"setBackground:", &setEntry<background>>()
        .method<"primary", &getEntry<primary>>()
        .method<"setPrimary:", &setEntry<primary>>()
        .method<"secondary", &getEntry<secondary>>()
        .method<"setSecondary:", &setEntry<secondary>>()
        .method<"detail", &getEntry<detail>>()
        .method<"setDetail:", &setEntry<detail>>()
        .method<"dealloc", &dealloc>()
        .build();
}

}
