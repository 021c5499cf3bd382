#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include "platform/settings/ApplicationSettings.h"

using orrery::sdk::ApplicationSettings;

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

    ApplicationSettings& settings() { return ApplicationSettings::getInstance(); }

    void writeFile(const QByteArray& content)
    {
        QFile file(QDir(folder.path()).filePath("settings.ini"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(Settings, ValuesSurviveANewRunAndALaterDepositReplacesOne)
{
    EXPECT_EQ("", settings().getStringValue("LastLoaderUsedForExt_csv"));
    settings().depositValue("LastLoaderUsedForExt_csv", "CSV table");
    settings().depositValue("Odd key=1", "two\nlines \\ and = signs");
    settings().depositValue("k", "first");
    settings().depositValue("k", "second");
    settings().reload();
    EXPECT_EQ("second", settings().getStringValue("k"));
    EXPECT_EQ("CSV table", settings().getStringValue("LastLoaderUsedForExt_csv"));
    EXPECT_EQ("two\nlines \\ and = signs", settings().getStringValue("Odd key=1"));
    EXPECT_EQ(QDir(folder.path()).filePath("settings.ini").toStdString(), settings().filePath());
    EXPECT_EQ("", settings().lastError());
}

TEST_F(Settings, CorruptFileKeepsItsReadableLinesAndIsReported)
{
    writeFile("[General]\ngood=yes\n\x01\x02 garbage without a separator\n=no key\n");
    settings().reload();
    EXPECT_EQ("yes", settings().getStringValue("good"));
    EXPECT_NE(std::string::npos, settings().lastError().find("Ignored 2 unreadable lines"));
    settings().depositValue("after", "works");
    settings().reload();
    EXPECT_EQ("works", settings().getStringValue("after"));
    EXPECT_EQ("", settings().lastError()); // the rewrite dropped the bad lines
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
