// screen.*: pictures of the screen.
#include "Simulator/Base/Base64.hpp"
#include "Simulator/Control/Domains/PhoneContext.hpp"

#include "Simulator/Control/OutputFile.hpp"
#include "Simulator/Control/Shell.hpp"
#include "Simulator/Control/Types.hpp"

namespace Simulator::Control {

/// This process's streams are the supervisor's.
static void writeFile(const std::string& path, const std::vector<std::byte>& bytes)
{
    try {
        OutputFile(path, OutputFile::OwnStreams::refused)
            .write({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    } catch (const std::runtime_error& error) {
        throw ProtocolError(ErrorCode::badParameters, std::string("parameter \"path\": ") + error.what());
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
        return Json{{"base64", toBase64({reinterpret_cast<const char*>(png.data()), png.size()})}};
    });
    const Method draw{std::string(drawMessage), {{"path", nonEmptyText(), Presence::required}}};
    context.add(draw, [&context](const Json& parameters) {
        return context.frameFeed.draw(context.shell.window(), parameters.at("path"));
    });
}

}
