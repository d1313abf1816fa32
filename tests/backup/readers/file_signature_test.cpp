// SPDX-License-Identifier: MIT
#include "backup/readers/file_signature.h"
#include "support/backup_builder.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>

namespace {

TEST(FileSignature, FirstBytesAskForAnEnding)
{
    struct Row {
        const char* what = nullptr;
        QByteArray bytes;
        const char* ending = "";
    };
    const std::array rows{
        Row{"JPEG", "\xFF\xD8\xFF\xE0rest", "jpg"},
        Row{"PNG", "\x89PNG\r\n\x1A\nrest", "png"},
        Row{"GIF", "GIF89a", "gif"},
        Row{"WebP", "RIFF1234WEBPVP8 ", "webp"},
        Row{"HEIC", "1234ftypheic", "heic"},
        Row{"film", "1234ftypmp42", "mp4"},
        Row{"QuickTime", "1234ftypqt  ", "mov"},
        Row{"sound", "1234ftypM4A ", "m4a"},
        Row{"wave", "RIFF1234WAVEfmt ", "wav"},
        Row{"AMR", "#!AMR\n", "amr"},
        Row{"PDF", "%PDF-1.7", "pdf"},
        Row{"text", "Hello, how are you?"},
        Row{"cut JPEG", "\xFF\xD8"},
        Row{"empty", ""},
    };
    const QTemporaryDir directory;
    const QString path = directory.filePath("file");
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        writeFile(path, row.bytes);
        EXPECT_EQ(backup::endingOfFile(path), row.ending);
    }
    EXPECT_EQ(backup::endingOfFile(directory.filePath("none")), "");
    EXPECT_EQ(backup::endingOfFile(QString()), "");
}

} // namespace
