// SPDX-License-Identifier: MIT
#include "backup/readers/AddressBook.h"

#include "backup/readers/contact_fields.h"
#include "model/PRData.h"
#include "platform/literals.h"

namespace backup {

namespace {

/// A contact whose contents are loaded when they are asked for.
class StoredContact final : public PRContactItem {
public:
    StoredContact(Record record, AddressBook& book, std::size_t index)
        : PRContactItem(std::move(record)), m_book(book), m_index(index)
    {
    }

    const PRContactPrivate* detailContent() const override { return m_book.load(m_index); }

private:
    AddressBook& m_book;
    std::size_t m_index;
};

/// The list, made when it is first asked for.
class StoredContacts final : public PRContactData {
public:
    explicit StoredContacts(AddressBook& book) : m_book(book) {}

protected:
    const RecordList& records() const override
    {
        if (!m_isMade) {
            m_isMade = true;
            const std::vector<ContactPerson>& people = m_book.people();
            m_records.reserve(people.size());
            for (std::size_t index = 0; index < people.size(); ++index) {
                m_records.push_back(std::make_unique<StoredContact>(
                    Record{.values = {people[index].name}}, m_book, index));
            }
        }
        return m_records;
    }

private:
    AddressBook& m_book;
    mutable bool m_isMade = false;
    mutable RecordList m_records;
};

} // namespace

AddressBook::AddressBook(
    OpenedDatabase database, QString name, ContactPictures::Open openPictures, Notices& notices)
    : m_database(std::move(database)), m_name(std::move(name)),
      m_store(m_database.database, m_name, notices), m_values(m_store),
      m_pictures(std::move(openPictures), notices)
{
}

AddressBook::~AddressBook() = default;

bool AddressBook::isAddressBook(const formats::Database& database)
{
    return database.hasTable("ABPerson"_L1);
}

const std::vector<ContactPerson>& AddressBook::people()
{
    if (!m_isRead) {
        m_isRead = true;
        m_people = readContactPeople(m_store, m_values);
        auto query = m_store.prepareRow("ABPerson"_L1, contactColumns());
        if (query) {
            m_card = std::move(*query);
        }
    }
    return m_people.list;
}

const PRContactPrivate* AddressBook::load(std::size_t index)
{
    if (index != m_loadedIndex) {
        m_loaded.reset(); // its memory is wanted for the next one
        m_loaded = std::make_unique<PRContactPrivate>(contentOf(people().at(index)));
        m_loadedIndex = index;
    }
    return m_loaded.get();
}

ContactContent AddressBook::contentOf(const ContactPerson& person)
{
    ContactContent content;
    for (const qint64 card : person.cards) {
        addCard(card, content);
    }
    content.propertyList = m_values.of(person.cards);
    std::vector<qint64> pictureCards = person.cards;
    if (person.pictureCard > 0) {
        pictureCards.insert(pictureCards.begin(), person.pictureCard);
    }
    content.photo = m_pictures.of(pictureCards, m_people.havePictures);
    return content;
}

void AddressBook::addCard(qint64 card, ContactContent& content)
{
    m_card.reset();
    m_card.bind(1, card);
    if (m_card.next()) {
        addContactFields(m_card, content);
    } else {
        m_store.noteDamage(); // it was there when the list was read
    }
    m_card.reset();
}

std::unique_ptr<PRData> AddressBook::contacts()
{
    return std::make_unique<StoredContacts>(*this);
}

} // namespace backup
