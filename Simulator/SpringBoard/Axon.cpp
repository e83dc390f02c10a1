// The other extension that groups notifications by app: a row of icons above the list.
#include "Platform/Foundation/NSArray.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

namespace Simulator {

namespace {

struct AXNView : UIView {
    void initWithFrame(CGRect frame)
    {
        UIView::initWithFrame(frame);
        list = NS::MutableArray::make();
    }

    /// The groups of notifications.
    NS::Array list;
};

}

static const StandInClass axnView(
    "AXNView", "UIView",
    [](Binder<AXNView>& binder) {
        binder.init<"initWithFrame:", &AXNView::initWithFrame>().property<"list", "setList:", &AXNView::list>().add();
    },
    [] { return DeviceState::shared().installed.contains("Axon"); });

}
