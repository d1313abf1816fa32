// SPDX-License-Identifier: MIT
// Files of messages: attachment (guid, filename, transfer_name, mime_type, uti, hide_attachment),
// joined to messages by message_attachment_join in the order of its rows.
//   filename  "~/Library/SMS/Attachments/ab/11/<guid>/IMG_0001.HEIC"
//             stands in the backup in MediaDomain, without "~/"
#include "backup/readers/MessageFiles.h"

#include "platform/literals.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace backup {

namespace {

enum Column : int { Id, Guid, Filename, TransferName, MimeType, Uti, Hidden };

struct TypeRow {
    QLatin1String key;
    QLatin1String mimeType;
};

// clang-format off
constexpr std::array kTypesByUti{
    TypeRow{"public.jpeg"_L1,                   "image/jpeg"_L1},
    TypeRow{"public.png"_L1,                    "image/png"_L1},
    TypeRow{"public.heic"_L1,                   "image/heic"_L1},
    TypeRow{"public.heif"_L1,                   "image/heif"_L1},
    TypeRow{"com.compuserve.gif"_L1,            "image/gif"_L1},
    TypeRow{"com.apple.quicktime-movie"_L1,     "video/quicktime"_L1},
    TypeRow{"public.mpeg-4"_L1,                 "video/mp4"_L1},
    TypeRow{"com.apple.coreaudio-format"_L1,    "audio/x-caf"_L1},
    TypeRow{"com.apple.m4a-audio"_L1,           "audio/mp4"_L1},
    TypeRow{"public.mp3"_L1,                    "audio/mpeg"_L1},
    TypeRow{"org.3gpp.adaptive-multi-rate-audio"_L1, "audio/amr"_L1},
    TypeRow{"public.vcard"_L1,                  "text/vcard"_L1},
    TypeRow{"public.vlocation"_L1,              "text/x-vlocation"_L1},
    TypeRow{"public.plain-text"_L1,             "text/plain"_L1},
    TypeRow{"com.adobe.pdf"_L1,                 "application/pdf"_L1},
};

constexpr std::array kTypesBySuffix{
    TypeRow{"jpg"_L1,  "image/jpeg"_L1},
    TypeRow{"jpeg"_L1, "image/jpeg"_L1},
    TypeRow{"png"_L1,  "image/png"_L1},
    TypeRow{"gif"_L1,  "image/gif"_L1},
    TypeRow{"heic"_L1, "image/heic"_L1},
    TypeRow{"heif"_L1, "image/heif"_L1},
    TypeRow{"webp"_L1, "image/webp"_L1},
    TypeRow{"mov"_L1,  "video/quicktime"_L1},
    TypeRow{"mp4"_L1,  "video/mp4"_L1},
    TypeRow{"3gp"_L1,  "video/3gpp"_L1},
    TypeRow{"caf"_L1,  "audio/x-caf"_L1},
    TypeRow{"amr"_L1,  "audio/amr"_L1},
    TypeRow{"m4a"_L1,  "audio/mp4"_L1},
    TypeRow{"mp3"_L1,  "audio/mpeg"_L1},
    TypeRow{"vcf"_L1,  "text/vcard"_L1},
    TypeRow{"txt"_L1,  "text/plain"_L1},
    TypeRow{"pdf"_L1,  "application/pdf"_L1},
};

constexpr std::array kDevicePrefixes{
    "~/"_L1, "/private/var/mobile/"_L1, "/var/mobile/"_L1, "/private/var/root/"_L1, "/var/root/"_L1};
// clang-format on

constexpr QLatin1String kLocationType = "text/x-vlocation"_L1;
constexpr qint64 kLargestText = 1 << 20; // bytes of a text file that is shown as text

template <std::size_t kSize>
QString typeOf(const std::array<TypeRow, kSize>& table, const QString& key)
{
    const auto* const row = std::ranges::find(table, key, &TypeRow::key);
    return row != table.end() ? QString(row->mimeType) : QString();
}

QString readText(const QString& path)
{
    QFile file(path);
    return !path.isEmpty() && file.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(file.read(kLargestText))
               : QString();
}

// "52.5200, 13.4050" of a line "item1.URL;type=pref:http://maps.example/?ll=52.5200\,13.4050&q=…"
QString coordinates(const QString& locationFile)
{
    static const QRegularExpression pattern(
        R"([?&](?:ll|q)=(-?[0-9.]+)\\?(?:,|%2C)(-?[0-9.]+))"_L1);
    const QRegularExpressionMatch match = pattern.match(locationFile);
    return match.hasMatch() ? match.captured(1) + ", "_L1 + match.captured(2) : QString();
}

} // namespace

