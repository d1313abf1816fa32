// SPDX-License-Identifier: MIT
// The two operations that fetch attachments, against a server in this process.
#include "driver/exporter_access.h"
#include "driver/fetch_run.h"
#include "support/environment_variable.h"
#include "support/http_server.h"
#include "support/log_messages.h"
#include "support/recording_progress.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using support::HttpServer;
using support::RecordingProgress;
using Ending = HttpServer::Ending;

struct Scenario {
    const char* what = nullptr;
    QStringList addresses;
    std::map<std::string, std::vector<std::string>> answers;
    QList<int> steps; ///< amounts, in the order of the calls
    QString asked;    ///< letters of the paths
    QStringList left;
    QStringList logged;
    int cancelAtStep = 0; ///< 0: never
    DownloadLimits limits = {};
};

constexpr const char* kGot = "a fetched .jpg";
const std::string kOk = HttpServer::reply(200, "picture");
const std::string kMissing = HttpServer::reply(404, "not here");
const std::string kBusy = HttpServer::reply(503, "later");
const std::string kCutOff = "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\nonly this";

void expectScenario(const Scenario& scenario, bool ofFiles)
{
    SCOPED_TRACE(ofFiles ? "files" : "messages");
    HttpServer server;
    for (const auto& [path, answers] : scenario.answers) {
        server.answer(path, answers);
    }
    const support::LogMessages log;
    RecordingProgress progress(scenario.cancelAtStep);
    CBackupExporter exporter;
    exporter.*access_to::curl() = OvCurlWrapper(scenario.limits);
    Fetch fetch(ofFiles, scenario.addresses, server, "photo.jpg");
    fetch.go(exporter, &progress);

    QStringList steps;
    for (const int amount : scenario.steps) {
        steps.append(QString("step %1").arg(amount));
    }
    const QString head = "dataexport.CBackupExporter|info|onDownload%1Attach ";
    QStringList logged;
    for (const QString& line : scenario.logged) {
        logged.append(head.arg(ofFiles ? "File" : "Chat") + withServer(line, server));
    }
    EXPECT_EQ(joined(progress.calls()), joined(steps));
    EXPECT_EQ(letters(server.asked()).toStdString(), scenario.asked.toStdString());
    EXPECT_EQ(joined(fetch.left(server)), joined(scenario.left));
    EXPECT_EQ(joined(log.lines()), joined(logged));
}

void expectScenarios(const std::vector<Scenario>& scenarios)
{
    for (const Scenario& scenario : scenarios) {
        SCOPED_TRACE(scenario.what);
        expectScenario(scenario, false);
        expectScenario(scenario, true);
    }
}

TEST(Downloads, OfNothingTakeOneStep)
{
    expectScenarios({{.what = "an empty list", .steps = {0}}});
}

TEST(Downloads, PutTheFileIntoTheRecordAndSayNothing)
{
    expectScenarios({
        {.what = "one",
            .addresses = {"server:/a"},
            .answers = {{"/a", {kOk}}},
            .steps = {0, 100},
            .asked = "a",
            .left = {kGot}},
        {.what = "two, in order",
            .addresses = {"server:/b", "server:/a"},
            .answers = {{"/a", {kOk}}, {"/b", {kOk}}},
            .steps = {0, 100, 100},
            .asked = "ba",
            .left = {kGot, kGot}},
        {.what = "behind a redirect",
            .addresses = {"server:/a"},
            .answers = {{"/a", {HttpServer::redirect("/b")}}, {"/b", {kOk}}},
            .steps = {0, 100},
            .asked = "ab",
            .left = {kGot}},
        {.what = "an empty file is one",
            .addresses = {"server:/a"},
            .answers = {{"/a", {HttpServer::reply(200, "")}}},
            .steps = {0, 100},
            .asked = "a",
            .left = {kGot}},
    });
}

TEST(Downloads, ThatTheServerRefusesAreTriedThreeTimesAndReportNothing)
{
    std::vector<Scenario> scenarios;
    for (const int status : {400, 404, 410, 500, 503, 599}) {
        const QString line = QString("server:/a HttpCode %1").arg(status);
        scenarios.push_back({.what = "a status",
            .addresses = {"server:/a"},
            .answers = {{"/a", {HttpServer::reply(status, "an error page")}}},
            .steps = {0, 0, 0, 0, 0, 0, 0},
            .asked = "aaa",
            .left = {"server:/a"},
            .logged = {line, line, line}});
    }
    expectScenarios(scenarios);
}

