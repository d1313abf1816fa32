// SPDX-License-Identifier: MIT
#include "model/PRBackup.h"

#include <QRegularExpression>
#include <QString>

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <set>
#include <utility>

namespace {

constexpr const char* kNames[] = {
    "Messages",
    "Message Attachments",
    "Contacts",
    "Call History",
    "Voicemail",
    "WhatsApp",
    "WhatsApp Attachments",
    "WhatsApp Business",
    "WhatsApp Business Attachments",
    "LINE",
    "LINE Attachments",
    "Viber",
    "Viber Attachments",
    "Viber Call History",
    "WeChat",
    "WeChat Attachments",
    "WeChat Contacts",
    "Kik",
    "Kik Attachments",
    "Messenger",
    "Messenger Attachments",
    "Photos",
    "Shared Photos",
    "Videos",
    "App Photos",
    "App Videos",
    "App Audio",
    "Notes",
    "Note Attachments",
    "Calendar",
    "Reminders",
    "Voice Memos",
    "Ringtones",
    "Safari Bookmarks",
    "Safari History",
    "App Documents",
};

const int kNoDataTypes[] = {
    -1, 36, 100, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};

} // namespace

TEST(PRBackup, NamesEachOfThe36DataTypes)
{
    int dataType = 0;
    for (const char* name : kNames) {
        EXPECT_EQ(PRBackup::dataTypeName(dataType), name) << dataType;
        ++dataType;
    }
    EXPECT_EQ(dataType, 36);
    EXPECT_EQ(kDataTypeCount, 36);
}

TEST(PRBackup, NamesAreFitForDirectoriesAndAllDiffer)
{
    std::set<QString> names;
    const QRegularExpression fit("^[A-Za-z]+( [A-Za-z]+)*$");
    for (int dataType = 0; dataType < kDataTypeCount; ++dataType) {
        const QString name = PRBackup::dataTypeName(dataType);
        EXPECT_TRUE(fit.match(name).hasMatch()) << dataType;
        names.insert(name.toLower());
    }
    EXPECT_EQ(names.size(), 36U);
}

TEST(PRBackup, PhotoTypesAre21To23)
{
    for (int dataType = 0; dataType < kDataTypeCount; ++dataType) {
        EXPECT_EQ(PRBackup::fromPhotoFile(dataType), dataType >= 21 && dataType <= 23) << dataType;
    }
}

TEST(PRBackup, OtherNumbersHaveNoNameNoSetAndAreNoPhotos)
{
    const PRBackup backup;
    for (const int dataType : kNoDataTypes) {
        SCOPED_TRACE(dataType);
        EXPECT_EQ(PRBackup::dataTypeName(dataType), "");
        EXPECT_FALSE(PRBackup::fromPhotoFile(dataType));
        EXPECT_EQ(backup.getPRData(dataType), nullptr);
    }
}

TEST(PRBackup, HasNoSetUntilOneIsAdded)
{
    const PRBackup backup;
    for (int dataType = 0; dataType < kDataTypeCount; ++dataType) {
        EXPECT_EQ(backup.getPRData(dataType), nullptr) << dataType;
    }
}

TEST(PRBackup, GivesTheSameSetEachTime)
{
    PRBackup backup;
    for (int dataType = 0; dataType < kDataTypeCount; ++dataType) {
        auto set = std::make_unique<PRData>(dataType);
        const PRData* added = set.get();
        backup.add(std::move(set));
        EXPECT_EQ(backup.getPRData(dataType), added);
        EXPECT_EQ(backup.getPRData(dataType), added);
        EXPECT_EQ(added->dataType(), dataType);
    }
}

TEST(PRBackup, ReplacesASetOfTheSameDataType)
{
    PRBackup backup;
    backup.add(std::make_unique<PRData>(3));
    auto second = std::make_unique<PRData>(3);
    const PRData* added = second.get();
    backup.add(std::move(second));
    EXPECT_EQ(backup.getPRData(3), added);
}

TEST(PRBackup, TakesNoSetOfAnotherNumber)
{
    PRBackup backup;
    backup.add(nullptr);
    for (const int dataType : kNoDataTypes) {
        backup.add(std::make_unique<PRData>(dataType));
        EXPECT_EQ(backup.getPRData(dataType), nullptr) << dataType;
    }
}

TEST(PRBackup, KeepsItsSetsWhenItMoves)
{
    PRBackup backup;
    backup.add(std::make_unique<PRSMSData>());
    const PRData* messages = backup.getPRData(0);
    PRBackup moved(std::move(backup));
    EXPECT_EQ(moved.getPRData(0), messages);
    PRBackup assigned;
    assigned = std::move(moved);
    EXPECT_EQ(assigned.getPRData(0), messages);
}

TEST(PRBackup, MessagesAndContactsHaveSetsOfTheirOwnClass)
{
    PRBackup backup;
    backup.add(std::make_unique<PRSMSData>());
    backup.add(std::make_unique<PRContactData>());
    EXPECT_NE(dynamic_cast<PRSMSData*>(backup.getPRData(0)), nullptr);
    EXPECT_EQ(dynamic_cast<PRContactData*>(backup.getPRData(0)), nullptr);
    EXPECT_NE(dynamic_cast<PRContactData*>(backup.getPRData(2)), nullptr);
    EXPECT_EQ(dynamic_cast<PRSMSData*>(backup.getPRData(2)), nullptr);
}
