// SPDX-License-Identifier: MIT
#pragma once

#include "ChatTest.h"

#include <QImageReader>

#include <algorithm>

/// The chats of the sample backup.
class SampleChatTest : public ChatTest {
protected:
    void SetUp() override
    {
        take(backup::openBackupFolder(QStringLiteral(DATAEXPORT_BUILD_DIR "/samples/backup")));
    }

    // As `shownMessages`, without what media files hold.
    QStringList shown(int dataType, int row)
    {
        QStringList texts;
        for (const PRWhatsappMsg& message : messagesOf(dataType, row)) {
            ChatMessage plain = message.contents();
            plain.media = QString();
            texts.append(shownMessage(plain));
        }
        return texts;
    }

    int picturesThatCanBeDrawn(int dataType, int row)
    {
        return static_cast<int>(
            std::ranges::count_if(messagesOf(dataType, row), [](const PRWhatsappMsg& message) {
                QImageReader reader(message.media());
                reader.setDecideFormatFromContent(true);
                return !message.media().isEmpty() && reader.canRead();
            }));
    }
};
