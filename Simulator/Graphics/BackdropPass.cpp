// Walks the list in drawing order and tells each backdrop about the items that it blurs.
#include "Simulator/Graphics/BackdropPass.hpp"

#include "Simulator/Graphics/DisplayGroup.hpp"
#include "Simulator/Graphics/Hasher.hpp"

namespace Simulator::Graphics {

namespace {

class Walk {
public:
    void visit(DisplayList& list)
    {
        for (auto& item : list)
            visit(item);
    }

private:
    struct Drawn {
        PixelRect bounds;
        std::uint64_t hash = 0;
    };

    void visit(DisplayItem& item)
    {
        if (const auto* backdrop = std::get_if<Backdrop>(&item.content)) {
            Hasher behind;
            for (const auto& drawn : m_drawn) {
                if (drawn.bounds.intersects(backdrop->input))
                    behind.add(drawn.hash);
            }
            item.hash = hashOf(item.hash, behind.result());
            item.bitmapKey = hashOf(item.bitmapKey, behind.result());
        } else if (auto* group = std::get_if<Group>(&item.content)) {
            const std::size_t before = m_drawn.size();
            visit(group->items);
            m_drawn.resize(before);
            summarize(item);
        }
        m_drawn.push_back({item.bounds, item.hash});
    }

    std::vector<Drawn> m_drawn;
};

}

void resolveBackdrops(DisplayList& list)
{
    Walk().visit(list);
}

}
