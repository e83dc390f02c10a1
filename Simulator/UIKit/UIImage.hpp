// Pictures: pixels shared between objects, their scale and how they are coloured.
#pragma once

#include "Platform/UIKit/UIColor.hpp"
#include "Platform/UIKit/UIImage.hpp"
#include "Simulator/Graphics/Image.hpp"
#include "Simulator/Graphics/Layer.hpp"
#include "Simulator/Runtime/StandIn.hpp"

#include <optional>
#include <string>

namespace Simulator {

struct UIImage : StandIn {
    using Root = UIImage;

    static UI::Image withContentsOfFile(const NS::String& path);
    static UI::Image withData(const NS::Data& data);
    static UI::Image withDataAndScale(const NS::Data& data, double scale);
    static UI::Image named(const NS::String& name);
    static UI::Image symbolNamed(const NS::String& name);
    static UI::Image withCGImage(CGImageRef image);

    CGSize size() const;
    CGImageRef CGImage();
    UI::Image withRenderingMode(long mode) const;
    UI::Image withTintColor(const UI::Color& color) const;
    void drawInRect(CGRect rect) const;
    /// Nothing in it ever changes.
    ObjC::Object sameForCopy(void*) const { return self(); }

    bool isSymbol() const { return image && image->isDrawing(); }
    /// Shown in the tint colour of whatever shows it.
    bool isTemplate() const;
    /// The pixels; a symbol is drawn at the screen's scale.
    Graphics::Image::Pointer pixels() const;

    Graphics::Image::Pointer image;
    double scale = 1;
    long renderingMode = 0;
    /// The phone path or the symbol's name that it came from; empty if it was made in memory.
    std::string path;

private:
    ObjC::Object m_reference;
};

/// Null for nil and for what is no image.
UIImage* imageStandIn(const ObjC::Object& image);
UI::Image makeImage(const Graphics::Image::Pointer& image, double scale, const std::string& path = {});

/// Adds a drawing to the current image context; without one, nothing happens.
void drawIntoImageContext(Graphics::Layer layer);

}
