// SPDX-License-Identifier: MIT
#include "platform/OvCurlWrapper.h"
#include "support/environment_variable.h"
#include "support/file_limits.h"
#include "support/http_server.h"
#include "support/temp_tree.h"

#include <QElapsedTimer>
#include <QString>

#include <gtest/gtest.h>

#include <array>
#include <string>

using support::ClosedPort;
using support::FullPort;
using support::HttpServer;
using support::TempTree;

namespace {

// A row of redirects "/1" -> "/2" -> ... and the goal behind them.
void answerWithRedirects(HttpServer& server, int count)
{
    for (int hop = 1; hop <= count; ++hop) {
        server.answer(
            "/" + std::to_string(hop), HttpServer::redirect("/" + std::to_string(hop + 1)));
    }
    server.answer("/" + std::to_string(count + 1), HttpServer::reply(200, "goal"));
}

} // namespace

TEST(OvCurlWrapper, HasCodeZeroBeforeTheFirstTransfer)
{
    EXPECT_EQ(OvCurlWrapper().httpCode(), 0);
}

TEST(OvCurlWrapper, WritesTheBodyAndTellsTheStatus)
{
    HttpServer server;
    const std::string body("\0\r\n\xff body", 9);
    server.answer("/a", HttpServer::reply(200, body));
    const TempTree tree;
    OvCurlWrapper curl;
    EXPECT_TRUE(curl.download(server.address("/a"), tree.path("file"), true));
    EXPECT_EQ(curl.httpCode(), 200);
    EXPECT_EQ(tree.read("file").toStdString(), body);
}

