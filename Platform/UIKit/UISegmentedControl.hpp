// One choice of a few, side by side.
#pragma once

#include "Platform/Foundation/NSDictionary.hpp"
#include "Platform/UIKit/UIControl.hpp"
#include "Platform/UIKit/UIImage.hpp"

namespace UI {

class SegmentedControl : public ObjC::Class_<SegmentedControl, Control, "UISegmentedControl"> {
public:
    using Class_::Class_;

    /// The selected index while none is.
    static constexpr long noSegment = -1;

    /// Each item a text or a picture.
    static SegmentedControl withItems(const NS::Array& items) { return make<"initWithItems:">(items); }
    unsigned long numberOfSegments() const { return send<unsigned long, "numberOfSegments">(); }
    void insertSegmentWithTitle(const NS::String& title, unsigned long index, bool animated) const
    {
        send<void, "insertSegmentWithTitle:atIndex:animated:">(title, index, animated);
    }
    void insertSegmentWithImage(const Image& image, unsigned long index, bool animated) const
    {
        send<void, "insertSegmentWithImage:atIndex:animated:">(image, index, animated);
    }
    void removeSegmentAtIndex(unsigned long index, bool animated) const
    {
        send<void, "removeSegmentAtIndex:animated:">(index, animated);
    }
    void removeAllSegments() const { send<void, "removeAllSegments">(); }
    /// nil for a picture.
    NS::String titleForSegmentAtIndex(unsigned long index) const
    {
        return send<NS::String, "titleForSegmentAtIndex:">(index);
    }
    void setTitleForSegmentAtIndex(const NS::String& title, unsigned long index) const
    {
        send<void, "setTitle:forSegmentAtIndex:">(title, index);
    }
    /// nil for a text.
    Image imageForSegmentAtIndex(unsigned long index) const { return send<Image, "imageForSegmentAtIndex:">(index); }
    void setImageForSegmentAtIndex(const Image& image, unsigned long index) const
    {
        send<void, "setImage:forSegmentAtIndex:">(image, index);
    }
    /// Whether a segment is as wide as what is in it asks for, rather than as wide as all others.
    void setApportionsSegmentWidthsByContent(bool apportions) const
    {
        send<void, "setApportionsSegmentWidthsByContent:">(apportions);
    }
    long selectedSegmentIndex() const { return send<long, "selectedSegmentIndex">(); }
    void setSelectedSegmentIndex(long index) const { send<void, "setSelectedSegmentIndex:">(index); }
    void setSelectedSegmentTintColor(const Color& color) const { send<void, "setSelectedSegmentTintColor:">(color); }
    /// Font and colour of the titles.
    void setTitleTextAttributes(const NS::Dictionary& attributes, ControlState state) const
    {
        send<void, "setTitleTextAttributes:forState:">(attributes, state);
    }
};

}
