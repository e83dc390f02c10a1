#include "Simulator/SpringBoard/TeachableMoments.hpp"

#include "Platform/UIKit/UILabel.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/SpringBoard/Registrations.hpp"
#include "Simulator/SpringBoard/ScreenLayout.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

namespace Simulator {

void CSTeachableMomentsContainerViewController::viewDidLoad()
{
    const UI::Label hint = makeLabel("", 15, FontWeight::medium, UI::Color::whiteColor());
    hint.setTextAlignment(UI::TextAlignment::center);
    hint.setAccessibilityIdentifier("stock.hint"_ns);
    label = hint;
    self<UI::ViewController>().view().addSubview(label);
}

void CSTeachableMomentsContainerViewController::viewWillAppear(bool)
{
    const bool canSwipe = ScreenLayout::current().hasHomeIndicator;
    self().send<void, "_updateText:">(canSwipe ? "Swipe up to open"_ns : "Press home to open"_ns);
}

void CSTeachableMomentsContainerViewController::viewDidLayoutSubviews()
{
    label.setFrame(self<UI::ViewController>().view().bounds());
}

void CSTeachableMomentsContainerViewController::updateText(const NS::String& text)
{
    label.send<void, "setText:">(text);
}

void registerTeachableMoments()
{
    Binder<CSTeachableMomentsContainerViewController>("CSTeachableMomentsContainerViewController", "UIViewController")
        .def<"viewDidLoad", &CSTeachableMomentsContainerViewController::viewDidLoad>()
        .def<"viewWillAppear:", &CSTeachableMomentsContainerViewController::viewWillAppear>()
        .def<"viewDidLayoutSubviews", &CSTeachableMomentsContainerViewController::viewDidLayoutSubviews>()
        .def<"_updateText:", &CSTeachableMomentsContainerViewController::updateText>()
        .add();
}

}
