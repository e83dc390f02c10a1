// The libraries that live beside the shell, and the system services that both talk to.
#pragma once

namespace Simulator {

/// Registers the classes of the preferences, colour and weather libraries, of the calendar and of the alarms.
/// Needs Foundation; colours and pictures are made when they are asked for.
void registerCompanions();

}