TEST(OvCurlWrapper, WritesALongBodyWithoutAnAnnouncedLength)
{
    HttpServer server;
    const std::string body(3'000'000, 'b');
    server.answer("/a", "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + body);
    const TempTree tree;
    OvCurlWrapper curl;
    EXPECT_TRUE(curl.download(server.address("/a"), tree.path("file"), true));
    EXPECT_EQ(tree.read("file").toStdString(), body);
}

TEST(OvCurlWrapper, LeavesNoFileForAStatusOf400OrAbove)
{
    HttpServer server;
    const TempTree tree;
    for (const int status : {400, 401, 403, 404, 410, 500, 503}) {
        SCOPED_TRACE(status);
        server.answer("/a", HttpServer::reply(status, "an error page"));
        OvCurlWrapper curl;
        EXPECT_FALSE(curl.download(server.address("/a"), tree.path("file"), true));
        EXPECT_EQ(curl.httpCode(), status);
        EXPECT_TRUE(tree.list().isEmpty());
    }
}

TEST(OvCurlWrapper, TellsTheResultOfTheLastTransferOnly)
{
    HttpServer server;
    server.answer("/a", HttpServer::reply(200, "body"));
    const TempTree tree;
    OvCurlWrapper curl;
    EXPECT_FALSE(curl.download(server.address("/absent"), tree.path("file"), true));
    EXPECT_EQ(curl.httpCode(), 404);
    EXPECT_TRUE(curl.download(server.address("/a"), tree.path("file"), true));
    EXPECT_EQ(curl.httpCode(), 200);
    EXPECT_EQ(OvCurlWrapper(curl).httpCode(), 200);
}

TEST(OvCurlWrapper, FollowsTenRedirectsAndNoMore)
{
    const TempTree tree;
    OvCurlWrapper curl;
    HttpServer ten;
    answerWithRedirects(ten, 10);
    EXPECT_TRUE(curl.download(ten.address("/1"), tree.path("file"), true));
    EXPECT_EQ(curl.httpCode(), 200);
    EXPECT_EQ(tree.read("file"), "goal");

    HttpServer eleven;
    answerWithRedirects(eleven, 11);
    EXPECT_FALSE(curl.download(eleven.address("/1"), tree.path("file"), true));
    EXPECT_EQ(curl.httpCode(), 302);
    EXPECT_TRUE(tree.list().isEmpty());
}

TEST(OvCurlWrapper, FollowsNoRedirectToAnotherProtocol)
{
    HttpServer server;
    const TempTree secrets;
    const std::string file = "file://" + secrets.write("secret", "secret").toStdString();
    for (const std::string& goal :
        {file, std::string("ftp://127.0.0.1/a"), std::string("dict://127.0.0.1/a")}) {
        SCOPED_TRACE(goal);
        server.answer("/a", HttpServer::redirect(goal));
        const TempTree tree;
        OvCurlWrapper curl;
        EXPECT_FALSE(curl.download(server.address("/a"), tree.path("file"), true));
        EXPECT_EQ(curl.httpCode(), 302);
        EXPECT_TRUE(tree.list().isEmpty());
    }
}

TEST(OvCurlWrapper, TakesHttpAndHttpsAddressesOnly)
{
    const TempTree tree;
    const QString file = "file://" + tree.write("secret", "secret");
    for (const QString& address : {file, QString("ftp://127.0.0.1/a"), QString("httpx://h/a")}) {
        SCOPED_TRACE(address.toStdString());
        OvCurlWrapper curl;
        EXPECT_FALSE(curl.download(address, tree.path("file"), true));
        EXPECT_EQ(curl.httpCode(), 1); // unsupported protocol
        EXPECT_FALSE(tree.exists("file"));
    }
}

TEST(OvCurlWrapper, TellsSevenWhereNothingListens)
{
    const ClosedPort port;
    const TempTree tree;
    for (const char* scheme : {"http", "https"}) {
        SCOPED_TRACE(scheme);
        OvCurlWrapper curl;
        EXPECT_FALSE(curl.download(port.address().replace("http", scheme), tree.path("f"), true));
        EXPECT_EQ(curl.httpCode(), 7);
        EXPECT_TRUE(tree.list().isEmpty());
    }
}

TEST(OvCurlWrapper, TellsSixForAHostAndFiveForAProxyThatCannotBe)
{
    // A name with an empty part is refused by the resolver itself, without asking the network.
    const TempTree tree;
    OvCurlWrapper curl;
    EXPECT_FALSE(curl.download("http://a..b/", tree.path("file"), true));
    EXPECT_EQ(curl.httpCode(), 6);

    const support::EnvironmentVariable proxy("http_proxy", "http://a..b:9/");
    const support::EnvironmentVariable direct("no_proxy", "");
    EXPECT_FALSE(curl.download("http://127.0.0.1:9/", tree.path("file"), true));
    EXPECT_EQ(curl.httpCode(), 5);
    EXPECT_TRUE(tree.list().isEmpty());
}

TEST(OvCurlWrapper, TellsAnErrorNumberForAnAddressOfABadForm)
{
    const TempTree tree;
    for (const char* address : {"", "http://", "http://[::1/", "http://127.0.0.1:99999/",
             "http://127.0.0.1/with a blank"}) {
        SCOPED_TRACE(address);
        OvCurlWrapper curl;
        EXPECT_FALSE(curl.download(address, tree.path("file"), true));
        EXPECT_EQ(curl.httpCode(), 3); // malformed
        EXPECT_TRUE(tree.list().isEmpty());
    }
}

TEST(OvCurlWrapper, LeavesNoPartOfABodyThatEndsTooEarly)
{
    HttpServer server;
    server.answer("/a", "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\nonly this");
    const TempTree tree;
    OvCurlWrapper curl;
    EXPECT_FALSE(curl.download(server.address("/a"), tree.path("file"), true));
    EXPECT_EQ(curl.httpCode(), 200); // an answer came
    EXPECT_TRUE(tree.list().isEmpty());
}

TEST(OvCurlWrapper, TellsAnErrorNumberWhereTheConnectionGivesNoAnswer)
{
    HttpServer server;
    server.answer("/a", "");
    const TempTree tree;
    OvCurlWrapper curl;
    EXPECT_FALSE(curl.download(server.address("/a"), tree.path("file"), true));
    EXPECT_EQ(curl.httpCode(), 52); // nothing was got
    EXPECT_TRUE(tree.list().isEmpty());
}

TEST(OvCurlWrapper, RefusesABodyThatIsAnnouncedAbove2GiB)
{
    HttpServer server;
    server.answer("/a", "HTTP/1.1 200 OK\r\nContent-Length: 2147483649\r\n\r\nbegin");
    const TempTree tree;
    OvCurlWrapper curl;
    EXPECT_FALSE(curl.download(server.address("/a"), tree.path("file"), true));
    EXPECT_TRUE(tree.list().isEmpty());
}

TEST(OvCurlWrapper, HasTheLimitsOfAPatientUser)
{
    constexpr DownloadLimits limits;
    EXPECT_EQ(limits.connectMs, 15'000);
    EXPECT_EQ(limits.slowBytesPerSecond, 1024);
    EXPECT_EQ(limits.slowSeconds, 30);
    EXPECT_EQ(limits.bytes, 2'147'483'648);
}

TEST(OvCurlWrapper, TakesABodyUpToItsLimitAndNoPartOfALargerOne)
{
    const std::string tenBytes(10, 'b');
    const std::string tooMany(11, 'b');
    const std::string unannounced = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n";
    struct {
        const char* what = nullptr;
        std::string answer;
        bool taken = false;
    } const rows[] = {
        {"announced, fits", HttpServer::reply(200, tenBytes), true},
        {"announced, too large", HttpServer::reply(200, tooMany), false},
        {"not announced, fits", unannounced + tenBytes, true},
        {"not announced, too large", unannounced + tooMany, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        HttpServer server;
        server.answer("/a", row.answer);
        const TempTree tree;
        OvCurlWrapper curl(DownloadLimits{.bytes = 10});
        EXPECT_EQ(curl.download(server.address("/a"), tree.path("file"), true), row.taken);
        EXPECT_EQ(curl.httpCode(), 200);
        EXPECT_EQ(tree.exists("file"), row.taken);
    }
}

TEST(OvCurlWrapper, ReportsAConnectionThatIsNotMadeInTimeAsOneThatFailed)
{
    const FullPort port;
    const TempTree tree;
    OvCurlWrapper curl(DownloadLimits{.connectMs = 50});
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(curl.download(port.address(), tree.path("file"), true));
    EXPECT_LT(clock.elapsed(), 10'000) << "not the limit of a patient user";
    EXPECT_EQ(curl.httpCode(), 7);
    EXPECT_TRUE(tree.list().isEmpty());
}

TEST(OvCurlWrapper, ReportsAFailedConnectionBehindARedirect)
{
    const ClosedPort port;
    HttpServer server;
    const TempTree tree;
    struct {
        std::string goal;
        int code = 0;
    } const rows[] = {{port.address().toStdString(), 7}, {"http://a..b/", 6}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.goal);
        server.answer("/a", HttpServer::redirect(row.goal));
        OvCurlWrapper curl;
        EXPECT_FALSE(curl.download(server.address("/a"), tree.path("file"), true));
        EXPECT_EQ(curl.httpCode(), row.code);
        EXPECT_TRUE(tree.list().isEmpty());
    }
}

TEST(OvCurlWrapper, EndsATransferThatIsTooSlow)
{
    const std::string head = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\nbegin";
    struct {
        const char* what = nullptr;
        std::string answer;
        HttpServer::Ending ending = HttpServer::Ending::Close;
        int code = 0;
    } const rows[] = {
        {"a body that comes byte by byte", head, HttpServer::Ending::Trickle, 200},
        {"no answer at all", "", HttpServer::Ending::Silence, 28}, // out of time
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        HttpServer server;
        server.answer("/a", row.answer);
        server.endWith("/a", row.ending);
        const TempTree tree;
        OvCurlWrapper curl(DownloadLimits{.slowSeconds = 1});
        EXPECT_FALSE(curl.download(server.address("/a"), tree.path("file"), true));
        EXPECT_EQ(curl.httpCode(), row.code);
        EXPECT_TRUE(tree.list().isEmpty());
    }
}

TEST(OvCurlWrapper, HandsItsLimitsToItsCopies)
{
    HttpServer server;
    server.answer("/a", HttpServer::reply(200, "body"));
    const TempTree tree;
    const OvCurlWrapper strict(DownloadLimits{.bytes = 3});
    OvCurlWrapper copy(strict);
    OvCurlWrapper assigned;
    assigned = strict;
    EXPECT_FALSE(copy.download(server.address("/a"), tree.path("file"), true));
    EXPECT_FALSE(assigned.download(server.address("/a"), tree.path("file"), true));
}

TEST(OvCurlWrapper, ReplacesAFileOnlyWhereThatIsWanted)
{
    HttpServer server;
    server.answer("/a", HttpServer::reply(200, "new"));
    const TempTree tree;
    tree.write("file", "old and longer");
    OvCurlWrapper curl;
    EXPECT_FALSE(curl.download(server.address("/a"), tree.path("file"), false));
    EXPECT_EQ(tree.read("file"), "old and longer");
    EXPECT_TRUE(server.asked().empty());
    EXPECT_TRUE(curl.download(server.address("/a"), tree.path("file"), true));
    EXPECT_EQ(tree.read("file"), "new");
}

TEST(OvCurlWrapper, FailsWhereTheFileCannotBeMade)
{
    HttpServer server;
    server.answer("/a", HttpServer::reply(200, "body"));
    const TempTree tree;
    tree.makeDir("directory");
    for (const char* path : {"absent/file", "directory"}) {
        SCOPED_TRACE(path);
        OvCurlWrapper curl;
        EXPECT_FALSE(curl.download(server.address("/a"), tree.path(path), true));
        EXPECT_EQ(tree.list(), QStringList({"directory/"}));
    }
}

TEST(OvCurlWrapper, LeavesNoPartOfABodyForWhichTheDiskHasNoRoom)
{
    constexpr std::array<std::size_t, 2> sizes{10, 3'000'000}; // seen at the end, on the way
    for (const std::size_t size : sizes) {
        SCOPED_TRACE(size);
        HttpServer server;
        server.answer("/a", HttpServer::reply(200, std::string(size, 'b')));
        const TempTree tree;
        const support::LargestFile limit(5);
        OvCurlWrapper curl;
        EXPECT_FALSE(curl.download(server.address("/a"), tree.path("file"), true));
        EXPECT_EQ(curl.httpCode(), 200); // an answer came
        EXPECT_TRUE(tree.list().isEmpty());
    }
}