TEST(Downloads, ThatFindNoServerAreTriedThreeTimesAndReportNothing)
{
    const support::ClosedPort closed;
    const support::FullPort full;
    struct {
        const char* what = nullptr;
        QString address;
        int code = 0;
    } const rows[] = {
        {"nothing listens", closed.address(), 7},
        {"nobody is let in", full.address(), 7},
        {"no such host", "http://a..b/", 6},
    };
    for (const auto& row : rows) {
        const QString line = QString("%1 HttpCode %2").arg(row.address).arg(row.code);
        expectScenarios({{.what = row.what,
            .addresses = {row.address},
            .steps = {0, 0, 0, 0, 0, 0, 0},
            .left = {row.address},
            .logged = {line, line, line},
            .limits = {.connectMs = 30}}});
    }
}

TEST(Downloads, ThatFindNoProxyAreTriedThreeTimesAndReportNothing)
{
    const support::EnvironmentVariable proxy("http_proxy", "http://a..b:9/");
    const QString address = "http://127.0.0.2:9/"; // no_proxy names 127.0.0.1
    const QString line = address + " HttpCode 5";
    expectScenarios({{.what = "proxy",
        .addresses = {address},
        .steps = {0, 0, 0, 0, 0, 0, 0},
        .left = {address},
        .logged = {line, line, line}}});
}

TEST(Downloads, StopTryingWhenOneWorks)
{
    expectScenarios({
        {.what = "at the second try",
            .addresses = {"server:/a"},
            .answers = {{"/a", {kBusy, kOk}}},
            .steps = {0, 0, 0, 100},
            .asked = "aa",
            .left = {kGot},
            .logged = {"server:/a HttpCode 503"}},
        {.what = "at the last try",
            .addresses = {"server:/a"},
            .answers = {{"/a", {kBusy, kMissing, kOk}}},
            .steps = {0, 0, 0, 0, 0, 100},
            .asked = "aaa",
            .left = {kGot},
            .logged = {"server:/a HttpCode 503", "server:/a HttpCode 404"}},
    });
}

TEST(Downloads, OfOtherEndsWithoutAFileAreGivenUpAtOnce)
{
    const std::string unannounced = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n";
    struct {
        const char* what = nullptr;
        std::string answer;
        int code = 0;
    } const rows[] = {
        {"a body cut off", kCutOff, 200},
        {"a body that is announced too large", HttpServer::reply(200, std::string(11, 'b')), 200},
        {"a body that is too large", unannounced + std::string(11, 'b'), 200},
        {"a redirect to a file", HttpServer::redirect("file:///etc/hostname"), 302},
        {"nothing at all", "", 52},  // libcurl: the server returned nothing
        {"no HTTP", "hello\r\n", 1}, // libcurl: unsupported protocol
    };
    for (const auto& row : rows) {
        const QString line = QString("server:/a HttpCode %1").arg(row.code);
        expectScenarios({{.what = row.what,
            .addresses = {"server:/a"},
            .answers = {{"/a", {row.answer}}},
            .steps = {0, 0, 100},
            .asked = "a",
            .left = {"server:/a"},
            .logged = {line},
            .limits = {.bytes = 10}}});
    }
}

TEST(Downloads, ThatGoInACircleAreGivenUpAtOnce)
{
    expectScenarios({{.what = "a redirect to itself",
        .addresses = {"server:/a"},
        .answers = {{"/a", {HttpServer::redirect("/a")}}},
        .steps = {0, 0, 100},
        .asked = "aaaaaaaaaaa", // ten redirects
        .left = {"server:/a"},
        .logged = {"server:/a HttpCode 302"}}});
}

TEST(Downloads, OfAddressesThatNothingFetchesAreGivenUpAtOnce)
{
    struct {
        QString address;
        int code = 0;
    } const rows[] = {{"http://[1", 3}, {"httpx://127.0.0.1/", 1}};
    for (const auto& row : rows) {
        expectScenarios({{.what = "a bad address",
            .addresses = {row.address},
            .steps = {0, 0, 100},
            .left = {row.address},
            .logged = {QString("%1 HttpCode %2").arg(row.address).arg(row.code)}}});
    }
}

TEST(Downloads, ThatStandStillAreGivenUp)
{
    HttpServer server;
    server.answer("/a", "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\nbegin");
    server.endWith("/a", Ending::Trickle);
    server.answer("/b", "");
    server.endWith("/b", Ending::Silence);
    const support::LogMessages log;
    CBackupExporter exporter;
    exporter.*access_to::curl() = OvCurlWrapper(DownloadLimits{.slowSeconds = 1});
    Fetch fetch(false, {"server:/a", "server:/b"}, server);
    fetch.go(exporter, nullptr);
    EXPECT_EQ(letters(server.asked()), "ab");
    EXPECT_EQ(fetch.left(server), QStringList({"server:/a", "server:/b"}));
    const QString head = "dataexport.CBackupExporter|info|onDownloadChatAttach ";
    EXPECT_EQ(log.lines(), QStringList({head + server.address("/a HttpCode 200"),
                               head + server.address("/b HttpCode 28")}));
}

