#include "KalFileOps.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <future>
#include <memory>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#ifdef Q_OS_LINUX
#include <linux/fs.h>
#include <sys/syscall.h>
#endif
#include <unistd.h>
#endif
#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace KalFileOps {

namespace {
FaultHook g_hook;

#ifdef Q_OS_UNIX
bool fsyncPath(const QString &path, int flags)
{
    const int fd = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool ok = ::fsync(fd) == 0;
    ::close(fd);
    return ok;
}
#endif
} // namespace

void setFaultHook(FaultHook hook)
{
    g_hook = std::move(hook);
}

bool injectedFault(const QString &operation, const QString &path)
{
    return g_hook && g_hook(operation, path);
}

bool syncFile(const QString &path)
{
    if (injectedFault(QStringLiteral("sync"), path))
        return false;
#ifdef Q_OS_UNIX
    return fsyncPath(path, O_RDONLY);
#else
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        return false;
    return FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(file.handle())));
#endif
}

bool syncDirectory(const QString &dir)
{
#ifdef Q_OS_UNIX
    return fsyncPath(dir, O_RDONLY | O_DIRECTORY);
#else
    Q_UNUSED(dir)
    return true; // NTFS journals the rename itself
#endif
}

bool replaceFile(const QString &from, const QString &to)
{
    if (injectedFault(QStringLiteral("replace"), to))
        return false;
#ifdef Q_OS_UNIX
    return ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
#else
    return MoveFileExW(reinterpret_cast<const wchar_t *>(QDir::toNativeSeparators(from).utf16()),
                       reinterpret_cast<const wchar_t *>(QDir::toNativeSeparators(to).utf16()),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
#endif
}

DirectCopy copyDirect(int in, const QString &to, qint64 size, int *error,
                      const std::function<void(qint64, qint64)> &progress)
{
#ifdef Q_OS_LINUX
    // 4096 bytes suit devices with 512- and 4096-byte sectors alike.
    constexpr qint64 block = 4096;
    constexpr qint64 chunk = 8 << 20;
    const int out =
        ::open(QFile::encodeName(to).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_DIRECT, 0666);
    if (out < 0) {
        *error = errno;
        return errno == EINVAL ? DirectCopy::NotAvailable : DirectCopy::Failed;
    }
    auto end = [&](int code, DirectCopy result) {
        ::close(out);
        QFile::remove(to);
        *error = code;
        return result;
    };
    // Two buffers: the next chunk is read while this one is written, so a
    // source that is not in the cache costs no more than the writing.
    void *memory = nullptr;
    if (posix_memalign(&memory, block, 2 * chunk) != 0)
        return end(ENOMEM, DirectCopy::NotAvailable);
    const std::unique_ptr<void, void (*)(void *)> buffer(memory, &free);
    char *const buffers[2] = {static_cast<char *>(memory), static_cast<char *>(memory) + chunk};
    auto readChunk = [in, size, chunk](char *data, qint64 offset) {
        const qint64 want = qMin(chunk, size - offset);
        for (qint64 got = 0; got < want;) {
            const ssize_t n = ::pread(in, data + got, size_t(want - got), offset + got);
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0)
                return n < 0 ? errno : EIO;
            got += n;
        }
        return 0;
    };
    // Declared after the buffers: leaving early waits for the read under way
    // before the buffers are freed.
    std::future<int> reading = std::async(std::launch::async, readChunk, buffers[0], qint64(0));
    for (qint64 done = 0, turn = 0; done < size; turn ^= 1) {
        const int readError = reading.get();
        if (readError != 0)
            return end(readError, DirectCopy::Failed);
        const qint64 want = qMin(chunk, size - done);
        if (done + want < size)
            reading = std::async(std::launch::async, readChunk, buffers[turn ^ 1], done + want);
        char *data = buffers[turn];
        // The last block is written whole and the file cut back afterwards.
        const qint64 padded = (want + block - 1) / block * block;
        memset(data + want, 0, size_t(padded - want));
        for (qint64 written = 0; written < padded;) {
            const ssize_t n = ::pwrite(out, data + written, size_t(padded - written), done + written);
            if (n < 0 && errno == EINTR)
                continue;
            if (n < 0 && errno == EINVAL && done == 0 && written == 0)
                return end(EINVAL, DirectCopy::NotAvailable); // an alignment this device does not take
            if (n <= 0 || n % block != 0)
                return end(n < 0 ? errno : EIO, DirectCopy::Failed);
            written += n;
        }
        done += want;
        if (progress)
            progress(done, size);
    }
    if (::ftruncate(out, size) != 0)
        return end(errno, DirectCopy::Failed);
    if (::close(out) != 0) {
        *error = errno;
        QFile::remove(to);
        return DirectCopy::Failed;
    }
    return DirectCopy::Done;
#else
    Q_UNUSED(in)
    Q_UNUSED(to)
    Q_UNUSED(size)
    Q_UNUSED(progress)
    *error = 0;
    return DirectCopy::NotAvailable;
#endif
}

