// Builds the strip, chooses its views, and fills and places them.
#include "Tweak/Widgets/Strip.hpp"

#include "Platform/UIKit/UIScreen.hpp"
#include "Tweak/ScreenWidth.hpp"
#include "Tweak/StockMotion.hpp"
#include "Tweak/TextShadow.hpp"
#include "Tweak/Widgets/StripColours.hpp"
#include "Tweak/Widgets/StripGeometry.hpp"
#include "Tweak/Widgets/Widget.hpp"

namespace LYR {

namespace {

/// The lock screen is lit, or LastLook shows the strip in the dark.
constinit bool isStripLit = true;
/// As the last refresh had it.
constinit CGFloat scale = 1;

constexpr const Widget* widgets[] = {&weatherWidget, &agendaWidget, &batteryWidget};

UI::View makePicture(const StripView& view)
{
    auto picture = UI::ImageView::make();
    picture.setContentMode(view.contentMode);
    return picture;
}

/// What does not fit is drawn smaller before it is cut short.
UI::View makeLabel(const StripView& view)
{
    constexpr CGFloat smallestText = 0.6;
    auto label = UI::Label::make();
    label.setFont(UI::Font::systemFontOfSize(view.fontSize));
    label.setTextAlignment(view.alignment);
    label.setNumberOfLines(1);
    label.setAdjustsFontSizeToFitWidth(true);
    label.setMinimumScaleFactor(smallestText);
    label.setLineBreakMode(UI::LineBreakMode::truncatingTail);
    return label;
}

template <class Action>
void forEachView(Action action)
{
    for (const Widget* widget : widgets) {
        for (const StripView& view : widget->views)
            action(view);
    }
}

void buildStrip()
{
    auto strip = UI::View::make();
    // What lies under the strip stays within reach of the finger.
    strip.setUserInteractionEnabled(false);
    // Until the first refresh there is nothing to be seen on it.
    strip.setHidden(true);
    keepView(_widgetView, strip);
    forEachView([&strip](const StripView& row) {
        auto view = row.isLabel() ? makeLabel(row) : makePicture(row);
        view.setAccessibilityIdentifier(NS::String::fromUTF8(row.name));
        strip.addSubview(view);
        *row.variable = view.leak();
    });
    prepareBattery();
}

/// The icons outside the battery, whose colours follow its state, and every text with its shadow.
void colourViews()
{
    auto icons = stripIconColour();
    auto texts = stripTextColour();
    for (const Widget* widget : {&weatherWidget, &agendaWidget})
        for (const StripView& view : widget->views)
            if (!view.isLabel())
                UI::View(*view.variable).setTintColor(icons);
    forEachView([&texts](const StripView& view) {
        if (!view.isLabel())
            return;
        UI::Label label(*view.variable);
        label.setTextColor(texts);
        applyTextShadow(label, smallTextShadow);
    });
}

/// The scale is about the middle and the slide from there, so the frame is the one without either.
void setFrameAtNaturalSize(const UI::View& view, CGRect frame)
{
    auto transform = view.transform();
    view.setTransform(CGAffineTransformMakeScale(1, 1));
    view.setFrame(frame);
    view.setTransform(transform);
}

/// A widget whose option names no presentation stays where it is.
void placeWidgets()
{
    if (!screenLayout())
        return;
    auto weather = weatherWidget.chosen();
    auto battery = batteryWidget.chosen();
    auto geometry = stripGeometry(
        UI::Screen::mainScreen().bounds().size, weather ? weather->cells : 2, battery ? battery->cells : 1);
    setFrameAtNaturalSize(_widgetView, geometry.frame);
    if (weather)
        place(weather->places, geometry.weather);
    if (!weather || !battery)
        return;
    placeAgenda(geometry.agenda);
    place(battery->places, geometry.battery);
    if (battery->cells > 1)
        placeBatteryIndicator();
}

/// The middle widget gives way where weather and battery take two cells each.
void showChosenViews()
{
    auto weather = weatherWidget.chosen();
    auto battery = batteryWidget.chosen();
    if (battery)
        batteryWidget.show(*battery);
    if (weather)
        weatherWidget.show(*weather);
    if (battery && (weather || battery->cells == 1))
        agendaWidget.setHidden(battery->cells > 1 && weather->cells > 1);
}

bool isStripShown()
{
    return _widgetView && !_widgetView->isHidden();
}

bool isAgendaShown()
{
    return isStripShown() && !UI::View(*agendaWidget.views.front().variable).isHidden();
}

void fillAgenda(Items& items)
{
    if (auto chosen = agendaWidget.chosen())
        chosen->fill(items);
}

/// A strip or a widget that is hidden asks nobody for its contents.
void fillShownWidgets(Items& items)
{
    if (isStripShown())
        fillWeather(items.weather());
    if (isAgendaShown())
        fillAgenda(items);
}

}

void createStrip(const CS::CoverSheetViewController& controller)
{
    if (!_widgetView)
        buildStrip();
    controller.view().addSubview(_widgetView.reference());
    showChosenViews();
    placeWidgets();
}

void showStrip(bool shown)
{
    isStripLit = shown;
    moveStrip();
}

void moveStrip()
{
    _widgetView->setAlpha(isStripLit ? stockMotion.timeAlpha : 0);
    _widgetView->setTransform(stockMotion.transform(scale));
}

void placeStrip(Items& items)
{
    const bool wasAgendaShown = isAgendaShown();
    showChosenViews();
    if (isAgendaShown() && !wasAgendaShown)
        fillAgenda(items);
    placeWidgets();
}

void refreshStrip(Items& items)
{
    _widgetView->setHidden(!_showWidget);
    scale = _sizeWidget.doubleValue();
    moveStrip();
    colourViews();
    showChosenViews();
    fillShownWidgets(items);
    fillBattery();
    placeWidgets();
}

}
