// A table read in two parts by two threads must come out exactly as read in
// one: the same verdict, the same message, the same data set. The first byte
// chooses the CSV or the text table loader; the rest is the file. Every file
// is split, however short, so that the two-part read meets every shape.
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <unistd.h>
#include <QCoreApplication>

#include "fuzz/LoaderFuzz.h"
#include "host/loaders/CsvDataLoader.h"
#include "host/loaders/TextTableDataLoader.h"

using orrery::kernel::Kernel;
using orrery::sdk::DelimitedTableLoader;

namespace {

struct Loaders
{
    Loaders()
    {
        static int argc = 1;
        static char name[] = "table-parts-fuzz";
        static char* argv[] = {name, nullptr};
        if (!QCoreApplication::instance())
            new QCoreApplication(argc, argv);
        char folder[] = "/tmp/orrery-table-parts-XXXXXX";
        FUZZ_CHECK(mkdtemp(folder) != nullptr, "cannot make a scratch folder");
        path = std::string(folder) + "/input.csv";
        for (int kind = 0; kind < 2; ++kind) {
            onePart[kind]->readInTwoPartsFrom(std::numeric_limits<long long>::max());
            twoParts[kind]->readInTwoPartsFrom(1);
        }
        orrery::kernel::KernelDriver::loadSampleDataSet("Small");
    }

    std::string path;
    orrery::sdk::CsvDataLoader csvOne, csvTwo;
    orrery::sdk::TextTableDataLoader textOne, textTwo;
    DelimitedTableLoader* onePart[2] = {&csvOne, &textOne};
    DelimitedTableLoader* twoParts[2] = {&csvTwo, &textTwo};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static Loaders loaders;
    if (size < 1)
        return 0;
    const int kind = data[0] & 1;
    FILE* file = std::fopen(loaders.path.c_str(), "wb");
    FUZZ_CHECK(file, "cannot write %s", loaders.path.c_str());
    FUZZ_CHECK(std::fwrite(data + 1, 1, size - 1, file) == size - 1, "short write");
    std::fclose(file);

    std::string oneError, twoError;
    const bool oneLoaded = loaders.onePart[kind]->load(loaders.path, oneError);
    const std::string one = loaderfuzz::fingerprint(Kernel::instance().dataSet());
    orrery::kernel::KernelDriver::loadSampleDataSet("Small");
    const bool twoLoaded = loaders.twoParts[kind]->load(loaders.path, twoError);
    const std::string two = loaderfuzz::fingerprint(Kernel::instance().dataSet());
    orrery::kernel::KernelDriver::loadSampleDataSet("Small");

    FUZZ_CHECK(oneLoaded == twoLoaded, "one part %s (%s), two parts %s (%s)", oneLoaded ? "loaded" : "failed",
               oneError.c_str(), twoLoaded ? "loaded" : "failed", twoError.c_str());
    FUZZ_CHECK(oneError == twoError, "one part: %s\ntwo parts: %s", oneError.c_str(), twoError.c_str());
    FUZZ_CHECK(one == two, "the data sets differ:\n%s\n--\n%s", one.c_str(), two.c_str());
    if (oneLoaded)
        FUZZ_CHECK(loaders.onePart[kind]->lastLoadSummary() == loaders.twoParts[kind]->lastLoadSummary(),
                   "summaries differ");
    return 0;
}
