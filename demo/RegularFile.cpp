#include "demo/RegularFile.h"
#include <sys/stat.h>
#include <QFile>

namespace {

QString kindOf(mode_t mode)
{
    if (S_ISDIR(mode))
        return RegularFile::tr("a folder");
    if (S_ISFIFO(mode))
        return RegularFile::tr("a FIFO");
    if (S_ISCHR(mode))
        return RegularFile::tr("a character device");
    if (S_ISBLK(mode))
        return RegularFile::tr("a block device");
    if (S_ISSOCK(mode))
        return RegularFile::tr("a socket");
    if (S_ISLNK(mode))
        return RegularFile::tr("a symbolic link");
    return RegularFile::tr("of an unknown kind");
}

QString notRegular(const QString& path, mode_t mode)
{
    return RegularFile::tr("%1 is not a regular file (%2)").arg(path, kindOf(mode));
}

} // namespace

QString RegularFile::problem(const QString& path, bool followLinks)
{
    struct stat status;
    const QByteArray name = QFile::encodeName(path);
    if ((followLinks ? ::stat(name.constData(), &status) : ::lstat(name.constData(), &status)) != 0)
        return QString();
    return S_ISREG(status.st_mode) ? QString() : notRegular(path, status.st_mode);
}
