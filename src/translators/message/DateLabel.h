// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class Page;
class QDateTime;

/// The line that says when a message was sent, in the language of the host. It is looked up and cut
/// at its places once: there are as many dates as messages.
class DateLabel {
public:
    DateLabel();

    /// Adds the line with the date in it.
    void draw(Page& page, const QDateTime& date) const;

private:
    QStringList m_parts;
};
