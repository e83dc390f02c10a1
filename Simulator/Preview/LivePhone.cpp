#include "Simulator/Preview/LivePhone.hpp"

#include "Simulator/Control/RootFolder.hpp"
#include "Simulator/Control/Types.hpp"
#include "Simulator/Preview/Look.hpp"

namespace Simulator::Preview {

using namespace Control;

LivePhone::LivePhone(Supervisor& supervisor, std::string root)
    : _supervisor(supervisor)
    , _root(std::move(root))
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
    return _supervisor.call(method, parameters);
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
