// A small stand-in class for the tests of the seam.
#pragma once

#include "Platform/CoreGraphics/CGGeometry.hpp"
#include "Platform/Foundation/NSNumber.hpp"
#include "Platform/Foundation/NSString.hpp"
#include "Simulator/Runtime/Binder.hpp"

struct ProbeStandIn : Simulator::StandIn {
    using Root = ProbeStandIn;

    CGRect frame;
    bool hidden = false;
    NS::String text;
    int changes = 0;

    void initWithFrame(CGRect initial) { frame = initial; }
    bool initOrFail(bool succeed) { return succeed; }
    void changed() { ++changes; }
    double sum(bool flag, int whole, double fraction) const { return flag + whole + fraction; }
    static int answer() { return 42; }
};

class Probe : public ObjC::Class_<Probe, NS::Object, "LYRProbe"> {
public:
    using Class_::Class_;

    static Probe withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }
    CGRect frame() const { return send<CGRect, "frame">(); }
    void setFrame(CGRect frame) const { send<void, "setFrame:">(frame); }
    bool isHidden() const { return send<bool, "isHidden">(); }
    void setHidden(bool hidden) const { send<void, "setHidden:">(hidden); }
    NS::String text() const { return send<NS::String, "text">(); }
    void setText(const NS::String& text) const { send<void, "setText:">(text); }
    double sum(bool flag, int whole, double fraction) const
    {
        return send<double, "sumOfFlag:whole:fraction:">(flag, whole, fraction);
    }
    static int answer() { return sendClass<int, "answer">(); }
};

inline void registerProbe()
{
    static Class registered = Simulator::Binder<ProbeStandIn>("LYRProbe", "NSObject")
                                  .property<"frame", "setFrame:", &ProbeStandIn::frame, &ProbeStandIn::changed>()
                                  .property<"isHidden", "setHidden:", &ProbeStandIn::hidden>()
                                  .property<"text", "setText:", &ProbeStandIn::text>()
                                  .init<"initWithFrame:", &ProbeStandIn::initWithFrame>()
                                  .init<"initOrFail:", &ProbeStandIn::initOrFail>()
                                  .def<"sumOfFlag:whole:fraction:", &ProbeStandIn::sum>()
                                  .classMethod<"answer", &ProbeStandIn::answer>()
                                  .ivar<"_label">()
                                  .ivar<"_count", int>()
                                  .add();
    (void)registered;
}
