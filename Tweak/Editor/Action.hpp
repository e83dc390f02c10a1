// The methods that the editor adds to the cover sheet: selector and function in one.
#pragma once

#include "Platform/ObjC/Hook.hpp"
#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"

namespace LYR {

/// They are added group by group.
enum class ActionGroup { batterySaver, editing, tabs, notice, sliders, segments, wells, wheels, fontSize };
inline constexpr ActionGroup allActionGroups[] = {ActionGroup::batterySaver, ActionGroup::editing, ActionGroup::tabs,
    ActionGroup::notice, ActionGroup::sliders, ActionGroup::segments, ActionGroup::wells, ActionGroup::wheels,
    ActionGroup::fontSize};

struct Action {
    ActionGroup group{};
    /// Null where there is no action.
    ObjC::HookRow (*row)() = nullptr;

    explicit operator bool() const { return row != nullptr; }
    SEL selector() const { return sel_registerName(row().selectorName); }
};

/// A function as a method of the cover sheet: as it stands, with the control that sends alone, or with nothing.
template <auto function, std::size_t argumentCount>
struct Method {
    static constexpr auto value = function;
};

template <class Sender, void (*function)(Sender)>
struct Method<function, 1> {
    static void value(CS::CoverSheetViewController, SEL, Sender sender) { function(sender); }
};

template <void (*function)()>
struct Method<function, 1> {
    static void value(CS::CoverSheetViewController, SEL, ObjC::Object) { function(); }
};

template <void (*function)()>
struct Method<function, 0> {
    static void value(CS::CoverSheetViewController, SEL) { function(); }
};

template <ObjC::FixedString selectorName, auto function>
constexpr Action action(ActionGroup group)
{
    constexpr auto method = Method<function, ObjC::argumentCount(selectorName.view())>::value;
    return {group, ObjC::added<"CSCoverSheetViewController", selectorName, method>};
}

}
