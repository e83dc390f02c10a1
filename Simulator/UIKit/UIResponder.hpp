// The base of what takes part in the responder chain.
#pragma once

#include "Platform/UIKit/UIView.hpp"
#include "Simulator/Runtime/StandIn.hpp"

namespace Simulator {

struct UIResponder : StandIn {
    using Root = UIResponder;

    /// Who is asked next for what this responder does not handle.
    virtual UI::Responder nextResponder() const { return {}; }
};

void registerUIResponder();

}
