// What a phone passes over in silence though its user hardly meant it: keys that nothing reads, files that are damaged.
#pragma once

#include "Simulator/App/StartFiles.hpp"

namespace Simulator::App {

/// One line each on standard error. Throws the first as a Failure where the start is to be strict.
void sayDoubts(const StartOptions&);

}
