// SPDX-License-Identifier: MIT
#include "formats/plist.h"

#include "formats/cocoa_values.h"
#include "formats/plist_limits.h"

#include <QFile>

#include <plist/plist.h>

#include <cstdlib>
#include <limits>
#include <memory>

// The three forms of a property list; two are read.
//
//   binary   62 70 6C 69 73 74 30 30 ("bplist00"), objects, table of their offsets, footer
//   XML      <?xml version="1.0" encoding="UTF-8"?>
//            <!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://...">
//            <plist version="1.0"><dict><key>IsEncrypted</key><false/></dict></plist>
//   old text { IsEncrypted = NO; }
//
// A reference of a keyed archive is a kind of its own in the binary form; in XML it is a dictionary
// with the one key "CF$UID".
namespace formats {

namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

struct FreePlist {
    void operator()(void* node) const { plist_free(node); }
};
using OwnedPlist = std::unique_ptr<void, FreePlist>;

struct FreeMemory {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): libplist hands out what malloc gave
    void operator()(void* memory) const { std::free(memory); }
};
template <typename T> using OwnedMemory = std::unique_ptr<T, FreeMemory>;

QVariant valueOf(plist_t node);

QVariant truthOf(plist_t node)
{
    quint8 truth = 0;
    plist_get_bool_val(node, &truth);
    return truth != 0;
}

// libplist hands negative numbers out as their two's complement.
QVariant integerOf(plist_t node)
{
    uint64_t number = 0;
    plist_get_uint_val(node, &number);
    return static_cast<qlonglong>(number);
}

QVariant realOf(plist_t node)
{
    double number = 0;
    plist_get_real_val(node, &number);
    return number;
}

QVariant stringOf(plist_t node)
{
    uint64_t size = 0;
    const char* utf8 = plist_get_string_ptr(node, &size);
    return QString::fromUtf8(utf8, static_cast<int>(size));
}

QVariant dataOf(plist_t node)
{
    uint64_t size = 0;
    const char* bytes = plist_get_data_ptr(node, &size);
    return QByteArray(bytes, static_cast<int>(size));
}

// libplist tells the seconds in 32 bits. What lies beyond (before 1932, after 2069) comes out as
// the lowest number, and as an invalid date here. The fraction has no sign of its own.
QVariant dateOf(plist_t node)
{
    qint32 seconds = 0;
    qint32 fraction = 0;
    plist_get_date_val(node, &seconds, &fraction);
    if (seconds == std::numeric_limits<qint32>::min()) {
        return QDateTime();
    }
    return dateFromCocoaSeconds(seconds + (seconds < 0 ? -1 : 1) * fraction / 1e6);
}

QVariant uidOf(plist_t node)
{
    uint64_t index = 0;
    plist_get_uid_val(node, &index);
    return QVariant::fromValue(PlistUid{.index = index});
}

QVariant arrayOf(plist_t node)
{
    plist_array_iter made = nullptr;
    plist_array_new_iter(node, &made);
    const OwnedMemory<void> iterator(made);
    QVariantList array;
    array.reserve(static_cast<int>(plist_array_get_size(node)));
    plist_t item = nullptr;
    for (plist_array_next_item(node, made, &item); item != nullptr;
         plist_array_next_item(node, made, &item)) {
        array.append(valueOf(item));
    }
    return array;
}

QVariant dictionaryOf(plist_t node)
{
    static const QString uidKey = QStringLiteral("CF$UID");
    plist_dict_iter made = nullptr;
    plist_dict_new_iter(node, &made);
    const OwnedMemory<void> iterator(made);
    QVariantMap dictionary;
    for (;;) {
        char* madeKey = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, made, &madeKey, &item);
        const OwnedMemory<char> key(madeKey);
        if (item == nullptr) {
            break;
        }
        dictionary.insert(QString::fromUtf8(madeKey), valueOf(item));
    }
    const QVariant uid = dictionary.size() == 1 ? dictionary.value(uidKey) : QVariant();
    return uid.type() == QVariant::LongLong
               ? QVariant::fromValue(PlistUid{.index = uid.toULongLong()})
               : QVariant(dictionary);
}

QVariant valueOf(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
        return truthOf(node);
    case PLIST_UINT:
        return integerOf(node);
    case PLIST_REAL:
        return realOf(node);
    case PLIST_STRING:
        return stringOf(node);
    case PLIST_ARRAY:
        return arrayOf(node);
    case PLIST_DICT:
        return dictionaryOf(node);
    case PLIST_DATE:
        return dateOf(node);
    case PLIST_DATA:
        return dataOf(node);
    case PLIST_UID:
        return uidOf(node);
    default:
        return {};
    }
}

// Null if libplist may have the bytes.
QString faultOf(const QByteArray& bytes)
{
    const QByteArray start = bytes.left(64).trimmed();
    if (start.isEmpty()) {
        return bytes.trimmed().isEmpty() ? QStringLiteral("the property list is empty")
                                         : xmlPlistFault(bytes);
    }
    if (bytes.startsWith("bplist")) {
        return binaryPlistFault(bytes);
    }
    if (start.startsWith('<')) {
        return xmlPlistFault(bytes);
    }
    if (start.startsWith('{') || start.startsWith('(')) {
        return QStringLiteral("property lists in the old text form are not read");
    }
    return QStringLiteral("this is no property list");
}

} // namespace

Result<QVariant> parsePlist(const QByteArray& bytes, const QString& where)
{
    const QByteArray list =
        bytes.startsWith(kByteOrderMark) ? bytes.mid(int(sizeof kByteOrderMark) - 1) : bytes;
    const QString fault = faultOf(list);
    if (!fault.isNull()) {
        return Error{.where = where, .what = fault};
    }
    plist_t made = nullptr;
    plist_from_memory(list.constData(), static_cast<uint32_t>(list.size()), &made);
    const OwnedPlist plist(made);
    if (!plist) {
        return Error{.where = where, .what = QStringLiteral("the property list is damaged")};
    }
    return valueOf(plist.get());
}

Result<QVariant> readPlistFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Error{.where = path, .what = file.errorString()};
    }
    return parsePlist(file.readAll(), path);
}

} // namespace formats
