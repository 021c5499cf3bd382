#include "demo/window/WindowLayout.h"
#include <QByteArray>
#include <QMainWindow>
#include <QScreen>
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
    // Kept at another scale factor or on a larger screen, it may not fit this one.
    fitToScreen(window, window.size());
    return placed || docked;
}

void WindowLayout::fitToScreen(QWidget& window, const QSize& preferred)
{
    const QScreen* screen = window.screen();
    if (!screen)
        return;
    // A window manager's frame takes a little of the room.
    const QSize room = screen->availableGeometry().size() * 0.92;
    window.resize(preferred.boundedTo(room));
}

void WindowLayout::save(const QMainWindow& window)
{
    auto& settings = orrery::sdk::ApplicationSettings::getInstance();
    settings.depositValue(GeometryKey, window.saveGeometry().toBase64().toStdString());
    settings.depositValue(StateKey, window.saveState().toBase64().toStdString());
}
