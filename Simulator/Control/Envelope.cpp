// Reads and answers JSON-RPC 2.0 documents.
#include "Simulator/Control/Envelope.hpp"

#include <algorithm>

namespace Simulator::Control {

namespace {

/// Deeper documents would exhaust the stack when they are copied or written.
constexpr std::size_t deepestNesting = 128;
constexpr std::size_t longestQuote = 80;

std::size_t nestingDepth(std::string_view text)
{
    std::size_t depth = 0;
    std::size_t deepest = 0;
    bool inString = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (inString) {
            if (c == '\\')
                ++i;
            else if (c == '"')
                inString = false;
        } else if (c == '"') {
            inString = true;
        } else if (c == '[' || c == '{') {
            deepest = std::max(deepest, ++depth);
        } else if ((c == ']' || c == '}') && depth > 0) {
            --depth;
        }
    }
    return deepest;
}

struct Request {
    Json id;
    bool wantsReply = true;
    std::string method;
    Json parameters = Json::object();
};

bool isId(const Json& value)
{
    return value.is_string() || value.is_number() || value.is_null();
}

Json idOf(const Json& document)
{
    if (!document.is_object() || !document.contains("id") || !isId(document["id"]))
        return nullptr;
    return document["id"];
}

ProtocolError notARequest(const std::string& reason)
{
    return ProtocolError(ErrorCode::notARequest, "not a request: " + reason);
}

Request readRequest(const Json& document)
{
    if (!document.is_object())
        throw notARequest("a request is an object, not " + quote(document));
    if (!document.contains("jsonrpc") || document["jsonrpc"] != "2.0")
        throw notARequest("\"jsonrpc\" is missing or not \"2.0\"");
    if (!document.contains("method") || !document["method"].is_string())
        throw notARequest("\"method\" is missing or no string");
    if (document.contains("id") && !isId(document["id"]))
        throw notARequest("\"id\" takes a string, a number or null");
    if (document.contains("params") && !document["params"].is_structured())
        throw notARequest("\"params\" takes an object");

    Request request;
    request.id = idOf(document);
    request.wantsReply = document.contains("id");
    request.method = document["method"].get<std::string>();
    if (document.contains("params"))
        request.parameters = document["params"];
    return request;
}

Json perform(const Request& request, const Call& call)
{
    try {
        if (!request.parameters.is_object())
            throw ProtocolError(ErrorCode::badParameters, "parameters go by name: \"params\" takes an object");
        return resultDocument(request.id, call(request.method, request.parameters));
    } catch (const ProtocolError& error) {
        return errorDocument(request.id, error);
    } catch (const std::exception& error) {
        return errorDocument(request.id, ProtocolError(ErrorCode::internal, error.what()));
    }
}

std::optional<Json> answerOne(const Json& document, const Call& call)
{
    try {
        const Request request = readRequest(document);
        Json reply = perform(request, call);
        if (request.wantsReply)
            return reply;
        return std::nullopt;
    } catch (const ProtocolError& error) {
        return errorDocument(idOf(document), error);
    }
}

std::optional<Json> answerBatch(const Json& batch, const Call& call)
{
    if (batch.empty())
        return errorDocument(nullptr, notARequest("the batch is empty"));
    Json replies = Json::array();
    for (const Json& document : batch) {
        if (auto reply = answerOne(document, call))
            replies.push_back(std::move(*reply));
    }
    if (replies.empty())
        return std::nullopt;
    return replies;
}

}

Json parseDocument(std::string_view text)
{
    if (nestingDepth(text) > deepestNesting) {
        if (Json::accept(text))
            throw notARequest("nested deeper than " + std::to_string(deepestNesting) + " levels");
        throw ProtocolError(ErrorCode::badJson, "bad JSON, nested deeper than " + std::to_string(deepestNesting));
    }
    try {
        return Json::parse(text);
    } catch (const Json::exception& error) {
        throw ProtocolError(ErrorCode::badJson, std::string("bad JSON: ") + error.what());
    }
}

std::string toLine(const Json& document)
{
    return document.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json requestDocument(std::uint64_t id, const std::string& method, const Json& parameters)
{
    return {{"jsonrpc", "2.0"}, {"id", id}, {"method", method}, {"params", parameters}};
}

Json resultDocument(const Json& id, const Json& result)
{
    return {{"jsonrpc", "2.0"}, {"id", id}, {"result", result}};
}

Json errorDocument(const Json& id, const ProtocolError& error)
{
    return {{"jsonrpc", "2.0"}, {"id", id},
        {"error", {{"code", static_cast<int>(error.code())}, {"message", std::string(error.what())}}}};
}

std::optional<Json> answerDocument(const Json& document, const Call& call)
{
    return document.is_array() ? answerBatch(document, call) : answerOne(document, call);
}

std::optional<std::string> answerLine(std::string_view line, const Call& call)
{
    std::optional<Json> reply;
    try {
        reply = answerDocument(parseDocument(line), call);
    } catch (const ProtocolError& error) {
        reply = errorDocument(nullptr, error);
    }
    if (!reply)
        return std::nullopt;
    return toLine(*reply);
}

std::string quote(const Json& value)
{
    if (value.is_structured() && value.size() > longestQuote)
        return value.is_array() ? "a long list" : "a long object";
    std::string text = toLine(value);
    if (text.size() <= longestQuote)
        return text;
    std::size_t end = longestQuote;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    return text.substr(0, end) + "…";
}

}
