// Counts the colours in a flat table, and their cells in another, and takes the winners by single walks over the
// colours that remain.
#include "WKSPalette/PalettePick.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <vector>

namespace LYR {

namespace {

constexpr WKSColor black{0, 0, 0, 255};
constexpr WKSColor white{255, 255, 255, 255};

struct Candidate {
    WKSColor color;
    std::uint32_t count;
    std::uint32_t countInCell = 0;
};

constexpr bool ranksAbove(const Candidate& left, const Candidate& right)
{
    if (left.count != right.count)
        return left.count > right.count;
    if (left.countInCell != right.countInCell)
        return left.countInCell > right.countInCell;
    return left.color.packed() < right.color.packed();
}

/// Every colour once, with the number of its pixels, in the order of appearance. Open addressing at most half
/// full: the slots hold one more than the index of a candidate.
std::vector<Candidate> countColours(std::span<const WKSColor> pixels)
{
    std::vector<Candidate> candidates;
    candidates.reserve(pixels.size());
    std::vector<std::uint32_t> slots(std::bit_ceil(std::max<std::size_t>(pixels.size() * 2, 2)));
    const std::size_t mask = slots.size() - 1;
    const int shift = 64 - std::countr_zero(slots.size());

    for (WKSColor color : pixels) {
        std::size_t slot = (color.packed() * 0x9E3779B97F4A7C15u) >> shift;
        while (slots[slot] && candidates[slots[slot] - 1].color != color)
            slot = (slot + 1) & mask;
        if (slots[slot])
            ++candidates[slots[slot] - 1].count;
        else {
            candidates.push_back({color, 1});
            slots[slot] = static_cast<std::uint32_t>(candidates.size());
        }
    }
    return candidates;
}

/// Colours share a cell if their red, green and blue begin with the same four bits.
constexpr std::size_t cellOf(WKSColor color)
{
    return std::size_t{color.r} >> 4 << 8 | std::size_t{color.g} >> 4 << 4 | std::size_t{color.b} >> 4;
}

/// In a photograph nearly every colour occurs once; how many pixels are like it tells them apart.
void countCells(std::vector<Candidate>& candidates)
{
    std::array<std::uint32_t, 1 << 12> counts{};
    for (const Candidate& candidate : candidates)
        counts[cellOf(candidate.color)] += candidate.count;
    for (Candidate& candidate : candidates)
        candidate.countInCell = counts[cellOf(candidate.color)];
}

template <class Test>
const Candidate* mostFrequent(const std::vector<Candidate>& candidates, Test test)
{
    const Candidate* best = nullptr;
    for (const Candidate& candidate : candidates)
        if ((!best || ranksAbove(candidate, *best)) && test(candidate.color))
            best = &candidate;
    return best;
}

WKSColor pickBackground(const std::vector<Candidate>& candidates)
{
    const Candidate* best = mostFrequent(candidates, [](WKSColor color) { return !color.isBlackOrWhite(); });
    if (!best)
        best = mostFrequent(candidates, [](WKSColor) { return true; });
    return best ? best->color : black;
}

}

PickedColours pickPalette(std::span<const WKSColor> pixels)
{
    std::vector<Candidate> candidates = countColours(pixels);
    countCells(candidates);
    WKSColor background = pickBackground(candidates);
    bool textIsDark = !background.isDark();

    // Text colours are judged as the picture shows them: their saturation is not raised first.
    auto next = [&](auto isDistinctFromPicked) {
        const Candidate* best = mostFrequent(candidates, [&](WKSColor color) {
            return color.isDark() == textIsDark && color.isContrasting(background) && isDistinctFromPicked(color);
        });
        return best ? best->color : textIsDark ? black : white;
    };
    WKSColor primary = next([](WKSColor) { return true; });
    WKSColor secondary = next([&](WKSColor color) { return color.isDistinct(primary); });
    WKSColor detail = next([&](WKSColor color) { return color.isDistinct(primary) && color.isDistinct(secondary); });
    return {background, primary, secondary, detail};
}

}
