#include "Tweak/Editor/Handover.hpp"

#include "Tweak/Editor/EditorViews.hpp"

namespace LYR {

namespace {

/// What the control sends to the one at an event it sends to the other instead.
void redirect(const UI::Control& control, const ObjC::Object& from, const ObjC::Object& to)
{
    for (auto event : {UI::ControlEvents::touchUpInside, UI::ControlEvents::valueChanged}) {
        auto actions = control.actionsForTarget(from, event);
        for (unsigned long i = 0; i < actions.count(); ++i) {
            SEL action = sel_registerName(actions.at<NS::String>(i).utf8().data());
            control.removeTarget(from, action, event);
            control.addTarget(to, action, event);
        }
    }
}

void redirectAll(const UI::View& view, const ObjC::Object& from, const ObjC::Object& to)
{
    if (auto control = view.as<UI::Control>())
        redirect(control, from, to);
    auto subviews = view.subviews();
    for (unsigned long i = 0; i < subviews.count(); ++i)
        redirectAll(subviews.at<UI::View>(i), from, to);
}

}

void handEditorOver(const CS::CoverSheetViewController& from, const CS::CoverSheetViewController& to)
{
    redirectAll(_optionView, from, to);
    for (const auto* button : {&_done, &_timeButton, &_dateButton, &_widgetButton})
        redirectAll(button->reference(), from, to);
    for (const auto* picker : {&_pickerView1, &_pickerView2}) {
        (*picker)->setDelegate(to);
        (*picker)->setDataSource(to);
    }
    // These two stand on the cover sheet whether the editor is open or not.
    for (const auto* button : {&_buttonCL, &_buttonCL2}) {
        redirectAll(button->reference(), from, to);
        to.view().addSubview(button->reference());
    }
}

}
