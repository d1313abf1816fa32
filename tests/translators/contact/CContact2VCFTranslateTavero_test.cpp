// SPDX-License-Identifier: MIT
#include "translators/contact/CContact2VCFTranslateTavero.h"
#include "translators/contact/marking_translation.h"
#include "translators/contact/vcard_lines.h"

#include <QTextCodec>

namespace {

// The encoding of the locale, for one test.
class LocaleEncoding {
public:
    explicit LocaleEncoding(const char* name) : m_before(QTextCodec::codecForLocale())
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    LocaleEncoding(const LocaleEncoding&) = delete;
    LocaleEncoding& operator=(const LocaleEncoding&) = delete;
    ~LocaleEncoding() { QTextCodec::setCodecForLocale(m_before); }

private:
    QTextCodec* m_before;
};

class TaveroVCard : public testing::Test {
protected:
    std::string lines(ContactContent content, const QString& name = {})
    {
        return linesOf(translator, std::move(content), name);
    }
    std::string lines(const PRContactProperty& property) { return lines(holding({property})); }

    PRContactData data;
    CContact2VCFTranslateTavero translator{&data};
};

TEST_F(TaveroVCard, OfAnEmptyContactIsItsFrame)
{
    EXPECT_EQ(cardOf(translator, {}), "BEGIN:VCARD\r\nVERSION:2.1\r\nEND:VCARD\r\n\r\n\r\n");
}

TEST_F(TaveroVCard, HasTheseLinesInThisOrder)
{
    EXPECT_EQ(lines(everything(), "Dr. Mia Huber"),
        "FN:Dr. Mia Huber\r\n"
        "N:Huber;Mia;Anna;Dr.;jun.\r\n"
        "NICKNAME:Mimi\r\n"
        "NOTE;ENCODING=QUOTED-PRINTABLE:=54=65=61\r\n"
        "TITLE:Pilot\r\n"
        "BDAY:1985-04-12\r\n"
        "ORG:Sky Ltd;Flight\r\n"
        "TEL;TYPE=mobile:+49 171\r\n"
        "TEL;TYPE=work fax:+49 30\r\n"
        "EMAIL;TYPE=work:mia@a.example\r\n"
        "ADR;TYPE=home;ENCODING=QUOTED-PRINTABLE:;;=41;=42;;;\r\n"
        "URL;TYPE=home page:https://a.example\r\n"
        "X-IM;TYPE=home:skype;mia.h\r\n"
        "X-DT;TYPE=anniversary:2010-06-01\r\n"
        "X-RSH;TYPE=mother:Eva\r\n"
        "PHOTO;TYPE=JPEG;ENCODING=BASE64:/9j/4A==\r\n");
}

TEST_F(TaveroVCard, NamesTheCharsetOfEachTextLineWhereAsked)
{
    translator.setWriteCharset(true);
    EXPECT_EQ(lines(everything(), "Dr. Mia Huber"),
        "FN;CHARSET=utf-8:Dr. Mia Huber\r\n"
        "N;CHARSET=utf-8:Huber;Mia;Anna;Dr.;jun.\r\n"
        "NICKNAME;CHARSET=utf-8:Mimi\r\n"
        "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=utf-8:=54=65=61\r\n"
        "TITLE;CHARSET=utf-8:Pilot\r\n"
        "BDAY;CHARSET=utf-8:1985-04-12\r\n"
        "ORG;CHARSET=utf-8:Sky Ltd;Flight\r\n"
        "TEL;TYPE=mobile;CHARSET=utf-8:+49 171\r\n"
        "TEL;TYPE=work fax;CHARSET=utf-8:+49 30\r\n"
        "EMAIL;TYPE=work;CHARSET=utf-8:mia@a.example\r\n"
        "ADR;TYPE=home;ENCODING=QUOTED-PRINTABLE;CHARSET=utf-8:;;=41;=42;;;\r\n"
        "URL;TYPE=home page;CHARSET=utf-8:https://a.example\r\n"
        "X-IM;TYPE=home;CHARSET=utf-8:skype;mia.h\r\n"
        "X-DT;TYPE=anniversary;CHARSET=utf-8:2010-06-01\r\n"
        "X-RSH;TYPE=mother;CHARSET=utf-8:Eva\r\n"
        "PHOTO;TYPE=JPEG;ENCODING=BASE64:/9j/4A==\r\n");
    translator.setWriteCharset(false);
    EXPECT_EQ(lines({}, "Mia"), "FN:Mia\r\n");
}

TEST_F(TaveroVCard, KeepsThePlaceOfEachPartOfAName)
{
    struct {
        const char* what = nullptr;
        ContactContent content;
        std::string line;
    } const rows[] = {
        {"last name", {.lastName = "a"}, "N:a;;;;\r\n"},
        {"first name", {.firstName = "a"}, "N:;a;;;\r\n"},
        {"middle name", {.middleName = "a"}, "N:;;a;;\r\n"},
        {"prefix", {.namePrefix = "a"}, "N:;;;a;\r\n"},
        {"suffix", {.nameSuffix = "a"}, "N:;;;;a\r\n"},
        {"each escaped", {.firstName = "c;d", .lastName = "a\\b"}, "N:a\\\\b;c\\;d;;;\r\n"},
        {"phonetic names are none", {.firstPhonetic = "a", .lastPhonetic = "b"}, ""},
        {"organization", {.organization = "a;b"}, "ORG:a\\;b;\r\n"},
        {"department", {.department = "a"}, "ORG:;a\r\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(lines(row.content), row.line);
    }
}

TEST_F(TaveroVCard, EscapesBackslashesAndSemicolonsAndNothingElse)
{
    struct {
        const char* what = nullptr;
        QString text;
        std::string escaped;
    } const rows[] = {
        {"semicolon", "a;b", R"(a\;b)"},
        {"backslash", R"(a\b)", R"(a\\b)"},
        {"backslash before a semicolon", R"(\;)", R"(\\\;)"},
        {"many", R"(;;\\)", R"(\;\;\\\\)"},
        {"comma, colon, quotes", R"(a,b:"c")", R"(a,b:"c")"},
        {"line feeds", "a\nb\r\nc", "a\nb\r\nc"},
        {"places", "%1%2", "%1%2"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const std::string& text = row.escaped;
        EXPECT_EQ(lines({}, row.text), "FN:" + text + "\r\n");
        EXPECT_EQ(lines({.nickname = row.text}), "NICKNAME:" + text + "\r\n");
        EXPECT_EQ(lines({.jobTitle = row.text}), "TITLE:" + text + "\r\n");
        EXPECT_EQ(lines(plain(Phone, "", row.text)), "TEL;TYPE=:" + text + "\r\n");
        EXPECT_EQ(lines(plain(Email, "", row.text)), "EMAIL;TYPE=:" + text + "\r\n");
        EXPECT_EQ(lines(plain(WebAddress, "", row.text)), "URL;TYPE=:" + text + "\r\n");
        EXPECT_EQ(lines(plain(RelatedName, "", row.text)), "X-RSH;TYPE=:" + text + "\r\n");
        EXPECT_EQ(lines(composite(InstantMessage, "", {{"username", row.text}})),
            "X-IM;TYPE=:;" + text + "\r\n");
    }
}

TEST_F(TaveroVCard, WritesLabelsInEnglishAsTheyStand)
{
    struct {
        QString label;
        std::string type;
    } const rows[] = {
        {"_$!<OtherFAX>!$_", "other fax"}, {"_$!<Other>!$_", "other"}, {"_$!<Mobile>!$_", "mobile"},
        {"iPhone", "iPhone"}, {"_$!<HomePage>!$_", "home page"}, {"", ""}, {"boat", "boat"},
        {R"(a;b\c:d)", R"(a;b\c:d)"}, // not escaped
        {"%1 %2", "%1 %2"},           // nor taken for a place
    };
    const MarkingTranslation translation;
    for (const bool charset : {false, true}) {
        translator.setWriteCharset(charset);
        for (const auto& row : rows) {
            SCOPED_TRACE(row.label.toStdString());
            EXPECT_EQ(lines(plain(Phone, row.label, "1")),
                "TEL;TYPE=" + row.type + (charset ? ";CHARSET=utf-8:1\r\n" : ":1\r\n"));
        }
    }
}

// --- quoted-printable

TEST_F(TaveroVCard, QuotesEachByteOfANoteInSmallLetters)
{
    const LocaleEncoding utf8("UTF-8");
    struct {
        const char* what = nullptr;
        QString note;
        std::string quoted;
    } const rows[] = {
        {"a letter", "A", "=41"},
        {"a line feed", "\n", "=0a"},
        {"letters, digits, signs", "a0 =;\\", "=61=30=20=3d=3b=5c"},
        {"two bytes", QString::fromUtf8("\u00fc"), "=c3=bc"},
        {"right to left", QString::fromUtf8("\u05e9"), "=d7=a9"},
        {"an emoji", QString::fromUtf8("\U0001F600"), "=f0=9f=98=80"},
        {"half a character", QString(QChar(0xD83D)) + "x", "=3f=78"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(
            lines({.note = row.note}), "NOTE;ENCODING=QUOTED-PRINTABLE:" + row.quoted + "\r\n");
    }
}

TEST_F(TaveroVCard, QuotesTheBytesOfTheLocalesEncoding)
{
    struct {
        const char* encoding = nullptr;
        std::string quoted;
    } const rows[] = {
        {"UTF-8", "=c3=bc"},
        {"ISO-8859-1", "=fc"},
        {"IBM850", "=81"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.encoding);
        const LocaleEncoding encoding(row.encoding);
        const QString text = QString::fromUtf8("\u00fc");
        EXPECT_EQ(lines({.note = text}), "NOTE;ENCODING=QUOTED-PRINTABLE:" + row.quoted + "\r\n");
        EXPECT_EQ(lines(composite(Address, "", {{"City", text}})),
            "ADR;TYPE=;ENCODING=QUOTED-PRINTABLE:;;;" + row.quoted + ";;;\r\n");
    }
}

TEST_F(TaveroVCard, BreaksNoLineOfALongNote)
{
    const std::string line = lines({.note = QString(100'000, 'a')});
    EXPECT_EQ(line.size(), std::string("NOTE;ENCODING=QUOTED-PRINTABLE:\r\n").size() + 300'000);
    EXPECT_EQ(line.find('\r'), line.size() - 2);
}

TEST_F(TaveroVCard, KeepsThePlaceOfEachPartOfAnAddress)
{
    struct {
        const char* what = nullptr;
        QMap<QString, QString> entry;
        std::string value;
    } const rows[] = {
        {"all parts",
            {{"Country", "E"}, {"ZIP", "D"}, {"State", "C"}, {"City", "B"}, {"Street", "A"}},
            "=41;=42;=43;=44;=45"},
        {"no parts", {}, ";;;;"},
        {"empty parts", {{"Street", ""}, {"City", ""}}, ";;;;"},
        {"one part", {{"ZIP", "D"}}, ";;;=44;"},
        {"parts that are not shown", {{"CountryCode", "de"}, {"zone", "x"}}, ";;;;"},
        {"line feed and semicolon", {{"Street", "\n;"}}, "=0a=3b;;;;"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(lines(composite(Address, "", row.entry)),
            "ADR;TYPE=;ENCODING=QUOTED-PRINTABLE:;;" + row.value + "\r\n");
    }
}

TEST_F(TaveroVCard, TakesNoPartOfAnAddressFromItsSingleValue)
{
    EXPECT_EQ(
        lines(plain(Address, "", "in one line")), "ADR;TYPE=;ENCODING=QUOTED-PRINTABLE:;;;;;;\r\n");
}

// --- messengers and dates

TEST_F(TaveroVCard, WritesEachMessengerWithItsServiceInSmallLetters)
{
    struct {
        const char* what = nullptr;
        QMap<QString, QString> entry;
        std::string value;
    } const rows[] = {
        {"both", {{"service", "SkypE"}, {"username", "Mia"}}, "skype;Mia"},
        {"no service", {{"username", "mia"}}, ";mia"},
        {"no user", {{"service", "qq"}}, "qq;"},
        {"neither", {}, ";"},
        {"escaped", {{"service", "A;B"}, {"username", R"(c;d\)"}}, R"(a\;b;c\;d\\)"},
        {"no mark for this service", {{"service", "twitter"}, {"username", "m"}}, "twitter;m"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(
            lines(composite(InstantMessage, "", row.entry)), "X-IM;TYPE=:" + row.value + "\r\n");
    }
}

TEST_F(TaveroVCard, WritesDatesWithTheYearTheyHave)
{
    struct {
        const char* what = nullptr;
        QString seconds;
        std::string date;
    } const rows[] = {
        {"a day", "-496195200", "1985-04-12"},
        {"late in UTC, the next day here", "82800", "2001-01-02"},
        {"the year 1604 stands for none", "-12519144000", "04-14"},
        {"no number", "soon", "2001-01-01"},
        {"no date", "nan", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(lines({.birthday = row.seconds}), "BDAY:" + row.date + "\r\n");
        EXPECT_EQ(lines(plain(Date, "", row.seconds)), "X-DT;TYPE=:" + row.date + "\r\n");
    }
}

TEST_F(TaveroVCard, HasNoLineForOtherKinds)
{
    for (const int type : {0, 16, 46}) {
        SCOPED_TRACE(type);
        EXPECT_EQ(lines(plain(type, "a", "1")), "");
    }
}

TEST_F(TaveroVCard, KeepsTheOrderWithinAKind)
{
    EXPECT_EQ(lines(holding({plain(Email, "", "b"), plain(Phone, "", "2"), plain(Email, "", "a"),
                  plain(Phone, "", "1"), plain(Email, "", "b")})),
        "TEL;TYPE=:2\r\nTEL;TYPE=:1\r\nEMAIL;TYPE=:b\r\nEMAIL;TYPE=:a\r\nEMAIL;TYPE=:b\r\n");
}

} // namespace
