// lyr with the fake phone.
#include "Tests/Control/FakePhone.hpp"

int main(int argumentCount, char** arguments)
{
    return Simulator::App::run(argumentCount, arguments, {FakePhone::make, FakePhone::methods()});
}
