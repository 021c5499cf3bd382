#include "platform/loaders/FileBlockReader.h"
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include "platform/loaders/TextExcerpt.h"

namespace orrery {
namespace sdk {

FileBlockReader::~FileBlockReader()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

std::string FileBlockReader::failure(const char* what, int code) const
{
    return std::string(what) + " " + m_displayName + ": " + std::strerror(code) + ".";
}

std::string FileBlockReader::displayName(const std::string& path)
{
    return TextExcerpt::printable(path.substr(path.find_last_of('/') + 1));
}

bool FileBlockReader::open(const std::string& path, std::string& error)
{
    m_displayName = displayName(path);
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        error = failure("Cannot open", errno);
        return false;
    }
    if (S_ISDIR(status.st_mode)) {
        error = "Cannot read " + m_displayName + ": it is a folder, not a file.";
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        error = "Cannot read " + m_displayName + ": it is not a regular file.";
        return false;
    }
    // O_NONBLOCK: should the name be swapped for a pipe after the check, open does not wait for a writer.
    m_fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (m_fd < 0) {
        error = failure("Cannot open", errno);
        return false;
    }
    if (::fstat(m_fd, &status) != 0 || !S_ISREG(status.st_mode)) {
        error = "Cannot read " + m_displayName + ": it is not a regular file.";
        return false;
    }
    m_size = status.st_size;
    return true;
}

bool FileBlockReader::read(char* buffer, size_t capacity, size_t& got, std::string& error)
{
    for (;;) {
        const ssize_t n = ::read(m_fd, buffer, capacity);
        if (n >= 0) {
            got = static_cast<size_t>(n);
            return true;
        }
        if (errno != EINTR) {
            error = failure("Cannot read", errno);
            return false;
        }
    }
}

bool FileBlockReader::rewind(std::string& error)
{
    if (::lseek(m_fd, 0, SEEK_SET) != 0) {
        error = failure("Cannot read", errno);
        return false;
    }
    return true;
}

bool FileBlockReader::countLines(size_t& lines, std::string& error)
{
    const std::unique_ptr<char[]> block(new char[BlockSize]);
    lines = 0;
    for (size_t got = 0;;) {
        if (!read(block.get(), BlockSize, got, error))
            return false;
        if (got == 0)
            break;
        lines += static_cast<size_t>(std::count(block.get(), block.get() + got, '\n'));
    }
    return rewind(error);
}

} // namespace sdk
} // namespace orrery
