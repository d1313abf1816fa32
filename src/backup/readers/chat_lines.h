// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <initializer_list>

namespace backup {

/// A call as the line of a chat tells it.
struct ChatCall {
    bool isVideo = false;
    bool isMissed = false;
    bool fromMe = false;
    qint64 seconds = 0; ///< 0: unknown, or nobody answered
    QString caller;     ///< of a call in a group; empty for the owner, and where it is known
};

/// "Missed voice call", "Outgoing video call (0:05:12)", "Mia: Incoming voice call"
QString callLine(const ChatCall& call);

/// "52.5163, 13.3777"; empty for what is no place on earth, and for 0, 0.
QString coordinatesText(double latitude, double longitude);

/// Name or address of a place, and its coordinates in a line below.
QString locationText(const QString& name, double latitude, double longitude);

/// Stands for a message of a kind that is not known and has no text.
QString unknownMessageLine();

/// Stands for a line that the application itself wrote and that has no text.
QString systemMessageLine();

/// Stands for a sticker whose picture is not on the device.
QString stickerText();

/// `name` without the marks of direction that applications put around names.
QString plainName(const QString& name);

/// The first of the texts that is not empty; empty where none is.
QString firstFilled(std::initializer_list<QString> texts);

/// What its sender called a document, without directories and with the ending of its file where it
/// has none; the name of the file where it has no `title`.
QString documentName(const QString& title, const QString& path);

/// A number as a phone shows it: with "+" where it is one with a country's code.
QString shownPhone(const QString& number);

} // namespace backup
