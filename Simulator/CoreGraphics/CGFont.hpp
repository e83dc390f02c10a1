// Fonts from data: the data provider and the font that is read from it.
#pragma once

#include "Platform/CoreGraphics/CGFont.hpp"
#include "Platform/Foundation/NSData.hpp"
#include "Simulator/Files/FileContent.hpp"
#include "Simulator/Graphics/Font.hpp"
#include "Simulator/Runtime/StandIn.hpp"

#include <cstddef>
#include <memory>
#include <span>

namespace Simulator {

struct CGDataProviderObject : StandIn {
    using Root = CGDataProviderObject;
    NS::Data data;
};

struct CGFontObject : StandIn {
    using Root = CGFontObject;
    std::span<const std::byte> bytes() const;
    NS::Data data;
    Graphics::FaceNames names;
};

/// The C++ side of a font; null for anything else.
CGFontObject* fontObjectOf(CGFontRef font);

/// The extension reads each of its fonts several times over; what was found in a content is found again without a look.
void rememberFontNames(const std::shared_ptr<const FileContent>& content, const Graphics::FaceNames& names);

}
