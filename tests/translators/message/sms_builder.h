// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRSMSItem.h"

#include <QDateTime>

#include <memory>
#include <vector>

/// 2024-05-01 14:30 on the tests' clock, which is two hours ahead of UTC.
inline QDateTime halfPastTwo()
{
    return {QDate(2024, 5, 1), QTime(12, 30), Qt::UTC};
}

inline PRSMSPiece textPiece(const QByteArray& text, const QString& type = "text/plain")
{
    return PRSMSPiece({.type = type, .data = text});
}

/// One conversation named Mia.
inline std::unique_ptr<PRSMSItem> conversationOf(std::vector<PRSMSChat> messages, int flags = 0)
{
    return std::make_unique<PRSMSItem>(
        Record{.values = {"Mia", "+49 171 5550101", "mia@example.org"}, .flags = flags},
        SmsConversation{.chats = std::move(messages)});
}
