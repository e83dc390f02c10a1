// JSON-RPC 2.0: reading requests, answering them, and the error codes of the control protocol.
// One document a line, always valid UTF-8.
#pragma once

#include <functional>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Simulator::Control {

using Json = nlohmann::json;

enum class ErrorCode {
    badJson = -32700,
    notARequest = -32600,
    noSuchMethod = -32601,
    badParameters = -32602,
    internal = -32603,
    noPhone = -32001,
    notFound = -32002,
    shellEnded = -32003,
};

class ProtocolError : public std::runtime_error {
public:
    ProtocolError(ErrorCode code, const std::string& message)
        : std::runtime_error(message)
        , m_code(code)
    {
    }
    ErrorCode code() const { return m_code; }

private:
    ErrorCode m_code;
};

/// What a method does with its parameters, which are always an object.
using Call = std::function<Json(const std::string& method, const Json& parameters)>;

/// Throws a ProtocolError for anything that is not one JSON document of bearable depth.
Json parseDocument(std::string_view text);

/// One line without its newline; what is not UTF-8 is replaced.
std::string toLine(const Json&);

Json requestDocument(std::uint64_t id, const std::string& method, const Json& parameters);
Json resultDocument(const Json& id, const Json& result);
Json errorDocument(const Json& id, const ProtocolError&);

/// The reply to a request or a batch of them; nothing when there were notifications only.
std::optional<Json> answerDocument(const Json& document, const Call&);
std::optional<std::string> answerLine(std::string_view line, const Call&);

/// A value as an error message quotes it: on one line and short.
std::string quote(const Json&);

}
