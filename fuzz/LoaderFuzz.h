#pragma once
// One harness body for every data loader: the input is written to a file and
// loaded over a known data set. A failed load must say why and leave that data
// set exactly as it was; a successful one must leave a consistent data set.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <unistd.h>
#include <QCoreApplication>

#include "fuzz/FuzzCheck.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/KernelDriver.h"
#include "platform/loaders/DataLoaderRepository.h"

namespace loaderfuzz {

using orrery::kernel::DataSet;
using orrery::kernel::Kernel;

// Everything a data set holds, as text, for before/after comparison.
inline std::string fingerprint(const DataSet& data)
{
    std::ostringstream out;
    out.precision(17);
    out << data.title() << '\n' << data.numVars() << ' ' << data.numZones() << '\n';
    for (int v = 1; v <= data.numVars(); ++v)
        out << data.varName(v) << '\n';
    for (int z = 1; z <= data.numZones(); ++z) {
        out << data.zoneName(z) << ' ' << data.pointCount(z) << '\n';
        for (int v = 1; v <= data.numVars(); ++v)
            for (double value : data.values(z, v))
                out << value << ' ';
        out << '\n';
    }
    return out.str();
}

class Harness
{
public:
    Harness(const char* loaderName, const char* extension)
    {
        static int argc = 1;
        static char name[] = "loader-fuzz";
        static char* argv[] = {name, nullptr};
        if (!QCoreApplication::instance())
            new QCoreApplication(argc, argv);
        m_loader = orrery::sdk::DataLoaderRepository::getInstance().loaderNamed(loaderName);
        FUZZ_CHECK(m_loader, "no loader named %s", loaderName);
        char folder[] = "/tmp/orrery-loader-fuzz-XXXXXX";
        FUZZ_CHECK(mkdtemp(folder) != nullptr, "cannot make a scratch folder");
        m_folder = folder;
        m_path = m_folder + "/input." + extension;
        orrery::kernel::KernelDriver::loadSampleDataSet("Small");
        m_known = fingerprint(Kernel::instance().dataSet());
    }
    ~Harness()
    {
        std::remove(m_path.c_str());
        rmdir(m_folder.c_str());
    }

    void run(const uint8_t* data, size_t size)
    {
        FILE* file = std::fopen(m_path.c_str(), "wb");
        FUZZ_CHECK(file, "cannot write %s", m_path.c_str());
        FUZZ_CHECK(std::fwrite(data, 1, size, file) == size, "short write");
        std::fclose(file);

        std::string error;
        const bool loaded = m_loader->load(m_path, error);
        const DataSet& now = Kernel::instance().dataSet();
        if (!loaded) {
            FUZZ_CHECK(!error.empty(), "a failed load gave no reason");
            FUZZ_CHECK(fingerprint(now) == m_known, "a failed load changed the data set (%s)", error.c_str());
            return;
        }
        // Every zone holds one equally long row per variable (fingerprint reads them all).
        FUZZ_CHECK(now.isAvailable(), "a successful load left no data set");
        fingerprint(now);
        for (int z = 1; z <= now.numZones(); ++z)
            for (int v = 1; v <= now.numVars(); ++v)
                FUZZ_CHECK(now.values(z, v).size() == now.pointCount(z), "zone %d var %d is ragged", z, v);
        // Back to the known data set for the next input.
        orrery::kernel::KernelDriver::loadSampleDataSet("Small");
    }

private:
    orrery::sdk::DataLoaderRepository::LoaderPtr m_loader;
    std::string m_folder;
    std::string m_path;
    std::string m_known;
};

} // namespace loaderfuzz
