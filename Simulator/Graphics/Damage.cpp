// Finds the items that both lists share in the same order; all others leave damage where they were or are.
#include "Simulator/Graphics/Damage.hpp"

#include <algorithm>
#include <unordered_map>

namespace Simulator::Graphics {

namespace {

/// More rectangles than this cost more than they save.
constexpr std::size_t rectLimit = 12;

/// Groups that differ in their items only are the same group.
std::uint64_t keyOf(const DisplayItem& item)
{
    const auto* group = std::get_if<Group>(&item.content);
    return group ? group->ownHash : item.hash;
}

struct Pair {
    std::size_t before = 0;
    std::size_t after = 0;
};

/// The first of equal items goes with the first, the second with the second.
std::vector<Pair> equalItems(const DisplayList& before, const DisplayList& after)
{
    std::unordered_map<std::uint64_t, std::vector<std::size_t>> places;
    for (std::size_t i = before.size(); i-- > 0;)
        places[keyOf(before[i])].push_back(i);
    std::vector<Pair> pairs;
    for (std::size_t i = 0; i < after.size(); ++i) {
        const auto found = places.find(keyOf(after[i]));
        if (found == places.end() || found->second.empty())
            continue;
        pairs.push_back({found->second.back(), i});
        found->second.pop_back();
    }
    return pairs;
}

/// The longest sequence of pairs that stand in the same order in both lists.
std::vector<Pair> inSameOrder(const std::vector<Pair>& pairs)
{
    constexpr auto none = static_cast<std::size_t>(-1);
    std::vector<std::size_t> ends;
    std::vector<std::size_t> previous(pairs.size(), none);
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const auto place = std::lower_bound(ends.begin(), ends.end(), pairs[i].before,
            [&](std::size_t end, std::size_t position) { return pairs[end].before < position; });
        if (place != ends.begin())
            previous[i] = *std::prev(place);
        if (place == ends.end())
            ends.push_back(i);
        else
            *place = i;
    }
    std::vector<Pair> sequence;
    for (std::size_t i = ends.empty() ? none : ends.back(); i != none; i = previous[i])
        sequence.push_back(pairs[i]);
    std::reverse(sequence.begin(), sequence.end());
    return sequence;
}

void collect(
    const DisplayList& before, const DisplayList& after, const PixelRect& within, std::vector<PixelRect>& damage);

void collectGroup(
    const DisplayItem& before, const DisplayItem& after, const PixelRect& within, std::vector<PixelRect>& damage)
{
    const auto& old = std::get<Group>(before.content);
    const auto& now = std::get<Group>(after.content);
    const PixelRect bounds = before.bounds.unionWith(after.bounds).intersectionWith(within);
    if (old.shadow || now.shadow)
        damage.push_back(bounds);
    else
        collect(old.items, now.items, bounds, damage);
}

void collect(
    const DisplayList& before, const DisplayList& after, const PixelRect& within, std::vector<PixelRect>& damage)
{
    const auto kept = inSameOrder(equalItems(before, after));
    std::vector<bool> isKeptBefore(before.size());
    std::vector<bool> isKeptAfter(after.size());
    for (const auto& pair : kept) {
        isKeptBefore[pair.before] = isKeptAfter[pair.after] = true;
        if (before[pair.before].hash != after[pair.after].hash)
            collectGroup(before[pair.before], after[pair.after], within, damage);
    }
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (!isKeptBefore[i])
            damage.push_back(before[i].bounds.intersectionWith(within));
    }
    for (std::size_t i = 0; i < after.size(); ++i) {
        if (!isKeptAfter[i])
            damage.push_back(after[i].bounds.intersectionWith(within));
    }
}

/// Adds the rectangle to disjoint ones; those that it touches become one with it.
void addDisjoint(std::vector<PixelRect>& rects, PixelRect added)
{
    if (added.isEmpty())
        return;
    for (std::size_t i = 0; i < rects.size();) {
        if (!rects[i].intersects(added)) {
            ++i;
            continue;
        }
        added = added.unionWith(rects[i]);
        rects.erase(rects.begin() + static_cast<std::ptrdiff_t>(i));
        i = 0;
    }
    rects.push_back(added);
}

}

std::vector<PixelRect> damageBetween(const DisplayList& before, const DisplayList& after, const PixelRect& screen)
{
    std::vector<PixelRect> damage;
    collect(before, after, screen, damage);
    std::vector<PixelRect> disjoint;
    for (const auto& rect : damage)
        addDisjoint(disjoint, rect);
    if (disjoint.size() <= rectLimit)
        return disjoint;
    PixelRect all;
    for (const auto& rect : disjoint)
        all = all.unionWith(rect);
    return {all};
}

}
