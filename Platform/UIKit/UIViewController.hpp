// What owns a view and follows its life.
#pragma once

#include "Platform/UIKit/UIView.hpp"

namespace UI {

class ViewController : public ObjC::Class_<ViewController, Responder, "UIViewController"> {
public:
    using Class_::Class_;

    View view() const { return send<View, "view">(); }
    void setView(const View& view) const { send<void, "setView:">(view); }
    void addChildViewController(const ViewController& child) const { send<void, "addChildViewController:">(child); }
};

}
