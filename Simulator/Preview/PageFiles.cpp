// Types of the page's files, and what the page may load.
#include "Simulator/Preview/PageFiles.hpp"

#include "Simulator/Base/HostFile.hpp"

#include <array>

namespace Simulator::Preview {

namespace fs = std::filesystem;

namespace {

struct Kind {
    const char* extension;
    const char* type;
};
constexpr std::array kinds{Kind{".html", "text/html; charset=utf-8"}, Kind{".css", "text/css; charset=utf-8"},
    Kind{".js", "text/javascript; charset=utf-8"}, Kind{".json", "application/json"}, Kind{".svg", "image/svg+xml"}};

std::optional<std::string> typeOf(const fs::path& name)
{
    for (const auto& [extension, type] : kinds)
        if (name.extension() == extension)
            return type;
    return std::nullopt;
}

}

std::optional<PageFile> pageFile(const fs::path& folder, std::string_view target)
{
    target = target.substr(0, target.find('?'));
    if (!target.starts_with('/'))
        return std::nullopt;
    const std::string_view wanted = target == "/" ? "index.html" : target.substr(1);
    // By comparing with what is there, no path leads elsewhere.
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        const auto type = typeOf(entry.path());
        if (type && entry.path().filename() == wanted)
            return PageFile{readHostFile(entry.path()).value, *type};
    }
    return std::nullopt;
}

std::string contentSecurityPolicy(std::string_view host)
{
    return "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self' data: blob:; connect-src 'self' "
           "ws://"
        + std::string(host) + "; base-uri 'none'; form-action 'none'; frame-ancestors 'none'";
}

}
