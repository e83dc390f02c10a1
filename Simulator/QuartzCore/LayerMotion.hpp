// An animation on its way: what a layer still lacks of the values that it has already been given.
#pragma once

#include "Simulator/Graphics/Layer.hpp"

namespace Simulator {

/// In the order of the platform's numbers.
enum class AnimationCurve { easeInOut, easeIn, easeOut, linear };

/// The values of a layer that change smoothly.
struct LayerPose {
    Graphics::Point position;
    Graphics::Rect bounds;
    Graphics::AffineTransform transform;
    double opacity = 1;
    double cornerRadius = 0;
    double borderWidth = 0;
    double shadowOpacity = 0;
    std::optional<Graphics::Color> background;
    bool operator==(const LayerPose&) const = default;
};

struct LayerMotion {
    LayerPose from;
    LayerPose to;
    /// In seconds since the phone's start.
    double begin = 0;
    double duration = 0;
    AnimationCurve curve = AnimationCurve::easeInOut;

    bool isOver(double time) const { return time >= begin + duration; }
    /// Sets the layer, which has its final values, back by what is still to go. Motions add up.
    void apply(Graphics::Layer& layer, double time) const;
};

/// How far a motion has come, from 0 to 1, at a fraction of its time.
double progress(AnimationCurve curve, double fraction);

}
