// The base of what takes part in the responder chain.
#pragma once

#include "Platform/UIKit/UIView.hpp"
#include "Simulator/Runtime/StandIn.hpp"

namespace Simulator {

struct UIResponder : StandIn {
    using Root = UIResponder;

    /// Who is asked next for what this responder does not handle.
    virtual UI::Responder nextResponder() const { return {}; }

    /// A touch that the responder does nothing with goes to the next one.
    void touchesBegan(const NS::Object& touches, const NS::Object& event);
    void touchesMoved(const NS::Object& touches, const NS::Object& event);
    void touchesEnded(const NS::Object& touches, const NS::Object& event);
    void touchesCancelled(const NS::Object& touches, const NS::Object& event);
};

}
