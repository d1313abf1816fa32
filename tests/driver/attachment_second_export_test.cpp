// SPDX-License-Identifier: MIT
// What is written once more when attachments were fetched.
#include "driver/driver_fixture.h"
#include "driver/fetch_run.h"
#include "support/http_server.h"
#include "support/log_messages.h"
#include "support/protect_calls.h"
#include "support/recording_progress.h"
#include "support/temp_tree.h"

#include <QBuffer>
#include <QImage>

namespace {

using support::HttpServer;
using support::RecordingProgress;

const std::string kText = HttpServer::reply(200, "fetched");

/// Two selected files, one at an address and one on the disk, and one that nobody wants.
class FilesAgain : public DriverTest {
protected:
    FilesAgain()
    {
        server.answer("/a", kText);
        server.answer("/b", kText);
        RecordList records;
        records.push_back(file("a.txt", server.address("/a")));
        records.push_back(file("here.txt", sources.write("here.txt", "here")));
        records.push_back(file("unwanted.txt", server.address("/b"), false));
        backup.add(std::make_unique<PRData>(15, std::move(records)));
    }

    static std::unique_ptr<PRFileItem> file(
        const QString& name, const QString& path, bool selected = true)
    {
        return std::make_unique<PRFileItem>(
            Record{.values = {name}, .selected = selected}, FileContent{.path = path});
    }

    QString pathOf(int row) const
    {
        return dynamic_cast<PRFileItem*>(backup.getPRData(15)->at(row, true))->filePath();
    }

    QStringList exported(CIProgressCallback* progress = nullptr)
    {
        CBackupExporter exporter;
        exporter.exportBackup(&backup, root(), progress, {15}, false, "Anna");
        return tree();
    }

