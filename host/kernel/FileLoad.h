#pragma once
#include <functional>
#include <string>
#include "host/kernel/Journal.h"
#include "platform/loaders/DataLoaderInterface.h"

namespace orrery {
namespace kernel {

// Data sets read as part of a session: each load is journalled with what the
// file held, so that a replay can tell whether it reads the same data. The file
// is opened once: the loader reads the file FileLoad opened and checked, while
// a second thread takes its SHA-256 from the same open file.
class FileLoad
{
public:
    // What a session recorded of a file it loads again.
    struct Expected
    {
        std::uint64_t size = 0;
        std::string sha256;
        // Asked, with why naming both sizes or the changed content, when the
        // file is not what was recorded; true loads it anyway. Unset: refused.
        std::function<bool(const std::string& why)> acceptChanged;
    };

    // Reads path (a native file name) with loader and journals the load under the
    // file's absolute name. False, with error, when the file cannot be read or,
    // with expected, is not the file recorded (the size is compared before any
    // byte is read); the data set is then unchanged and nothing is journalled.
    static bool load(sdk::DataLoaderInterface& loader, const std::string& path, std::string& error,
                     const Expected* expected = nullptr);
    // Why a file of size bytes is not the one recorded (size and digest as recorded).
    static std::string changedText(const std::string& path, std::uint64_t recordedSize, std::uint64_t size);
    // One of the built-in sample data sets (see SampleDataSet), journalled by
    // name; title replaces the sample's own when given. Throws
    // std::invalid_argument for an unknown name.
    static void loadSample(const std::string& name, const std::string& title = std::string());
};

} // namespace kernel
} // namespace orrery
