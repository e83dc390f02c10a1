// The notification list, stock and of the other extension.
#pragma once

#include "Platform/UIKit/UIViewController.hpp"

namespace NC {

class StructuredListViewController : public ObjC::Class_<StructuredListViewController, UI::ViewController,
                                         "NCNotificationStructuredListViewController"> {
public:
    using Class_::Class_;
    UI::View scrollView() const { return send<UI::View, "scrollView">(); }
};

}

namespace AXN {

class View : public ObjC::Class_<View, UI::View, "AXNView"> {
public:
    using Class_::Class_;
    NS::Array list() const { return send<NS::Array, "list">(); }
};

}
