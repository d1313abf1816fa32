// SPDX-License-Identifier: MIT
#include "WhatsAppTest.h"

namespace {

using message_bytes::field;
using message_bytes::numberField;

TEST_F(WhatsAppTest, ChatsHaveTitleNameAndNumbersTheNewestFirst)
{
    open(chats() << chat(3, "49301@s.whatsapp.net", "Old flat", 0, 1)
                 << chat(4, "4930555@s.whatsapp.net", "Nobody wrote", 0)
                 << member(23, 2, "4940@s.whatsapp.net", "Has left", 0) << message(1, 1, "Hi")
                 << message(2, 2, "Hi") << message(3, 3, "Hi"));
    EXPECT_EQ(lines(kChats),
        QStringList({"x Old flat | Old flat | +49301", "Choir | Choir | +12025550114,+31205550120",
            "Ben Carter | Ben Carter | +12025550114"}));
    EXPECT_EQ(lines(kBusinessChats), QStringList());
    EXPECT_EQ(notices("ChatStorage"), QStringList());
}

TEST_F(WhatsAppTest, MessagesStandInTheOrderOfTheChat)
{
    open(chats() << message(1, 1, "second") << message(2, 1, "third") << message(3, 1, "first")
                 << message(4, 1, "unsorted")
                 << "UPDATE ZWAMESSAGE SET ZSORT = 5, ZMESSAGEDATE = 100 WHERE Z_PK = 1"
                 << "UPDATE ZWAMESSAGE SET ZSORT = 5, ZMESSAGEDATE = 200 WHERE Z_PK = 2"
                 << "UPDATE ZWAMESSAGE SET ZSORT = 4, ZMESSAGEDATE = 300 WHERE Z_PK = 3"
                 << "UPDATE ZWAMESSAGE SET ZSORT = NULL WHERE Z_PK = 4");
    EXPECT_EQ(messages(), QStringList({"0 < unsorted", "0 < first", "0 < second", "0 < third"}));
}

TEST_F(WhatsAppTest, MessageHasItsMomentAndSide)
{
    open(chats() << message(1, 1, "in", "ZISFROMME", "0") << message(2, 1, "out", "ZISFROMME", "1")
                 << message(3, 1, "undated")
                 << "UPDATE ZWAMESSAGE SET ZMESSAGEDATE = 0 WHERE Z_PK = 3");
    EXPECT_EQ(messages(), QStringList({"0 < in", "0 > out", "0 < undated"}));
    const auto& all = chatItem(0).detailContent()->messages();
    EXPECT_EQ(all[0]->msgDate().toUTC().toString(Qt::ISODate), "2023-03-08T20:27:40Z");
    EXPECT_FALSE(all[2]->msgDate().isValid());
}

TEST_F(WhatsAppTest, MomentOfSendingStandsInForThatOfTheMessage)
{
    open(chats() << message(1, 1, "of no date", "ZSENTDATE", "700000060")
                 << message(2, 1, "of date 0", "ZSENTDATE", "700000120")
                 << message(3, 1, "of both", "ZSENTDATE", "700000000")
                 << "UPDATE ZWAMESSAGE SET ZMESSAGEDATE = NULL WHERE Z_PK = 1"
                 << "UPDATE ZWAMESSAGE SET ZMESSAGEDATE = 0 WHERE Z_PK = 2");
    QStringList dates;
    for (const PRWhatsappMsg* each : chatItem(0).detailContent()->messages()) {
        dates << each->msgDate().toUTC().toString(Qt::ISODate);
    }
    EXPECT_EQ(dates,
        QStringList({"2023-03-08T20:27:40Z", "2023-03-08T20:28:40Z", "2023-03-08T20:29:40Z"}));
}

TEST_F(WhatsAppTest, OwnMessageThatWasNotSentIsMarked)
{
    QStringList statements = chats();
    int id = 0;
    for (const int status : {1, 6, 8, 9}) {
        statements << message(++id, 1, QString::number(status), "ZISFROMME, ZMESSAGESTATUS",
            QString("1, %1").arg(status));
    }
    statements << message(++id, 1, "received", "ZISFROMME, ZMESSAGESTATUS", "0, 9");
    open(statements);
    EXPECT_EQ(messages(), QStringList({"0 > 1", "0 > 6", "0 > 8", "0 > 9 !", "0 < received"}));
}

TEST_F(WhatsAppTest, EachTypeHasItsKind)
{
    struct Row {
        int type = 0;
        const char* shown = nullptr; ///< with the text "T"
        const char* bare = nullptr;  ///< without any text
    };
    const std::vector<Row> rows{
        {0, "0 < T", "6 < [Unknown message]"},
        {1, "1 < T", "1 < "},
        {2, "2 < T", "2 < "},
        {3, "3 < T", "3 < "},
        {4, "4 < T", "4 < "},
        {5, "5 < T", "5 < "},
        {7, "0 < T", "6 < [Unknown message]"},
        {8, "8 < T", "8 < "},
        {11, "2 < T", "2 < "},
        {12, "6 < A message of Ben Carter has not arrived yet",
            "6 < A message of Ben Carter has not arrived yet"},
        {14, "6 < Ben Carter deleted a message", "6 < Ben Carter deleted a message"},
        {15, "1 < T", "1 < "},
        {19, "0 < T", "6 < Message of a business"},
        {20, "0 < T", "6 < Message of a business"},
        {23, "0 < T", "6 < Message of a business"},
        {24, "0 < T", "6 < Message of a business"},
        {25, "0 < T", "6 < Message of a business"},
        {26, "0 < T", "6 < Product"},
        {27, "0 < T", "6 < Invitation to a group"},
        {28, "6 < Ben Carter changed disappearing messages",
            "6 < Ben Carter changed disappearing messages"},
        {30, "0 < T", "6 < Message of a business"},
        {31, "0 < T", "6 < Message of a business"},
        {32, "0 < T", "6 < Message of a business"},
        {34, "0 < T", "6 < Message of a business"},
        {38, "1 < T", "1 < "},
        {39, "2 < T", "2 < "},
        {41, "0 < T", "6 < Message of a business"},
        {42, "0 < T", "6 < Message of a business"},
        {46, "0 < T", "6 < Poll"},
        {53, "3 < T", "3 < "},
        {54, "2 < T", "2 < "},
        {59, "6 < Call", "6 < Call"},
        {66, "0 < T", "6 < Album"},
        {1234, "0 < T", "6 < [Unknown message]"},
    };
    QStringList statements = chats();
    QStringList shown;
    int id = 0;
    for (const Row& row : rows) {
        for (const QString& text : {QString("T"), QString()}) {
            const auto pair = QString("%1, '%2'").arg(row.type).arg(ben());
            statements << message(++id, 1, text, "ZMESSAGETYPE, ZFROMJID", pair);
            shown << (text.isNull() ? row.bare : row.shown);
        }
    }
    open(statements);
    EXPECT_EQ(messages(), shown);
}

TEST_F(WhatsAppTest, GroupShowsWhoSentAMessage)
{
    open(chats() << message(1, 2, "by member", "ZGROUPMEMBER", "22")
                 << message(2, 2, "by address", "ZFROMJID", "'" + ben() + "'")
                 << message(3, 2, "by push name", "ZFROMJID, ZPUSHNAME", "'1203@g.us', 'Nick'")
                 << message(4, 2, "own", "ZISFROMME, ZGROUPMEMBER", "1, 21")
                 << message(5, 2, "of nobody", "ZGROUPMEMBER", "99")
                 << message(6, 1, "alone", "ZFROMJID", "'" + ben() + "'"));
    EXPECT_EQ(messages(0), QStringList({"0 < Mia Jansen: by member", "0 < Ben Carter: by address",
                               "0 < Nick: by push name", "0 > own", "0 < of nobody"}));
    EXPECT_EQ(messages(1), QStringList("0 < alone"));
}

TEST_F(WhatsAppTest, ForwardedMessageSaysSo)
{
    QStringList statements = chats();
    statements << message(1, 1, "both bits", "ZFLAGS", "0x180")
               << message(2, 1, "one bit", "ZFLAGS", "0x100")
               << message(3, 1, "other one", "ZFLAGS", "0x80");
    statements << media(4, 1, 0, "ZMETADATA", blob(numberField(17, 3)), "counted");
    statements << media(5, 1, 0, "ZMETADATA", blob(numberField(17, 0)), "not counted");
    open(statements);
    EXPECT_EQ(messages(), QStringList({"0 < Forwarded\nboth bits", "0 < one bit", "0 < other one",
                              "0 < Forwarded\ncounted", "0 < not counted"}));
}

TEST_F(WhatsAppTest, AnswerShowsWhatItAnswers)
{
    const auto answer = [](int id, const QByteArray& stanza, const QString& text,
                            const QByteArray& content = QByteArray()) {
        QByteArray metadata = field(5, stanza) + field(6, mia().toUtf8());
        if (!content.isEmpty()) {
            metadata += field(19, content);
        }
        return media(id, 2, 0, "ZMETADATA", blob(metadata), text);
    };
    QStringList statements = chats();
    statements << message(1, 2, "See you at\neight?", "ZGROUPMEMBER, ZSTANZAID", "22, 'A'")
               << message(2, 2, "Mine", "ZISFROMME, ZSTANZAID", "1, 'B'")
               << message(3, 2, QString(), "ZMESSAGETYPE, ZSTANZAID", "1, 'C'")
               << message(4, 2, "sent on", "ZFLAGS, ZSTANZAID", "0x180, 'D'");
    statements << answer(5, "A", "Yes") << answer(6, "B", "No") << answer(7, "C", "Nice")
               << answer(8, "gone", "Hm", field(1, "Kept")) << answer(9, "gone", "Lost")
               << answer(10, "D", "Who?");
    // It comes before what it answers, in the order of the rows.
    statements << message(11, 2, "later row", "ZSTANZAID", "'E'") << answer(12, "E", "earlier")
               << "UPDATE ZWAMESSAGE SET ZSORT = 20 WHERE Z_PK = 11"
               << "UPDATE ZWAMESSAGE SET ZSORT = 21 WHERE Z_PK = 12";
    open(statements);
    EXPECT_EQ(messages().mid(4),
        QStringList({"0 < > Mia Jansen: See you at eight?\nYes", "0 < > You: Mine\nNo",
            "0 < > Mia Jansen: Photo\nNice", "0 < > Mia Jansen: Kept\nHm", "0 < Lost",
            "0 < > Mia Jansen: sent on\nWho?", "0 < later row",
            "0 < > Mia Jansen: later row\nearlier"}));
}

TEST_F(WhatsAppTest, AnswerNamesTheSenderAsTheAnsweredMessageDoes)
{
    const auto answer = [](int id, int chat, const QByteArray& stanza) {
        return media(id, chat, 0, "ZMETADATA",
            blob(field(5, stanza) + field(6, "100000000000009@lid")), "Yes");
    };
    QStringList statements = chats();
    statements << message(1, 2, "In the group", "ZGROUPMEMBER, ZSTANZAID", "22, 'A'");
    statements << answer(2, 2, "A");
    statements << message(3, 1, "To one", "ZSTANZAID", "'B'") << answer(4, 1, "B");
    open(statements);
    EXPECT_EQ(messages(0).last(), "0 < > Mia Jansen: In the group\nYes");
    EXPECT_EQ(messages(1).last(), "0 < > Ben Carter: To one\nYes");
}

TEST_F(WhatsAppTest, AnswerKeepsTheTextOfADeletedMessage)
{
    const QByteArray metadata =
        field(5, "A") + field(6, mia().toUtf8()) + field(19, field(1, "See you at eight?"));
    open(chats() << message(1, 2, QString(), "ZMESSAGETYPE, ZGROUPMEMBER, ZSTANZAID", "14, 22, 'A'")
                 << media(2, 2, 0, "ZMETADATA", blob(metadata), "Yes"));
    EXPECT_EQ(messages(), QStringList({"6 < Mia Jansen deleted a message",
                              "0 < > Mia Jansen: See you at eight?\nYes"}));
}

TEST_F(WhatsAppTest, ReactionsAreCounted)
{
    const auto reaction = [](const QByteArray& emoji) {
        return field(1, field(1, "k") + field(2, ben().toUtf8()) + field(3, emoji));
    };
    const QByteArray own = field(2, field(1, "k") + field(2, "👍"));
    const auto info = [](int id, const QByteArray& bytes) {
        return row("ZWAMESSAGEINFO", "Z_PK, ZMESSAGE, ZRECEIPTINFO",
            QString("%1, %1, ").arg(id) + blob(bytes));
    };
    QStringList statements = chats();
    for (int id = 1; id <= 4; ++id) {
        statements << message(id, 1, QString::number(id), "ZMESSAGEINFO", QString::number(id));
    }
    statements << info(1, field(7, reaction("😂") + reaction("❤") + own)) << info(2, field(7, own))
               << info(3, field(1, "receipts")) << info(4, "\xFF\xFF damaged");
    open(statements);
    EXPECT_EQ(messages(), QStringList({"0 < 1 +3", "0 < 2 +1", "0 < 3", "0 < 4"}));
    EXPECT_EQ(chatItem(0).detailContent()->messages()[0]->getLikeType(), 1);
}

TEST_F(WhatsAppTest, PollHasItsOptionsInLines)
{
    const QByteArray poll =
        field(8, field(2, "Cinema?") + field(3, field(1, "Friday")) + field(3, field(1, "Never")));
    open(chats() << message(1, 1, "Cinema?", "ZMESSAGETYPE, ZMESSAGEINFO", "46, 1")
                 << row("ZWAMESSAGEINFO", "Z_PK, ZRECEIPTINFO", "1, " + blob(poll)));
    EXPECT_EQ(messages(), QStringList("0 < Poll: Cinema?\n- Friday\n- Never"));
}

TEST_F(WhatsAppTest, BroadcastListIsMarked)
{
    open(chats() << chat(3, "123@broadcast", "Neighbours", 2) << chat(4, "status@broadcast", "", 3)
                 << message(1, 3, "to all", "ZISFROMME, ZTOJID", "1, '123@broadcast'")
                 << message(2, 1, "its copy", "ZISFROMME, ZTOJID", "1, '123@broadcast'")
                 << message(3, 1, "alone", "ZISFROMME, ZTOJID", "1, '" + ben() + "'")
                 << message(4, 4, "seen by all", "ZISFROMME, ZTOJID", "1, 'status@broadcast'")
                 << message(5, 4, "of Ben", "ZFROMJID", "'" + ben() + "'"));
    EXPECT_EQ(column(kChats, 0), QStringList({"Status", "Neighbours", "Ben Carter"}));
    EXPECT_EQ(messages(0), QStringList({"0 > seen by all", "0 < Ben Carter: of Ben"}));
    EXPECT_EQ(messages(1), QStringList("0 > to all *"));
    EXPECT_EQ(messages(2), QStringList({"0 > its copy *", "0 > alone"}));
}

TEST_F(WhatsAppTest, MessagesOfALostChatAreThere)
{
    open(
        chats() << message(1, 77, "whose chat is gone") << message(2, 1, "Hi")
                << "INSERT INTO ZWAMESSAGE (Z_PK, ZTEXT) VALUES (3, 'of no chat')"
                << "INSERT INTO ZWAMESSAGE (Z_PK, ZCHATSESSION, ZTEXT) VALUES (4, -1, 'nor this')");
    EXPECT_EQ(column(kChats, 0), QStringList({"Unknown", "Ben Carter", "Unknown"}));
    EXPECT_EQ(messages(0), QStringList("0 < whose chat is gone"));
    EXPECT_EQ(messages(2), QStringList({"0 < of no chat", "0 < nor this"}));
}

TEST_F(WhatsAppTest, LostChatIsNamedByWhoTookPart)
{
    const QString one = "4930@s.whatsapp.net";
    const auto from = [](const QString& address) { return "'" + address + "'"; };
    open({message(1, 7, "with one", "ZFROMJID", from(one)),
        message(2, 7, "own", "ZISFROMME, ZTOJID", "1, " + from(one)),
        message(3, 8, "in a group", "ZFROMJID, ZGROUPMEMBER", "'1203@g.us', 21"),
        member(21, 8, ben(), "Ben Carter"), member(22, 8, mia(), "Mia Jansen"),
        message(4, 9, "of Ben", "ZFROMJID", from(ben())),
        message(5, 9, "of Mia", "ZFROMJID", from(mia()))});
    EXPECT_EQ(lines(kChats),
        QStringList({"Unknown | Unknown | ",
            "Ben Carter, Mia Jansen | Ben Carter, Mia Jansen | +12025550114,+31205550120",
            "+4930 | +4930 | +4930"}));
    EXPECT_EQ(messages(0), QStringList({"0 < Ben Carter: of Ben", "0 < Mia Jansen: of Mia"}));
    EXPECT_EQ(messages(1), QStringList("0 < Ben Carter: in a group"));
    EXPECT_EQ(messages(2), QStringList({"0 < with one", "0 > own"}));
}

TEST_F(WhatsAppTest, BusinessAccountIsASetOfItsOwn)
{
    builder()
        .addDatabase(kDomain, kStore, tables() + chats() << message(1, 1, "private"))
        .addDatabase(kBusiness, kStore,
            tables() << chat(1, mia(), "Mia Jansen", 0) << message(1, 1, "shop"));
    openFolder();
    EXPECT_EQ(column(kChats, 0), QStringList("Ben Carter"));
    EXPECT_EQ(messages(0, kChats), QStringList("0 < private"));
    EXPECT_EQ(column(kBusinessChats, 0), QStringList("Mia Jansen"));
    EXPECT_EQ(messages(0, kBusinessChats), QStringList("0 < shop"));
}

TEST_F(WhatsAppTest, OnlyTheBusinessAccountMayBeThere)
{
    builder().addDatabase(kBusiness, kStore, tables() + chats() << message(1, 1, "shop"));
    openFolder();
    EXPECT_EQ(m_opened->records.getPRData(kChats), nullptr);
    EXPECT_EQ(messages(0, kBusinessChats), QStringList("0 < shop"));
}

class WhatsAppStoresTest : public WhatsAppTest {
protected:
    static QStringList storeWith(int count, const QString& text)
    {
        QStringList statements = tables() + chats();
        for (int id = 1; id <= count; ++id) {
            statements << message(id, 1, text);
        }
        return statements;
    }
};

TEST_F(WhatsAppStoresTest, OfTwoStoresOfOneAccountTheFullerOneIsRead)
{
    struct Case {
        const char* what = nullptr;
        int newMessages = 0;
        int oldMessages = 0;
        const char* text = nullptr; ///< of the store that is read
    };
    const std::vector<Case> cases{{"only the old one", 0, 1, "old"}, {"as many", 1, 1, "new"},
        {"more in the old one", 1, 2, "old"}, {"more in the new one", 2, 1, "new"}};
    int number = 0;
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const QString folder = m_directory.filePath(QString("backup%1").arg(++number));
        BackupBuilder phone(folder);
        if (each.newMessages > 0) {
            phone.addDatabase(kDomain, kStore, storeWith(each.newMessages, "new"));
        }
        phone
            .addDatabase("AppDomain-net.whatsapp.WhatsApp", "Documents/ChatStorage.sqlite",
                storeWith(each.oldMessages, "old"))
            .finish();
        take(backup::openBackupFolder(folder));
        EXPECT_EQ(column(kChats, 0), QStringList("Ben Carter"));
        EXPECT_EQ(messages().first(), QString("0 < ") + each.text);
    }
}

