// SPDX-License-Identifier: MIT
#include "NoteStoreTest.h"

#include <QBuffer>
#include <QDir>
#include <QImage>

namespace {

QByteArray picture(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
}

/// A store with one note of one account, to which attachments are added.
class NoteFilesTest : public NoteStoreTest {
protected:
    qint64 addNote(const QByteArray& body, const QVariantMap& more = {})
    {
        const qint64 account = store().account({{"ZNAME", "iCloud"}, {"ZIDENTIFIER", "ACC"}});
        QVariantMap columns{
            {"ZTITLE1", "Walk"}, {"ZACCOUNT7", account}, {"ZMODIFICATIONDATE1", 600'000'000}};
        for (auto column = more.begin(); column != more.end(); ++column) {
            columns[column.key()] = column.value();
        }
        return store().note(columns, body);
    }

    qint64 addMedia(const QString& name)
    {
        return store().object("ICMedia", {{"ZIDENTIFIER", "MED"}, {"ZFILENAME", name}});
    }

    const PRNoteItem::NotePiece* shownPicture()
    {
        for (const PRNoteItem::NotePiece* piece : note(0)->notePieces()) {
            if (piece->kind == 1) {
                return piece;
            }
        }
        return nullptr;
    }
};

TEST_F(NoteFilesTest, PictureStandsBetweenTheTexts)
{
    const qint64 id = addNote(bodyWith("ATT"));
    store().attachment({{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}, {"ZMEDIA", addMedia("Fern.png")},
        {"ZTYPEUTI", "public.png"}});
    addFile("Accounts/ACC/Media/MED/Fern.png", picture(300, 200));
    open();
    ASSERT_EQ(note(0)->notePieces().size(), 3);
    EXPECT_EQ(note(0)->notePieces().at(0)->content, "Before");
    const PRNoteItem::NotePiece& shown = *note(0)->notePieces().at(1);
    EXPECT_EQ(shown.kind, 1);
    EXPECT_EQ(shown.content, payload("Accounts/ACC/Media/MED/Fern.png"));
    EXPECT_EQ(shown.label, "Fern.png");
    EXPECT_EQ(shown.sourcePath, "");
    EXPECT_EQ(shown.preview.size(), QSize(300, 200));
    EXPECT_EQ(note(0)->notePieces().at(2)->content, "After");
    EXPECT_EQ(column(4), QStringList("Before\n[Fern.png]\nAfter"));
    EXPECT_EQ(notices(), QStringList());
}

TEST_F(NoteFilesTest, FilesOfAllReleasesAreFound)
{
    struct Row {
        const char* what;
        const char* path;
        QVariantMap media;
    };
    const Row rows[]{
        {"17 and later", "Accounts/ACC/Media/MED/1_GEN/a.png", {{"ZGENERATION1", "1_GEN"}}},
        {"before 17", "Accounts/ACC/Media/MED/a.png", {}},
        {"without account", "Media/MED/a.png", {}},
        {"of another account", "Accounts/OTHER/Media/MED/a.png", {}},
        {"another generation", "Accounts/ACC/Media/MED/2_GEN/a.png", {{"ZGENERATION1", "1_GEN"}}},
        {"another name", "Accounts/ACC/Media/MED/renamed.png", {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        QDir(m_directory.filePath("backup")).removeRecursively();
        m_backup = BackupBuilder(m_directory.filePath("backup"));
        m_store = NoteStoreBuilder();
        store().account({{"ZNAME", "Other"}, {"ZIDENTIFIER", "OTHER"}});
        QVariantMap media = row.media;
        media["ZIDENTIFIER"] = "MED";
        media["ZFILENAME"] = "a.png";
        const qint64 mediaRow = store().object("ICMedia", media);
        const qint64 id = addNote(bodyWith("ATT"));
        store().attachment({{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}, {"ZMEDIA", mediaRow}});
        addFile(row.path, picture(10, 10));
        open();
        ASSERT_NE(shownPicture(), nullptr);
        EXPECT_EQ(shownPicture()->content, payload(row.path));
        EXPECT_EQ(file(0)->filePath(), payload(row.path));
    }
}

TEST_F(NoteFilesTest, MediaMayNameItsAttachmentInstead)
{
    const qint64 id = addNote(bodyWith("ATT"));
    const qint64 attachment = store().attachment({{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}});
    store().object(
        "ICMedia", {{"ZIDENTIFIER", "MED"}, {"ZFILENAME", "a.png"}, {"ZATTACHMENT1", attachment}});
    addFile("Accounts/ACC/Media/MED/a.png", picture(10, 10));
    open();
    ASSERT_NE(shownPicture(), nullptr);
    EXPECT_EQ(shownPicture()->label, "a.png");
}

TEST_F(NoteFilesTest, PreviewOfThePhoneIsShownTheLargestOfThem)
{
    const qint64 id = addNote(bodyWith("ATT"));
    const qint64 attachment =
        store().attachment({{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}, {"ZMEDIA", addMedia("a.png")}});
    for (const int size : {64, 192, 128}) {
        store().object("ICAttachmentPreviewImage",
            {{"ZIDENTIFIER", QString("P%1").arg(size)}, {"ZATTACHMENT", attachment},
                {"ZWIDTH", size}, {"ZHEIGHT", size}, {"ZSCALE", 1}});
        addFile(QString("Accounts/ACC/Previews/P%1.png").arg(size), picture(size, size));
    }
    addFile("Accounts/ACC/Media/MED/a.png", picture(1000, 1000));
    open();
    ASSERT_NE(shownPicture(), nullptr);
    EXPECT_EQ(shownPicture()->preview.width(), 192);
    EXPECT_EQ(shownPicture()->previewPath, payload("Accounts/ACC/Previews/P192.png"));
    EXPECT_EQ(shownPicture()->content, payload("Accounts/ACC/Media/MED/a.png"));
    EXPECT_EQ(file(0)->thumbFilePath(), payload("Accounts/ACC/Previews/P192.png"));
}

TEST_F(NoteFilesTest, PreviewsOfAllReleasesAreFound)
{
    struct Row {
        const char* path;
        const char* generation;
    };
    constexpr Row kRows[]{
        {"Accounts/ACC/Previews/PRE/G1/Preview.png", "G1"},
        {"Accounts/ACC/Previews/PRE/G1/OrientedPreview.jpeg", "G1"},
        {"Accounts/ACC/Previews/PRE/G2/Preview.png", "G1"},
        {"Accounts/ACC/Previews/PRE.png", nullptr},
        {"Accounts/ACC/Previews/PRE.jpg", nullptr},
        {"Accounts/ACC/Previews/PRE-oriented.png", nullptr},
        {"Previews/PRE.png", nullptr},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.path);
        QDir(m_directory.filePath("backup")).removeRecursively();
        m_backup = BackupBuilder(m_directory.filePath("backup"));
        m_store = NoteStoreBuilder();
        const qint64 id = addNote(bodyWith("ATT"));
        const qint64 attachment = store().attachment(
            {{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}, {"ZMEDIA", addMedia("cat.heic")}});
        store().object("ICAttachmentPreviewImage",
            {{"ZIDENTIFIER", "PRE"}, {"ZATTACHMENT", attachment}, {"ZGENERATION", row.generation}});
        addFile("Accounts/ACC/Media/MED/cat.heic", "no picture that can be read");
        addFile(row.path, picture(20, 30));
        open();
        ASSERT_NE(shownPicture(), nullptr);
        EXPECT_EQ(shownPicture()->content, payload(row.path));
        EXPECT_EQ(shownPicture()->preview.size(), QSize(20, 30));
        EXPECT_EQ(shownPicture()->sourcePath, payload("Accounts/ACC/Media/MED/cat.heic"));
        EXPECT_EQ(shownPicture()->label, "cat.heic");
    }
}

TEST_F(NoteFilesTest, LargePicturesAreScaledForTheirPreview)
{
    const qint64 id = addNote(bodyWith("ATT"));
    store().attachment({{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}, {"ZMEDIA", addMedia("a.png")}});
    addFile("Accounts/ACC/Media/MED/a.png", picture(3200, 1600));
    open();
    ASSERT_NE(shownPicture(), nullptr);
    EXPECT_EQ(shownPicture()->preview.size(), QSize(640, 320));
}

TEST_F(NoteFilesTest, PreviewsAreNotLoadedForACopy)
{
    const qint64 id = addNote(bodyWith("ATT"));
    store().attachment({{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}, {"ZMEDIA", addMedia("a.png")}});
    addFile("Accounts/ACC/Media/MED/a.png", picture(10, 10));
    open();
    const std::vector<PRNoteItem::NotePiece> pieces = note(0)->contents();
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_TRUE(pieces[1].preview.isNull());
    EXPECT_EQ(pieces[1].previewPath, payload("Accounts/ACC/Media/MED/a.png"));
}

TEST_F(NoteFilesTest, DrawingIsThePictureOfIt)
{
    const qint64 id = addNote(bodyWith("ATT", "com.apple.paper"));
    store().attachment({{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}, {"ZTYPEUTI", "com.apple.paper"},
        {"ZFALLBACKIMAGEGENERATION", "G"}});
    addFile("Accounts/ACC/FallbackImages/ATT/G/FallbackImage.png", picture(50, 50));
    open();
    ASSERT_NE(shownPicture(), nullptr);
    EXPECT_EQ(shownPicture()->label, "Drawing.png");
    EXPECT_EQ(shownPicture()->sourcePath, "");
    ASSERT_EQ(files()->count(1), 1);
    EXPECT_EQ(file(0)->value(0), "Drawing.png");
    EXPECT_EQ(file(0)->filePath(), shownPicture()->content);
}

TEST_F(NoteFilesTest, ScanIsItsPages)
{
    const qint64 id = addNote(bodyWith("ATT", "com.apple.notes.gallery"));
    const qint64 scan = store().attachment({{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id},
        {"ZTITLE", "Lease"}, {"ZTYPEUTI", "com.apple.notes.gallery"}});
    for (const QString page : {"1", "2"}) {
        const qint64 media =
            store().object("ICMedia", {{"ZIDENTIFIER", "M" + page}, {"ZFILENAME", page + ".png"}});
        store().attachment(
            {{"ZIDENTIFIER", "P" + page}, {"ZPARENTATTACHMENT", scan}, {"ZMEDIA", media}});
        addFile("Accounts/ACC/Media/M" + page + "/" + page + ".png", picture(10, 14));
    }
    addFile("Accounts/ACC/FallbackPDFs/ATT/FallbackPDF.pdf", "%PDF-1.4");
    open();
    EXPECT_EQ(column(4), QStringList("Before\n[1.png]\n[2.png]\nAfter"));
    QStringList names;
    for (int row = 0; row < files()->count(1); ++row) {
        names.append(file(row)->value(0) + " of " + file(row)->parentItem()->value(0));
    }
    EXPECT_EQ(names, QStringList({"Lease.pdf of Walk", "1.png of Walk", "2.png of Walk"}));
}

TEST_F(NoteFilesTest, WhatIsNoPictureIsShownByItsName)
{
    struct Row {
        const char* what;
        QVariantMap attachment;
        const char* shown;
    };
    const Row rows[]{
        {"link with a title", {{"ZTITLE", "Berths"}, {"ZURLSTRING", "https://h.example/"}},
            "Berths (https://h.example/)"},
        {"link", {{"ZURLSTRING", "https://h.example/"}}, "https://h.example/"},
        {"sound", {{"ZTITLE", "Song.m4a"}, {"ZTYPEUTI", "com.apple.m4a-audio"}}, "[Song.m4a]"},
        {"unknown type", {{"ZTYPEUTI", "org.example.hologram"}}, "[Attachment]"},
        {"nothing at all", {{"ZTYPEUTI", QVariant()}}, "[Attachment]"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        QDir(m_directory.filePath("backup")).removeRecursively();
        m_backup = BackupBuilder(m_directory.filePath("backup"));
        m_store = NoteStoreBuilder();
        QVariantMap columns = row.attachment;
        columns["ZNOTE"] = addNote(bodyWith("ATT", "some.type"));
        columns["ZIDENTIFIER"] = "ATT";
        store().attachment(columns);
        open();
        EXPECT_EQ(column(4), QStringList(QString("Before\n%1\nAfter").arg(row.shown)));
        EXPECT_EQ(notices(), QStringList());
    }
}

TEST_F(NoteFilesTest, HashtagIsItsText)
{
    const QString type = "com.apple.notes.inlinetextattachment.hashtag";
    addNote(sample::noteBody({{.text = "Soup "},
        {.text = QChar(u'\uFFFC'), .attachment = "TAG", .attachmentType = type}}));
    store().object("ICInlineAttachment", {{"ZIDENTIFIER", "TAG"}, {"ZALTTEXT", "#fish"}});
    open();
    EXPECT_EQ(column(4), QStringList("Soup #fish"));
}

TEST_F(NoteFilesTest, TableIsALineForEachRow)
{
    const qint64 id = addNote(bodyWith("ATT", "com.apple.notes.table"));
    store().attachment(
        {{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}, {"ZTYPEUTI", "com.apple.notes.table"},
            {"ZMERGEABLEDATA1", sample::noteTable({{"Day", "Port"}, {"Mon", "Ber\ngen"}})}});
    open();
    EXPECT_EQ(column(4), QStringList("Before\nDay | Port\nMon | Ber gen\nAfter"));
    EXPECT_EQ(files()->count(1), 0);
}

TEST_F(NoteFilesTest, DamagedTableIsItsSummary)
{
    const qint64 id = addNote(bodyWith("ATT", "com.apple.notes.table"));
    QVariantMap table{{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}, {"ZTYPEUTI", "com.apple.notes.table"},
        {"ZMERGEABLEDATA", QByteArray("no gzip")}, {"ZSUMMARY", "Day Port"}};
    store().attachment(table);
    open();
    EXPECT_EQ(column(4), QStringList("Before\nDay Port\nAfter"));
    EXPECT_EQ(notices(), QStringList());
}

TEST_F(NoteFilesTest, DamagedTableWithoutASummaryIsTold)
{
    const qint64 id = addNote(bodyWith("ATT", "com.apple.notes.table"));
    store().attachment({{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id},
        {"ZTYPEUTI", "com.apple.notes.table"}, {"ZMERGEABLEDATA", QByteArray("no gzip")}});
    open();
    EXPECT_EQ(column(4), QStringList("Before\n\nAfter"));
    EXPECT_EQ(notices(), QStringList("A table in the note “Walk” cannot be read: its compressed "
                                     "bytes are damaged"));
}

TEST_F(NoteFilesTest, MissingFileIsToldOnceAndItsPreviewShown)
{
    const qint64 id = addNote(bodyWith("ATT"));
    const qint64 attachment =
        store().attachment({{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}, {"ZMEDIA", addMedia("a.png")}});
    store().object(
        "ICAttachmentPreviewImage", {{"ZIDENTIFIER", "PRE"}, {"ZATTACHMENT", attachment}});
    addFile("Accounts/ACC/Previews/PRE.png", picture(20, 30));
    open();
    ASSERT_NE(shownPicture(), nullptr);
    EXPECT_EQ(shownPicture()->content, payload("Accounts/ACC/Previews/PRE.png"));
    EXPECT_EQ(file(0)->filePath(), "");
    EXPECT_EQ(notices(), QStringList("The backup has no file “a.png” of the note “Walk”."));
}

TEST_F(NoteFilesTest, AttachmentThatTheStoreLacksIsTold)
{
    addNote(bodyWith("GONE"));
    open();
    EXPECT_EQ(column(4), QStringList("Before\n\nAfter"));
    EXPECT_EQ(notices(),
        QStringList("The note “Walk” names an attachment that its store does not have."));
}

TEST_F(NoteFilesTest, FileHasNameDateAndDirectory)
{
    const qint64 id = addNote(bodyWith("ATT"), {{"ZMARKEDFORDELETION", 1}});
    store().attachment({{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}, {"ZMEDIA", addMedia("a.pdf")},
        {"ZCREATIONDATE", 600'000'000}});
    addFile("Accounts/ACC/Media/MED/a.pdf", "%PDF-1.4");
    open();
    ASSERT_EQ(files()->count(1), 1);
    EXPECT_EQ(file(0)->value(0), "a.pdf");
    EXPECT_EQ(file(0)->parentItem()->value(0), "Walk");
    EXPECT_EQ(file(0)->getDetailInfoDateTime(), "2020-01-06T10:40:00Z");
    EXPECT_EQ(file(0)->filePath(), payload("Accounts/ACC/Media/MED/a.pdf"));
    EXPECT_EQ(file(0)->thumbFilePath(), "");
    EXPECT_TRUE(file(0)->flag(Deleted));
    file(0)->setFilePath("/elsewhere");
    EXPECT_EQ(file(0)->filePath(), "/elsewhere");
}

TEST_F(NoteFilesTest, TitleThatIsNoNameOfADirectoryIsReplaced)
{
    struct Row {
        const char* what;
        QString title;
        QString directory;
    };
    const Row rows[]{
        {"none", "", "_"},
        {"this directory", ".", "_"},
        {"the one above", " .. ", "_"},
        {"too long", QString(300, QChar(u'語')), QString(80, QChar(u'語'))},
        {"cut in a character", QString(79, 'x') + "😀", QString(79, 'x')},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        QDir(m_directory.filePath("backup")).removeRecursively();
        m_backup = BackupBuilder(m_directory.filePath("backup"));
        m_store = NoteStoreBuilder();
        const qint64 id = addNote(bodyWith("ATT"), {{"ZTITLE1", row.title}});
        store().attachment({{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}, {"ZMEDIA", addMedia("a.pdf")}});
        open();
        EXPECT_EQ(file(0)->parentItem()->value(0), row.directory);
    }
}

TEST_F(NoteFilesTest, FilesOfLockedNotesAreLeftOut)
{
    const qint64 id = addNote("cipher", {{"ZISPASSWORDPROTECTED", 1}});
    store().attachment({{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}, {"ZMEDIA", addMedia("a.png")}});
    addFile("Accounts/ACC/Media/MED/a.png.encrypted", "cipher");
    open();
    EXPECT_EQ(files()->count(1), 0);
    EXPECT_EQ(notices(), QStringList("One attachment of a locked note cannot be read."));
}

TEST_F(NoteFilesTest, NamesThatLeadElsewhereAreNotFollowed)
{
    const qint64 id = addNote(bodyWith("ATT"));
    const qint64 media = store().object(
        "ICMedia", {{"ZIDENTIFIER", "../../secret"}, {"ZFILENAME", "../../../secret.png"}});
    store().attachment({{"ZIDENTIFIER", "ATT"}, {"ZNOTE", id}, {"ZMEDIA", media}});
    writeFile(m_directory.filePath("secret.png"), picture(10, 10));
    writeFile(m_directory.filePath("loose/notes.db"), store().bytes());
    take(backup::openDatabaseFile(m_directory.filePath("loose/notes.db")));
    EXPECT_EQ(shownPicture(), nullptr);
    EXPECT_EQ(file(0)->filePath(), "");
}

} // namespace
