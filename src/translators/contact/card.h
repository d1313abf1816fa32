// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class CHtmlExporter;
class CIDataExporter;
class Page;
class QByteArray;
class QImage;

// What the pages of contacts and of chat contacts share: their style sheet, the frame of the page,
// and the card with its picture, its name and its table.

/// The style sheet of the page, for its head.
QString cardStyleSheet();

/// Copies the images that stand on every page, and opens it.
bool writeCardsTop(CHtmlExporter& exporter, const QString& title);
bool writeCardsBottom(CIDataExporter& exporter);

/// The picture that stands in for a missing one, as the page links to it.
QString defaultCardPicture();
/// The file of a picture: as large as the card has place, whatever its size was.
QByteArray cardPicture(const QImage& picture);

/// Opens a card with its picture and its name; lines may follow, then the table. The name is not
/// escaped.
void openCard(Page& page, const QString& picture, const QString& name, bool deleted);
/// A line under the name, not escaped either.
void addCardLine(Page& page, const QString& line);
void openCardTable(Page& page);
void closeCard(Page& page);

/// Where a row stands in its group.
enum class CardRow { Head, Inner, Last };

/// The heading of a group, over the whole width.
void addCardHeading(Page& page, const QString& label);
void addCardRow(Page& page, CardRow row, const QString& label, const QString& value);
