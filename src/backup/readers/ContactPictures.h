// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/opened_database.h"
#include "backup/readers/table_reader.h"

#include <QByteArray>

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace backup {

class Notices;

/// The pictures of an address book, which lie in a database of their own. It is opened when the
/// first picture is asked for; where each picture lies is kept, its bytes are not.
class ContactPictures {
public:
    /// None where the device has no such database.
    using Open = std::function<std::optional<formats::Result<OpenedDatabase>>()>;

    /// `notices` outlives the pictures.
    ContactPictures(Open open, Notices& notices) : m_open(std::move(open)), m_notices(notices) {}

    /// The picture of the first of the cards that has one: the full one, else the largest of its
    /// thumbnails. Empty for none. That there is no database is told where `areExpected`.
    QByteArray of(std::span<const qint64> cards, bool areExpected);

private:
    struct Picture {
        qint64 card = 0;
        bool isThumbnail = false;
        qint64 size = 0;
        qint64 row = 0;
    };
    /// The opened database with the places of the pictures.
    struct Store {
        explicit Store(OpenedDatabase opened, Notices& notices);
        void findIn(const QString& table, bool areThumbnails);

        OpenedDatabase database;
        TableReader reader;
        std::vector<Picture> pictures; // sorted: card, the best first
        formats::Statement full;
        formats::Statement thumbnail;
    };

    void open(bool areExpected);
    QByteArray bytesOf(const Picture& picture);
    QByteArray ofCard(qint64 card);

    Open m_open;
    Notices& m_notices;
    bool m_isOpened = false;
    std::unique_ptr<Store> m_store; // null: there is none
};

} // namespace backup