DevicePath backupPath(const QString& devicePath)
{
    const auto* const prefix = std::ranges::find_if(
        kDevicePrefixes, [&](QLatin1String start) { return devicePath.startsWith(start); });
    const QString relative =
        prefix != kDevicePrefixes.end() ? devicePath.mid(prefix->size()) : devicePath;
    if (relative.isEmpty() || relative.startsWith(QChar(u'/'))) {
        return {};
    }
    return {"MediaDomain"_L1, relative};
}

MessageFiles::MessageFiles(const formats::Database& database, const FileLocator& files)
    : m_files(files), m_available(database.columns("attachment"_L1))
{
    auto query = database.prepare(
        "SELECT "_L1 + columns()
        + " FROM message_attachment_join j JOIN attachment a ON a.ROWID = j.attachment_id"
          " WHERE j.message_id = ? ORDER BY j.ROWID"_L1);
    if (query) {
        m_query = std::move(*query);
    }
}

QString MessageFiles::columns() const
{
    static constexpr std::array kNames{"guid"_L1, "filename"_L1, "transfer_name"_L1, "mime_type"_L1,
        "uti"_L1, "hide_attachment"_L1};
    QString list = "a.ROWID"_L1;
    for (const QLatin1String name : kNames) {
        list += m_available.contains(name) ? ",a."_L1 + name : QStringLiteral(",NULL");
    }
    return list;
}

AttachmentRow MessageFiles::read(const formats::Statement& query)
{
    AttachmentRow row{
        .id = query.integer(Id),
        .guid = query.text(Guid),
        .devicePath = query.text(Filename),
        .name = query.text(TransferName),
        .mimeType = query.text(MimeType),
    };
    const QFileInfo file(row.devicePath);
    if (row.name.isEmpty()) {
        row.name = file.fileName();
    }
    const QString uti = query.text(Uti);
    if (row.mimeType.isEmpty()) {
        row.mimeType = typeOf(kTypesByUti, uti);
    }
    if (row.mimeType.isEmpty()) {
        row.mimeType = typeOf(kTypesBySuffix, QFileInfo(row.name).suffix().toLower());
    }
    row.location = row.mimeType == kLocationType || uti == "public.vlocation"_L1;
    return row;
}

std::vector<AttachmentRow> MessageFiles::of(std::int64_t messageId)
{
    std::vector<AttachmentRow> found;
    m_query.reset();
    m_query.bind(1, static_cast<qint64>(messageId));
    while (m_query.next()) {
        if (m_query.integer(Hidden) == 0) { // hidden ones are data of an app's message
            found.push_back(read(m_query));
        }
    }
    return found;
}

QString MessageFiles::resolve(const QString& devicePath) const
{
    const DevicePath path = backupPath(devicePath);
    return path.relativePath.isEmpty() ? QString() : m_files.locate(path.domain, path.relativePath);
}

PRSMSPiece MessageFiles::piece(const AttachmentRow& attachment) const
{
    SmsPiece piece{
        .type = attachment.mimeType,
        .location = attachment.location,
        .path = attachment.devicePath,
        .resolver = this,
        .info = attachment.name,
    };
    // The two kinds whose contents are shown as text.
    if (attachment.location) {
        const QString place = coordinates(readText(resolve(attachment.devicePath)));
        piece.info = place.isEmpty() ? piece.info : place;
    } else if (attachment.mimeType == "text/plain"_L1) {
        piece.data = readText(resolve(attachment.devicePath)).toUtf8();
    }
    return PRSMSPiece(std::move(piece));
}

} // namespace backup
