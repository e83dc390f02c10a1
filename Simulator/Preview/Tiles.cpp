// Tiles made into few rectangles.
#include "Simulator/Preview/Tiles.hpp"

#include <algorithm>

namespace Simulator::Preview {

using Control::SharedFrame;
using Part = SharedFrame::Part;

void Tiles::add(const std::vector<std::size_t>& indices)
{
    for (const std::size_t index : indices) {
        if (index >= m_isIn.size())
            m_isIn.resize(index + 1);
        m_isIn[index] = true;
    }
}

void Tiles::addAll(std::size_t count)
{
    m_isIn.assign(count, true);
}

bool Tiles::isEmpty() const
{
    return std::find(m_isIn.begin(), m_isIn.end(), true) == m_isIn.end();
}

std::vector<Part> Tiles::parts(const SharedFrame& frame) const
{
    std::vector<Part> parts;
    const int across = frame.tilesAcross();
    for (int row = 0; row < frame.tilesDown(); ++row) {
        for (int column = 0; column < across; ++column) {
            const auto index
                = static_cast<std::size_t>(row) * static_cast<std::size_t>(across) + static_cast<std::size_t>(column);
            if (!has(index))
                continue;
            const Part tile = frame.tile(index);
            const bool goesOn = column > 0 && has(index - 1);
            if (goesOn)
                parts.back().width += tile.width;
            else
                parts.push_back(tile);
        }
    }
    std::vector<Part> merged;
    for (const Part& part : parts) {
        const auto above = std::find_if(merged.rbegin(), merged.rend(), [&](const Part& other) {
            return other.x == part.x && other.width == part.width && other.y + other.height == part.y;
        });
        if (above == merged.rend())
            merged.push_back(part);
        else
            above->height += part.height;
    }
    return merged;
}

}
