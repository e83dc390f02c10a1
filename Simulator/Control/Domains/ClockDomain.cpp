// clock.*: the phone's clock, moved by hand.
#include "Simulator/Control/Domains/PhoneContext.hpp"

namespace Simulator::Control {

static constexpr double settleBound = 60;

void addClockMethods(PhoneContext& context)
{
    context.add("clock.set", [&context](const Json& parameters) {
        // The time was checked before.
        Loop::shared().setNow(*momentOfLocalTime(parameters.at("time")));
        context.shell.clockChanged();
        return Json::object();
    });
    context.add("clock.advance", [](const Json& parameters) {
        Loop::shared().advance(parameters.at("seconds"));
        return Json::object();
    });
    context.add("clock.settle", [](const Json& parameters) {
        Loop::shared().settle(parameters.value("seconds", settleBound));
        return Json::object();
    });
}

}
