#include "host/settings/SettingsFile.h"

#include <cerrno>
#include <cstring>
#include <iostream>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace orrery {
namespace host {

namespace {

const char* const Section = "[General]";
// Far beyond any real settings file; a bigger one is not read into memory.
const off_t MaximumFileSize = off_t(64) << 20;

QString settingsFilePath()
{
    const QString dir = qEnvironmentVariable("ORRERY_SETTINGS_DIR");
    if (!dir.isEmpty())
        return QDir(dir).filePath("settings.ini");
    QString config = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (config.isEmpty())
        config = QDir::home().filePath(".config");
    return QDir(config).filePath("orrery/settings.ini");
}

const char* const HexDigits = "0123456789abcdef";

// Keys and values are stored one per line as key=value. Backslash, '=' and
// every control byte are escaped, and so are blanks at either end, which
// editors like to strip; all other bytes are written as they are.
std::string escape(const std::string& text)
{
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(text[i]);
        const bool atEnd = i == 0 || i + 1 == text.size();
        if (c == '\\')
            out += "\\\\";
        else if (c == '=')
            out += "\\e";
        else if (c == '\n')
            out += "\\n";
        else if (c == '\r')
            out += "\\r";
        else if (c < 0x20 || c == 0x7f || (c == ' ' && atEnd)) {
            out += "\\x";
            out += HexDigits[c >> 4];
            out += HexDigits[c & 0xf];
        } else
            out += static_cast<char>(c);
    }
    return out;
}

int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

// False for an escape this store never writes: the line was not written by it.
bool unescape(const std::string& text, size_t begin, size_t end, std::string& out)
{
    out.clear();
    for (size_t i = begin; i < end; ++i) {
        if (text[i] != '\\') {
            out += text[i];
            continue;
        }
        if (++i == end)
            return false;
        switch (text[i]) {
        case '\\': out += '\\'; break;
        case 'e': out += '='; break;
        case 'n': out += '\n'; break;
        case 'r': out += '\r'; break;
        case 'x': {
            const int high = i + 2 < end ? hexValue(text[i + 1]) : -1;
            const int low = i + 2 < end ? hexValue(text[i + 2]) : -1;
            if (high < 0 || low < 0)
                return false;
            out += static_cast<char>(high * 16 + low);
            i += 2;
            break;
        }
        default: return false;
        }
    }
    return true;
}

// Reads a regular file whole. Anything else (a pipe, a device, a folder) is
// refused without blocking on it.
bool readRegularFile(const std::string& path, std::string& content, std::string& problem, bool& regular)
{
    regular = false;
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        problem = std::strerror(errno);
        return false;
    }
    struct stat status;
    bool ok = ::fstat(fd, &status) == 0;
    if (!ok)
        problem = std::strerror(errno);
    else if (!S_ISREG(status.st_mode)) {
        problem = "not a regular file";
        ok = false;
    } else {
        regular = true;
        if (status.st_size > MaximumFileSize) {
            problem = "the file is too large";
            ok = false;
        }
    }
    char buffer[65536];
    while (ok) {
        const ssize_t got = ::read(fd, buffer, sizeof buffer);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            problem = std::strerror(errno);
            ok = false;
        } else if (got == 0)
            break;
        else if (content.size() + static_cast<size_t>(got) > static_cast<size_t>(MaximumFileSize)) {
            problem = "the file is too large";
            ok = false;
        } else
            content.append(buffer, static_cast<size_t>(got));
    }
    ::close(fd);
    return ok;
}

} // namespace

SettingsFile& SettingsFile::instance()
{
    static SettingsFile settings;
    return settings;
}

SettingsFile::SettingsFile()
{
    reload();
}

std::string SettingsFile::getStringValue(const std::string& key) const
{
    const auto it = m_values.find(key);
    return it == m_values.end() ? std::string() : it->second;
}

void SettingsFile::depositValue(const std::string& key, const std::string& value)
{
    m_values[key] = value;
    if (save())
        m_lastError.clear();
}

void SettingsFile::reload()
{
    m_filePath = settingsFilePath().toStdString();
    m_values.clear();
    m_lastError.clear();
    m_backupPending = false;
    const QString path = QString::fromStdString(m_filePath);
    if (!QFileInfo::exists(path) && !QFileInfo(path).isSymLink())
        return;
    std::string content, problem;
    bool regular = false;
    if (!readRegularFile(QFile::encodeName(path).toStdString(), content, problem, regular)) {
        // A regular file that could not be read whole is kept aside before it is replaced.
        m_backupPending = regular || QFileInfo(path).isFile();
        report("Cannot read the settings file " + m_filePath + ": " + problem);
        return;
    }
    int unreadable = 0;
    std::string key, value;
    for (size_t begin = 0; begin < content.size();) {
        size_t end = content.find('\n', begin);
        const size_t next = end == std::string::npos ? content.size() : end + 1;
        if (end == std::string::npos)
            end = content.size();
        // A file edited elsewhere may end its lines with CR LF; a CR of ours is escaped.
        if (end > begin && content[end - 1] == '\r')
            --end;
        const std::string_view line(content.data() + begin, end - begin);
        const size_t equals = line.find('=');
        if (line.empty() || line == Section) {
            // nothing to read
        } else if (equals == std::string::npos || !unescape(content, begin, begin + equals, key)
                   || !unescape(content, begin + equals + 1, end, value)) {
            ++unreadable;
        } else {
            m_values[key] = value;
        }
        begin = next;
    }
    if (unreadable > 0) {
        m_backupPending = true;
        report("Ignored " + std::to_string(unreadable) + " unreadable lines in the settings file " + m_filePath
               + "; it is kept aside before it is next written");
    }
}

bool SettingsFile::keepCorruptFileAside()
{
    const QString path = QString::fromStdString(m_filePath);
    QString backup = path + ".bak";
    for (int n = 1; QFileInfo::exists(backup) || QFileInfo(backup).isSymLink(); ++n)
        backup = path + ".bak." + QString::number(n);
    if (!QFile::copy(path, backup)) {
        report("Cannot keep the unreadable settings file " + m_filePath + " aside; it is left as it is");
        return false;
    }
    m_backupPending = false;
    return true;
}

bool SettingsFile::save()
{
    const QString path = QString::fromStdString(m_filePath);
    const QFileInfo existing(path);
    if (existing.exists() && !existing.isFile()) {
        report("Cannot write the settings file " + m_filePath + ": not a regular file");
        return false;
    }
    if (m_backupPending && !keepCorruptFileAside())
        return false;
    QSaveFile file(path);
    if (!QDir().mkpath(existing.absolutePath()) || !file.open(QIODevice::WriteOnly)) {
        report("Cannot write the settings file " + m_filePath + ": " + file.errorString().toStdString());
        return false;
    }
    std::string text = std::string(Section) + "\n";
    for (const auto& [key, value] : m_values)
        text += escape(key) + "=" + escape(value) + "\n";
    file.write(text.data(), static_cast<qint64>(text.size()));
    if (!file.commit()) {
        report("Cannot write the settings file " + m_filePath + ": " + file.errorString().toStdString());
        return false;
    }
    return true;
}

void SettingsFile::report(const std::string& problem)
{
    m_lastError = problem;
    std::cerr << problem << std::endl;
}

} // namespace host
} // namespace orrery

// The stand-in host's answer to what the dialogs ask of a host.
orrery::sdk::ApplicationSettings& orrery::sdk::ApplicationSettings::getInstance()
{
    return orrery::host::SettingsFile::instance();
}
