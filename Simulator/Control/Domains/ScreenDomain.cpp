// screen.*: pictures of the screen.
#include "Simulator/Control/Domains/PhoneContext.hpp"

#include "Platform/Foundation/NSData.hpp"
#include "Simulator/Control/Shell.hpp"
#include "Simulator/Control/Types.hpp"

#include <cstdio>
#include <fstream>

namespace Simulator::Control {

/// Beside its place first, so that nobody sees half a picture.
static void writeFile(const std::string& path, const std::vector<std::byte>& bytes)
{
    const std::string temporary = path + ".part";
    std::ofstream file(temporary, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file || std::rename(temporary.c_str(), path.c_str()) != 0) {
        std::remove(temporary.c_str());
        throw ProtocolError(ErrorCode::BadParameters, "path: cannot write " + quote(path));
    }
}

void addScreenMethods(PhoneContext& context)
{
    context.add("screen.capture", [&context](const Json& parameters) {
        auto png = context.renderer.capturePng(context.shell.window());
        if (parameters.contains("path")) {
            writeFile(parameters.at("path"), png);
            return Json::object();
        }
        auto data = NS::Data::dataWithBytes(png.data(), png.size());
        return Json{{"base64", data.send<NS::String, "base64EncodedStringWithOptions:">(0UL).utf8()}};
    });
    const Method draw{std::string(drawMessage), {{"path", nonEmptyText(), Presence::Required}}};
    context.add(draw, [&context](const Json& parameters) {
        return context.frameFeed.draw(context.shell.window(), parameters.at("path"));
    });
}

}
