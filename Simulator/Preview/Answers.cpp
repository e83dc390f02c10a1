// Lets in whoever comes from the page, and gives the page its files.
#include "Simulator/Preview/Answers.hpp"

#include "Simulator/Preview/Origin.hpp"
#include "Simulator/Preview/PageFiles.hpp"

namespace Simulator::Preview {

namespace {

constexpr int ok = 200, forbidden = 403, notFound = 404, methodNotAllowed = 405, upgradeRequired = 426;

Answer bodyWith(const Request& request, int status, std::string body, const std::string& type)
{
    return {status, std::move(body),
        {{"Content-Type", type}, {"Content-Security-Policy", contentSecurityPolicy(request.host)},
            {"X-Content-Type-Options", "nosniff"}, {"Referrer-Policy", "no-referrer"},
            {"Cross-Origin-Resource-Policy", "same-origin"}, {"Cache-Control", "no-store"}}};
}

Answer refusal(const Request& request, int status, const char* reason)
{
    return bodyWith(request, status, reason, "text/plain; charset=utf-8");
}

Answer answerFile(const Request& request, const std::filesystem::path& page)
{
    if (!request.isToRead)
        return refusal(request, methodNotAllowed, "Files are to be read here.\n");
    auto file = pageFile(page, request.target);
    if (!file)
        return refusal(request, notFound, "There is no such file.\n");
    return bodyWith(request, ok, std::move(file->bytes), file->type);
}

}

Answer answerTo(const Request& request, const std::filesystem::path& page, unsigned short port)
{
    if (!isOwnHost(request.host, port))
        return refusal(request, forbidden, "This page is served to this machine by its own name only.\n");
    if (request.target != "/control")
        return answerFile(request, page);
    if (!request.isForWebSocket)
        return refusal(request, upgradeRequired, "This is a WebSocket.\n");
    if (!isOwnOrigin(request.origin, port))
        return refusal(request, forbidden, "The phone is not for pages of other origins.\n");
    return {.status = switchingProtocols};
}

}
