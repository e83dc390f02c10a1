// The elements that the editor edits, each with a tab of its own.
#pragma once

#include "Tweak/Variables.hpp"

#include <array>
#include <optional>

namespace LYR {

enum class Tab { time, date, widget };
inline constexpr std::size_t tabCount = 3;
inline constexpr std::array<Tab, tabCount> allTabs{Tab::time, Tab::date, Tab::widget};

/// The element whose panel is the active one; none of them while the editor is closed.
extern constinit bool _timePress, _datePress, _widgetPress;

bool isActive(Tab tab);
std::optional<Tab> activeTab();
/// Makes one tab the active one, or none.
void setActiveTab(std::optional<Tab> tab);

/// One of each for the tabs, in their order.
template <class T>
struct PerTab {
    T values[tabCount];

    constexpr const T& operator[](Tab tab) const { return values[static_cast<std::size_t>(tab)]; }
};

}
