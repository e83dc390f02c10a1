// Runs the program under test with pipes for its standard streams.
#include "Tests/Support/Program.hpp"

#include "Tests/Support/TemporaryFolder.hpp"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace Support {

namespace {

struct Streams {
    int input = -1;
    int output = -1;
    int errors = -1;
};

[[noreturn]] void become(char* const* words, const Streams& streams)
{
    dup2(streams.input, STDIN_FILENO);
    dup2(streams.output, STDOUT_FILENO);
    if (streams.errors >= 0)
        dup2(streams.errors, STDERR_FILENO);
    execv(words[0], words);
    _exit(127);
}

pid_t launch(const std::vector<std::string>& arguments, const Streams& streams)
{
    std::vector<std::string> words{programPath()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);

    const pid_t pid = fork();
    if (pid < 0)
        throw std::system_error(errno, std::generic_category(), "fork");
    if (pid == 0)
        become(pointers.data(), streams);
    return pid;
}

int waitFor(pid_t pid)
{
    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) { }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

std::array<int, 2> makePipe()
{
    std::array<int, 2> ends;
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");
    return ends;
}

}

std::string programPath()
{
    const char* path = std::getenv("LYR_PROGRAM");
    return path && *path ? path : LYR_PROGRAM_PATH;
}

std::vector<std::string> servingArguments()
{
    std::vector<std::string> arguments{"serve", "--stdio"};
    const char* extension = std::getenv("LYR_EXTENSION");
    if (extension && *extension)
        arguments.insert(arguments.end(), {"--extension", extension});
    return arguments;
}

Program::Program(const std::vector<std::string>& arguments)
{
    // A program that is gone is seen by its silence.
    std::signal(SIGPIPE, SIG_IGN);
    const auto input = makePipe();
    const auto output = makePipe();
    m_pid = launch(arguments, {input[0], output[1], -1});
    close(input[0]);
    close(output[1]);
    m_input = input[1];
    m_output = output[0];
}

Program::~Program()
{
    end();
    closeOutput();
}

void Program::write(const std::string& line)
{
    const std::string text = line + '\n';
    for (std::size_t written = 0; written < text.size();) {
        const auto count = ::write(m_input, text.data() + written, text.size() - written);
        if (count < 0 && errno != EINTR)
            throw std::system_error(errno, std::generic_category(), "the program takes no input any more");
        written += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
}

std::optional<std::string> Program::read()
{
    std::size_t searched = 0;
    for (;;) {
        if (const auto newline = m_unread.find('\n', searched); newline != std::string::npos) {
            std::string line = m_unread.substr(0, newline);
            m_unread.erase(0, newline + 1);
            return line;
        }
        searched = m_unread.size();
        std::array<char, 65536> bytes;
        const auto count = ::read(m_output, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return std::nullopt;
        m_unread.append(bytes.data(), static_cast<std::size_t>(count));
    }
}

void Program::closeInput()
{
    if (m_input >= 0)
        close(std::exchange(m_input, -1));
}

void Program::closeOutput()
{
    if (m_output >= 0)
        close(std::exchange(m_output, -1));
}

int Program::end()
{
    if (m_pid < 0)
        return -1;
    closeInput();
    return waitFor(std::exchange(m_pid, -1));
}

Json Program::call(const std::string& method, const Json& parameters)
{
    const int id = ++m_lastId;
    write(Json{{"jsonrpc", "2.0"}, {"id", id}, {"method", method}, {"params", parameters}}.dump());
    const auto line = read();
    if (!line)
        throw std::runtime_error("the program ended during " + method);
    const Json reply = Json::parse(*line);
    if (reply.at("id") != id)
        throw std::runtime_error("a reply that nobody asked for: " + *line);
    if (reply.contains("error"))
        throw ControlError(reply["error"].at("code"), reply["error"].at("message"));
    return reply.at("result");
}

Finished runProgram(const std::vector<std::string>& arguments, const std::string& input)
{
    const TemporaryFolder folder;
    const std::string in = folder.put("input", input);
    const std::string out = folder.put("output", "");
    const std::string errors = folder.put("errors", "");
    const Streams streams{open(in.c_str(), O_RDONLY | O_CLOEXEC), open(out.c_str(), O_WRONLY | O_CLOEXEC),
        open(errors.c_str(), O_WRONLY | O_CLOEXEC)};
    const int status = waitFor(launch(arguments, streams));
    for (const int descriptor : {streams.input, streams.output, streams.errors})
        close(descriptor);
    return {status, folder.read("output"), folder.read("errors")};
}

}
