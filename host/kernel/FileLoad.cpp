#include "host/kernel/FileLoad.h"
#include <filesystem>
#include "host/kernel/Kernel.h"
#include "host/kernel/SampleDataSet.h"
#include "host/loaders/FileBlockReader.h"
#include "host/loaders/FileDigest.h"

namespace orrery {
namespace kernel {

namespace {

// Keeps a gate on the kernel's data set for one load.
class GateScope
{
public:
    explicit GateScope(Kernel::DataSetGate gate) : m_previous(Kernel::instance().setDataSetGate(std::move(gate))) {}
    ~GateScope() { Kernel::instance().setDataSetGate(std::move(m_previous)); }
    GateScope(const GateScope&) = delete;
    GateScope& operator=(const GateScope&) = delete;

private:
    Kernel::DataSetGate m_previous;
};

bool accepted(const FileLoad::Expected& expected, const std::string& why)
{
    return expected.acceptChanged && expected.acceptChanged(why);
}

} // namespace

std::string FileLoad::changedText(const std::string& path, std::uint64_t recordedSize, std::uint64_t size)
{
    const std::string sizes = recordedSize == size
                                  ? std::to_string(size) + " bytes then and now, other content"
                                  : std::to_string(recordedSize) + " bytes then, " + std::to_string(size) + " now";
    return "the data file " + path + " has changed since the session was recorded (" + sizes + ").";
}

bool FileLoad::load(sdk::DataLoaderInterface& loader, const std::string& path, std::string& error,
                    const Expected* expected)
{
    sdk::FileBlockReader file;
    if (!file.open(path, error))
        return false;
    Journal::FileRecord record;
    record.size = static_cast<std::uint64_t>(file.size());
    if (expected && record.size != expected->size) {
        const std::string why = changedText(path, expected->size, record.size);
        if (!accepted(*expected, why)) {
            error = why;
            return false;
        }
        expected = nullptr; // accepted as it is
    }
    sdk::FileDigest digest;
    if (!digest.start(file, error))
        return false;
    // The data set replaces the current one only once the bytes it came from are known.
    std::string refusal;
    bool checked = false;
    const auto check = [&] {
        checked = true;
        if (!digest.result(record.sha256, refusal))
            return false;
        if (expected && record.sha256 != expected->sha256) {
            const std::string why = changedText(path, expected->size, record.size);
            if (!accepted(*expected, why)) {
                refusal = why;
                return false;
            }
        }
        return true;
    };
    {
        const GateScope gate(check);
        const sdk::FileBlockReader::Claim claim(file, path);
        if (!loader.load(path, error))
            return false;
    }
    if (!checked) // a loader that left the data set as it was: the journal still names the bytes
        check();
    if (!refusal.empty()) {
        error = refusal;
        return false;
    }
    std::error_code failed;
    record.path = std::filesystem::absolute(path, failed).lexically_normal().string();
    if (failed)
        record.path = path;
    record.loader = loader.properties().name;
    Kernel::instance().journal().recordLoad(record);
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
