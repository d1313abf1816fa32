// SPDX-License-Identifier: MIT
// What samples/backup/line.json, viber.json and kik.json say, as it comes out of the sample backup.
#include "SampleChatTest.h"

namespace {

using SampleChatsTest = SampleChatTest;

TEST_F(SampleChatsTest, LineHasThreeChats)
{
    EXPECT_EQ(lines(9), QStringList({"合唱団 ⛵️ Choir | 合唱団 ⛵️ Choir | ",
                            "Yuki (Verlag) | ゆき🌸 | +81455550601", "さくら | さくら | "}));
    EXPECT_EQ(
        shown(9, 0), QStringList({"< [6] 佐藤 健 invited Anna to the group.",
                         "< [0] 佐藤 健: みなさん、ようこそ！\nRehearsal is on Saturday at three.",
                         "< [0] สมชาย ใจดี: สวัสดีครับ แล้วเจอกันวันเสาร์ 🎶",
                         "< [3] さくら: ", "> [0] I sing the alto. どうぞよろしく。",
                         "< [7] 佐藤 健: [Album]", "< [1] 佐藤 健: ", "< [2] สมชาย ใจดี: "}));
    const QStringList withYuki = shown(9, 1);
    ASSERT_EQ(withYuki.size(), 12);
    EXPECT_EQ(withYuki.mid(4),
        QStringList({"< [1] [Sticker]", "< [8] 校正 4月.pdf", "< [6] Incoming voice call (0:05:12)",
            "< [6] Missed video call", "! [0] Sorry, I was on the boat. Tomorrow?",
            "> [0] Sorry, I was on the boat. Tomorrow?",
            "< [5] 神奈川県横浜市西区みなとみらい2-2-1\n35.4547, 139.6312", "< [4] 佐藤 健"}));
    EXPECT_EQ(picturesThatCanBeDrawn(9, 0), 1) << "the preview";
    EXPECT_EQ(picturesThatCanBeDrawn(9, 1), 2);
    EXPECT_EQ(lines(10).size(), 6);
    EXPECT_TRUE(lines(10).contains("校正 4月.pdf | Yuki (Verlag)"));
}

TEST_F(SampleChatsTest, ViberHasAGroupAPersonADeletedChatAndCalls)
{
    EXPECT_EQ(lines(11), QStringList({"Летњи камп 2024 | Летњи камп 2024 | "
                                      "+491715550101,+381115550641,+48225550157",
                             "Łukasz Wiśniewski | Łukasz Wiśniewski | +48225550157",
                             "x Бојана | Бојана | +381115550641"}));
    EXPECT_EQ(shown(11, 0), QStringList({"< [6] Бојана created the group",
                                "< [0] Бојана: Добро дошли! Камп почиње 12. јула.",
                                "< [0] Lena Hoffmann: I bring the tent ⛺️ +3",
                                "< [2] Бојана: ", "> [0] И чај! ☕️",
                                "< [6] Бојана: Incoming voice call (0:01:35)"}));
    EXPECT_EQ(shown(11, 1),
        QStringList({"< [0] Cześć Anna! Żagle są gotowe, 12 m².",
            "> [0] Super! What do I owe you? +1", "< [0] A cake 🍰 & two tickets <grin>",
            "> [1]  +2", "> [0] This one?", "> [8] Tickets for Łukasz.pdf", "< [1] [Sticker]",
            "< [5] Szafarnia 11, Gdańsk\n54.3722, 18.6383", "< [6] Missed voice call",
            "> [6] Outgoing video call (0:12:34)"}));
    EXPECT_EQ(picturesThatCanBeDrawn(11, 1), 1);
    EXPECT_EQ(lines(12).size(), 3);
    EXPECT_EQ(lines(13),
        QStringList({"Бојана | +381115550641 | 2024-05-06 09:30 | 0:01:35 | Incoming | Viber",
            "Łukasz Wiśniewski | +48225550157 | 2024-03-03 14:20 | 0:12:34 | Outgoing"
            " | Viber Video",
            "Łukasz Wiśniewski | +48225550157 | 2024-03-03 14:15 | 0:00:00 | Missed | Viber"}));
}

TEST_F(SampleChatsTest, KikKnowsFilesByTheirFirstBytes)
{
    EXPECT_EQ(lines(17),
        QStringList({"quietbird77 | quietbird77 | ",
            "Harbour photographers | Harbour photographers | ", "Zoë vd B | zoe_flies | "}));
    EXPECT_EQ(shown(17, 1),
        QStringList({"< [6] Zoë vd B has added you to the chat",
            "< [0] Kia ora from Wellington! Winter here.", "< [1] ", "< [0] This morning",
            "> [0] Summer here. Same sea.", "< [6] quietbird77 has left the chat"}));
    EXPECT_EQ(shown(17, 2), QStringList({"< [0] hoi! got a new lens, look", "< [1] ",
                                "> [0] Wat mooi! 😍 Is that the Veluwe?", "> [2] ",
                                "< [0] yes :)\nand yours is the North Sea"}));
    EXPECT_EQ(column(18, 0).filter(QRegularExpression("\\.(jpg|mov)$")).size(), 3);
}

} // namespace
