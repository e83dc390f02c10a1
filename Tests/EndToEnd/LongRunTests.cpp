// Locking, waking and appearing again and again leaves nothing behind. Ten thousand of it are among the benchmarks.
#include "Tests/EndToEnd/StripScenario.hpp"

#include <fstream>

namespace {

constexpr int cycles = 1000;
constexpr int cyclesToWarmUp = 100;
/// What the memory may differ by, in kB: 290 bytes a cycle, less than any view or timer has.
constexpr long tolerance = 256;

#ifdef __SANITIZE_ADDRESS__
constexpr bool countsFreedMemory = true; // the sanitizer keeps back what is freed
#else
constexpr bool countsFreedMemory = false;
#endif

/// The memory of the shell process that is resident, in kB.
long residentMemory(Phone& phone)
{
    std::ifstream status("/proc/" + std::to_string(phone.info().at("pid").get<int>()) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:"))
            return std::stol(line.substr(6));
    }
    ADD_FAILURE() << "the process says nothing of its memory";
    return 0;
}

std::size_t viewsIn(const Support::View& view)
{
    std::size_t count = 1;
    for (const auto& child : view.children)
        count += viewsIn(child);
    return count;
}

/// The cover sheet appears anew, and what its appearance has started is over.
void appear(Phone& phone)
{
    phone.call("phone.unlock");
    phone.call("phone.coverSheet");
    phone.settle(3);
}

void cycle(Phone& phone, int times)
{
    for (int i = 0; i < times; ++i) {
        phone.call("phone.lock");
        phone.call("phone.wake");
        appear(phone);
        // Nobody else takes it, and it grows by every refresh.
        phone.takeLog();
    }
}

/// What the extension asks of the phone in so many seconds, by kind: a timer or delayed call too many shows here.
std::map<std::string, int> askedFor(Phone& phone, double seconds)
{
    phone.takeLog();
    phone.advance(seconds);
    std::map<std::string, int> counts;
    for (const Json& record : phone.takeLog())
        ++counts[record.at("kind")];
    return counts;
}

}

TEST(LongRun, AThousandAppearancesLeaveNoMemoryViewsOrTimersBehind)
{
    auto phone = settled(stripPhone());
    cycle(phone, cyclesToWarmUp);
    const auto views = viewsIn(phone.tree());
    const auto memory = residentMemory(phone);
    const auto anHour = askedFor(phone, 3600);
    phone.call("phone.unlock");
    phone.call("phone.coverSheet");
    const auto anAppearance = askedFor(phone, 10);
    EXPECT_GT(anAppearance.at("weatherRefresh"), 0);

    cycle(phone, cycles - cyclesToWarmUp);
    EXPECT_EQ(viewsIn(phone.tree()), views);
    if (!countsFreedMemory) {
        EXPECT_LT(residentMemory(phone) - memory, tolerance)
            << "kB more than the " << memory << " kB after " << cyclesToWarmUp << " cycles";
    }
    EXPECT_EQ(askedFor(phone, 3600), anHour);
    phone.call("phone.unlock");
    phone.call("phone.coverSheet");
    EXPECT_EQ(askedFor(phone, 10), anAppearance);
    EXPECT_EQ(phone.info().at("starts"), 1);
}

TEST(LongRun, LeavingTheLockScreenLeavesNothingThatIsDue)
{
    auto phone = settled(stripPhone({{"showWidgetLastLook", true}}).installed({"LastLook"}));
    for (int i = 0; i < 50; ++i) {
        phone.call("phone.lock");
        phone.advance(130);
        phone.call("phone.wake");
        appear(phone);
    }
    phone.call("phone.openApp", {{"bundle", "com.example.app"}});
    phone.settle(3);
    EXPECT_EQ(askedFor(phone, 6 * 3600), (std::map<std::string, int>()));
}

TEST(LongRun, AfterManyLocksTheMinutesRefreshRunsOnce)
{
    const auto inTenMinutes = [](int locks) {
        auto phone = settled(stripPhone({{"showWidgetLastLook", true}}).installed({"LastLook"}));
        for (int i = 0; i < locks; ++i) {
            phone.call("phone.lock");
            phone.advance(1);
            phone.call("phone.wake");
            phone.advance(1);
        }
        phone.call("phone.lock");
        phone.advance(30);
        return askedFor(phone, 600);
    };
    const auto once = inTenMinutes(1);
    EXPECT_EQ(once.at("weatherRefresh"), 10);
    EXPECT_EQ(inTenMinutes(60), once);
}
