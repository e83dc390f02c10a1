// The battery in the status bar and the device's own reading of it.
#include "Platform/UIKit/UIDevice.hpp"
#include "ShellTest.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/BatteryView.hpp"
#include "Spy.hpp"

using namespace Simulator;

class StockBattery : public ShellTest {
protected:
    const _UIBatteryView& shown() { return *dynamic_cast<_UIBatteryView*>(find("stock.battery")); }
};

TEST_F(StockBattery, ShowsTheDevicesBattery)
{
    DeviceState::shared().battery = {0.5, BatteryState::charging, true};
    start();
    EXPECT_EQ(shown().chargePercent, 0.5);
    EXPECT_TRUE(shown().chargingState == 1);
    EXPECT_TRUE(shown().saverModeActive);
}

TEST_F(StockBattery, HearsOfTheSaverModeByMessage)
{
    Spy spy;
    spy.listenTo("_UIBatteryView", "setSaverModeActive:");
    start();
    EXPECT_EQ(spy.take().size(), 1u);
    Loop::shared().advance(120);
    EXPECT_EQ(spy.take().size(), 0u);
    DeviceState::shared().battery.lowPower = true;
    shell().deviceChanged();
    EXPECT_EQ(spy.take().size(), 1u);
    EXPECT_TRUE(shown().saverModeActive);
}

TEST_F(StockBattery, IsWhatTheDeviceTells)
{
    DeviceState::shared().battery = {0.25, BatteryState::full, false};
    start();
    const UI::Device device = UI::Device::currentDevice();
    device.setBatteryMonitoringEnabled(true);
    EXPECT_EQ(device.batteryLevel(), 0.25f);
    EXPECT_EQ(device.batteryState(), UI::DeviceBatteryState::full);
}

TEST_F(StockBattery, SwitchesItsSaverByTheSystemsService)
{
    start();
    bringClassesOf("/System/Library/PrivateFrameworks/CoreDuet.framework/CoreDuet");
    const auto saver = ObjC::sendMessage<NS::Object>(
        reinterpret_cast<id>(objc_getClass("_CDBatterySaver")), ObjC::selector<"batterySaver">());
    saver.send<long, "setMode:">(1L);
    EXPECT_TRUE(DeviceState::shared().battery.lowPower);
    EXPECT_TRUE(shown().saverModeActive);
    const auto records = ActivityLog::shared().take();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0]["kind"], "batterySaver");
    EXPECT_EQ(records[0]["mode"], 1);
    saver.send<long, "setMode:">(0L);
    EXPECT_FALSE(shown().saverModeActive);
}

TEST_F(StockBattery, BearsAbsurdLevels)
{
    for (const double level : {-1.0, 2.0, std::numeric_limits<double>::quiet_NaN()}) {
        DeviceState::shared().battery.level = level;
        start();
        shell().charge(true);
        EXPECT_GE(shown().chargePercent, 0);
        EXPECT_LE(shown().chargePercent, 1);
    }
}
