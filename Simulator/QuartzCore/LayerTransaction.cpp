// Notes how layers were before a change, and sets them moving after it.
#include "Simulator/QuartzCore/LayerTransaction.hpp"

#include "Simulator/CoreGraphics/CGColor.hpp"
#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Loop/Loop.hpp"

#include <algorithm>
#include <utility>

namespace Simulator {

namespace {

LayerTransaction* innermost = nullptr;

LayerPose poseOf(const LayerProperties& properties)
{
    LayerPose pose;
    pose.position = {properties.position.x, properties.position.y};
    pose.bounds = toGraphics(properties.bounds);
    pose.transform = toGraphics(properties.transform);
    pose.opacity = properties.opacity;
    pose.cornerRadius = properties.cornerRadius;
    pose.borderWidth = properties.borderWidth;
    pose.shadowOpacity = properties.shadowOpacity;
    pose.background = resolvedColor(reinterpret_cast<CGColorRef>(properties.backgroundColor.raw()));
    return pose;
}

}

LayerTransaction::LayerTransaction()
    : m_outer(std::exchange(innermost, this))
{
}

LayerTransaction::~LayerTransaction()
{
    innermost = m_outer;
}

bool LayerTransaction::animate(double delay, double duration, AnimationCurve curve)
{
    const double now = Loop::shared().uptime();
    bool anyMotion = false;
    for (const Change& change : m_changes) {
        const LayerPose after = poseOf(*change.properties);
        if (after == change.before)
            continue;
        auto& motions = change.properties->motions;
        std::erase_if(motions, [now](const LayerMotion& motion) { return motion.isOver(now); });
        motions.push_back({change.before, after, now + delay, duration, curve});
        anyMotion = true;
    }
    return anyMotion;
}

void noteLayerChange(LayerProperties& properties, id keeper)
{
    if (!innermost)
        return;
    const auto isKnown = [&](const LayerTransaction::Change& change) { return change.properties == &properties; };
    if (std::ranges::none_of(innermost->m_changes, isKnown))
        innermost->m_changes.push_back({ObjC::Object(keeper), &properties, poseOf(properties)});
}

bool hasMotions(const LayerProperties& properties)
{
    const double now = Loop::shared().uptime();
    return std::ranges::any_of(properties.motions, [now](const LayerMotion& motion) { return !motion.isOver(now); });
}

}
