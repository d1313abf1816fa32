// SPDX-License-Identifier: MIT
// Puts the pictures of a folder on the page of a chat.
//
//   chat_pictures SOURCE TARGET         as the library does
//   chat_pictures --qt SOURCE TARGET    each loaded, scaled and saved by Qt, and no page
#include "driver/CBackupExporter.h"
#include "model/PRBackup.h"
#include "model/PRWhatsappItem.h"

#include <QDir>
#include <QImage>

#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int kChats = 5;
constexpr int kSize = 250;

QStringList picturesOf(const QDir& source)
{
    QStringList pictures;
    const QStringList names = source.entryList(QDir::Files, QDir::Name);
    for (const QString& name : names) {
        pictures += source.filePath(name);
    }
    return pictures;
}

void exportChat(const QStringList& pictures, const QDir& target)
{
    std::vector<PRWhatsappMsg> messages;
    for (const QString& picture : pictures) {
        messages.emplace_back(
            ChatMessage{.type = static_cast<int>(MsgType::Picture), .media = picture});
    }
    RecordList chats;
    chats.push_back(std::make_unique<PRWhatsappItem>(Record(), std::move(messages)));
    PRBackup backup;
    backup.add(std::make_unique<PRData>(kChats, std::move(chats)));
    CBackupExporter().exportBackup(
        &backup, target, nullptr, QVector<int>{kChats}, false, QStringLiteral("Anna"));
}

bool saveByQt(const QStringList& pictures, const QDir& target)
{
    int number = 0;
    for (const QString& path : pictures) {
        const QImage small =
            QImage(path).scaled(kSize, kSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        if (!small.save(target.filePath(QStringLiteral("%1.png").arg(number++)), "PNG")) {
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const bool byQt = arguments.size() == 3 && arguments[0] == "--qt";
    if (arguments.size() != 2 && !byQt) {
        std::fputs("usage: chat_pictures [--qt] SOURCE TARGET\n", stderr);
        return 2;
    }
    const QStringList pictures =
        picturesOf(QDir(QString::fromStdString(arguments[arguments.size() - 2])));
    const QDir target(QString::fromStdString(arguments.back()));
    if (byQt) {
        return saveByQt(pictures, target) ? 0 : 1;
    }
    exportChat(pictures, target);
    return 0;
}
