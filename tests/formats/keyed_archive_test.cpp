// SPDX-License-Identifier: MIT
#include "formats/plist.h"
#include "plist_bytes.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace {

using formats::parsePlist;
using formats::PlistUid;
using formats::unarchive;

QVariant uid(quint64 index)
{
    return QVariant::fromValue(PlistUid{.index = index});
}

QVariantMap describedClass(const QStringList& chain)
{
    return {{"$classname", chain.first()}, {"$classes", chain}};
}

// The root is object 1.
QVariant archiveOf(const QVariantList& objects)
{
    return QVariantMap{{"$version", 100000}, {"$archiver", "NSKeyedArchiver"},
        {"$top", QVariantMap{{"root", uid(1)}}}, {"$objects", QVariantList{"$null"} + objects}};
}

// An object of one class (2), and what it refers to (3 and on).
QVariant unarchived(const QStringList& chain, QVariantMap fields, const QVariantList& others = {})
{
    fields.insert("$class", uid(2));
    return unarchive(archiveOf(QVariantList{fields, describedClass(chain)} + others));
}

TEST(KeyedArchive, ReadsTheRecordOfAFile)
{
    const QVariantMap record{{"$class", uid(4)}, {"RelativePath", uid(2)}, {"Size", 12LL},
        {"EncryptionKey", uid(3)}, {"Target", uid(0)}};
    const QVariantMap key{{"$class", uid(5)}, {"NS.data", QByteArray("\1\2")}};
    const QVariant value = unarchive(
        archiveOf({record, "Library/SMS/sms.db", key, describedClass({"MBFile", "NSObject"}),
            describedClass({"NSMutableData", "NSData", "NSObject"})}));
    EXPECT_EQ(
        value, QVariantMap({{"$class", "MBFile"}, {"RelativePath", "Library/SMS/sms.db"},
                   {"Size", 12LL}, {"EncryptionKey", QByteArray("\1\2")}, {"Target", QVariant()}}));
}

