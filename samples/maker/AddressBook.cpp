// SPDX-License-Identifier: MIT
#include "AddressBook.h"

#include "common.h"
#include "media.h"
#include "pictures.h"
#include "plist_writer.h"

#include <QJsonValue>
#include <QRegularExpression>
#include <QVariantMap>

#include <algorithm>
#include <array>
#include <limits>
#include <map>

namespace sample {

namespace {

enum Property {
    Phone = 3,
    Mail = 4,
    Address = 5,
    Date = 12,
    Messenger = 13,
    Page = 22,
    Related = 23,
    Profile = 46
};

struct Values {
    const char* key; // in people.json
    int property;
};
// clang-format off
constexpr std::array kValues{
    Values{"phones",     Phone},
    Values{"mails",      Mail},
    Values{"addresses",  Address},
    Values{"dates",      Date},
    Values{"messengers", Messenger},
    Values{"pages",      Page},
    Values{"related",    Related},
    Values{"profiles",   Profile},
};
// clang-format on

// Days stand as noon of the day, in a decimal text.
QString dayText(const QString& day)
{
    return QString::number(secondsSince2001(day + " 12:00:00")) + ".0";
}

// The phone writes keys of its own collation here. These order alike: in capitals and without
// accents, by pronunciation where it is given.
QString sortText(const QJsonObject& person, const char* part, const char* phonetic)
{
    const QString spoken = person[QLatin1String(phonetic)].toString();
    QString text = (spoken.isEmpty() ? person[QLatin1String(part)].toString() : spoken)
                       .normalized(QString::NormalizationForm_KD)
                       .toUpper();
    text.remove(QRegularExpression("\\p{M}"));
    return text;
}

/// Where a person stands in the lists.
struct SortKeys {
    QString byFirst;
    QString byLast;
    int language = 0;

