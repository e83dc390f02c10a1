// Its name is the process's own, so that two that write the same file do not meet.
#include "Simulator/Base/UnfinishedFile.hpp"

#include <cerrno>

#include <fcntl.h>

namespace Simulator {

UnfinishedFile::UnfinishedFile(std::filesystem::path place)
    : m_place(std::move(place))
{
    for (int number = 0; !m_file && (number == 0 || errno == EEXIST); ++number) {
        m_name = m_place.parent_path() / (".lyr-" + std::to_string(::getpid()) + "-" + std::to_string(number));
        m_file = Descriptor(::open(m_name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    }
}

UnfinishedFile::~UnfinishedFile()
{
    if (m_file)
        ::unlink(m_name.c_str());
}

int UnfinishedFile::takePlace()
{
    std::error_code error;
    std::filesystem::rename(m_name, m_place, error);
    if (!error)
        m_file.close();
    return error.value();
}

}
