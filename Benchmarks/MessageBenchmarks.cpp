// A message through a facade, beside the bare look-up and call.
#include "Benchmarks/Comparison.hpp"

#include "Platform/CoreGraphics/CGGeometry.hpp"
#include "Platform/Foundation/NSObject.hpp"
#include "Platform/ObjC/Method.hpp"

namespace Benchmarks {

/// What a bare caller keeps. Visible beyond this file, so that the compiler cannot fold it into the loops.
struct BareCaller {
    id object = nullptr;
    SEL answer = sel_registerName("answer");
    SEL frameMovedBy = sel_registerName("frameMovedBy:");
    SEL self = sel_registerName("self");
    SEL retain = sel_registerName("retain");
    SEL release = sel_registerName("release");
};
BareCaller bareCaller;

namespace {

constexpr int messagesInARow = 10000;
constexpr double aim = 1.05;

long answer(id, SEL)
{
    return 42;
}
CGRect frameMovedBy(id, SEL, double distance)
{
    return CGRectMake(distance, 0, 290, 180);
}

class Responder : public ObjC::Class_<Responder, NS::Object, "BenchmarkResponder"> {
public:
    using Class_::Class_;
    long answer() const { return send<long, "answer">(); }
    CGRect frameMovedBy(double distance) const { return send<CGRect, "frameMovedBy:">(distance); }
    Responder self() const { return send<Responder, "self">(); }
};

/// An object to send messages to; the benchmark fails if there is none, since messages to nil cost nothing.
Responder makeResponder(benchmark::State& state)
{
    ObjC::ClassBuilder("BenchmarkResponder", NS::Object::type())
        .method<"answer", &Benchmarks::answer>()
        .method<"frameMovedBy:", &Benchmarks::frameMovedBy>()
        .build();
    Responder responder = Responder::make();
    if (responder.answer() != 42)
        state.SkipWithError("the responder does not answer");
    bareCaller.object = responder.raw();
    return responder;
}

template <class Result, class... Arguments>
Result bareMessage(id object, SEL selector, Arguments... arguments)
{
    using Function = Result (*)(id, SEL, Arguments...);
    return reinterpret_cast<Function>(objc_msg_lookup(object, selector))(object, selector, arguments...);
}

void messageForANumber(benchmark::State& state)
{
    Responder responder = makeResponder(state);
    auto work = [&] { benchmark::DoNotOptimize(responder.answer()); };
    auto floor = [] { benchmark::DoNotOptimize(bareMessage<long>(bareCaller.object, bareCaller.answer)); };
    Comparison(state, aim).run(work, floor, messagesInARow);
}

void messageForARectangle(benchmark::State& state)
{
    Responder responder = makeResponder(state);
    auto work = [&] { benchmark::DoNotOptimize(responder.frameMovedBy(7)); };
    auto floor = [] { benchmark::DoNotOptimize(bareMessage<CGRect>(bareCaller.object, bareCaller.frameMovedBy, 7.0)); };
    Comparison(state, aim).run(work, floor, messagesInARow);
}

/// The facade owns the object that it gives; so does the floor, by the same two messages.
void messageForAnObject(benchmark::State& state)
{
    Responder responder = makeResponder(state);
    auto work = [&] { benchmark::DoNotOptimize(responder.self().raw()); };
    auto floor = [] {
        id result = bareMessage<id>(bareCaller.object, bareCaller.self);
        bareMessage<id>(result, bareCaller.retain);
        benchmark::DoNotOptimize(result);
        bareMessage<void>(result, bareCaller.release);
    };
    Comparison(state, aim).run(work, floor, messagesInARow);
}

BENCHMARK(messageForANumber)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(messageForARectangle)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(messageForAnObject)->Unit(benchmark::kMicrosecond)->UseManualTime();

}

}
