// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

#include <vector>

namespace backup {

class ContactValues;
class TableReader;

/// One person of the list: a card, or several that the phone shows as one.
struct ContactPerson {
    QString name;
    std::vector<qint64> cards; ///< rows of ABPerson; the one that gives the name comes first
    qint64 pictureCard = 0;    ///< the one of them whose picture is shown; 0: not said
};

struct ContactPeople {
    std::vector<ContactPerson> list; ///< in the order in which the phone lists them
    bool havePictures = false;       ///< some card tells of a picture
};

/// Reads the people of an address book; `values` name those who have no name.
ContactPeople readContactPeople(const TableReader& store, ContactValues& values);

/// The names of people by their cards, rows of ABPerson: the same as those of the list. Who has no
/// name is missing.
QHash<qint64, QString> readCardNames(const TableReader& store);

} // namespace backup
