// The linker knows where the list starts and ends.
#include "Tweak/Variables.hpp"

namespace LYR {

[[gnu::visibility("hidden")]] extern Product::VariableRow firstVariable __asm__(OBJC_SECTION_START(lyr_variables));
[[gnu::visibility("hidden")]] extern Product::VariableRow endOfVariables __asm__(OBJC_SECTION_END(lyr_variables));

constinit Product::VariableList variables{&firstVariable, &endOfVariables};

}
