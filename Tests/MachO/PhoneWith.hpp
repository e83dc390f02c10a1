// A simulated phone with another extension than the build's own, in a program that the environment chooses.
#pragma once

#include "Tests/Support/Phone.hpp"

#include <cstdlib>
#include <optional>

/// A variable of the environment, for as long as this stands.
class Setting {
public:
    Setting(const char* name, const std::string& value)
        : m_name(name)
        , m_before(std::getenv(name) ? std::optional<std::string>(std::getenv(name)) : std::nullopt)
    {
        setenv(name, value.c_str(), true);
    }
    ~Setting() { m_before ? setenv(m_name, m_before->c_str(), true) : unsetenv(m_name); }
    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;

private:
    const char* m_name;
    std::optional<std::string> m_before;
};

inline bool isEmulated()
{
    return std::getenv("LYR_PHONE_PROGRAM") != nullptr;
}

/// The environment's LYR_PHONE_PROGRAM runs the phone's own slice where it is set, under an emulator for one.
inline std::string programFor(const std::string& extension)
{
    const char* program = std::getenv("LYR_PHONE_PROGRAM");
    return program && extension != LINUX_LIBRARY ? program : Support::programPath();
}

/// A phone with a library of Linux or of the phone.
inline Phone phoneWith(const std::string& extension, const Support::PhoneStart& start)
{
    const Setting program("LYR_PROGRAM", programFor(extension));
    const Setting library("LYR_EXTENSION", extension);
    return start.start();
}
