// The notification list, stock and of the other extension.
#pragma once

#include "Platform/UIKit/UIViewController.hpp"

namespace NC {

/// Says that there are no older notifications.
class RevealHintView : public ObjC::PrivateClass_<RevealHintView, UI::View, "NCNotificationListSectionRevealHintView"> {
public:
    using PrivateClass_::PrivateClass_;
};

class StructuredListViewController : public ObjC::PrivateClass_<StructuredListViewController, UI::ViewController,
                                         "NCNotificationStructuredListViewController"> {
public:
    using PrivateClass_::PrivateClass_;
    UI::View scrollView() const { return send<UI::View, "scrollView">(); }
};

}

namespace AXN {

class View : public ObjC::PrivateClass_<View, UI::View, "AXNView"> {
public:
    using PrivateClass_::PrivateClass_;
    NS::Array list() const { return send<NS::Array, "list">(); }
};

}
