// SPDX-License-Identifier: MIT
#include "cli/StandardConsole.h"

#include <cerrno>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr int kUsualColumns = 80;

// A reader that has gone away is no reason to stop an export.
void writeAll(int descriptor, const QByteArray& bytes)
{
    qint64 at = 0;
    while (at < bytes.size()) {
        const ssize_t written = ::write(
            descriptor, bytes.constData() + at, static_cast<std::size_t>(bytes.size() - at));
        if (written < 0 && errno != EINTR) {
            return;
        }
        at += written > 0 ? written : 0;
    }
}

} // namespace

bool StandardConsole::isTerminal() const
{
    return ::isatty(STDERR_FILENO) == 1;
}

int StandardConsole::columns() const
{
    winsize size = {};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the interface of the system
    const bool known = ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : kUsualColumns;
}

void StandardConsole::writeOutput(const QByteArray& bytes)
{
    writeAll(STDOUT_FILENO, bytes);
}

void StandardConsole::writeErrors(const QByteArray& bytes)
{
    writeAll(STDERR_FILENO, bytes);
}
