// A file of the host that somebody asked to have written. A regular file is replaced whole, in one step; a device or a
// pipe is written to; what may not be written stays as it is.
#pragma once

#include "Simulator/Control/Wait.hpp"
#include "Simulator/Base/Descriptor.hpp"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace Simulator::Control {

class OutputFile {
public:
    /// What /dev/stdout and the like are to the process: the user's, or streams that are spoken for.
    enum class OwnStreams { taken, refused };

    /// Links are followed. What can be wrong with the path is told before there is anything to write: throws a
    /// std::runtime_error, one line with the path. `wait` is for a pipe whose reader takes its time.
    explicit OutputFile(const std::string& path, OwnStreams = OwnStreams::taken, Wait wait = waitForever);

    /// To be called once. Throws likewise, and leaves a regular file as it was.
    void write(std::string_view bytes) const;

    /// What is written comes out where the process's own words do.
    bool isStandardOutput() const;

private:
    void openStream(OwnStreams);
    void look();
    void checkFolder() const;
    void replace(std::string_view bytes) const;
    void send(int descriptor, std::string_view bytes) const;
    [[noreturn]] void refuse(const std::string& why) const;
    [[noreturn]] void refuseWithError() const;

    std::string m_given; // as messages name it
    Wait m_wait;
    std::filesystem::path m_path; // where the links lead
    Descriptor m_descriptor; // of what is written to; none for a file that is replaced
    std::optional<struct stat> m_replaced; // whose owner and mode the new file gets
};

}
