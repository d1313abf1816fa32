// SPDX-License-Identifier: MIT
#include "run_program.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

#include <csignal>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kLimitMs = 120'000; // nothing here takes a tenth of it

using Variables = QMap<QString, QString>;

const Variables kPlainLocale{{"LC_ALL", "C"}};

void start(QProcess& process, const QString& folder, const QStringList& arguments,
    const Variables& locale = kPlainLocale)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name :
        {"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE", "QT_LOGGING_RULES"}) {
        environment.remove(name);
    }
    for (auto variable = locale.begin(); variable != locale.end(); ++variable) {
        environment.insert(variable.key(), variable.value());
    }
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(DATAEXPORT_PROGRAM, arguments);
    EXPECT_TRUE(process.waitForStarted(kLimitMs));
}

Outcome result(QProcess& process)
{
    Outcome run{
        .output = process.readAllStandardOutput(), .errors = process.readAllStandardError()};
    if (process.exitStatus() == QProcess::NormalExit) {
        run.status = process.exitCode();
    }
    return run;
}

// What becomes the program, in the new process.
[[noreturn]] void execute(const QByteArray& folder, const std::vector<QByteArray>& arguments)
{
    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (const QByteArray& argument : arguments) {
        pointers.push_back(const_cast<char*>(argument.constData())); // execv takes it so
    }
    pointers.push_back(nullptr);
    if (::chdir(folder.constData()) == 0) {
        ::execv(DATAEXPORT_PROGRAM, pointers.data());
    }
    ::_exit(127);
}

QByteArray readToEnd(int descriptor)
{
    QByteArray bytes;
    QByteArray part(4096, '\0');
    ssize_t count = 0;
    // A terminal whose program is gone ends in an error, not in an end of file.
    while ((count = ::read(descriptor, part.data(), static_cast<std::size_t>(part.size()))) > 0) {
        bytes += part.left(static_cast<int>(count));
    }
    return bytes;
}

} // namespace

Outcome runProgramIn(const QString& folder, const QStringList& arguments)
{
    return runProgramIn(folder, arguments, kPlainLocale);
}

Outcome runProgramIn(
    const QString& folder, const QStringList& arguments, const Variables& localeVariables)
{
    QProcess process;
    start(process, folder, arguments, localeVariables);
    EXPECT_TRUE(process.waitForFinished(kLimitMs));
    return result(process);
}

Outcome runProgramIn(
    const QString& folder, const QStringList& arguments, const std::function<void(int)>& began)
{
    QProcess process;
    start(process, folder, arguments);
    began(static_cast<int>(process.processId()));
    EXPECT_TRUE(process.waitForFinished(kLimitMs));
    return result(process);
}

Outcome interruptProgramIn(
    const QString& folder, const QStringList& arguments, const QByteArray& cue, int signal)
{
    QProcess process;
    process.setReadChannel(QProcess::StandardError);
    start(process, folder, arguments);
    QByteArray seen;
    while (!seen.contains(cue) && process.waitForReadyRead(kLimitMs)) {
        seen += process.readAllStandardError();
    }
    EXPECT_TRUE(seen.contains(cue)) << seen.toStdString();
    EXPECT_EQ(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    EXPECT_TRUE(process.waitForFinished(kLimitMs));
    Outcome run = result(process);
    run.errors.prepend(seen);
    return run;
}

Outcome runOnTerminal(const QString& folder, const QStringList& arguments, int columns)
{
    std::vector<QByteArray> encoded{"dataexport"};
    for (const QString& argument : arguments) {
        encoded.push_back(QFile::encodeName(argument));
    }
    const QByteArray encodedFolder = QFile::encodeName(folder);
    winsize size = {};
    size.ws_row = 24;
    size.ws_col = static_cast<unsigned short>(columns);
    int terminal = -1;
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, &size);
    if (child == 0) {
        execute(encodedFolder, encoded);
    }
    EXPECT_GT(child, 0);
    Outcome run{.output = readToEnd(terminal)};
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    ::close(terminal);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}
