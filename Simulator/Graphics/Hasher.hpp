// A 64-bit digest of what is drawn, to tell what differs from the last frame.
#pragma once

#include "Simulator/Graphics/Geometry.hpp"

#include <bit>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

namespace Simulator::Graphics {

class Hasher {
public:
    template <typename T>
    requires std::integral<T> || std::is_enum_v<T>
    void add(T value) { mix(static_cast<std::uint64_t>(value)); }
    void add(double value) { mix(std::bit_cast<std::uint64_t>(value)); }
    void add(std::string_view text)
    {
        add(text.size());
        while (!text.empty()) {
            std::uint64_t word = 0;
            const std::size_t length = text.size() < sizeof word ? text.size() : sizeof word;
            std::memcpy(&word, text.data(), length);
            mix(word);
            text.remove_prefix(length);
        }
    }
    void add(const Point& point) { addAll(point.x, point.y); }
    void add(const Size& size) { addAll(size.width, size.height); }
    void add(const Rect& rect) { addAll(rect.x, rect.y, rect.width, rect.height); }
    void add(const PixelRect& rect) { addAll(rect.x, rect.y, rect.width, rect.height); }
    void add(const Color& color) { addAll(color.r, color.g, color.b, color.a); }
    void add(const AffineTransform& transform)
    {
        addAll(transform.a, transform.b, transform.c, transform.d, transform.tx, transform.ty);
    }
    template <typename T>
    void add(const std::optional<T>& value)
    {
        add(value.has_value());
        if (value)
            add(*value);
    }

    template <typename... Ts>
    void addAll(const Ts&... values)
    {
        (add(values), ...);
    }

    std::uint64_t result() const { return m_state; }

private:
    void mix(std::uint64_t word)
    {
        m_state = (std::rotl(m_state, 23) ^ word) * 0x9E3779B97F4A7C15;
        m_state ^= m_state >> 29;
    }

    std::uint64_t m_state = 0x243F6A8885A308D3;
};

template <typename... Ts>
std::uint64_t hashOf(const Ts&... values)
{
    Hasher hasher;
    hasher.addAll(values...);
    return hasher.result();
}

}
