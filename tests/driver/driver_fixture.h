// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRBackup.h"
#include "model/PRSMSItem.h"
#include "platform/OvResourceMgr.h"

#include <QDir>
#include <QDirIterator>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

#include <gtest/gtest.h>

/// A directory to export into, and small sets to export. The images of the pages are missing, so
/// that nobody waits for their copies.
class DriverTest : public testing::Test {
public:
    DriverTest() { OvResourceMgr::instance()->setProductResourceRoot("/nonexistent"); }
    ~DriverTest() override { OvResourceMgr::instance()->setProductResourceRoot({}); }

protected:
    QDir root() const { return {m_directory.path()}; }

    /// All files and directories beneath the root, sorted; directories end in "/".
    QStringList tree() const
    {
        QStringList paths;
        QDirIterator entries(m_directory.path(),
            QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString path = entries.next();
            paths.append(root().relativeFilePath(path) + (QFileInfo(path).isDir() ? "/" : ""));
        }
        paths.sort();
        return paths;
    }

    static RecordList plainRecords(int selected, int unselected = 0)
    {
        RecordList records;
        for (int i = 0; i < selected + unselected; ++i) {
            records.push_back(std::make_unique<PRAbstractItem>(Record{.selected = i < selected}));
        }
        return records;
    }

    static std::unique_ptr<PRData> plainSet(int dataType, int selected, int unselected = 0)
    {
        return std::make_unique<PRData>(dataType, plainRecords(selected, unselected));
    }

    static std::unique_ptr<PRSMSItem> conversation(const QString& text, bool selected = true)
    {
        SmsConversation messages;
        messages.chats.emplace_back(SmsMessage{.content = text});
        return std::make_unique<PRSMSItem>(Record{.selected = selected}, std::move(messages));
    }

    static std::unique_ptr<PRSMSData> smsSet(int selected)
    {
        RecordList records;
        for (int i = 0; i < selected; ++i) {
            records.push_back(conversation(QString::number(i + 1)));
        }
        return std::make_unique<PRSMSData>(std::move(records));
    }

    QByteArray contentsOf(const QString& path) const
    {
        QFile file(root().filePath(path));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }

    /// Conversations on the message page of the owner "Anna"; -1 where there is no page.
    int pageConversations() const
    {
        const QString page = "Messages/Anna's Messages.html";
        return root().exists(page) ? contentsOf(page).count(R"(<div class="main">)") : -1;
    }

    /// Rows of the message CSV of the owner "Anna" behind the labels; -1 where there is no file.
    int csvRows() const
    {
        QFile file(root().filePath("Messages/Anna's Messages.csv"));
        if (!file.open(QIODevice::ReadOnly)) {
            return -1;
        }
        return QString::fromUtf16(reinterpret_cast<const char16_t*>(file.readAll().constData()))
                   .count('\n')
               - 1;
    }

private:
    QTemporaryDir m_directory;
};

/// The 36 data types in the order in which they are counted and written.
inline const QVector<int> kTableOrder{21, 22, 23, 2, 0, 1, 3, 29, 27, 28, 30, 31, 32, 33, 34, 5, 6,
    7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 24, 25, 26, 35, 4};

/// "step 33.3333"
inline QString stepText(double units)
{
    return QStringLiteral("step %1").arg(units);
}

/// The calls with their steps in whole thousandths: what is lost in dividing does not show.
inline QStringList roundedSteps(QStringList calls)
{
    for (QString& call : calls) {
        if (call.startsWith("step ")) {
            call = stepText(qRound(call.midRef(5).toDouble() * 1000) / 1000.0);
        }
    }
    return calls;
}

/// `formats` stages of `units` each, over all the records; what is left comes at the end.
inline QStringList stepsOfStages(int formats, int units, int records)
{
    QStringList steps;
    for (int format = 0; format < formats; ++format) {
        for (int i = 0; i < records; ++i) {
            steps.append(stepText(static_cast<double>(units) / records));
        }
        steps.append("step 0");
    }
    return steps + QStringList(stepText(100 * records - formats * units));
}

/// The steps of a page and of a calendar behind it, which has the second half of the scale and does
/// not move on it; the driver passes on the rest.
inline QStringList stepsOfCalendar(int records)
{
    QStringList steps;
    for (int i = 0; i < records; ++i) {
        steps.append(stepText(50));
    }
    for (int i = 0; i < 1 + records; ++i) {
        steps.append(stepText(0));
    }
    return steps + QStringList(stepText(50 * records));
}

/// The data types whose records are files.
inline const QVector<int> kFileTypes{
    1, 4, 6, 8, 10, 12, 15, 18, 20, 21, 22, 23, 24, 25, 26, 28, 31, 32, 35};

/// The steps that a category of plain records passes on: the pages of tables and of bookmarks take
/// one for each record and one at their end, chats and chat contacts do so for each of two formats,
/// the calendar those above; files ask before each record, which is none, and take one for the
/// whole, as all others do.
inline QStringList stepsOf(int dataType, int records)
{
    if (QVector<int>{5, 7, 9, 11, 14, 17, 19}.contains(dataType)) {
        return stepsOfStages(2, 100 * records / 2, records);
    }
    if (dataType == 29) {
        return stepsOfCalendar(records);
    }
    if (dataType == 16) {
        return stepsOfStages(2, 100 * records / 3, records);
    }
    QStringList steps;
    for (int i = 0; i < records && kFileTypes.contains(dataType); ++i) {
        steps.append("step 0");
    }
    if (!QVector<int>{3, 13, 27, 30, 33, 34}.contains(dataType)) {
        return steps + QStringList(stepText(100 * records));
    }
    for (int i = 0; i < records; ++i) {
        steps.append("step 100");
    }
    return steps + QStringList{"step 0"};
}
