// The class `WKSPalette`: four strong references.
#include "WKSPalette/WKSPalette.hpp"

#include "Platform/ObjC/Method.hpp"

namespace LYR {

namespace {

constexpr const char* entryVariables[] = {"_background", "_primary", "_secondary", "_detail"};
enum Entry { background, primary, secondary, detail };

ObjC::InstanceVariable<id> variable(id self, const char* name)
{
    return {self, name};
}

template <Entry entry>
UI::Color getEntry(id self, SEL)
{
    return UI::Color(variable(self, entryVariables[entry]).get());
}

void storeEntry(id self, const char* name, id color)
{
    ObjC::InstanceVariable<id> stored = variable(self, name);
    id previous = stored.get();
    stored.set(ObjC::retain(color));
    ObjC::release(previous);
}

template <Entry entry>
void setEntry(id self, SEL, ObjC::Object color)
{
    storeEntry(self, entryVariables[entry], color.as<UI::Color>().raw());
}

void dealloc(id self, SEL command)
{
    for (const char* name : entryVariables)
        storeEntry(self, name, nullptr);
    IMP inherited = NS::Object::sendClass<IMP, "instanceMethodForSelector:">(command);
    ObjC::callImplementation<void>(inherited, self, command);
}

}

void registerPaletteClass()
{
    ObjC::ClassBuilder builder("WKSPalette", NS::Object::type());
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
