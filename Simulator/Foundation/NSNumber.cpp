// Numbers tell the types the phone's do.
#include "Simulator/Foundation/Mending.hpp"

namespace Simulator {

namespace {

/// The phone's truth values are signed characters.
const char* NSBoolNumber_objCType(id, SEL)
{
    return "c";
}

}

static const Mending nsNumber("NSNumber", [] { replaceInFamily<NSBoolNumber_objCType>("NSBoolNumber", "objCType"); });

}
