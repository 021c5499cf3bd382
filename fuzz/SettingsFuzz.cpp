// The settings store. First the input is taken as a settings file as found on
// disk: reading it never fails hard, and if lines were unreadable the original
// bytes are kept aside once the store writes. Then the input is taken as keys
// and values to deposit: after a reload every one comes back byte for byte.
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <fuzzer/FuzzedDataProvider.h>
#include <QDir>
#include <QTemporaryDir>

#include "fuzz/FuzzCheck.h"
#include "host/settings/SettingsFile.h"

using orrery::host::SettingsFile;

namespace {

std::string readWhole(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

struct Scratch
{
    Scratch()
    {
        FUZZ_CHECK(folder.isValid(), "no scratch folder");
        qputenv("ORRERY_SETTINGS_DIR", folder.path().toUtf8());
        file = QDir(folder.path()).filePath("settings.ini").toStdString();
    }
    // A fresh start: no settings file and no files kept aside.
    void clear()
    {
        QDir dir(folder.path());
        for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden))
            dir.remove(name);
    }
    QTemporaryDir folder;
    std::string file;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static Scratch scratch;
    SettingsFile& settings = SettingsFile::instance();
    const std::string raw(reinterpret_cast<const char*>(data), size);

    // The input as a file found on disk.
    scratch.clear();
    {
        std::ofstream out(scratch.file, std::ios::binary);
        out.write(raw.data(), static_cast<std::streamsize>(raw.size()));
    }
    settings.reload();
    const bool hadUnreadableLines = settings.lastError().find("unreadable") != std::string::npos;
    settings.depositValue("probe", raw);
    FUZZ_CHECK(settings.lastError().empty(), "writing failed: %s", settings.lastError().c_str());
    if (hadUnreadableLines)
        FUZZ_CHECK(readWhole(scratch.file + ".bak") == raw, "the unreadable file was not kept aside whole");
    settings.reload();
    FUZZ_CHECK(settings.lastError().empty(), "its own file is unreadable: %s", settings.lastError().c_str());
    FUZZ_CHECK(settings.getStringValue("probe") == raw, "a value changed on a round trip");

    // The input as keys and values.
    scratch.clear();
    settings.reload();
    FuzzedDataProvider provider(data, size);
    std::map<std::string, std::string> expected;
    while (provider.remaining_bytes() > 0 && expected.size() < 64) {
        const std::string key = provider.ConsumeRandomLengthString(64);
        const std::string value = provider.ConsumeRandomLengthString(256);
        expected[key] = value;
        settings.depositValue(key, value);
    }
    settings.reload();
    FUZZ_CHECK(settings.lastError().empty(), "its own file is unreadable: %s", settings.lastError().c_str());
    for (const auto& [key, value] : expected)
        FUZZ_CHECK(settings.getStringValue(key) == value, "the value of a key changed on a round trip");
    return 0;
}
