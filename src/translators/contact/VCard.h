// SPDX-License-Identifier: MIT
#pragma once

#include "platform/literals.h"

#include <QByteArray>
#include <QString>

class PRContactPrivate;

/// The text of one vCard of version 2.1 that grows line by line. Nothing is escaped or folded.
class VCard {
public:
    /// Begins the card. There is room for the long contents of `contact`.
    explicit VCard(const PRContactPrivate& contact);

    /// A line made of these parts, one behind the other.
    template <typename... Parts> void addLine(const Parts&... parts)
    {
        ((m_text += parts), ...);
        m_text += kLineEnd;
    }

    /// The photo in one line; none, if it is empty. The bytes are not looked at.
    void addPhoto(const QByteArray& photo);

    /// Ends the card and returns it.
    const QString& end();

private:
    static constexpr QLatin1String kLineEnd = "\r\n"_L1;

    QString m_text;
};
