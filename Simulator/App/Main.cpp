// lyr: the simulated phone on the command line.
#include "Simulator/App/CommandLine.hpp"
#include "Simulator/App/SimulatedPhone.hpp"
#include "Simulator/Control/Methods.hpp"
#include "Simulator/Loader/ExtensionLoader.hpp"

int main(int argumentCount, char** arguments)
{
    using namespace Simulator;
    return App::run(
        argumentCount, arguments, {App::makeSimulatedPhone, ExtensionLoader::check, Control::protocolMethods()});
}
