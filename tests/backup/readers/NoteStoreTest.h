// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/OpenedBackup.h"
#include "model/PRFileItem.h"
#include "model/PRNoteItem.h"
#include "support/backup_builder.h"
#include "support/note_store_builder.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

/// Makes a backup with stores of notes and looks at what their readers make of them.
class NoteStoreTest : public testing::Test {
protected:
    static constexpr const char* kDomain = "AppDomainGroup-group.com.apple.notes";

    NoteStoreBuilder& store() { return m_store; }
    BackupBuilder& backup() { return m_backup; }

    void addFile(const QString& path, const QByteArray& bytes)
    {
        m_backup.add(kDomain, path, bytes);
    }
    QString payload(const QString& path) const { return m_backup.payloadPath(kDomain, path); }

    // Ends the making and opens what was made.
    void open()
    {
        m_backup.add(kDomain, "NoteStore.sqlite", m_store.bytes());
        openBackup();
    }

    void openBackup()
    {
        m_backup.finish();
        take(backup::openBackupFolder(m_directory.filePath("backup")));
    }

    void take(formats::Result<backup::OpenedBackup> opened)
    {
        ASSERT_TRUE(opened.has_value()) << opened.error().text().toStdString();
        m_opened.emplace(std::move(*opened));
    }

    PRData* notes() { return m_opened->records.getPRData(27); }
    PRData* files() { return m_opened->records.getPRData(28); }
    PRNoteItem* note(int row) { return dynamic_cast<PRNoteItem*>(notes()->at(row, true)); }
    PRFileItem* file(int row) { return dynamic_cast<PRFileItem*>(files()->at(row, true)); }
    QStringList column(int number)
    {
        QStringList cells;
        for (int row = 0; row < notes()->count(1); ++row) {
            cells.append(notes()->value(row, number));
        }
        return cells;
    }

    // All but those about the other databases, which these backups do not have.
    QStringList notices()
    {
        QStringList said;
        for (const QString& sentence : m_opened->notices->sentences()) {
            if (!sentence.startsWith("The backup has no Library/")) {
                said.append(sentence);
            }
        }
        return said;
    }

    QTemporaryDir m_directory;
    BackupBuilder m_backup{m_directory.filePath("backup")};
    NoteStoreBuilder m_store;
    std::optional<backup::OpenedBackup> m_opened;
};

/// The body of a note with one paragraph, and one attachment behind it.
inline QByteArray bodyWith(const QString& identifier, const QString& type = "public.jpeg")
{
    return sample::noteBody({{.text = "Before\n"},
        {.text = QChar(u'\uFFFC'), .attachment = identifier, .attachmentType = type},
        {.text = "\nAfter"}});
}
