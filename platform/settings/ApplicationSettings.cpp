#include "platform/settings/ApplicationSettings.h"
#include <iostream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace orrery {
namespace sdk {

namespace {

const char* const Section = "[General]";

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

// Keys and values are stored one per line as key=value; these characters
// would break that.
std::string escape(const std::string& text)
{
    std::string out;
    for (char c : text) {
        switch (c) {
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '=': out += "\\e"; break;
        default: out += c;
        }
    }
    return out;
}

std::string unescape(const std::string& text)
{
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            out += text[i];
            continue;
        }
        const char c = text[++i];
        out += c == 'n' ? '\n' : c == 'r' ? '\r' : c == 'e' ? '=' : c;
    }
    return out;
}

} // namespace

ApplicationSettings& ApplicationSettings::getInstance()
{
    static ApplicationSettings settings;
    return settings;
}

ApplicationSettings::ApplicationSettings()
{
    reload();
}

std::string ApplicationSettings::getStringValue(const std::string& key) const
{
    const auto it = m_values.find(key);
    return it == m_values.end() ? std::string() : it->second;
}

void ApplicationSettings::depositValue(const std::string& key, const std::string& value)
{
    m_values[key] = value;
    if (save())
        m_lastError.clear();
}

void ApplicationSettings::reload()
{
    m_filePath = settingsFilePath().toStdString();
    m_values.clear();
    m_lastError.clear();
    QFile file(QString::fromStdString(m_filePath));
    if (!file.exists())
        return;
    if (!file.open(QIODevice::ReadOnly)) {
        report("Cannot read the settings file " + m_filePath + ": " + file.errorString().toStdString());
        return;
    }
    int unreadable = 0;
    while (!file.atEnd()) {
        const std::string line = file.readLine().trimmed().toStdString();
        if (line.empty() || line == Section)
            continue;
        const size_t equals = line.find('=');
        if (equals == std::string::npos || equals == 0) {
            ++unreadable;
            continue;
        }
        m_values[unescape(line.substr(0, equals))] = unescape(line.substr(equals + 1));
    }
    if (unreadable > 0)
        report("Ignored " + std::to_string(unreadable) + " unreadable lines in the settings file " + m_filePath);
}

bool ApplicationSettings::save()
{
    const QString path = QString::fromStdString(m_filePath);
    QSaveFile file(path);
    if (!QDir().mkpath(QFileInfo(path).absolutePath()) || !file.open(QIODevice::WriteOnly)) {
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

void ApplicationSettings::report(const std::string& problem)
{
    m_lastError = problem;
    std::cerr << problem << std::endl;
}

} // namespace sdk
} // namespace orrery
