// By the library that Pango brings along.
#include "Simulator/Control/Base64.hpp"

#include <glib.h>
#include <memory>

namespace Simulator {

template <class T>
static std::unique_ptr<T, void (*)(void*)> owned(T* memory)
{
    return {memory, g_free};
}

std::string toBase64(std::string_view bytes)
{
    return owned(g_base64_encode(reinterpret_cast<const guchar*>(bytes.data()), bytes.size())).get();
}

std::string fromBase64(const std::string& text)
{
    gsize size = 0;
    const auto bytes = owned(g_base64_decode(text.c_str(), &size));
    return {reinterpret_cast<const char*>(bytes.get()), size};
}

}
