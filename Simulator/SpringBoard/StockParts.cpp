// Makes labels, panes and symbols by messages, so that interceptions see them.
#include "Simulator/SpringBoard/StockParts.hpp"

#include "Simulator/Runtime/Binder.hpp"

namespace Simulator {

namespace {

id allocate(const char* className)
{
    return ObjC::sendMessage<id>(reinterpret_cast<id>(objc_getClass(className)), ObjC::selector<"alloc">());
}

UI::Color colourByName(SEL selector)
{
    return ObjC::sendMessage<UI::Color>(reinterpret_cast<id>(UI::Color::type()), selector);
}

}

NS::Object makeObject(const char* className)
{
    return NS::Object::adopting(ObjC::sendMessage<id>(allocate(className), ObjC::selector<"init">()));
}

UI::View makeView(const char* className, CGRect frame, const char* identifier)
{
    const auto view
        = UI::View::adopting(ObjC::sendMessage<id>(allocate(className), ObjC::selector<"initWithFrame:">(), frame));
    if (identifier)
        view.setAccessibilityIdentifier(NS::String::fromUTF8(identifier));
    return view;
}

UI::ViewController makeController(const char* className)
{
    return UI::ViewController(makeObject(className).raw());
}

UI::Font systemFont(double size, double weight)
{
    return UI::Font::sendClass<UI::Font, "systemFontOfSize:weight:">(size, weight);
}

UI::Color whiteWithAlpha(double alpha)
{
    return UI::Color::colorWithRed(1, 1, 1, alpha);
}

UI::Color labelColour()
{
    return colourByName(ObjC::selector<"labelColor">());
}

UI::Label makeLabel(const std::string& text, double size, double weight, const UI::Color& colour)
{
    const UI::Label label(makeView("UILabel").raw());
    label.setFont(systemFont(size, weight));
    label.setTextColor(colour);
    label.setText(NS::String::fromUTF8(text));
    return label;
}

UI::View makePane(BlurStyle style, double cornerRadius)
{
    const UI::View pane = makeView("UIVisualEffectView");
    standIn<UIVisualEffectView>(pane.raw()).setStyle(static_cast<long>(style));
    pane.layer().setCornerRadius(cornerRadius);
    pane.setClipsToBounds(true);
    return pane;
}

UI::View contentOfPane(const UI::View& pane)
{
    return pane.send<UI::View, "contentView">();
}

UI::View makePlate(CGRect frame, const UI::Color& colour, double cornerRadius)
{
    const UI::View plate = makeView("UIView", frame);
    plate.setBackgroundColor(colour);
    plate.layer().setCornerRadius(cornerRadius);
    return plate;
}

UI::ImageView makeSymbol(const char* symbol, CGRect frame, const UI::Color& colour)
{
    const UI::ImageView view(makeView("UIImageView", frame).raw());
    view.setImage(UI::Image::systemImageNamed(NS::String::fromUTF8(symbol)));
    view.setContentMode(UI::ViewContentMode::scaleAspectFit);
    view.setTintColor(colour);
    return view;
}

CGRect centred(CGSize size, CGRect rect)
{
    return CGRectMake(rect.origin.x + (rect.size.width - size.width) / 2,
        rect.origin.y + (rect.size.height - size.height) / 2, size.width, size.height);
}

void placeUntransformed(const UI::View& view, CGRect frame)
{
    view.setBounds({{0, 0}, frame.size});
    view.setCenter({frame.origin.x + frame.size.width / 2, frame.origin.y + frame.size.height / 2});
}

}
