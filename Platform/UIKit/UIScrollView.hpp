// A view over something larger than itself.
#pragma once

#include "Platform/UIKit/UIView.hpp"

namespace UI {

class ScrollView : public ObjC::Class_<ScrollView, View, "UIScrollView"> {
public:
    using Class_::Class_;
};

}
