// Speaks the control protocol for end-to-end tests.
#include "Tests/Support/Phone.hpp"

#include "Simulator/Base/Base64.hpp"

namespace Support {

static std::string bytesIn(const Json& answer)
{
    return Simulator::fromBase64(answer.at("base64").get<std::string>()).value();
}

PhoneStart& PhoneStart::screen(double width, double height, double scale)
{
    return with("screen", {{"width", width}, {"height", height}, {"scale", scale}});
}

PhoneStart& PhoneStart::file(const std::string& phonePath, const std::string& hostPath)
{
    m_parameters["files"][phonePath] = hostPath;
    return *this;
}

PhoneStart& PhoneStart::with(const std::string& parameter, const Json& value)
{
    m_parameters[parameter] = value;
    return *this;
}

Phone PhoneStart::start() const
{
    Phone phone = Phone::notStarted();
    phone.start(*this);
    return phone;
}

Json Phone::call(const std::string& method, const Json& parameters)
{
    return m_program->call(method, parameters);
}

int Phone::errorCode(const std::string& method, const Json& parameters)
{
    try {
        call(method, parameters);
        return 0;
    } catch (const ControlError& error) {
        return error.code;
    }
}

Json Phone::send(const Json& target, const std::string& selector, const Json& arguments)
{
    return call("objc.send", {{"target", target}, {"selector", selector}, {"args", arguments}}).at("value");
}

void Phone::pressAt(double x, double y, double seconds)
{
    call("touch.press", {{"at", {x, y}}, {"seconds", seconds}});
}

void Phone::drag(Point from, Point to, double seconds)
{
    call("touch.drag", {{"from", from}, {"to", to}, {"seconds", seconds}});
}

void Phone::trackControl(const std::string& id, const Json& value)
{
    call("control.set", {{"id", id}, {"value", value}, {"tracking", true}});
}

std::vector<Json> Phone::takeLog(const std::string& kind)
{
    const Json records = call("log.take").at("records");
    std::vector<Json> taken;
    for (const Json& record : records) {
        if (kind.empty() || record.at("kind") == kind)
            taken.push_back(record);
    }
    return taken;
}

std::string Phone::readFile(const std::string& path)
{
    return bytesIn(call("file.read", {{"path", path}}));
}

void Phone::writeFile(const std::string& path, const std::string& bytes)
{
    call("file.write", {{"path", path}, {"base64", Simulator::toBase64(bytes)}});
}

std::string Phone::capture()
{
    return bytesIn(call("screen.capture"));
}

}
