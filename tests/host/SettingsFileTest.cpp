#include <map>
#include <random>
#include <sys/stat.h>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include "host/settings/SettingsFile.h"

using orrery::host::SettingsFile;

namespace {

// Each case points the store at a folder of its own, as a fresh user would have.
class Settings : public ::testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("ORRERY_SETTINGS_DIR", folder.path().toUtf8());
        settings().reload();
    }

    SettingsFile& settings() { return SettingsFile::instance(); }

    void writeFile(const QByteArray& content)
    {
        QFile file(QDir(folder.path()).filePath("settings.ini"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(Settings, AnyKeyAndValueSurviveANewRunByteForByteAndALaterDepositReplacesOne)
{
    EXPECT_EQ("", settings().getStringValue("LastLoaderUsedForExt_csv"));
    settings().depositValue("k", "first");
    // Blanks at either end, an empty key, every byte value, escapes that look
    // like ours, and random strings: all must come back exactly.
    std::map<std::string, std::string> expected = {
        {"k", "second"},
        {"LastLoaderUsedForExt_csv", "CSV table"},
        {"", "empty key"},
        {" padded key ", "  padded value\t "},
        {"tab\tend\t", "\r\n\\n\\"},
        {"[General]", "="},
        {"trailing backslash\\", "\\"},
        {std::string("nul\0inside", 11), std::string("\0", 1)},
        {"\\x41", "\\e"},
    };
    std::string allBytes;
    for (int c = 0; c < 256; ++c)
        allBytes += static_cast<char>(c);
    expected["all bytes"] = allBytes;
    expected[allBytes] = "as a key";
    std::mt19937 random(20261123);
    for (int i = 0; i < 200; ++i) {
        std::string key, value;
        for (size_t n = random() % 12; n > 0; --n)
            key += static_cast<char>(random() % 256);
        for (size_t n = random() % 24; n > 0; --n)
            value += static_cast<char>(" =\\\n\r\ta\x01\x7f\xff"[random() % 10]);
        expected[key] = value;
    }
    for (const auto& [key, value] : expected)
        settings().depositValue(key, value);
    EXPECT_EQ("", settings().lastError());
    settings().reload();
    EXPECT_EQ("", settings().lastError());
    for (const auto& [key, value] : expected)
        EXPECT_EQ(value, settings().getStringValue(key)) << "key " << ::testing::PrintToString(key);
    EXPECT_EQ(QDir(folder.path()).filePath("settings.ini").toStdString(), settings().filePath());
}

TEST_F(Settings, ACorruptFileKeepsItsReadableLinesAndIsKeptAsideBeforeItIsReplaced)
{
    const QByteArray corrupt("[General]\ngood=yes\n\x01\x02 garbage without a separator\nbad=\\q escape\n=empty key\n");
    writeFile(corrupt);
    settings().reload();
    EXPECT_EQ("yes", settings().getStringValue("good"));
    EXPECT_EQ("empty key", settings().getStringValue(""));
    EXPECT_NE(std::string::npos, settings().lastError().find("Ignored 2 unreadable lines"));
    const QString backup = QDir(folder.path()).filePath("settings.ini.bak");
    EXPECT_FALSE(QFile::exists(backup)); // nothing is written until something must be

    settings().depositValue("after", "works");
    QFile kept(backup);
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(corrupt, kept.readAll());
    settings().reload();
    EXPECT_EQ("works", settings().getStringValue("after"));
    EXPECT_EQ("yes", settings().getStringValue("good"));
    EXPECT_EQ("", settings().lastError());

    // A second corrupt file does not overwrite the first one kept.
    writeFile("only garbage\n");
    settings().reload();
    settings().depositValue("k", "v");
    QFile second(backup + ".1");
    ASSERT_TRUE(second.open(QIODevice::ReadOnly));
    EXPECT_EQ(QByteArray("only garbage\n"), second.readAll());
    EXPECT_TRUE(kept.seek(0));
    EXPECT_EQ(corrupt, kept.readAll());
}

TEST_F(Settings, ANamedPipeAsTheSettingsFileIsNeitherReadNorWritten)
{
    // Reading a pipe without a writer would block the application for good.
    const QByteArray pipe = QFile::encodeName(QDir(folder.path()).filePath("settings.ini"));
    ASSERT_EQ(0, ::mkfifo(pipe.constData(), 0600));
    settings().reload();
    EXPECT_NE(std::string::npos, settings().lastError().find("not a regular file"));
    settings().depositValue("key", "kept");
    EXPECT_EQ("kept", settings().getStringValue("key"));
    EXPECT_NE(std::string::npos, settings().lastError().find("not a regular file"));
    struct stat status;
    ASSERT_EQ(0, ::stat(pipe.constData(), &status));
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(Settings, UnusableLocationsLeaveAWorkingStoreInMemoryAndTheDefaultIsTheConfigFolder)
{
    // A folder path running through a plain file can never be created.
    writeFile("");
    qputenv("ORRERY_SETTINGS_DIR", QDir(folder.path()).filePath("settings.ini/inner").toUtf8());
    settings().reload();
    settings().depositValue("key", "kept");
    EXPECT_EQ("kept", settings().getStringValue("key"));
    EXPECT_NE(std::string::npos, settings().lastError().find("Cannot write the settings file"));

    // A folder where the file should be is neither read nor written, and reported.
    qputenv("ORRERY_SETTINGS_DIR", folder.path().toUtf8());
    QFile::remove(QDir(folder.path()).filePath("settings.ini"));
    ASSERT_TRUE(QDir(folder.path()).mkdir("settings.ini"));
    settings().reload();
    settings().depositValue("key", "kept");
    EXPECT_EQ("kept", settings().getStringValue("key"));
    EXPECT_FALSE(settings().lastError().empty());

    // Without a folder of its own the store falls back to the user's configuration folder.
    qunsetenv("ORRERY_SETTINGS_DIR");
    qputenv("XDG_CONFIG_HOME", "/nonexistent/config");
    settings().reload();
    EXPECT_EQ("/nonexistent/config/orrery/settings.ini", settings().filePath());
}
