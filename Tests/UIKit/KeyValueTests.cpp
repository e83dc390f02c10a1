// Values by their keys, on the platform's own classes.
#include "Platform/Foundation/NSNumber.hpp"
#include "Platform/UIKit/UIDevice.hpp"
#include "Recorder.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "UIKitTest.hpp"

namespace Simulator {

/// A stand-in as the stock shell has them: with an instance variable that others reach by its name.
struct LabelHolder : UIView { };

class KeyValue : public UIKitTest {
protected:
    static Class holderClass()
    {
        static Class type = Binder<LabelHolder>("LabelHolder", "UIView").ivar<"_label">().add();
        return type;
    }
};

TEST_F(KeyValue, ReachesAnInstanceVariableByItsName)
{
    const auto holder = makeOf<NS::Object>(holderClass());
    EXPECT_FALSE(holder.valueForKey<UI::Label>("_label"_ns));
    const auto label = makeLabel();
    standIn<LabelHolder>(holder.raw()).setIvar("_label", label);
    EXPECT_EQ(holder.valueForKey<UI::Label>("_label"_ns), label);
    EXPECT_EQ(holder.ivar<UI::Label>("_label"), label);
}

TEST_F(KeyValue, ReadsAndWritesTruthValuesThroughAccessors)
{
    const NS::Object view = makeView();
    EXPECT_FALSE(view.valueForKey<NS::Number>("hidden"_ns).boolValue());
    view.send<void, "setValue:forKey:">(NS::Number::numberWithBool(true), "hidden"_ns);
    EXPECT_TRUE(view.valueForKey<NS::Number>("hidden"_ns).boolValue());
    EXPECT_TRUE(UI::View(view.raw()).isHidden());
}

TEST_F(KeyValue, ReadsAndWritesNumbersThroughAccessors)
{
    const NS::Object view = makeView();
    view.send<void, "setValue:forKey:">(NS::Number::numberWithDouble(0.5), "alpha"_ns);
    EXPECT_EQ(view.valueForKey<NS::Number>("alpha"_ns).doubleValue(), 0.5);
    view.send<void, "setValue:forKey:">(NS::Number::numberWithInt(7), "tag"_ns);
    EXPECT_EQ(view.valueForKey<NS::Number>("tag"_ns).longValue(), 7);
}

TEST_F(KeyValue, AnInstanceVariableIsReleasedWithItsOwner)
{
    const long before = StandInRegistry::shared().liveCount("UILabel");
    auto holder = makeOf<NS::Object>(holderClass());
    standIn<LabelHolder>(holder.raw()).setIvar("_label", makeLabel());
    EXPECT_EQ(StandInRegistry::shared().liveCount("UILabel"), before + 1);
    holder = NS::Object(ObjC::Object());
    pool.reset();
    EXPECT_EQ(StandInRegistry::shared().liveCount("UILabel"), before);
}

TEST_F(KeyValue, TheBatteryIsUnknownWhileNobodyWatchesIt)
{
    const auto device = UI::Device::currentDevice();
    DeviceState::shared().battery = {0.87, BatteryState::charging};
    DeviceState::shared().name = "Phone";
    device.setBatteryMonitoringEnabled(false);
    EXPECT_EQ(device.batteryLevel(), -1);
    EXPECT_EQ(device.batteryState(), UI::DeviceBatteryState::unknown);
    device.setBatteryMonitoringEnabled(true);
    EXPECT_EQ(device.batteryLevel(), 0.87f);
    EXPECT_EQ(device.batteryState(), UI::DeviceBatteryState::charging);
    EXPECT_EQ(textOf(device.name()), "Phone");
}

}
