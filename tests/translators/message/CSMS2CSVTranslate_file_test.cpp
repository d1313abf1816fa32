// SPDX-License-Identifier: MIT
// The message CSV as bytes on the disk.
#include "exporters/CPlainFileExporter.h"
#include "model/PRData.h"
#include "translators/message/CSMS2CSVTranslate.h"
#include "translators/message/sms_builder.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QByteArray fileAt(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

// Little-endian code units behind the mark FF FE.
QByteArray utf16(const std::u16string& text)
{
    QByteArray bytes("\xFF\xFE");
    for (const char16_t unit : text) {
        bytes.append(static_cast<char>(unit & 0xFF));
        bytes.append(static_cast<char>(unit >> 8));
    }
    return bytes;
}

QByteArray fileOf(PRSMSData& data)
{
    const QTemporaryDir root;
    CPlainFileExporter exporter(".csv", false);
    exporter.setEncoding("UTF16", true);
    EXPECT_TRUE(exporter.openExport(QDir(root.path()), "Anna", "Cat"));
    EXPECT_TRUE(CSMS2CSVTranslate(&data).translate(&exporter, "T", nullptr));
    EXPECT_TRUE(exporter.closeExport(true));
    return fileAt(root.filePath("Cat/Anna's Cat.csv"));
}

QByteArray fileOf(std::vector<PRSMSChat> messages)
{
    RecordList records;
    records.push_back(conversationOf(std::move(messages)));
    PRSMSData data(std::move(records));
    return fileOf(data);
}

TEST(SmsCsvFile, WithoutRecordsHoldsMarkAndLabels)
{
    PRSMSData data;
    EXPECT_EQ(fileOf(data).toHex(' '),
        "ff fe 4e 00 61 00 6d 00 65 00 2c 00 50 00 68 00 6f 00 6e 00 65 00 2c 00 45 00 6d 00 61 "
        "00 69 00 6c 00 2c 00 44 00 61 00 74 00 65 00 2c 00 54 00 79 00 70 00 65 00 2c 00 43 00 "
        "6f 00 6e 00 74 00 65 00 6e 00 74 00 0a 00");
}

TEST(SmsCsvFile, TextKeepsEveryCodeUnit)
{
    const std::u16string text = u"\u00FCmlaut \u05E9\u05DC\u05D5\u05DD \U0001F600 \"q\" %1\r\n\t|"
                                + std::u16string(1, char16_t(0xD83D)) + u"|"
                                + std::u16string(1, char16_t(0xDE00)) + u"|\uFFFE\uFEFF";
    std::vector<PRSMSChat> messages;
    messages.emplace_back(SmsMessage{
        .fromMe = true, .date = halfPastTwo(), .content = QString::fromStdU16String(text)});
    EXPECT_EQ(fileOf(std::move(messages)).toHex(' ').toStdString(),
        utf16(u"Name,Phone,Email,Date,Type,Content\n"
              u"\"Mia\",\"+49 171 5550101\",\"mia@example.org\",\"2024-05-01 14:30\",\"Sent\","
              u"\"\u00FCmlaut \u05E9\u05DC\u05D5\u05DD \U0001F600 \"\"q\"\" %1\r\n\t|"
              + std::u16string(1, char16_t(0xD83D)) + u"|" + std::u16string(1, char16_t(0xDE00))
              + u"|\uFFFE\uFEFF\"\n")
            .toHex(' ')
            .toStdString());
}

TEST(SmsCsvFile, MarkStandsOnceHoweverLongTheText)
{
    std::vector<PRSMSChat> messages;
    messages.emplace_back(SmsMessage{.content = QString(QChar(u'x')).repeated(1 << 20)});
    messages.emplace_back(SmsMessage{.content = "y"});
    const std::u16string start =
        u"\"Mia\",\"+49 171 5550101\",\"mia@example.org\",\"\",\"Received\",\"";
    const bool same = fileOf(std::move(messages))
                      == utf16(u"Name,Phone,Email,Date,Type,Content\n" + start
                               + std::u16string(1 << 20, u'x') + u"\"\n" + start + u"y\"\n");
    EXPECT_TRUE(same);
}

// A file that takes nothing.
class FullDisk final : public CIDataExporter {
public:
    using CIDataExporter::write;
    bool write(const QString& /*text*/, QString& /*result*/) override { return false; }
    bool exportData(const QByteArray& /*data*/, const QString& /*name*/) override { return false; }
    bool copyDepend(const QString& /*src*/, const QString& /*name*/) override { return false; }
    bool beginFile(const QDir& dir) override
    {
        QFile file(dir.filePath("begun.csv"));
        return file.open(QIODevice::WriteOnly);
    }
    bool endFile(bool ok) override { return ok; }
};

TEST(SmsCsvFile, LabelsThatCannotBeWrittenCostTheCategoryItsDirectory)
{
    const QTemporaryDir root;
    PRSMSData data;
    FullDisk exporter;
    ASSERT_TRUE(exporter.openExport(QDir(root.path()), "Anna", "Cat"));
    ASSERT_TRUE(QFile::exists(root.filePath("Cat/begun.csv")));
    const bool written = CSMS2CSVTranslate(&data).translate(&exporter, "T", nullptr);
    EXPECT_FALSE(written);
    exporter.closeExport(written);
    EXPECT_FALSE(QFile::exists(root.filePath("Cat")));
    EXPECT_TRUE(QFile::exists(root.path()));
}

} // namespace
