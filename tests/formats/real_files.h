// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>

/// The directory with files of real devices, which is no part of the project.
inline QDir realFiles(const QString& folder)
{
    const QString given = qEnvironmentVariable("DATAEXPORT_TEST_DATA");
    const QString root = given.isEmpty() ? DATAEXPORT_SOURCE_DIR "/../shared/data" : given;
    return {root + '/' + folder};
}

inline QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
