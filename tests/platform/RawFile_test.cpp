// SPDX-License-Identifier: MIT
#include "platform/RawFile.h"
#include "support/file_limits.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class RawFileTest : public ::testing::Test {
protected:
    QString path(const QString& name) const { return m_dir.filePath(name); }

    void put(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QByteArray contents(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }

    // "abc", then what the next calls give
    static QStringList reads(RawFile& file, qint64 size, int calls)
    {
        QStringList told;
        for (int call = 0; call < calls; ++call) {
            QByteArray bytes(static_cast<int>(size), '?');
            const qint64 got = file.read(bytes.data(), size);
            told += got > 0 ? QString(bytes.left(static_cast<int>(got))) : QString::number(got);
        }
        return told;
    }

private:
    QTemporaryDir m_dir;
};

TEST_F(RawFileTest, IsReadInPiecesUpToItsEnd)
{
    put("a", "abcdefg");
    RawFile file;
    ASSERT_TRUE(file.openToRead(path("a")));
    EXPECT_EQ(reads(file, 3, 5), QStringList({"abc", "def", "g", "0", "0"}));
}

TEST_F(RawFileTest, WholePiecesAreFollowedByTheEnd)
{
    put("a", "abcdef");
    RawFile file;
    ASSERT_TRUE(file.openToRead(path("a")));
    EXPECT_EQ(reads(file, 3, 3), QStringList({"abc", "def", "0"}));
}

TEST_F(RawFileTest, OpensNothingThatCannotBeRead)
{
    put("secret", "x");
    ASSERT_TRUE(QFile::setPermissions(path("secret"), {}));
    put("a", "x");
    const support::AsAnybody nobody;
    RawFile file;
    EXPECT_FALSE(file.openToRead(path("missing")));
    EXPECT_FALSE(file.openToRead(path(".")));
    EXPECT_FALSE(file.openToRead(QString()));
    EXPECT_FALSE(file.openToRead(path("a") + QChar(u'\0') + "b"));
    EXPECT_FALSE(file.openToRead(path("secret")));
}

TEST_F(RawFileTest, GoesOnWhereTheFileHasGrown)
{
    put("a", "ab");
    RawFile file;
    ASSERT_TRUE(file.openToRead(path("a")));
    EXPECT_EQ(reads(file, 3, 2), QStringList({"ab", "0"}));
    put("a", "abcd");
    EXPECT_EQ(reads(file, 3, 2), QStringList({"cd", "0"}));
}

TEST_F(RawFileTest, WhatCannotBeReadIsToldFromAnEnd)
{
    RawFile file; // of one's own memory, of which the first page is never there
    ASSERT_TRUE(file.openToRead("/proc/self/mem"));
    EXPECT_EQ(reads(file, 3, 2), QStringList({"-1", "-1"}));
}

TEST_F(RawFileTest, WritesAnewOverWhatWasThere)
{
    put("a", "longer than that");
    RawFile file;
    ASSERT_TRUE(file.openToWrite(path("a")));
    EXPECT_EQ(file.write("abc", 3), 3);
    EXPECT_EQ(file.write("de", 2), 2);
    EXPECT_EQ(contents("a"), "abcde");
    file.close();
    EXPECT_FALSE(file.openToWrite(path("missing/a")));
}

TEST_F(RawFileTest, FullDiskShowsAtTheBytesThatDoNotFit)
{
    RawFile file;
    ASSERT_TRUE(file.openToWrite(path("a")));
    const support::LargestFile limit(4);
    EXPECT_EQ(file.write("abc", 3), 3);
    EXPECT_EQ(file.write("def", 3), 1);
    EXPECT_EQ(file.write("ef", 2), 0);
}

} // namespace
