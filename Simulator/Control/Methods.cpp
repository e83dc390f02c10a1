// The protocol's table of methods.
#include "Simulator/Control/Methods.hpp"

#include "Simulator/Control/Types.hpp"

namespace Simulator::Control {

namespace {

constexpr auto required = Presence::Required;
constexpr double longestAdvance = 366 * 86400.0;
constexpr double longestTouch = 60;

Schema joined(Schema first, const Schema& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Type battery()
{
    // A broken gauge reports no number.
    return object({{"level", orNull(number(-1, 1))}, {"state", oneOf({"unplugged", "charging", "full", "unknown"})},
        {"lowPower", boolean()}});
}

// Texts; but a library that has gone wrong gives out anything.
Type weather()
{
    const Type value = propertyList();
    return orNull(object({{"temperature", value}, {"high", value}, {"low", value}, {"conditions", value},
        {"location", value}, {"sunrise", value}, {"sunset", value}, {"image", hostFile("a PNG")}}));
}

Type events()
{
    return listOf(
        object({{"title", orNull(text()), required}, {"start", localTime(), required}, {"allDay", boolean()}}));
}

// An object on the phone: a class, the shell's object of a class, a view, or one that `objc.new` made.
Type target()
{
    return oneMemberOf(
        {{"class", nonEmptyText()}, {"instance", nonEmptyText()}, {"id", nonEmptyText()}, {"named", nonEmptyText()}});
}

Schema startParameters()
{
    return joined({{"screen", screenType()}, {"time", localTime()}, {"clock", oneOf({"virtual", "real"})},
                      {"root", hostFolder()}, {"files", mapOf(phonePath(), hostPath())},
                      {"settings", mapOf(storedText(), scalar())}, {"colours", mapOf(storedText(), propertyList())},
                      {"wallpaper", orNull(hostFile("a JPEG"))}, {"fonts", listOf(hostFile("a font file"))},
                      {"installed", listOf(oneOf({"AFont", "LastLook", "Axon", "Filza"}))}, {"extension", boolean()},
                      {"lacking", listOf(text())}},
        deviceParameters());
}

std::vector<Method> phoneMethods()
{
    return {{"phone.start", startParameters()}, {"phone.stop", {}}, {"phone.info", {}}, {"phone.lock", {}},
        {"phone.wake", {}}, {"phone.unlock", {}}, {"phone.coverSheet", {}},
        {"phone.openApp", {{"bundle", nonEmptyText(), required}}}, {"phone.memoryWarning", {}},
        {"phone.protectedData", {{"available", boolean(), required}}},
        {"phone.charge", {{"charging", boolean(), required}}}, {"phone.subtitle", {{"text", text(), required}}},
        {"phone.timer", {{"seconds", number(0, longestAdvance), required}}},
        {"phone.rotate", {{"landscape", boolean(), required}}}};
}

std::vector<Method> deviceMethods()
{
    return {{"clock.set", {{"time", localTime(), required}}},
        {"clock.advance", {{"seconds", number(0, longestAdvance), required}}},
        {"clock.settle", {{"seconds", number(0, longestAdvance)}}}, {"device.set", deviceParameters()}};
}

std::vector<Method> storeMethods()
{
    const Parameter path{"path", phonePath(), required};
    return {{"settings.get", {{"keys", listOf(text())}}},
        {"settings.set", {{"values", mapOf(storedText(), scalar()), required}, {"notify", boolean()}}},
        {"settings.bound", {{"key", text(), required}}}, {"colours.get", {{"keys", listOf(text())}}},
        {"colours.set", {{"values", mapOf(storedText(), propertyList()), required}, {"notify", boolean()}}},
        {"notify.post", {{"name", nonEmptyText(), required}}}, {"file.read", {path}},
        {"file.write", {path, {"base64", base64(), required}}}, {"file.list", {path}}, {"file.remove", {path}},
        {"file.fault",
            {path, {"operation", oneOf({"read", "write", "rename"}), required},
                {"error", orNull(oneOf({"EACCES", "ENOSPC", "EIO"})), required}}}};
}

std::vector<Method> touchMethods()
{
    const Schema place{{"at", point()}, {"id", nonEmptyText()}};
    const Parameter seconds{"seconds", number(0, longestTouch)};
    return {{"touch.tap", place}, {"touch.press", joined(place, {seconds})},
        {"touch.drag", {{"from", point(), required}, {"to", point(), required}, seconds}}, {"touch.down", place},
        {"touch.move", {{"at", point(), required}}}, {"touch.up", {{"at", point(), required}}},
        {"control.set", {{"id", nonEmptyText(), required}, {"value", anything(), required}, {"tracking", boolean()}}}};
}

std::vector<Method> lookingMethods()
{
    return {{"view.tree", {{"id", nonEmptyText()}}}, {"view.get", {{"id", nonEmptyText(), required}}},
        {"objc.send",
            {{"target", target(), required}, {"selector", nonEmptyText(), required}, {"args", listOf(anything())},
                {"super", boolean()}}},
        {"objc.new", {{"class", nonEmptyText(), required}, {"name", nonEmptyText(), required}}}, {"objc.hooks", {}},
        {"global.get", {{"name", nonEmptyText(), required}}}, {"log.take", {}}, {"counts.take", {}},
        {"screen.capture", {{"path", hostDestination()}}}};
}

}

Type screenType()
{
    return object({{"width", number(1, 2048), required}, {"height", number(1, 2048), required},
        {"scale", number(1, 4), required}});
}

Schema deviceParameters()
{
    return {{"battery", battery()}, {"weather", weather()}, {"alarm", orNull(localTime())}, {"events", events()},
        {"style", oneOf({"light", "dark"})}, {"locale", locale()}, {"timeZone", timeZone()},
        {"languages", listOf(locale())}};
}

const std::vector<Method>& protocolMethods()
{
    static const std::vector<Method> methods = [] {
        std::vector<Method> all;
        for (const auto& part : {phoneMethods(), deviceMethods(), storeMethods(), touchMethods(), lookingMethods()})
            all.insert(all.end(), part.begin(), part.end());
        return all;
    }();
    return methods;
}

}
