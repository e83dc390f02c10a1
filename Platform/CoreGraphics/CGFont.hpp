// Fonts from data.
#pragma once

#include "Platform/ObjC/Runtime.hpp"

using CGDataProviderRef = struct CGDataProvider*;
using CGFontRef = struct CGFont*;

extern "C" {
CGDataProviderRef CGDataProviderCreateWithCFData(id data);
void CGDataProviderRelease(CGDataProviderRef);
/// The first font in the data; null if it holds none.
CGFontRef CGFontCreateWithDataProvider(CGDataProviderRef);
void CGFontRelease(CGFontRef);
/// The caller owns the name.
id CGFontCopyPostScriptName(CGFontRef);
}
