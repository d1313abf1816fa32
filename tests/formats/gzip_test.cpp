// SPDX-License-Identifier: MIT
#include "formats/gzip.h"
#include "maker/note_bodies.h"

#include <gtest/gtest.h>

#include <zlib.h>

namespace {

constexpr int kLimit = 1 << 20;

formats::Result<QByteArray> inflated(const QByteArray& bytes, int limit = kLimit)
{
    return formats::inflated({reinterpret_cast<const unsigned char*>(bytes.constData()),
                                 static_cast<std::size_t>(bytes.size())},
        limit);
}

// Qt puts four bytes of length before a zlib stream.
QByteArray zlibStream(const QByteArray& bytes)
{
    return qCompress(bytes).mid(4);
}

TEST(Gzip, GivesBackWhatWasCompressed)
{
    for (const int size : {1, 16'383, 16'384, 16'385, 500'000}) {
        SCOPED_TRACE(size);
        QByteArray bytes(size, '\0');
        for (int place = 0; place < size; ++place) {
            bytes[place] = static_cast<char>(place % 251 * place % 251);
        }
        const auto fromGzip = inflated(sample::gzipped(bytes));
        ASSERT_TRUE(fromGzip);
        EXPECT_EQ(*fromGzip, bytes);
        const auto fromZlib = inflated(zlibStream(bytes));
        ASSERT_TRUE(fromZlib);
        EXPECT_EQ(*fromZlib, bytes);
    }
}

TEST(Gzip, MayHoldNothing)
{
    const auto read = inflated(sample::gzipped({}));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->size(), 0);
}

TEST(Gzip, EndsWithItsStream)
{
    const auto read = inflated(sample::gzipped("text") + "more");
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, "text");
}

TEST(Gzip, CutOffAnywhereIsAnError)
{
    const QByteArray whole = sample::gzipped("A text that is long enough to be cut");
    for (int size = 0; size < whole.size(); ++size) {
        SCOPED_TRACE(size);
        EXPECT_FALSE(inflated(whole.left(size)));
    }
    EXPECT_TRUE(inflated(whole));
}

TEST(Gzip, ChangedByteIsAnError)
{
    const QByteArray whole = sample::gzipped("A text that is long enough to be changed");
    for (int place = 10; place < whole.size(); ++place) { // a header has bytes of no consequence
        SCOPED_TRACE(place);
        QByteArray changed = whole;
        changed[place] = static_cast<char>(~changed[place]);
        EXPECT_FALSE(inflated(changed));
    }
}

TEST(Gzip, NoMoreThanTheLimitIsRead)
{
    const QByteArray thousand = sample::gzipped(QByteArray(1000, 'a'));
    EXPECT_TRUE(inflated(thousand, 1000));
    EXPECT_FALSE(inflated(thousand, 999));
}

TEST(Gzip, BombIsAnErrorThatNamesTheLimit)
{
    const QByteArray bomb = sample::gzipped(QByteArray(50 << 20, '\0'));
    ASSERT_LT(bomb.size(), 100'000);
    const auto read = inflated(bomb);
    ASSERT_FALSE(read);
    EXPECT_TRUE(read.error().what.contains("1048576")) << read.error().what.toStdString();
}

} // namespace
