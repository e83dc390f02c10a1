// The two round buttons at the bottom: flashlight and camera.
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/ScreenLayout.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"
#include "Simulator/UIKit/UIViewController.hpp"

namespace Simulator {

namespace {

constexpr double buttonSize = 50;
constexpr double glyphSize = 26;
constexpr double sideMargin = 46;
constexpr double bottomMargin = 50;

struct CSQuickActionsButton : UIView {
    void layoutSubviews()
    {
        pane.setFrame(bounds());
        glyph.setFrame(centred({glyphSize, glyphSize}, bounds()));
    }

    void showSymbol(const char* symbol)
    {
        pane = makePane(BlurStyle::dark, buttonSize / 2);
        pane.setAlpha(0.8);
        glyph = makeSymbol(symbol, {}, UI::Color::whiteColor());
        addSubview(pane);
        addSubview(glyph);
    }

private:
    UI::View pane;
    UI::View glyph;
};

UI::View makeButton(const char* symbol, const char* identifier)
{
    const UI::View button = makeView("CSQuickActionsButton", {}, identifier);
    standIn<CSQuickActionsButton>(button.raw()).showSymbol(symbol);
    return button;
}

struct CSQuickActionsViewController : UIViewController {
    void viewDidLoad()
    {
        flashlight = makeButton("flashlight.off.fill", "stock.flashlight");
        camera = makeButton("camera.fill", "stock.camera");
        const UI::View view = self<UI::ViewController>().view();
        view.addSubview(flashlight);
        view.addSubview(camera);
        updateVisibility();
    }

    void viewWillAppear(bool) { updateVisibility(); }

    void viewDidLayoutSubviews()
    {
        const CGSize size = self<UI::ViewController>().view().bounds().size;
        const double y = size.height - bottomMargin - buttonSize;
        flashlight.setFrame(CGRectMake(sideMargin, y, buttonSize, buttonSize));
        camera.setFrame(CGRectMake(size.width - sideMargin - buttonSize, y, buttonSize, buttonSize));
        updateVisibility();
    }

    /// Phones with a home button open the camera by a swipe, and the flashlight from elsewhere.
    bool hasFlashlight() const { return ScreenLayout::current().hasHomeIndicator; }

    bool hasCamera() const { return ScreenLayout::current().hasHomeIndicator; }

private:
    void updateVisibility()
    {
        flashlight.setHidden(!self().send<bool, "hasFlashlight">());
        camera.setHidden(!self().send<bool, "hasCamera">());
    }

    UI::View flashlight;
    UI::View camera;
};

}

static const StandInClass csQuickActionsButton(
    "CSQuickActionsButton", "UIView", [](Binder<CSQuickActionsButton>& binder) {
        binder.def<"layoutSubviews", &CSQuickActionsButton::layoutSubviews>().add();
    });

static const StandInClass csQuickActionsViewController(
    "CSQuickActionsViewController", "UIViewController", [](Binder<CSQuickActionsViewController>& binder) {
        binder.def<"viewDidLoad", &CSQuickActionsViewController::viewDidLoad>()
            .def<"viewWillAppear:", &CSQuickActionsViewController::viewWillAppear>()
            .def<"viewDidLayoutSubviews", &CSQuickActionsViewController::viewDidLayoutSubviews>()
            .def<"hasFlashlight", &CSQuickActionsViewController::hasFlashlight>()
            .def<"hasCamera", &CSQuickActionsViewController::hasCamera>()
            .add();
    });

}
