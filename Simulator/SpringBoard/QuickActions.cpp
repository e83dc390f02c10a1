// The two round buttons at the bottom: flashlight and camera.
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/ScreenLayout.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"
#include "Simulator/UIKit/UIControl.hpp"
#include "Simulator/UIKit/UIViewController.hpp"

namespace Simulator {

namespace {

constexpr double buttonSize = 50;
constexpr double glyphSize = 26;
constexpr double sideMargin = 46;
constexpr double bottomMargin = 50;

struct CSQuickActionsButton : UIControl {
    void placeParts() override
    {
        m_pane.setFrame(bounds());
        m_glyph.setFrame(centred({glyphSize, glyphSize}, bounds()));
    }

    void showSymbol(const char* symbol)
    {
        m_pane = makePane(BlurStyle::dark, buttonSize / 2);
        m_pane.setAlpha(0.8);
        m_glyph = makeSymbol(symbol, {}, UI::Color::whiteColor());
        addSubview(m_pane);
        addSubview(m_glyph);
    }

private:
    UI::View m_pane;
    UI::View m_glyph;
};

UI::View makeButton(const char* symbol, const char* identifier)
{
    const UI::View button = makeView("CSQuickActionsButton", {}, identifier);
    standIn<CSQuickActionsButton>(button.raw()).showSymbol(symbol);
    return button;
}

struct CSQuickActionsViewController : UIViewController {
    void addParts() override
    {
        m_flashlight = makeButton("flashlight.off.fill", "stock.flashlight");
        m_camera = makeButton("camera.fill", "stock.camera");
        const UI::View view = self<UI::ViewController>().view();
        view.addSubview(m_flashlight);
        view.addSubview(m_camera);
        updateVisibility();
    }

    void viewWillAppear(bool) { updateVisibility(); }

    void placeParts() override
    {
        const CGSize size = self<UI::ViewController>().view().bounds().size;
        const double y = size.height - bottomMargin - buttonSize;
        m_flashlight.setFrame(CGRectMake(sideMargin, y, buttonSize, buttonSize));
        m_camera.setFrame(CGRectMake(size.width - sideMargin - buttonSize, y, buttonSize, buttonSize));
        updateVisibility();
    }

    /// Phones with a home button open the camera by a swipe, and the flashlight from elsewhere.
    bool hasFlashlight() const
    {
        return ScreenLayout::current().hasHomeIndicator && DeviceState::shared().hasFlashlight;
    }

    bool hasCamera() const { return ScreenLayout::current().hasHomeIndicator && DeviceState::shared().hasCamera; }

private:
    void updateVisibility()
    {
        m_flashlight.setHidden(!self().send<bool, "hasFlashlight">());
        m_camera.setHidden(!self().send<bool, "hasCamera">());
    }

    UI::View m_flashlight;
    UI::View m_camera;
};

}

static const StandInClass uiCoverSheetButton(
    "UICoverSheetButton", "UIControl", [](Binder<UIControl>& binder) { binder.add(); });

static const StandInClass csQuickActionsButton(
    "CSQuickActionsButton", "UICoverSheetButton", [](Binder<CSQuickActionsButton>& binder) { binder.add(); });

static const StandInClass csQuickActionsViewController(
    "CSQuickActionsViewController", "CSCoverSheetViewControllerBase", [](Binder<CSQuickActionsViewController>& binder) {
        binder.def<"viewWillAppear:", &CSQuickActionsViewController::viewWillAppear>()
            .def<"hasFlashlight", &CSQuickActionsViewController::hasFlashlight>()
            .def<"hasCamera", &CSQuickActionsViewController::hasCamera>()
            .add();
    });

}
