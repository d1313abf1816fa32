// SPDX-License-Identifier: MIT
// What samples/backup/wechat.json says, as it comes out of the sample backup.
#include "WeChatTest.h"

#include <QImageReader>

namespace {

class SampleWeChatTest : public WeChatTest {
protected:
    void SetUp() override
    {
        take(backup::openBackupFolder(QStringLiteral(DATAEXPORT_BUILD_DIR "/samples/backup")));
    }

    // As in the base, without the media files.
    QStringList texts(int row)
    {
        static const QRegularExpression media(
            " = .*$", QRegularExpression::DotMatchesEverythingOption);
        return conversationLines(row).replaceInStrings(media, " = ...");
    }
};

TEST_F(SampleWeChatTest, ChatsStandByTheirLastMessages)
{
    ASSERT_EQ(lines(kChats).size(), 5);
    EXPECT_EQ(lines(kChats),
        QStringList({"Олена | Олена | ", "Li Na (Harbour Freight) | Li Na (Harbour Freight) | ",
            "语言角 · Language corner ☕ | 语言角 · Language corner ☕ | ",
            "陳美玲 | 美玲 | +886 2 5550 1149", "x Tailor Lin | 林师傅裁缝 | "}));
}

TEST_F(SampleWeChatTest, ConversationHasAllKindsOfMessages)
{
    EXPECT_EQ(texts(3),
        QStringList({"6 < You have added 美玲 as your WeChat contact. Start chatting!",
            "0 < Hi Anna! 很高兴认识你 😊", "0 > 你好！Sorry, my Chinese is still slow 🐢",
            "0 < > Anna: 你好！Sorry, my Chinese is still slow 🐢\n慢慢來！We start with tea.",
            "1 <  = ...",
            "0 < Mid-Autumn Festival! 中秋節快樂 🥮\nThe view from my parents' house.",
            "1 > [Sticker]", "5 < Taipei 101\n台北市信義區信義路五段7號\n25.033964, 121.56447",
            "3 <  = ...", "6 > Call: Call duration 12:08", "2 >  = ...",
            QString("0 < Oolong for beginners\nSeven leaves, seven waters\n")
                + "https://tea.example.com/oolong?lang=en&page=2 = ...",
            "0 > WeChat Transfer\n¥88.00\nfor the moon cakes", "6 < \"陳美玲\" recalled a message",
            "0 < 新年快樂！恭喜發財 🧧 <龍年>", "0 >! Happy New Year of the Dragon! 🐉",
            "0 > Happy New Year of the Dragon! 🐉"}));
}

TEST_F(SampleWeChatTest, RoomHasSendersAndEvents)
{
    EXPECT_EQ(texts(2),
        QStringList({"6 < \"美玲\" invited \"Yuki, Wang Wei, Anna\" to the group chat",
            "0 < [陳美玲] Welcome everybody! Thursday, 19:00, in the tea house?",
            "0 < [Wang Wei] 欢迎欢迎！I keep the long table for us.",
            "5 < [Wang Wei] 老王茶馆\nTeefeld 8, Hamburg\n53.5503, 9.992",
            "0 < [Yuki] 行きます！ I'll bring wagashi 🍡",
            "0 > @Yuki perfect, I bring cherry cake 🍒", "8 < [陳美玲] Vocabulary 第三課.pdf = ...",
            "1 >  = ...", "6 < \"Yuki\" tickled \"Anna\"", "1 < [Yuki]  = ...",
            "4 < [Wang Wei] 林师傅裁缝\nwxid_tailor9lin000",
            QString("0 < [Wang Wei] > Anna (Deutsch): @Yuki perfect, I bring cherry cake 🍒\n")
                + "The tailor wants the recipe!",
            "6 < \"Yuki\" received your Red Packet"}));
}

TEST_F(SampleWeChatTest, FilesStandUnderTheirChats)
{
    QStringList names;
    for (int row = 0; row < lines(kFiles).size(); ++row) {
        names.append(*file(kFiles, row).record().parent + "/" + file(kFiles, row).value(0));
    }
    names.sort();
    QStringList expected{"Tailor Lin/3.jpg", "语言角 · Language corner ☕/10.jpg",
        "语言角 · Language corner ☕/8.png", "语言角 · Language corner ☕/Vocabulary 第三課.pdf",
        "陳美玲/11.mp4", "陳美玲/5.jpg", "陳美玲/9.aud"};
    expected.sort();
    EXPECT_EQ(names, expected);
}

TEST_F(SampleWeChatTest, ContactsHaveTheirPictures)
{
    EXPECT_EQ(column(kContacts, 0),
        QStringList({"File Transfer", "Li Na (Harbour Freight)", "Tailor Lin", "Wang Wei", "Олена",
            "由紀", "陳美玲", "语言角 · Language corner ☕"}));
    const PRWeiChatContact meiling = contact(6);
    EXPECT_EQ(meiling.wxNameId(), "meiling_taipei");
    EXPECT_EQ(meiling.city() + " / " + meiling.country(), "Da'an Taipei City / TW");
    EXPECT_EQ(meiling.sign(), "慢慢來，比較快。");
    QImageReader picture(meiling.HeadImage());
    picture.setDecideFormatFromContent(true);
    EXPECT_TRUE(picture.canRead());
    EXPECT_EQ(contact(7).members().size(), 4);
    EXPECT_EQ(contact(7).members().constLast().alias, "Anna") << "the owner, by the login";
}

} // namespace
