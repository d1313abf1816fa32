// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/opened_database.h"
#include "backup/readers/ContactPictures.h"
#include "backup/readers/ContactValues.h"
#include "backup/readers/OpenedBackup.h"
#include "backup/readers/contact_people.h"
#include "backup/readers/table_reader.h"
#include "model/PRContactItem.h"

#include <QString>

#include <memory>
#include <vector>

class PRData;

namespace backup {

/// An opened address book, AddressBook.sqlitedb. The list of people is read when it is first asked
/// for; the contents of one are loaded when they are asked for, and held until the next one is.
class AddressBook final : public RecordSource {
public:
    static constexpr int kDataType = 2;

    /// `name` is how notices call the database; `notices` outlives the book.
    AddressBook(OpenedDatabase database, QString name, ContactPictures::Open openPictures,
        Notices& notices);
    ~AddressBook() override;

    static bool isAddressBook(const formats::Database& database);

    /// Read when first asked for.
    const std::vector<ContactPerson>& people();

    /// Never null; what cannot be read of the person is empty, which the notices tell. Holds until
    /// the next call.
    const PRContactPrivate* load(std::size_t index);

    /// The people as data type 2; they load through this book.
    std::unique_ptr<PRData> contacts();

private:
    ContactContent contentOf(const ContactPerson& person);
    void addCard(qint64 card, ContactContent& content);

    OpenedDatabase m_database;
    QString m_name;
    TableReader m_store;
    ContactValues m_values;
    ContactPictures m_pictures;
    formats::Statement m_card; // the row of one
    bool m_isRead = false;
    ContactPeople m_people;
    std::size_t m_loadedIndex = SIZE_MAX;
    std::unique_ptr<PRContactPrivate> m_loaded;
};

} // namespace backup
