// User fonts are drawn from a private copy of their bytes: the engine maps font files into memory, and a file that the
// user replaces or cuts short while it is mapped would end the process.
#include "Simulator/Graphics/Typeface.hpp"

#include <fontconfig/fcfreetype.h>

#include <span>
#include <sys/mman.h>
#include <unistd.h>

namespace Simulator::Graphics {

namespace {

int copyIntoMemory(std::span<const std::byte> bytes)
{
    const int descriptor = memfd_create("font", MFD_CLOEXEC);
    if (descriptor < 0)
        return -1;
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor, bytes.data(), bytes.size());
        if (written <= 0) {
            close(descriptor);
            return -1;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return descriptor;
}

/// The engine remembers faces by path even after they were closed, while descriptors are given out again. Redundant
/// separators spell the face's identity, so that no two faces ever share a path.
std::string pathOf(int descriptor, std::uint64_t identity)
{
    std::string path = "/proc/self/fd/";
    for (; identity != 0; identity >>= 1)
        path += identity & 1 ? "./" : "/";
    return path + std::to_string(descriptor);
}

void replaceString(FcPattern* pattern, const char* object, const std::string& value)
{
    FcPatternDel(pattern, object);
    FcPatternAddString(pattern, object, reinterpret_cast<const FcChar8*>(value.c_str()));
}

void replaceInteger(FcPattern* pattern, const char* object, int value)
{
    FcPatternDel(pattern, object);
    FcPatternAddInteger(pattern, object, value);
}

}

Typeface::Typeface(std::shared_ptr<const Font> font)
    : m_font(std::move(font))
    , m_alias("face " + std::to_string(m_font->identity()))
{
}

Typeface::~Typeface()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}

std::shared_ptr<Typeface> Typeface::open(std::shared_ptr<const Font> font)
{
    std::shared_ptr<Typeface> typeface(new Typeface(std::move(font)));
    const FontFile& file = typeface->m_font->file();
    if (file.isSystem()) {
        typeface->m_path = file.path();
    } else {
        const auto bytes = file.read();
        typeface->m_descriptor = bytes.empty() ? -1 : copyIntoMemory(bytes);
        if (typeface->m_descriptor < 0)
            return nullptr;
        typeface->m_path = pathOf(typeface->m_descriptor, typeface->m_font->identity());
    }
    const FontFile opened(typeface->m_path, FontFile::Origin::system);
    typeface->m_face = openFace(opened, typeface->m_font->faceIndex());
    return typeface->m_face ? typeface : nullptr;
}

bool Typeface::covers(char32_t character) const
{
    return FT_Get_Char_Index(m_face.get(), character) != 0;
}

FcPattern* Typeface::pattern()
{
    if (m_pattern)
        return m_pattern.get();
    const auto* path = reinterpret_cast<const FcChar8*>(m_path.c_str());
    m_pattern.reset(FcFreeTypeQueryFace(m_face.get(), path, static_cast<unsigned>(m_font->faceIndex()), nullptr));
    if (!m_pattern)
        return nullptr;
    // Selected by its own name alone: style and weight must neither prefer another face nor be synthesised.
    replaceString(m_pattern.get(), FC_FAMILY, m_alias);
    FcPatternDel(m_pattern.get(), FC_FAMILYLANG);
    FcPatternDel(m_pattern.get(), FC_STYLE);
    FcPatternDel(m_pattern.get(), FC_STYLELANG);
    replaceInteger(m_pattern.get(), FC_WEIGHT, FC_WEIGHT_NORMAL);
    replaceInteger(m_pattern.get(), FC_SLANT, FC_SLANT_ROMAN);
    replaceInteger(m_pattern.get(), FC_WIDTH, FC_WIDTH_NORMAL);
    return m_pattern.get();
}

}
