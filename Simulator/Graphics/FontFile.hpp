// Where a face's data comes from, and FreeType's view of it.
#pragma once

#include "Simulator/Graphics/Font.hpp"
#include "Simulator/Graphics/FontParts.hpp"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_SYSTEM_H

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace Simulator::Graphics {

/// A file on disk, or bytes that never had a file.
class FontFile {
public:
    enum class Origin { system, user };

    FontFile(std::filesystem::path path, Origin origin);
    explicit FontFile(std::vector<std::byte> bytes);

    bool isSystem() const { return m_origin == Origin::system; }
    const std::filesystem::path& path() const { return m_path; }
    /// Empty for a file on disk.
    std::span<const std::byte> bytes() const { return m_bytes; }
    /// A copy of the content as it is now; empty if the file is gone.
    std::vector<std::byte> read() const;

private:
    std::filesystem::path m_path;
    std::vector<std::byte> m_bytes;
    Origin m_origin = Origin::user;
};

/// Reads a font that stays open elsewhere; has to outlive the faces that are read from it.
class FontStream {
public:
    explicit FontStream(const FontParts& parts);
    FontStream(const FontStream&) = delete;
    FT_Stream record() { return &m_record; }

private:
    FT_StreamRec m_record{};
};

struct FaceCloser {
    void operator()(FT_Face face) const { FT_Done_Face(face); }
};
using FacePointer = std::unique_ptr<FT_FaceRec, FaceCloser>;

/// Null unless the face is a scalable one of the kinds that the phone takes. Bytes have to outlive the face.
FacePointer openFace(const FontFile& file, long faceIndex);
FacePointer openFace(std::span<const std::byte> bytes, long faceIndex);
FacePointer openFace(FontStream& stream, long faceIndex);

/// Nothing for a face without any name.
std::optional<Font::Description> describe(FT_Face face);

/// Empty if it is not a plain readable file or larger than the limit.
std::vector<std::byte> readFile(const std::filesystem::path& path, std::size_t limit);

}
