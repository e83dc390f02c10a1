// A set of the screen's tiles, and the rectangles that it covers.
#pragma once

#include "Simulator/Control/SharedFrame.hpp"

namespace Simulator::Preview {

class Tiles {
public:
    void add(const std::vector<std::size_t>& indices);
    /// Every tile of a screen with so many.
    void addAll(std::size_t count);
    void clear() { m_isIn.assign(m_isIn.size(), false); }
    bool isEmpty() const;
    bool operator==(const Tiles&) const = default;

    /// Disjoint: runs of tiles side by side, and equal runs below one another made one.
    std::vector<Control::SharedFrame::Part> parts(const Control::SharedFrame&) const;

private:
    bool has(std::size_t index) const { return index < m_isIn.size() && m_isIn[index]; }

    std::vector<bool> m_isIn;
};

}
