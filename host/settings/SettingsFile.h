#pragma once
#include <map>
#include <string>
#include "platform/settings/ApplicationSettings.h"

namespace orrery {
namespace host {

// The stand-in host's settings store: per-user application settings, kept in one INI file:
// $ORRERY_SETTINGS_DIR/settings.ini, else $XDG_CONFIG_HOME/orrery/settings.ini,
// else ~/.config/orrery/settings.ini. Every deposit is written at once and
// atomically; keys and values come back byte for byte, whatever they hold. A
// file that cannot be read or written is reported (lastError and one line on
// stderr) and the store carries on in memory. A file with unreadable lines is
// kept aside (settings.ini.bak, .bak.1, ...) before it is first replaced.
class SettingsFile : public sdk::ApplicationSettings
{
public:
    static SettingsFile& instance();

    std::string getStringValue(const std::string& key) const override;
    void depositValue(const std::string& key, const std::string& value) override;

    // Re-reads the file, as a new run of the application would.
    void reload();
    std::string filePath() const { return m_filePath; }
    // The last read or write problem, empty when the last access went well.
    std::string lastError() const { return m_lastError; }

private:
    SettingsFile();
    void report(const std::string& problem);
    bool save();
    bool keepCorruptFileAside();

    std::string m_filePath;
    std::map<std::string, std::string> m_values;
    std::string m_lastError;
    // Set when the file on disk holds lines that were not understood; they must
    // survive somewhere before a save replaces the file.
    bool m_backupPending = false;
};

} // namespace host
} // namespace orrery
