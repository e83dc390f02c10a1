// One face of the phone's fonts: its names and its metrics at a size. A handle stays usable after its file was
// unregistered or removed.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace Simulator::Graphics {

class FontFile;

struct FaceNames {
    std::string postScriptName;
    std::string familyName;
    bool operator==(const FaceNames&) const = default;
};

enum class FontWeight {
    ultraLight = 100,
    thin = 200,
    light = 300,
    regular = 400,
    medium = 500,
    semibold = 600,
    bold = 700,
    heavy = 800,
    black = 900
};

class Font {
public:
    /// What the catalogue reads from a face, in font units.
    struct Description {
        FaceNames names;
        long faceIndex = 0;
        int weight = 400;
        bool isItalic = false;
        double unitsPerEm = 1000;
        double ascender = 0;
        double descender = 0;
        double lineGap = 0;
        double capHeight = 0;
    };

    Font(Description description, std::shared_ptr<const FontFile> file);

    const std::string& postScriptName() const { return m_description.names.postScriptName; }
    const std::string& familyName() const { return m_description.names.familyName; }
    int weight() const { return m_description.weight; }
    bool isItalic() const { return m_description.isItalic; }
    bool isSystemFont() const;

    /// Points at a font size. The descender is negative, as the phone gives it.
    double ascender(double size) const { return toPoints(m_description.ascender, size); }
    double descender(double size) const { return toPoints(m_description.descender, size); }
    double leading(double size) const { return toPoints(m_description.lineGap, size); }
    double lineHeight(double size) const { return ascender(size) - descender(size); }
    double capHeight(double size) const;

    /// Unique in the process; tells faces apart after one was replaced under the same name.
    std::uint64_t identity() const { return m_identity; }
    long faceIndex() const { return m_description.faceIndex; }
    const FontFile& file() const { return *m_file; }

private:
    double toPoints(double units, double size) const { return units * size / m_description.unitsPerEm; }

    Description m_description;
    std::shared_ptr<const FontFile> m_file;
    std::uint64_t m_identity;
    mutable double m_measuredCapHeight = -1;
};

}
