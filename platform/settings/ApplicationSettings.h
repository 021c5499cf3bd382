#pragma once
#include <map>
#include <string>

namespace orrery {
namespace sdk {

// Per-user application settings, kept in one INI file:
// $ORRERY_SETTINGS_DIR/settings.ini, else $XDG_CONFIG_HOME/orrery/settings.ini,
// else ~/.config/orrery/settings.ini. Every deposit is written at once and
// atomically; keys and values come back byte for byte, whatever they hold. A
// file that cannot be read or written is reported (lastError and one line on
// stderr) and the store carries on in memory. A file with unreadable lines is
// kept aside (settings.ini.bak, .bak.1, ...) before it is first replaced.
class ApplicationSettings
{
public:
    static ApplicationSettings& getInstance();

    // Empty for an unknown key.
    std::string getStringValue(const std::string& key) const;
    void depositValue(const std::string& key, const std::string& value);

    // Re-reads the file, as a new run of the application would.
    void reload();
    std::string filePath() const { return m_filePath; }
    // The last read or write problem, empty when the last access went well.
    std::string lastError() const { return m_lastError; }

private:
    ApplicationSettings();
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

} // namespace sdk
} // namespace orrery
