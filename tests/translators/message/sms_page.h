// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRData.h"
#include "translators/message/CSMS2HtmlTranslate.h"
#include "translators/message/bubble_page.h"
#include "translators/message/sms_builder.h"

#include <initializer_list>
#include <vector>

inline std::vector<PRSMSChat> chatsOf(std::initializer_list<SmsMessage> messages)
{
    return {messages.begin(), messages.end()};
}

/// What the translator makes of one conversation.
struct DrawnConversation {
    QString text;
    QList<QPair<QString, QByteArray>> pictures;
};

inline DrawnConversation drawn(const std::unique_ptr<PRSMSItem>& item)
{
    PRSMSData data;
    CSMS2HtmlTranslate translator(&data);
    PageSink sink;
    EXPECT_TRUE(translator.writeItem(&sink, item.get()));
    EXPECT_EQ(sink.writes().size(), 1);
    EXPECT_EQ(sink.copies(), QStringList());
    EXPECT_EQ(sink.otherCalls(), QStringList());
    return {.text = sink.writes().value(0), .pictures = sink.pictures()};
}

/// What stands below the heading of a conversation.
inline QString drawnMessages(const std::unique_ptr<PRSMSItem>& item)
{
    const QString text = drawn(item).text;
    const QString heading = R"(<div class="main"><h2>)";
    const QString close = "</div>";
    EXPECT_TRUE(text.startsWith(heading) && text.endsWith(close)) << text.toStdString();
    return text.mid(text.indexOf("</h2>") + 5).chopped(close.size());
}

inline QString drawnMessages(std::initializer_list<SmsMessage> messages, int flags = 0)
{
    return drawnMessages(conversationOf(chatsOf(messages), flags));
}

/// What stands below the date of a conversation of one message.
inline QString drawnMessage(const SmsMessage& message, int flags = 0)
{
    const QString text = drawnMessages({message}, flags);
    EXPECT_TRUE(text.startsWith("<p>----")) << text.toStdString();
    return text.mid(text.indexOf("</p>") + 4);
}

inline QString receivedPicture(const QString& path)
{
    return R"(<div class="main-left"><table><tr><td><img src=")" + path
           + R"(" /></td><td></td></tr></table></div>)";
}
