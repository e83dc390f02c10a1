// The sheet's life: opened over the lock screen, told of choices, closed.
#include "Tweak/Editor/ColourSheet.hpp"

#include "Platform/Foundation/NSNotificationCenter.hpp"
#include "Platform/UIKit/NSLayoutConstraint.hpp"
#include "Tweak/Editor/Areas.hpp"
#include "Tweak/Editor/Editor.hpp"
#include "Tweak/Editor/Storing.hpp"
#include "Tweak/State.hpp"

namespace LYR {

LYR_VARIABLE(ObjC::Variable<ColourSheet>, _colorWellSheet);

namespace {

id init(id self, SEL command)
{
    self = ObjC::callImplementation<id>(ObjC::inheritedImplementation<UI::ViewController>(command), self, command);
    if (self)
        ColourSheet(self).setModalPresentationStyle(UI::ModalPresentationStyle::fullScreen);
    return self;
}

void viewDidLoad(ColourSheet self, SEL command)
{
    ObjC::callImplementation<void>(ObjC::inheritedImplementation<UI::ViewController>(command), self.raw(), command);
    buildColourSheet(self);
    NS::NotificationCenter::defaultCenter().addObserver(self,
        ObjC::selector<"handleProtectedDataWillBecomeUnavailable">(),
        "UIApplicationProtectedDataWillBecomeUnavailable"_ns);
}

void dealloc(id self, SEL command)
{
    // A handle would retain what is on its way out.
    ObjC::sendMessage<void>(NS::NotificationCenter::defaultCenter().raw(), ObjC::selector<"removeObserver:">(), self);
    releaseColourSheetViews(self);
    ObjC::callImplementation<void>(ObjC::inheritedImplementation<UI::ViewController>(command), self, command);
}

void detach(const ColourSheet& sheet)
{
    sheet.willMoveToParentViewController({});
    sheet.view().removeFromSuperview();
    sheet.removeFromParentViewController();
    if (_colorWellSheet.reference() == sheet)
        _colorWellSheet = ColourSheet();
}

/// The colour of a well becomes that of its element at once.
template <Tab tab>
void colourChanged(ColourSheet self, SEL, UI::ColorWell well)
{
    _colorPickerPress = true;
    auto colour = well.selectedColor();
    dateView->updateTime();
    showOnSheet(self, tab, colour);
    showChosenColour(colour);
    storeColour(tab, colourText(colour, ":1.0"_ns));
}

void closeWithEditorBack(ColourSheet self, SEL)
{
    detach(self);
    dateView->updateTime();
    _colorPickerPress = false;
    playTap();
    animateOverlay(showOverlay);
}

void closeView(ColourSheet self, SEL)
{
    detach(self);
    _colorPickerPress = false;
}

void handleProtectedDataWillBecomeUnavailable(ColourSheet self, SEL)
{
    detach(self);
}

void pinToEdges(const UI::View& view, const UI::View& frame)
{
    view.setTranslatesAutoresizingMaskIntoConstraints(false);
    NS::LayoutConstraint::activateConstraints(
        NS::Array::of(view.leadingAnchor().constraintEqualToAnchor(frame.leadingAnchor()),
            view.trailingAnchor().constraintEqualToAnchor(frame.trailingAnchor()),
            view.topAnchor().constraintEqualToAnchor(frame.topAnchor()),
            view.bottomAnchor().constraintEqualToAnchor(frame.bottomAnchor())));
}

void showSheet()
{
    hideOverlay();
    tabButton(Tab::widget).setHidden(true);
    _colorWellSheet->view().setAlpha(1);
}

/// Puts the sheet in the editor's place.
void pickerShow(CS::CoverSheetViewController self, SEL)
{
    if (_colorWellSheet)
        return;
    _colorWellSheet = ColourSheet::make();
    self.addChildViewController(_colorWellSheet);
    auto view = _colorWellSheet->view();
    view.setAlpha(0);
    self.view().addSubview(view);
    pinToEdges(view, self.view());
    _colorWellSheet->didMoveToParentViewController(self);
    animateOverlay(showSheet);
}

constexpr Action actions[] = {action<"pickerShow", pickerShow>(ActionGroup::wheels)};

}

constinit const Area colourSheetArea{{}, actions};

void closeColourSheet()
{
    _colorWellSheet->closeView();
}

/// Asked of every controller in the windows of a locked phone.
bool canShowWhileLocked(UI::ViewController, SEL)
{
    return true;
}

void registerColourSheet()
{
    auto builder = ObjC::ClassBuilder::of<ColourSheet>(UI::ViewController::type());
    addColourSheetProperties(builder);
    builder.method<"init", &init>()
        .method<"viewDidLoad", &viewDidLoad>()
        .method<"dealloc", &dealloc>()
        .method<"colorChanged:", &colourChanged<Tab::time>>()
        .method<"colorChanged2:", &colourChanged<Tab::date>>()
        .method<"colorChanged3:", &colourChanged<Tab::widget>>()
        .method<"colorTouch:", &colourChanged<Tab::time>>()
        .method<"colorTouch2:", &colourChanged<Tab::date>>()
        .method<"colorTouch3:", &colourChanged<Tab::widget>>()
        .method<"closeMyCSCoverSheetViewController", &closeWithEditorBack>()
        .method<"closeView", &closeView>()
        .method<"_canShowWhileLocked", &canShowWhileLocked>()
        .method<"handleProtectedDataWillBecomeUnavailable", &handleProtectedDataWillBecomeUnavailable>()
        .build();
}

}