TEST(Downloads, GoThroughAllThatIsLeftInEachPass)
{
    expectScenarios({{.what = "never, at once, at the second try",
        .addresses = {"server:/a", "server:/b", "server:/c"},
        .answers = {{"/a", {kMissing}}, {"/b", {kOk}}, {"/c", {kBusy, kOk}}},
        .steps = {0, 0, 0, 100, 0, 0, 0, 0, 100, 0, 0},
        .asked = "abcaca",
        .left = {"server:/a", kGot, kGot},
        .logged = {"server:/a HttpCode 404", "server:/c HttpCode 503", "server:/a HttpCode 404",
            "server:/a HttpCode 404"}}});
}

TEST(Downloads, ReportNothingBehindOneThatWaitsUntilOneWorks)
{
    expectScenarios({
        {.what = "given up behind one that waits, and behind one that worked",
            .addresses = {"server:/a", "server:/b", "server:/c", "server:/d"},
            .answers = {{"/a", {kMissing}}, {"/b", {kCutOff}}, {"/c", {kOk}}, {"/d", {kCutOff}}},
            .steps = {0, 0, 0, 0, 0, 100, 0, 100, 0, 0, 0, 0},
            .asked = "abcdaa",
            .left = {"server:/a", "server:/b", kGot, "server:/d"},
            .logged = {"server:/a HttpCode 404", "server:/b HttpCode 200", "server:/d HttpCode 200",
                "server:/a HttpCode 404", "server:/a HttpCode 404"}},
        {.what = "from pass to pass",
            .addresses = {"server:/a"},
            .answers = {{"/a", {kMissing, kCutOff}}},
            .steps = {0, 0, 0, 0, 0},
            .asked = "aa",
            .left = {"server:/a"},
            .logged = {"server:/a HttpCode 404", "server:/a HttpCode 200"}},
    });
}

TEST(Downloads, PassOverWhatIsNoAddress)
{
    std::vector<Scenario> scenarios;
    for (const QString& text : {QString("/path"), QString("HTTP://127.0.0.1/"), QString()}) {
        scenarios.push_back({.what = "only its step, in each pass",
            .addresses = {text},
            .steps = {0, 100, 100, 100},
            .left = {text}});
    }
    scenarios.push_back({.what = "its step is the one that is held",
        .addresses = {"server:/a", "/path"},
        .answers = {{"/a", {kMissing, kOk}}},
        .steps = {0, 0, 0, 0, 100, 100, 100},
        .asked = "aa",
        .left = {kGot, "/path"},
        .logged = {"server:/a HttpCode 404"}});
    expectScenarios(scenarios);
}

TEST(Downloads, DropNullPointersWithoutAStep)
{
    expectScenarios({
        {.what = "alone", .addresses = {"null"}, .steps = {0}, .left = {"null"}},
        {.what = "before and behind another",
            .addresses = {"null", "server:/a", "null"},
            .answers = {{"/a", {kBusy, kOk}}},
            .steps = {0, 0, 0, 100},
            .asked = "aa",
            .left = {"null", kGot, "null"},
            .logged = {"server:/a HttpCode 503"}},
    });
}

TEST(Downloads, DoNotBeginBehindACancel)
{
    expectScenarios({{.what = "at the first step",
        .addresses = {"server:/a"},
        .answers = {{"/a", {kOk}}},
        .steps = {0},
        .left = {"server:/a"},
        .cancelAtStep = 1}});
}

TEST(Downloads, ThatAreCancelledInTheProgressEndTheirPassAndNoOther)
{
    const std::map<std::string, std::vector<std::string>> bad{{"/a", {kMissing}}, {"/b", {kOk}}};
    expectScenarios({
        {.what = "behind a failure, which is not logged then",
            .addresses = {"server:/a", "server:/b"},
            .answers = bad,
            .steps = {0, 0, 0, 0},
            .asked = "aaa",
            .left = {"server:/a", "server:/b"},
            .cancelAtStep = 2},
        {.what = "in the step of a failure, which is logged",
            .addresses = {"server:/a", "server:/b"},
            .answers = bad,
            .steps = {0, 0, 0, 0, 0},
            .asked = "aaa",
            .left = {"server:/a", "server:/b"},
            .logged = {"server:/a HttpCode 404"},
            .cancelAtStep = 3},
        {.what = "in the step of one that worked",
            .addresses = {"server:/a", "server:/b", "server:/c", "server:/d"},
            .answers = {{"/a", {kOk}}, {"/b", {kOk}}, {"/c", {kOk}}, {"/d", {kOk}}},
            .steps = {0, 100, 100, 100},
            .asked = "abc",
            .left = {kGot, kGot, kGot, "server:/d"},
            .cancelAtStep = 2},
    });
}