    // Latin letters have sections of their own, other names stand under "#".
    QString section(const QString& key) const
    {
        return language == 0 || key.isEmpty() ? key.left(1) : QStringLiteral("#");
    }
};

SortKeys sortKeysOf(const QJsonObject& person)
{
    const QString first = sortText(person, "First", "FirstPhonetic");
    const QString last = sortText(person, "Last", "LastPhonetic");
    SortKeys keys{
        .byFirst = (first + " " + last).simplified(), .byLast = (last + " " + first).simplified()};
    if (keys.byLast.isEmpty() || person["Kind"].toInt() == 1) {
        keys.byLast = sortText(person, "Organization", "OrganizationPhonetic");
        keys.byFirst = keys.byLast;
    }
    if (keys.byLast.isEmpty()) {
        keys.byLast = sortText(person, "Nickname", "Nickname");
        keys.byFirst = keys.byLast;
    }
    const QChar letter = keys.byLast.isEmpty() ? QChar() : keys.byLast.front();
    const bool isLatin = letter.script() == QChar::Script_Latin;
    keys.language = isLatin ? 0 : std::numeric_limits<int>::max();
    return keys;
}

// What the phone keeps of a day in another calendar.
QVariant otherCalendar(const QJsonObject& day)
{
    return QString::fromUtf8(xmlPlist(day.toVariantMap()));
}

QVariant cellOf(const QString& column, const QJsonValue& value)
{
    if (column == "Birthday") {
        return dayText(value.toString());
    }
    return value.isObject() ? otherCalendar(value.toObject()) : value.toVariant();
}

QString digitsOf(const QString& phone)
{
    QString digits;
    std::copy_if(phone.begin(), phone.end(), std::back_inserter(digits),
        [](QChar unit) { return unit.isDigit(); });
    return digits;
}

} // namespace

AddressBook::AddressBook(Database& book, Database& pictures, QString mediaFolder)
    : m_book(book), m_pictures(pictures), m_mediaFolder(std::move(mediaFolder))
{
}

void AddressBook::write(const QJsonObject& source)
{
    m_book.run("BEGIN");
    m_book.insert("_SqliteDatabaseProperties",
        {{"key", "_UniqueIdentifier"}, {"value", uuidFor("address book")}});
    m_book.insert("ABAccount", {{"AccountIdentifier", uuidFor("account of contacts")},
                                   {"guid", uuidFor("ABAccount") + ":ABAccount"}});
    m_book.insert("ABStore", {{"ROWID", 0}, {"StoreInternalIdentifier", "local"},
                                 {"MeIdentifier", 1}, {"guid", uuidFor("store 0")}});
    m_book.insert("ABStore", {{"ROWID", 1}, {"Name", "Card"}, {"Type", 1}, {"AccountID", 1},
                                 {"guid", uuidFor("store 1")}});
    qint64 row = 0;
    for (const QJsonValue& person : entriesOf(source["people"])) {
        writePerson(person.toObject(), ++row);
    }
    writeLinks(source["people"].toArray());
    for (const QJsonValue& group : entriesOf(source["groups"])) {
        writeGroup(group.toObject());
    }
    m_book.run("COMMIT");
}

// A key that begins with a capital letter is a column.
void AddressBook::writePerson(const QJsonObject& source, qint64 row)
{
    const qint64 made = secondsSince2001("2018-12-24 18:00:00") + row * 86400;
    const SortKeys sort = sortKeysOf(source);
    Database::Row cells{{"ROWID", row},
        {"guid", uuidFor(QString("person %1").arg(row)) + ":ABPerson"}, {"CreationDate", made},
        {"ModificationDate", made}, {"FirstSort", sort.byFirst}, {"LastSort", sort.byLast},
        {"FirstSortSection", sort.section(sort.byFirst)},
        {"LastSortSection", sort.section(sort.byLast)}, {"FirstSortLanguageIndex", sort.language},
        {"LastSortLanguageIndex", sort.language}};
    const QStringList keys = source.keys();
    std::vector<QByteArray> names; // outlive the row
    names.reserve(static_cast<std::size_t>(keys.size()));
    for (const QString& key : keys) {
        if (key.front().isUpper() && key != "IsPreferredImage") { // a column of links
            names.push_back(key.toUtf8());
            cells.emplace_back(names.back().constData(), cellOf(key, source[key]));
        }
    }
    if (source.contains("picture") || source.contains("thumbnail")) {
        cells.emplace_back("ImageType", "PHOTO");
    }
    for (const char* column : {"StoreID", "Kind"}) {
        if (!source.contains(QLatin1String(column))) {
            cells.emplace_back(column, 0);
        }
    }
    m_book.insert("ABPerson", cells);
    for (const Values& values : kValues) {
        writeValues(row, values.key, values.property, source[QLatin1String(values.key)]);
    }
    writePictures(source, row);
}

// A full picture has thumbnails of two sizes; of some people the phone has thumbnails alone.
void AddressBook::writePictures(const QJsonObject& source, qint64 row)
{
    const bool isWhole = source.contains("picture");
    const QString name = source[isWhole ? "picture" : "thumbnail"].toString();
    if (name.isEmpty()) {
        return;
    }
    const QByteArray bytes = media(name, m_mediaFolder);
    const QImage image = QImage::fromData(bytes);
    const QImage small =
        image.scaled(image.size() / 2, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    const QByteArray list = name.endsWith(".png") ? png(small) : jpeg(small);
    if (isWhole) {
        m_pictures.insert("ABFullSizeImage", {{"record_id", row}, {"crop_x", 0}, {"crop_y", 0},
                                                 {"crop_width", image.width()}, {"data", bytes}});
    }
    m_pictures.insert("ABThumbnailImage",
        {{"record_id", row}, {"format", 0}, {"derived_from_format", 2}, {"data", list}});
    m_pictures.insert("ABThumbnailImage",
        {{"record_id", row}, {"format", 5}, {"derived_from_format", 2}, {"data", bytes}});
}

// Each value is a pair of label and value; the value is a text or an object of entries.
void AddressBook::writeValues(
    qint64 person, const char* kind, int property, const QJsonValue& values)
{
    int identifier = 0;
    for (const QJsonValue& entry : entriesOf(values)) {
        const QJsonValue value = entry.toArray()[1];
        const QString text = property == Date ? dayText(value.toString()) : value.toString();
        const QString name = QString("%1 %2 %3").arg(person).arg(kind).arg(++identifier);
        const qint64 row = m_book.insert("ABMultiValue",
            {{"UID", ++m_values}, {"record_id", person}, {"property", property},
                {"identifier", identifier}, {"label", label(entry.toArray()[0].toString())},
                {"value", value.isObject() ? QString() : text}, {"guid", uuidFor(name)}});
        writeEntries(row, value.toObject());
        if (property == Phone) {
            m_book.insert(
                "ABPhoneLastFour", {{"multivalue_id", row}, {"value", digitsOf(text).right(4)}});
        }
    }
}

void AddressBook::writeEntries(qint64 value, const QJsonObject& entries)
{
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        m_book.insert("ABMultiValueEntry", {{"parent_id", value}, {"key", entryKey(entry.key())},
                                               {"value", entry.value().toString()}});
    }
}

// Cards with the same number are shown as one; one of them gives the name, one the picture.
void AddressBook::writeLinks(const QJsonArray& people)
{
    std::map<int, Database::Row> links;
    for (int index = 0; index < people.size(); ++index) {
        const QJsonObject card = people[index].toObject();
        const int link = card["PersonLink"].toInt();
        if (card["IsPreferredName"].toInt() == 1) {
            links[link].emplace_back("PreferredNamePersonID", index + 1);
        }
        if (card["IsPreferredImage"].toInt() == 1) {
            links[link].emplace_back("PreferredImagePersonID", index + 1);
        }
    }
    for (auto& [link, cells] : links) {
        cells.emplace_back("ROWID", link);
        cells.emplace_back("guid", uuidFor(QString("link %1").arg(link)));
        m_book.insert("ABPersonLink", cells);
    }
}

void AddressBook::writeGroup(const QJsonObject& source)
{
    const QString name = source["Name"].toString();
    const qint64 group = m_book.insert(
        "ABGroup", {{"Name", name}, {"StoreID", 0}, {"guid", uuidFor("people " + name)}});
    for (const QJsonValue& member : entriesOf(source["members"])) {
        m_book.insert("ABGroupMembers",
            {{"group_id", group}, {"member_type", 0}, {"member_id", member.toInt()}});
    }
}

qint64 AddressBook::label(const QString& text)
{
    qint64& row = m_labels[text];
    if (row == 0) {
        row = m_book.insert("ABMultiValueLabel", {{"value", text}});
    }
    return row;
}

qint64 AddressBook::entryKey(const QString& text)
{
    qint64& row = m_entryKeys[text];
    if (row == 0) {
        row = m_book.insert("ABMultiValueEntryKey", {{"value", text}});
    }
    return row;
}

} // namespace sample
