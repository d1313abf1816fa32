// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// Three conversations of Anna's, one of them deleted, and twelve events.
inline QByteArray smallRecordSet()
{
    QByteArray text = R"({"recordSet": 1, "owner": "Anna", "sets": [
        {"dataType": 0, "records": [
            {"values": ["Mia", "+49 171 5550101"], "chats": [
                {"date": "2024-05-01T12:30:00Z", "content": "See you"}]},
            {"values": ["Luis"], "flags": [1], "chats": [{"content": "Gone"}]},
            {"values": ["Zoë"], "chats": [{"fromMe": true, "content": "Hello"}]}]},
        {"dataType": 29, "records": [)";
    for (int i = 0; i < 12; ++i) {
        text += i == 0 ? R"({"values": ["Lunch"]})" : R"(, {"values": ["Lunch"]})";
    }
    return text + "]}]}";
}

/// So many conversations of forty messages each.
inline QByteArray largeRecordSet(int conversations)
{
    QByteArray chats;
    for (int i = 0; i < 40; ++i) {
        chats += (i == 0 ? "" : ",");
        chats += R"({"date": "2024-05-01T12:30:00Z", "content": "The same words once more"})";
    }
    QByteArray text = R"({"recordSet": 1, "sets": [{"dataType": 0, "records": [)";
    for (int i = 0; i < conversations; ++i) {
        text += (i == 0 ? "" : ",");
        text += R"({"values": ["Mia"], "chats": [)" + chats + "]}";
    }
    return text + "]}]}";
}
