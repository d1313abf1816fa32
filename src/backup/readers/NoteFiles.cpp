// SPDX-License-Identifier: MIT
// Files of notes, below Accounts/<account>/, in older stores at the top. `generation` since iOS 17:
//   Media/<media>/<generation>/<file name>                Media/<media>/<file name>
//   Previews/<preview>/<generation>/OrientedPreview.jpeg  Previews/<preview>-oriented.png
//   Previews/<preview>/<generation>/Preview.png           Previews/<preview>.png, .jpg
//   FallbackImages/<attachment>/<generation>/FallbackImage.png
//                                                         FallbackImages/<attachment>.jpg, .png
//   FallbackPDFs/<attachment>/<generation>/FallbackPDF.pdf
// Those of locked notes end in ".encrypted".
#include "backup/readers/NoteFiles.h"

namespace backup {

namespace {

// What cannot be a single part of a path leads nowhere.
bool isPart(const QString& text)
{
    return !text.isEmpty() && !text.contains(QChar(u'/')) && text != ".."_L1;
}

QString lastPart(const QString& path)
{
    return path.mid(path.lastIndexOf(QChar(u'/')) + 1);
}

// Below the directory of the generation first, then where older releases have it.
QStringList withGeneration(
    const QString& directory, const QString& generation, const QStringList& names)
{
    QStringList candidates;
    for (const QString& name : names) {
        if (isPart(generation)) {
            candidates.append(directory + QChar(u'/') + generation + QChar(u'/') + name);
        }
    }
    for (const QString& name : names) {
        candidates.append(directory + QChar(u'/') + name);
    }
    return candidates;
}

} // namespace

NoteFiles::NoteFiles(const FileLocator& files, QStringList accounts)
    : m_files(files), m_accounts(std::move(accounts))
{
}

FoundFile NoteFiles::media(const NoteAttachment& attachment, const QString& account) const
{
    if (!isPart(attachment.mediaId)) {
        return {};
    }
    const QString directory = "Media/"_L1 + attachment.mediaId;
    if (isPart(attachment.fileName)) {
        FoundFile found = first(
            account, withGeneration(directory, attachment.mediaGeneration, {attachment.fileName}));
        if (found) {
            return found;
        }
    }
    return anyBelow(account, directory);
}

FoundFile NoteFiles::preview(const NoteAttachment& attachment, const QString& account) const
{
    for (const NotePreview& preview : attachment.previews) {
        if (!isPart(preview.identifier)) {
            continue;
        }
        const QString base = "Previews/"_L1 + preview.identifier;
        QStringList candidates = withGeneration(base, preview.generation,
            {"OrientedPreview.jpeg"_L1, "OrientedPreview.png"_L1, "Preview.png"_L1,
                "Preview.jpeg"_L1});
        candidates += {base + "-oriented.png"_L1, base + "-oriented.jpg"_L1, base + ".png"_L1,
            base + ".jpg"_L1};
        if (FoundFile found = first(account, candidates)) {
            return found;
        }
        if (FoundFile found = anyBelow(account, base)) {
            return found;
        }
    }
    return {};
}

FoundFile NoteFiles::drawing(const NoteAttachment& attachment, const QString& account) const
{
    if (!isPart(attachment.identifier)) {
        return {};
    }
    const QString base = "FallbackImages/"_L1 + attachment.identifier;
    QStringList candidates = withGeneration(base, attachment.imageGeneration,
        {"FallbackImage.png"_L1, "FallbackImage.jpg"_L1, "FallbackImage.jpeg"_L1});
    candidates += {base + ".jpg"_L1, base + ".png"_L1};
    return first(account, candidates);
}

FoundFile NoteFiles::pages(const NoteAttachment& attachment, const QString& account) const
{
    if (!isPart(attachment.identifier)) {
        return {};
    }
    return first(account, withGeneration("FallbackPDFs/"_L1 + attachment.identifier,
                              attachment.pdfGeneration, {"FallbackPDF.pdf"_L1}));
}

QStringList NoteFiles::roots(const QString& account) const
{
    QStringList roots;
    QStringList accounts = m_accounts;
    accounts.removeAll(account);
    accounts.prepend(account);
    for (const QString& each : accounts) {
        if (isPart(each)) {
            roots.append("Accounts/"_L1 + each + QChar(u'/'));
        }
    }
    roots.append(QString());
    return roots;
}

FoundFile NoteFiles::first(const QString& account, const QStringList& candidates) const
{
    QStringList paths;
    const QStringList places = roots(account);
    for (const QString& root : places) {
        for (const QString& candidate : candidates) {
            paths.append(root + candidate);
        }
    }
    return located(paths);
}

// Whatever lies there: names and generations differ between releases.
FoundFile NoteFiles::anyBelow(const QString& account, const QString& directory) const
{
    QStringList paths;
    const QStringList places = roots(account);
    for (const QString& root : places) {
        paths += m_files.filesBelow(kNotesDomain, root + directory);
    }
    return located(paths);
}

FoundFile NoteFiles::located(const QStringList& paths) const
{
    for (const QString& path : paths) {
        QString found =
            path.endsWith(".encrypted"_L1) ? QString() : m_files.locate(kNotesDomain, path);
        if (!found.isEmpty()) {
            return {.path = std::move(found), .name = lastPart(path)};
        }
    }
    return {};
}

} // namespace backup
