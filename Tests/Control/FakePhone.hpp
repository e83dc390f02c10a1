// A phone without a lock screen: it keeps a time and notes, and crashes, hangs and relaunches as it is told.
#pragma once

#include "Simulator/App/CommandLine.hpp"

namespace FakePhone {

/// The protocol's methods and those that only this phone has:
/// fake.echo {"value"}, fake.note {"text"}, fake.start, fake.crash {"signal"}, fake.exit {"status"}, fake.hang,
/// fake.relaunch, fake.babble, fake.later {"what"}: "crash" or "relaunch" when the request is done.
/// At its start it looks into the settings: "crashAtStart" once or always, "relaunchAtStart", "refuseToStart".
const std::vector<Simulator::Control::Method>& methods();

std::unique_ptr<Simulator::Control::Shell> make();

}
