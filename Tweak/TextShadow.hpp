// The shadow under the lock screen's texts.
#pragma once

#include "Platform/UIKit/UILabel.hpp"

namespace LYR {

struct TextShadow {
    CGFloat radius;
    CGSize offset;
};

inline constexpr TextShadow largeTextShadow = {2.5, {1.0, 1.0}};
inline constexpr TextShadow smallTextShadow = {1.5, {0.4, 0.4}};

/// In the stored colour; without a shadow its geometry is set all the same, in a clear colour.
void applyTextShadow(const UI::Label& label, const TextShadow& shadow);

}
