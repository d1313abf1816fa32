// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <QLatin1String>
#include <array>

class CIDataExporter;
class Page;

// What the pages of messages and of chats share: the frame of the page, the speech bubble with its
// skins and marks, and the images that these need.

/// The top of the page, with its title, and what closes it.
bool writePageTop(CIDataExporter& exporter, const QString& title);
bool writePageBottom(CIDataExporter& exporter);

/// The heading of a conversation: three labels with their values in them.
void drawHeading(Page& page, const std::array<QString, 3>& texts);

/// How a message came to stand where it stands.
struct BubbleLook {
    bool fromMe = false;
    bool failed = false;  ///< it did not go out
    bool deleted = false; ///< its conversation is a deleted one
};

/// Opens the row of a bubble; `side` is the class of its element, `moreMarks` stand before the
/// bubble, behind the deleted mark of a sent one.
void openBubbleRow(
    Page& page, QLatin1String side, const BubbleLook& look, const QString& moreMarks = {});
/// The bubble itself. `icon` is the path of a picture beside the text, empty for none.
void drawBubble(Page& page, const BubbleLook& look, const QString& text, const QString& icon);
/// The cell behind a bubble or a picture, which tells that the message did not go out.
void drawFailureCell(Page& page, const BubbleLook& look);
void closeBubbleRow(Page& page);

/// Bubbles under `selector` are made of the images "<prefix>-top-l.png" and so on.
struct BubbleSkin {
    QLatin1String selector;
    QLatin1String prefix;
    QLatin1String topLeftSize;
    QLatin1String bottomLeftSize;
};
extern const BubbleSkin kSentSkin;
extern const BubbleSkin kSentIMessageSkin;
extern const BubbleSkin kReceivedSkin;

/// Adds the nine rules of a skin to a style sheet.
void addSkinRules(Page& sheet, const BubbleSkin& skin);
/// Copies the nine images of a skin beside the page.
void copySkin(CIDataExporter& exporter, const BubbleSkin& skin);

/// Copies an image of the resources beside the page. A missing one is no failure.
void copyPageImage(CIDataExporter& exporter, const QString& name);
/// The same for one of those that differ by brand.
void copyBrandImage(CIDataExporter& exporter, const QString& name);
