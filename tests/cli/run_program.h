// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>

/// What a run of the program left behind.
struct Outcome {
    QByteArray output;
    QByteArray errors;
    int status = -1; ///< -1: it did not end by itself
};

/// Runs the built program in `folder`, in the locale "C", to its end.
Outcome runProgramIn(const QString& folder, const QStringList& arguments);

/// The same in another locale: LC_ALL is not set, and these variables are.
Outcome runProgramIn(const QString& folder, const QStringList& arguments,
    const QMap<QString, QString>& localeVariables);

/// The same; `began` gets the number of its process.
Outcome runProgramIn(
    const QString& folder, const QStringList& arguments, const std::function<void(int)>& began);

/// The same; the first time that the program's errors hold `cue`, it gets the signal.
Outcome interruptProgramIn(
    const QString& folder, const QStringList& arguments, const QByteArray& cue, int signal);

/// All that the program writes to a terminal of that width, in the order of its writing.
Outcome runOnTerminal(const QString& folder, const QStringList& arguments, int columns);
