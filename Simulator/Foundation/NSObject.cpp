// Delayed messages on the phone's loop, and the shell's own form of key-value access.
#include "Platform/Foundation/NSObject.hpp"
#include "Platform/Foundation/NSString.hpp"
#include "Simulator/Base/Phone.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Loop/Loop.hpp"

#include <algorithm>
#include <list>
#include <utility>

namespace Simulator {

namespace {

struct DelayedMessage {
    ObjC::Object receiver;
    SEL selector;
    ObjC::Object argument;
    TimerId work;
};

std::list<DelayedMessage>& delayedMessages()
{
    return Phone::part<std::list<DelayedMessage>>();
}

void NSObject_performSelectorAfterDelay(ObjC::Object self, SEL, SEL selector, ObjC::Object argument, double delay)
{
    auto& messages = delayedMessages();
    const auto message = messages.insert(messages.end(), {self, selector, argument, 0});
    message->work = Loop::shared().schedule(delay, [message] {
        const DelayedMessage due = std::move(*message);
        delayedMessages().erase(message);
        ObjC::sendMessage<void>(due.receiver.raw(), due.selector, due.argument);
    });
}

void NSObject_performSelectorInModes(
    ObjC::Object self, SEL command, SEL selector, ObjC::Object argument, double delay, ObjC::Object)
{
    NSObject_performSelectorAfterDelay(self, command, selector, argument, delay);
}

template <class Matches>
void cancelMessages(Matches&& matches)
{
    // What the messages hold is let go after the list is in order again.
    std::list<DelayedMessage> cancelled;
    auto& messages = delayedMessages();
    for (auto message = messages.begin(); message != messages.end();) {
        const auto next = std::next(message);
        if (matches(*message)) {
            Loop::shared().cancel(message->work);
            cancelled.splice(cancelled.end(), messages, message);
        }
        message = next;
    }
}

void NSObject_cancelPrevious(id, SEL, ObjC::Object receiver)
{
    cancelMessages([&](const DelayedMessage& message) { return message.receiver == receiver; });
}

void NSObject_cancelPreviousOf(id, SEL, ObjC::Object receiver, SEL selector, ObjC::Object argument)
{
    const auto sameArgument = [&](const ObjC::Object& other) {
        return other == argument || (other && other.send<bool, "isEqual:">(argument));
    };
    cancelMessages([&](const DelayedMessage& message) {
        return message.receiver == receiver && sel_isEqual(message.selector, selector)
            && sameArgument(message.argument);
    });
}

/// The shell's thread is the main one, so waiting means doing it at once.
void NSObject_performOnMainThread(ObjC::Object self, SEL, SEL selector, ObjC::Object argument, bool wait)
{
    if (wait)
        return ObjC::sendMessage<void>(self.raw(), selector, argument);
    Loop::shared().schedule(
        0, [=] { ObjC::sendMessage<void>(self.raw(), selector, argument); }, WorkKind::mainQueue);
}

}

static const Mending nsObject("NSObject", [] {
    replaceInFamily<NSObject_performSelectorAfterDelay>("NSObject", "performSelector:withObject:afterDelay:");
    replaceInFamily<NSObject_performSelectorInModes>("NSObject", "performSelector:withObject:afterDelay:inModes:");
    replaceInFamily<NSObject_performOnMainThread>("NSObject", "performSelectorOnMainThread:withObject:waitUntilDone:");
    replaceClassMethod<NSObject_cancelPrevious>("NSObject", "cancelPreviousPerformRequestsWithTarget:");
    replaceClassMethod<NSObject_cancelPreviousOf>(
        "NSObject", "cancelPreviousPerformRequestsWithTarget:selector:object:");
});

}
