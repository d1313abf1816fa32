// SPDX-License-Identifier: MIT
#include "driver/driver_fixture.h"
#include "driver/exporter_access.h"
#include "model/CSubProgress.h"
#include "support/recording_progress.h"
#include "translators/contact/contact_builder.h"

#include <QRegularExpression>
#include <QTextCodec>

namespace {

using support::RecordingProgress;

const char* const kPage = "Cat/HTML/Anna's Cat.html";
const char* const kCsv = "Cat/CSV/Anna's Cat in common use.csv";
const char* const kMark = "\xEF\xBB\xBF";

const QStringList kForOtherAddressBooks{"Cat/", "Cat/CSV/", "Cat/CSV/Anna's Cat for Google.csv",
    "Cat/CSV/Anna's Cat for Outlook.csv", "Cat/VCF/", "Cat/VCF/Anna's Cat for Mac.vcf",
    "Cat/VCF/Anna's Cat for iCloud.vcf"};
const QStringList kPageFiles{"Cat/HTML/", kPage, "Cat/HTML/image/"};

QStringList sorted(QStringList paths)
{
    paths.sort();
    return paths;
}

// Contacts of the names, with a phone and a messenger each.
std::unique_ptr<PRContactData> contactSet(const QStringList& names)
{
    RecordList records;
    for (const QString& name : names) {
        ContactContent content = holding({plain(Phone, "_$!<Home>!$_", "1"),
            composite(InstantMessage, "_$!<Home>!$_", {{"service", "SKYPE"}, {"username", "m"}})});
        content.firstName = name;
        records.push_back(contactOf(std::move(content), name));
    }
    return std::make_unique<PRContactData>(std::move(records));
}

class ExportContact : public DriverTest {
protected:
    bool run(PRData* data, const QDir& dir, CIProgressCallback* progress,
        const QString& ownerName = "Anna")
    {
        return access_to::exportContact()(data, dir, ownerName, "Cat", progress, &driver, true);
    }

    bool run(PRData* data, CIProgressCallback* progress = nullptr)
    {
        return run(data, root(), progress);
    }

    QStringList callsOf(PRData* data, const QDir& dir, int range, int cancelAtStep = 0,
        const QString& ownerName = "Anna")
    {
        RecordingProgress progress(cancelAtStep);
        progress.initRange(range);
        progress.clearCalls();
        result = run(data, dir, &progress, ownerName);
        return progress.calls();
    }

    CBackupExporter driver;
    bool result = false;
};

TEST_F(ExportContact, RefusesASetOfAnotherClassWithoutATrace)
{
    const auto set = plainSet(2, 1);
    EXPECT_EQ(callsOf(set.get(), root(), 300), QStringList());
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(), QStringList());
}

TEST_F(ExportContact, WritesEachFormatIntoAFolderOfItsOwn)
{
    const QStringList files = sorted(kForOtherAddressBooks + kPageFiles
                                     + QStringList{kCsv, "Cat/VCF/Ben.vcf", "Cat/VCF/Mia.vcf"});
    const auto set = contactSet({"Mia", "Ben"});
    for (const bool forTavero : {false, true}) {
        SCOPED_TRACE(forTavero);
        driver.setExportContactForTavero(forTavero);
        EXPECT_TRUE(run(set.get()));
        EXPECT_EQ(tree(), files);
        QDir(root().filePath("Cat")).removeRecursively();
    }
}

TEST_F(ExportContact, ThePageHasItsStyleSheetInTheHead)
{
    const auto set = contactSet({"Mia"});
    EXPECT_TRUE(run(set.get()));
    const QByteArray page = contentsOf(kPage);
    EXPECT_TRUE(page.startsWith("<!DOCTYPE html PUBLIC "));
    EXPECT_TRUE(page.contains("<title>Anna's Cat</title><style"));
    EXPECT_TRUE(page.endsWith("</body></html>"));
}

TEST_F(ExportContact, OfTheTextsTheCsvAloneBeginsWithAMark)
{
    const auto set = contactSet({"Mia"});
    EXPECT_TRUE(run(set.get()));
    EXPECT_TRUE(contentsOf(kCsv).startsWith(QByteArray(kMark) + "Given Name,Additional Name,"));
    EXPECT_TRUE(contentsOf("Cat/VCF/Mia.vcf").startsWith("BEGIN:VCARD\r\n"));
}

TEST_F(ExportContact, ForTaveroTheCsvAndTheCardsTakeItsForm)
{
    driver.setExportContactForTavero(true);
    const auto set = contactSet({"Mia"});
    EXPECT_TRUE(run(set.get()));
    EXPECT_TRUE(contentsOf(kCsv).startsWith(QByteArray(kMark) + "\"Prefix\",\"FirstName\","));
    EXPECT_TRUE(contentsOf("Cat/VCF/Mia.vcf").contains("\r\nX-IM;TYPE=home:skype;m\r\n"));
}

