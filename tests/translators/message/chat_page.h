// SPDX-License-Identifier: MIT
// The page of chats as tests look at it.
#pragma once

#include "model/PRData.h"
#include "translators/message/CWhatsapp2HtmlTranslate.h"
#include "translators/message/bubble_page.h"
#include "translators/message/chat_builder.h"

const QString kChatBegin =
    R"(<div class="main"><h2>Chat: Crew&nbsp;&nbsp;Name: Mia&nbsp;&nbsp;Phone: +49 1, +49 2</h2><hr />)";
const QString kChatEnd = "</div>";
/// Before each message that has no date.
const QString kNoDate = "<p>Date: </p>";

/// What the translator makes of one chat.
struct DrawnChat {
    QString text;
    QList<QPair<QString, QByteArray>> pictures;
};

inline DrawnChat drawnChat(const std::unique_ptr<PRWhatsappItem>& chat)
{
    PRData data(5);
    CWhatsapp2HtmlTranslate translator(&data);
    PageSink sink;
    EXPECT_TRUE(translator.writeItem(&sink, chat.get()));
    EXPECT_EQ(sink.writes().size(), 1);
    EXPECT_EQ(sink.copies(), QStringList());
    EXPECT_EQ(sink.otherCalls(), QStringList());
    return {.text = sink.writes().value(0), .pictures = sink.pictures()};
}

/// What stands below the rule of a chat.
inline QString drawnMessages(const std::vector<ChatMessage>& messages, int flags = 0)
{
    const QString text = drawnChat(chatOf(messages, flags)).text;
    EXPECT_TRUE(text.startsWith(kChatBegin) && text.endsWith(kChatEnd)) << text.toStdString();
    return text.mid(kChatBegin.size()).chopped(kChatEnd.size());
}

/// What stands below the date of a message that has none.
inline QString drawnMessage(const ChatMessage& message, int flags = 0)
{
    const QString text = drawnMessages({message}, flags);
    EXPECT_TRUE(text.startsWith(kNoDate)) << text.toStdString();
    return text.mid(kNoDate.size());
}
