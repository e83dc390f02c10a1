// The font-replacing extension that may stand beside this one: which processes it leaves alone.
#pragma once

#include "Platform/Foundation/NSDictionary.hpp"
#include "Tweak/Variables.hpp"

namespace LYR {

/// That extension's settings as last written; nil where it is not installed.
extern constinit ObjC::Variable<NS::MutableDictionary> _prefsAFont;

void loadAFont();
/// Enters the shell and the settings app into its list of exclusions, or takes them out, as `disableAFont` says.
void updateAFontBlacklist();

}
