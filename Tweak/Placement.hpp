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
struct Place {
    enum Across { fromLeft, fromRight, throughout, aboutMiddle, aboutShare } across;
    const id* view;
    /// From the end of the slot to that of the view, from middle to middle, or the share of the slot that lies left of
    /// the view's middle.
    CGFloat x;
    /// The view's width, or what it leaves free at the right.
    CGFloat width;
    CGFloat y;
    CGFloat height;
};

/// A row of the table of places, by how the view lies across.
template <Place::Across across>
struct PlaceRow {
    template <class T>
    constexpr Place operator()(
        const ObjC::Variable<T>& view, CGFloat x, CGFloat width, CGFloat y, CGFloat height) const
    {
        return {across, view.address(), x, width, y, height};
    }
};
inline constexpr PlaceRow<Place::fromLeft> fromLeft{};
inline constexpr PlaceRow<Place::fromRight> fromRight{};
inline constexpr PlaceRow<Place::throughout> throughout{};
inline constexpr PlaceRow<Place::aboutMiddle> aboutMiddle{};
inline constexpr PlaceRow<Place::aboutShare> aboutShare{};

/// Gives each view of the table its frame.
void place(std::span<const Place> places, const Slot& slot);

}
