// The origins, by a digest of the bytes. A bounded number is kept; a lost one only leaves a description without a path.
#include "Simulator/UIKit/ImageOrigins.hpp"

#include "Simulator/Base/Phone.hpp"

#include <algorithm>
#include <functional>
#include <string_view>
#include <unordered_map>

namespace Simulator {

static constexpr std::size_t mostOrigins = 1024;

struct Origins : std::unordered_map<std::size_t, std::string> { };

static Origins& origins()
{
    return Phone::part<Origins>();
}

static std::size_t digest(std::span<const std::byte> bytes)
{
    // The ends of a file tell it from others well enough, and hashing a whole photograph takes its time.
    constexpr std::size_t enough = 1024;
    const std::string_view all(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    const std::hash<std::string_view> hash;
    return hash(all.substr(0, enough)) ^ hash(all.substr(all.size() - std::min(all.size(), enough))) * 31 ^ all.size();
}

void rememberOrigin(std::span<const std::byte> bytes, const std::string& path)
{
    if (path.empty())
        return;
    if (origins().size() >= mostOrigins)
        origins().clear();
    origins()[digest(bytes)] = path;
}

std::string originOf(std::span<const std::byte> bytes)
{
    const auto found = origins().find(digest(bytes));
    return found == origins().end() ? std::string() : found->second;
}

}
