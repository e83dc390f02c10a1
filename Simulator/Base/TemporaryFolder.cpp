// Made under a name of its own, and removed with all that is in it.
#include "Simulator/Base/TemporaryFolder.hpp"

#include <cstdlib>
#include <system_error>

namespace Simulator {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder(const std::string& name)
{
    std::string path = (fs::temp_directory_path() / (name + "-XXXXXX")).string();
    if (!::mkdtemp(path.data()))
        throw std::system_error(errno, std::generic_category(), "cannot make the folder " + path);
    m_path = path;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

}
