#include "host/loaders/FileBlockReader.h"
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>
#ifdef __SSE2__
#include <emmintrin.h>
#endif
#include "host/loaders/TextExcerpt.h"

namespace orrery {
namespace sdk {

namespace {

thread_local const FileBlockReader::Claim* t_claim = nullptr;

// What a file that is not a regular file on a disk is, for the message that refuses it.
const char* oddKind(const struct stat& status)
{
    if (S_ISDIR(status.st_mode))
        return "a folder";
    if (S_ISFIFO(status.st_mode))
        return "a named pipe";
    if (S_ISCHR(status.st_mode) || S_ISBLK(status.st_mode))
        return "a device";
    if (S_ISSOCK(status.st_mode))
        return "a socket";
    return "something other than a regular file";
}

// The kernel's own file systems: their files claim a size of 0 or 4096 and may
// hand out bytes without end (/proc/self/pagemap), so they are never data.
bool onSystemFileSystem(int fd)
{
    struct statfs info
    {};
    if (::fstatfs(fd, &info) != 0)
        return false;
    constexpr long proc = 0x9fa0, sysfs = 0x62656572, debugfs = 0x64626720, tracefs = 0x74726163,
                   securityfs = 0x73636673, cgroup = 0x27e0eb, cgroup2 = 0x63677270;
    const long type = static_cast<long>(info.f_type);
    return type == proc || type == sysfs || type == debugfs || type == tracefs || type == securityfs || type == cgroup
           || type == cgroup2;
}

} // namespace

FileBlockReader::Claim::Claim(const FileBlockReader& file, const std::string& path)
    : m_file(file), m_path(path), m_outer(t_claim)
{
    t_claim = this;
}

FileBlockReader::Claim::~Claim()
{
    t_claim = m_outer;
}

namespace {

// Counting line breaks reads the whole file once more before loading it, so it
// runs 16 bytes at a time where the processor allows.
// Line ends as the tokenizer sees them: LF, CRLF and a lone CR each end a line.
// A CR that ends the block counts now; afterCR tells the next block so that
// an LF it starts with is not counted again.
size_t countLineBreaks(const char* text, size_t size, bool& quotes, bool& afterCR)
{
    size_t count = 0;
    size_t done = 0;
    if (size > 0 && afterCR && text[0] == '\n')
        done = 1;
#ifdef __SSE2__
    const __m128i lineFeed = _mm_set1_epi8('\n');
    const __m128i carriageReturn = _mm_set1_epi8('\r');
    const __m128i quote = _mm_set1_epi8('"');
    __m128i quoteSeen = _mm_setzero_si128();
    // Each vector also looks at the byte after it, to tell CRLF from a lone CR.
    while (size - done >= 17) {
        // Each match subtracts -1 from its byte's tally; 127 rounds of at most two matches before a byte could wrap.
        __m128i tally = _mm_setzero_si128();
        for (int round = 0; round < 127 && size - done >= 17; ++round, done += 16) {
            const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + done));
            const __m128i next = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + done + 1));
            const __m128i loneCR =
                _mm_andnot_si128(_mm_cmpeq_epi8(next, lineFeed), _mm_cmpeq_epi8(bytes, carriageReturn));
            tally = _mm_sub_epi8(tally, _mm_cmpeq_epi8(bytes, lineFeed));
            tally = _mm_sub_epi8(tally, loneCR);
            quoteSeen = _mm_or_si128(quoteSeen, _mm_cmpeq_epi8(bytes, quote));
        }
        const __m128i sums = _mm_sad_epu8(tally, _mm_setzero_si128());
        count += static_cast<size_t>(_mm_cvtsi128_si32(sums)) + static_cast<size_t>(_mm_extract_epi16(sums, 4));
    }
    quotes = quotes || _mm_movemask_epi8(quoteSeen) != 0;
#endif
    for (; done < size; ++done) {
        const char c = text[done];
        quotes = quotes || c == '"';
        count += c == '\n' || (c == '\r' && (done + 1 == size || text[done + 1] != '\n'));
    }
    afterCR = size > 0 && text[size - 1] == '\r';
    return count;
}

} // namespace

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

