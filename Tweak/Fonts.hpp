// Where the clock's fonts come from: the five of the resource folder, the user's own, and all that are installed.
#pragma once

#include "Platform/Foundation/NSDictionary.hpp"
#include "Tweak/Variables.hpp"

namespace LYR {

/// From each user font's family name and PostScript name to its file.
extern constinit ObjC::Variable<NS::Dictionary> matchDict;
/// PostScript names of the fonts of the resource folder; nil until first loaded.
extern constinit ObjC::Variable<NS::String> _font1, _font2, _font3, _font4, _font5;
/// Every installed font name, sorted, as the font pickers show them.
extern constinit ObjC::Variable<NS::MutableArray> availableFonts;

/// Registers every file of the user's font folder and fills `matchDict`.
void registerUserFonts();
/// Registers the fonts of the resource folder and stores their names. A file is read again only when it has changed.
void loadBuiltInFonts();
/// Gathers the installed fonts into `availableFonts`, anew if there are others since, and answers their number.
unsigned long rebuildAvailableFonts();

}
