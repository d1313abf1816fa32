// SPDX-License-Identifier: MIT
// What the three exporters have in common: which contacts, which files, what a failure leaves.
#include "contact_sets.h"
#include "interchange_access.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QString>
#include <QTranslator>

#include <gtest/gtest.h>

#include <array>

using contacts::kGoogleFile;
using contacts::kICloudFile;
using contacts::kMacFile;
using contacts::kOutlookFile;
using support::TempTree;

namespace {

/// Knows each text in the context of its own class alone.
class French : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(
        const char* context, const char* text, const char* /*hint*/, int /*count*/) const override
    {
        const QString key = QString(context) + ": " + text;
        const QMap<QString, QString> texts{
            {"ExportCSVFile_Google: for Google", "pour Google"},
            {"ExportCSVFile_Outlook: for Outlook", "pour Outlook"},
            {"ExportVCFFile: for iCloud", "pour iCloud"},
            {"ExportVCFFile: for Mac", "pour Mac"},
        };
        return texts.value(key, "wrong");
    }
};

// The results of all three, in the order of an export of contacts.
QList<int> exportAll(const TempTree& tree, PRData& data)
{
    return {contacts::exportInto<ExportVCFFile>(tree, data),
        contacts::exportInto<ExportCSVFile_Google>(tree, data),
        contacts::exportInto<ExportCSVFile_Outlook>(tree, data)};
}

template <typename Exporter> void expectMetaObjectForItsNameAlone(const char* name)
{
    const QMetaObject& meta = Exporter::staticMetaObject;
    EXPECT_STREQ(meta.className(), name);
    EXPECT_EQ(meta.superClass(), &QObject::staticMetaObject);
    EXPECT_EQ(meta.methodCount(), meta.methodOffset());
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
}

} // namespace

TEST(InterchangeExport, LeavesFourFiles)
{
    const TempTree tree;
    PRContactData data(contacts::records({contacts::plainOne()}));
    EXPECT_EQ(exportAll(tree, data), (QList<int>{0, 0, 0}));
    EXPECT_EQ(tree.list(), (QStringList{"Contacts/", "Contacts/CSV/", kGoogleFile, kOutlookFile,
                               "Contacts/VCF/", kMacFile, kICloudFile}));
}

TEST(InterchangeExport, TranslatesTheNameOfAFileInTheContextOfItsClass)
{
    const TempTree tree;
    PRContactData data;
    French french;
    QCoreApplication::installTranslator(&french);
    exportAll(tree, data);
    QCoreApplication::removeTranslator(&french);
    EXPECT_TRUE(tree.exists("Contacts/CSV/Anna's Contacts pour Google.csv"));
    EXPECT_TRUE(tree.exists("Contacts/CSV/Anna's Contacts pour Outlook.csv"));
    EXPECT_TRUE(tree.exists("Contacts/VCF/Anna's Contacts pour iCloud.vcf"));
    EXPECT_TRUE(tree.exists("Contacts/VCF/Anna's Contacts pour Mac.vcf"));
}

TEST(InterchangeExport, HasMetaObjectsForTheirNamesAlone)
{
    expectMetaObjectForItsNameAlone<ExportCSVFile_Google>("ExportCSVFile_Google");
    expectMetaObjectForItsNameAlone<ExportCSVFile_Outlook>("ExportCSVFile_Outlook");
    expectMetaObjectForItsNameAlone<ExportVCFFile>("ExportVCFFile");
}

TEST(InterchangeExport, PassesOverWhatIsNotSelectedOrNoContact)
{
    const TempTree tree;
    RecordList list = contacts::records(
        {contacts::plainOne(), contacts::with({contacts::plain(Phone, "own", "222")})});
    list[1]->setSelected(false);
    list.push_back(std::make_unique<PRAbstractItem>());
    PRContactData data(std::move(list));
    EXPECT_EQ(exportAll(tree, data), (QList<int>{0, 0, 0}));
    for (const QString& file : {kGoogleFile, kOutlookFile, kICloudFile}) {
        const QByteArray text = tree.read(file);
        EXPECT_TRUE(text.contains("110"));
        EXPECT_FALSE(text.contains("222"));
    }
    EXPECT_EQ(tree.read(kGoogleFile).count('\n'), 2);
    EXPECT_EQ(tree.read(kOutlookFile).count('\n'), 2);
    EXPECT_EQ(tree.read(kICloudFile).count("BEGIN:VCARD"), 1);
}

TEST(InterchangeExport, IsUtf8WithoutAMark)
{
    const TempTree tree;
    ContactContent content;
    content.lastName = "東京 🏠";
    PRContactData data(contacts::records({content}));
    exportAll(tree, data);
    EXPECT_TRUE(tree.read(kGoogleFile).startsWith("Name,"));
    EXPECT_TRUE(tree.read(kOutlookFile).startsWith("First Name,"));
    EXPECT_TRUE(tree.read(kICloudFile).startsWith("BEGIN:"));
    for (const QString& file : {kGoogleFile, kOutlookFile, kICloudFile}) {
        EXPECT_TRUE(tree.read(file).contains("東京 🏠"));
    }
}

