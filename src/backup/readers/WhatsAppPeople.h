// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/opened_database.h"
#include "backup/readers/SenderNames.h"

#include <QHash>
#include <QString>

#include <functional>
#include <optional>

namespace backup {

class TableReader;

/// The people of one account of WhatsApp, by their addresses: "491715550101@s.whatsapp.net", or
/// "100000000000001@lid" for somebody who hides the number.
class WhatsAppPeople {
public:
    /// Opens a database that lies beside that of the chats; none where there is no such file.
    using OpenBeside =
        std::function<std::optional<formats::Result<OpenedDatabase>>(const QString& name)>;

    /// Reads the profiles that `chats` knows, and the databases beside it.
    WhatsAppPeople(const TableReader& chats, SenderNames names, const OpenBeside& openBeside,
        Notices& notices);

    /// What the application itself calls somebody. It holds unless a name is known already.
    void addName(const QString& address, const QString& name);

    /// The person's name in the application, else in the address book, else the one that the
    /// person has chosen, be it in a profile or as `chosen`; else the number.
    QString nameOf(const QString& address, const QString& chosen = QString()) const;

    /// "+491715550101"; empty where the number is hidden.
    QString numberOf(const QString& address) const;

private:
    void readProfiles(const TableReader& chats);
    void readContacts(const TableReader& contacts);
    void readHiddenNumbers(const TableReader& pairs);
    void addPair(const QString& hidden, const QString& digits);
    QString digitsOf(const QString& key) const;
    QString knownName(const QString& address) const;

    SenderNames m_addressBook;
    QHash<QString, QString> m_names;     // by key: "491715550101", "100000000000001@lid"
    QHash<QString, QString> m_chosen;    // likewise
    QHash<QString, QString> m_otherKeys; // of the same person: the hidden one by digits, and back
    mutable QHash<QString, QString> m_known;
};

/// A name without the marks of direction that are put around it; empty for bytes in its place.
QString cleanName(const QString& name);

/// Whether an address is that of a person, and not of a group, a list or a channel.
bool isPerson(const QString& address);

} // namespace backup
