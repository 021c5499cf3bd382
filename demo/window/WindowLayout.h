#pragma once

#include <QSize>

class QMainWindow;
class QWidget;

// A main window's size, position and dock layout, kept in the application
// settings from one run to the next.
class WindowLayout
{
public:
    // False when nothing was kept (the window keeps its own layout).
    static bool restore(QMainWindow& window);
    static void save(const QMainWindow& window);
    // Sizes a window as preferred where its screen has room, else to what the
    // screen has (at any scale factor), its frame included.
    static void fitToScreen(QWidget& window, const QSize& preferred);
};
