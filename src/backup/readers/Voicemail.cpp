// SPDX-License-Identifier: MIT
//   Name                     | Number        | Date             | Duration | Content
//   Mia 2024-05-01 12.30.amr | +491715550101 | 2024-05-01 12:30 | 0:00:12  | Call me back!
//
//   voicemail        ROWID, sender, callback_num, date (since 1970), duration, trashed_date, flags
//   <ROWID>.amr      the sound
//   <ROWID>.transcript  what was said, a keyed archive with transcriptionString
#include "backup/readers/Voicemail.h"

#include "backup/container/Notices.h"
#include "backup/readers/DeviceFileItem.h"
#include "backup/readers/table_reader.h"
#include "formats/plist.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <array>
#include <utility>

namespace backup {

namespace {

constexpr QLatin1String kDomain = "HomeDomain"_L1;
constexpr QLatin1String kDirectory = "Library/Voicemail"_L1;
constexpr QLatin1String kTable = "voicemail"_L1;
constexpr QLatin1String kSound = ".amr"_L1;
constexpr QLatin1String kTranscript = ".transcript"_L1;
constexpr qint64 kDeletedFlags = 75;
constexpr int kContentColumn = 4;

enum Column : int { Id, Sender, Date, Duration, TrashedDate, Flags };
const std::array kColumns{
    WantedColumn{.name = QStringLiteral("ROWID"), .needed = true},
    WantedColumn{.name = QStringLiteral("sender|callback_num"), .needed = true},
    WantedColumn{.name = QStringLiteral("date"), .needed = true},
    WantedColumn{.name = QStringLiteral("duration")},
    WantedColumn{.name = QStringLiteral("trashed_date")},
    WantedColumn{.name = QStringLiteral("flags")},
};

struct Message {
    QString base; ///< "Library/Voicemail/12"
    QString number;
    QDateTime date;
    double seconds = 0;
    bool isDeleted = false;
};

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

/// A message whose words are read when they are asked for.
class VoicemailItem final : public DeviceFileItem {
public:
    using DeviceFileItem::DeviceFileItem;

    QString value(int column) const override
    {
        return column == kContentColumn ? words() : DeviceFileItem::value(column);
    }

private:
    QString words() const
    {
        QString transcript = place().path;
        transcript.chop(kSound.size());
        const QString path = files().locate(place().domain, transcript + kTranscript);
        if (path.isEmpty()) {
            return {};
        }
        const auto archive = formats::readPlistFile(path);
        return archive
                   ? formats::unarchive(*archive).toMap().value("transcriptionString"_L1).toString()
                   : QString();
    }
};

void readMessages(const TableReader& tables, std::vector<Message>& messages)
{
    tables.read(kTable, kColumns, [&](const formats::Statement& row) {
        messages.push_back(
            {.base = QString(kDirectory) + QChar(u'/') + QString::number(row.integer(Id)),
                .number = row.text(Sender),
                .date = unixDate(row, Date),
                .seconds = row.real(Duration),
                .isDeleted = row.integer(TrashedDate) != 0 || row.integer(Flags) == kDeletedFlags});
    });
}

QStringList soundsOf(const FileLocator& files)
{
    QStringList sounds;
    const QStringList paths = files.filesBelow(kDomain, kDirectory);
    for (const QString& path : paths) {
        if (path.endsWith(kSound)) {
            sounds.append(path);
        }
    }
    return sounds;
}

// Greetings, and messages whose rows are gone.
std::vector<QString> withoutRows(const QStringList& sounds, const std::vector<Message>& messages)
{
    QSet<QString> known;
    for (const Message& message : messages) {
        known.insert(message.base + kSound);
    }
    std::vector<QString> others;
    std::ranges::copy_if(sounds, std::back_inserter(others),
        [&](const QString& sound) { return !known.contains(sound); });
    return others;
}

// "Mia 2024-05-01 12.30.amr"
QString fileName(const Message& message, const SenderNames& names)
{
    QString who = names.nameOf(message.number);
    if (who.isEmpty()) {
        who = message.number.isEmpty() ? tr("Unknown") : message.number;
    }
    const QString date = CCommonUtils::datetimeToMinute(message.date, true);
    return QString(who + QChar(u' ') + date).replace(QChar(u':'), QChar(u'.')).trimmed() + kSound;
}

std::unique_ptr<PRAbstractItem> record(
    const Message& message, const SenderNames& names, const FileLocator& files)
{
    FileContent content;
    content.detailDate = isoDate(message.date);
    // The last value stands for the words.
    return std::make_unique<VoicemailItem>(
        Record{.values = {fileName(message, names), message.number,
                   CCommonUtils::datetimeToMinute(message.date, true),
                   recordingLength(message.seconds), QString()},
            .flags = message.isDeleted ? Deleted : 0},
        std::move(content), DeviceFile{.domain = kDomain, .path = message.base + kSound}, files);
}

} // namespace

Voicemail::Voicemail(SenderNames names, const FileLocator& files, Notices& notices)
    : LazyData(
        kDataType, {tr("Name"), tr("Number"), tr("Date"), tr("Duration"), tr("Content")}, notices),
      m_names(std::move(names)), m_files(files)
{
}

bool Voicemail::isVoicemail(const formats::Database& database)
{
    return database.hasTable(kTable);
}

bool Voicemail::hasFiles(const FileLocator& files)
{
    return !soundsOf(files).isEmpty();
}

RecordList Voicemail::read(const std::vector<NamedDatabase>& databases, Notices& notices) const
{
    std::vector<Message> messages;
    for (const NamedDatabase& store : databases) {
        readMessages(TableReader(store.opened.database, store.name, notices), messages);
    }
    std::ranges::stable_sort(
        messages, std::greater(), [](const Message& message) { return dateOrder(message.date); });
    const QStringList sounds = soundsOf(m_files);
    RecordList records;
    int missing = 0;
    for (const Message& message : messages) {
        const QString sound = message.base + kSound;
        const bool isThere = sounds.contains(sound) || !m_files.locate(kDomain, sound).isEmpty();
        missing += isThere ? 0 : 1;
        records.push_back(record(message, m_names, m_files));
    }
    const std::vector<QString> others = withoutRows(sounds, messages);
    for (const QString& sound : others) {
        records.push_back(std::make_unique<VoicemailItem>(
            Record{.values = {lastPart(sound), QString(), QString(), QString(), QString()}},
            FileContent(), DeviceFile{.domain = kDomain, .path = sound}, m_files));
    }
    if (missing > 0) {
        notices.add(tr("Recordings that are not in the backup: %1").arg(missing));
    }
    return records;
}

} // namespace backup
