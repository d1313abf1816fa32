// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/OpenedBackup.h"
#include "model/PRSMSItem.h"
#include "support/message_store_builder.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

/// Makes a store and looks at what its reader makes of it.
class MessageStoreTest : public testing::Test {
protected:
    MessageStoreBuilder& store() { return *m_builder; }

    // Ends the making and opens what was made.
    void open()
    {
        m_builder.reset();
        auto opened = backup::openDatabaseFile(m_path);
        ASSERT_TRUE(opened.has_value()) << opened.error().text().toStdString();
        m_opened.emplace(std::move(*opened));
    }

    int count() { return set()->count(1); }
    PRData* set() { return m_opened->records.getPRData(0); }
    PRSMSItem* item(int row) { return dynamic_cast<PRSMSItem*>(set()->at(row, true)); }

    // The conversation as lines: "<" received, ">" sent, "!" sent and not complete, "*" an event.
    QStringList lines(int row)
    {
        QStringList shown;
        for (const PRSMSChat* chat : item(row)->detailContent()->chats()) {
            QString mark = chat->isFromMe() ? "> " : "< ";
            mark = chat->isSentDone() ? mark : "! ";
            shown.append(
                chat->itemType() != 0 ? "* " + chat->msgForEvent({}) : mark + chat->content());
        }
        return shown;
    }

    QTemporaryDir m_directory;
    QString m_path = m_directory.filePath("sms.db");
    std::optional<MessageStoreBuilder> m_builder{std::in_place, m_path};
    std::optional<backup::OpenedBackup> m_opened;
};
