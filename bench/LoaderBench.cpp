// Loading a generated CSV file (with one thread, and as the host does, two on
// long files; and as the demo does, through FileLoad with the file's size and
// SHA-256 taken and journalled, and as a replay does, checked against them)
// beside a plain read of the same file into
// memory and beside a naive line-splitting loader, with the peak of allocated memory during the load as a multiple of
// the data held as doubles. Sizes in MB come from ORRERY_LOADER_BENCH_MB
// (comma-separated, default "1,10"); for example
//   ORRERY_LOADER_BENCH_MB=1,10,100,1000 build/qt6/bench/LoaderBench
// The files are written once into TMPDIR (or /tmp) and kept for later runs.
#include <atomic>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <new>
#include <sstream>
#include <string>
#include <vector>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <malloc.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef ORRERY_BENCH_LIBCSV
#include <csv.h>
#endif

#include "host/kernel/FileLoad.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/KernelDriver.h"
#include "host/loaders/CsvDataLoader.h"

namespace {

// Every operator new of the process counted, so that the load's peak is known
// exactly rather than through the page-granular resident size.
std::atomic<long long> g_current{0};
std::atomic<long long> g_peak{0};

void* counted(std::size_t size)
{
    void* block = std::malloc(size ? size : 1);
    if (!block)
        throw std::bad_alloc();
    const long long now = g_current += static_cast<long long>(malloc_usable_size(block));
    for (long long peak = g_peak; now > peak && !g_peak.compare_exchange_weak(peak, now);) {
    }
    return block;
}

void release(void* block)
{
    if (block) {
        g_current -= static_cast<long long>(malloc_usable_size(block));
        std::free(block);
    }
}

constexpr int Columns = 4;

std::string tempFolder()
{
    const char* dir = std::getenv("TMPDIR");
    return dir && *dir ? dir : "/tmp";
}

// A table of instrument-like readings: header, then rows of four numbers.
std::string csvFile(long megabytes, std::size_t& rows)
{
    const std::string path = tempFolder() + "/orrery-loader-bench-" + std::to_string(megabytes) + "MB.csv";
    const long long wanted = megabytes * 1000000LL;
    std::ifstream existing(path, std::ios::binary | std::ios::ate);
    rows = 0;
    if (existing && existing.tellg() >= wanted) {
        existing.seekg(0);
        std::string line;
        std::getline(existing, line);
        while (std::getline(existing, line))
            ++rows;
        return path;
    }
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << "time,pressure,temperature,flow\n";
    char line[160];
    long long written = 0;
    unsigned state = 12345;
    while (written < wanted) {
        state = state * 1103515245u + 12345u;
        const double r = (state >> 8) / 16777216.0;
        const int n = std::snprintf(line, sizeof line, "%.6f,%.4f,%.5e,%d\n", rows * 0.001, 101325.0 + 50 * r,
                                    290.0 + r * 1e-3, static_cast<int>(state % 1000));
        out.write(line, n);
        written += n;
        ++rows;
    }
    return path;
}

std::vector<long> sizes()
{
    const char* text = std::getenv("ORRERY_LOADER_BENCH_MB");
    std::stringstream list(text && *text ? text : "1,10");
    std::vector<long> mb;
    for (std::string item; std::getline(list, item, ',');)
        if (std::atol(item.c_str()) > 0)
            mb.push_back(std::atol(item.c_str()));
    return mb;
}

long long fileSize(const std::string& path)
{
    struct stat status
    {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_size : 0;
}

// Baseline: the whole file read into one string, as fast as the system reads.
void BaselinePlainRead(benchmark::State& state)
{
    std::size_t rows = 0;
    const std::string path = csvFile(state.range(0), rows);
    const long long size = fileSize(path);
    for (auto _ : state) {
        std::string content(static_cast<std::size_t>(size), '\0');
        const int fd = ::open(path.c_str(), O_RDONLY);
        std::size_t done = 0;
        for (ssize_t n; done < content.size() && (n = ::read(fd, &content[done], content.size() - done)) > 0;)
            done += static_cast<std::size_t>(n);
        ::close(fd);
        benchmark::DoNotOptimize(content.data());
    }
    state.SetBytesProcessed(state.iterations() * size);
}

// Baseline: what a first loader does, line by line, each line split into
// strings and each number read with std::stod.
void BaselineLineSplitStod(benchmark::State& state)
{
    std::size_t rows = 0;
    const std::string path = csvFile(state.range(0), rows);
    for (auto _ : state) {
        std::ifstream in(path);
        std::vector<std::vector<double>> columns(Columns);
        std::string line;
        std::getline(in, line);
        while (std::getline(in, line)) {
            std::vector<std::string> fields;
            std::stringstream split(line);
            for (std::string field; std::getline(split, field, ',');)
                fields.push_back(field);
            for (std::size_t c = 0; c < fields.size() && c < columns.size(); ++c)
                columns[c].push_back(std::stod(fields[c]));
        }
        benchmark::DoNotOptimize(columns.data());
    }
    state.SetBytesProcessed(state.iterations() * fileSize(path));
}

#ifdef ORRERY_BENCH_LIBCSV
// Baseline: the same file through libcsv's streaming parser, each field read
// with std::from_chars into its column; the loader's tokenizer is hand-written
// and this shows what the library would cost instead.
struct LibcsvSink
{
    std::vector<std::vector<double>> columns = std::vector<std::vector<double>>(Columns);
    std::size_t column = 0;
    bool header = true;
};

void libcsvField(void* text, std::size_t length, void* data)
{
    auto& sink = *static_cast<LibcsvSink*>(data);
    double value = 0;
    const char* begin = static_cast<const char*>(text);
    if (!sink.header && sink.column < Columns && std::from_chars(begin, begin + length, value).ec == std::errc())
        sink.columns[sink.column].push_back(value);
    ++sink.column;
}

void libcsvRow(int, void* data)
{
    auto& sink = *static_cast<LibcsvSink*>(data);
    sink.column = 0;
    sink.header = false;
}

void BaselineLibcsv(benchmark::State& state)
{
    std::size_t rows = 0;
    const std::string path = csvFile(state.range(0), rows);
    std::vector<char> block(1 << 20);
    for (auto _ : state) {
        LibcsvSink sink;
        csv_parser parser;
        csv_init(&parser, CSV_STRICT);
        const int fd = ::open(path.c_str(), O_RDONLY);
        for (ssize_t n; (n = ::read(fd, block.data(), block.size())) > 0;)
            csv_parse(&parser, block.data(), static_cast<std::size_t>(n), libcsvField, libcsvRow, &sink);
        csv_fini(&parser, libcsvField, libcsvRow, &sink);
        csv_free(&parser);
        ::close(fd);
        benchmark::DoNotOptimize(sink.columns.data());
    }
    state.SetBytesProcessed(state.iterations() * fileSize(path));
}
#endif

enum class Path
{
    LoaderOneThread, // the loader held to one thread
    Loader,          // the loader alone, as the host has it (two threads on long files)
    FileLoad,        // as the demo loads a file: opened once, hashed beside the load, journalled
    Replay           // as a replay loads it: checked against the size and digest a session recorded
};

bool loadBy(Path path, orrery::sdk::CsvDataLoader& loader, const std::string& file,
            const orrery::kernel::FileLoad::Expected& expected, std::string& error)
{
    using orrery::kernel::FileLoad;
    switch (path) {
    case Path::LoaderOneThread:
    case Path::Loader: return loader.load(file, error);
    case Path::FileLoad: return FileLoad::load(loader, file, error);
    case Path::Replay: return FileLoad::load(loader, file, error, &expected);
    }
    return false;
}

// What the journal recorded of path when FileLoad read it.
orrery::kernel::FileLoad::Expected recorded(orrery::sdk::CsvDataLoader& loader, const std::string& path)
{
    orrery::kernel::FileLoad::Expected expected;
    std::string error;
    orrery::kernel::Journal::FileRecord file;
    auto& journal = orrery::kernel::Kernel::instance().journal();
    if (orrery::kernel::FileLoad::load(loader, path, error) && !journal.lines().empty()
        && orrery::kernel::Journal::parseLoad(journal.lines().back().substr(5), file, error)) {
        expected.size = file.size;
        expected.sha256 = file.sha256;
    }
    journal.clear();
    return expected;
}

void CsvLoad(benchmark::State& state, Path by)
{
    std::size_t rows = 0;
    const std::string path = csvFile(state.range(0), rows);
    orrery::sdk::CsvDataLoader loader;
    if (by == Path::LoaderOneThread)
        loader.readInTwoPartsFrom(std::numeric_limits<long long>::max());
    const orrery::kernel::FileLoad::Expected expected = recorded(loader, path);
    double peakRatio = 0;
    for (auto _ : state) {
        state.PauseTiming();
        orrery::kernel::KernelDriver::clearDataSet();
        orrery::kernel::Kernel::instance().journal().clear();
        const long long before = g_current;
        g_peak = before;
        state.ResumeTiming();
        std::string error;
        if (!loadBy(by, loader, path, expected, error))
            state.SkipWithError(error.c_str());
        state.PauseTiming();
        const double data = static_cast<double>(rows) * Columns * sizeof(double);
        peakRatio = static_cast<double>(g_peak - before) / data;
        state.ResumeTiming();
    }
    state.SetBytesProcessed(state.iterations() * fileSize(path));
    state.counters["rows"] = static_cast<double>(rows);
    // Peak allocated during the load over the data held as doubles; the fixed
    // buffers (one 1 MiB block, a 64 KiB sample) weigh on the small sizes only.
    state.counters["peak_x_data"] = peakRatio;
}

void registerAll()
{
    for (long mb : sizes()) {
        benchmark::RegisterBenchmark("BaselinePlainRead", BaselinePlainRead)->Arg(mb)->Unit(benchmark::kMillisecond);
        if (mb <= 100) // takes minutes beyond
            benchmark::RegisterBenchmark("BaselineLineSplitStod", BaselineLineSplitStod)
                ->Arg(mb)
                ->Unit(benchmark::kMillisecond);
#ifdef ORRERY_BENCH_LIBCSV
        benchmark::RegisterBenchmark("BaselineLibcsv", BaselineLibcsv)->Arg(mb)->Unit(benchmark::kMillisecond);
#endif
        const std::pair<const char*, Path> paths[] = {{"CsvLoadOneThread", Path::LoaderOneThread},
                                                      {"CsvLoad", Path::Loader},
                                                      {"CsvLoadAsTheDemoDoes", Path::FileLoad},
                                                      {"CsvLoadAsAReplayDoes", Path::Replay}};
        for (const auto& [name, by] : paths)
            benchmark::RegisterBenchmark(name, CsvLoad, by)->Arg(mb)->Unit(benchmark::kMillisecond)->UseRealTime();
    }
}

} // namespace

void* operator new(std::size_t size)
{
    return counted(size);
}
void* operator new[](std::size_t size)
{
    return counted(size);
}
void operator delete(void* block) noexcept
{
    release(block);
}
void operator delete[](void* block) noexcept
{
    release(block);
}
void operator delete(void* block, std::size_t) noexcept
{
    release(block);
}
void operator delete[](void* block, std::size_t) noexcept
{
    release(block);
}

int main(int argc, char** argv)
{
    registerAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
