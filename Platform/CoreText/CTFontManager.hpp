// Making fonts known to the text system.
#pragma once

#include "Platform/CoreGraphics/CGFont.hpp"
#include "Platform/CoreGraphics/CGGeometry.hpp"

using CTFontRef = const struct __CTFont*;

extern "C" {
/// `scope` 0 lets the system choose. On failure `error` receives an error that the caller owns.
bool CTFontManagerRegisterFontsForURL(id url, std::uint32_t scope, id* error);
bool CTFontManagerUnregisterFontsForURL(id url, std::uint32_t scope, id* error);
bool CTFontManagerRegisterGraphicsFont(CGFontRef, id* error);
CTFontRef CTFontCreateWithGraphicsFont(
    CGFontRef, CGFloat size, const CGAffineTransform* matrix, const void* attributes);
/// The caller owns the name.
id CTFontCopyFamilyName(CTFontRef);
}
