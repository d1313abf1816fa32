// SPDX-License-Identifier: MIT
#include "plist_writer.h"

#include "common.h"

#include <QDateTime>

#include <plist/plist.h>

#include <memory>

namespace sample {

namespace {

struct FreePlist {
    void operator()(void* node) const { plist_free(node); }
};
using Plist = std::unique_ptr<void, FreePlist>;

plist_t nodeOf(const QVariant& value);

plist_t dictOf(const QVariantMap& map)
{
    plist_t dict = plist_new_dict();
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        plist_dict_set_item(dict, entry.key().toUtf8().constData(), nodeOf(entry.value()));
    }
    return dict;
}

plist_t arrayOf(const QVariantList& list)
{
    plist_t array = plist_new_array();
    for (const QVariant& value : list) {
        plist_array_append_item(array, nodeOf(value));
    }
    return array;
}

plist_t dataOf(const QByteArray& bytes)
{
    return plist_new_data(bytes.constData(), static_cast<uint64_t>(bytes.size()));
}

plist_t dateOf(const QDateTime& date)
{
    return plist_new_date(static_cast<int32_t>(date.toSecsSinceEpoch() - kUnixAt2001), 0);
}

plist_t nodeOf(const QVariant& value)
{
    if (value.userType() == qMetaTypeId<Uid>()) {
        return plist_new_uid(value.value<Uid>().index);
    }
    switch (value.userType()) {
    case QMetaType::QVariantMap:
        return dictOf(value.toMap());
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return arrayOf(value.toList());
    case QMetaType::QByteArray:
        return dataOf(value.toByteArray());
    case QMetaType::QDateTime:
        return dateOf(value.toDateTime());
    case QMetaType::Bool:
        return plist_new_bool(value.toBool());
    case QMetaType::Double:
        return plist_new_real(value.toDouble());
    case QMetaType::QString:
        return plist_new_string(value.toString().toUtf8().constData());
    default:
        return plist_new_uint(value.toULongLong());
    }
}

using Writer = void (*)(plist_t, char**, uint32_t*);

QByteArray written(const QVariant& value, Writer writer)
{
    const Plist root(nodeOf(value));
    char* bytes = nullptr;
    uint32_t size = 0;
    writer(root.get(), &bytes, &size);
    if (bytes == nullptr) {
        fail("a property list could not be written");
    }
    QByteArray result(bytes, static_cast<int>(size));
    plist_to_bin_free(bytes);
    return result;
}

} // namespace

QByteArray binaryPlist(const QVariant& value)
{
    return written(value, plist_to_bin);
}

QByteArray xmlPlist(const QVariant& value)
{
    return written(value, plist_to_xml);
}

QByteArray keyedArchive(const QVariantList& objects)
{
    return binaryPlist(QVariantMap{
        {"$version", 100000},
        {"$archiver", "NSKeyedArchiver"},
        {"$top", QVariantMap{{"root", uid(1)}}},
        {"$objects", QVariantList{"$null"} + objects},
    });
}

QVariantMap keyedClass(const QStringList& chain)
{
    return {{"$classname", chain.first()}, {"$classes", chain}};
}

QVariant uid(quint64 index)
{
    return QVariant::fromValue(Uid{index});
}

} // namespace sample
