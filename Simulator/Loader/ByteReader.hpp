// Numbers and names out of the bytes of a file that may say anything: whatever lies outside is an error.
#pragma once

#include "Simulator/Loader/LoadError.hpp"

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace Simulator {

class ByteReader {
public:
    /// `what` names the bytes in errors: "the bind table".
    ByteReader(std::string_view bytes, std::string what)
        : m_bytes(bytes)
        , m_what(std::move(what))
    {
    }

    std::size_t size() const { return m_bytes.size(); }
    bool isAtEnd() const { return m_position == m_bytes.size(); }
    void seek(std::uint64_t position)
    {
        if (position > m_bytes.size())
            fail();
        m_position = position;
    }
    void skip(std::uint64_t count) { take(count); }

    /// A number as this machine keeps it.
    template <class T>
    T number()
    {
        T value;
        std::memcpy(&value, take(sizeof(T)).data(), sizeof(T));
        return value;
    }
    std::uint32_t bigEndian() { return __builtin_bswap32(number<std::uint32_t>()); }

    /// Seven bits a byte, the lowest first.
    std::uint64_t uleb()
    {
        std::uint64_t value = 0;
        for (unsigned shift = 0;; shift += 7) {
            const auto byte = number<std::uint8_t>();
            const std::uint64_t bits = byte & 0x7f;
            if (shift > 63 || bits << shift >> shift != bits)
                throw LoadError(m_what + " holds a number that is too large");
            value |= bits << shift;
            if (!(byte & 0x80))
                return value;
        }
    }
    std::int64_t sleb()
    {
        std::uint64_t value = 0;
        for (unsigned shift = 0; shift <= 63; shift += 7) {
            const auto byte = number<std::uint8_t>();
            value |= std::uint64_t(byte & 0x7f) << shift;
            if (byte & 0x80)
                continue;
            if ((byte & 0x40) && shift + 7 < 64)
                value |= ~std::uint64_t(0) << (shift + 7);
            return static_cast<std::int64_t>(value);
        }
        throw LoadError(m_what + " holds a number that is too large");
    }

    /// Text up to a zero byte.
    std::string_view text()
    {
        const auto end = m_bytes.find('\0', m_position);
        if (end == m_bytes.npos)
            fail();
        const auto found = m_bytes.substr(m_position, end - m_position);
        m_position = end + 1;
        return found;
    }
    /// Text in a field of fixed size.
    std::string_view paddedText(std::size_t length)
    {
        const auto field = take(length);
        return field.substr(0, field.find('\0'));
    }

    /// A part of the bytes.
    ByteReader part(std::uint64_t offset, std::uint64_t length, std::string what) const
    {
        if (offset > m_bytes.size() || length > m_bytes.size() - offset)
            throw LoadError(what + " lies outside the file");
        return {m_bytes.substr(offset, length), std::move(what)};
    }
    std::string_view bytes() const { return m_bytes; }

private:
    std::string_view take(std::uint64_t count)
    {
        if (count > m_bytes.size() - m_position)
            fail();
        const auto taken = m_bytes.substr(m_position, count);
        m_position += count;
        return taken;
    }
    [[noreturn]] void fail() const { throw LoadError(m_what + " ends too early"); }

    std::string_view m_bytes;
    std::string m_what;
    std::size_t m_position = 0;
};

}
