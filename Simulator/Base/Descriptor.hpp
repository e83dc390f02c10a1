// An open file or socket of the host, closed when it goes.
#pragma once

#include <utility>

#include <unistd.h>

namespace Simulator {

class Descriptor {
public:
    explicit Descriptor(int number = -1)
        : _number(number)
    {
    }
    ~Descriptor() { close(); }
    Descriptor(Descriptor&& other) noexcept
        : _number(std::exchange(other._number, -1))
    {
    }
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(_number, other._number);
        return *this;
    }
    explicit operator bool() const { return _number >= 0; }
    int number() const { return _number; }
    void close()
    {
        if (_number >= 0)
            ::close(std::exchange(_number, -1));
    }

private:
    int _number;
};

/// Opens an existing file below a folder in one step, if no link on the way leaves the folder or names it by its whole
/// path. Otherwise, and on a system that cannot, there is no descriptor: then the longer way has to tell.
Descriptor openBelow(const Descriptor& folder, const char* relativePath, int flags);

}
