// SPDX-License-Identifier: MIT
#include "backup/readers/AttachmentData.h"

#include "backup/container/Notices.h"
#include "backup/readers/message_rows.h"
#include "model/PRFileItem.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <unordered_map>

namespace backup {

namespace {

constexpr int kDataType = 1;
constexpr qint64 kStartOf2001 = 978'307'200;

// After the columns of MessageFiles::columns().
enum Column : int { Hidden = 6, CreatedDate, ChatId, MessageId };

// Documents that are directories.
constexpr std::array kBundles{
    "pages"_L1, "numbers"_L1, "key"_L1, "rtfd"_L1, "band"_L1, "pkpass"_L1};

/// A file whose place on this computer is looked up when it is asked for.
class MessageFileItem final : public PRFileItem {
public:
    MessageFileItem(Record record, FileContent content, const PathResolver& resolver)
        : PRFileItem(std::move(record), std::move(content)), m_resolver(&resolver)
    {
    }

    QString filePath() const override
    {
        return m_resolver != nullptr ? m_resolver->resolve(PRFileItem::filePath())
                                     : PRFileItem::filePath();
    }

    void setFilePath(const QString& path) override
    {
        m_resolver = nullptr;
        PRFileItem::setFilePath(path);
    }

private:
    const PathResolver* m_resolver; // null: the path is one on this computer
};

/// Which conversation a file belongs to.
class Owners {
public:
    explicit Owners(const std::vector<Conversation>& conversations)
    {
        for (const Conversation& conversation : conversations) {
            for (const std::int64_t chatId : conversation.chatIds) {
                m_byChat[chatId] = &conversation;
            }
            for (const std::int64_t messageId : conversation.messageIds) {
                m_byMessage[messageId] = &conversation;
            }
        }
    }

    /// One without a name where the file belongs to none.
    const Conversation& of(std::int64_t chatId, std::int64_t messageId) const
    {
        static const Conversation nobody;
        if (const auto live = m_byChat.find(chatId); live != m_byChat.end()) {
            return *live->second;
        }
        const auto other = m_byMessage.find(messageId);
        return other != m_byMessage.end() ? *other->second : nobody;
    }

private:
    std::unordered_map<std::int64_t, const Conversation*> m_byChat;
    std::unordered_map<std::int64_t, const Conversation*> m_byMessage; // deleted, or in no chat
};

// A conversation's name as a directory's: a record's parent is never "." or "..".
QString directoryName(const QString& title)
{
    return title.isEmpty() || title == "."_L1 || title == ".."_L1 ? QStringLiteral("_") : title;
}

QString isoDate(std::int64_t secondsSince2001)
{
    return secondsSince2001 == 0
               ? QString()
               : QDateTime::fromSecsSinceEpoch(kStartOf2001 + secondsSince2001, Qt::UTC)
                     .toString(Qt::ISODate);
}

} // namespace

AttachmentData::AttachmentData(const formats::Database& database,
    const std::vector<Conversation>& conversations, const FileLocator& files, Notices& notices)
    : PRData(kDataType), m_database(database), m_conversations(conversations), m_locator(files),
      m_files(database, files), m_notices(notices)
{
}

const RecordList& AttachmentData::records() const
{
    if (!m_isLoaded) {
        m_isLoaded = true;
        read();
    }
    return m_loaded;
}

void AttachmentData::read() const
{
    const Owners owners(m_conversations);
    const bool dated = m_database.columns("attachment"_L1).contains("created_date"_L1);
    auto query = m_database.prepare(
        "SELECT "_L1 + m_files.columns() + (dated ? ",a.created_date"_L1 : ",0"_L1)
        + ",min(c.chat_id),j.message_id FROM attachment a"
          " LEFT JOIN message_attachment_join j ON j.attachment_id = a.ROWID"
          " LEFT JOIN chat_message_join c ON c.message_id = j.message_id"
          " GROUP BY a.ROWID ORDER BY a.ROWID"_L1);
    int neverDownloaded = 0;
    while (query && query->next()) {
        if (query->integer(Hidden) != 0) {
            continue; // data of an app's message
        }
        const AttachmentRow attachment = MessageFiles::read(*query);
        if (attachment.devicePath.isEmpty()) {
            ++neverDownloaded;
            continue;
        }
        const Conversation& owner = owners.of(query->integer(ChatId), query->integer(MessageId));
        const Record record{
            .values = {attachment.name},
            .flags = owner.kind == ConversationKind::Deleted ? Deleted : 0,
            .parent = directoryName(owner.title),
        };
        add(attachment, record, isoDate(query->integer(CreatedDate)));
    }
    noteNeverDownloaded(neverDownloaded);
}

void AttachmentData::noteNeverDownloaded(int count) const
{
    if (count == 1) {
        m_notices.add(QCoreApplication::translate(
            "DataExport", "One attachment was never downloaded to the phone."));
    } else if (count > 1) {
        m_notices.add(QCoreApplication::translate(
            "DataExport", "%1 attachments were never downloaded to the phone.")
                          .arg(count));
    }
}

// A document that is a directory becomes a record for each file in it.
void AttachmentData::add(
    const AttachmentRow& attachment, const Record& record, const QString& date) const
{
    const auto addFile = [&](const QString& name, const QString& devicePath) {
        Record file{.values = {name}, .flags = record.flags, .parent = record.parent};
        m_loaded.push_back(std::make_unique<MessageFileItem>(
            std::move(file), FileContent{.path = devicePath, .detailDate = date}, m_files));
    };
    const QString suffix = QFileInfo(attachment.devicePath).suffix().toLower();
    QStringList inside;
    if (std::ranges::find(kBundles, suffix) != kBundles.end()) {
        const DevicePath path = backupPath(attachment.devicePath);
        inside = m_locator.filesBelow(path.domain, path.relativePath);
        for (const QString& file : inside) {
            addFile(attachment.name + file.mid(path.relativePath.size()), "~/"_L1 + file);
        }
    }
    if (inside.isEmpty()) {
        addFile(attachment.name, attachment.devicePath);
    }
}

} // namespace backup
