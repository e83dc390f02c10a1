#include "Simulator/Preview/LivePhone.hpp"

#include "Simulator/Control/Methods.hpp"
#include "Simulator/Control/RootFolder.hpp"
#include "Simulator/Control/Types.hpp"
#include "Simulator/Preview/Look.hpp"

#include <algorithm>

namespace Simulator::Preview {

using namespace Control;

namespace {

// As `device.set` takes it.
Parameter weatherParameter()
{
    const Schema device = deviceParameters();
    Parameter weather = *std::find_if(
        device.begin(), device.end(), [](const Parameter& parameter) { return parameter.name == "weather"; });
    weather.presence = Presence::Required;
    return weather;
}

}

LivePhone::LivePhone(Supervisor& supervisor, std::string root, WithGlyph withGlyph)
    : _supervisor(supervisor)
    , _root(std::move(root))
    , _withGlyph(std::move(withGlyph))
{
}

void LivePhone::start(Json parameters)
{
    parameters["root"] = _root;
    _lastEnd.clear();
    _supervisor.call("phone.start", parameters);
}

Json LivePhone::call(const std::string& method, const Json& parameters)
{
    static const Method getLook{"look.get", {}};
    static const Method setLookMethod{"look.set", {{"look", anything(), Presence::Required}}};
    static const Method glyph{"weather.glyph", {weatherParameter()}};
    if (method == "phone.start") {
        if (parameters.contains("root"))
            throw ProtocolError(
                ErrorCode::BadParameters, "parameter \"root\" is not taken here: the preview has its own");
        start(parameters);
        return Json::object();
    }
    if (method == getLook.name) {
        checkParameters(getLook, parameters);
        return {{"look", readLook(_root)}};
    }
    if (method == setLookMethod.name) {
        checkParameters(setLookMethod, parameters);
        return setLook(parameters.at("look"));
    }
    if (method == glyph.name) {
        checkParameters(glyph, parameters);
        return {{"weather", weatherNow(parameters.at("weather"))}};
    }
    return _supervisor.call(method, parameters);
}

Json LivePhone::weatherNow(const Json& weather)
{
    const Json time = _supervisor.call("phone.info", Json::object()).at("time");
    return _withGlyph(weather, time.is_string() ? time.get<std::string>() : "");
}

Json LivePhone::setLook(const Json& look)
{
    const Json missing = writeLook(_root, look);
    for (const char* name : {"com.ostrel.lyrprefs/ReloadPrefs", "com.ostrel.colorslyr/ReloadPrefs"})
        _supervisor.call("notify.post", {{"name", name}});
    return {{"missingFonts", missing}};
}

void LivePhone::refresh()
{
    try {
        _supervisor.call(
            "objc.send", {{"target", {{"instance", "SBFLockScreenDateViewController"}}}, {"selector", "updateTime"}});
    } catch (const ProtocolError&) {
        // Without the extension, in safe mode or by choice, there is nothing to refresh.
    }
}

std::vector<std::size_t> LivePhone::draw()
{
    const Json drawn = _supervisor.draw(_frame.path());
    const Json& pixels = drawn.at("pixels");
    _frame.resize(pixels.at(0), pixels.at(1));
    _screen = drawn.at("screen");
    _secondsDrawn = drawn.at("seconds");
    return drawn.at("tiles");
}

Json LivePhone::standing() const
{
    Json standing = _supervisor.standing();
    const Json state = _supervisor.state();
    for (const char* member : {"device", "isLit", "isLocked"})
        standing[member] = state.is_object() ? state.value(member, Json()) : Json();
    standing["lastEnd"] = _lastEnd.empty() ? Json() : Json(_lastEnd);
    return standing;
}

}
