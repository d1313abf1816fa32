// SPDX-License-Identifier: MIT
#include "common.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUuid>

#include <cstdio>
#include <cstdlib>

namespace sample {

void fail(const QString& what)
{
    std::fprintf(stderr, "make_sample_backup: %s\n", qUtf8Printable(what));
    std::exit(1);
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(path + ": " + file.errorString());
    }
    return file.readAll();
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    if (!QDir().mkpath(QFileInfo(path).path())) {
        fail(path + ": its folder cannot be made");
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        fail(path + ": " + file.errorString());
    }
}

QJsonObject readJson(const QString& path)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(readFile(path), &error);
    if (!document.isObject()) {
        fail(QString("%1, byte %2: %3").arg(path).arg(error.offset).arg(error.errorString()));
    }
    return document.object();
}

std::vector<QJsonValue> entriesOf(const QJsonValue& array)
{
    const QJsonArray entries = array.toArray();
    return {entries.begin(), entries.end()};
}

QString uuidFor(const QString& name)
{
    const QUuid id = QUuid::createUuidV5(QUuid(), "sample backup " + name);
    return id.toString(QUuid::WithoutBraces).toUpper();
}

qint64 secondsSince2001(const QString& moment)
{
    QDateTime time = QDateTime::fromString(moment, "yyyy-MM-dd hh:mm:ss");
    time.setTimeSpec(Qt::UTC);
    if (!time.isValid()) {
        fail("this is no moment like 2021-07-03 09:12:05: " + moment);
    }
    return time.toSecsSinceEpoch() - kUnixAt2001;
}

} // namespace sample
