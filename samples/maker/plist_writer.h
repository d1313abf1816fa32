// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QVariant>

namespace sample {

/// A reference into the objects of a keyed archive.
struct Uid {
    quint64 index = 0;
};

/// Property lists of QVariantMap, QVariantList, QString, QByteArray, bool, whole numbers, double,
/// QDateTime and Uid.
QByteArray binaryPlist(const QVariant& value);
QByteArray xmlPlist(const QVariant& value);

/// A keyed archive. `objects` lacks the "$null" at its begin: object 1 comes first, and is the
/// root.
QByteArray keyedArchive(const QVariantList& objects);

/// The object that names a class: keyedClass({"NSURL", "NSObject"}).
QVariantMap keyedClass(const QStringList& chain);

/// A reference as a value.
QVariant uid(quint64 index);

} // namespace sample

Q_DECLARE_METATYPE(sample::Uid)
