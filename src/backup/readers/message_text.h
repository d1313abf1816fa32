// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <string_view>

namespace backup {

/// UTF-8 as text, without U+FFFC and U+FFFD, which mark the places of attachments; a text of
/// nothing but blanks then is empty.
QString shownText(std::string_view utf8);

/// What `message_summary_info` tells of an edited message (a binary property list).
struct EditHistory {
    QStringList earlier; ///< the texts before the current one, oldest first
    QString current;     ///< the newest text, of all parts
    bool partsUnsent = false;
};

EditHistory readEditHistory(const QByteArray& summaryInfo);

/// The text of an app's message: of a link its address, else its caption or label, else the name of
/// the app; `bundle` is the row's balloon_bundle_id, `payload` its payload_data.
QString appMessageText(const QString& bundle, const QByteArray& payload);

} // namespace backup
