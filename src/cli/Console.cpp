// SPDX-License-Identifier: MIT
#include "cli/Console.h"

#include "platform/literals.h"

#include <algorithm>

namespace {

QByteArray encodedLine(const QString& text)
{
    QString line = text;
    std::replace_if(
        line.begin(), line.end(),
        [](QChar c) { return c.category() == QChar::Other_Control && c != u'\n'; },
        QChar(QChar::ReplacementCharacter));
    return line.toUtf8() + '\n';
}

} // namespace

void Console::print(const QString& line)
{
    clearStatus();
    writeOutput(encodedLine(line));
}

void Console::note(const QString& line)
{
    if (m_verbosity != Verbosity::Quiet) {
        clearStatus();
        writeErrors(encodedLine(line));
    }
}

void Console::error(const QString& what)
{
    clearStatus();
    writeErrors(encodedLine("dataexport: "_L1 + what));
}

void Console::showStatus(const QString& text)
{
    // Blanks over the rest of the last text: every terminal knows them.
    const int blanks = std::max(0, std::min(m_statusWidth, columns() - 1) - text.size());
    writeErrors('\r' + text.toUtf8() + QByteArray(blanks, ' '));
    m_statusWidth = text.size();
}

void Console::clearStatus()
{
    if (m_statusWidth > 0) {
        showStatus(QString());
        writeErrors("\r");
    }
}
