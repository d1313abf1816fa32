// SPDX-License-Identifier: MIT
// The mode that writes a file for each contact, which no export selects.
#include "contact_sets.h"
#include "interchange/ExportVCFFile.h"
#include "interchange_access.h"

#include <QString>

#include <gtest/gtest.h>

#include <array>

namespace {

ContactContent phonetic(const QString& first, const QString& last)
{
    ContactContent content;
    content.firstPhonetic = first;
    content.lastPhonetic = last;
    return content;
}

// The files that the contacts make in a directory of their own.
QStringList files(std::vector<ContactContent> contents)
{
    const support::TempTree tree;
    PRContactData data(contacts::records(std::move(contents)));
    ExportVCFFile exporter(nullptr);
    EXPECT_EQ(access_to::writeFile(exporter, data, 2, tree.path() + "/"), 0);
    return tree.list();
}

} // namespace

TEST(VCardFiles, AreWrittenInTwoModesAlone)
{
    const support::TempTree tree;
    PRContactData data(contacts::records({ContactContent{}}));
    for (const int mode : {0, 3, -1}) {
        ExportVCFFile exporter(nullptr);
        EXPECT_EQ(access_to::writeFile(exporter, data, mode, tree.path("x.vcf")), -1);
    }
    EXPECT_EQ(tree.list(), QStringList());
}

TEST(VCardFiles, NameBeginsWithADigitForTheMissingPhoneticName)
{
    struct Row {
        const char* first = "";
        const char* last = "";
        const char* file = "";
    };
    const std::array rows{
        Row{"", "", "1.vcf"},
        Row{"Mee", "", "0.vcf"},
        Row{"", "Loona", "1Loona.vcf"},
        Row{"Mee", "Loona", "0 Loona.vcf"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(files({phonetic(row.first, row.last)}), QStringList{row.file});
    }
}

TEST(VCardFiles, NameLosesWhatFileNamesMayNotHold)
{
    EXPECT_EQ(
        files({phonetic("", R"(a\b:c/d*e"f?g<h>i|j.'_)")}), QStringList{"1abcdefghij.'_.vcf"});
}

TEST(VCardFiles, TakenNamesAreNumberedFromOne)
{
    EXPECT_EQ(files({{}, {}, {}}), (QStringList{"1.vcf", "1_1.vcf", "1_2.vcf"}));
}

TEST(VCardFiles, EachHoldsOneVCardAndNothingIsCopied)
{
    const support::TempTree tree;
    PRContactData data(contacts::records({contacts::plainOne()}));
    ExportVCFFile exporter(nullptr);
    EXPECT_EQ(access_to::writeFile(exporter, data, 2, tree.path("new/folder/")), 0);
    EXPECT_EQ(tree.list(), (QStringList{"new/", "new/folder/", "new/folder/1.vcf"}));
    EXPECT_EQ(QString::fromUtf8(tree.read("new/folder/1.vcf")),
        "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Jörg  \r\nN:;Jörg;;;\r\nNOTE:\r\n"
        "TEL;TYPE=WORK;TYPE=pref;TYPE=VOICE:110\r\nEND:VCARD\r\n");
}

TEST(VCardFiles, ContactsThatAreNotSelectedAreWrittenToo)
{
    const support::TempTree tree;
    RecordList list = contacts::records({phonetic("", "a"), phonetic("", "b")});
    list[0]->setSelected(false);
    list.push_back(std::make_unique<PRAbstractItem>()); // no contact
    PRContactData data(std::move(list));
    ExportVCFFile exporter(nullptr);
    EXPECT_EQ(access_to::writeFile(exporter, data, 2, tree.path() + "/"), 0);
    EXPECT_EQ(tree.list(), (QStringList{"1a.vcf", "1b.vcf"}));
}

TEST(VCardFiles, ThoseThatCannotBeOpenedAreSkippedWithoutAWord)
{
    const support::TempTree tree;
    tree.write("file", "");
    PRContactData data(contacts::records({ContactContent{}}));
    ExportVCFFile exporter(nullptr);
    EXPECT_EQ(access_to::writeFile(exporter, data, 2, tree.path("file/")), 0);
    EXPECT_EQ(tree.list(), QStringList{"file"});
}
