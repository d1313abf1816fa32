// SPDX-License-Identifier: MIT
#include "formats/cocoa_values.h"
#include "formats/plist.h"

#include <QUuid>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

// A keyed archive is a property list; every object stands once in a list and is named by its place
// (U1 is a reference to place 1).
//
//   { $archiver: "NSKeyedArchiver", $version: 100000, $top: {root: U1},
//     $objects: [
//       "$null",                                                0, which is nil
//       {$class: U4, RelativePath: U2, Size: 12, Digest: U3},   1
//       "Library/SMS/sms.db",                                   2
//       {$class: U5, NS.data: 0102...},                         3
//       {$classname: "MBFile", $classes: ["MBFile", "NSObject"]},                           4
//       {$classname: "NSMutableData", $classes: ["NSMutableData", "NSData", "NSObject"]} ]} 5
//
// Texts, data and numbers stand as they are or as objects; keys of objects hold numbers and data
// themselves and name all else by reference.
namespace formats {

namespace {

// How deep objects nest in what is handed on. Real ones keep below twenty.
constexpr int kMaxDepth = 256;
// An object is followed once, but for those that lead back to where they are held. So many values
// in such objects are followed again.
constexpr int kMaxRepeats = 200'000;

class Unarchiver {
public:
    explicit Unarchiver(const QVariantList& objects)
        : m_objects(objects), m_known(static_cast<std::size_t>(objects.size()))
    {
    }

    QVariant follow(const QVariant& stored);

private:
    using Object = QVariantMap;

    struct Known {
        enum { Untouched, Open, Complete, Cut } state = Untouched;
        QVariant value;
        int height = 0;
    };
    // Of the object that is being followed.
    struct Frame {
        int height = 0;   // how deep others nest in it
        bool cut = false; // whether something in it was left out for where it stands
    };

    template <typename Action> QVariant nested(const Action& action);
    QVariant leftOut();
    QVariant objectAt(quint64 index);
    QVariant valueOf(const QVariant& object);
    QStringList classesOf(const Object& object) const;

    QVariantList followList(const QVariantList& stored);
    QVariantMap followMap(const QVariantMap& stored);
    QVariant list(const Object& object);
    QVariant dictionary(const Object& object);
    QVariant text(const Object& object);
    QVariant bytes(const Object& object);
    QVariant date(const Object& object);
    QVariant url(const Object& object);
    QVariant uuid(const Object& object);
    QVariant attributedText(const Object& object);
    QVariant nothing(const Object& object);

    struct KnownClass {
        QLatin1String name;
        QVariant (Unarchiver::*value)(const Object& object) = nullptr;
    };
    static const std::array<KnownClass, 10> kKnownClasses;

