#pragma once
// The host code of the reference documentation's main page, one function per
// kind of dialog. The tests run each on the stand-in host, so the examples
// cannot go stale.
#include <functional>
#include <string>

class QWidget;

namespace examples {

struct IndexRange
{
    long begin = 0, end = 0, skip = 0;
    bool accepted = false;
};

IndexRange askForIndexRange(QWidget& mainWindow);
std::string askForFrameTitle(QWidget& mainWindow);
void pickZone(QWidget& mainWindow, int currentZone, std::function<void(int zone)> use);
bool assignAxisVariables(QWidget& mainWindow);
void showRGBColoringOptions(QWidget& mainWindow);
std::string chooseLoaderFor(QWidget& mainWindow, const std::string& extension);
void installGermanTranslation();

} // namespace examples
