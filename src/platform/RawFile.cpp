// SPDX-License-Identifier: MIT
#include "platform/RawFile.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t kMode = 0666; // less what the user's mask takes away

// -1 where it does not open, as for a name that no file can have.
int opened(const QString& path, int flags)
{
    return path.contains(QChar(u'\0'))
               ? -1
               : ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, kMode);
}

bool isDirectory(int file)
{
    struct stat about = {};
    return ::fstat(file, &about) == 0 && S_ISDIR(about.st_mode);
}

} // namespace

bool RawFile::openToRead(const QString& path)
{
    close();
    m_file = opened(path, O_RDONLY);
    if (m_file >= 0 && isDirectory(m_file)) {
        close();
    }
    return m_file >= 0;
}

bool RawFile::openToWrite(const QString& path)
{
    close();
    m_file = opened(path, O_WRONLY | O_CREAT | O_TRUNC);
    return m_file >= 0;
}

void RawFile::close()
{
    if (m_file >= 0) {
        ::close(m_file);
    }
    m_file = -1;
}

// The file moves on, which no member shows.
// NOLINTBEGIN(readability-make-member-function-const)
qint64 RawFile::read(char* bytes, qint64 size)
{
    ssize_t got = 0;
    do {
        got = ::read(m_file, bytes, static_cast<size_t>(size));
    } while (got < 0 && errno == EINTR);
    return got;
}

qint64 RawFile::write(const char* bytes, qint64 size)
{
    qint64 done = 0;
    while (done < size) {
        const ssize_t put = ::write(m_file, bytes + done, static_cast<size_t>(size - done));
        if (put == 0 || (put < 0 && errno != EINTR)) {
            break;
        }
        done += put > 0 ? put : 0;
    }
    return done;
}
// NOLINTEND(readability-make-member-function-const)