    const QVariantList m_objects;
    std::vector<Known> m_known;
    Frame m_frame;
    int m_depth = 0;
    int m_repeating = 0; // how many objects around this one are followed again
    int m_repeats = 0;
};

// clang-format off
const std::array<Unarchiver::KnownClass, 10> Unarchiver::kKnownClasses{{
    {QLatin1String("NSArray"),            &Unarchiver::list},
    {QLatin1String("NSSet"),              &Unarchiver::list},
    {QLatin1String("NSDictionary"),       &Unarchiver::dictionary},
    {QLatin1String("NSString"),           &Unarchiver::text},
    {QLatin1String("NSData"),             &Unarchiver::bytes},
    {QLatin1String("NSDate"),             &Unarchiver::date},
    {QLatin1String("NSURL"),              &Unarchiver::url},
    {QLatin1String("NSUUID"),             &Unarchiver::uuid},
    {QLatin1String("NSAttributedString"), &Unarchiver::attributedText},
    {QLatin1String("NSNull"),             &Unarchiver::nothing},
}};
// clang-format on

QVariant Unarchiver::follow(const QVariant& stored)
{
    m_repeats += m_repeating > 0 ? 1 : 0;
    if (m_repeats > kMaxRepeats && m_repeating > 0) {
        return leftOut();
    }
    if (stored.userType() == qMetaTypeId<PlistUid>()) {
        return objectAt(stored.value<PlistUid>().index);
    }
    if (stored.type() == QVariant::List) {
        return nested([&] { return QVariant(followList(stored.toList())); });
    }
    if (stored.type() == QVariant::Map) {
        return nested([&] { return QVariant(followMap(stored.toMap())); });
    }
    return stored;
}

// Runs `action` one level deeper and tells the level above how deep it was.
template <typename Action> QVariant Unarchiver::nested(const Action& action)
{
    if (m_depth >= kMaxDepth) {
        return leftOut();
    }
    ++m_depth;
    const Frame above = std::exchange(m_frame, Frame());
    QVariant value = action();
    --m_depth;
    m_frame.height = std::max(above.height, m_frame.height + 1);
    m_frame.cut = m_frame.cut || above.cut;
    return value;
}

QVariant Unarchiver::leftOut()
{
    m_frame.cut = true;
    return {};
}

QVariant Unarchiver::objectAt(quint64 index)
{
    const bool nil = index == 0 && m_objects.first() == QStringLiteral("$null");
    if (nil || index >= m_known.size()) {
        return {};
    }
    Known& known = m_known[index];
    if (known.state == Known::Open || m_depth + known.height >= kMaxDepth) {
        return leftOut();
    }
    if (known.state == Known::Complete) {
        m_frame.height = std::max(m_frame.height, known.height + 1);
        return known.value;
    }
    return nested([&] {
        const int repeating = known.state == Known::Cut ? 1 : 0;
        m_repeating += repeating;
        known.state = Known::Open;
        QVariant value = valueOf(m_objects.at(static_cast<int>(index)));
        m_repeating -= repeating;
        // What was left out here may be had elsewhere.
        known.state = m_frame.cut ? Known::Cut : Known::Complete;
        if (known.state == Known::Complete) {
            known.value = value;
            known.height = m_frame.height;
        }
        return value;
    });
}

QVariant Unarchiver::valueOf(const QVariant& object)
{
    const Object fields = object.toMap();
    const QStringList classes = classesOf(fields);
    if (classes.isEmpty()) {
        return follow(object);
    }
    for (const QString& name : classes) {
        const auto* const found = std::ranges::find(kKnownClasses, name, &KnownClass::name);
        if (found != kKnownClasses.end()) {
            return (this->*found->value)(fields);
        }
    }
    QVariantMap values;
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        values.insert(field.key(), follow(field.value()));
    }
    values.insert(QStringLiteral("$class"), classes.first());
    return values;
}

// The class of an object and those above it; empty for what is no object.
QStringList Unarchiver::classesOf(const Object& object) const
{
    const QVariant reference = object.value(QStringLiteral("$class"));
    const quint64 index = reference.value<PlistUid>().index;
    if (index == 0 || index >= m_known.size()) {
        return {};
    }
    const QVariantMap described = m_objects.at(static_cast<int>(index)).toMap();
    QStringList names(described.value(QStringLiteral("$classname")).toString());
    names += described.value(QStringLiteral("$classes")).toStringList();
    return names;
}

QVariantList Unarchiver::followList(const QVariantList& stored)
{
    QVariantList values;
    values.reserve(stored.size());
    for (const QVariant& value : stored) {
        values.append(follow(value));
    }
    return values;
}

QVariantMap Unarchiver::followMap(const QVariantMap& stored)
{
    QVariantMap values;
    for (auto field = stored.begin(); field != stored.end(); ++field) {
        values.insert(field.key(), follow(field.value()));
    }
    return values;
}

QVariant Unarchiver::list(const Object& object)
{
    return followList(object.value(QStringLiteral("NS.objects")).toList());
}

// A key that has no text cannot be asked for and is left out.
QVariant Unarchiver::dictionary(const Object& object)
{
    const QVariantList keys = object.value(QStringLiteral("NS.keys")).toList();
    const QVariantList values = object.value(QStringLiteral("NS.objects")).toList();
    QVariantMap entries;
    for (int i = 0; i < keys.size() && i < values.size(); ++i) {
        const QVariant key = follow(keys.at(i));
        if (key.canConvert<QString>()) {
            entries.insert(key.toString(), follow(values.at(i)));
        }
    }
    return entries;
}

QVariant Unarchiver::text(const Object& object)
{
    const QVariant plain = follow(object.value(QStringLiteral("NS.string")));
    return plain.isValid() ? plain.toString() : QString::fromUtf8(bytes(object).toByteArray());
}

QVariant Unarchiver::bytes(const Object& object)
{
    const QVariant data = follow(object.value(QStringLiteral("NS.data")));
    return data.isValid() ? data.toByteArray()
                          : follow(object.value(QStringLiteral("NS.bytes"))).toByteArray();
}

QVariant Unarchiver::date(const Object& object)
{
    const QVariant seconds = follow(object.value(QStringLiteral("NS.time")));
    return seconds.isValid() ? QVariant(dateFromCocoaSeconds(seconds.toDouble())) : QVariant();
}

QVariant Unarchiver::url(const Object& object)
{
    return urlText(follow(object.value(QStringLiteral("NS.base"))).toString(),
        follow(object.value(QStringLiteral("NS.relative"))).toString());
}

QVariant Unarchiver::uuid(const Object& object)
{
    const QByteArray raw = follow(object.value(QStringLiteral("NS.uuidbytes"))).toByteArray();
    return raw.size() == 16
               ? QVariant(QUuid::fromRfc4122(raw).toString(QUuid::WithoutBraces).toUpper())
               : QVariant();
}

QVariant Unarchiver::attributedText(const Object& object)
{
    return follow(object.value(QStringLiteral("NSString"))).toString();
}

QVariant Unarchiver::nothing(const Object& /*object*/)
{
    return {};
}

} // namespace

QVariant unarchive(const QVariant& archive)
{
    const QVariantMap fields = archive.toMap();
    const QVariantMap top = fields.value(QStringLiteral("$top")).toMap();
    const QVariantList objects = fields.value(QStringLiteral("$objects")).toList();
    if (top.isEmpty() || objects.isEmpty()) {
        return {};
    }
    return Unarchiver(objects).follow(top.value(QStringLiteral("root")));
}

} // namespace formats
