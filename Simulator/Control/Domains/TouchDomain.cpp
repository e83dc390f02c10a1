// touch.*: a finger on the screen.
#include "Simulator/Control/Domains/PhoneContext.hpp"

#include "Simulator/UIKit/Finger.hpp"
#include "Simulator/UIKit/ViewDescription.hpp"

#include <cmath>

namespace Simulator::Control {

namespace {

constexpr double movesPerSecond = 60;
constexpr double pressSeconds = 0.6;
constexpr double dragSeconds = 0.3;

/// What the finger does next, so many seconds after the step before.
struct Step {
    double delay;
    std::function<void(Finger&)> action;
};

[[noreturn]] void refuse(const std::string& message)
{
    throw ProtocolError(ErrorCode::badParameters, message);
}

CGPoint pointOf(const Json& json)
{
    return {json.at(0), json.at(1)};
}

/// The middle of what is shown of a view, in the window.
CGPoint middleOf(PhoneContext& context, const std::string& identifier)
{
    const UIView& view = context.viewWithId(identifier);
    if (!isOnScreen(view))
        refuse("parameter \"id\" takes a view on the screen; " + quote(identifier) + " is not on it now");
    const CGRect area = view.bounds();
    const CGPoint middle{area.origin.x + area.size.width / 2, area.origin.y + area.size.height / 2};
    return view.convertPointToView(middle, context.shell.window().self<UI::View>());
}

CGPoint placeOf(PhoneContext& context, const Json& parameters)
{
    if (parameters.contains("at") == parameters.contains("id"))
        refuse("a touch takes one of at, id");
    return parameters.contains("at") ? pointOf(parameters.at("at")) : middleOf(context, parameters.at("id"));
}

/// Under a virtual clock all steps are done, and the clock has moved, when this returns. Under a real one they go on at
/// their own times.
void perform(PhoneContext& context, const std::vector<Step>& steps)
{
    Loop& loop = Loop::shared();
    double begin = 0;
    for (const Step& step : steps) {
        begin += step.delay;
        const auto act = [&context, action = step.action] {
            action(Finger::shared());
            context.shell.commit();
        };
        if (loop.clockKind() == ClockKind::realTime && begin > 0) {
            loop.schedule(begin, act);
            continue;
        }
        loop.advance(step.delay);
        context.shell.commit();
        act();
    }
}

Step downAt(PhoneContext& context, CGPoint point)
{
    return {0, [&context, point](Finger& finger) { finger.down(context.shell.window(), point); }};
}

Step upAt(double delay, CGPoint point)
{
    return {delay, [point](Finger& finger) { finger.up(point); }};
}

void drag(PhoneContext& context, CGPoint from, CGPoint to, double seconds)
{
    std::vector<Step> steps{downAt(context, from)};
    const int moves = std::max(1, static_cast<int>(std::lround(seconds * movesPerSecond)));
    for (int i = 1; i <= moves; ++i) {
        const double share = static_cast<double>(i) / moves;
        const CGPoint point{from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share};
        steps.push_back({seconds / moves, [point](Finger& finger) { finger.move(point); }});
    }
    steps.push_back(upAt(0, to));
    perform(context, steps);
}

void expectFinger(bool isDown)
{
    if (Finger::shared().isDown() != isDown)
        refuse(isDown ? "no finger is on the screen: touch.down comes first"
                      : "a finger is on the screen already: touch.up comes first");
}

}

void addTouchMethods(PhoneContext& context)
{
    const auto add = [&context](const char* name, bool needsFinger, auto action) {
        context.add(name, [&context, needsFinger, action](const Json& parameters) {
            expectFinger(needsFinger);
            action(context, parameters);
            return Json::object();
        });
    };
    add("touch.tap", false, [](PhoneContext& phone, const Json& parameters) {
        const CGPoint point = placeOf(phone, parameters);
        perform(phone, {downAt(phone, point), upAt(0, point)});
    });
    add("touch.press", false, [](PhoneContext& phone, const Json& parameters) {
        const CGPoint point = placeOf(phone, parameters);
        perform(phone, {downAt(phone, point), upAt(parameters.value("seconds", pressSeconds), point)});
    });
    add("touch.drag", false, [](PhoneContext& phone, const Json& parameters) {
        drag(phone, pointOf(parameters.at("from")), pointOf(parameters.at("to")),
            parameters.value("seconds", dragSeconds));
    });
    add("touch.down", false, [](PhoneContext& phone, const Json& parameters) {
        Finger::shared().down(phone.shell.window(), placeOf(phone, parameters));
    });
    add("touch.move", true,
        [](PhoneContext&, const Json& parameters) { Finger::shared().move(pointOf(parameters.at("at"))); });
    add("touch.up", true,
        [](PhoneContext&, const Json& parameters) { Finger::shared().up(pointOf(parameters.at("at"))); });
}

}
