// The notify centre: observers in order of registration, and names that wait for the main queue.
#include "Simulator/Companions/DarwinNotifications.hpp"

#include "Platform/Foundation/CFNotificationCenter.hpp"
#include "Platform/Foundation/NSString.hpp"
#include "Simulator/Base/Phone.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"

#include <algorithm>
#include <utility>
#include <vector>

struct __CFNotificationCenter {
    struct Observer {
        std::string name;
        CFNotificationCallback callback;
        const void* observer;
    };

    void add(Observer observer) { observers.push_back(std::move(observer)); }

    /// A name that waits already is not queued again: several posts before delivery give one callback.
    void queue(const std::string& name)
    {
        if (std::ranges::find(waiting, name) == waiting.end())
            waiting.push_back(name);
        Simulator::Loop& loop = Simulator::Loop::shared();
        if (!loop.isScheduled(delivery))
            delivery = loop.schedule(
                0, [this] { deliverWaiting(); }, Simulator::WorkKind::mainQueue);
    }

    void deliverWaiting()
    {
        delivering = true;
        for (const std::string& name : std::exchange(waiting, {}))
            deliver(name);
        delivering = false;
    }

    void deliver(const std::string& name)
    {
        ObjC::AutoreleasePool pool;
        const NS::String text = NS::String::fromUTF8(name);
        // Who is added by a callback hears of the next one.
        const std::vector<Observer> present = observers;
        for (const Observer& each : present) {
            if (each.name == name)
                each.callback(this, const_cast<void*>(each.observer), text.raw(), nullptr, nullptr);
        }
    }

    std::vector<Observer> observers;
    std::vector<std::string> waiting;
    Simulator::TimerId delivery = 0;
    bool delivering = false;
};

static __CFNotificationCenter& darwinCentre()
{
    return Simulator::Phone::part<__CFNotificationCenter>();
}

namespace Simulator {

void postDarwinNotification(const std::string& name)
{
    __CFNotificationCenter& centre = darwinCentre();
    centre.queue(name);
    if (!centre.delivering) {
        Loop::shared().cancel(centre.delivery);
        centre.deliverWaiting();
    }
}

}

extern "C" {

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter()
{
    return &darwinCentre();
}

void CFNotificationCenterAddObserver(CFNotificationCenterRef centre, const void* observer,
    CFNotificationCallback callback, id name, const void*, CFNotificationSuspensionBehavior)
{
    if (centre && callback && name)
        centre->add({std::string(NS::String(name).utf8()), callback, observer});
}

void CFNotificationCenterPostNotification(CFNotificationCenterRef centre, id name, const void*, id, bool)
{
    if (!centre || !name)
        return;
    const std::string text(NS::String(name).utf8());
    Simulator::ActivityLog::shared().record("notification", {{"name", text}});
    centre->queue(text);
}
}
