// SPDX-License-Identifier: MIT
#pragma once

#include "formats/Result.h"

#include <QByteArray>
#include <QMetaType>
#include <QVariant>

namespace formats {

/// A reference into the objects of a keyed archive.
struct PlistUid {
    quint64 index = 0;
    bool operator==(const PlistUid&) const = default;
};

/// Reads a property list, binary or XML. Dictionaries become QVariantMap, arrays QVariantList, and
/// the rest QString, QByteArray, bool, qlonglong, double, QDateTime (UTC) and PlistUid. `where`
/// names the file in the error.
Result<QVariant> parsePlist(const QByteArray& bytes, const QString& where);

/// The same for a file, whose path the error names.
Result<QVariant> readPlistFile(const QString& path);

/// The object that a keyed archive holds at its root, with all references followed: NSArray and
/// NSSet become QVariantList, NSDictionary QVariantMap, NSString, NSData and NSDate their values,
/// NSURL and NSUUID their texts, nil and NSNull invalid; any other object is a QVariantMap of its
/// keys with its class under "$class". A reference to an object that contains it is invalid.
/// Invalid when `archive` is no keyed archive.
QVariant unarchive(const QVariant& archive);

} // namespace formats

Q_DECLARE_METATYPE(formats::PlistUid)
