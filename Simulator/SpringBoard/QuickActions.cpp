#include "Simulator/SpringBoard/QuickActions.hpp"

#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/SpringBoard/Registrations.hpp"
#include "Simulator/SpringBoard/ScreenLayout.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

namespace Simulator {

namespace {

constexpr double buttonSize = 50;
constexpr double glyphSize = 26;
constexpr double sideMargin = 46;
constexpr double bottomMargin = 50;

UI::View makeButton(const char* symbol, const char* identifier)
{
    const UI::View button = makeView("CSQuickActionsButton", {}, identifier);
    standIn<CSQuickActionsButton>(button.raw()).showSymbol(symbol);
    return button;
}

}

void CSQuickActionsButton::showSymbol(const char* symbol)
{
    pane = makePane(BlurStyle::dark, buttonSize / 2);
    pane.setAlpha(0.8);
    glyph = makeSymbol(symbol, {}, UI::Color::whiteColor());
    addSubview(pane);
    addSubview(glyph);
}

void CSQuickActionsButton::layoutSubviews()
{
    pane.setFrame(bounds());
    glyph.setFrame(centred({glyphSize, glyphSize}, bounds()));
}

void CSQuickActionsViewController::viewDidLoad()
{
    flashlight = makeButton("flashlight.off.fill", "stock.flashlight");
    camera = makeButton("camera.fill", "stock.camera");
    const UI::View view = self<UI::ViewController>().view();
    view.addSubview(flashlight);
    view.addSubview(camera);
    updateVisibility();
}

void CSQuickActionsViewController::viewWillAppear(bool)
{
    updateVisibility();
}

void CSQuickActionsViewController::viewDidLayoutSubviews()
{
    const CGSize size = self<UI::ViewController>().view().bounds().size;
    const double y = size.height - bottomMargin - buttonSize;
    flashlight.setFrame(CGRectMake(sideMargin, y, buttonSize, buttonSize));
    camera.setFrame(CGRectMake(size.width - sideMargin - buttonSize, y, buttonSize, buttonSize));
    updateVisibility();
}

void CSQuickActionsViewController::updateVisibility()
{
    flashlight.setHidden(!self().send<bool, "hasFlashlight">());
    camera.setHidden(!self().send<bool, "hasCamera">());
}

/// Phones with a home button open the camera by a swipe, and the flashlight from elsewhere.
bool CSQuickActionsViewController::hasFlashlight() const
{
    return ScreenLayout::current().hasHomeIndicator;
}
bool CSQuickActionsViewController::hasCamera() const
{
    return ScreenLayout::current().hasHomeIndicator;
}

void registerQuickActions()
{
    Binder<CSQuickActionsButton>("CSQuickActionsButton", "UIView")
        .def<"layoutSubviews", &CSQuickActionsButton::layoutSubviews>()
        .add();
    Binder<CSQuickActionsViewController>("CSQuickActionsViewController", "UIViewController")
        .def<"viewDidLoad", &CSQuickActionsViewController::viewDidLoad>()
        .def<"viewWillAppear:", &CSQuickActionsViewController::viewWillAppear>()
        .def<"viewDidLayoutSubviews", &CSQuickActionsViewController::viewDidLayoutSubviews>()
        .def<"hasFlashlight", &CSQuickActionsViewController::hasFlashlight>()
        .def<"hasCamera", &CSQuickActionsViewController::hasCamera>()
        .add();
}

}
