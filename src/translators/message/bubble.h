// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <QLatin1String>
#include <array>

class CIDataExporter;
class Page;

// What the pages of messages and of chats are made of: the frame of the page and of a conversation,
// the speech bubble with its marks.

/// The top of the page, with its title, and what closes it.
bool writePageTop(CIDataExporter& exporter, const QString& title);
bool writePageBottom(CIDataExporter& exporter);

/// Opens a conversation with its heading: three labels with their values in them.
void openConversation(Page& page, const std::array<QString, 3>& texts);
void closeConversation(Page& page);

/// Who speaks, as groups show it.
void drawSender(Page& page, const QString& name);

/// How a message came to stand where it stands.
struct BubbleLook {
    bool fromMe = false;
    bool failed = false;  ///< it did not go out
    bool deleted = false; ///< its conversation is a deleted one
};

/// Opens the element of a message, of the class `side`, with the deleted mark of a sent one. More
/// marks may follow, then the row of the bubble.
void openBubbleSide(Page& page, QLatin1String side, const BubbleLook& look);
/// Opens the row: cells, the bubble, the failure cell, cells.
void openBubbleRow(Page& page, const BubbleLook& look);
/// The bubble itself. `icon` is the path of a picture beside the text, empty for none.
void drawBubble(Page& page, const BubbleLook& look, const QString& text, const QString& icon);
/// The cell behind a bubble or a picture, which tells that the message did not go out.
void drawFailureCell(Page& page, const BubbleLook& look);
/// Closes the row and the element of the message.
void closeBubbleRow(Page& page);
