#include "host/loaders/FileDigest.h"
#include <memory>
#include <system_error>
#include <openssl/evp.h>

namespace orrery {
namespace sdk {

namespace {

std::string hex(const unsigned char* bytes, unsigned int size)
{
    static const char digits[] = "0123456789abcdef";
    std::string text;
    text.reserve(size * 2);
    for (unsigned int i = 0; i < size; ++i) {
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 15];
    }
    return text;
}

struct ContextFree
{
    void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};
typedef std::unique_ptr<EVP_MD_CTX, ContextFree> Context;

Context sha256Context()
{
    Context context(EVP_MD_CTX_new());
    if (!context || EVP_DigestInit_ex(context.get(), EVP_sha256(), nullptr) != 1)
        throw std::runtime_error("SHA-256 is not available.");
    return context;
}

std::string finish(EVP_MD_CTX* context)
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int size = 0;
    if (EVP_DigestFinal_ex(context, digest, &size) != 1)
        throw std::runtime_error("SHA-256 failed.");
    return hex(digest, size);
}

} // namespace

FileDigest::~FileDigest()
{
    stop();
}

void FileDigest::stop()
{
    m_stopping = true;
    if (m_thread.joinable())
        m_thread.join();
}

bool FileDigest::start(const FileBlockReader& file, std::string& error)
{
    if (!m_file.share(file, 0, file.size(), error))
        return false;
    try {
        m_thread = std::thread([this] { run(); });
    } catch (const std::system_error&) { // no thread to be had: hashed when the result is asked for
    }
    return true;
}

void FileDigest::run()
{
    try {
        const Context context = sha256Context();
        const std::unique_ptr<char[]> block(new char[FileBlockReader::BlockSize]);
        for (size_t got = 1; got > 0 && !m_stopping;) {
            if (!m_file.read(block.get(), FileBlockReader::BlockSize, got, m_error))
                return;
            if (EVP_DigestUpdate(context.get(), block.get(), got) != 1)
                throw std::runtime_error("SHA-256 failed.");
        }
        if (m_stopping) {
            m_error = "Reading " + m_file.displayName() + " was stopped.";
            return;
        }
        m_sha256 = finish(context.get());
        m_ok = true;
    } catch (const std::exception& e) {
        m_error = "Cannot hash " + m_file.displayName() + ": " + e.what();
    }
}

bool FileDigest::result(std::string& sha256, std::string& error)
{
    if (!m_done) {
        if (m_thread.joinable())
            m_thread.join();
        else
            run();
        m_done = true;
    }
    sha256 = m_sha256;
    if (!m_ok)
        error = m_error;
    return m_ok;
}

} // namespace sdk
} // namespace orrery
