// SPDX-License-Identifier: MIT
// What samples/backup/whatsapp.json says, as it comes out of the sample backup.
#include "SampleChatTest.h"

namespace {

using SampleWhatsAppTest = SampleChatTest;

TEST_F(SampleWhatsAppTest, ChatsStandByDate)
{
    const QString groupNumbers =
        "+491715550101,+12025550114,+491715550105,+380445550141,+447700900456";
    EXPECT_EQ(lines(5),
        QStringList({"x +15005550199 | +15005550199 | +15005550199",
            "Neighbours | Neighbours | +491715550101,+491715550105",
            "Олена Коваленко | Олена Коваленко | +380445550141", "王伟 | 王伟 | +861055550148",
            "Strand & Chor 🎶 | Strand & Chor 🎶 | " + groupNumbers,
            "Lena Hoffmann | Lena Hoffmann | +491715550101"}));
    EXPECT_EQ(lines(7), QStringList("Blumen Sommer | Blumen Sommer | +49405550130"));
}

TEST_F(SampleWhatsAppTest, GroupHasEventsNamesAndReactions)
{
    EXPECT_EQ(shown(5, 4),
        QStringList({"< [6] Lena Hoffmann created the group",
            "< [6] Lena Hoffmann added Ben Carter, نور الأمين, 王伟 to the conversation",
            "> [6] You named the conversation “Strand & Chor 🎶”",
            "< [0] Ben Carter: Who brings the songbooks?",
            "< [0] نور الأمين: > Ben Carter: Who brings the songbooks?\nأنا أحضرها معي غدًا",
            "< [0] Олена Коваленко: Дякую, Нур! 🙏 +3", "< [0] Zara 🎻: Bows are rosined. <ready>",
            "< [0] 王伟: 我周六才能到。", "< [6] 王伟 left the conversation",
            "< [8] Ben Carter: Ferry 3 March.pdf",
            "> [0] Poll: Which day?\n- Friday\n- Saturday\n- الأحد",
            "< [1] Zara 🎻: ", "< [1] Олена Коваленко: ", "< [0] Олена Коваленко: Карпати",
            "< [6] Lena Hoffmann changed the group photo",
            "< [6] Lena Hoffmann made messages disappear after 7 days",
            "< [2] Ben Carter: ", "< [0] Ben Carter: Me, arriving"}));
    EXPECT_EQ(picturesThatCanBeDrawn(5, 4), 2) << "the sticker, and the likeness of a picture";
}

TEST_F(SampleWhatsAppTest, ChatWithOnePersonHasAllKindsOfMessages)
{
    EXPECT_EQ(shown(5, 5),
        QStringList({"< [6] Messages and calls are encrypted from end to end",
            "< [0] Guten Morgen! Kommst du mit an den Strand? 🌊",
            "> [0] > Lena Hoffmann: Guten Morgen! Kommst du mit an den Strand? 🌊\nJa! Um zehn? +1",
            "< [5] Hafen\nAm Deich 1, Neuharlingersiel\n53.7012, 7.7043", "< [1]  +2",
            "< [0] Schau, wie leer!", "> [2] ", "< [3] ", "< [6] Missed voice call",
            "> [4] Ben Carter: +1 (202) 555-0114\nBlumen Sommer: 040 5550130",
            "< [6] Lena Hoffmann deleted a message",
            "< [0] Forwarded\nhttps://tides.example.org/harbour <- die Gezeiten & mehr",
            "! [0] Schlaf gut"}));
    EXPECT_EQ(picturesThatCanBeDrawn(5, 5), 1);
}

TEST_F(SampleWhatsAppTest, ListIsABroadcast)
{
    ASSERT_EQ(messagesOf(5, 1).size(), 1U);
    EXPECT_TRUE(messagesOf(5, 1).front().isBroadcast());
    EXPECT_FALSE(messagesOf(5, 3).front().isBroadcast());
}

TEST_F(SampleWhatsAppTest, FilesLieInTheBackup)
{
    ASSERT_EQ(lines(6).size(), 9);
    EXPECT_EQ(column(6, 1), QStringList({"王伟", "Strand & Chor 🎶", "Strand & Chor 🎶",
                                "Strand & Chor 🎶", "Strand & Chor 🎶", "Lena Hoffmann",
                                "Lena Hoffmann", "Lena Hoffmann", "Lena Hoffmann"}));
    EXPECT_EQ(lines(6)[1], "Ferry 3 March.pdf | Strand & Chor 🎶");
    for (int row = 0; row < 9; ++row) {
        SCOPED_TRACE(row);
        EXPECT_GT(QFileInfo(file(6, row).filePath()).size(), 0);
    }
    EXPECT_EQ(lines(8).size(), 1);
}

} // namespace
