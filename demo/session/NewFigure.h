#pragma once
#include <string>
#include <vector>
#include <QCoreApplication>
#include <QString>

// Says in one line what a new data set reset in the figure (the kernel's list
// of style paths, see Kernel::startNewFigure), by the names the user knows.
class NewFigure
{
    Q_DECLARE_TR_FUNCTIONS(NewFigure)
public:
    // Empty when nothing was reset.
    static QString summary(const std::vector<std::string>& resetPaths);
};
