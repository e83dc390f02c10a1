// Reads names and metrics of font files by FreeType.
#include "Simulator/Graphics/FontFile.hpp"

#include "Simulator/Base/HostFile.hpp"
#include "Simulator/Base/Utf.hpp"

#include FT_SFNT_NAMES_H
#include FT_TRUETYPE_IDS_H
#include FT_TRUETYPE_TABLES_H

#include <algorithm>

namespace Simulator::Graphics {

namespace {

constexpr std::size_t fontFileLimit = 256u << 20;

/// Lives as long as the process: fonts may be drawn until its very end.
FT_Library library()
{
    static const FT_Library instance = [] {
        FT_Library created = nullptr;
        return FT_Init_FreeType(&created) == 0 ? created : nullptr;
    }();
    return instance;
}

FacePointer accepted(FacePointer face)
{
    if (!face || !FT_IS_SFNT(face.get()) || !FT_IS_SCALABLE(face.get()) || face->units_per_EM == 0
        || face->num_glyphs <= 0)
        return nullptr;
    return face;
}

/// Names are stored as big-endian UTF-16; those of fonts keep to the basic plane.
std::string fromUtf16(const FT_SfntName& name)
{
    constexpr char16_t replacement = 0xFFFD;
    std::u16string text;
    for (FT_UInt i = 0; i + 1 < name.string_len; i += 2) {
        const auto unit = static_cast<char16_t>(name.string[i] << 8 | name.string[i + 1]);
        const bool isSurrogate = unit >= 0xD800 && unit < 0xE000;
        text += isSurrogate || unit == 0 ? replacement : unit;
    }
    return toUtf8(text);
}

/// FreeType reduces names to ASCII; a family named in another script is read from the table itself.
std::string unicodeFamilyName(FT_Face face)
{
    for (const FT_UShort wanted : {TT_NAME_ID_TYPOGRAPHIC_FAMILY, TT_NAME_ID_FONT_FAMILY}) {
        const FT_UInt count = FT_Get_Sfnt_Name_Count(face);
        for (FT_UInt i = 0; i < count; ++i) {
            FT_SfntName name;
            if (FT_Get_Sfnt_Name(face, i, &name) == 0 && name.name_id == wanted
                && name.platform_id == TT_PLATFORM_MICROSOFT && name.string_len > 0)
                return fromUtf16(name);
        }
    }
    return {};
}

std::optional<FaceNames> namesOf(FT_Face face)
{
    FaceNames names;
    if (face->family_name)
        names.familyName = face->family_name;
    if (names.familyName.empty() || names.familyName.find('?') != std::string::npos) {
        if (std::string family = unicodeFamilyName(face); !family.empty())
            names.familyName = std::move(family);
    }
    if (const char* name = FT_Get_Postscript_Name(face))
        names.postScriptName = name;
    if (names.postScriptName.empty())
        std::copy_if(names.familyName.begin(), names.familyName.end(), std::back_inserter(names.postScriptName),
            [](char character) { return character != ' '; });
    if (names.familyName.empty())
        names.familyName = names.postScriptName;
    if (names.postScriptName.empty())
        return std::nullopt;
    return names;
}

}

FontFile::FontFile(std::filesystem::path path, Origin origin)
    : m_path(std::move(path))
    , m_origin(origin)
{
}

FontFile::FontFile(std::vector<std::byte> bytes)
    : m_bytes(std::move(bytes))
{
}

std::vector<std::byte> FontFile::read() const
{
    return m_path.empty() ? m_bytes : readFile(m_path, fontFileLimit);
}

FacePointer openFace(const FontFile& file, long faceIndex)
{
    if (file.path().empty())
        return openFace(file.bytes(), faceIndex);
    FT_Face face = nullptr;
    if (FT_New_Face(library(), file.path().c_str(), faceIndex, &face) != 0)
        return nullptr;
    return accepted(FacePointer(face));
}

FacePointer openFace(std::span<const std::byte> bytes, long faceIndex)
{
    if (bytes.empty() || bytes.size() > fontFileLimit)
        return nullptr;
    FT_Face face = nullptr;
    const auto* data = reinterpret_cast<const FT_Byte*>(bytes.data());
    if (FT_New_Memory_Face(library(), data, static_cast<FT_Long>(bytes.size()), faceIndex, &face) != 0)
        return nullptr;
    return accepted(FacePointer(face));
}

static unsigned long readPart(FT_Stream stream, unsigned long offset, unsigned char* buffer, unsigned long count)
{
    const auto& parts = *static_cast<const FontParts*>(stream->descriptor.pointer);
    // Asked for nothing, it tells whether there is such a place.
    if (count == 0)
        return offset > parts.size;
    return parts.copy(offset, std::span(reinterpret_cast<std::byte*>(buffer), count));
}

FontStream::FontStream(const FontParts& parts)
{
    m_record.size = parts.size;
    m_record.descriptor.pointer = const_cast<FontParts*>(&parts);
    m_record.read = &readPart;
}

FacePointer openFace(FontStream& stream, long faceIndex)
{
    if (stream.record()->size == 0 || stream.record()->size > fontFileLimit)
        return nullptr;
    FT_Open_Args arguments{};
    arguments.flags = FT_OPEN_STREAM;
    arguments.stream = stream.record();
    FT_Face face = nullptr;
    if (FT_Open_Face(library(), &arguments, faceIndex, &face) != 0)
        return nullptr;
    return accepted(FacePointer(face));
}

std::optional<Font::Description> describe(FT_Face face)
{
    auto names = namesOf(face);
    if (!names)
        return std::nullopt;
    Font::Description description;
    description.names = std::move(*names);
    description.faceIndex = face->face_index;
    description.isItalic = face->style_flags & FT_STYLE_FLAG_ITALIC;
    description.weight = face->style_flags & FT_STYLE_FLAG_BOLD ? 700 : 400;
    description.unitsPerEm = face->units_per_EM;
    description.ascender = face->ascender;
    description.descender = std::min<double>(face->descender, 0);
    description.lineGap = std::max(0.0, face->height - description.ascender + description.descender);
    if (const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
        os2 && os2->version != 0xFFFF) {
        if (os2->usWeightClass >= 1 && os2->usWeightClass <= 1000)
            description.weight = os2->usWeightClass;
        if (os2->version >= 2 && os2->sCapHeight > 0)
            description.capHeight = os2->sCapHeight;
    }
    return description;
}

std::vector<std::byte> readFile(const std::filesystem::path& path, std::size_t limit)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return {};
    const auto size = std::filesystem::file_size(path, error);
    if (error || size == 0 || size > limit)
        return {};
    const auto content = readHostFile(path);
    const auto bytes = std::as_bytes(std::span(content.value));
    return {bytes.begin(), bytes.end()};
}

}
