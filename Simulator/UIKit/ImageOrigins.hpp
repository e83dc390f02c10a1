// Where pictures came from: remembered for files whose bytes pass through memory, so that a description can name them.
#pragma once

#include <span>
#include <string>

namespace Simulator {

/// The bytes are a picture that came from the path.
void rememberOrigin(std::span<const std::byte> bytes, const std::string& path);
/// The path that such bytes came from; empty for others.
std::string originOf(std::span<const std::byte> bytes);

}
