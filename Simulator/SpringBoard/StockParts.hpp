// What the stock views are made of: labels, panes, symbols, objects by class name.
#pragma once

#include "Platform/UIKit/UIImageView.hpp"
#include "Platform/UIKit/UILabel.hpp"
#include "Simulator/UIKit/UIVisualEffectView.hpp"

#include <string>

namespace Simulator {

/// A new object by `init`; nil if there is no class of that name.
NS::Object makeObject(const char* className);
/// An object of a class of the shell, by an initialiser with arguments.
template <ObjC::FixedString initializer, class... Arguments>
NS::Object makeObject(const char* className, const Arguments&... arguments)
{
    static_assert(ObjC::isInitializer(initializer.view()), "an initializer's selector begins with init");
    const id allocated
        = ObjC::sendMessage<id>(reinterpret_cast<id>(objc_getClass(className)), ObjC::selector<"alloc">());
    return NS::Object::adopting(ObjC::sendMessage<id>(allocated, ObjC::selector<initializer>(), arguments...));
}

/// A new view by `initWithFrame:`, with an accessibility identifier if one is given.
UI::View makeView(const char* className, CGRect frame = {}, const char* identifier = nullptr);
UI::ViewController makeController(const char* className);

/// The result of `sharedInstance` of a class of the shell.
template <class T = NS::Object>
T sharedInstance(const char* className)
{
    return ObjC::sendMessage<T>(reinterpret_cast<id>(objc_getClass(className)), ObjC::selector<"sharedInstance">());
}

/// The platform's font weights.
namespace FontWeight {
inline constexpr double thin = -0.6;
inline constexpr double regular = 0;
inline constexpr double medium = 0.23;
inline constexpr double semibold = 0.3;
}

UI::Font systemFont(double size, double weight);
UI::Color whiteWithAlpha(double alpha);
/// The colour of text on a pane: black in light, white in dark appearance.
UI::Color labelColour();

UI::Label makeLabel(const std::string& text, double size, double weight, const UI::Color& colour);
/// A pane that blurs what lies behind it.
UI::View makePane(BlurStyle style, double cornerRadius);
/// Where the content of a pane goes.
UI::View contentOfPane(const UI::View& pane);
/// A rounded rectangle of one colour.
UI::View makePlate(CGRect frame, const UI::Color& colour, double cornerRadius);
/// A symbol in one colour, as large as fits the frame.
UI::ImageView makeSymbol(const char* symbol, CGRect frame, const UI::Color& colour);

/// A rectangle of that size in the middle of another one.
CGRect centred(CGSize size, CGRect rect);

/// Moves a view that may be transformed: its frame is what it would be without the transform.
void placeUntransformed(const UI::View& view, CGRect frame);

}
