// SPDX-License-Identifier: MIT
#include "Conversations.h"

#include "common.h"

#include <QHash>
#include <QJsonArray>
#include <QSet>

#include <algorithm>

namespace sample {

Conversations::Conversations(const QJsonObject& source) : m_source(source)
{
    const QJsonArray conversations = source["conversations"].toArray();
    m_conversations.reserve(static_cast<std::size_t>(conversations.size()));
    for (const QJsonValue& conversation : conversations) {
        addConversation(conversation.toObject());
    }
    for (const Conversation& conversation : m_conversations) {
        addMessages(&conversation, conversation.source);
    }
    addMessages(nullptr, source["withoutConversation"].toObject());
    order();
}

void Conversations::addConversation(const QJsonObject& source)
{
    Conversation conversation{.source = source, .service = source["service"].toString()};
    for (const QJsonValue& address : entriesOf(source["with"])) {
        conversation.with.append(address.toString());
    }
    conversation.group = source.contains("group");
    conversation.identifier =
        conversation.group ? source["group"].toString() : conversation.with.first();
    conversation.guid =
        conversation.service + (conversation.group ? ";+;" : ";-;") + conversation.identifier;
    m_conversations.push_back(conversation);
}

void Conversations::addMessages(const Conversation* conversation, const QJsonObject& source)
{
    const QString place = conversation != nullptr ? conversation->guid : "none";
    QSet<QString> moments;
    QString previous;
    for (const QJsonValue& entry : entriesOf(source["messages"])) {
        Message message{.source = entry.toObject(), .conversation = conversation};
        const QString moment = message.value("at");
        if (moments.contains(moment)) {
            fail(place + " has two messages at " + moment);
        }
        moments.insert(moment);
        message.seconds = secondsSince2001(moment);
        message.guid = uuidFor(place + " " + moment);
        message.service = message.source["service"].toString(source["service"].toString());
        const QString other = source["with"].toArray().first().toString();
        const QString from = message.source["from"].toString(other);
        message.sender = from == "me" ? QString() : from;
        message.previousGuid = previous;
        previous = message.guid;
        m_messages.push_back(message);
    }
}

void Conversations::order()
{
    std::ranges::stable_sort(m_messages, {}, &Message::seconds);
    qint64 rowId = 0;
    for (Message& message : m_messages) {
        message.rowId = ++rowId;
    }
}

const Message& Conversations::message(const QString& id) const
{
    const auto found = std::ranges::find(
        m_messages, id, [](const Message& message) { return message.value("id"); });
    if (id.isEmpty() || found == m_messages.end()) {
        fail("there is no message with the id \"" + id + "\"");
    }
    return *found;
}

} // namespace sample
