// The files of the page, by the path that a browser asks for.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace Simulator::Preview {

struct PageFile {
    std::string bytes;
    std::string type;
};

/// `target` is the path of a request; nothing where the page has no such file.
std::optional<PageFile> pageFile(const std::filesystem::path& folder, std::string_view target);

/// What a browser may load for the page: only what this host serves.
std::string contentSecurityPolicy(std::string_view host);

}
