// A face's handle; what is not in its tables is measured on first use.
#include "Simulator/Graphics/Font.hpp"

#include "Simulator/Graphics/FontFile.hpp"

#include <atomic>

namespace Simulator::Graphics {

namespace {

std::uint64_t nextIdentity()
{
    static std::atomic<std::uint64_t> last{0};
    return ++last;
}

/// The height of a capital H, in font units; 70 % of the em for a font without one.
double measureCapital(const FontFile& file, long faceIndex, double unitsPerEm)
{
    const FacePointer face = openFace(file, faceIndex);
    if (face) {
        const FT_UInt glyph = FT_Get_Char_Index(face.get(), 'H');
        if (glyph != 0 && FT_Load_Glyph(face.get(), glyph, FT_LOAD_NO_SCALE) == 0
            && face->glyph->metrics.horiBearingY > 0)
            return static_cast<double>(face->glyph->metrics.horiBearingY);
    }
    return unitsPerEm * 0.7;
}

}

Font::Font(Description description, std::shared_ptr<const FontFile> file)
    : m_description(std::move(description))
    , m_file(std::move(file))
    , m_identity(nextIdentity())
{
}

bool Font::isSystemFont() const
{
    return m_file->isSystem();
}

double Font::capHeight(double size) const
{
    if (m_description.capHeight > 0)
        return toPoints(m_description.capHeight, size);
    if (m_measuredCapHeight < 0)
        m_measuredCapHeight = measureCapital(*m_file, m_description.faceIndex, m_description.unitsPerEm);
    return toPoints(m_measuredCapHeight, size);
}

}