TEST(KeyedArchive, GivesObjectsOfKnownClassesAsValues)
{
    const QByteArray sixteen = QByteArray::fromHex("00112233445566778899aabbccddeeff");
    struct Row {
        const char* what;
        QStringList chain;
        QVariantMap fields;
        QVariantList others;
        QVariant value;
    };
    const QStringList url{"NSURL", "NSObject"};
    const Row rows[]{
        {"string", {"NSMutableString", "NSString"}, {{"NS.string", "a"}}, {}, "a"},
        {"string by reference", {"NSString"}, {{"NS.string", uid(3)}}, {"a"}, "a"},
        {"string of bytes", {"NSString"}, {{"NS.bytes", QByteArray("\xC3\xA4")}}, {},
            QString("\u00E4")},
        {"data", {"NSData"}, {{"NS.data", QByteArray("a")}}, {}, QByteArray("a")},
        {"data by reference", {"NSData"}, {{"NS.data", uid(3)}}, {QByteArray("a")},
            QByteArray("a")},
        {"data of bytes", {"NSData"}, {{"NS.bytes", QByteArray("a")}}, {}, QByteArray("a")},
        {"date", {"NSDate"}, {{"NS.time", 60.5}}, {},
            QDateTime({2001, 1, 1}, {0, 1, 0, 500}, Qt::UTC)},
        {"date in whole seconds", {"NSDate"}, {{"NS.time", 60LL}}, {},
            QDateTime({2001, 1, 1}, {0, 1}, Qt::UTC)},
        {"date without time", {"NSDate"}, {}, {}, QVariant()},
        {"UUID", {"NSUUID"}, {{"NS.uuidbytes", sixteen}}, {},
            "00112233-4455-6677-8899-AABBCCDDEEFF"},
        {"UUID of another size", {"NSUUID"}, {{"NS.uuidbytes", QByteArray("a")}}, {}, QVariant()},
        {"URL", url, {{"NS.base", uid(0)}, {"NS.relative", uid(3)}}, {"http://a.b/c"},
            "http://a.b/c"},
        {"URL with base", url, {{"NS.base", uid(3)}, {"NS.relative", uid(4)}},
            {QVariantMap{{"$class", uid(2)}, {"NS.base", uid(0)}, {"NS.relative", "http://a.b/c"}},
                "d"},
            "http://a.b/d"},
        {"null", {"NSNull"}, {}, {}, QVariant()},
        {"attributed string", {"NSAttributedString"},
            {{"NSString", uid(3)}, {"NSAttributes", uid(0)}}, {"a"}, "a"},
        {"array", {"NSMutableArray", "NSArray"},
            {{"NS.objects", QVariantList{uid(3), uid(0), uid(3)}}}, {"a"},
            QVariantList({"a", QVariant(), "a"})},
        {"set", {"NSSet"}, {{"NS.objects", QVariantList{uid(3)}}}, {5LL}, QVariantList({5LL})},
        {"dictionary", {"NSMutableDictionary", "NSDictionary"},
            {{"NS.keys", QVariantList{uid(3), uid(4), uid(0)}},
                {"NS.objects", QVariantList{uid(4), uid(0), uid(3)}}},
            {"a", 5LL}, QVariantMap({{"a", 5LL}, {"5", QVariant()}})},
        {"dictionary with a key too many", {"NSDictionary"},
            {{"NS.keys", QVariantList{uid(3), uid(3)}}, {"NS.objects", QVariantList{uid(3)}}},
            {"a"}, QVariantMap({{"a", "a"}})},
        {"class without a chain", {"NSUUID"}, {{"NS.uuidbytes", sixteen}}, {},
            "00112233-4455-6677-8899-AABBCCDDEEFF"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(unarchived(row.chain, row.fields, row.others), row.value);
    }
}

TEST(KeyedArchive, KeepsInlineContainersAndFollowsWhatIsInThem)
{
    EXPECT_EQ(
        unarchived({"Thing"},
            {{"list", QVariantList{uid(3), 1LL}}, {"map", QVariantMap{{"a", uid(3)}}}}, {"x"}),
        QVariantMap({{"$class", "Thing"}, {"list", QVariantList{"x", 1LL}},
            {"map", QVariantMap{{"a", "x"}}}}));
}

TEST(KeyedArchive, TakesTheTextOfNilForNilOnlyInItsPlace)
{
    EXPECT_EQ(unarchived({"NSSet"}, {{"NS.objects", QVariantList{uid(3), uid(0)}}}, {"$null"}),
        QVariantList({"$null", QVariant()}));
}

TEST(KeyedArchive, LeavesOutAnObjectInsideItself)
{
    EXPECT_EQ(unarchived({"Thing"}, {{"self", uid(1)}, {"a", 1LL}}),
        QVariantMap({{"$class", "Thing"}, {"self", QVariant()}, {"a", 1LL}}));
}

TEST(KeyedArchive, GivesAnObjectWholeWhereItDoesNotHoldItself)
{
    // 3 and 4 hold each other; the root holds both.
    const QVariantMap third{{"$class", uid(2)}, {"other", uid(4)}};
    const QVariantMap fourth{{"$class", uid(2)}, {"other", uid(3)}};
    const QVariantMap cut{{"$class", "Thing"}, {"other", QVariant()}};
    const QVariantMap whole{{"$class", "Thing"}, {"other", cut}};
    EXPECT_EQ(unarchived({"Thing"}, {{"a", uid(3)}, {"b", uid(4)}}, {third, fourth}),
        QVariantMap({{"$class", "Thing"}, {"a", whole}, {"b", whole}}));
}

TEST(KeyedArchive, IsInvalidForWhatIsNone)
{
    EXPECT_FALSE(unarchive(QVariant()).isValid());
    EXPECT_FALSE(unarchive("text").isValid());
    EXPECT_FALSE(unarchive(QVariantMap{{"a", 1}}).isValid());
    EXPECT_FALSE(unarchive(QVariantMap{{"$top", QVariantMap{{"root", uid(1)}}}}).isValid());
    EXPECT_FALSE(unarchive(archiveOf({})).isValid()) << "the root is beyond the objects";
}

// Each object is an array of the next one, `times` times.
QVariant chainOf(int length, int times)
{
    QVariantList objects;
    for (int i = 0; i < length; ++i) {
        QVariantList next;
        for (int time = 0; time < times; ++time) {
            next.append(uid(static_cast<quint64>(i) + 2));
        }
        objects.append(
            QVariantMap{{"$class", uid(static_cast<quint64>(length) + 1)}, {"NS.objects", next}});
    }
    objects.append(describedClass({"NSArray"}));
    return archiveOf(objects);
}

int depthOf(QVariant value)
{
    int depth = 0;
    while (value.type() == QVariant::List && !value.toList().isEmpty()) {
        value = value.toList().first();
        ++depth;
    }
    return depth;
}

TEST(KeyedArchive, CutsObjectsThatNestWithoutEnd)
{
    EXPECT_GT(depthOf(unarchive(chainOf(100, 1))), 99);
    const int depth = depthOf(unarchive(chainOf(100'000, 1)));
    EXPECT_GT(depth, 100);
    EXPECT_LT(depth, 300);
}

TEST(KeyedArchive, CutsAChainThatIsKnownFromItsEnd)
{
    constexpr int kLong = 3000;
    QVariantMap archive = chainOf(kLong, 1).toMap();
    QVariantList objects = archive.value("$objects").toList();
    QVariantList all;
    for (int i = kLong; i >= 1; --i) {
        all.append(uid(static_cast<quint64>(i)));
    }
    objects.append(QVariant(all));
    archive.insert("$objects", objects);
    archive.insert("$top", QVariantMap{{"root", uid(static_cast<quint64>(objects.size()) - 1)}});
    const QVariantList values = unarchive(archive).toList();
    ASSERT_EQ(values.size(), kLong);
    EXPECT_LT(depthOf(values.last()), 300);
}

TEST(KeyedArchive, EndsSoonWhereObjectsAreHeldManyTimes)
{
    EXPECT_GT(depthOf(unarchive(chainOf(60, 2))), 59);
    EXPECT_TRUE(unarchive(chainOf(1000, 2)).isValid());
}

TEST(KeyedArchive, EndsSoonWhereAllHoldAll)
{
    constexpr int kObjects = 30;
    QVariantList everyone;
    for (quint64 i = 1; i <= kObjects; ++i) {
        everyone.append(uid(i));
    }
    QVariantList objects;
    for (int i = 0; i < kObjects; ++i) {
        objects.append(QVariantMap{{"$class", uid(kObjects + 1)}, {"NS.objects", everyone}});
    }
    objects.append(describedClass({"NSArray"}));
    EXPECT_TRUE(unarchive(archiveOf(objects)).isValid());
}

TEST(KeyedArchive, IsReadFromBinary)
{
    // 0 top, 1-4 its keys, 5 version, 6 archiver, 7 {root: 8}, 8 UID 1, 9 "root", 10 objects,
    // 11 "$null", 12 "a"
    const auto parsed = parsePlist(
        binaryPlist({drawnArray("D4 01 02 03 04 05 06 07 0A"), drawnArray("58 '$version'"),
            drawnArray("59 '$archiver'"), drawnArray("54 '$top'"), drawnArray("58 '$objects'"),
            drawnArray("12 00 01 86 A0"), drawnArray("5F 10 0F 'NSKeyedArchiver'"),
            drawnArray("D1 09 08"), drawnArray("80 01"), drawnArray("54 'root'"),
            drawnArray("A2 0B 0C"), drawnArray("55 '$null'"), drawnArray("51 'a'")}),
        "x");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(unarchive(*parsed), "a");
}

TEST(KeyedArchive, IsReadFromXml)
{
    const auto parsed = parsePlist(xmlPlist(R"(<dict>
        <key>$archiver</key><string>NSKeyedArchiver</string>
        <key>$version</key><integer>100000</integer>
        <key>$top</key><dict><key>root</key><dict><key>CF$UID</key><integer>1</integer></dict></dict>
        <key>$objects</key><array><string>$null</string><string>a</string></array>
        </dict>)"),
        "x");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(unarchive(*parsed), "a");
}

} // namespace
