// Passes calls on to the supervisor, and answers the preview's own.
#include "Simulator/Preview/LivePhone.hpp"

#include "Product/Names.hpp"
#include "Simulator/Preview/Look.hpp"

namespace Simulator::Preview {

using namespace Control;

LivePhone::LivePhone(Supervisor& supervisor, std::string root, WithGlyph withGlyph)
    : m_supervisor(supervisor)
    , m_root(std::move(root))
    , m_withGlyph(std::move(withGlyph))
{
    m_own.add("look.get", [this](const Json&) { return Json{{"look", readLook(m_root)}}; });
    m_own.add("look.set", [this](const Json& parameters) { return setLook(parameters.at("look")); });
    m_own.add("weather.glyph", [this](const Json& parameters) {
        return Json{{"weather", weatherNow(parameters.at("weather"))}};
    });
}

void LivePhone::start(Json parameters)
{
    parameters["root"] = m_root;
    m_lastEnd.clear();
    m_supervisor.call("phone.start", parameters);
}

Json LivePhone::call(const std::string& method, const Json& parameters)
{
    if (method == "phone.start") {
        if (parameters.contains("root"))
            throw ProtocolError(
                ErrorCode::badParameters, "parameter \"root\" is not taken here: the preview has its own");
        start(parameters);
        return Json::object();
    }
    if (m_own.knows(method))
        return m_own.call(method, parameters);
    return m_supervisor.call(method, parameters);
}

Json LivePhone::weatherNow(const Json& weather)
{
    const Json time = m_supervisor.call("phone.info", Json::object()).at("time");
    return m_withGlyph(weather, time.is_string() ? time.get<std::string>() : "");
}

Json LivePhone::setLook(const Json& look)
{
    const Json missing = writeLook(m_root, look);
    for (const char* name : {LYR_SETTINGS_CHANGED, LYR_COLOURS_CHANGED})
        m_supervisor.call("notify.post", {{"name", name}});
    return {{"missingFonts", missing}};
}

void LivePhone::refresh()
{
    try {
        m_supervisor.call(
            "objc.send", {{"target", {{"instance", "SBFLockScreenDateViewController"}}}, {"selector", "updateTime"}});
    } catch (const ProtocolError&) {
        // Without the extension, in safe mode or by choice, there is nothing to refresh.
    }
}

std::vector<std::size_t> LivePhone::draw()
{
    const Json drawn = m_supervisor.draw(m_frame.path());
    const Json& pixels = drawn.at("pixels");
    m_frame.resize(pixels.at(0), pixels.at(1));
    m_screen = drawn.at("screen");
    m_secondsDrawn = drawn.at("seconds");
    return drawn.at("tiles");
}

Json LivePhone::standing() const
{
    Json standing = m_supervisor.standing();
    const Json state = m_supervisor.state();
    for (const char* member : {"device", "isLit", "isLocked"})
        standing[member] = state.is_object() ? state.value(member, Json()) : Json();
    standing["lastEnd"] = m_lastEnd.empty() ? Json() : Json(m_lastEnd);
    return standing;
}

}
