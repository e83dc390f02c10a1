// Memory that two processes map.
#include "Simulator/Control/SharedFrame.hpp"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace Simulator::Control {

namespace {

[[noreturn]] void fail(const std::string& what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

std::size_t byteCount(int width, int height)
{
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4;
}

}

SharedFrame::SharedFrame()
    : m_file(memfd_create("lyr-frame", MFD_CLOEXEC))
{
    if (!m_file)
        fail("cannot make memory for the picture of the screen");
    m_path = "/proc/" + std::to_string(getpid()) + "/fd/" + std::to_string(m_file.number());
}

SharedFrame::SharedFrame(const std::string& path)
    : m_path(path)
    , m_file(open(path.c_str(), O_RDWR | O_CLOEXEC))
{
    if (!m_file)
        fail("cannot open the shared frame " + path);
}

SharedFrame::~SharedFrame()
{
    unmap();
}

void SharedFrame::unmap()
{
    if (m_pixels)
        munmap(m_pixels, byteCount(m_width, m_height));
    m_pixels = nullptr;
}

bool SharedFrame::resize(int width, int height)
{
    if (m_pixels && width == m_width && height == m_height)
        return false;
    unmap();
    struct stat status { };
    const auto wanted = static_cast<off_t>(byteCount(width, height));
    // It only grows: a mapping of the other process stays good until that learns of the new size.
    if (fstat(m_file.number(), &status) != 0 || (status.st_size < wanted && ftruncate(m_file.number(), wanted) != 0))
        fail("cannot make the shared frame larger");
    void* memory = mmap(nullptr, byteCount(width, height), PROT_READ | PROT_WRITE, MAP_SHARED, m_file.number(), 0);
    if (memory == MAP_FAILED)
        fail("cannot map the shared frame");
    m_pixels = static_cast<std::uint8_t*>(memory);
    m_width = width;
    m_height = height;
    return true;
}

SharedFrame::Part SharedFrame::tile(std::size_t index) const
{
    const int across = tilesAcross();
    const int x = static_cast<int>(index) % across * tileSide;
    const int y = static_cast<int>(index) / across * tileSide;
    return {x, y, std::min(tileSide, m_width - x), std::min(tileSide, m_height - y)};
}

}
