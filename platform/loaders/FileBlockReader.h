#pragma once
#include <cstddef>
#include <string>

namespace orrery {
namespace sdk {

// Reads a regular file in blocks, by its native (byte) name, so that a name
// that is not valid UTF-8 still opens. Folders, pipes and devices are refused
// before anything is read from them, so that a load never blocks.
class FileBlockReader
{
public:
    FileBlockReader() = default;
    ~FileBlockReader();
    FileBlockReader(const FileBlockReader&) = delete;
    FileBlockReader& operator=(const FileBlockReader&) = delete;

    // False with error set when the path is not a readable regular file.
    bool open(const std::string& path, std::string& error);
    // Up to capacity bytes into buffer; got is 0 at the end of the file.
    bool read(char* buffer, size_t capacity, size_t& got, std::string& error);
    // Back to the first byte.
    bool rewind(std::string& error);
    // Line breaks in the whole file, an upper bound of its rows; leaves the
    // reader at the first byte.
    bool countLines(size_t& lines, std::string& error);
    long long size() const { return m_size; }

    // The file's name as messages show it, without its folder.
    const std::string& displayName() const { return m_displayName; }
    static std::string displayName(const std::string& path);

    static constexpr size_t BlockSize = 1 << 20;

private:
    std::string failure(const char* what, int code) const;

    int m_fd = -1;
    long long m_size = 0;
    std::string m_displayName;
};

} // namespace sdk
} // namespace orrery