TEST(InterchangeExport, CountsAnewForEachFile)
{
    const TempTree wide;
    PRContactData two(contacts::records({contacts::with(
        {contacts::plain(Phone, "main", "1"), contacts::plain(Phone, "main", "2")})}));
    exportAll(wide, two);
    const TempTree narrow;
    PRContactData one(contacts::records({contacts::plainOne()}));
    exportAll(narrow, one);
    EXPECT_TRUE(wide.read(kGoogleFile).contains("Phone 2 - Value"));
    EXPECT_FALSE(narrow.read(kGoogleFile).contains("Phone 2 - Value"));
    EXPECT_TRUE(wide.read(kOutlookFile).contains("Other Phone 2"));
    EXPECT_FALSE(narrow.read(kOutlookFile).contains("Other Phone 2"));
}

TEST(InterchangeExport, ReplacesTheFilesOfAnEarlierOne)
{
    const TempTree tree;
    PRContactData rich(contacts::records({contacts::rich()}));
    PRContactData one(contacts::records({contacts::plainOne()}));
    exportAll(tree, rich);
    exportAll(tree, one);
    for (const QString& file : {kGoogleFile, kOutlookFile, kICloudFile}) {
        EXPECT_FALSE(tree.read(file).contains("Luna")) << file.toStdString();
    }
    EXPECT_TRUE(tree.read(kMacFile).contains("Luna")); // a copy never replaces a file
}

TEST(InterchangeExport, WithoutAFolderWritesNothingAndReportsNoFailure)
{
    const TempTree tree;
    tree.write("Contacts", "a file where the directory should be");
    PRContactData data(contacts::records({contacts::plainOne()}));
    EXPECT_EQ(exportAll(tree, data), (QList<int>{0, 0, 0}));
    EXPECT_EQ(tree.list(), QStringList{"Contacts"});
}

TEST(InterchangeExport, NamesTheMacFileEvenWithoutAFolder)
{
    const TempTree tree;
    tree.write("Contacts", "");
    PRContactData data;
    ExportVCFFile exporter(nullptr);
    EXPECT_EQ(exporter.exportContacts(&data, tree.dir(), "Anna", "Contacts"), 0);
    EXPECT_EQ(access_to::macFilePath(exporter), tree.path(kMacFile));
}

TEST(InterchangeExport, ReportsAFileThatCannotBeOpened)
{
    const TempTree tree;
    for (const QString& file : {kGoogleFile, kOutlookFile, kICloudFile}) {
        tree.makeDir(file);
    }
    PRContactData data(contacts::records({contacts::plainOne()}));
    EXPECT_EQ(exportAll(tree, data), (QList<int>{1, 1, 1}));
    EXPECT_FALSE(tree.exists(kMacFile));
}

TEST(InterchangeExport, TakesAFileForAFolderAndThenCannotOpenItsOwn)
{
    const TempTree tree;
    tree.write("Contacts/CSV", "");
    PRContactData data(contacts::records({contacts::plainOne()}));
    EXPECT_EQ(exportAll(tree, data), (QList<int>{0, 1, 1}));
}

TEST(InterchangeExport, FailureOfOneLeavesTheOthersAlone)
{
    const TempTree tree;
    tree.makeDir(kGoogleFile);
    PRContactData data(contacts::records({contacts::plainOne()}));
    EXPECT_EQ(exportAll(tree, data), (QList<int>{0, 1, 0}));
    EXPECT_TRUE(tree.read(kOutlookFile).contains("110"));
    EXPECT_TRUE(tree.read(kICloudFile).contains("110"));
}

TEST(InterchangeExport, IgnoresACopyThatFails)
{
    const TempTree tree;
    tree.makeDir(kMacFile);
    PRContactData data(contacts::records({contacts::plainOne()}));
    EXPECT_EQ(contacts::exportInto<ExportVCFFile>(tree, data), 0);
    EXPECT_TRUE(tree.read(kICloudFile).contains("110"));
}

TEST(InterchangeExport, TakesNamesAsTheyCome)
{
    const TempTree tree;
    PRContactData data;
    ExportCSVFile_Google exporter(nullptr);
    EXPECT_EQ(exporter.exportContacts(&data, tree.dir(), "A:*?\"<>|\\", "Con.tacts "), 0);
    EXPECT_TRUE(tree.exists("Con.tacts /CSV/A:*?\"<>|\\'s Con.tacts  for Google.csv"));
}

TEST(InterchangeExport, WritesHostileTextAsItIs)
{
    const TempTree tree;
    ContactContent content = contacts::with({contacts::plain(Phone, "a\"b", "=1+1\r\n%1\t\"")});
    content.nickname = "%2<b>\n";
    PRContactData data(contacts::records({content}));
    exportAll(tree, data);
    EXPECT_TRUE(tree.read(kGoogleFile).contains(",a\"b,=1+1\r\n%1\t\","));
    EXPECT_TRUE(tree.read(kOutlookFile).contains(",=1+1\r\n%1\t\","));
    EXPECT_TRUE(tree.read(kICloudFile).contains("NICKNAME:%2<b>\n\r\n"));
    EXPECT_TRUE(
        tree.read(kICloudFile).contains("TEL;TYPE=a\"b;TYPE=pref;TYPE=VOICE:=1+1\r\n%1\t\"\r\n"));
}
