// lyr: the simulated phone on the command line.
#include "Simulator/App/CommandLine.hpp"
#include "Simulator/App/SimulatedPhone.hpp"
#include "Simulator/Control/Methods.hpp"

int main(int argumentCount, char** arguments)
{
    using namespace Simulator;
    return App::run(
        argumentCount, arguments, {App::makeSimulatedPhone, App::checkExtension, Control::protocolMethods()});
}
