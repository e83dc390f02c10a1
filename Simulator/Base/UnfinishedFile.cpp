// Its name is the process's own, so that two that write the same file do not meet.
#include "Simulator/Base/UnfinishedFile.hpp"

#include <cerrno>

#include <fcntl.h>

namespace Simulator {

UnfinishedFile::UnfinishedFile(std::filesystem::path place)
    : _place(std::move(place))
{
    for (int number = 0; !_file && (number == 0 || errno == EEXIST); ++number) {
        _name = _place.parent_path() / (".lyr-" + std::to_string(::getpid()) + "-" + std::to_string(number));
        _file = Descriptor(::open(_name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    }
}

UnfinishedFile::~UnfinishedFile()
{
    if (_file)
        ::unlink(_name.c_str());
}

int UnfinishedFile::takePlace()
{
    std::error_code error;
    std::filesystem::rename(_name, _place, error);
    if (!error)
        _file.close();
    return error.value();
}

}
