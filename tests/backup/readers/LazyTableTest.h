// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/OpenedBackup.h"
#include "model/PRFileItem.h"
#include "model/PRSafariBookmarkItem.h"
#include "support/backup_builder.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

/// Makes a backup folder or a loose database and shows a set of it as lines.
class LazyTableTest : public testing::Test {
protected:
    BackupBuilder& builder() { return m_builder; }

    void openFolder()
    {
        m_builder.finish();
        take(backup::openBackupFolder(m_directory.filePath("backup")));
    }

    void openFile(const QByteArray& bytes)
    {
        writeFile(m_directory.filePath("loose.db"), bytes);
        take(backup::openDatabaseFile(m_directory.filePath("loose.db")));
    }

    void openFile(const QStringList& statements) { openFile(databaseBytes(statements).file); }

    // "value | value | ...", a deleted record behind "x "; null where there is no set.
    QStringList lines(int dataType)
    {
        const PRData* set = m_opened->records.getPRData(dataType);
        QStringList shown;
        for (int row = 0; set != nullptr && row < set->count(1); ++row) {
            const PRAbstractItem* item = set->at(row, true);
            if (item == nullptr) {
                ADD_FAILURE() << "no record in row " << row;
                continue;
            }
            QStringList values;
            if (const auto* bookmark = dynamic_cast<const PRSafariBookmarkItem*>(item)) {
                values.append("[" + bookmark->bookmarkGroup() + "]");
            }
            for (int column = 0; column < item->record().values.size(); ++column) {
                values.append(item->value(column));
            }
            shown.append((item->flag(Deleted) ? "x " : "") + values.join(" | "));
        }
        return shown;
    }

    QStringList column(int dataType, int number)
    {
        const PRData* set = m_opened->records.getPRData(dataType);
        QStringList shown;
        for (int row = 0; set != nullptr && row < set->count(1); ++row) {
            shown.append(set->value(row, number));
        }
        return shown;
    }

    const PRFileItem& file(int dataType, int row)
    {
        static const PRFileItem none;
        const PRData* set = m_opened->records.getPRData(dataType);
        const auto* item =
            set != nullptr ? dynamic_cast<const PRFileItem*>(set->at(row, true)) : nullptr;
        EXPECT_NE(item, nullptr) << "no file in row " << row;
        return item != nullptr ? *item : none;
    }

    // "name < parent = contents"; no parent, no "<", a file that is missing "= -".
    QStringList files(int dataType)
    {
        const PRData* set = m_opened->records.getPRData(dataType);
        QStringList shown;
        for (int row = 0; set != nullptr && row < set->count(1); ++row) {
            const PRFileItem& item = file(dataType, row);
            QFile contents(item.filePath());
            const QString text = !item.filePath().isEmpty() && contents.open(QIODevice::ReadOnly)
                                     ? QString::fromUtf8(contents.readAll())
                                     : "-";
            const QString parent = item.record().parent ? " < " + *item.record().parent : QString();
            shown.append(item.value(0) + parent + " = " + text);
        }
        return shown;
    }

    QStringList notices(const QString& about)
    {
        return m_opened->notices->sentences().filter(about);
    }

    void take(formats::Result<backup::OpenedBackup> opened)
    {
        ASSERT_TRUE(opened.has_value()) << opened.error().text().toStdString();
        m_opened.emplace(std::move(*opened));
    }

    QTemporaryDir m_directory;
    BackupBuilder m_builder{m_directory.filePath("backup")};
    std::optional<backup::OpenedBackup> m_opened;
};
