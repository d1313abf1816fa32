// SPDX-License-Identifier: MIT
#include "WhatsAppTest.h"

namespace {

class WhatsAppMediaTest : public WhatsAppTest {
protected:
    // A file below Message/Media whose contents are its own name.
    void add(const QString& path)
    {
        builder().add(kDomain, "Message/Media/" + path, path.section('/', -1).toUtf8());
    }
};

TEST_F(WhatsAppMediaTest, MediaIsTheFileElseItsThumbnail)
{
    add("49@s.whatsapp.net/a/b/whole.jpg");
    add("49@s.whatsapp.net/a/b/whole.thumb");
    add("49@s.whatsapp.net/a/b/small.thumb");
    add("49@s.whatsapp.net/a/b/kept.thumb");
    add("49@s.whatsapp.net/a/b/Grüße.jpg");
    const QString place = "'Media/49@s.whatsapp.net/a/b/";
    const QString columns = "ZMEDIALOCALPATH, ZXMPPTHUMBPATH, ZTITLE";
    QStringList statements = chats();
    statements << media(1, 1, 1, columns, place + "whole.jpg', " + place + "whole.thumb', 'Both'")
               << media(2, 1, 1, columns, "NULL, " + place + "small.thumb', 'Never loaded'")
               << media(3, 1, 2, columns, place + "gone.mp4', " + place + "kept.thumb', NULL")
               << media(4, 1, 3, columns, place + "gone.opus', NULL, NULL")
               << media(5, 1, 1, columns, "'/Media/49@s.whatsapp.net/a/b/whole.jpg', NULL, NULL")
               << media(6, 1, 1, columns, place + "Grüße.jpg', NULL, NULL")
               << media(7, 1, 1, columns, "'../../whole.jpg', '/etc/passwd', NULL")
               << media(8, 1, 1, columns, "'', '', NULL");
    open(statements);
    EXPECT_EQ(messages(), QStringList({"1 <  = whole.jpg", "0 < Both", "1 <  = small.thumb",
                              "0 < Never loaded", "2 <  = kept.thumb", "3 < ", "1 <  = whole.jpg",
                              QString("1 <  = Grüße.jpg"), "1 < ", "1 < "}));
}

TEST_F(WhatsAppMediaTest, UnknownMessageMayCarryAFile)
{
    for (const char* name : {"a.jpg", "b.mp4", "c.opus", "d.pdf", "e.xyz"}) {
        add(QString("x/") + name);
    }
    const auto carrying = [](int id, int type, const QString& name) {
        return media(id, 1, type, "ZMEDIALOCALPATH", "'Media/x/" + name + "'");
    };
    open(chats() << carrying(1, 20, "a.jpg") << carrying(2, 1234, "b.mp4")
                 << carrying(3, 1234, "c.opus") << carrying(4, 1234, "d.pdf")
                 << carrying(5, 66, "e.xyz"));
    EXPECT_EQ(messages(), QStringList({"1 <  = a.jpg", "2 <  = b.mp4", "3 <  = c.opus",
                              "8 <  = d.pdf", "8 <  = e.xyz"}));
}

TEST_F(WhatsAppMediaTest, CaptionsAndNamesAreText)
{
    QStringList statements = chats();
    statements << media(1, 1, 1, "ZTITLE", "'Caption'") << media(2, 1, 11, "ZTITLE", "'Dance'")
               << media(3, 1, 8, "ZTITLE", "'Timetable.pdf'", "Here it is")
               << media(4, 1, 8, "ZTITLE", "'Timetable.pdf'", "Timetable.pdf")
               << media(5, 1, 7, "ZTITLE, ZMEDIAURL", "'Tides', 'https://tides.example'",
                      "Look: https://tides.example")
               << media(6, 1, 7, "ZTITLE, ZMEDIAURL", "'Tides', 'https://tides.example'");
    open(statements);
    EXPECT_EQ(messages(), QStringList({"1 < Caption", "2 < Dance", "8 < Timetable.pdf\nHere it is",
                              "8 < Timetable.pdf", "0 < Look: https://tides.example",
                              "0 < Tides\nhttps://tides.example"}));
}

TEST_F(WhatsAppMediaTest, CaptionAndTextAreBothShown)
{
    QStringList statements = chats();
    int id = 0;
    for (const int type : {1, 2, 3, 11, 15, 38, 54}) {
        statements << media(++id, 1, type, "ZTITLE", "'Caption'", "Text");
        statements << media(++id, 1, type, "ZTITLE", "'Same'", "Same");
    }
    open(statements);
    const QStringList shown = messages();
    for (int row = 0; row < shown.size(); row += 2) {
        EXPECT_EQ(shown[row].mid(1), " < Caption\nText");
        EXPECT_EQ(shown[row + 1].mid(1), " < Same");
    }
    EXPECT_EQ(shown.size(), 14);
}

TEST_F(WhatsAppMediaTest, DocumentHasAnEndingThatFitsItsFile)
{
    struct Row {
        const char* title = nullptr;
        const char* name = nullptr;
    };
    const std::vector<Row> rows{{"Timetable", "Timetable.pdf"}, {"Tides.PDF", "Tides.PDF"},
        {"Invoice No. 12", "Invoice No. 12.pdf"}, {"v1.2", "v1.2.pdf"}, {"Notes.txt", "Notes.txt"}};
    QStringList statements = chats();
    int id = 0;
    for (const Row& row : rows) {
        const QString file = QString("12025550114@s.whatsapp.net/%1.pdf").arg(++id);
        add(file);
        statements << media(
            id, 1, 8, "ZMEDIALOCALPATH, ZTITLE", QString("'Media/%1', '%2'").arg(file, row.title));
    }
    open(statements);
    const QStringList names = column(kFiles, 0);
    ASSERT_EQ(std::size_t(names.size()), rows.size());
    for (const Row& row : rows) {
        EXPECT_TRUE(names.contains(row.name))
            << row.name << " is not in " << names.join(", ").toStdString();
    }
}

TEST_F(WhatsAppMediaTest, FileIsListedOnceWhateverTheFormOfItsName)
{
    const QString name = QString::fromUtf8("Grüße.jpg");
    add("x/" + name.normalized(QString::NormalizationForm_D));
    open(chats() << media(1, 1, 1, "ZMEDIALOCALPATH",
             "'Media/x/" + name.normalized(QString::NormalizationForm_C) + "'"));
    EXPECT_EQ(column(kFiles, 1), QStringList("Ben Carter"));
}

TEST_F(WhatsAppMediaTest, PlaceHasItsNameAndCoordinates)
{
    const QString columns = "ZLATITUDE, ZLONGITUDE, ZVCARDNAME, ZTITLE";
    QStringList statements = chats();
    statements << media(1, 1, 5, columns, "52.5163, 13.3777, 'Gate', 'Pariser Platz'")
               << media(2, 1, 5, columns, "-33.8568, 151.2153, NULL, NULL")
               << media(3, 1, 5, columns, "0, 0, 'Nowhere', NULL")
               << media(4, 1, 5, columns, "1.5, 2, 'Same', 'Same'", "Meet me")
               << media(5, 1, 1, columns, "1600, 1200, NULL, 'A picture has its size there'");
    open(statements);
    EXPECT_EQ(messages(),
        QStringList({"5 < Gate\nPariser Platz\n52.5163, 13.3777", "5 < -33.8568, 151.2153",
            "5 < Nowhere", "5 < Meet me\nSame\n1.5, 2", "1 < A picture has its size there"}));
}

TEST_F(WhatsAppMediaTest, ContactCardsAreLines)
{
    const QString ben = "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Carter;Ben;;;\r\nFN:Ben Carter\r\n"
                        "item1.TEL;waid=12025550114:+1 (202) \r\n 555-0114\r\n"
                        "TEL;type=HOME:030 1\r\nEND:VCARD";
    const QString mia = "BEGIN:VCARD\nFN:Jansen\\, Mia\nEND:VCARD";
    const QString nameless = "BEGIN:VCARD\nTEL:112\nEND:VCARD";
    const auto cards = [](int id, const QString& names, const QStringList& texts) {
        return media(id, 1, 4, "ZVCARDNAME, ZVCARDSTRING",
            QString("'%1', '%2'").arg(names, texts.join("_$!<VCard-Separator>!$_")));
    };
    const QString between = "_$!<Name-Separator>!$_";
    QStringList statements = chats();
    statements << cards(1, "Ben Carter", {ben}) << cards(2, "Ben" + between + "Mia", {ben, mia})
               << cards(3, "2 contacts" + between + "B" + between + "Emergency", {ben, nameless})
               << cards(4, "A" + between + "B", {}) << cards(5, "Only a name", {"no card at all"});
    open(statements);
    EXPECT_EQ(messages(), QStringList({"4 < Ben Carter: +1 (202) 555-0114, 030 1",
                              "4 < Ben Carter: +1 (202) 555-0114, 030 1\nJansen, Mia",
                              "4 < Ben Carter: +1 (202) 555-0114, 030 1\nEmergency: 112",
                              "4 < A\nB", "4 < Only a name"}));
}

TEST_F(WhatsAppMediaTest, FilesAreThoseOfTheMessagesChatByChat)
{
    add("12025550114@s.whatsapp.net/a/b/1.jpg");
    add("12025550114@s.whatsapp.net/a/b/1.thumb");
    add("12025550114@s.whatsapp.net/a/b/2.thumb");
    add("12025550114@s.whatsapp.net/a/b/4.pdf");
    add("1203@g.us/a/b/5.opus");
    const QString place = "'Media/12025550114@s.whatsapp.net/a/b/";
    const QString columns = "ZMEDIALOCALPATH, ZXMPPTHUMBPATH, ZTITLE";
    QStringList statements = chats();
    statements << media(1, 1, 1, columns, place + "1.jpg', " + place + "1.thumb', 'Caption'")
               << media(2, 1, 2, columns, "NULL, " + place + "2.thumb', NULL")
               << media(3, 1, 1, columns, place + "gone.jpg', NULL, NULL")
               << media(4, 1, 8, columns, place + "4.pdf', NULL, 'Timetable'")
               << media(5, 2, 3, columns, "'Media/1203@g.us/a/b/5.opus', NULL, NULL")
               << media(6, 1, 7, columns, "NULL, " + place + "1.thumb', 'Picture of a link'")
               << "UPDATE ZWAMESSAGE SET ZSORT = 0 WHERE Z_PK = 4";
    open(statements);
    EXPECT_EQ(
        files(kFiles), QStringList({"5.opus < Choir = 5.opus", "Timetable.pdf < Ben Carter = 4.pdf",
                           "1.jpg < Ben Carter = 1.jpg", "2.jpg < Ben Carter = 2.thumb"}));
    EXPECT_EQ(lines(kFiles).first(), "5.opus | Choir");
    EXPECT_EQ(file(kFiles, 0).getDetailInfoDateTime(), "2023-03-08T20:31:40Z");
    EXPECT_EQ(notices("not in the backup"),
        QStringList("ChatStorage.sqlite: files of messages that are not in the backup: 1"));
}

TEST_F(WhatsAppMediaTest, FilesThatNoMessageNamesFollow)
{
    add("12025550114@s.whatsapp.net/a/b/left.jpg");
    add("12025550114@s.whatsapp.net/a/b/left.thumb");
    add("999@s.whatsapp.net/a/b/of a stranger.jpg");
    builder()
        .add(kDomain, "Media/Profile/1203-1700000000.jpg", "group photo")
        .add(kDomain, "Media/Profile/1203-1700000000.thumb", "its likeness")
        .add(kDomain, "Media/Profile/Photo.jpg", "own")
        .add(kDomain, "current_wallpaper.jpg", "wallpaper")
        .add(kDomain, "Message/other.sqlite", "no file of anybody")
        .add(kDomain, "Library/Caches/x.jpg", "nor this")
        .add(kDomain, "Library/Preferences/x.plist", "neither");
    open(chats() << chat(3, "999@s.whatsapp.net", "Gone", 0, 1) << message(1, 1, "Hi")
                 << message(2, 2, "Hi") << message(3, 3, "Hi"));
    // By their paths; those of nobody share a directory.
    const QString nobody = file(kFiles, 1).record().parent.value_or("none");
    EXPECT_EQ(files(kFiles),
        QStringList(
            {"1203-1700000000.jpg < Choir = group photo", "Photo.jpg < " + nobody + " = own",
                "left.jpg < Ben Carter = left.jpg", "of a stranger.jpg < Gone = of a stranger.jpg",
                "current_wallpaper.jpg < " + nobody + " = wallpaper"}));
    EXPECT_EQ(lines(kFiles)[1], "Photo.jpg | ");
    EXPECT_EQ(lines(kFiles)[3], "x of a stranger.jpg | Gone");
}

TEST_F(WhatsAppMediaTest, FilesThatTheChatsDoNotListAreThoseOfAnApp)
{
    constexpr int kPictures = 24;
    constexpr int kDocuments = 35;
    add("12025550114@s.whatsapp.net/a/b/1.jpg");
    builder()
        .add(kDomain, "current_wallpaper.jpg", "wallpaper")
        .add(kDomain, "Documents/terms.pdf", "terms");
    open(chats() << media(
             1, 1, 1, "ZMEDIALOCALPATH", "'Media/12025550114@s.whatsapp.net/a/b/1.jpg'"));
    EXPECT_EQ(column(kFiles, 0), QStringList({"1.jpg", "current_wallpaper.jpg"}));
    EXPECT_EQ(column(kPictures, 0), QStringList());
    EXPECT_EQ(column(kDocuments, 0), QStringList("terms.pdf"));
}

} // namespace
