// SPDX-License-Identifier: MIT
#include "model/PRData.h"
#include "platform/OvCurlWrapper.h"
#include "support/http_server.h"
#include "support/temp_tree.h"

#include <QFileInfo>
#include <QString>

#include <gtest/gtest.h>

#include <string>

using support::ClosedPort;
using support::HttpServer;
using support::TempTree;

namespace {

// Redirects to the file itself would show its contents if they were followed.
std::string redirectToFile(const TempTree& tree)
{
    return HttpServer::redirect("file://" + tree.write("secret", "secret").toStdString());
}

} // namespace

TEST(OnDowmloadThumbnail, FetchesTheAddressIntoAFileOfItsOwn)
{
    HttpServer server;
    server.answer("/a", HttpServer::reply(200, "picture"));
    OvCurlWrapper curl;
    const QString first = PRData::onDowmloadThumbnail(curl, server.address("/a"), "jpg");
    EXPECT_EQ(curl.httpCode(), 200);
    const QString second = PRData::onDowmloadThumbnail(curl, server.address("/a"), "jpg");
    EXPECT_NE(first, second);
    EXPECT_TRUE(QFileInfo(first).isAbsolute());
    EXPECT_EQ(TempTree::readFile(first), "picture");
    EXPECT_EQ(TempTree::readFile(second), "picture");
}

TEST(OnDowmloadThumbnail, NamesTheFileByTheSuffix)
{
    HttpServer server;
    server.answer("/a.png", HttpServer::reply(200, "picture"));
    struct Row {
        const char* suffix;
        const char* complete;
    };
    const Row rows[] = {{"jpg", "jpg"}, {"JPG", "JPG"}, {"tar.gz", "tar.gz"}, {"", ""}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.suffix);
        OvCurlWrapper curl;
        const QString path =
            PRData::onDowmloadThumbnail(curl, server.address("/a.png"), row.suffix);
        EXPECT_EQ(QFileInfo(path).completeSuffix(), row.complete);
        EXPECT_FALSE(path.endsWith('.'));
        EXPECT_FALSE(QFileInfo(path).baseName().isEmpty());
        EXPECT_TRUE(QFileInfo::exists(path));
    }
}

TEST(OnDowmloadThumbnail, PutsAllFilesIntoOnePrivateDirectory)
{
    HttpServer server;
    server.answer("/a", HttpServer::reply(200, "picture"));
    OvCurlWrapper curl;
    const QFileInfo first(PRData::onDowmloadThumbnail(curl, server.address("/a"), "jpg"));
    const QFileInfo second(PRData::onDowmloadThumbnail(curl, server.address("/a"), ""));
    EXPECT_EQ(first.path(), second.path());
    const QFileInfo directory(first.path());
    EXPECT_EQ(directory.permissions()
                  & (QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther
                      | QFile::WriteOther | QFile::ExeOther),
        0);
    EXPECT_NE(directory.absoluteFilePath(), QFileInfo(QDir::tempPath()).absoluteFilePath());
}

TEST(OnDowmloadThumbnail, LeavesNoFileForADownloadThatFailed)
{
    const TempTree tree;
    struct Row {
        const char* what;
        std::string answer;
        int code;
    };
    const Row rows[] = {
        {"not found", HttpServer::reply(404, "error page"), 404},
        {"server error", HttpServer::reply(500, "error page"), 500},
        {"redirect to a file", redirectToFile(tree), 302},
        {"body cut off", "HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\ncut", 200},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        HttpServer server;
        server.answer("/a", row.answer);
        OvCurlWrapper curl;
        const QString path = PRData::onDowmloadThumbnail(curl, server.address("/a"), "jpg");
        EXPECT_EQ(curl.httpCode(), row.code);
        EXPECT_TRUE(path.endsWith(".jpg"));
        EXPECT_FALSE(QFileInfo::exists(path));
    }
}

TEST(OnDowmloadThumbnail, FollowsARedirectToAnotherAddress)
{
    HttpServer server;
    server.answer("/old", HttpServer::redirect(server.address("/new").toStdString()));
    server.answer("/new", HttpServer::reply(200, "moved"));
    OvCurlWrapper curl;
    const QString path = PRData::onDowmloadThumbnail(curl, server.address("/old"), "jpg");
    EXPECT_EQ(curl.httpCode(), 200);
    EXPECT_EQ(TempTree::readFile(path), "moved");
    EXPECT_EQ(server.asked(), std::vector<std::string>({"/old", "/new"}));
}

TEST(OnDowmloadThumbnail, TellsAnErrorNumberWhereNoAnswerCame)
{
    const ClosedPort port;
    struct Row {
        QString address;
        int code;
    };
    const Row rows[] = {{port.address(), 7}, {"http://a..b/", 6}, {"http://[bad", 3}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.address.toStdString());
        OvCurlWrapper curl;
        const QString path = PRData::onDowmloadThumbnail(curl, row.address, "jpg");
        EXPECT_EQ(curl.httpCode(), row.code);
        EXPECT_FALSE(QFileInfo::exists(path));
    }
}

TEST(OnDowmloadThumbnail, ASuffixCannotLeadOutOfTheDirectory)
{
    HttpServer server;
    server.answer("/a", HttpServer::reply(200, "picture"));
    for (const char* suffix : {"/../../escaped", "../escaped", "a/b"}) {
        SCOPED_TRACE(suffix);
        OvCurlWrapper curl;
        const QString path = PRData::onDowmloadThumbnail(curl, server.address("/a"), suffix);
        EXPECT_FALSE(QFileInfo::exists(path));
    }
}
