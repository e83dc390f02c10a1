// Whether the user edits, and what.
#pragma once

#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"
#include "Platform/UIKit/UIGestureRecognizer.hpp"

#include <array>
#include <optional>

namespace LYR {

/// The cover sheet that owns the editor, and the long press that opens it: nil while the editor is open.
extern constinit ObjC::Variable<CS::CoverSheetViewController> _pressLong;
extern constinit ObjC::Variable<UI::LongPressGestureRecognizer> _longPress;
/// How far the finger may move meanwhile, in points.
extern constinit double _allowableMovement;

/// The element whose panel is the active one; none of them while the editor is closed.
extern constinit bool _timePress, _datePress, _widgetPress;
/// A colour of the sheet is being edited.
extern constinit bool _colorPickerPress;

enum class Tab { time, date, widget };
inline constexpr std::size_t tabCount = 3;
inline constexpr std::array<Tab, tabCount> allTabs{Tab::time, Tab::date, Tab::widget};

bool isActive(Tab tab);
std::optional<Tab> activeTab();
/// Makes one tab the active one, or none.
void setActiveTab(std::optional<Tab> tab);

}
