#pragma once
#include <string>
#include "host/kernel/Journal.h"
#include "platform/loaders/DataLoaderInterface.h"

namespace orrery {
namespace kernel {

// Data sets read as part of a session: each load is journalled with what the
// file held, so that a replay can tell whether it reads the same data.
class FileLoad
{
public:
    // The file's size and SHA-256. False, with error naming the file, when it
    // cannot be read.
    static bool fingerprint(const std::string& path, Journal::FileRecord& file, std::string& error);
    // Reads path (a native file name) with loader and journals the load under the
    // file's absolute name. False, with error, when the file cannot be read;
    // the data set is then unchanged and nothing is journalled.
    static bool load(sdk::DataLoaderInterface& loader, const std::string& path, std::string& error);
    // One of the built-in sample data sets (see SampleDataSet), journalled by
    // name; title replaces the sample's own when given. Throws
    // std::invalid_argument for an unknown name.
    static void loadSample(const std::string& name, const std::string& title = std::string());
};

} // namespace kernel
} // namespace orrery
