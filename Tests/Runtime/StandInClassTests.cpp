// The rows by which stand-ins are known, in whatever order the linker brings them.
#include "Platform/Foundation/NSObject.hpp"
#include "Simulator/Base/Phone.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

#include <gtest/gtest.h>

#include <string>

using namespace Simulator;

namespace {

struct RowProbe : StandIn {
    using Root = RowProbe;
    long generation() const { return 1; }
};

struct DerivedRowProbe : RowProbe {
    long generation() const { return 2; }
};

bool isInstalled = false;

/// By name, and by place, what derives comes first.
const StandInClass derivedProbe("AADerivedRowProbe", "MMRowProbe",
    [](Binder<DerivedRowProbe>& binder) { binder.def<"generation", &DerivedRowProbe::generation>().add(); });
const StandInClass installedProbe(
    "AAInstalledRowProbe", "MMRowProbe", [](Binder<DerivedRowProbe>& binder) { binder.add(); },
    [] { return isInstalled; });
const StandInClass probe("MMRowProbe", "NSObject",
    [](Binder<RowProbe>& binder) { binder.def<"generation", &RowProbe::generation>().add(); });

long generationOf(const char* className)
{
    const id made = ObjC::sendMessage<id>(reinterpret_cast<id>(objc_getClass(className)), ObjC::selector<"alloc">());
    return ObjC::Object::adopting(made).send<long, "generation">();
}

}

TEST(StandInClasses, AreRegisteredAfterTheirSuperclasses)
{
    Phone phone;
    phone.start();
    EXPECT_EQ(class_getSuperclass(objc_getClass("AADerivedRowProbe")), objc_getClass("MMRowProbe"));
    EXPECT_EQ(generationOf("MMRowProbe"), 1);
    EXPECT_EQ(generationOf("AADerivedRowProbe"), 2);
}

TEST(StandInClasses, AreRegisteredOnceAndStayForLaterPhones)
{
    for (int phones = 0; phones < 2; ++phones) {
        Phone phone;
        phone.start();
        EXPECT_EQ(generationOf("AADerivedRowProbe"), 2);
    }
}

TEST(StandInClasses, AreLeftOutWhileTheirConditionDoesNotHold)
{
    {
        Phone phone;
        phone.start();
        EXPECT_FALSE(objc_getClass("AAInstalledRowProbe"));
    }
    isInstalled = true;
    Phone phone;
    phone.start();
    EXPECT_EQ(generationOf("AAInstalledRowProbe"), 1);
}

TEST(StandInClassDeathTest, ARowWhoseSuperclassIsNowhereEndsTheProgram)
{
    Phone phone;
    EXPECT_DEATH(
        {
            const StandInClass orphan("OrphanRowProbe", "NoSuchClass", [](Binder<RowProbe>& binder) { binder.add(); });
            phone.start();
        },
        "lyr: cannot register class OrphanRowProbe: no superclass named NoSuchClass");
}
