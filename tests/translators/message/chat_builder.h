// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRWhatsappItem.h"

#include <QDateTime>

#include <initializer_list>
#include <memory>
#include <vector>

/// 2024-05-01 14:30 on the tests' clock, which is two hours ahead of UTC.
inline QDateTime halfPast()
{
    return {QDate(2024, 5, 1), QTime(12, 30), Qt::UTC};
}

/// A chat of these messages. Its phone text has two numbers.
inline std::unique_ptr<PRWhatsappItem> chatOf(
    const std::vector<ChatMessage>& messages, int flags = 0, bool selected = true)
{
    std::vector<PRWhatsappMsg> made;
    made.reserve(messages.size());
    for (const ChatMessage& message : messages) {
        made.emplace_back(message);
    }
    return std::make_unique<PRWhatsappItem>(
        Record{.values = {"Crew", "Mia", "+49 1,+49 2"}, .flags = flags, .selected = selected},
        std::move(made));
}
