// What owns a view and follows its life.
#pragma once

#include "Platform/UIKit/UIView.hpp"

namespace UI {

enum class ModalPresentationStyle : long { fullScreen = 0, pageSheet = 1, formSheet = 2, overFullScreen = 5 };

class ViewController : public ObjC::Class_<ViewController, Responder, "UIViewController"> {
public:
    using Class_::Class_;

    View view() const { return send<View, "view">(); }
    void setView(const View& view) const { send<void, "setView:">(view); }
    void setModalPresentationStyle(ModalPresentationStyle style) const
    {
        send<void, "setModalPresentationStyle:">(style);
    }

    /// A container adds the child, then its view, then tells it that it moved; and it tells a child that will go,
    /// takes its view out, then removes it.
    void addChildViewController(const ViewController& child) const { send<void, "addChildViewController:">(child); }
    void willMoveToParentViewController(const ViewController& parent) const
    {
        send<void, "willMoveToParentViewController:">(parent);
    }
    void didMoveToParentViewController(const ViewController& parent) const
    {
        send<void, "didMoveToParentViewController:">(parent);
    }
    void removeFromParentViewController() const { send<void, "removeFromParentViewController">(); }
    ViewController parentViewController() const { return send<ViewController, "parentViewController">(); }
};

}
