// SPDX-License-Identifier: MIT
// AddressBookImages.sqlitedb:
//   ABFullSizeImage   record_id -> ABPerson of the other database, data: JPEG, also PNG or HEIC
//   ABThumbnailImage  the same; several for a card, of different sizes
#include "backup/readers/ContactPictures.h"

#include "backup/container/Notices.h"
#include "backup/readers/sorted_rows.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <tuple>

namespace backup {

namespace {

constexpr QLatin1String kFullSize = "ABFullSizeImage"_L1;
constexpr QLatin1String kThumbnail = "ABThumbnailImage"_L1;

const QString& databaseName()
{
    static const QString name = QStringLiteral("AddressBookImages.sqlitedb");
    return name;
}

formats::Statement dataOfRow(const TableReader& reader, const QString& table)
{
    auto query = reader.prepareRow(table, std::array{WantedColumn{"data"_L1}});
    return query ? std::move(*query) : formats::Statement();
}

} // namespace

ContactPictures::Store::Store(OpenedDatabase opened, Notices& notices)
    : database(std::move(opened)), reader(database.database, databaseName(), notices)
{
    findIn(kFullSize, false);
    findIn(kThumbnail, true);
    std::ranges::stable_sort(pictures, {}, [](const Picture& picture) {
        return std::tuple(picture.card, picture.isThumbnail, -picture.size);
    });
    full = dataOfRow(reader, kFullSize);
    thumbnail = dataOfRow(reader, kThumbnail);
}

void ContactPictures::Store::findIn(const QString& table, bool areThumbnails)
{
    const std::array columns{
        WantedColumn{"record_id"_L1, true}, WantedColumn{"data"_L1, true, true}};
    reader.read(table, columns, [&](const formats::Statement& row) {
        if (row.integer(1) > 0) {
            pictures.push_back({.card = row.integer(0),
                .isThumbnail = areThumbnails,
                .size = row.integer(1),
                .row = row.integer(2)});
        }
    });
}

void ContactPictures::open(bool areExpected)
{
    if (m_isOpened) {
        return;
    }
    m_isOpened = true;
    auto opened = m_open();
    if (!opened) {
        if (areExpected) {
            m_notices.add(QCoreApplication::translate("DataExport", "The backup has no %1.")
                              .arg(databaseName()));
        }
    } else if (!*opened) {
        m_notices.add(opened->error().text());
    } else {
        m_store = std::make_unique<Store>(std::move(**opened), m_notices);
    }
}

QByteArray ContactPictures::bytesOf(const Picture& picture)
{
    formats::Statement& query = picture.isThumbnail ? m_store->thumbnail : m_store->full;
    query.reset();
    query.bind(1, picture.row);
    QByteArray bytes;
    if (query.next()) {
        bytes = query.blob(0);
    }
    if (query.failed()) {
        m_store->reader.noteDamage();
    }
    query.reset();
    return bytes;
}

QByteArray ContactPictures::ofCard(qint64 card)
{
    for (const Picture& picture : rowsWith(m_store->pictures, card, &Picture::card)) {
        QByteArray bytes = bytesOf(picture);
        if (!bytes.isEmpty()) {
            return bytes; // where the full one is damaged, a thumbnail serves
        }
    }
    return {};
}

QByteArray ContactPictures::of(std::span<const qint64> cards, bool areExpected)
{
    open(areExpected);
    if (!m_store) {
        return {};
    }
    QByteArray bytes;
    for (auto card = cards.begin(); bytes.isEmpty() && card != cards.end(); ++card) {
        bytes = ofCard(*card);
    }
    return bytes;
}

} // namespace backup
