// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <vector>

namespace sample {

/// Says what is wrong with the sources and ends the program: a half-made sample is of no use.
[[noreturn]] void fail(const QString& what);

QByteArray readFile(const QString& path);
void writeFile(const QString& path, const QByteArray& bytes);
QJsonObject readJson(const QString& path);

/// What an array holds; nothing where there is none.
std::vector<QJsonValue> entriesOf(const QJsonValue& array);

/// An upper-case UUID that is always the same for `name`.
QString uuidFor(const QString& name);

/// Seconds since 2001 of a moment in UTC, "2021-07-03 09:12:05".
qint64 secondsSince2001(const QString& moment);

/// Seconds from 1970 to 2001.
constexpr qint64 kUnixAt2001 = 978307200;

} // namespace sample