TEST_F(WhatsAppTest, StoreMayHaveFewColumnsAndTables)
{
    openFile(QStringList{"CREATE TABLE ZWACHATSESSION (Z_PK INTEGER PRIMARY KEY, ZCONTACTJID TEXT)",
        R"(CREATE TABLE ZWAMESSAGE (Z_PK INTEGER PRIMARY KEY, ZCHATSESSION INTEGER,
            ZTEXT TEXT, ZMESSAGEDATE REAL))",
        "CREATE TABLE ZWAMEDIAITEM (Z_PK INTEGER PRIMARY KEY, ZMESSAGE INTEGER, ZTITLE TEXT)",
        "INSERT INTO ZWACHATSESSION VALUES (1, '491715550101@s.whatsapp.net')",
        "INSERT INTO ZWAMESSAGE VALUES (1, 1, 'later', 20), (2, 1, 'earlier', 10)",
        "INSERT INTO ZWAMESSAGE VALUES (3, 1, NULL, 30)",
        "INSERT INTO ZWAMEDIAITEM VALUES (7, 3, 'joined from the other side')"});
    EXPECT_EQ(lines(kChats), QStringList("+491715550101 | +491715550101 | +491715550101"));
    EXPECT_EQ(
        messages(), QStringList({"0 < earlier", "0 < later", "0 < joined from the other side"}));
    EXPECT_EQ(m_opened->notices->sentences(), QStringList());
}

