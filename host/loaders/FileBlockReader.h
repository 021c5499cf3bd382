#pragma once
#include <cstddef>
#include <functional>
#include <string>

namespace orrery {
namespace sdk {

// Reads a regular file in blocks, by its native (byte) name, so that a name
// that is not valid UTF-8 still opens. Folders, pipes, devices and the
// kernel's own files (/proc, /sys) are refused before anything is read from
// them, so that a load never blocks, and no read goes past the size the file
// had when it was opened. Readers that share a file each read their own part of it.
class FileBlockReader
{
public:
    static constexpr long long ToEnd = -1;

    // While a claim lives, opening its path on the same thread reads the file
    // the claim holds open instead of opening the name again: a caller that
    // checks and hashes a file before a loader reads it knows the loader reads
    // the very same bytes.
    class Claim
    {
    public:
        Claim(const FileBlockReader& file, const std::string& path);
        ~Claim();
        Claim(const Claim&) = delete;
        Claim& operator=(const Claim&) = delete;

    private:
        friend class FileBlockReader;
        const FileBlockReader& m_file;
        const std::string m_path;
        const Claim* m_outer;
    };

    FileBlockReader() = default;
    ~FileBlockReader();
    FileBlockReader(const FileBlockReader&) = delete;
    FileBlockReader& operator=(const FileBlockReader&) = delete;

    // False with error set when the path is not a readable regular file;
    // missing() then tells whether nothing of that name exists.
    bool open(const std::string& path, std::string& error);
    bool missing() const { return m_missing; }
    // Reads the bytes [begin, end) of the file other has open.
    bool share(const FileBlockReader& other, long long begin, long long end, std::string& error);
    // Called with the offset reached after each block read() hands out;
    // returning false cancels the read.
    typedef std::function<bool(long long offset)> BlockHook;
    void setBlockHook(BlockHook hook) { m_blockHook = std::move(hook); }
    // Up to capacity bytes into buffer; got is 0 at the end of the file or
    // part. False with error set on a read error or a cancelled read.
    bool read(char* buffer, size_t capacity, size_t& got, std::string& error);
    // Back to the first byte of the part.
    void rewind() { m_offset = m_begin; }
    // Later reads stop at end.
    void endAt(long long end) { m_end = end; }
    long long end() const { return m_end; }
    // Where the next read starts.
    long long offset() const { return m_offset; }
    // Line ends (LF, CRLF or a lone CR) in [begin, end), an upper bound of the rows there, and
    // whether a quote occurs there; reads nothing for read().
    bool countLines(long long begin, long long end, size_t& lines, bool& quotes, std::string& error) const;
    // Where the first line starting at or after from begins; size() if none does.
    bool lineStartAfter(long long from, long long& start, std::string& error) const;
    long long size() const { return m_size; }

    // The file's name as messages show it, without its folder.
    const std::string& displayName() const { return m_displayName; }
    static std::string displayName(const std::string& path);

    static constexpr size_t BlockSize = 1 << 20;

private:
    bool readAt(long long at, char* buffer, size_t capacity, size_t& got, std::string& error) const;
    std::string failure(const char* what, int code) const;

    bool refuse(const std::string& why, std::string& error);

    int m_fd = -1;
    bool m_missing = false;
    long long m_size = 0;
    long long m_begin = 0;
    long long m_offset = 0;
    long long m_end = ToEnd;
    std::string m_displayName;
    BlockHook m_blockHook;
};

} // namespace sdk
} // namespace orrery
