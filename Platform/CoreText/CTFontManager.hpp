// Making fonts known to the text system.
#pragma once

#include "Platform/CoreGraphics/CGFont.hpp"
#include "Platform/CoreGraphics/CGGeometry.hpp"

using CTFontRef = const struct __CTFont*;

/// For whom a font is registered; none is no scope to register with.
enum class CTFontManagerScope : std::uint32_t { none = 0, process = 1 };

extern "C" {
/// On failure `error` receives an error that the caller owns.
bool CTFontManagerRegisterFontsForURL(id url, CTFontManagerScope scope, id* error);
bool CTFontManagerUnregisterFontsForURL(id url, CTFontManagerScope scope, id* error);
bool CTFontManagerRegisterGraphicsFont(CGFontRef, id* error);
CTFontRef CTFontCreateWithGraphicsFont(
    CGFontRef, CGFloat size, const CGAffineTransform* matrix, const void* attributes);
/// The caller owns the name.
id CTFontCopyFamilyName(CTFontRef);
}
