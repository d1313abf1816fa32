// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRData.h"

#include <QDateTime>
#include <QString>

#include <vector>

namespace backup {

/// One bookmark as a store has it.
struct Bookmark {
    QString title;
    QString address;
    QString group;   ///< path of its folder, "Travel / Norway"; empty at top level
    QDateTime added; ///< to the reading list
    bool deleted = false;
};

/// One visit of a page, or what is left of visits that were deleted.
struct Visit {
    QString title;
    QString address;
    QDateTime date;
    bool deleted = false;
};

/// Groups that have a fixed place on the page, which translates their names.
QString readingListGroup();
QString historyGroup();

/// The label before a link: the date, and where there is none the site of the address.
QString linkLabel(const QDateTime& date, const QString& address);

RecordList bookmarkRecords(std::vector<Bookmark> bookmarks);

/// Newest first. A record costs little more than its title; an address that several visits share is
/// held once.
RecordList visitRecords(std::vector<Visit> visits);

/// Headings of both sets.
QStringList linkColumns();

} // namespace backup
