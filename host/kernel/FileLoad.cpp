#include "host/kernel/FileLoad.h"
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <vector>
#include <QCryptographicHash>
#include "host/kernel/Kernel.h"
#include "host/kernel/SampleDataSet.h"

namespace orrery {
namespace kernel {

bool FileLoad::fingerprint(const std::string& path, Journal::FileRecord& file, std::string& error)
{
    std::ifstream in(path, std::ios::binary);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    std::vector<char> block(1 << 20);
    file.size = 0;
    while (in) {
        in.read(block.data(), std::streamsize(block.size()));
        const std::streamsize got = in.gcount();
        hash.addData(QByteArray::fromRawData(block.data(), int(got)));
        file.size += std::uint64_t(got);
    }
    if (!in.eof()) {
        error = "Cannot read " + path + ": " + std::strerror(errno);
        return false;
    }
    file.sha256 = hash.result().toHex().toStdString();
    return true;
}

bool FileLoad::load(sdk::DataLoaderInterface& loader, const std::string& path, std::string& error)
{
    Journal::FileRecord file;
    std::error_code failed;
    file.path = std::filesystem::absolute(path, failed).lexically_normal().string();
    if (failed)
        file.path = path;
    file.loader = loader.properties().name;
    // Read before the load so that the journal names the bytes the data set came from.
    if (!fingerprint(path, file, error) || !loader.load(path, error))
        return false;
    Kernel::instance().journal().recordLoad(file);
    return true;
}

void FileLoad::loadSample(const std::string& name, const std::string& title)
{
    DataSet sample = SampleDataSet::make(name);
    if (!title.empty())
        sample.setTitle(title);
    Kernel::instance().setDataSet(std::move(sample));
    Kernel::instance().journal().recordSample(name);
}

} // namespace kernel
} // namespace orrery