TEST(Downloads, NeedNoProgress)
{
    for (const bool ofFiles : {false, true}) {
        SCOPED_TRACE(ofFiles);
        HttpServer server;
        server.answer("/b", kOk);
        const support::LogMessages log;
        CBackupExporter exporter;
        Fetch fetch(ofFiles, {"server:/a", "null", "server:/b"}, server, "b.jpg");
        fetch.go(exporter, nullptr);
        EXPECT_EQ(letters(server.asked()), "abaa");
        EXPECT_EQ(fetch.left(server), QStringList({"server:/a", "null", kGot}));
        EXPECT_EQ(log.lines().size(), 3);
    }
}

TEST(Downloads, DoNotBeginOnceTheyWereCancelled)
{
    for (const bool ofFiles : {false, true}) {
        SCOPED_TRACE(ofFiles);
        HttpServer server;
        CBackupExporter exporter;
        exporter.cancelDownload();
        RecordingProgress progress;
        Fetch fetch(ofFiles, {"server:/a"}, server);
        fetch.go(exporter, &progress);
        EXPECT_EQ(progress.calls(), QStringList("step 0"));
        EXPECT_TRUE(server.asked().empty());
    }
}

struct InHand {
    const char* what = nullptr;
    std::string answer;
    QStringList left;
    QStringList calls;
};

// Two attachments; the downloads are cancelled while the first is fetched.
void expectCancelled(const InHand& row, bool ofFiles)
{
    SCOPED_TRACE(row.what);
    HttpServer server;
    CBackupExporter exporter;
    server.answer("/a", row.answer);
    server.beforeAnswers([&exporter](const std::string&) { exporter.cancelDownload(); });
    const support::LogMessages log;
    RecordingProgress progress;
    Fetch fetch(ofFiles, {"server:/a", "server:/b"}, server, "a.jpg");
    fetch.go(exporter, &progress);
    EXPECT_EQ(letters(server.asked()), "a");
    EXPECT_EQ(joined(fetch.left(server)), joined(row.left));
    EXPECT_EQ(joined(progress.calls()), joined(row.calls));
}

TEST(Downloads, ThatAreCancelledFinishTheOneInHand)
{
    const InHand works{"it works", kOk, {kGot, "server:/b"}, {"step 0", "step 100"}};
    const InHand waits{"it would be tried again", kMissing, {"server:/a", "server:/b"},
        {"step 0", "step 0", "step 0"}};
    for (const bool ofFiles : {false, true}) {
        expectCancelled(works, ofFiles);
        expectCancelled(waits, ofFiles);
    }
}

TEST(Downloads, ThatAreCancelledInAStepBeginNoFurtherPass)
{
    HttpServer server;
    CBackupExporter exporter;
    const support::LogMessages log;
    AnsweringProgress progress([&exporter](int step) {
        if (step == 3) { // of the failure
            exporter.cancelDownload();
        }
        return true;
    });
    Fetch fetch(false, {"server:/a"}, server);
    fetch.go(exporter, &progress);
    EXPECT_EQ(letters(server.asked()), "a");
    EXPECT_EQ(log.lines().size(), 1);
}

TEST(Downloads, OfFilesTakeTheSuffixOfTheName)
{
    struct {
        const char* name = nullptr;
        const char* fetched = nullptr;
    } const rows[] = {
        {"photo.jpg", "a fetched .jpg"},
        {"PHOTO.JPG", "a fetched .JPG"},
        {"clip.mp4", "a fetched .mp4"},
        {"notes.tar.gz", "a fetched .gz"},
        {"photo", "a fetched ."},
        {"photo.", "a fetched ."},
        {"", "a fetched ."},
        {"folder.d/photo", "a fetched ."},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        HttpServer server;
        server.answer("/x.png", kOk);
        CBackupExporter exporter;
        Fetch fetch(true, {"server:/x.png"}, server, row.name);
        fetch.go(exporter, nullptr);
        EXPECT_EQ(fetch.left(server), QStringList(row.fetched));
    }
}

TEST(Downloads, OfMessagesAreCalledJpgWhateverTheAddressSays)
{
    HttpServer server;
    server.answer("/x.png", kOk);
    CBackupExporter exporter;
    Fetch fetch(false, {"server:/x.png"}, server);
    fetch.go(exporter, nullptr);
    EXPECT_EQ(fetch.left(server), QStringList(kGot));
}

TEST(Downloads, LogAnAddressAsItIs)
{
    for (const char* address : {"http://[%s%d%n", "http://[ä \n"}) {
        SCOPED_TRACE(address);
        const HttpServer server;
        const support::LogMessages log;
        CBackupExporter exporter;
        Fetch fetch(false, {address}, server);
        fetch.go(exporter, nullptr);
        EXPECT_EQ(joined(log.lines()), "dataexport.CBackupExporter|info|onDownloadChatAttach "
                                           + std::string(address) + " HttpCode 3");
    }
}

} // namespace
