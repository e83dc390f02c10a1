// The built library's bytes, and ways to spoil them.
#pragma once

#include "Simulator/Base/HostFile.hpp"

#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>

inline std::string bytesOfFile(const std::string& path)
{
    auto bytes = Simulator::readHostFile(path).value;
    if (bytes.empty())
        throw std::runtime_error("cannot read " + path);
    return bytes;
}

inline std::uint32_t numberAt(const std::string& bytes, std::size_t offset)
{
    std::uint32_t number;
    std::memcpy(&number, bytes.data() + offset, sizeof number);
    return number;
}

inline void setNumber(std::string& bytes, std::size_t offset, std::uint32_t number)
{
    std::memcpy(bytes.data() + offset, &number, sizeof number);
}

/// Where the load command of that kind begins; the `index`th of them.
inline std::size_t commandOffset(const std::string& bytes, std::uint32_t kind, int index = 0)
{
    std::size_t offset = 32;
    for (auto left = numberAt(bytes, 16); left > 0; --left) {
        if (numberAt(bytes, offset) == kind && index-- == 0)
            return offset;
        offset += numberAt(bytes, offset + 4);
    }
    throw std::runtime_error("no such load command");
}

inline constexpr std::uint32_t segmentCommand = 0x19, symbolTableCommand = 0x2, signatureCommand = 0x1d,
                               platformCommand = 0x32, fixupsCommand = 0x80000022;