void readAhead(const QString &path)
{
#ifdef Q_OS_UNIX
    // A plain sequential read: the system's read-ahead hint alone fetches
    // only a window of a megabyte or so.
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return;
#ifdef Q_OS_LINUX
    ::posix_fadvise(fd, 0, 0, POSIX_FADV_SEQUENTIAL);
#endif
    QByteArray buffer(8 << 20, Qt::Uninitialized);
    while (::read(fd, buffer.data(), size_t(buffer.size())) > 0) {
    }
    ::close(fd);
#else
    Q_UNUSED(path)
#endif
}

bool copyFile(const QString &from, const QString &to, qint64 maxBytes)
{
    if (injectedFault(QStringLiteral("copy"), to))
        return false;
    QFile::remove(to);
#ifdef Q_OS_LINUX
    // Large projects: past the page cache, which the sync would wait for.
    {
        const int in = ::open(QFile::encodeName(from).constData(), O_RDONLY | O_CLOEXEC);
        struct stat st;
        int error = 0;
        DirectCopy direct = DirectCopy::NotAvailable;
        if (in >= 0 && ::fstat(in, &st) == 0 && S_ISREG(st.st_mode))
            direct = copyDirect(in, to, maxBytes < 0 ? qint64(st.st_size) : qMin<qint64>(st.st_size, maxBytes), &error);
        if (in >= 0)
            ::close(in);
        if (direct == DirectCopy::Failed)
            return false;
        if (direct == DirectCopy::Done) {
            if (syncFile(to))
                return true;
            QFile::remove(to);
            return false;
        }
    }
    // Let the kernel copy (and share extents where the file system can).
    {
        const int in = ::open(QFile::encodeName(from).constData(), O_RDONLY | O_CLOEXEC);
        const int out =
            in < 0 ? -1 : ::open(QFile::encodeName(to).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
        struct stat st;
        if (in >= 0 && out >= 0 && ::fstat(in, &st) == 0) {
            const qint64 size = maxBytes < 0 ? qint64(st.st_size) : qMin<qint64>(st.st_size, maxBytes);
            loff_t done = 0;
            bool failed = false;
            while (done < size) {
                const ssize_t n =
                    ::copy_file_range(in, &done, out, nullptr, size_t(qMin<qint64>(size - done, 64 << 20)), 0);
                if (n <= 0) {
                    failed = true;
                    break;
                }
            }
            const bool closed = ::close(out) == 0;
            ::close(in);
            if (!failed && closed) {
                if (syncFile(to))
                    return true;
                QFile::remove(to);
                return false;
            }
            if (done > 0) { // a real error in the middle, not a missing feature
                QFile::remove(to);
                return false;
            }
            QFile::remove(to);
        } else {
            if (in >= 0)
                ::close(in);
            if (out >= 0)
                ::close(out);
        }
    }
#endif
    QFile source(from);
    QFile target(to);
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly)) {
        target.remove();
        return false;
    }
    QByteArray buffer;
    buffer.resize(1 << 20);
    qint64 left = maxBytes < 0 ? source.size() : qMin(source.size(), maxBytes);
    for (;;) {
        const qint64 n = source.read(buffer.data(), qMin<qint64>(buffer.size(), left));
        left -= qMax<qint64>(n, 0);
        if (n < 0 || (n > 0 && target.write(buffer.constData(), n) != n)) {
            target.close();
            target.remove();
            return false;
        }
        if (n == 0)
            break;
    }
    if (!target.flush()) {
        target.close();
        target.remove();
        return false;
    }
    target.close();
    if (!syncFile(to)) {
        QFile::remove(to);
        return false;
    }
    return true;
}