TEST_F(WhatsAppTest, DamagedPageLosesOnlyItsRows)
{
    QStringList statements = tables() + chats();
    const QString text(400, 'x');
    for (int id = 1; id <= 200; ++id) {
        statements << message(id, 1 + id % 2, QString("%1 ").arg(id) + text);
    }
    QByteArray file = databaseBytes(statements).file;
    const int place = file.indexOf("100 " + text.toUtf8());
    ASSERT_GT(place, 0);
    const int page = place / 4096 * 4096;
    file.replace(page, 4096, QByteArray(4096, '\xFF'));
    openFile(file);
    const QStringList all = messages(0) + messages(1);
    EXPECT_GE(all.size(), 180);
    EXPECT_LT(all.size(), 200);
    EXPECT_EQ(QSet<QString>(all.begin(), all.end()).size(), all.size()) << "none is there twice";
    EXPECT_TRUE(all.contains("0 < 1 " + text));
    EXPECT_TRUE(all.contains("0 < 200 " + text));
    EXPECT_EQ(notices("damaged").size(), 1);
}

TEST_F(WhatsAppTest, WalkThroughADamagedStoreLosesOnlyItsRows)
{
    constexpr int kMany = 10;
    QStringList statements = tables();
    const QString text(400, 'x');
    for (int id = 1; id <= kMany; ++id) {
        statements << chat(id, QString("4930%1@s.whatsapp.net").arg(id), "P", 0);
    }
    for (int id = 1; id <= 200; ++id) {
        statements << message(id, id % kMany + 1, QString("%1 ").arg(id) + text);
    }
    QByteArray file = databaseBytes(statements).file;
    const int place = file.indexOf("100 " + text.toUtf8());
    ASSERT_GT(place, 0);
    file.replace(place / 4096 * 4096, 4096, QByteArray(4096, '\xFF'));
    openFile(file);
    for (int round = 0; round < 2; ++round) {
        QStringList all;
        for (int row = 0; row < kMany; ++row) {
            all += messages(row);
        }
        EXPECT_GE(all.size(), 180);
        EXPECT_LT(all.size(), 200);
        EXPECT_EQ(QSet<QString>(all.begin(), all.end()).size(), all.size());
        EXPECT_TRUE(all.contains("0 < 200 " + text));
    }
    EXPECT_EQ(notices("damaged").size(), 1);
}

TEST_F(WhatsAppTest, WalkThroughManyChatsFindsTheSameAsAJump)
{
    constexpr int kMany = 12;
    QStringList statements = tables();
    for (int id = 1; id <= kMany; ++id) {
        statements << chat(id, QString("4930%1@s.whatsapp.net").arg(id), QString("P%1").arg(id), 0);
    }
    for (int id = 1; id <= kMany * 5; ++id) {
        statements << message(id, id % kMany + 1, QString::number(id));
    }
    openFile(statements);
    std::vector<QStringList> jumps(kMany);
    for (int row = kMany - 1; row >= 0; --row) {
        jumps[static_cast<std::size_t>(row)] = messages(row);
    }
    for (int round = 0; round < 2; ++round) {
        for (int row = 0; row < kMany; ++row) {
            SCOPED_TRACE(row);
            EXPECT_EQ(messages(row), jumps[static_cast<std::size_t>(row)]);
            EXPECT_EQ(messages(row).size(), 5);
        }
    }
}

} // namespace
