// SPDX-License-Identifier: MIT
// What a user sees while attachments are fetched.
#include "cli/exit_status.h"
#include "run_program.h"
#include "support/http_server.h"
#include "support/temp_tree.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <csignal>
#include <future>

using support::HttpServer;

namespace {

// A chat of ten messages with pictures at the addresses "/0" to "/9".
class AttachmentTranscript : public testing::Test {
protected:
    AttachmentTranscript()
    {
        QByteArray messages;
        for (int i = 0; i < 10; ++i) {
            const std::string path = "/" + std::to_string(i);
            server.answer(path, HttpServer::reply(200, "no picture, but a file"));
            messages += i == 0 ? "" : ", ";
            messages += R"({"type": 1, "media": ")" + server.address(path).toUtf8() + R"("})";
        }
        tree.write("anna.json",
            R"({"recordSet": 1, "owner": "Anna", "sets": [{"dataType": 14, "records": [
                {"kind": "chat", "values": ["Mia"], "messages": [)"
                + messages + "]}]}]}");
    }

    // The program gets the signal when it waits for the answer of this path.
    Outcome interruptedAt(const std::string& path, int signal, const QStringList& arguments)
    {
        std::promise<int> process;
        const std::shared_future<int> number = process.get_future().share();
        server.beforeAnswers([number, signal, path](const std::string& asked) {
            if (asked == path) {
                ::kill(number.get(), signal);
            }
        });
        return runProgramIn(tree.path(), arguments, [&process](int id) { process.set_value(id); });
    }

    HttpServer server;
    support::TempTree tree;
};

} // namespace

TEST_F(AttachmentTranscript, ShowsTheWayThroughTheDownloads)
{
    const Outcome exported = runProgramIn(tree.path(), {"export", "anna.json", "out"});
    EXPECT_TRUE(exported.output.startsWith("WeChat  1  out/WeChat\nExported 1 record in "))
        << exported.output.toStdString();
    EXPECT_EQ(exported.status, AllDone);
    EXPECT_EQ(server.asked().size(), 10);
    // Ten addresses and the chat once more are eleven parts: the first is less than a tenth.
    std::string lines = "Attachments: begun\n";
    for (int percent = 10; percent <= 100; percent += 10) {
        lines += "Attachments: " + std::to_string(percent) + " %\n";
    }
    const int begin = exported.errors.indexOf("Attachments");
    EXPECT_EQ(exported.errors.mid(begin).toStdString(), lines);
}

TEST_F(AttachmentTranscript, TellsOfFailuresWhenItIsToTellAll)
{
    server.answer("/3", HttpServer::reply(404, "not here"));
    const QByteArray line = "dataexport.CBackupExporter: onDownloadChatAttach "
                            + server.address("/3").toUtf8() + " HttpCode 404\n";
    const Outcome usual = runProgramIn(tree.path(), {"export", "anna.json", "out"});
    EXPECT_EQ(usual.errors.count(line), 0);
    EXPECT_EQ(usual.status, AllDone);
    const Outcome verbose =
        runProgramIn(tree.path(), {"export", "--verbose", "anna.json", "verbose"});
    EXPECT_EQ(verbose.errors.count(line), 3) << verbose.errors.toStdString();
    EXPECT_EQ(verbose.status, AllDone);
}

TEST_F(AttachmentTranscript, CountsThoseThatCouldNotBeFetchedInTheSummary)
{
    server.answer("/3", HttpServer::reply(404, "not here"));
    const auto exported = [this](const QString& target) {
        return runProgramIn(tree.path(), {"export", "anna.json", target}).output;
    };
    EXPECT_TRUE(exported("one").endsWith(" s\nCould not be fetched: 1 attachment\n"));
    server.answer("/5", HttpServer::reply(503, "later"));
    EXPECT_TRUE(exported("two").endsWith(" s\nCould not be fetched: 2 attachments\n"));
    server.answer("/3", HttpServer::reply(200, "here"));
    server.answer("/5", HttpServer::reply(200, "here"));
    EXPECT_FALSE(exported("none").contains("fetched"));
}

// Chats of which a part is selected, records that are not, other types: nobody wanted them.
TEST_F(AttachmentTranscript, CountsWantedAttachmentsAlone)
{
    const QByteArray gone = server.address("/gone").toUtf8();
    const auto file = [](const QByteArray& path, const char* selected) {
        return R"({"values": ["a.jpg"], "path": ")" + path + R"(", "selected": )" + selected + "}";
    };
    const auto message = [&gone](const char* checked) {
        return R"({"type": 1, "media": ")" + gone + R"(", "checked": )" + checked + "}";
    };
    tree.write("here.jpg", "x");
    const QByteArray files =
        file(gone, "true") + ", " + file(gone, "false") + ", " + file("here.jpg", "true");
    const QByteArray messages = message("true") + ", " + message("false");
    tree.write("parts.json",
        R"({"recordSet": 1, "sets": [
            {"dataType": 14, "records": [{"kind": "chat", "values": ["Mia"],
                "flags": [16], "messages": [)"
            + messages + R"(]}]},
            {"dataType": 15, "records": [)"
            + files + R"(]}, {"dataType": 18, "records": [)" + files + "]}]}");
    struct {
        const char* only = nullptr;
        QByteArray end;
    } const rows[] = {
        {"14,15,18", "Could not be fetched: 2 attachments\n"},
        {"14", "Could not be fetched: 1 attachment\n"},
        {"15", "Could not be fetched: 1 attachment\n"},
        {"18", " s\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.only);
        const QByteArray output = runProgramIn(
            tree.path(), {"export", "parts.json", QString("out ") + row.only, "--only", row.only})
                                      .output;
        EXPECT_TRUE(output.endsWith(row.end)) << output.toStdString();
    }
}

TEST_F(AttachmentTranscript, LeavesNoTemporaryFiles)
{
    const support::TempTree temporary;
    bool seen = false;
    server.beforeAnswers([&](const std::string& path) {
        seen = seen || (path != "/0" && !temporary.list().filter(".jpg").isEmpty());
    });
    const Outcome exported = runProgramIn(tree.path(), {"export", "anna.json", "out"},
        {{"LC_ALL", "C"}, {"TMPDIR", temporary.path()}});
    EXPECT_EQ(exported.status, AllDone);
    EXPECT_TRUE(seen) << "they are there while they are needed";
    EXPECT_EQ(temporary.list(), QStringList());
}

TEST_F(AttachmentTranscript, AnInterruptEndsThemBehindTheOneInHand)
{
    for (const int signal : {SIGINT, SIGTERM}) {
        SCOPED_TRACE(signal);
        const std::size_t before = server.asked().size();
        const QString target = QString("out%1").arg(signal);
        const Outcome cancelled = interruptedAt("/3", signal, {"export", "anna.json", target});
        EXPECT_EQ(server.asked().size() - before, 4); // "/0" to "/3"
        EXPECT_TRUE(cancelled.errors.endsWith(
            "dataexport: cancelled; what was written is kept in " + target.toUtf8() + "\n"))
            << cancelled.errors.toStdString();
        EXPECT_EQ(cancelled.output, "");
        EXPECT_EQ(cancelled.status, Cancelled);
        EXPECT_TRUE(tree.exists(target + "/WeChat/Anna's WeChat.html"));
    }
}