TEST_F(ExportContact, CardsForTaveroNeverNameTheirCharset)
{
    const auto set = contactSet({"Mia"});
    EXPECT_TRUE(run(set.get()));
    EXPECT_TRUE(contentsOf("Cat/VCF/Mia.vcf").contains("CHARSET"));
    driver.setExportContactForTavero(true);
    const auto other = contactSet({"Ben"});
    EXPECT_TRUE(run(other.get()));
    EXPECT_FALSE(contentsOf("Cat/VCF/Ben.vcf").contains("CHARSET"));
}

std::unique_ptr<PRContactData> umlautNamed(const QString& fileName)
{
    ContactContent content;
    content.firstName = QString::fromUtf8("M\xC3\xA4");
    RecordList records;
    records.push_back(contactOf(std::move(content), fileName));
    return std::make_unique<PRContactData>(std::move(records));
}

TEST_F(ExportContact, CardsForTaveroAloneAreInTheEncodingOfTheMachine)
{
    QTextCodec* machine = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    EXPECT_TRUE(run(umlautNamed("general").get()));
    driver.setExportContactForTavero(true);
    EXPECT_TRUE(run(umlautNamed("tavero").get()));
    QTextCodec::setCodecForLocale(machine);
    EXPECT_TRUE(contentsOf("Cat/VCF/general.vcf").contains("M\xC3\xA4"));
    EXPECT_TRUE(contentsOf("Cat/VCF/tavero.vcf").contains("M\xE4"));
    EXPECT_TRUE(contentsOf(kCsv).contains("M\xC3\xA4"));
    EXPECT_TRUE(contentsOf("Cat/CSV/Anna's Cat in common use (2).csv").contains("M\xC3\xA4"));
}

TEST_F(ExportContact, CardsAreNamedByTheirContacts)
{
    const auto set = contactSet({"Mia", "A/B: \"C\"", "Mia", "", "%1", "card.vcf"});
    EXPECT_TRUE(run(set.get()));
    QStringList cards =
        QDir(root().filePath("Cat/VCF")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    cards = cards.filter(QRegularExpression("^(?!Anna's Cat)"));
    EXPECT_EQ(cards,
        QStringList({"%1.vcf", ".vcf", "A_B_ _C_.vcf", "Mia (2).vcf", "Mia.vcf", "card.vcf.vcf"}));
}

TEST_F(ExportContact, GivesEachOfItsThreeStagesAThirdOfTheRangeInWholeUnits)
{
    const auto set = contactSet({"Mia", "Ben"});
    EXPECT_EQ(callsOf(set.get(), root(), 302),
        QStringList({"range", "step 50", "step 50", "step 0", "step 50", "step 50", "step 0",
            "step 50", "step 50", "step 0"}));
    EXPECT_TRUE(result);
}

TEST_F(ExportContact, FinishesTheStagesOfASetWithoutRecords)
{
    const auto set = contactSet({});
    EXPECT_EQ(callsOf(set.get(), root(), 300),
        QStringList({"range", "step 100", "step 100", "step 100"}));
    EXPECT_TRUE(result);
    EXPECT_EQ(tree(), sorted(kForOtherAddressBooks + kPageFiles + QStringList(kCsv)));
}

TEST_F(ExportContact, RunsItsStagesOnARangeOfNothing)
{
    const auto set = contactSet({"Mia"});
    for (const int range : {0, 2}) {
        SCOPED_TRACE(range);
        EXPECT_EQ(callsOf(set.get(), root(), range),
            QStringList({"range", "step 0", "step 0", "step 0", "step 0", "step 0", "step 0"}));
        EXPECT_TRUE(result);
    }
}

TEST_F(ExportContact, RunsItsStagesUnderAProgressWithoutParent)
{
    const auto set = contactSet({"Mia"});
    CSubProgress progress(nullptr, 300);
    EXPECT_TRUE(run(set.get(), &progress));
    EXPECT_TRUE(tree().contains("Cat/VCF/Mia.vcf"));
}

TEST_F(ExportContact, FinishesAllPlacesWhenNoDirectoryCanBeMade)
{
    QFile file(root().filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const auto set = contactSet({"Mia"});
    EXPECT_EQ(callsOf(set.get(), QDir(root().filePath("file/below")), 300),
        QStringList({"range", "step 100", "step 0", "step 0"}));
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(), QStringList("file"));
}

TEST_F(ExportContact, AFailedPageTakesTheCategoryAndTheFilesForOtherAddressBooksAreStillWritten)
{
    ASSERT_TRUE(root().mkpath("Cat/earlier"));
    ASSERT_TRUE(root().mkpath("Other"));
    ASSERT_TRUE(root().mkpath(kPage)); // a directory in its place
    const auto set = contactSet({"Mia"});
    EXPECT_EQ(
        callsOf(set.get(), root(), 300), QStringList({"range", "step 100", "step 0", "step 0"}));
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(), sorted(kForOtherAddressBooks + QStringList("Other/")));
}

