// From one cover sheet to the next, should the shell load another: the editor is built once and goes with it.
#pragma once

#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"

namespace LYR {

/// Lets another cover sheet answer to every control and wheel of the editor in place of the one that does.
void handEditorOver(const CS::CoverSheetViewController& from, const CS::CoverSheetViewController& to);

}
