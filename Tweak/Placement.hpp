// Frames out of tables: where views lie across the part of a screen, a strip or a panel that is theirs.
#pragma once

#include "Platform/UIKit/UIView.hpp"

#include <span>

namespace LYR {

/// A part of the width, in the coordinates of the view that it is a part of.
struct Slot {
    CGFloat x = 0;
    CGFloat width = 0;

    CGFloat middle() const { return x + width / 2; }
};

/// Across its slot a view lies from its left end on, up to its right end, from one end to the other, or about a point.
struct Placing {
    enum Across { fromLeft, fromRight, throughout, aboutMiddle, aboutShare } across;
    /// From the end of the slot to that of the view, from middle to middle, or the share of the slot that lies left of
    /// the view's middle.
    CGFloat x;
    /// The view's width, or what it leaves free at the right.
    CGFloat width;
    CGFloat y;
    CGFloat height;
};

/// Where a view lies.
struct Place {
    Placing placing;
    const id* view;
};

/// A row of the table of places, by how the view lies across; without the view where another table has it.
template <Placing::Across across>
struct PlaceRow {
    constexpr Placing operator()(CGFloat x, CGFloat width, CGFloat y, CGFloat height) const
    {
        return {across, x, width, y, height};
    }
    template <class T>
    constexpr Place operator()(
        const ObjC::Variable<T>& view, CGFloat x, CGFloat width, CGFloat y, CGFloat height) const
    {
        return {{across, x, width, y, height}, view.address()};
    }
};
inline constexpr PlaceRow<Placing::fromLeft> fromLeft{};
inline constexpr PlaceRow<Placing::fromRight> fromRight{};
inline constexpr PlaceRow<Placing::throughout> throughout{};
inline constexpr PlaceRow<Placing::aboutMiddle> aboutMiddle{};
inline constexpr PlaceRow<Placing::aboutShare> aboutShare{};

CGRect frameOf(const Placing& placing, const Slot& slot);
/// Gives each view of the table its frame.
void place(std::span<const Place> places, const Slot& slot);

}
