// SPDX-License-Identifier: MIT
// Rows of ZICCLOUDSYNCINGOBJECT by their kind:
//   ICAttachment              ZIDENTIFIER, ZTYPEUTI, ZNOTE, ZPARENTATTACHMENT, ZMEDIA -> ICMedia
//   ICMedia                   ZIDENTIFIER, ZFILENAME, ZGENERATION1; in some stores the way to its
//                             attachment instead, ZATTACHMENT<n>
//   ICAttachmentPreviewImage  ZIDENTIFIER, ZATTACHMENT -> ICAttachment, ZWIDTH, ZHEIGHT, ZSCALE
//   ICInlineAttachment        ZIDENTIFIER, ZALTTEXT
#include "backup/readers/NoteAttachments.h"

#include "backup/readers/core_data.h"
#include "backup/readers/keyed_rows.h"

#include <algorithm>
#include <utility>

namespace backup {

namespace {

constexpr QLatin1String kObjects = "ZICCLOUDSYNCINGOBJECT"_L1;

enum AttachmentColumn : int {
    Id,
    Identifier,
    NoteId,
    ParentId,
    Type,
    Title,
    Summary,
    Url,
    IsLocked,
    Created,
    ImageGeneration,
    PdfGeneration,
    MediaId,
    MediaFileName,
    MediaGeneration,
};

NoteAttachment attachmentOf(const formats::Statement& row)
{
    return {
        .id = row.integer(Id),
        .noteId = row.integer(NoteId),
        .parentId = row.integer(ParentId),
        .identifier = row.text(Identifier),
        .type = row.text(Type),
        .title = row.text(Title),
        .summary = row.text(Summary),
        .url = row.text(Url),
        .locked = row.integer(IsLocked) != 0,
        .created = row.real(Created),
        .imageGeneration = row.text(ImageGeneration),
        .pdfGeneration = row.text(PdfGeneration),
        .mediaId = row.text(MediaId),
        .fileName = row.text(MediaFileName),
        .mediaGeneration = row.text(MediaGeneration),
        .previews = {},
    };
}

} // namespace

NoteAttachments::NoteAttachments(const formats::Database& database)
{
    readAttachments(database);
    readMedia(database);
    readPreviews(database);
    readInlineTexts(database);
    const TableColumns columns(database, kObjects);
    auto query = database.prepare(
        "SELECT "_L1 + columns.firstOf("o"_L1, {"ZMERGEABLEDATA1"_L1, "ZMERGEABLEDATA"_L1})
        + " FROM ZICCLOUDSYNCINGOBJECT o WHERE o.Z_PK = ?"_L1);
    if (query) {
        m_tableData = std::move(*query);
    }
}

void NoteAttachments::readKind(const formats::Database& database, QLatin1String kind,
    const QString& select, const std::function<void(const formats::Statement&)>& take)
{
    const auto entity = entityNumber(database, kind);
    const KeyedQuery query{.select = select,
        .condition = "o.Z_ENT = "_L1 + QString::number(entity.value_or(-1)),
        .key = "o.Z_PK"_L1};
    const bool isWhole = readByKey(database, query, take);
    m_isDamaged = m_isDamaged || !isWhole;
}

void NoteAttachments::readAttachments(const formats::Database& database)
{
    const TableColumns columns(database, kObjects);
    const QStringList selected{
        "o.Z_PK"_L1,
        columns.firstOf("o"_L1, {"ZIDENTIFIER"_L1}),
        columns.firstOf("o"_L1, {"ZNOTE"_L1, "ZNOTE1"_L1}),
        columns.firstOf("o"_L1, {"ZPARENTATTACHMENT"_L1, "ZPARENTATTACHMENT1"_L1}),
        columns.firstOf("o"_L1, {"ZTYPEUTI"_L1, "ZTYPEUTI1"_L1}),
        columns.firstOf("o"_L1, {"ZUSERTITLE"_L1, "ZTITLE"_L1}),
        columns.firstOf("o"_L1, {"ZSUMMARY"_L1}),
        columns.firstOf("o"_L1, {"ZURLSTRING"_L1}),
        columns.firstOf("o"_L1, {"ZISPASSWORDPROTECTED"_L1}),
        columns.firstOf("o"_L1, {"ZCREATIONDATE"_L1, "ZCREATIONDATE1"_L1, "ZCREATIONDATE3"_L1,
                                    "ZMODIFICATIONDATE"_L1, "ZMODIFICATIONDATE1"_L1}),
        columns.firstOf("o"_L1, {"ZFALLBACKIMAGEGENERATION"_L1}),
        columns.firstOf("o"_L1, {"ZFALLBACKPDFGENERATION"_L1}),
        columns.firstOf("m"_L1, {"ZIDENTIFIER"_L1}),
        columns.firstOf("m"_L1, {"ZFILENAME"_L1}),
        columns.firstOf("m"_L1, {"ZGENERATION1"_L1, "ZGENERATION"_L1}),
    };
    const QString media =
        columns.has("ZMEDIA"_L1) ? QStringLiteral("o.ZMEDIA") : QStringLiteral("NULL");
    readKind(database, "ICAttachment"_L1,
        "SELECT "_L1 + selected.join(QChar(u','))
            + " FROM ZICCLOUDSYNCINGOBJECT o LEFT JOIN ZICCLOUDSYNCINGOBJECT m ON m.Z_PK = "_L1
            + media,
        [this](const formats::Statement& row) { add(attachmentOf(row)); });
}

void NoteAttachments::add(NoteAttachment attachment)
{
    const auto index = static_cast<int>(m_all.size());
    m_byId.insert(attachment.id, index);
    m_byIdentifier.insert(attachment.identifier, index);
    m_all.push_back(std::move(attachment));
}

// Media that name their attachments.
void NoteAttachments::readMedia(const formats::Database& database)
{
    const TableColumns columns(database, kObjects);
    const QStringList selected{
        "o.Z_PK"_L1,
        columns.firstOf("o"_L1, {"ZATTACHMENT1"_L1, "ZATTACHMENT"_L1}),
        columns.firstOf("o"_L1, {"ZIDENTIFIER"_L1}),
        columns.firstOf("o"_L1, {"ZFILENAME"_L1}),
        columns.firstOf("o"_L1, {"ZGENERATION1"_L1, "ZGENERATION"_L1}),
    };
    readKind(database, "ICMedia"_L1,
        "SELECT "_L1 + selected.join(QChar(u',')) + " FROM ZICCLOUDSYNCINGOBJECT o"_L1,
        [this](const formats::Statement& row) {
            NoteAttachment* attachment = byId(row.integer(1));
            if (attachment != nullptr && attachment->mediaId.isEmpty()) {
                attachment->mediaId = row.text(2);
                attachment->fileName = row.text(3);
                attachment->mediaGeneration = row.text(4);
            }
        });
}

void NoteAttachments::readPreviews(const formats::Database& database)
{
    const TableColumns columns(database, kObjects);
    const auto size = [&](QLatin1String name) {
        return "coalesce("_L1 + columns.firstOf("o"_L1, {name}) + ",1)"_L1;
    };
    const QStringList selected{
        "o.Z_PK"_L1,
        columns.firstOf("o"_L1, {"ZATTACHMENT"_L1, "ZATTACHMENT1"_L1}),
        columns.firstOf("o"_L1, {"ZIDENTIFIER"_L1}),
        columns.firstOf("o"_L1, {"ZGENERATION"_L1, "ZGENERATION1"_L1}),
        size("ZWIDTH"_L1) + " * "_L1 + size("ZHEIGHT"_L1) + " * "_L1 + size("ZSCALE"_L1),
    };
    readKind(database, "ICAttachmentPreviewImage"_L1,
        "SELECT "_L1 + selected.join(QChar(u',')) + " FROM ZICCLOUDSYNCINGOBJECT o"_L1,
        [this](const formats::Statement& row) {
            if (NoteAttachment* attachment = byId(row.integer(1))) {
                attachment->previews.push_back(
                    {.identifier = row.text(2), .generation = row.text(3), .size = row.real(4)});
            }
        });
    for (NoteAttachment& attachment : m_all) {
        std::ranges::stable_sort(attachment.previews, std::ranges::greater(), &NotePreview::size);
    }
}

void NoteAttachments::readInlineTexts(const formats::Database& database)
{
    const TableColumns columns(database, kObjects);
    readKind(database, "ICInlineAttachment"_L1,
        "SELECT o.Z_PK,"_L1 + columns.firstOf("o"_L1, {"ZIDENTIFIER"_L1}) + ","_L1
            + columns.firstOf("o"_L1, {"ZALTTEXT"_L1}) + " FROM ZICCLOUDSYNCINGOBJECT o"_L1,
        [this](const formats::Statement& row) { m_inlineTexts.insert(row.text(1), row.text(2)); });
}

NoteAttachment* NoteAttachments::byId(qint64 id)
{
    const auto found = m_byId.constFind(id);
    return found != m_byId.cend() ? &m_all[static_cast<std::size_t>(*found)] : nullptr;
}

const NoteAttachment* NoteAttachments::find(const QString& identifier) const
{
    const auto found = m_byIdentifier.constFind(identifier);
    return found != m_byIdentifier.cend() ? &m_all[static_cast<std::size_t>(*found)] : nullptr;
}

std::vector<const NoteAttachment*> NoteAttachments::childrenOf(const NoteAttachment& parent) const
{
    std::vector<const NoteAttachment*> children;
    for (const NoteAttachment& attachment : m_all) {
        if (attachment.parentId == parent.id && attachment.id != parent.id) {
            children.push_back(&attachment);
        }
    }
    return children;
}

qint64 NoteAttachments::noteOf(const NoteAttachment& attachment) const
{
    if (attachment.noteId != 0) {
        return attachment.noteId;
    }
    const auto parent = m_byId.constFind(attachment.parentId);
    return parent != m_byId.cend() ? m_all[static_cast<std::size_t>(*parent)].noteId : 0;
}

std::optional<QString> NoteAttachments::inlineText(const QString& identifier) const
{
    const auto found = m_inlineTexts.constFind(identifier);
    return found != m_inlineTexts.cend() ? std::optional(*found) : std::nullopt;
}

QByteArray NoteAttachments::tableData(const NoteAttachment& attachment) const
{
    m_tableData.reset();
    m_tableData.bind(1, attachment.id);
    QByteArray data;
    if (m_tableData.next()) {
        data = m_tableData.blob(0);
    }
    m_tableData.reset();
    return data;
}

} // namespace backup
