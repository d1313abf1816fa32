// SPDX-License-Identifier: MIT
// ZICNOTEDATA.ZDATA, the text of a note: gzip of note_body.proto. A long one may lie outside:
//   02 and a UUID as text    in .NoteStore_SUPPORT/_EXTERNAL_DATA/<UUID>
//   01 and the data          in the row after all
#include "backup/readers/NoteStore.h"

#include "backup/container/Notices.h"
#include "backup/readers/NoteInsertMaker.h"
#include "backup/readers/note_content.h"
#include "formats/note_body.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QFile>
#include <QUuid>

namespace backup {

namespace {

constexpr QLatin1String kTable = "com.apple.notes.table"_L1;
constexpr QLatin1String kExternalData = ".NoteStore_SUPPORT/_EXTERNAL_DATA/"_L1;
constexpr char kInRow = 1;
constexpr char kOutside = 2;
constexpr int kUuidLength = 36;

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

std::span<const unsigned char> bytesOf(const QByteArray& data)
{
    return {reinterpret_cast<const unsigned char*>(data.constData()),
        static_cast<std::size_t>(data.size())};
}

// The notices take a number in each form.
void noteCount(Notices& notices, int count, const char* one, const char* many)
{
    if (count == 1) {
        notices.add(tr(one));
    } else if (count > 1) {
        notices.add(tr(many).arg(count));
    }
}

} // namespace

NoteStore::NoteStore(OpenedDatabase database, const FileLocator& files, Notices& notices)
    : m_database(std::move(database)), m_locator(files), m_notices(notices),
      m_rows(readNoteRows(m_database.database)), m_files(files, m_rows.accountIds)
{
    auto query = m_database.database.prepare("SELECT ZDATA FROM ZICNOTEDATA WHERE Z_PK = ?"_L1);
    if (query) {
        m_bodies = std::move(*query);
    }
    if (m_rows.damaged) {
        noteDamage();
    }
    noteCount(notices, m_rows.leftOut,
        QT_TRANSLATE_NOOP("DataExport", "One note was never downloaded to the phone."),
        QT_TRANSLATE_NOOP("DataExport", "%1 notes were never downloaded to the phone."));
}

bool NoteStore::isNoteStore(const formats::Database& database)
{
    const QStringList tables = database.tables();
    return tables.contains("ZICCLOUDSYNCINGOBJECT"_L1) && tables.contains("ZICNOTEDATA"_L1);
}

const NoteAttachments& NoteStore::attachments()
{
    if (!m_attachments) {
        m_attachments.emplace(m_database.database);
        if (m_attachments->isDamaged()) {
            noteDamage();
        }
    }
    return *m_attachments;
}

void NoteStore::noteDamage() const
{
    m_notices.add(tr("%1 is damaged; what can be read of it is there.").arg("NoteStore.sqlite"_L1));
}

// None where its row cannot be read; empty for a note without a text.
std::optional<QByteArray> NoteStore::body(const NoteRow& row)
{
    m_bodies.reset();
    m_bodies.bind(1, row.bodyId);
    QByteArray data;
    if (m_bodies.next()) {
        data = m_bodies.blob(0);
    }
    const bool isDamaged = m_bodies.failed();
    m_bodies.reset();
    if (isDamaged) {
        return std::nullopt;
    }
    if (data.startsWith(kInRow)) {
        return data.mid(1);
    }
    if (!data.startsWith(kOutside)) {
        return data;
    }
    const QUuid uuid(QString::fromLatin1(data.mid(1, kUuidLength)));
    const QString name = uuid.toString(QUuid::WithoutBraces).toUpper();
    QFile file(m_locator.locate(kNotesDomain, kExternalData + name));
    return !uuid.isNull() && file.open(QIODevice::ReadOnly) ? file.readAll() : data;
}

NoteContent NoteStore::load(std::size_t index)
{
    const NoteRow& row = m_rows.rows[index];
    const NoteEntry& note = m_rows.entries[index];
    if (note.locked) {
        return {};
    }
    const std::optional<QByteArray> data = body(row);
    if (!data) {
        return damaged(index, tr("the store is damaged"));
    }
    if (data->isEmpty()) { // new and empty, or not downloaded
        return plainContent(row.snippet);
    }
    const auto parsed = formats::parseNoteBody(bytesOf(*data));
    if (!parsed) {
        return damaged(index, parsed.error().what);
    }
    return noteContent(*parsed, [&](const formats::NoteRun& run) {
        return NoteInsertMaker(attachments(), m_files, m_notices, note.title, row.accountId)
            .make(run);
    });
}

NoteContent NoteStore::damaged(std::size_t index, const QString& why)
{
    const QString& title = m_rows.entries[index].title;
    m_notices.addOneOfMany(tr("The text of the note “%1” cannot be read: %2").arg(title, why),
        tr("%1 more notes have texts that cannot be read."));
    return plainContent(title + QChar(u'\n') + m_rows.rows[index].snippet);
}

std::vector<NoteFile> NoteStore::files()
{
    QHash<qint64, std::size_t> byId;
    for (std::size_t index = 0; index < m_rows.rows.size(); ++index) {
        byId.insert(m_rows.rows[index].id, index);
    }
    std::vector<NoteFile> files;
    int locked = 0;
    for (const NoteAttachment& attachment : attachments().all()) {
        const auto found = byId.constFind(m_attachments->noteOf(attachment));
        const auto note = found != byId.cend() ? std::optional(*found) : std::nullopt;
        if (!attachment.locked && !(note && m_rows.entries[*note].locked)) {
            addFiles(files, attachment, note);
        } else if (!attachment.mediaId.isEmpty()) {
            ++locked;
        }
    }
    noteCount(m_notices, locked,
        QT_TRANSLATE_NOOP("DataExport", "One attachment of a locked note cannot be read."),
        QT_TRANSLATE_NOOP("DataExport", "%1 attachments of locked notes cannot be read."));
    return files;
}

void NoteStore::addFiles(
    std::vector<NoteFile>& files, const NoteAttachment& attachment, std::optional<std::size_t> note)
{
    const QString account = note ? m_rows.rows[*note].accountId : QString();
    const QString title = note ? m_rows.entries[*note].title : QString();
    NoteFile file{.note = note,
        .name = attachment.name().isEmpty() ? attachment.mediaId : attachment.name(),
        .created =
            attachment.created != 0 || !note ? attachment.created : m_rows.entries[*note].changed(),
        .path = [this, &attachment, account,
                    title] { return mediaPath(attachment, account, title); },
        .preview = [this, &attachment,
                       account] { return m_files.preview(attachment, account).path; }};
    if (!attachment.mediaId.isEmpty()) {
        files.push_back(std::move(file));
        return;
    }
    if (attachment.type == kTable || !attachment.url.isEmpty()) {
        return;
    }
    // Drawings and scans have files only where the phone has made pictures of them.
    if (const FoundFile drawing = m_files.drawing(attachment, account)) {
        file.name = nameLike(attachment.title, drawing.name, tr("Drawing"));
        file.path = [path = drawing.path] { return path; };
        files.push_back(file);
    }
    if (const FoundFile pages = m_files.pages(attachment, account)) {
        file.name = nameLike(attachment.title, pages.name, tr("Scan"));
        file.path = [path = pages.path] { return path; };
        files.push_back(file);
    }
}

QString NoteStore::mediaPath(
    const NoteAttachment& attachment, const QString& account, const QString& noteTitle) const
{
    const FoundFile media = m_files.media(attachment, account);
    if (!media) {
        noteMissingFile(m_notices, attachment.name(), noteTitle);
    }
    return media.path;
}

} // namespace backup
