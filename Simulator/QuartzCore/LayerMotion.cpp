// The curves of motions, and the difference that each part of a layer still has to go.
#include "Simulator/QuartzCore/LayerMotion.hpp"

#include <algorithm>
#include <array>

namespace Simulator {

namespace {

/// A cubic curve from (0, 0) to (1, 1), by its two inner points' coordinates on one axis.
double cubic(double first, double second, double t)
{
    const double rest = 1 - t;
    return 3 * rest * rest * t * first + 3 * rest * t * t * second + t * t * t;
}

double slope(double first, double second, double t)
{
    const double rest = 1 - t;
    return 3 * rest * rest * first + 6 * rest * t * (second - first) + 3 * t * t * (1 - second);
}

/// Time runs along x, the motion along y; both inner points lie on y 0 or y 1.
struct Timing {
    double firstX;
    double secondX;
};
constexpr std::array timings = {Timing{0.42, 0.58}, Timing{0.42, 1}, Timing{0, 0.58}};

void setBack(double& value, double from, double to, double remaining)
{
    value += (from - to) * remaining;
}

Graphics::Color between(const Graphics::Color& near, const Graphics::Color& far, double share)
{
    const auto mix = [share](double a, double b) { return a + (b - a) * share; };
    return {mix(near.r, far.r), mix(near.g, far.g), mix(near.b, far.b), mix(near.a, far.a)};
}

/// A background that comes or goes is there all the time, and only its opacity changes.
void setBackBackground(std::optional<Graphics::Color>& shown, const LayerMotion& motion, double remaining)
{
    const auto& from = motion.from.background;
    const auto& to = motion.to.background;
    if (from == to || (!from && !shown))
        return;
    const Graphics::Color end = shown ? *shown : from->withAlpha(0);
    shown = between(end, from ? *from : end.withAlpha(0), remaining);
}

}

double progress(AnimationCurve curve, double fraction)
{
    fraction = std::clamp(fraction, 0.0, 1.0);
    if (curve == AnimationCurve::linear)
        return fraction;
    const Timing& timing = timings[static_cast<std::size_t>(curve)];
    constexpr int steps = 8;
    double t = fraction;
    for (int i = 0; i < steps; ++i) {
        const double steepness = slope(timing.firstX, timing.secondX, t);
        if (steepness > 1e-6)
            t = std::clamp(t - (cubic(timing.firstX, timing.secondX, t) - fraction) / steepness, 0.0, 1.0);
    }
    return cubic(0, 1, t);
}

void LayerMotion::apply(Graphics::Layer& layer, double time) const
{
    if (isOver(time))
        return;
    const double remaining = 1 - progress(curve, (time - begin) / duration);
    const auto back = [remaining](double& value, double start, double end) { setBack(value, start, end, remaining); };
    back(layer.position.x, from.position.x, to.position.x);
    back(layer.position.y, from.position.y, to.position.y);
    back(layer.bounds.x, from.bounds.x, to.bounds.x);
    back(layer.bounds.y, from.bounds.y, to.bounds.y);
    back(layer.bounds.width, from.bounds.width, to.bounds.width);
    back(layer.bounds.height, from.bounds.height, to.bounds.height);
    back(layer.transform.a, from.transform.a, to.transform.a);
    back(layer.transform.b, from.transform.b, to.transform.b);
    back(layer.transform.c, from.transform.c, to.transform.c);
    back(layer.transform.d, from.transform.d, to.transform.d);
    back(layer.transform.tx, from.transform.tx, to.transform.tx);
    back(layer.transform.ty, from.transform.ty, to.transform.ty);
    back(layer.opacity, from.opacity, to.opacity);
    back(layer.cornerRadius, from.cornerRadius, to.cornerRadius);
    back(layer.borderWidth, from.borderWidth, to.borderWidth);
    back(layer.shadow.opacity, from.shadowOpacity, to.shadowOpacity);
    setBackBackground(layer.backgroundColor, *this, remaining);
}

}
