#pragma once
#include <QCoreApplication>
#include <QString>

// The files the demo reads or writes by name must be regular files: reading a
// FIFO blocks for ever, writing over a device node replaces it, and a folder
// reads as an empty file.
class RegularFile
{
    Q_DECLARE_TR_FUNCTIONS(RegularFile)
public:
    // Empty when nothing is at path or a regular file is; otherwise why not, as
    // "<path> is not a regular file (a FIFO)". followLinks: a symbolic link
    // counts as what it points to; otherwise a link is refused too.
    static QString problem(const QString& path, bool followLinks);
    // Opens path for writing, creating a regular file or truncating one; never
    // a link, a FIFO, a device or a folder. -1, with why, when it cannot.
    static int openForWriting(const QString& path, QString& why);
};
