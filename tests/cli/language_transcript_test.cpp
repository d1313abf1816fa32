// SPDX-License-Identifier: MIT
// What --language and the user's locale change in what the program writes, and what they do not.
#include "cli/exit_status.h"
#include "run_program.h"
#include "support/temp_tree.h"

#include <QTextCodec>

#include <gtest/gtest.h>

#include <array>

namespace {

// One message received and one sent.
const QByteArray kRecords =
    R"({"recordSet": 1, "owner": "Anna", "sets": [{"dataType": 0, "records": [
    {"values": ["Mia"], "chats": [
        {"date": "2024-05-01T12:30:00Z", "content": "See you"},
        {"date": "2024-05-01T12:31:00Z", "fromMe": true, "content": "Date"}]}]}]})";

const char* const kCsv = "out/Messages/Anna's Messages.csv";

using Variables = QMap<QString, QString>;

// A folder with the record set "anna.json"; the program runs in it.
class Language : public testing::Test {
protected:
    support::TempTree tree;

    void SetUp() override { tree.write("anna.json", kRecords); }

    // The text of the messages' file; each export begins with an empty folder.
    QString exportedText(const QStringList& options, const Variables& locale = {{"LC_ALL", "C"}})
    {
        EXPECT_TRUE(QDir(tree.path("out")).removeRecursively());
        const QStringList arguments =
            QStringList{"export", "--quiet", "anna.json", "out"} + options;
        const Outcome exported = runProgramIn(tree.path(), arguments, locale);
        EXPECT_EQ(exported.status, AllDone) << exported.errors.toStdString();
        EXPECT_EQ(exported.errors, "");
        EXPECT_TRUE(tree.exists(kCsv)) << "file names are English in every language";
        return QTextCodec::codecForName("UTF-16")->toUnicode(tree.read(kCsv));
    }
};

struct Row {
    const char* what;
    QString code;
    QString columns;
    QString received;
    QString sent;
};

} // namespace

TEST_F(Language, OfTheOptionIsThatOfLabelsAndOfNothingElse)
{
    const std::array rows{
        Row{"English", "en", "Name,Phone,Email,Date,Type,Content", "Received", "Sent"},
        Row{"German", "de", "Name,Telefon,E-Mail,Datum,Art,Inhalt", "Empfangen", "Gesendet"},
        Row{"Japanese", "ja", "名前,電話,メール,日付,種類,内容", "受信", "送信"},
        Row{"Arabic", "ar", "الاسم,الهاتف,البريد الإلكتروني,التاريخ,النوع,المحتوى", "مُستلَمة",
            "مُرسَلة"},
        Row{"Chinese of Hong Kong", "zh-HK", "姓名,電話,電子郵件,日期,類型,內容", "已接收",
            "已傳送"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(exportedText({"--language", row.code}),
            row.columns + "\n\"Mia\",\"\",\"\",\"2024-05-01 14:30\",\"" + row.received
                + "\",\"See you\"\n\"Mia\",\"\",\"\",\"2024-05-01 14:31\",\"" + row.sent
                + "\",\"Date\"\n");
    }
}

TEST_F(Language, OfTheOptionIsThatOfThePageToo)
{
    exportedText({"--language", "de"});
    const QByteArray page = tree.read("out/Messages/Anna's Messages.html");
    EXPECT_TRUE(page.contains("<title>Anna's Messages</title>")) << "the file's name";
    EXPECT_TRUE(page.contains("<h1>Messages von Anna</h1>"));
    EXPECT_TRUE(page.contains("<h2>Name: Mia&nbsp;&nbsp;Telefon: &nbsp;&nbsp;E-Mail: </h2>"));
    EXPECT_TRUE(page.contains("<br>Datum: 2024-05-01 14:30</p>"));
}

TEST_F(Language, OfTheLocaleHoldsWhereThereIsNoOption)
{
    struct LocaleRow {
        const char* what;
        Variables locale;
        QString firstColumns;
    };
    const std::array rows{
        LocaleRow{"LANG", {{"LANG", "de_DE.UTF-8"}}, "Name,Telefon,"},
        LocaleRow{"LC_MESSAGES before LANG",
            {{"LANG", "de_DE.UTF-8"}, {"LC_MESSAGES", "fr_FR.UTF-8"}}, "Nom,Téléphone,"},
        LocaleRow{"LC_ALL before all", {{"LANG", "de_DE.UTF-8"}, {"LC_ALL", "es_ES.UTF-8"}},
            "Nombre,Teléfono,"},
        LocaleRow{"another character set", {{"LANG", "de_DE"}}, "Name,Telefon,"},
        LocaleRow{"a list of languages", {{"LANG", "de_DE.UTF-8"}, {"LANGUAGE", "tlh:it"}},
            "Nome,Telefono,"},
        LocaleRow{"the locale of no language", {{"LC_ALL", "C.UTF-8"}, {"LANGUAGE", "de"}},
            "Name,Phone,"},
        LocaleRow{"a language without translations", {{"LANG", "tlh_XX.UTF-8"}}, "Name,Phone,"},
        LocaleRow{"none", {}, "Name,Phone,"},
    };
    for (const LocaleRow& row : rows) {
        SCOPED_TRACE(row.what);
        const QString text = exportedText({}, row.locale);
        EXPECT_TRUE(text.startsWith(row.firstColumns)) << text.toStdString();
    }
}

TEST_F(Language, OfTheOptionIsMoreThanTheLocales)
{
    const Variables locale{{"LANG", "de_DE.UTF-8"}};
    EXPECT_TRUE(exportedText({"--language", "en"}, locale).startsWith("Name,Phone,"));
    EXPECT_TRUE(exportedText({"--language=it"}, locale).startsWith("Nome,Telefono,"));
}

TEST_F(Language, DoesNotGoWithTheImagesOfAnotherFolder)
{
    tree.makeDir("images");
    EXPECT_TRUE(
        exportedText({"--language", "de", "--resources", "images"}).startsWith("Name,Telefon,"));
}

TEST_F(Language, LeavesTheProgramsOwnWordsAsTheyAre)
{
    const Variables german{{"LANG", "de_DE.UTF-8"}};
    const Outcome list = runProgramIn(tree.path(), {"list", "anna.json"}, german);
    EXPECT_EQ(list.output, runProgramIn(tree.path(), {"list", "anna.json"}).output);
    const Outcome wrong = runProgramIn(tree.path(), {"list", "none.json"}, german);
    EXPECT_EQ(wrong.errors, "dataexport: none.json: no such file or folder\n");
}