    const support::LogMessages log;
    HttpServer server;
    support::TempTree sources;
    PRBackup backup;
    const QStringList firstRound{"WeChat Attachments/", "WeChat Attachments/here.txt"};
    const QStringList bothRounds{"WeChat Attachments/", "WeChat Attachments/a.txt",
        "WeChat Attachments/here (2).txt", "WeChat Attachments/here.txt"};
};

TEST_F(FilesAgain, AreAllThatAreSelectedUnderNewNames)
{
    EXPECT_EQ(joined(exported()), joined(bothRounds));
    EXPECT_EQ(contentsOf("WeChat Attachments/a.txt"), "fetched");
    EXPECT_EQ(contentsOf("WeChat Attachments/here (2).txt"), "here");
    EXPECT_EQ(letters(server.asked()), "a");
}

TEST_F(FilesAgain, AreNotWrittenWhenNothingCouldBeFetched)
{
    server.answer("/a", HttpServer::reply(404, "not here"));
    EXPECT_EQ(joined(exported()), joined(firstRound));
    EXPECT_EQ(letters(server.asked()), "aaa");
    EXPECT_EQ(pathOf(0), server.address("/a"));
}

TEST_F(FilesAgain, LeaveThoseThatFailedWithTheirAddresses)
{
    RecordList records;
    records.push_back(file("a.txt", server.address("/a")));
    records.push_back(file("gone.txt", server.address("/gone")));
    backup.add(std::make_unique<PRData>(15, std::move(records)));
    EXPECT_EQ(joined(exported()), "WeChat Attachments/, WeChat Attachments/a.txt");
    EXPECT_TRUE(QFileInfo(pathOf(0)).isFile());
    EXPECT_EQ(pathOf(1), server.address("/gone"));
}

TEST_F(FilesAgain, HaveTheirFilesForALaterRun)
{
    exported();
    const QString path = pathOf(0);
    EXPECT_EQ(support::TempTree::readFile(path), "fetched");
    EXPECT_EQ(pathOf(2), server.address("/b")) << "nobody wanted it";
    EXPECT_EQ(exported().size(), 6) << "one more of each, and nothing fetched";
    EXPECT_EQ(letters(server.asked()), "a");
    EXPECT_EQ(pathOf(0), path);
}

TEST_F(FilesAgain, FillTheScaleOfTheStage)
{
    RecordingProgress progress;
    exported(&progress);
    const QStringList calls = progress.calls();
    const int begin = calls.indexOf("setAttachStage true");
    ASSERT_GT(begin, 0);
    EXPECT_EQ(calls.at(begin - 1), "initRange 300"); // two records, one address
    EXPECT_EQ(joined(calls.mid(begin + 1, 3)), "step 0, step 0, step 100");
    double moved = 0;
    for (const QString& call : calls.mid(begin + 1)) {
        moved += call.startsWith("step ") ? call.midRef(5).toDouble() : 0;
    }
    EXPECT_NEAR(moved, 300, 0.001);
    EXPECT_EQ(calls.size() - begin, 9) << "two steps for each file, and no more at their end";
    EXPECT_EQ(calls.last(), "finish");
}

TEST_F(FilesAgain, LiftTheProtectionOfWhatWasFetched)
{
    for (const bool fromDFU : {false, true}) {
        SCOPED_TRACE(fromDFU);
        RecordList records;
        records.push_back(file("a.txt", server.address("/a")));
        backup.add(std::make_unique<PRData>(15, std::move(records)));
        CBackupExporter exporter;
        exporter.setFromDFU(fromDFU);
        const support::ProtectCalls calls;
        exporter.exportBackup(&backup, root(), nullptr, {15}, false, "Anna");
        const QStringList lifted{"open " + server.address("/a"), "close " + server.address("/a"),
            "open " + pathOf(0), "close " + pathOf(0)};
        EXPECT_EQ(joined(calls.calls()), joined(fromDFU ? lifted : QStringList()));
    }
}

TEST_F(FilesAgain, AreConvertedWhereThatIsAskedFor)
{
    server.answer("/a", HttpServer::reply(200, "....ftypheic and no picture"));
    for (const bool convert : {false, true}) {
        SCOPED_TRACE(convert);
        RecordList records;
        records.push_back(file(convert ? "b.heic" : "a.heic", server.address("/a")));
        backup.add(std::make_unique<PRData>(15, std::move(records)));
        CBackupExporter exporter;
        exporter.exportBackup(&backup, root(), nullptr, {15}, convert, "Anna");
        EXPECT_EQ(exporter.unconvertedPictures(),
            convert ? QStringList(root().filePath("WeChat Attachments/b.heic")) : QStringList());
    }
    EXPECT_TRUE(root().exists("WeChat Attachments/a.heic"));
}

TEST_F(FilesAgain, AreNotWrittenBehindACancelInTheLastStep)
{
    AnsweringProgress progress([this](int) { return server.asked().empty(); });
    EXPECT_EQ(joined(exported(&progress)), joined(firstRound));
    EXPECT_TRUE(QFileInfo(pathOf(0)).isFile()) << "what was in hand stays in the record";
}

// A host that takes its refusal back: the library follows its last word.
TEST_F(FilesAgain, AreWrittenWhenALaterPassGetsSomeMore)
{
    RecordList records;
    records.push_back(file("a.txt", server.address("/a")));
    records.push_back(file("b.txt", server.address("/b")));
    backup.add(std::make_unique<PRData>(15, std::move(records)));
    bool refused = false;
    AnsweringProgress progress([this, &refused](int) {
        const bool refusesNow = !refused && !server.asked().empty();
        refused = refused || refusesNow;
        return !refusesNow;
    });
    EXPECT_EQ(joined(exported(&progress)),
        "WeChat Attachments/, WeChat Attachments/a.txt, WeChat Attachments/b.txt");
    EXPECT_EQ(letters(server.asked()), "ab");
}

TEST_F(FilesAgain, AreNotWrittenWhenDownloadsAreCancelledBeforeTheLast)
{
    RecordList records;
    records.push_back(file("a.txt", server.address("/a")));
    records.push_back(file("b.txt", server.address("/b")));
    backup.add(std::make_unique<PRData>(15, std::move(records)));
    CBackupExporter exporter;
    server.beforeAnswers([&exporter](const std::string&) { exporter.cancelDownload(); });
    exporter.exportBackup(&backup, root(), nullptr, {15}, false, "Anna");
    EXPECT_EQ(joined(tree()), "WeChat Attachments/");
    EXPECT_EQ(letters(server.asked()), "a");
}

// The cancel is looked for before each attachment and before each pass, and there is none left.
TEST_F(FilesAgain, AreWrittenWhenDownloadsAreCancelledInTheLast)
{
    CBackupExporter exporter;
    server.beforeAnswers([&exporter](const std::string&) { exporter.cancelDownload(); });
    exporter.exportBackup(&backup, root(), nullptr, {15}, false, "Anna");
    EXPECT_EQ(joined(tree()), joined(bothRounds));
}

// A null pointer asks for no further pass, in which the cancel would be seen.
TEST_F(FilesAgain, AreWrittenWhenOnlyNullPointersAreLeftBehindACancel)
{
    CBackupExporter exporter;
    server.beforeAnswers([&exporter](const std::string&) { exporter.cancelDownload(); });
    auto* item = dynamic_cast<PRFileItem*>(backup.getPRData(15)->at(0, true));
    QList<PRFileItem*> items{nullptr, item};
    (exporter.*access_to::onDownloadFileAttach())(
        items, 15, &backup, root(), "Anna", {15}, nullptr, false);
    EXPECT_EQ(joined(tree()),
        "WeChat Attachments/, WeChat Attachments/a.txt, WeChat Attachments/here.txt");
}

TEST_F(FilesAgain, AreNotWrittenForATypeThatIsNotWantedNotThereOrNotSelected)
{
    PRBackup unselected;
    unselected.add(plainSet(15, 0, 2));
    PRBackup without;
    struct {
        const char* what = nullptr;
        PRBackup* backup = nullptr;
        QVector<int> types;
    } const rows[] = {
        {"not wanted", &backup, {14}},
        {"not there", &without, {15}},
        {"not selected", &unselected, {15}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        PRFileItem item(Record{.values = {"x.txt"}}, FileContent{.path = server.address("/a")});
        QList<PRFileItem*> items{&item};
        CBackupExporter exporter;
        (exporter.*access_to::onDownloadFileAttach())(
            items, 15, row.backup, root(), "Anna", row.types, nullptr, false);
        EXPECT_TRUE(QFileInfo(item.filePath()).isFile());
        EXPECT_EQ(items.size(), 1) << "the list of the caller stays as it is";
        EXPECT_EQ(joined(tree()), "");
    }
}

/// A picture at an address and one that nobody wants, in one chat.
class ChatsAgain : public DriverTest {
protected:
    ChatsAgain()
    {
        QImage picture(3, 2, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QBuffer png;
        picture.save(&png, "PNG");
        server.answer("/a", HttpServer::reply(200, png.data().toStdString()));
        server.answer("/b", HttpServer::reply(200, png.data().toStdString()));
        addChat({.checked = true, .type = 1, .media = server.address("/a")},
            {.checked = false, .type = 1, .media = server.address("/b")});
        // By now the first round is over: what it wrote is marked, to see what is replaced.
        server.beforeAnswers([this](const std::string&) {
            mark(kPage);
            mark(kCsv);
        });
    }

    void addChat(const ChatMessage& first, const ChatMessage& second)
    {
        std::vector<PRWhatsappMsg> messages;
        messages.emplace_back(first);
        messages.emplace_back(second);
        RecordList records;
        records.push_back(std::make_unique<PRWhatsappItem>(
            Record{.values = {"Mia"}, .flags = PartlySelected}, std::move(messages)));
        backup.add(std::make_unique<PRData>(14, std::move(records)));
    }

    void mark(const char* path) const
    {
        QFile file(root().filePath(path));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Append)) << path;
        file.write("first round");
    }

    bool isOfFirstRound(const char* path) const { return contentsOf(path).endsWith("first round"); }

    QString media(int message) const
    {
        auto* chat = dynamic_cast<PRWhatsappItem*>(backup.getPRData(14)->at(0, true));
        return chat->detailContent()->messages().at(message)->media();
    }

    static constexpr const char* kPage = "WeChat/Anna's WeChat.html";
    static constexpr const char* kCsv = "WeChat/Anna's WeChat.csv";
    const support::LogMessages log;
    HttpServer server;
    PRBackup backup;
};

TEST_F(ChatsAgain, AreThePageAloneWithThePicture)
{
    CBackupExporter().exportBackup(&backup, root(), nullptr, {14}, false, "Anna");
    EXPECT_EQ(letters(server.asked()), "a");
    EXPECT_FALSE(isOfFirstRound(kPage));
    EXPECT_TRUE(isOfFirstRound(kCsv));
    EXPECT_FALSE(contentsOf(kPage).contains("image/picture.png")) << "the icon of a missing one";
    const QStringList pictures = QDir(root().filePath("WeChat/image")).entryList(QDir::Files);
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_TRUE(contentsOf(kPage).contains("image/" + pictures.first().toUtf8()));
    EXPECT_EQ(QImage(root().filePath("WeChat/image/" + pictures.first())).size(), QSize(3, 2));
    EXPECT_EQ(tree().filter(".html").size(), 1) << "in the place of the first one";
}

TEST_F(ChatsAgain, AreNotWrittenWhenNothingCouldBeFetched)
{
    server.answer("/a", HttpServer::reply(404, "not here"));
    CBackupExporter().exportBackup(&backup, root(), nullptr, {14}, false, "Anna");
    EXPECT_EQ(letters(server.asked()), "aaa");
    EXPECT_TRUE(isOfFirstRound(kPage));
    EXPECT_TRUE(contentsOf(kPage).contains("image/picture.png"));
    EXPECT_EQ(media(0), server.address("/a"));
}

TEST_F(ChatsAgain, AreNotWrittenBehindACancelInTheLastStep)
{
    AnsweringProgress progress([this](int) { return server.asked().empty(); });
    CBackupExporter().exportBackup(&backup, root(), &progress, {14}, false, "Anna");
    EXPECT_TRUE(isOfFirstRound(kPage));
    EXPECT_TRUE(QFileInfo(media(0)).isFile()) << "what was in hand stays in the record";
}

TEST_F(ChatsAgain, AreNotWrittenWhenDownloadsAreCancelledBeforeTheLast)
{
    addChat({.media = server.address("/a")}, {.media = server.address("/b")});
    CBackupExporter exporter;
    server.beforeAnswers([this, &exporter](const std::string&) {
        mark(kPage);
        exporter.cancelDownload();
    });
    exporter.exportBackup(&backup, root(), nullptr, {14}, false, "Anna");
    EXPECT_EQ(letters(server.asked()), "a");
    EXPECT_TRUE(isOfFirstRound(kPage));
    EXPECT_TRUE(QFileInfo(media(0)).isFile()) << "what was in hand stays in the record";
}

TEST_F(ChatsAgain, HaveTheirPicturesForALaterRun)
{
    CBackupExporter().exportBackup(&backup, root(), nullptr, {14}, false, "Anna");
    const QString path = media(0);
    EXPECT_TRUE(QFileInfo(path).isFile());
    EXPECT_EQ(media(1), server.address("/b")) << "nobody wanted it";
    CBackupExporter().exportBackup(&backup, root(), nullptr, {14}, false, "Anna");
    EXPECT_EQ(letters(server.asked()), "a");
    EXPECT_EQ(media(0), path);
}

TEST_F(ChatsAgain, FillTheScaleOfTheStage)
{
    RecordingProgress progress;
    CBackupExporter().exportBackup(&backup, root(), &progress, {14}, false, "Anna");
    const QStringList calls = progress.calls();
    const int begin = calls.indexOf("setAttachStage true");
    ASSERT_GT(begin, 0);
    // One chat, one address; the head, the download, the page, and the head of the files.
    EXPECT_EQ(joined(calls.mid(begin - 1)),
        "initRange 200, setAttachStage true, step 0, step 100, step 100, step 0, finish");
}

TEST_F(ChatsAgain, AreNotWrittenForATypeThatIsNotWantedNotThereOrNotSelected)
{
    server.beforeAnswers({});
    PRBackup unselected;
    unselected.add(plainSet(14, 0, 2));
    PRBackup without;
    struct {
        const char* what = nullptr;
        PRBackup* backup = nullptr;
        QVector<int> types;
    } const rows[] = {
        {"not wanted", &backup, {15}},
        {"not there", &without, {14}},
        {"not selected", &unselected, {14}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        PRWhatsappMsg message(ChatMessage{.media = server.address("/a")});
        QList<PRWhatsappMsg*> messages{&message};
        CBackupExporter exporter;
        (exporter.*access_to::onDownloadChatAttach())(
            messages, 14, row.backup, root(), "Anna", row.types, nullptr, false);
        EXPECT_TRUE(QFileInfo(message.media()).isFile());
        EXPECT_EQ(messages.size(), 1) << "the list of the caller stays as it is";
        EXPECT_EQ(joined(tree()), "");
    }
}

} // namespace
