// What a phone is started with, gathered from options and files of the host.
#pragma once

#include "Simulator/Base/TemporaryFolder.hpp"
#include "Simulator/Control/Envelope.hpp"

#include <optional>
#include <stdexcept>

namespace Simulator::App {

/// Something that the user can mend, said in one line.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct StartOptions {
    Control::Json phone = Control::Json::object(); // parameters of `phone.start`
    std::string settings; // host paths of files; empty for none
    std::string colours;
    std::string wallpaper;
    std::string device; // without one the phone is in use already
    bool isBare = false; // a new phone instead
    std::vector<std::string> fonts;
    bool isStrict = false; // what a phone would pass over is refused
};

/// A host folder for what is made on the way, removed with its owner.
class Workshop {
public:
    std::string at(const std::string& name) const { return (m_folder.path() / name).string(); }
    std::string put(const std::string& name, const std::string& bytes) const;

private:
    TemporaryFolder m_folder;
};

/// The parameters of `phone.start`. Throws a Failure.
Control::Json startParameters(const StartOptions&, const Workshop&);
/// Of the timer that the device's file has running. Throws a Failure.
std::optional<double> timerSeconds(const StartOptions&);

std::string bytesOf(const std::string& path);
Control::Json jsonOf(const std::string& path, const std::string& bytes);

}
