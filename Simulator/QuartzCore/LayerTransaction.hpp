// Changes of layers that are made together and become one animation.
#pragma once

#include "Simulator/QuartzCore/CALayer.hpp"

#include <vector>

namespace Simulator {

/// While it stands, changes of the layers under views are noted; the innermost one gets them.
class LayerTransaction {
public:
    LayerTransaction();
    ~LayerTransaction();
    LayerTransaction(const LayerTransaction&) = delete;
    LayerTransaction& operator=(const LayerTransaction&) = delete;

    /// Makes motions of what changed. False if nothing did.
    bool animate(double delay, double duration, AnimationCurve curve);

private:
    friend void noteLayerChange(LayerProperties&, id);
    struct Change {
        ObjC::Object keeper;
        LayerProperties* properties;
        LayerPose before;
    };

    LayerTransaction* m_outer;
    std::vector<Change> m_changes;
};

/// To be called before a change; `keeper` is the object whose life the properties share.
void noteLayerChange(LayerProperties& properties, id keeper);

/// Whether any of its motions is still on its way.
bool hasMotions(const LayerProperties& properties);

}