bool FileBlockReader::refuse(const std::string& why, std::string& error)
{
    error = "Cannot read " + m_displayName + ": " + why;
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
    return false;
}

bool FileBlockReader::open(const std::string& path, std::string& error)
{
    m_displayName = displayName(path);
    m_missing = false;
    if (path.find('\0') != std::string::npos)
        return refuse("its name holds a NUL byte.", error);
    for (const Claim* claim = t_claim; claim; claim = claim->m_outer)
        if (claim->m_path == path)
            return share(claim->m_file, 0, ToEnd, error);
    struct stat status
    {};
    if (::stat(path.c_str(), &status) != 0) {
        m_missing = errno == ENOENT;
        error = failure("Cannot open", errno);
        return false;
    }
    if (!S_ISREG(status.st_mode))
        return refuse(std::string("it is ") + oddKind(status) + ", not a file of data.", error);
    // O_NONBLOCK: should the name be swapped for a pipe after the check, open does not wait for a writer.
    m_fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (m_fd < 0) {
        error = failure("Cannot open", errno);
        return false;
    }
    if (::fstat(m_fd, &status) != 0 || !S_ISREG(status.st_mode))
        return refuse(std::string("it is ") + oddKind(status) + ", not a file of data.", error);
    if (onSystemFileSystem(m_fd))
        return refuse("it is a file of the operating system, not a file of data.", error);
    m_size = status.st_size;
    return true;
}

bool FileBlockReader::share(const FileBlockReader& other, long long begin, long long end, std::string& error)
{
    m_displayName = other.m_displayName;
    m_fd = ::fcntl(other.m_fd, F_DUPFD_CLOEXEC, 0);
    if (m_fd < 0) {
        error = failure("Cannot read", errno);
        return false;
    }
    m_size = other.m_size;
    m_begin = m_offset = begin;
    m_end = end;
    return true;
}

bool FileBlockReader::readAt(long long at, char* buffer, size_t capacity, size_t& got, std::string& error) const
{
    // Bytes appended after the file was opened are not part of this load.
    capacity = static_cast<size_t>(std::max(0LL, std::min<long long>(static_cast<long long>(capacity), m_size - at)));
    if (capacity == 0) {
        got = 0;
        return true;
    }
    for (;;) {
        const ssize_t n = ::pread(m_fd, buffer, capacity, at);
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

bool FileBlockReader::read(char* buffer, size_t capacity, size_t& got, std::string& error)
{
    if (m_end != ToEnd)
        capacity =
            static_cast<size_t>(std::max(0LL, std::min<long long>(static_cast<long long>(capacity), m_end - m_offset)));
    got = 0;
    if (capacity > 0 && !readAt(m_offset, buffer, capacity, got, error))
        return false;
    m_offset += static_cast<long long>(got);
    if (got > 0 && m_blockHook && !m_blockHook(m_offset)) {
        error = "Loading " + m_displayName + " was cancelled.";
        return false;
    }
    return true;
}

bool FileBlockReader::countLines(long long begin, long long end, size_t& lines, bool& quotes, std::string& error) const
{
    const std::unique_ptr<char[]> block(new char[BlockSize]);
    lines = 0;
    quotes = false;
    bool afterCR = false;
    for (long long at = begin; end == ToEnd || at < end;) {
        size_t got = 0;
        const size_t wanted = end == ToEnd ? BlockSize : static_cast<size_t>(std::min<long long>(BlockSize, end - at));
        if (!readAt(at, block.get(), wanted, got, error))
            return false;
        if (got == 0)
            break;
        lines += countLineBreaks(block.get(), got, quotes, afterCR);
        at += static_cast<long long>(got);
    }
    return true;
}

bool FileBlockReader::lineStartAfter(long long from, long long& start, std::string& error) const
{
    char block[4096];
    for (long long at = from;;) {
        size_t got = 0;
        if (!readAt(at, block, sizeof block, got, error))
            return false;
        const void* lineBreak = std::memchr(block, '\n', got);
        if (got == 0 || lineBreak) {
            start = got == 0 ? std::max(at, from) : at + (static_cast<const char*>(lineBreak) - block) + 1;
            return true;
        }
        at += static_cast<long long>(got);
    }
}

} // namespace sdk
} // namespace orrery
