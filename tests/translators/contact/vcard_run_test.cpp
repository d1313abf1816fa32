// SPDX-License-Identifier: MIT
// What both kinds of vCards have in common: the photo, and one run over the records.
#include "exporters/CPlainFileExporter.h"
#include "support/recording_progress.h"
#include "support/temp_tree.h"
#include "translators/contact/CContact2VCFTranslate.h"
#include "translators/contact/CContact2VCFTranslateTavero.h"
#include "translators/contact/vcard_lines.h"

#include <type_traits>

namespace {

// Ann, a record of another class, one that is not selected, Bo.
RecordList fourRecords()
{
    RecordList records;
    records.push_back(contactOf({}, "Ann"));
    records.push_back(std::make_unique<PRAbstractItem>(Record{.values = {"stranger"}}));
    records.push_back(contactOf({}, "unwanted", false));
    records.push_back(contactOf({}, "Bo"));
    return records;
}

template <typename Translator> class VCardRun : public testing::Test {
protected:
    bool run(int failingWrite = 0, int cancelAtStep = 0)
    {
        sink = std::make_unique<TextSink>(failingWrite);
        support::RecordingProgress progress(cancelAtStep);
        progress.initRange(30);
        PRContactData data(fourRecords());
        return Translator(&data).translate(sink.get(), "T", &progress);
    }

    std::unique_ptr<TextSink> sink;
};

class TranslatorNames {
public:
    template <typename Translator> static std::string GetName(int /*index*/)
    {
        return std::is_same_v<Translator, CContact2VCFTranslate> ? "General" : "Tavero";
    }
};

using Translators = testing::Types<CContact2VCFTranslate, CContact2VCFTranslateTavero>;
TYPED_TEST_SUITE(VCardRun, Translators, TranslatorNames);

TYPED_TEST(VCardRun, WritesOneCardBetweenBeginAndEndOfEachContact)
{
    EXPECT_TRUE(this->run());
    EXPECT_EQ(this->sink->writes().size(), 2);
    EXPECT_TRUE(this->sink->writes().at(0).contains(":Ann\r\n"));
    EXPECT_TRUE(this->sink->writes().at(1).contains(":Bo\r\n"));
    EXPECT_EQ(this->sink->otherCalls(),
        QStringList({"beginItem Ann", "endItem", "beginItem Bo", "endItem"}));
}

TYPED_TEST(VCardRun, FailsAtOnceWithTheNthWrite)
{
    for (int failing = 1; failing <= 2; ++failing) {
        SCOPED_TRACE(failing);
        EXPECT_FALSE(this->run(failing));
        EXPECT_EQ(this->sink->writes().size(), failing);
        EXPECT_EQ(this->sink->otherCalls().last(), "endItem");
    }
}

TYPED_TEST(VCardRun, ACancelKeepsTheCardsBeforeIt)
{
    for (int cancelAt = 1; cancelAt <= 3; ++cancelAt) {
        SCOPED_TRACE(cancelAt); // of three selected records the second is no contact
        EXPECT_TRUE(this->run(0, cancelAt));
        EXPECT_EQ(this->sink->writes().size(), cancelAt == 1 ? 0 : 1);
    }
}

TYPED_TEST(VCardRun, NothingIsWrittenAroundTheCards)
{
    PRContactData data;
    TextSink failing(1);
    TypeParam translator(&data);
    EXPECT_TRUE(translator.prepare(&failing, "T", nullptr));
    EXPECT_TRUE(translator.writeHeader(&failing));
    EXPECT_TRUE(translator.writeFooter(&failing));
    EXPECT_EQ(failing.writes(), QStringList());
}

TYPED_TEST(VCardRun, ThePhotoStandsInOneLineOfBase64WhateverItIs)
{
    struct {
        const char* what = nullptr;
        QByteArray photo;
        std::string line;
    } const rows[] = {
        {"no padding", "abc", "PHOTO;TYPE=JPEG;ENCODING=BASE64:YWJj\r\n"},
        {"padding of one", "ab", "PHOTO;TYPE=JPEG;ENCODING=BASE64:YWI=\r\n"},
        {"padding of two", "a", "PHOTO;TYPE=JPEG;ENCODING=BASE64:YQ==\r\n"},
        {"bytes of any value", QByteArray("\0\xfb\xff\xfe", 4),
            "PHOTO;TYPE=JPEG;ENCODING=BASE64:APv//g==\r\n"},
        {"none", {}, ""},
    };
    PRContactData data;
    TypeParam translator(&data);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(linesOf(translator, {.photo = row.photo}), row.line);
    }
}

TYPED_TEST(VCardRun, ThePhotoComesBackWholeFromItsLine)
{
    QByteArray photo;
    for (int i = 0; i < 1'000'003; ++i) {
        photo.append(static_cast<char>(i * 7 % 251));
    }
    PRContactData data;
    TypeParam translator(&data);
    const std::string line = linesOf(translator, {.photo = photo});
    const std::size_t value = line.find(':') + 1;
    const QByteArray base64 =
        QByteArray::fromStdString(line.substr(value, line.size() - value - 2));
    EXPECT_EQ(QByteArray::fromBase64(base64, QByteArray::AbortOnBase64DecodingErrors), photo);
}

TYPED_TEST(VCardRun, ANoteOfAMegabyteIsOneLine)
{
    PRContactData data;
    TypeParam translator(&data);
    const std::string line = linesOf(translator, {.note = QString(1'048'576, 'x')});
    EXPECT_GE(line.size(), 1'048'576U);
    EXPECT_EQ(line.find("\r\n"), line.size() - 2);
}

TYPED_TEST(VCardRun, HostileTextStandsInTheCardAsItIs)
{
    const QString text =
        QString::fromUtf8("</td><script>\"%1%2\" \u202e\u05e9 \U0001F600 ") + QChar(0xD83D);
    PRContactData data;
    TypeParam translator(&data);
    const QString card =
        cardOf(translator, {.lastName = text, .nickname = text, .jobTitle = text}, text);
    EXPECT_EQ(card.count(text), 4);
    EXPECT_TRUE(
        card.contains("FN:" + text + "\r\n") || card.contains("FN;CHARSET=utf-8:" + text + "\r\n"));
}

TYPED_TEST(VCardRun, DeletedContactsHaveTheCardsOfLiveOnes)
{
    PRContactData data;
    TypeParam translator(&data);
    TextSink output;
    PRContactItem item(Record{.values = {"Mia"}, .flags = Deleted}, everything());
    EXPECT_TRUE(translator.writeItem(&output, &item));
    EXPECT_EQ(output.writes().value(0), cardOf(translator, everything(), "Mia"));
}

TYPED_TEST(VCardRun, EachContactHasAFileWithItsLineEndsAsTheyAre)
{
    PRContactData data(fourRecords());
    const support::TempTree tree;
    CPlainFileExporter exporter(".vcf", true);
    exporter.setEncoding("UTF-8", false);
    ASSERT_TRUE(exporter.openCommonExport(tree.dir(), "Anna", "Contacts", "VCF"));
    EXPECT_TRUE(TypeParam(&data).translate(&exporter, "T", nullptr));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.list(),
        QStringList({"Contacts/", "Contacts/VCF/", "Contacts/VCF/Ann.vcf", "Contacts/VCF/Bo.vcf"}));
    const QByteArray card = tree.read("Contacts/VCF/Bo.vcf");
    EXPECT_TRUE(card.startsWith("BEGIN:VCARD\r\nVERSION:2.1\r\nFN"));
    EXPECT_TRUE(card.endsWith(":Bo\r\nEND:VCARD\r\n\r\n\r\n"));
}

} // namespace
