#include "Tweak/Editor/EditState.hpp"

namespace LYR {

constinit ObjC::Variable<CS::CoverSheetViewController> _pressLong;
constinit ObjC::Variable<UI::LongPressGestureRecognizer> _longPress;
constinit double _allowableMovement = 100;

constinit bool _timePress = false, _datePress = false, _widgetPress = false;
constinit bool _colorPickerPress = false;

static constexpr bool* flags[tabCount] = {&_timePress, &_datePress, &_widgetPress};

bool isActive(Tab tab)
{
    return *flags[static_cast<std::size_t>(tab)];
}

std::optional<Tab> activeTab()
{
    for (Tab tab : allTabs) {
        if (isActive(tab))
            return tab;
    }
    return std::nullopt;
}

void setActiveTab(std::optional<Tab> active)
{
    for (Tab tab : allTabs)
        *flags[static_cast<std::size_t>(tab)] = tab == active;
}

}
