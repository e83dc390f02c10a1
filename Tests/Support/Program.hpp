// The built program as a test runs it: the control protocol over its standard streams.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <string>
#include <sys/types.h>
#include <vector>

namespace Support {

using Json = nlohmann::json;

/// The program under test: the environment's LYR_PROGRAM, or the one that was built with the tests.
std::string programPath();
/// How it serves the control protocol; with the extension that the environment's LYR_EXTENSION names, if any.
std::vector<std::string> servingArguments();

/// An error reply of the control protocol.
class ControlError : public std::runtime_error {
public:
    ControlError(int code, const std::string& message)
        : std::runtime_error(message)
        , code(code)
    {
    }
    int code;
};

class Program {
public:
    explicit Program(const std::vector<std::string>& arguments = servingArguments());
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    pid_t pid() const { return m_pid; }

    /// One line in; it may hold anything.
    void write(const std::string& line);
    /// One line out, without its newline; nothing at the end of the output.
    std::optional<std::string> read();
    void closeInput();
    void closeOutput();
    /// Closes the input and waits for the end: an exit status, or 128 and the signal.
    int end();

    /// A request and its result; throws a ControlError.
    Json call(const std::string& method, const Json& parameters = Json::object());

private:
    pid_t m_pid = -1;
    int m_input = -1;
    int m_output = -1;
    std::string m_unread;
    int m_lastId = 0;
};

/// What a command of the program left behind.
struct Finished {
    int status; // exit status, or 128 and the signal
    std::string output;
    std::string errors;
};
Finished runProgram(const std::vector<std::string>& arguments, const std::string& input = "");

}
