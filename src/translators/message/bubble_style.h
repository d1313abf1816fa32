// SPDX-License-Identifier: MIT
#pragma once

#include "platform/literals.h"

#include <QString>

#include <QLatin1String>
#include <span>

class CIDataExporter;

// How the pages of messages and of chats look: their style sheet, and the images that it and the
// bubbles need.

/// Bubbles under `selector` are made of the images "<prefix>-top-l.png" and so on.
struct BubbleSkin {
    QLatin1String selector;
    QLatin1String prefix;
    QLatin1String topLeftSize;
    QLatin1String bottomLeftSize;
};
// clang-format off
inline constexpr BubbleSkin kSentSkin{
    ".main-right"_L1, "message"_L1, " height:13px; width:14px;"_L1, " height:14px;"_L1};
inline constexpr BubbleSkin kSentIMessageSkin{
    ".main-right-imsg"_L1, "imessage"_L1, " height:13px; width:14px;"_L1, " height:14px;"_L1};
inline constexpr BubbleSkin kReceivedSkin{
    ".main-left"_L1, "rmessage"_L1, " height:15px; width:14px;"_L1, " height:13px;"_L1};
// clang-format on

/// Where the style sheets of the two pages differ.
struct SheetParts {
    QLatin1String headingFont;   ///< declarations of the headings of conversations
    QLatin1String lineFont;      ///< of the lines between the bubbles
    QLatin1String eventRule;     ///< a rule behind that of the lines
    QLatin1String sideRule;      ///< behind those of the two sides
    QLatin1String sideImageRule; ///< behind those of the images at the two sides
    std::span<const BubbleSkin> skins;
};

/// The style sheet of a page of bubbles, for its head.
QString bubbleStyleSheet(const SheetParts& parts);

/// Copies the nine images of a skin beside the page.
void copySkin(CIDataExporter& exporter, const BubbleSkin& skin);
/// Copies an image of the resources beside the page. A missing one is no failure.
void copyPageImage(CIDataExporter& exporter, const QString& name);
/// The same for one of those that differ by brand.
void copyBrandImage(CIDataExporter& exporter, const QString& name);
