// `lyr render`: a picture of the lock screen.
#pragma once

#include "Simulator/Control/Supervisor.hpp"

namespace Simulator::App {

// Something that the user can mend, said in one line.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct RenderOptions {
    Control::Json start = Control::Json::object(); // parameters of `phone.start`
    std::string settings; // host paths of files; empty for none
    std::string colours;
    std::string wallpaper;
    std::string device;
    std::vector<std::string> fonts;
    std::string output;
};

// Answers the exit status; throws a Failure or a ProtocolError.
int render(const RenderOptions&, Control::Supervisor::Options);

}
