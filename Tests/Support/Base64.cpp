// The library passes over what is no digit; what a phone answers has to be whole.
#include "Tests/Support/Base64.hpp"

#include <glib.h>
#include <memory>
#include <stdexcept>

namespace Support {

namespace {

template <class T>
std::unique_ptr<T, void (*)(void*)> owned(T* memory)
{
    return {memory, g_free};
}

}

std::string toBase64(std::string_view bytes)
{
    return owned(g_base64_encode(reinterpret_cast<const guchar*>(bytes.data()), bytes.size())).get();
}

std::string fromBase64(std::string_view text)
{
    gsize size = 0;
    const auto decoded = owned(g_base64_decode(std::string(text).c_str(), &size));
    const std::string bytes(reinterpret_cast<const char*>(decoded.get()), size);
    if (toBase64(bytes) != text)
        throw std::invalid_argument("no base64: " + std::string(text.substr(0, 40)));
    return bytes;
}

}
