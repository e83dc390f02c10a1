// Finds the share folder beside the program, and fills a phone's root from it.
#include "Simulator/App/FactoryContent.hpp"

#include "Simulator/App/InstalledPackage.hpp"
#include "Simulator/Control/RootFolder.hpp"
#include "Simulator/Loader/ExtensionLoader.hpp"

#include <algorithm>
#include <fstream>

namespace Simulator::App {

namespace fs = std::filesystem;

namespace {

/// share/lyr beside the folder of the program, from wherever it is run.
fs::path shareFolder()
{
    return fs::read_symlink("/proc/self/exe").parent_path().parent_path() / "share/lyr";
}

/// A path of the phone under a folder of the host.
fs::path under(const fs::path& folder, std::string_view phonePath)
{
    return folder / phonePath.substr(1);
}

void copyMissing(const fs::path& from, const fs::path& to)
{
    fs::create_directories(to);
    fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::skip_existing);
}

/// A library that was asked for stands under the name that the phone's loader looks for first.
void placeExtension(const fs::path& root, const std::string& extension)
{
    const fs::path library = under(root, std::string(ExtensionLoader::folder) + "LYR_Pro.dylib");
    if (extension.empty())
        fs::remove(library);
    else
        fs::copy_file(extension, library, fs::copy_options::overwrite_existing);
}

/// Other extensions are only looked for by name, so a file of that name is all there is of them.
void placeOtherExtension(const fs::path& root, const std::string& name, bool isInstalled)
{
    fs::path library = under(root, std::string(ExtensionLoader::folder) + name + ".dylib");
    fs::create_directories(library.parent_path());
    if (!isInstalled)
        fs::remove(library);
    else if (!fs::exists(library))
        std::ofstream(library) << name << '\n';
}

/// What the user has, and no package brings.
void placeHome(const Control::ShellStart& start)
{
    const fs::path root = start.root;
    const bool hasWallpaper = fs::exists(under(root, Control::wallpaperPath));
    copyMissing(shareFolder() / "System/var", root / "var");
    const auto wallpaper = start.parameters.find("wallpaper");
    if (!hasWallpaper && wallpaper != start.parameters.end() && wallpaper->is_null())
        fs::remove(under(root, Control::wallpaperPath));
}

/// The extension and its files, as they come along. Each start takes the library that the program was built with.
void placeProduct(const Control::ShellStart& start)
{
    const fs::path system = shareFolder() / "System";
    if (start.isFirst)
        copyMissing(system / "Library", fs::path(start.root) / "Library");
    fs::copy(under(system, ExtensionLoader::folder), under(start.root, ExtensionLoader::folder),
        fs::copy_options::overwrite_existing);
}

}

void installFactoryContent(const Control::ShellStart& start, const std::string& extension)
{
    const fs::path root = start.root;
    const auto package = start.parameters.find("package");
    if (start.isFirst)
        placeHome(start);
    if (package == start.parameters.end())
        placeProduct(start);
    else if (start.isFirst)
        installPackage(package->get<std::string>());
    if (package == start.parameters.end() || !extension.empty())
        placeExtension(root, extension);
    const auto installed = start.parameters.value("installed", std::vector<std::string>());
    for (const std::string name : {"AFont", "LastLook"})
        placeOtherExtension(root, name, std::count(installed.begin(), installed.end(), name) > 0);
}

fs::path symbolFolder()
{
    return shareFolder() / "Symbols";
}

fs::path glyphFolder()
{
    return shareFolder() / "Weather";
}

fs::path pageFolder()
{
    return shareFolder() / "Preview";
}

}