TEST_F(ExportContact, AFailedCsvTakesTheFinishedPageAndMakesNoCards)
{
    // A name that is too long with " in common use.csv" and fits with all other ends.
    const QString owner(232, 'x');
    const auto set = contactSet({"Mia"});
    EXPECT_EQ(callsOf(set.get(), root(), 300, 0, owner),
        QStringList({"range", "step 100", "step 0", "step 100", "step 0"}));
    EXPECT_FALSE(result);
    QStringList files = kForOtherAddressBooks;
    files.replaceInStrings("Anna", owner);
    EXPECT_EQ(tree(), sorted(files));
}

TEST_F(ExportContact, CardsThatHaveNoFolderCostNoOtherFormat)
{
    ASSERT_TRUE(root().mkpath("Cat"));
    ASSERT_TRUE(QFile::link("/nonexistent/folder", root().filePath("Cat/VCF")));
    const auto set = contactSet({"Mia"});
    EXPECT_EQ(callsOf(set.get(), root(), 300),
        QStringList({"range", "step 100", "step 0", "step 100", "step 0", "step 100"}));
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(),
        sorted(kPageFiles + QStringList{"Cat/", "Cat/CSV/", kCsv}
               + kForOtherAddressBooks.filter("Google") + kForOtherAddressBooks.filter("Outlook")));
}

TEST_F(ExportContact, FilesForOtherAddressBooksThatFailAreNoFailure)
{
    for (const QString& path : kForOtherAddressBooks.filter("for")) {
        ASSERT_TRUE(root().mkpath(path)); // a directory in the place of each
    }
    const auto set = contactSet({"Mia"});
    EXPECT_TRUE(run(set.get()));
    EXPECT_TRUE(tree().contains(kCsv));
    EXPECT_TRUE(tree().contains("Cat/VCF/Mia.vcf"));
}

TEST_F(ExportContact, ACancelKeepsWhatWasWrittenAndTheFilesForOtherAddressBooks)
{
    struct {
        int cancelAtStep = 0;
        QStringList calls;
        QStringList files;
    } const rows[] = {
        {1, {"range", "step 50", "step 50", "step 0", "step 0"}, {}},
        {2, {"range", "step 50", "step 50", "step 0", "step 0", "step 0"}, {}},
        {3, {"range", "step 50", "step 50", "step 0", "step 0", "step 0"}, {}},
        {4, {"range", "step 50", "step 50", "step 0", "step 50", "step 50", "step 0"}, {kCsv}},
        {6, {"range", "step 50", "step 50", "step 0", "step 50", "step 50", "step 0", "step 0"},
            {kCsv}},
        {7,
            {"range", "step 50", "step 50", "step 0", "step 50", "step 50", "step 0", "step 50",
                "step 50"},
            {kCsv}},
        {8,
            {"range", "step 50", "step 50", "step 0", "step 50", "step 50", "step 0", "step 50",
                "step 50", "step 0"},
            {kCsv, "Cat/VCF/Ben.vcf"}},
    };
    const auto set = contactSet({"Ben", "Mia"});
    for (const auto& row : rows) {
        SCOPED_TRACE(row.cancelAtStep);
        EXPECT_EQ(callsOf(set.get(), root(), 300, row.cancelAtStep), row.calls);
        EXPECT_TRUE(result);
        EXPECT_EQ(tree(), sorted(kForOtherAddressBooks + kPageFiles + row.files));
        QDir(root().filePath("Cat")).removeRecursively();
    }
}

TEST_F(ExportContact, TheDriverWritesContactsUnderTheNameOfTheirCategory)
{
    for (const bool forTavero : {false, true}) {
        SCOPED_TRACE(forTavero);
        PRBackup backup;
        backup.add(contactSet({"Mia"}));
        driver.setExportContactForTavero(forTavero);
        EXPECT_TRUE(driver.exportBackup(&backup, root(), nullptr, {2}, false, "Anna"));
        const QString csv = "Contacts/CSV/Anna's Contacts in common use.csv";
        EXPECT_EQ(contentsOf(csv).contains("Given Name"), !forTavero);
        QDir(root().filePath("Contacts")).removeRecursively();
    }
}

} // namespace
