// file.*: the phone's files, by a tester's hand.
#include "Simulator/Base/Base64.hpp"
#include "Simulator/Control/Domains/PhoneContext.hpp"

#include "Simulator/Companions/PropertyListValues.hpp"
#include "Simulator/Control/PropertyList.hpp"
#include "Simulator/Files/PhoneFiles.hpp"

#include <array>
#include <cerrno>
#include <cstring>

namespace Simulator::Control {

namespace {

struct FaultName {
    const char* name;
    int error;
};
constexpr std::array faults{FaultName{"EACCES", EACCES}, FaultName{"ENOSPC", ENOSPC}, FaultName{"EIO", EIO}};

[[noreturn]] void fail(const std::string& path, int error)
{
    const std::string message = path + ": " + strerror(error);
    if (error == ENOENT || error == ENOTDIR)
        throwNotFound(message);
    throw ProtocolError(ErrorCode::internal, message);
}

Json readFile(const std::string& path)
{
    auto content = PhoneFiles::shared().fetch(path);
    if (!content)
        fail(path, content.error);
    Json result{{"base64", toBase64(content.value)}};
    if (isPropertyListDictionary(content.value))
        result["plist"] = jsonOfValue(dictionaryInFile(path));
    Json parsed = Json::parse(content.value, nullptr, false);
    if (!parsed.is_discarded())
        result["json"] = parsed;
    return result;
}

void setFault(const Json& parameters)
{
    const std::string operation = parameters.at("operation");
    int error = 0;
    for (const auto& fault : faults)
        if (parameters.at("error") == fault.name)
            error = fault.error;
    PhoneFiles::shared().setFault(parameters.at("path").get<std::string>(),
        operation == "read"        ? FileOperation::read
            : operation == "write" ? FileOperation::write
                                   : FileOperation::rename,
        error);
}

}

void addFileMethods(PhoneContext& context)
{
    context.add("file.read", [](const Json& parameters) { return readFile(parameters.at("path")); });
    context.add("file.write", [](const Json& parameters) {
        const std::string path = parameters.at("path");
        if (int error = PhoneFiles::shared().put(path, *fromBase64(parameters.at("base64").get<std::string>())))
            fail(path, error);
        if (parameters.contains("owner")) {
            for (const std::string& each : {path, path.substr(0, path.rfind('/'))})
                PhoneFiles::shared().give(each, ownerNamed(parameters.at("owner").get<std::string>()));
        }
        return Json::object();
    });
    context.add("file.list", [](const Json& parameters) {
        const std::string path = parameters.at("path");
        auto names = PhoneFiles::shared().list(path);
        if (!names)
            fail(path, names.error);
        return Json{{"names", names.value}};
    });
    context.add("file.remove", [](const Json& parameters) {
        const std::string path = parameters.at("path");
        if (int error = PhoneFiles::shared().erase(path))
            fail(path, error);
        return Json::object();
    });
    context.add("file.fault", [](const Json& parameters) {
        setFault(parameters);
        return Json::object();
    });
}

}
