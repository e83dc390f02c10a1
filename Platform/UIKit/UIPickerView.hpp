// A wheel of rows. It asks its data source how many there are, and its delegate for the views of those in sight.
#pragma once

#include "Platform/UIKit/UIView.hpp"

namespace UI {

class PickerView : public ObjC::Class_<PickerView, View, "UIPickerView"> {
public:
    using Class_::Class_;

    /// `pickerView:viewForRow:forComponent:reusingView:`, `pickerView:didSelectRow:inComponent:`; not kept.
    void setDelegate(const ObjC::Object& delegate) const { send<void, "setDelegate:">(delegate); }
    /// `numberOfComponentsInPickerView:`, `pickerView:numberOfRowsInComponent:`; not kept.
    void setDataSource(const ObjC::Object& source) const { send<void, "setDataSource:">(source); }
    void reloadAllComponents() const { send<void, "reloadAllComponents">(); }
    long numberOfRowsInComponent(long component) const { return send<long, "numberOfRowsInComponent:">(component); }
    CGSize rowSizeForComponent(long component) const { return send<CGSize, "rowSizeForComponent:">(component); }
    long selectedRowInComponent(long component) const { return send<long, "selectedRowInComponent:">(component); }
    /// Turns the wheel without a word to the delegate.
    void selectRow(long row, long component, bool animated) const
    {
        send<void, "selectRow:inComponent:animated:">(row, component, animated);
    }
    void setShowsSelectionIndicator(bool shows) const { send<void, "setShowsSelectionIndicator:">(shows); }
};

}
