// Why a library cannot be loaded.
#pragma once

#include <stdexcept>

namespace Simulator {

/// In one line, without the library's name.
class LoadError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}
