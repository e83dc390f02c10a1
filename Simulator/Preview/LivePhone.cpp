// Passes calls on to the supervisor, and answers the preview's own.
#include "Simulator/Preview/LivePhone.hpp"

#include "Product/Names.hpp"
#include "Simulator/Preview/Look.hpp"

namespace Simulator::Preview {

using namespace Control;

LivePhone::LivePhone(Supervisor& supervisor, std::string root, WithGlyph withGlyph)
    : _supervisor(supervisor)
    , _root(std::move(root))
    , _withGlyph(std::move(withGlyph))
{
    _own.add("look.get", [this](const Json&) { return Json{{"look", readLook(_root)}}; });
    _own.add("look.set", [this](const Json& parameters) { return setLook(parameters.at("look")); });
    _own.add("weather.glyph", [this](const Json& parameters) {
        return Json{{"weather", weatherNow(parameters.at("weather"))}};
    });
}

void LivePhone::start(Json parameters)
{
    parameters["root"] = _root;
    _lastEnd.clear();
    _supervisor.call("phone.start", parameters);
}

Json LivePhone::call(const std::string& method, const Json& parameters)
{
    if (method == "phone.start") {
        if (parameters.contains("root"))
            throw ProtocolError(
                ErrorCode::BadParameters, "parameter \"root\" is not taken here: the preview has its own");
        start(parameters);
        return Json::object();
    }
    if (_own.knows(method))
        return _own.call(method, parameters);
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
    for (const char* name : {LYR_SETTINGS_CHANGED, LYR_COLOURS_CHANGED})
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
