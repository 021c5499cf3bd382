#include "demo/session/RegularFile.h"
#include <QFile>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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

QString systemError(int code)
{
    return QString::fromLocal8Bit(std::strerror(code));
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

// Opened without blocking (a FIFO with nobody at the other end would), checked
// on the descriptor itself, so that nothing can be swapped in between, and
// truncated only then.
int RegularFile::openForWriting(const QString& path, QString& why)
{
    const QByteArray name = QFile::encodeName(path);
    const int fd = ::open(name.constData(), O_WRONLY | O_CREAT | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC, 0666);
    struct stat status;
    if (fd < 0) {
        const int code = errno;
        // A link (ELOOP), a FIFO without a reader (ENXIO), a folder (EISDIR).
        why = ::lstat(name.constData(), &status) == 0 && !S_ISREG(status.st_mode) ? notRegular(path, status.st_mode)
                                                                                  : systemError(code);
        return -1;
    }
    const bool known = ::fstat(fd, &status) == 0;
    if (!known || !S_ISREG(status.st_mode) || ::ftruncate(fd, 0) != 0) {
        why = known && !S_ISREG(status.st_mode) ? notRegular(path, status.st_mode) : systemError(errno);
        ::close(fd);
        return -1;
    }
    ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) & ~O_NONBLOCK);
    return fd;
}
