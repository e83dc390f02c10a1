// The status bar's icons from right to left.
#include "Simulator/SpringBoard/StatusBar.hpp"

#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/BatteryView.hpp"
#include "Simulator/SpringBoard/ScreenLayout.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

#include <utility>

namespace Simulator {

namespace {

constexpr CGSize batterySize{25, 12};
constexpr CGSize wifiSize{17, 14};
constexpr int barCount = 4;
constexpr double barWidth = 3;
constexpr double barGap = 1.7;
constexpr double barHeights[barCount] = {4, 6, 8.5, 11};

}

void UIStatusBar_Modern::addParts()
{
    m_leading = makeLabel("", 15, FontWeight::semibold, UI::Color::whiteColor());
    m_leading.setAccessibilityIdentifier("stock.carrier"_ns);
    m_wifi = makeSymbol("wifi", {}, UI::Color::whiteColor());
    m_battery = makeView("_UIBatteryView", {}, "stock.battery");
    for (int index = 0; index < barCount; ++index)
        m_bars.push_back(makePlate({}, UI::Color::whiteColor(), 1));
    for (const UI::View& part : {UI::View(m_leading), m_wifi, m_battery})
        addSubview(part);
    for (const UI::View& bar : m_bars)
        addSubview(bar);
}

/// On a phone without home button the two halves stand left and right of the camera.
void UIStatusBar_Modern::layoutSubviews()
{
    const CGSize size = bounds().size;
    const bool aroundCamera = ScreenLayout::current().hasHomeIndicator;
    const double margin = aroundCamera ? 18 : 6;
    const double middle = aroundCamera ? 24 : size.height / 2;
    const double leadingWidth = aroundCamera ? 80 : 120;
    m_leading.setFrame(CGRectMake(aroundCamera ? 28 : margin, middle - 10, leadingWidth, 20));
    double x = size.width - margin - batterySize.width;
    m_battery.setFrame(CGRectMake(x, middle - batterySize.height / 2, batterySize.width, batterySize.height));
    x -= wifiSize.width + 5;
    m_wifi.setFrame(CGRectMake(x, middle - wifiSize.height / 2, wifiSize.width, wifiSize.height));
    layOutBars(x - 5, middle);
}

void UIStatusBar_Modern::layOutBars(double right, double middle)
{
    const double bottom = middle + barHeights[barCount - 1] / 2;
    double x = right - barCount * barWidth - (barCount - 1) * barGap;
    for (int index = 0; index < barCount; ++index) {
        m_bars[index].setFrame(CGRectMake(x, bottom - barHeights[index], barWidth, barHeights[index]));
        x += barWidth + barGap;
    }
}

void UIStatusBar_Modern::setLeadingText(const NS::String& text)
{
    m_leading.setText(text);
}

void UIStatusBar_Modern::update()
{
    showDeviceBattery(m_battery);
    const bool saves = DeviceState::shared().battery.lowPower;
    if (std::exchange(m_shownSaverMode, saves) != saves)
        m_battery.send<void, "setSaverModeActive:">(saves);
}

static const StandInClass uiStatusBarBase("UIStatusBar_Base", "UIView", [](Binder<UIView>& binder) { binder.add(); });

static const StandInClass uiStatusBarModern(
    "UIStatusBar_Modern", "UIStatusBar_Base", [](Binder<UIStatusBar_Modern>& binder) {
        binder.def<"layoutSubviews", &UIStatusBar_Modern::layoutSubviews>().add();
    });

}
