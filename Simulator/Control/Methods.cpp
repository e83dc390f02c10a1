// The protocol's table of methods.
#include "Simulator/Control/Methods.hpp"

#include "Simulator/Base/SystemVersions.hpp"
#include "Simulator/Control/Types.hpp"

#include <algorithm>

namespace Simulator::Control {

namespace {

constexpr auto required = Presence::required;
constexpr auto optional = Presence::optional;
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

/// Texts; but a library that has gone wrong gives out anything.
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

/// An object on the phone: a class, the shell's object of a class, a view, or one that `objc.new` made.
Type target()
{
    return oneMemberOf(
        {{"class", nonEmptyText()}, {"instance", nonEmptyText()}, {"id", nonEmptyText()}, {"named", nonEmptyText()}});
}

Schema startParameters()
{
    return joined(
        {
            {"screen", screenType(), optional, "its size in points; 375 × 812 at 3 without it"},
            {"time", localTime(), optional, "now without it"},
            {"clock", oneOf({"virtual", "real"}), optional, "moves when told, as without it, or by itself"},
            {"root", hostFolder(), optional, "is the phone's `/`, kept afterwards; a temporary folder without it"},
            {"files", mapOf(phonePath(), hostPath()), optional, "phone path → host path, copied in before the start"},
            {"package", hostFile("a package (.deb)"), optional,
                "is installed, with its owners and modes, in place of the extension's files that come along; its "
                "`postinst` runs with `DPKG_ROOT`, and whom its `chown` names owns the file"},
            {"settings", mapOf(storedText(), scalar()), optional, "stored settings; none without it"},
            {"colours", mapOf(storedText(), propertyList()), optional, "the colour file; no file without it"},
            {"wallpaper", orNull(hostFile("a JPEG")), optional, "the one that comes along without it, none for `null`"},
            {"fonts", listOf(hostFile("a font file")), optional, "are put into the user's font folder"},
            {"installed", listOf(oneOf({"AFont", "LastLook", "Axon", "Filza"})), optional, "other extensions"},
            {"extension", boolean(), optional, "whether the extension is loaded, as without it"},
            {"system", oneOf({systemVersions.begin(), systemVersions.end()}), optional,
                "the phone's system: its classes and their members are there; 14.0 without it"},
            {"firstUnlock", boolean(), optional,
                "whether the phone was unlocked since it was switched on, as without it; before that the user's files "
                "cannot be read"},
            {"homeScreen", oneOf({"before", "after"}), optional,
                "when the home screen appears behind the lock screen as the shell starts; with the first unlock "
                "without it"},
            {"lacking", listOf(text()), optional,
                "classes that the extension looks up in vain, `\"UIColorWell\"`; methods that it can neither intercept "
                "nor send, `\"CSQuickActionsViewController hasCamera\"`; instance variables and keys that it cannot "
                "read, `\"SBScheduledAlarmObserver _alarmManager\"`; methods with other types, "
                "`\"CSQuickActionsViewController hasCamera=@16@0:8\"`; the stock shell has them all the same"},
        },
        deviceParameters());
}

std::vector<Method> phoneMethods()
{
    return {
        {"phone.start", startParameters(), "",
            "starts the shell process, loads the extension and brings up the lock screen, locked and lit; a phone that "
            "runs already is stopped first"},
        {"phone.stop", {}, "", "ends the phone; a temporary root goes with it"},
        {"phone.info", {}, "`running`, `safeMode`, `starts`, `restarts`, `pid`, `time`, `screen`",
            "how the phone stands; without one it answers too"},
        {"phone.lock", {{"form", oneOf({"short", "long"})}, {"endsIn", oneOf({"short", "long"})}}, "",
            "locks and darkens, by the side button's message or by the one with a completion; `endsIn` says which of "
            "the two does the work and is sent by the other, the long one without it"},
        {"phone.home", {}, "", "the home button: goes to the home screen"},
        {"phone.passcode", {{"shown", boolean(), required}}, "", "lets the passcode page cover the lock screen, or go"},
        {"phone.firstUnlock", {}, "",
            "the first unlock since the phone was switched on: from now on the user's files can be read"},
        {"phone.wake", {}, "", "lights the screen"},
        {"phone.unlock", {}, "", "goes to the home screen"},
        {"phone.coverSheet", {}, "", "pulls the cover sheet down over what is in front"},
        {"phone.openApp", {{"bundle", nonEmptyText(), required}}, "", "brings an app to the front"},
        {"phone.memoryWarning", {}, "", "tells that memory runs short"},
        {"phone.protectedData", {{"available", boolean(), required}}, "",
            "tells that protected files can be read from now on, or no more"},
        {"phone.charge", {{"charging", boolean(), required}}, "", "plugs the charger in or out"},
        {"phone.subtitle", {{"text", text(), required}}, "",
            "what the system writes into the stock subtitle; the date again for an empty text"},
        {"phone.timer", {{"seconds", number(0, longestAdvance), required}}, "",
            "runs a timer in the stock subtitle; 0 stops it"},
        {"phone.rotate", {{"landscape", boolean(), required}}, "", "turns the phone"},
    };
}

std::vector<Method> clockMethods()
{
    return {
        {"clock.set", {{"time", localTime(), required}}, "", "the user sets the clock; what is due keeps its delay"},
        {"clock.advance", {{"seconds", number(0, longestAdvance), required}}, "",
            "runs everything due on the way, in order, each at its own time"},
        {"clock.settle", {{"seconds", number(0, longestAdvance)}}, "",
            "the same, until nothing but repeating work is left or the bound is reached, which is 60 without it"},
    };
}

std::vector<Method> deviceMethods()
{
    return {
        {"device.set", deviceParameters(), "", "changes what it is given and leaves the rest as it is"},
    };
}

std::vector<Method> storeMethods()
{
    const Parameter path{"path", phonePath(), required};
    const Parameter keys{"keys", listOf(text())};
    const Parameter notify{"notify", boolean()};
    return {
        {"settings.get", {keys}, "`values`", "what is stored; a key that is absent is absent"},
        {"settings.set", {{"values", mapOf(storedText(), scalar()), required}, notify}, "",
            "stores as the settings pane does, and announces it unless `notify` is false"},
        {"settings.bound", {{"key", text(), required}}, "`value`", "what the extension's variable holds now"},
        {"colours.get", {keys}, "`values`", "what the colour file holds"},
        {"colours.set", {{"values", mapOf(storedText(), propertyList()), required}, notify}, "",
            "stores in the colour file, and announces it unless `notify` is false"},
        {"notify.post", {{"name", nonEmptyText(), required}}, "", "posts a system-wide notification"},
        {"file.read", {path}, "`base64`, `plist`?, `json`?", "the bytes of a file, and what they hold if it is either"},
        {"file.write", {path, {"base64", base64(), required}, {"owner", oneOf({"root", "mobile"})}}, "",
            "makes or replaces a file; `owner` gives it and its folder to a user, where without it the user's home is "
            "mobile's and everything else root's"},
        {"file.list", {path}, "`names`", "what is in a folder"},
        {"file.remove", {path}, "", "removes a file, or a folder with what is in it"},
        {"file.fault",
            {path, {"operation", oneOf({"read", "write", "rename"}), required},
                {"error", orNull(oneOf({"EACCES", "ENOSPC", "EIO"})), required}},
            "", "makes the phone's file system fail there; `null` mends it"},
    };
}

std::vector<Method> touchMethods()
{
    const Schema place{{"at", point()}, {"id", nonEmptyText()}};
    const Parameter seconds{"seconds", number(0, longestTouch)};
    return {
        {"touch.tap", place, "", "a finger comes down and goes up"},
        {"touch.press", joined(place, {seconds}), "", "it stays for 0.6 s, or as long as is said"},
        {"touch.drag", {{"from", point(), required}, {"to", point(), required}, seconds}, "",
            "it moves in 0.3 s, or as slowly as is said"},
        {"touch.down", place, "", "the first step of the same"},
        {"touch.move", {{"at", point(), required}}, "", "the next"},
        {"touch.up", {{"at", point(), required}}, "", "the last"},
        {"control.set", {{"id", nonEmptyText(), required}, {"value", anything(), required}, {"tracking", boolean()}},
            "", "leaves a control as a finger would, and sends its actions; with `tracking` the finger is still on it"},
    };
}

std::vector<Method> viewMethods()
{
    return {
        {"view.tree", {{"id", nonEmptyText()}}, "the view",
            "a view, or the window, with its `children`, back to front"},
        {"view.get", {{"id", nonEmptyText(), required}}, "the view", "one view"},
    };
}

std::vector<Method> insideMethods()
{
    return {
        {"objc.send",
            {{"target", target(), required}, {"selector", nonEmptyText(), required}, {"args", listOf(anything())},
                {"super", boolean()}},
            "`value`", "sends one message"},
        {"objc.new", {{"class", nonEmptyText(), required}, {"name", nonEmptyText(), required}}, "",
            "keeps a new object for later calls"},
        {"objc.hooks", {}, "`hooks`", "every interception and added method in the order of installation"},
        {"global.get", {{"name", nonEmptyText(), required}}, "`value`",
            "one of the extension's process-wide variables"},
        {"log.take", {}, "`records`, `dropped`", "what the extension asked of the phone since the last call, in order"},
        {"counts.take", {}, "`counts`",
            "how often the extension did what costs time or power, since the last call or the start of the shell "
            "process"},
        {"screen.capture", {{"path", hostDestination()}}, "`base64`?",
            "draws the screen as a PNG, which is written to the path or answered"},
    };
}

std::vector<Method> methodsOfPreview()
{
    return {
        {"screen.follow", {}, "", "from here on the screen arrives in binary frames, the first one whole"},
        {"screen.shown", {}, "", "the frame was shown, and the next may come; best as a notification"},
        {"weather.glyph", {{"weather", weather(), required}}, "`weather`",
            "the record for `device.set`, its `image` the built-in picture of its conditions at the phone's time; an "
            "`image` that is none of the built-in ones stays"},
        {"look.get", {}, "`look`", "the settings and colours as one document"},
        {"look.set", {{"look", anything(), required}}, "`missingFonts`",
            "puts them in place of what is stored; a look of a newer version or with an unknown key is refused whole"},
    };
}

}

Type screenType()
{
    return object({{"width", number(1, 2048), required}, {"height", number(1, 2048), required},
        {"scale", number(1, 4), required}});
}

Schema deviceParameters()
{
    return {
        {"battery", battery(), optional,
            "a level of -1 is one that is not known, and `null` not a number; a new phone's is full and unplugged"},
        {"weather", weather(), optional,
            "texts; a value that is no text reaches the extension as the number, array or dictionary that it is. A new "
            "phone has none"},
        {"alarm", orNull(localTime()), optional, "the next one; a new phone has none"},
        {"events", events(), optional, "of the calendar; a new phone has none"},
        {"style", oneOf({"light", "dark"}), optional, "a new phone's is light"},
        {"locale", locale(), optional, "a new phone's is en_US"},
        {"timeZone", timeZone(), optional, "a new phone's is UTC"},
        {"languages", listOf(locale()), optional, "a new phone's are `[\"en\"]`"},
        {"twentyFourHour", orNull(boolean()), optional,
            "the clock's 12/24-hour switch; `null`, as a new phone has it, is as the locale has it"},
        {"calendarAccess", oneOf({"granted", "denied"}), optional,
            "whether the shell may read events, as on a new phone"},
        {"flashlight", boolean(), optional, "whether the device has one, as a new phone has"},
        {"camera", boolean(), optional, "likewise"},
    };
}

const std::vector<MethodGroup>& methodGroups()
{
    static const std::vector<MethodGroup> groups{{"phone", phoneMethods()}, {"clock", clockMethods()},
        {"device", deviceMethods()}, {"store", storeMethods()}, {"touch", touchMethods()}, {"view", viewMethods()},
        {"inside", insideMethods()}, {"preview", methodsOfPreview()}};
    return groups;
}

const std::vector<Method>& protocolMethods()
{
    static const std::vector<Method> methods = [] {
        std::vector<Method> all;
        for (const MethodGroup& group : methodGroups()) {
            if (group.name != "preview")
                all.insert(all.end(), group.methods.begin(), group.methods.end());
        }
        return all;
    }();
    return methods;
}

const Method* methodNamed(const std::string& name)
{
    for (const MethodGroup& group : methodGroups()) {
        const auto found = std::ranges::find(group.methods, name, &Method::name);
        if (found != group.methods.end())
            return &*found;
    }
    return nullptr;
}

}
