// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace backup {

/// What the name of a card is made of.
struct ContactName {
    QString prefix;
    QString first;
    QString middle;
    QString last;
    QString suffix;
    QString nickname;
    QString organization;
    QString firstPhonetic;
    QString lastPhonetic;
    QString organizationPhonetic;
    bool isOrganization = false; ///< shown by its organization even where it names a person
};

/// The name as a phone shows it; empty where the card names neither a person nor an organization.
QString displayName(const ContactName& name);

/// A text whose bytes order names as a list of people by last name does: without accents and case,
/// by pronunciation where it is given, what begins with no letter behind, empty ones last.
QByteArray sortKey(const ContactName& name);

/// Without the invisible marks of text direction at its ends, which names and numbers bring along
/// from elsewhere.
QString withoutMarks(const QString& text);

} // namespace backup
