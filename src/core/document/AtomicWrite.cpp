#include "document/AtomicWrite.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#ifdef Q_OS_WIN
#include <QSaveFile>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tb {

namespace {

QString causeText(int error)
{
    QString text = QString::fromLocal8Bit(std::strerror(error));
    if (!text.endsWith(u'.'))
        text += u'.';
    return text;
}

#ifndef Q_OS_WIN

// The mode a new file gets, or the mode of the file being replaced, so that saving
// keeps a file's permissions.
mode_t targetMode(const QByteArray &target)
{
    struct stat info;
    if (::stat(target.constData(), &info) == 0)
        return info.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

// Writes everything, continuing after a short write; false with errno set on failure.
// A write that makes no progress counts as a full disk.
bool writeAll(int fd, const char *data, qsizetype size)
{
    while (size > 0) {
        const ssize_t n = ::write(fd, data, size_t(size));
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        if (n == 0) {
            errno = ENOSPC;
            return false;
        }
        data += n;
        size -= n;
    }
    return true;
}

#endif

} // namespace

QString WithCause(const QString &message, const Result &failure)
{
    if (failure.ok() || failure.message().isEmpty())
        return message;
    return message + QStringLiteral("\r\r") + failure.message();
}

#ifdef Q_OS_WIN

Result WriteFileAtomically(const QString &path, QByteArrayView bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Result::failure(file.errorString() + u'.');
    if (file.write(bytes.data(), bytes.size()) != bytes.size() || !file.flush()) {
        const QString cause = file.errorString();
        file.cancelWriting();
        return Result::failure(cause + u'.');
    }
    if (!file.commit())
        return Result::failure(file.errorString() + u'.');
    return Result::success();
}

#else

Result WriteFileAtomically(const QString &path, QByteArrayView bytes)
{
    if (path.isEmpty())
        return Result::failure(causeText(ENOENT));
    // Saving through a link replaces the file it points to, and the link stays.
    const QFileInfo given(path);
    const QFileInfo info(given.isSymLink() && given.exists() ? given.canonicalFilePath() : path);
    const QByteArray target = QFile::encodeName(info.filePath());
    if (info.isDir())
        return Result::failure(causeText(EISDIR));
    const QByteArray folder = QFile::encodeName(info.absolutePath());
    QByteArray temp = folder + "/." + QFile::encodeName(info.fileName()) + ".XXXXXX";

    const mode_t mode = targetMode(target);
    const int fd = ::mkstemp(temp.data());
    if (fd < 0)
        return Result::failure(causeText(errno));

    // Permissions are a nicety: a file system that has none still gets the file.
    (void)::fchmod(fd, mode);
    int error = 0;
    if (!writeAll(fd, bytes.data(), bytes.size()))
        error = errno;
    if (error == 0 && ::fsync(fd) != 0)
        error = errno;
    if (::close(fd) != 0 && error == 0)
        error = errno;
    if (error == 0 && ::rename(temp.constData(), target.constData()) != 0)
        error = errno;
    if (error != 0) {
        ::unlink(temp.constData());
        return Result::failure(causeText(error));
    }

    // Make the rename itself durable; a folder that cannot be synced is no failure of
    // the save, the file is complete and in place.
    const int dir = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir >= 0) {
        ::fsync(dir);
        ::close(dir);
    }
    return Result::success();
}

#endif

} // namespace tb
