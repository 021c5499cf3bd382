#pragma once

class QMainWindow;

// A main window's size, position and dock layout, kept in the application
// settings from one run to the next.
class WindowLayout
{
public:
    // False when nothing was kept (the window keeps its own layout).
    static bool restore(QMainWindow& window);
    static void save(const QMainWindow& window);
};
