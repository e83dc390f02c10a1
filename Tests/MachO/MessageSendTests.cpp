// Messages as the phone's compiler sends them: every argument arrives, and nil answers zero.
#include "Platform/Foundation/NSObject.hpp"
#include "Platform/ObjC/Method.hpp"
#include "Simulator/Loader/PhoneSymbols.hpp"

#include <gtest/gtest.h>

namespace {

struct Large {
    double a, b, c, d;
    bool operator==(const Large&) const = default;
};

template <class Function>
Function sender(const char* name)
{
    return reinterpret_cast<Function>(Simulator::phoneSymbol(name));
}

double weighted(id, SEL, long a, long b, long c, long d, double p, double q, double r, double s, double t, double u,
    double v, double w)
{
    return a + 10 * b + 100 * c + 1000 * d + p + 10 * q + 100 * r + 1000 * s + 1e4 * t + 1e5 * u + 1e6 * v + 1e7 * w;
}

Large enlarged(id, SEL, double by, long times)
{
    return {by, by * 2, by * 3, by * double(times)};
}

/// An object with both methods above.
ObjC::Object receiver()
{
    static Class type = [] {
        Class made = objc_allocateClassPair(NS::Object::type(), "LYRReceiver", 0);
        class_addMethod(made, sel_registerName("weigh"), reinterpret_cast<IMP>(weighted), "d@:qqqqdddddddd");
        class_addMethod(made, sel_registerName("enlarge"), reinterpret_cast<IMP>(enlarged), "{Large=dddd}@:dq");
        objc_registerClassPair(made);
        return made;
    }();
    return ObjC::Object::adopting(ObjC::sendMessage<id>(reinterpret_cast<id>(type), sel_registerName("new")));
}

}

TEST(MessageSend, HandsOverWholeAndFloatingArguments)
{
    ObjC::AutoreleasePool pool;
    const auto object = receiver();
    const auto send = sender<decltype(&weighted)>("_objc_msgSend");
    EXPECT_EQ(send(object.raw(), sel_registerName("weigh"), 1, 2, 3, 4, 1, 2, 3, 4, 5, 6, 7, 8),
        weighted(nullptr, nullptr, 1, 2, 3, 4, 1, 2, 3, 4, 5, 6, 7, 8));
}

TEST(MessageSend, HandsBackALargeStructure)
{
    ObjC::AutoreleasePool pool;
    const auto object = receiver();
    const auto send = sender<decltype(&enlarged)>("_objc_msgSend_stret");
    EXPECT_EQ(send(object.raw(), sel_registerName("enlarge"), 1.5, 4), (Large{1.5, 3, 4.5, 6}));
}

TEST(MessageSend, NilAnswersZeroOfEveryKind)
{
    const SEL selector = sel_registerName("weigh");
    EXPECT_EQ(sender<long (*)(id, SEL)>("_objc_msgSend")(nullptr, selector), 0);
    EXPECT_EQ(sender<double (*)(id, SEL, double)>("_objc_msgSend")(nullptr, selector, 2.5), 0.0);
    EXPECT_EQ(sender<float (*)(id, SEL, float)>("_objc_msgSend")(nullptr, selector, 2.5f), 0.0f);
    struct Pair {
        double x, y;
    };
    const auto pair = sender<Pair (*)(id, SEL, double, double)>("_objc_msgSend")(nullptr, selector, 3, 4);
    EXPECT_EQ(pair.x, 0);
    EXPECT_EQ(pair.y, 0);
}