bool linkOrCopy(const QString &from, const QString &to)
{
    if (injectedFault(QStringLiteral("link"), to))
        return false;
#ifdef Q_OS_UNIX
    if (::link(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0)
        return true;
#else
    if (CreateHardLinkW(reinterpret_cast<const wchar_t *>(QDir::toNativeSeparators(to).utf16()),
                        reinterpret_cast<const wchar_t *>(QDir::toNativeSeparators(from).utf16()), nullptr))
        return true;
#endif
    return copyFile(from, to);
}

bool removeDatabaseFile(const QString &path)
{
    if (injectedFault(QStringLiteral("remove"), path))
        return false;
    const QString journal = path + QStringLiteral("-journal");
    if (QFileInfo::exists(journal))
        QFile::remove(journal);
    return !QFileInfo::exists(path) || QFile::remove(path);
}

bool isReadOnly(const QString &path)
{
    const QFileInfo info(path);
    return !info.isWritable() || !(info.permissions() & (QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther));
}

bool processAlive(qint64 pid)
{
    if (pid <= 0)
        return false;
#ifdef Q_OS_UNIX
    return ::kill(static_cast<pid_t>(pid), 0) == 0 || errno == EPERM;
#else
    HANDLE h = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, static_cast<DWORD>(pid));
    if (!h)
        return false;
    DWORD code = 0;
    const bool alive = GetExitCodeProcess(h, &code) && code == STILL_ACTIVE;
    CloseHandle(h);
    return alive;
#endif
}

InstallResult installNew(const QString &from, const QString &to)
{
    if (injectedFault(QStringLiteral("install"), to))
        return InstallFailed;
#ifdef Q_OS_UNIX
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (::link(source.constData(), target.constData()) == 0) {
        ::unlink(source.constData());
        return Installed;
    }
    if (errno == EEXIST)
        return AlreadyExists;
#ifdef Q_OS_LINUX
    // File systems without hard links may still rename without replacing.
    if (::syscall(SYS_renameat2, AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0)
        return Installed;
    if (errno == EEXIST)
        return AlreadyExists;
#endif
    return InstallFailed;
#else
    if (MoveFileExW(reinterpret_cast<const wchar_t *>(QDir::toNativeSeparators(from).utf16()),
                    reinterpret_cast<const wchar_t *>(QDir::toNativeSeparators(to).utf16()), MOVEFILE_WRITE_THROUGH))
        return Installed;
    const DWORD error = GetLastError();
    return error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS ? AlreadyExists : InstallFailed;
#endif
}

void keepModeAndGroup(const QString &original, const QString &onto)
{
#ifdef Q_OS_UNIX
    struct stat st;
    if (::stat(QFile::encodeName(original).constData(), &st) != 0)
        return;
    const QByteArray target = QFile::encodeName(onto);
    // The group first: changing it may clear set-id bits that chmod then restores.
    if (::chown(target.constData(), uid_t(-1), st.st_gid) != 0) {
        // Not a member of that group: the file keeps ours.
    }
    ::chmod(target.constData(), st.st_mode & 07777);
#else
    QFile::setPermissions(onto, QFile::permissions(original));
#endif
}

bool isRegularFile(const QString &path)
{
#ifdef Q_OS_UNIX
    struct stat st;
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 && S_ISREG(st.st_mode);
#else
    return QFileInfo(path).isFile();
#endif
}

bool namesOpenFile(const QString &path, int fd)
{
#ifdef Q_OS_UNIX
    if (fd < 0)
        return true;
    struct stat byName, byDescriptor;
    if (::stat(QFile::encodeName(path).constData(), &byName) != 0 || ::fstat(fd, &byDescriptor) != 0)
        return false;
    return byName.st_dev == byDescriptor.st_dev && byName.st_ino == byDescriptor.st_ino;
#else
    Q_UNUSED(path)
    Q_UNUSED(fd)
    return true;
#endif
}

} // namespace KalFileOps
