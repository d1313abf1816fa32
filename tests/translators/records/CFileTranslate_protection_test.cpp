// SPDX-License-Identifier: MIT
// When a source is laid open, and when it is closed again.
#include "support/file_limits.h"
#include "support/protect_calls.h"
#include "translators/records/file_translate_fixture.h"

namespace {

class FileProtection : public FileTranslateTest {
protected:
    /// The calls for what was added, each with what is written by then.
    QStringList callsOf(bool protectMedia = true)
    {
        const support::ProtectCalls calls([this] { return written().join(", "); });
        run(nullptr, kDocuments, false, protectMedia);
        return calls.calls();
    }
};

TEST_F(FileProtection, IsLiftedAroundTheCopyOfASource)
{
    const QString path = source("a", "source");
    add(file("a", {.path = path}), file("b", {.path = path}));
    EXPECT_EQ(callsOf(), QStringList({"open " + path + ": ", "close " + path + ": a",
                             "open " + path + ": a", "close " + path + ": a, b"}));
}

TEST_F(FileProtection, IsLeftAloneWhereThatIsNotAskedFor)
{
    add(file("a", {.path = source("a", "source")}));
    EXPECT_EQ(callsOf(false), QStringList());
    EXPECT_EQ(written(), QStringList("a"));
}

TEST_F(FileProtection, IsLeftAloneForBytesThatWereWritten)
{
    add(file("a", {.data = "bytes", .path = source("a", "source")}));
    EXPECT_EQ(callsOf(), QStringList());
}

TEST_F(FileProtection, IsLiftedForTheSourceOfBytesThatWereNotWritten)
{
    const QString path = source("a", "source");
    add(file("a", {.data = QByteArray(2'000, 'x'), .path = path}));
    const support::LargestFile limit(1'000);
    EXPECT_EQ(callsOf(), QStringList({"open " + path + ": ", "close " + path + ": a"}));
}

TEST_F(FileProtection, IsLiftedAroundASourceInTheFormOfAThumbnail)
{
    const QString path = source("a", encoded("BMP"));
    FileContent thumb{.path = path};
    thumb.thumbToMedia = true;
    add(file("a.png", std::move(thumb)));
    EXPECT_EQ(callsOf(), QStringList({"open " + path + ": ", "close " + path + ": a.png"}));
}

TEST_F(FileProtection, IsLiftedForAnAddressAsForAPath)
{
    const QString path = "http://h/a";
    add(file("a.jpg", {.path = path, .thumbFile = source("a", "thumb")}));
    EXPECT_EQ(callsOf(), QStringList({"open http://h/a: ", "close http://h/a: a.jpg"}));
}

TEST_F(FileProtection, IsBackBehindAllThatFailed)
{
    const QString gone = tree.path("in/gone");
    add(file("a", {.path = gone}), file("b", {.path = gone, .thumbnail = source("t", "last")}));
    EXPECT_EQ(callsOf(), QStringList({"open " + gone + ": ", "close " + gone + ": ",
                             "open " + gone + ": ", "close " + gone + ": b"}));
}

// The directory of a parent is left behind it: the calls see the file in there.
TEST_F(FileProtection, IsBackBeforeTheNextRecord)
{
    const QString path = source("a", "source");
    add(fileOf("Trip", "a", {.path = path}), file("b", {.data = "bytes"}));
    EXPECT_EQ(
        callsOf(), QStringList({"open " + path + ": Trip/", "close " + path + ": Trip/, Trip/a"}));
    EXPECT_EQ(written(), QStringList({"Trip/", "Trip/a", "b"}));
}

} // namespace
