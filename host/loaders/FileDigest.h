#pragma once
#include <atomic>
#include <cstdint>
#include <string>
#include <thread>
#include "host/loaders/FileBlockReader.h"

namespace orrery {
namespace sdk {

// The SHA-256 of a file a reader holds open, taken on a thread of its own
// while the file is loaded, so that naming the bytes a data set came from
// costs the load next to no time. Hashed with libcrypto, which uses the
// processor's SHA instructions where it has them.
class FileDigest
{
public:
    FileDigest() = default;
    ~FileDigest();
    FileDigest(const FileDigest&) = delete;
    FileDigest& operator=(const FileDigest&) = delete;

    // Starts hashing the bytes [0, file.size()) of file. False with error set
    // when the file cannot be shared.
    bool start(const FileBlockReader& file, std::string& error);
    // Waits for the digest: lower-case hex. False with error set when the file
    // could not be read.
    bool result(std::string& sha256, std::string& error);

private:
    void run();
    void stop();

    FileBlockReader m_file;
    std::thread m_thread;
    std::atomic<bool> m_stopping{false};
    bool m_done = false;
    bool m_ok = false;
    std::string m_sha256;
    std::string m_error;
};

} // namespace sdk
} // namespace orrery
