// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <span>

class CIDataExporter;
class PRAbstractItem;
class QDateTime;

// What the CSV files of messages, of chats and of chat contacts share.

/// The translated labels with a comma between them. Bare, unlike the cells of messages and chats.
QString columnLabels(std::span<const char* const> columns);

/// A cell with a translated text.
QString quotedLabel(const char* source);

/// The rows of one conversation: three cells that all of them begin with, then date, type and
/// content. One buffer serves them all.
class ConversationRows {
public:
    /// Begins each row with the values 0 to 2 of the record.
    explicit ConversationRows(const PRAbstractItem& conversation);

    /// Begins the row of a message. `type` is a cell, quoted already.
    void begin(const QDateTime& date, const QString& type);
    /// Adds a text to the content, with a blank between two. An empty one adds nothing.
    void addContent(const QString& text);
    /// Whether the row that was begun says something: no row is written without.
    bool hasContent() const { return m_row.size() > m_contentStart; }
    bool write(CIDataExporter& exporter);

private:
    QString m_row;
    int m_conversationEnd; // of the three cells
    int m_contentStart = 0;
};
