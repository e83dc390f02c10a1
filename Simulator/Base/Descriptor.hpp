// An open file or socket of the host, closed when it goes.
#pragma once

#include <utility>

#include <unistd.h>

namespace Simulator {

class Descriptor {
public:
    explicit Descriptor(int number = -1)
        : m_number(number)
    {
    }
    ~Descriptor() { close(); }
    Descriptor(Descriptor&& other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {
    }
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    explicit operator bool() const { return m_number >= 0; }
    int number() const { return m_number; }
    void close()
    {
        if (m_number >= 0)
            ::close(std::exchange(m_number, -1));
    }

private:
    int m_number;
};

/// Opens an existing file below a folder in one step, if no link on the way leaves the folder or names it by its whole
/// path. Otherwise, and on a system that cannot, there is no descriptor: then the longer way has to tell.
Descriptor openBelow(const Descriptor& folder, const char* relativePath, int flags);

}
