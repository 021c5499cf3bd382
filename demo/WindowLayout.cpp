#include "demo/WindowLayout.h"
#include <QByteArray>
#include <QMainWindow>
#include "platform/settings/ApplicationSettings.h"

namespace {

const char* const GeometryKey = "MainWindow/Geometry";
const char* const StateKey = "MainWindow/State";

QByteArray setting(const char* key)
{
    const std::string text = orrery::sdk::ApplicationSettings::getInstance().getStringValue(key);
    return QByteArray::fromBase64(QByteArray::fromStdString(text));
}

} // namespace

bool WindowLayout::restore(QMainWindow& window)
{
    const QByteArray geometry = setting(GeometryKey);
    const QByteArray state = setting(StateKey);
    const bool placed = !geometry.isEmpty() && window.restoreGeometry(geometry);
    const bool docked = !state.isEmpty() && window.restoreState(state);
    return placed || docked;
}

void WindowLayout::save(const QMainWindow& window)
{
    auto& settings = orrery::sdk::ApplicationSettings::getInstance();
    settings.depositValue(GeometryKey, window.saveGeometry().toBase64().toStdString());
    settings.depositValue(StateKey, window.saveState().toBase64().toStdString());
}
