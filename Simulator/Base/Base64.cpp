// GLib passes over what is no base 64, so that is looked for first.
#include "Simulator/Base/Base64.hpp"

#include <algorithm>
#include <memory>

#include <glib.h>

namespace Simulator {

namespace {

bool isBase64(std::string_view text)
{
    const std::string_view digits = text.substr(0, text.find('='));
    const std::string_view padding = text.substr(digits.size());
    return text.size() % 4 == 0 && padding.size() <= 2 && padding.find_first_not_of('=') == std::string_view::npos
        && std::ranges::all_of(digits, [](char c) { return g_ascii_isalnum(c) || c == '+' || c == '/'; });
}

}

std::string toBase64(std::string_view bytes)
{
    const std::unique_ptr<char, decltype(&g_free)> text(
        g_base64_encode(reinterpret_cast<const guchar*>(bytes.data()), bytes.size()), g_free);
    return text.get();
}

std::optional<std::string> fromBase64(std::string_view text)
{
    if (!isBase64(text))
        return std::nullopt;
    std::string bytes(text.size() / 4 * 3, '\0');
    gint state = 0;
    guint bits = 0;
    bytes.resize(
        g_base64_decode_step(text.data(), text.size(), reinterpret_cast<guchar*>(bytes.data()), &state, &bits));
    return bytes;
}

}
