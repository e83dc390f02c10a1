// lyr with the fake phone, which has no extension to load.
#include "Tests/Control/FakePhone.hpp"

int main(int argumentCount, char** arguments)
{
    const auto make = [](const Simulator::App::ShellOptions&) { return FakePhone::make(); };
    const auto checkNothing = [](const std::string&) {};
    return Simulator::App::run(argumentCount, arguments, {make, checkNothing, FakePhone::methods()});
}
