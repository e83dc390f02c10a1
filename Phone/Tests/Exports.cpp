// One of each kind of name: only the variables of the extension's namespace may become visible.

int outsideVariable = 1;

namespace LYR {
struct Nested {
    int value = 6;
};

int settingsVariable = 2;
Nested nestedVariable;
const int constant = 3;
static int fileVariable = 4;
inline int inlineVariable = 5;
int anyFunction(Nested nested)
{
    return nested.value + fileVariable + ++inlineVariable + outsideVariable + constant;
}
}

__attribute__((constructor)) static void start()
{
    LYR::settingsVariable = LYR::anyFunction(LYR::nestedVariable);
}
