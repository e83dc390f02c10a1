// Builds the editor.
#pragma once

#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"

namespace LYR {

/// Builds every view of the editor with the cover sheet as the one that answers to them. Once in the life of the process.
void buildEditor(const CS::CoverSheetViewController& controller);

}
