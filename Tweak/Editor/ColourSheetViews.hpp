// What is on the colour sheet: a row for each element, with a well, a swatch and a caption.
#pragma once

#include "Platform/ObjC/Method.hpp"
#include "Tweak/Editor/ColourSheet.hpp"

namespace LYR {

/// `colorWellView`, `colorWell`, `wellViewTime` and so on, as instance variables that own what they hold, with accessors.
void addColourSheetProperties(ObjC::ClassBuilder& builder);
void buildColourSheet(const ColourSheet& sheet);
/// Shows a colour on the element's swatch.
void showOnSheet(const ColourSheet& sheet, Tab tab, const UI::Color& colour);
void releaseColourSheetViews(id sheet);

}
